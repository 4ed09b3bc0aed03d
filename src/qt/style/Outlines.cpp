#include "qt/style/Outlines.h"

#include <QPainter>
#include <QWidget>

namespace lineforge
{

QColor Mixed(const QColor& first, const QColor& second, float share)
{
    const auto mix = [share](float one, float other) { return other + (one - other) * share; };
    return QColor::fromRgbF(mix(first.redF(), second.redF()), mix(first.greenF(), second.greenF()),
                            mix(first.blueF(), second.blueF()));
}

QColor OutlineColour(const QPalette& palette)
{
    return Mixed(palette.color(QPalette::WindowText), palette.color(QPalette::Window), 0.28F);
}

// Light within dark, so that it shows on any picture.
void PaintFocusMark(QWidget& widget)
{
    if (!widget.hasFocus())
        return;
    QPainter painter(&widget);
    const QRect edge = widget.rect().adjusted(0, 0, -1, -1);
    painter.setPen(widget.palette().color(QPalette::Highlight).darker());
    painter.drawRect(edge);
    painter.setPen(QColor(Qt::white));
    painter.drawRect(edge.adjusted(1, 1, -1, -1));
}

} // namespace lineforge
