#pragma once

#include "platform/controls/Controls.h"

#include <QColor>
#include <QWidget>

namespace lineforge
{

// The outline of an upright oval or a rectangle, which the mouse goes through. Never thinner than its pen, so that a
// shape without a width or a height shows as a line.
class ShapeView : public QWidget
{
public:
    ShapeView(QWidget* parent, const Shape& shape, int penPixels);
    void SetColour(const QColor& colour);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void DrawDots(QPainter& painter) const;

    QColor colour_;
    Shape::Outline kind_;
    int penPixels_;
    bool filled_;
    bool dotted_;
};

} // namespace lineforge
