#include "platform/drawing/ButtonFace.h"

#include <QColor>
#include <QLinearGradient>
#include <QPainter>

namespace lineforge
{

QImage DrawButtonFace(bool pressed, const SymbolPainter& paintSymbol)
{
    constexpr int side = ButtonFaceSide;
    QImage face(side, side, QImage::Format_ARGB32_Premultiplied);
    face.fill(Qt::transparent);
    QPainter painter(&face);
    painter.setRenderHint(QPainter::Antialiasing);

    QLinearGradient light(0, 0, 0, side);
    light.setColorAt(0, pressed ? QColor(0x4a, 0x6c, 0x8c) : QColor(0xff, 0xff, 0xff));
    light.setColorAt(1, pressed ? QColor(0x6f, 0x95, 0xb8) : QColor(0xd2, 0xd8, 0xde));
    painter.setPen(QPen(QColor(0x5a, 0x6a, 0x78), 3));
    painter.setBrush(light);
    painter.drawRoundedRect(QRectF(4, 4, side - 8, side - 8), 12, 12);

    // A pressed symbol goes down with its button.
    if (pressed)
        painter.translate(2, 2);
    painter.setBrush(Qt::NoBrush);
    paintSymbol(painter, pressed ? QColor(Qt::white) : QColor(0x2b, 0x3a, 0x48));
    return face;
}

} // namespace lineforge
