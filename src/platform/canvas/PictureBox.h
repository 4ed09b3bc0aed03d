#pragma once

#include "platform/canvas/CanvasScale.h"
#include "platform/canvas/TextMask.h"
#include "platform/controls/Controls.h"
#include "platform/drawing/Surface.h"

#include <QImage>

#include <functional>
#include <vector>

namespace lineforge
{

// Which modifier keys are held at a mouse event; the numbers are the platform's and add up.
namespace ShiftMask
{
inline constexpr int Shift = 1;
inline constexpr int Ctrl = 2;
inline constexpr int Alt = 4;
} // namespace ShiftMask

// One thing that a picture shows, as it is read aloud.
struct PicturePart {
    int Number = 0; // by which it is known as long as it is there
    Rectangle Place;
    QString SpokenName;
    QString SpokenPlace;
};

// A picture that keeps what is drawn on it: an image of one pixel to `TwipsPerPixel` twips, drawn without smoothing, so
// that the same text printed in the background colour leaves no pixel behind and the two exclusive-or pens undo
// themselves. Whoever shows it scales it down. A pen of `DrawWidth` 1 is three pixels wide.
// Its own controls lie above the drawing and scroll with it.
class PictureBox : public ControlKind<PictureBox>, public Container, public Surface
{
public:
    static constexpr int TwipsPerPixel = TwipsPerCanvasPixel;

    PictureBox(Container& parent, QStringView name, Rectangle place);

    void Line(Point from, Point to) override;
    void Box(Rectangle place) override;
    void Print(const QString& text) override;
    int TextWidth(const QString& text) const override;
    int TextHeight(const QString& text) const override;

    // Wipes the drawing, and sets the current position to the top left.
    void Cls();

    // What it shows, as an image of the size that its dots tell.
    QImage Image() const;
    // Wipes the drawing and puts a picture in its top left, in the size that its dots tell.
    void ShowPicture(const QImage& picture);

    // The drawing; null while nothing has been drawn yet, which looks like an image of `BackColor` alone.
    const QImage& Drawing() const { return drawing_; }

    Colour BackColor = White;

    // Positions in twips from the picture's top left, with their fraction; `shift` adds up `ShiftMask`.
    using MouseEvent = std::function<void(int button, int shift, double x, double y)>;
    MouseEvent MouseDown;
    MouseEvent MouseMove;
    MouseEvent MouseUp;
    Event DblClick;

    // What stands on it, for those who can't see it; set by whoever draws. Asked again only after something has been
    // drawn.
    std::function<std::vector<PicturePart>()> Parts;

    // Told of each stretch of the drawing that has changed, in pixels of the drawing.
    std::function<void(const QRect& pixels)> Changed;

private:
    QImage& Ground();
    void PaintText(QPoint baseline, const QString& text);
    void Tell(const QRect& pixels) const;
    int PenPixels() const { return 3 * DrawWidth; }

    QImage drawing_;
    mutable TextMasks texts_;
};

} // namespace lineforge
