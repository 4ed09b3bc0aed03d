#include "platform/PictureBox.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>

#include <cmath>

namespace lineforge
{

namespace
{
constexpr int twipsPerPoint = 20;

int ToPixel(int twips)
{
    return static_cast<int>(std::floor(static_cast<double>(twips) / PictureBox::TwipsPerPixel));
}

QFont ToQFont(const TextFont& font)
{
    QFont result(font.Name);
    result.setPixelSize(std::max(1, qRound(font.Size * twipsPerPoint / PictureBox::TwipsPerPixel)));
    result.setBold(font.Bold);
    result.setItalic(font.Italic);
    result.setStyleStrategy(QFont::NoAntialias);
    result.setHintingPreference(QFont::PreferNoHinting);
    return result;
}

QPainter::CompositionMode ToComposition(DrawMode mode)
{
    switch (mode) {
    case DrawMode::Xor:
        return QPainter::RasterOp_SourceXorDestination;
    case DrawMode::NotXor:
        return QPainter::RasterOp_NotSourceXorDestination;
    case DrawMode::Copy:
        break;
    }
    return QPainter::CompositionMode_SourceOver;
}
} // namespace

QColor ToQColor(Colour colour)
{
    return QColor::fromRgb(static_cast<int>(colour & 0xFF), static_cast<int>(colour >> 8 & 0xFF),
                           static_cast<int>(colour >> 16 & 0xFF));
}

PictureBox::PictureBox(Container& parent, QStringView name, Rectangle place) : ControlKind(parent, name, place) {}

// Draws within the given pixels. The image is made by the first drawing, so that an untouched picture costs nothing.
template <class Draw>
void PictureBox::Paint(const QRect& pixels, Draw&& draw)
{
    if (drawing_.isNull()) {
        drawing_ = QImage(ToPixel(Width), ToPixel(Height), QImage::Format_RGB32);
        drawing_.fill(ToQColor(BackColor));
    }
    {
        QPainter painter(&drawing_);
        painter.setCompositionMode(ToComposition(Mode));
        draw(painter);
    }
    if (Changed)
        Changed(pixels.intersected(drawing_.rect()));
}

void PictureBox::Line(Point from, Point to)
{
    const QPoint start(ToPixel(from.X), ToPixel(from.Y));
    const QPoint end(ToPixel(to.X), ToPixel(to.Y));
    const int reach = PenPixels();
    Paint(QRect(start, end).normalized().adjusted(-reach, -reach, reach, reach), [&](QPainter& painter) {
        painter.setPen(QPen(ToQColor(ForeColor), PenPixels(), Qt::SolidLine, Qt::SquareCap));
        painter.drawLine(start, end);
    });
}

// Bars that don't overlap, however thin the box is: with an exclusive-or pen a corner drawn twice would be a hole.
void PictureBox::Box(Rectangle place)
{
    const int pen = PenPixels();
    const QRect outer = QRect(QPoint(ToPixel(place.Left), ToPixel(place.Top)),
                              QPoint(ToPixel(place.Left + place.Width), ToPixel(place.Top + place.Height)))
                            .adjusted(-(pen / 2), -(pen / 2), pen / 2, pen / 2);
    Paint(outer, [&](QPainter& painter) {
        for (const QRect& bar : QRegion(outer).subtracted(outer.adjusted(pen, pen, -pen, -pen)))
            painter.fillRect(bar, ToQColor(ForeColor));
    });
}

void PictureBox::Print(const QString& text)
{
    const QFont font = ToQFont(Font);
    const QFontMetrics metrics(font);
    const QPoint baseline(ToPixel(CurrentX), ToPixel(CurrentY) + metrics.ascent());
    Paint(metrics.boundingRect(text).translated(baseline).adjusted(-2, -2, 2, 2), [&](QPainter& painter) {
        painter.setFont(font);
        painter.setPen(ToQColor(ForeColor));
        painter.drawText(baseline, text);
    });
    CurrentX = 0;
    CurrentY += TextHeight(text);
}

int PictureBox::TextWidth(const QString& text) const
{
    return QFontMetrics(ToQFont(Font)).horizontalAdvance(text) * TwipsPerPixel;
}

int PictureBox::TextHeight(const QString&) const
{
    return QFontMetrics(ToQFont(Font)).height() * TwipsPerPixel;
}

void PictureBox::Cls()
{
    CurrentX = CurrentY = 0;
    if (drawing_.isNull())
        return;
    drawing_ = {};
    if (Changed)
        Changed(QRect(0, 0, ToPixel(Width), ToPixel(Height)));
}

} // namespace lineforge
