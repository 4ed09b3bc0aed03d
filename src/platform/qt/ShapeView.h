#pragma once

#include "platform/Controls.h"

#include <QColor>
#include <QWidget>

namespace lineforge
{

// The outline of an upright oval or a rectangle, which the mouse goes through.
class ShapeView : public QWidget
{
public:
    ShapeView(QWidget* parent, Shape::Outline kind, int penPixels, bool filled);
    void SetColour(const QColor& colour);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor colour_;
    Shape::Outline kind_;
    int penPixels_;
    bool filled_;
};

} // namespace lineforge
