#include "platform/qt/Outlines.h"

#include <QPainter>
#include <QWidget>

namespace lineforge
{

QColor OutlineColour(const QPalette& palette)
{
    constexpr float shareOfText = 0.28F;
    const QColor ground = palette.color(QPalette::Window);
    const QColor text = palette.color(QPalette::WindowText);
    const auto mix = [](float below, float above) { return below + (above - below) * shareOfText; };
    return QColor::fromRgbF(mix(ground.redF(), text.redF()), mix(ground.greenF(), text.greenF()),
                            mix(ground.blueF(), text.blueF()));
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
