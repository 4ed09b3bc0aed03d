#include "qt/views/ShapeView.h"

#include <QPainter>

namespace lineforge
{

ShapeView::ShapeView(QWidget* parent, const Shape& shape, int penPixels)
    : QWidget(parent), kind_(shape.Kind), penPixels_(penPixels), filled_(shape.Filled), dotted_(shape.Dotted)
{
    setMinimumSize(penPixels, penPixels);
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void ShapeView::SetColour(const QColor& colour)
{
    colour_ = colour;
    update();
}

void ShapeView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour_, penPixels_));
    if (filled_)
        painter.setBrush(colour_);
    const qreal inset = penPixels_ / 2.0;
    const QRectF outline = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    if (kind_ == Shape::Outline::Oval)
        painter.drawEllipse(outline);
    else if (dotted_)
        DrawDots(painter);
    else
        painter.drawRect(outline);
}

// Each side from its left or upper end: so the dots at the corner where a drag began stay where they are while the
// rectangle grows, and two sides that fall together cover each other.
void ShapeView::DrawDots(QPainter& painter) const
{
    QPen pen(colour_, penPixels_, Qt::CustomDashLine, Qt::FlatCap);
    pen.setDashPattern({1, 1});
    painter.setPen(pen);
    const qreal inset = penPixels_ / 2.0;
    for (const qreal y : {inset, height() - inset})
        painter.drawLine(QPointF(0, y), QPointF(width(), y));
    for (const qreal x : {inset, width() - inset})
        painter.drawLine(QPointF(x, 0), QPointF(x, height()));
}

} // namespace lineforge
