#pragma once

#include "platform/drawing/Surface.h"

#include <QStringList>

namespace lineforge
{

// Writes down what is drawn, a line of text a call:
//     Line 0,0 10,10 pen 2 colour 255 mode 13
//     Box 100,200 300x400 pen 1 colour 0 mode 7
//     Print 10,20 "The Smiths" Arial 8 bold italic colour 0
// Every character is 10 twips wide and every line 25 twips high for each point of the font's size.
class RecordingSurface : public Surface
{
public:
    void Line(Point from, Point to) override;
    void Box(Rectangle place) override;
    void Print(const QString& text) override;
    int TextWidth(const QString& text) const override;
    int TextHeight(const QString& text) const override;

    QStringList Calls;

    // What has been recorded since the last asking.
    QStringList Take();

private:
    QString Pen() const;
};

} // namespace lineforge
