#include "platform/canvas/PictureBox.h"

#include "platform/canvas/LineStencil.h"
#include "platform/canvas/RunPen.h"
#include "platform/drawing/DotColours.h"

#include <QFontMetrics>
#include <QPainter>
#include <QRegion>

#include <cmath>

namespace lineforge
{

namespace
{
constexpr double twipsAMeter = 1440 / 0.0254;
constexpr int dotsAMeter = static_cast<int>(twipsAMeter / PictureBox::TwipsPerPixel);
// Of a picture that doesn't tell.
constexpr int screenDotsAMeter = static_cast<int>(twipsAMeter / 15);

// With an exclusive-or pen a painter shares out more rows than these among threads, and waiting for them takes tens of
// times as long as the drawing.
constexpr int fewRows = 90;

int ToPixel(int twips)
{
    return static_cast<int>(std::floor(static_cast<double>(twips) / PictureBox::TwipsPerPixel));
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

PictureBox::PictureBox(Container& parent, QStringView name, Rectangle place) : ControlKind(parent, name, place) {}

// What is drawn on. It is made by the first drawing, so that an untouched picture costs nothing.
QImage& PictureBox::Ground()
{
    if (drawing_.isNull()) {
        drawing_ = QImage(ToPixel(Width), ToPixel(Height), QImage::Format_RGB32);
        drawing_.fill(ToQColor(BackColor));
    }
    return drawing_;
}

void PictureBox::Tell(const QRect& pixels) const
{
    if (Changed)
        Changed(pixels.intersected(drawing_.rect()));
}

// Always by a painter, even where the line is upright: how a painter rounds the ends of a line is its own.
void PictureBox::Line(Point from, Point to)
{
    const QLine line(ToPixel(from.X), ToPixel(from.Y), ToPixel(to.X), ToPixel(to.Y));
    const int reach = PenPixels();
    const QRect pixels = QRect(line.p1(), line.p2()).normalized().adjusted(-reach, -reach, reach, reach);
    QImage& ground = Ground();
    const auto paint = [&](DrawMode mode, const QColor& colour) {
        QPainter painter(&ground);
        painter.setCompositionMode(ToComposition(mode));
        painter.setPen(QPen(colour, PenPixels(), Qt::SolidLine, Qt::SquareCap));
        painter.drawLine(line);
    };
    if (Mode == DrawMode::Copy || pixels.height() <= fewRows)
        paint(Mode, ToQColor(ForeColor));
    else
        TurnLine(ground, line, reach, PenBits(Mode, ForeColor), [&] { paint(DrawMode::Copy, Qt::white); });
    Tell(pixels);
}

// Bars that don't overlap, however thin the box is: with an exclusive-or pen a corner drawn twice would be a hole.
void PictureBox::Box(Rectangle place)
{
    const int pen = PenPixels();
    const QRect outer = QRect(QPoint(ToPixel(place.Left), ToPixel(place.Top)),
                              QPoint(ToPixel(place.Left + place.Width), ToPixel(place.Top + place.Height)))
                            .adjusted(-(pen / 2), -(pen / 2), pen / 2, pen / 2);
    const RunPen runs(Ground(), Mode, ForeColor);
    for (const QRect& bar : QRegion(outer).subtracted(outer.adjusted(pen, pen, -pen, -pen)))
        runs.Fill(bar);
    Tell(outer);
}

void PictureBox::Print(const QString& text)
{
    const TextMask& mask = texts_.Of(Font, text);
    const QPoint baseline(ToPixel(CurrentX), ToPixel(CurrentY) + mask.Ascent);
    CurrentX = 0;
    CurrentY += mask.Height * TwipsPerPixel;
    if (Mode == DrawMode::Copy && mask.IsKept) {
        const RunPen pen(Ground(), Mode, ForeColor);
        for (const TextMask::Run& run : mask.Runs)
            pen.Fill(baseline.x() + run.X, baseline.y() + run.Y, run.Length);
    } else {
        PaintText(baseline, text);
    }
    Tell(mask.Reach.translated(baseline));
}

// With an exclusive-or pen letters that overlap undo each other, which the mask of a whole text doesn't know.
void PictureBox::PaintText(QPoint baseline, const QString& text)
{
    QPainter painter(&Ground());
    painter.setCompositionMode(ToComposition(Mode));
    painter.setFont(ToPixelFont(Font));
    painter.setPen(ToQColor(ForeColor));
    painter.drawText(baseline, text);
}

int PictureBox::TextWidth(const QString& text) const
{
    return texts_.Of(Font, text).Width * TwipsPerPixel;
}

int PictureBox::TextHeight(const QString&) const
{
    return QFontMetrics(ToPixelFont(Font)).height() * TwipsPerPixel;
}

QImage PictureBox::Image() const
{
    QImage image = drawing_;
    if (image.isNull()) {
        image = QImage(ToPixel(Width), ToPixel(Height), QImage::Format_RGB32);
        image.fill(ToQColor(BackColor));
    }
    image.setDotsPerMeterX(dotsAMeter);
    image.setDotsPerMeterY(dotsAMeter);
    return image;
}

void PictureBox::ShowPicture(const QImage& picture)
{
    Cls();
    const double scale = 1.0 * dotsAMeter / (picture.dotsPerMeterX() > 0 ? picture.dotsPerMeterX() : screenDotsAMeter);
    const QSizeF size = QSizeF(picture.size()) * scale;
    QPainter(&Ground()).drawImage(QRectF(QPointF(), size), WithDotColours(picture));
    Tell(drawing_.rect());
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
