#include "platform/qt/ShapeView.h"

#include <QPainter>

namespace lineforge
{

ShapeView::ShapeView(QWidget* parent, int penPixels, bool filled)
    : QWidget(parent), penPixels_(penPixels), filled_(filled)
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
    painter.drawEllipse(QRectF(rect()).adjusted(inset, inset, -inset, -inset));
}

} // namespace lineforge
