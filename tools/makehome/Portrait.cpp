#include "Portrait.h"

#include "Paint.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <QRadialGradient>

namespace lineforge::makehome
{

using namespace Qt::StringLiterals;

namespace
{

enum class Sitter { Unknown, Man, Woman };

struct Tint {
    QColor light;
    QColor deep;
};

Tint TintFor(Sitter sitter)
{
    switch (sitter) {
    case Sitter::Man:
        return {QColor(104, 134, 168), QColor(34, 56, 88)};
    case Sitter::Woman:
        return {QColor(190, 116, 128), QColor(98, 36, 56)};
    case Sitter::Unknown:
        break;
    }
    return {QColor(206, 200, 190), QColor(150, 142, 130)};
}

QPainterPath Shoulders(qreal width)
{
    QPainterPath path;
    path.moveTo(50 - width, 126);
    path.cubicTo(50 - width, 101, 50 - width * 0.7, 95, 50 - width * 0.42, 91);
    path.cubicTo(42, 88, 43, 80, 42, 62);
    path.lineTo(58, 62);
    path.cubicTo(57, 80, 58, 88, 50 + width * 0.42, 91);
    path.cubicTo(50 + width * 0.7, 95, 50 + width, 101, 50 + width, 126);
    path.closeSubpath();
    return path;
}

QPainterPath Ellipse(qreal x, qreal y, qreal rx, qreal ry)
{
    QPainterPath path;
    path.addEllipse(QPointF(x, y), rx, ry);
    return path;
}

// Drawn in an area of 100 by 120 units; the caller scales it into its oval.
QPainterPath Bust(Sitter sitter)
{
    QPainterPath path = Shoulders(sitter == Sitter::Woman ? 36 : 43).united(Ellipse(50, 48, 17, 21));
    if (sitter == Sitter::Woman) {
        path = path.united(Ellipse(50, 42, 19.5, 18)).united(Ellipse(50, 20, 9.5, 8));
        path = path.united(Ellipse(33, 55, 5, 11)).united(Ellipse(67, 55, 5, 11));
    }
    if (sitter == Sitter::Man) {
        path = path.united(Ellipse(50, 39, 18, 13)).united(Ellipse(50, 62, 13, 9));
    }
    return path;
}

void DrawRing(QPainter& painter, const QRectF& oval)
{
    QLinearGradient gold(oval.topLeft(), oval.bottomRight());
    gold.setColorAt(0.0, QColor(246, 226, 160));
    gold.setColorAt(0.35, QColor(196, 150, 66));
    gold.setColorAt(0.6, QColor(240, 214, 140));
    gold.setColorAt(1.0, QColor(136, 96, 36));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 40));
    painter.drawEllipse(oval.adjusted(-8, -6, 12, 14));
    painter.setBrush(gold);
    painter.drawEllipse(oval.adjusted(-10, -10, 10, 10));
    painter.setBrush(QColor(84, 58, 22));
    painter.drawEllipse(oval.adjusted(-2, -2, 2, 2));
}

void DrawCameo(QPainter& painter, const QRectF& oval, Sitter sitter, const QColor& figure)
{
    DrawRing(painter, oval);
    const Tint tint = TintFor(sitter);
    QRadialGradient ground(oval.center() - QPointF(0, oval.height() * 0.15), oval.height() * 0.62);
    ground.setColorAt(0.0, tint.light);
    ground.setColorAt(1.0, tint.deep);
    painter.setBrush(ground);
    painter.drawEllipse(oval);

    QPainterPath inside;
    inside.addEllipse(oval.adjusted(1, 1, -1, -1));
    painter.save();
    painter.setClipPath(inside);
    painter.translate(oval.topLeft());
    painter.scale(oval.width() / 100, oval.height() / 120);
    QLinearGradient light(QPointF(20, 20), QPointF(80, 126));
    light.setColorAt(0.0, figure);
    light.setColorAt(1.0, figure.darker(125));
    painter.setBrush(light);
    painter.drawPath(Bust(sitter));
    painter.restore();
}

void DrawCard(QPainter& painter, const QRectF& card)
{
    QLinearGradient paper(card.topLeft(), card.bottomLeft());
    paper.setColorAt(0.0, QColor(252, 249, 240));
    paper.setColorAt(1.0, QColor(234, 226, 208));
    painter.fillRect(card, paper);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(164, 144, 104), 2));
    painter.drawRect(card.adjusted(5, 5, -5, -5));
    painter.setPen(QPen(QColor(196, 180, 146), 1));
    painter.drawRect(card.adjusted(9.5, 9.5, -9.5, -9.5));
}

void DrawInitials(QPainter& painter, const QRectF& oval, const QString& initials)
{
    const QFont font = SerifFont(88, true);
    const QRectF area = oval.adjusted(8, 0, -8, 0);
    painter.setPen(QColor(0, 0, 0, 110));
    DrawFittedText(painter, area.translated(2, 3), font, initials);
    painter.setPen(QColor(255, 248, 228));
    DrawFittedText(painter, area, font, initials);
}

void DrawYears(QPainter& painter, const QRectF& plate, const QString& years)
{
    painter.setPen(QPen(QColor(136, 104, 50), 1.2));
    painter.setBrush(QColor(255, 252, 242));
    painter.drawRoundedRect(plate, plate.height() / 2, plate.height() / 2);
    painter.setPen(QColor(60, 48, 30));
    DrawFittedText(painter, plate.adjusted(12, 0, -12, 0), SerifFont(22, true), years);
}

} // namespace

QImage BlankPortrait()
{
    QImage picture = Canvas(QSize(300, 260), Qt::white);
    SmoothPainter painter(picture);
    DrawCard(painter, picture.rect());
    DrawCameo(painter, QRectF(64, 27, 172, 206), Sitter::Unknown, QColor(244, 240, 232));
    return picture;
}

QImage Portrait(const Record& record)
{
    const Sitter sitter = record.Value(Field::Gender) == "Male"_L1 ? Sitter::Man : Sitter::Woman;
    const QString initials = record.Value(Field::Forename).left(1) + record.Value(Field::Surname).left(1);
    const QString born = record.Value(Field::BirthDate).isEmpty() ? u"?"_s : record.BirthYear();

    QImage picture = Canvas(QSize(330, 290), Qt::white);
    SmoothPainter painter(picture);
    DrawCard(painter, picture.rect());
    const QRectF oval(76, 26, 178, 212);
    DrawCameo(painter, oval, sitter, QColor(255, 255, 255, 48));
    DrawInitials(painter, oval, initials);
    DrawYears(painter, QRectF(85, 236, 160, 32), born + u" \u2013 "_s + record.DeathYear());
    return picture;
}

} // namespace lineforge::makehome
