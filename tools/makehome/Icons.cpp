#include "Icons.h"

#include "Paint.h"
#include "forms/ToolFaces.h"

#include <QPainterPath>

namespace lineforge::makehome
{

namespace
{

constexpr QSize galleryIconSize(98, 114);

QImage GalleryCard(const QColor& tint)
{
    QImage picture = Canvas(galleryIconSize, QColor(240, 240, 240));
    SmoothPainter painter(picture);
    painter.setPen(QPen(tint.darker(150), 1.5));
    painter.setBrush(tint);
    painter.drawRoundedRect(QRectF(3, 3, 92, 108), 9, 9);
    return picture;
}

} // namespace

QImage SoundClipIcon()
{
    QImage picture = GalleryCard(QColor(206, 226, 244));
    SmoothPainter painter(picture);
    const QColor ink(38, 74, 120);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    painter.drawPolygon(QPolygonF{QPointF(36, 30), QPointF(74, 20), QPointF(74, 32), QPointF(36, 42)});
    painter.drawRect(QRectF(36, 34, 4.5, 48));
    painter.drawRect(QRectF(69.5, 24, 4.5, 48));
    for (const QPointF& head : {QPointF(31, 82), QPointF(64.5, 72)}) {
        painter.save();
        painter.translate(head);
        painter.rotate(-20);
        painter.drawEllipse(QPointF(0, 0), 11, 8);
        painter.restore();
    }
    return picture;
}

QImage FilmClipIcon()
{
    QImage picture = GalleryCard(QColor(236, 218, 240));
    SmoothPainter painter(picture);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(58, 44, 70));
    painter.drawRoundedRect(QRectF(17, 17, 64, 80), 4, 4);
    painter.setBrush(QColor(236, 218, 240));
    for (int hole = 0; hole < 7; ++hole) {
        painter.drawRect(QRectF(21, 21.5 + hole * 11, 6, 6));
        painter.drawRect(QRectF(71, 21.5 + hole * 11, 6, 6));
    }
    painter.setBrush(QColor(250, 246, 252));
    painter.drawRect(QRectF(31, 23, 36, 68));
    painter.setBrush(QColor(150, 70, 160));
    painter.drawPolygon(QPolygonF{QPointF(39, 41), QPointF(39, 73), QPointF(62, 57)});
    return picture;
}

QImage TextFileIcon()
{
    QImage picture = GalleryCard(QColor(246, 236, 206));
    SmoothPainter painter(picture);
    QPainterPath page;
    page.moveTo(22, 16);
    page.lineTo(60, 16);
    page.lineTo(76, 32);
    page.lineTo(76, 98);
    page.lineTo(22, 98);
    page.closeSubpath();
    painter.setPen(QPen(QColor(140, 116, 60), 1.5));
    painter.setBrush(QColor(255, 254, 248));
    painter.drawPath(page);
    painter.setBrush(QColor(226, 210, 164));
    painter.drawPolygon(QPolygonF{QPointF(60, 16), QPointF(60, 32), QPointF(76, 32)});
    painter.setPen(QPen(QColor(120, 104, 70), 2.5, Qt::SolidLine, Qt::RoundCap));
    constexpr int rows = 7;
    for (int row = 0; row < rows; ++row) {
        const qreal y = 40 + row * 8;
        painter.drawLine(QPointF(30, y), QPointF(row == rows - 1 ? 50 : 68, y));
    }
    return picture;
}

QImage PressedExitButton()
{
    const QImage face = forms::DrawToolFace(forms::ToolSymbol::Exit, true);
    // The file has no transparency: the corners get the colour that windows usually have.
    QImage picture = Canvas(face.size(), QColor(239, 239, 239));
    QPainter(&picture).drawImage(0, 0, face);
    return picture;
}

} // namespace lineforge::makehome
