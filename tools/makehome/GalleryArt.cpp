#include "GalleryArt.h"

#include "Drawings.h"
#include "Paint.h"
#include "Yacht.h"

#include <QHash>

#include <functional>

namespace lineforge::makehome
{

using namespace Qt::StringLiterals;

namespace
{

using Drawing = std::function<QImage()>;

const QHash<QString, Drawing>& DrawingsByName()
{
    static const QHash<QString, Drawing> drawings{
        {u"castle"_s, CastleDrawing}, {u"shield"_s, ShieldDrawing},
        {u"island"_s, IslandDrawing}, {u"crown"_s, CrownDrawing},
        {u"rings"_s, RingsDrawing},   {u"yacht"_s, [] { return YachtScene(drawingSize, 0.45); }},
    };
    return drawings;
}

QImage Framed(const QImage& drawing, const QString& caption)
{
    constexpr int border = 18;
    constexpr int captionHeight = 40;
    QImage picture =
        Canvas(QSize(drawing.width() + 2 * border, drawing.height() + border + captionHeight), QColor(250, 246, 236));
    SmoothPainter painter(picture);
    painter.drawImage(border, border, drawing);
    painter.setPen(QPen(QColor(120, 98, 60), 2));
    painter.drawRect(QRectF(border, border, drawing.width(), drawing.height()));
    painter.setPen(QColor(60, 48, 30));
    const QRectF line(border, drawing.height() + border, drawing.width(), captionHeight);
    DrawFittedText(painter, line, SerifFont(21), caption);
    return picture;
}

} // namespace

QImage GalleryPicture(const QString& drawing, const QString& caption)
{
    const auto found = DrawingsByName().constFind(drawing);
    if (found == DrawingsByName().constEnd()) {
        return {};
    }
    return Framed((*found)(), caption);
}

} // namespace lineforge::makehome
