#include "platform/qt/ShapeView.h"

#include <QPainter>

namespace lineforge
{

ShapeView::ShapeView(QWidget* parent, Shape::Outline kind, int penPixels, bool filled)
    : QWidget(parent), kind_(kind), penPixels_(penPixels), filled_(filled)
{
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
    else
        painter.drawRect(outline);
}

} // namespace lineforge
