#include "qt/pictures/PictureView.h"

#include "qt/views/AccessibleName.h"

#include <QMouseEvent>
#include <QPainter>

#include <cmath>
#include <utility>

namespace lineforge
{

namespace
{
int ButtonNumber(Qt::MouseButton button)
{
    switch (button) {
    case Qt::LeftButton:
        return 1;
    case Qt::RightButton:
        return 2;
    case Qt::MiddleButton:
        return 4;
    default:
        return 0;
    }
}

int ButtonsHeld(Qt::MouseButtons buttons)
{
    int held = 0;
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
        if (buttons.testFlag(button))
            held |= ButtonNumber(button);
    return held;
}

int ShiftOf(Qt::KeyboardModifiers modifiers)
{
    return (modifiers.testFlag(Qt::ShiftModifier) ? ShiftMask::Shift : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? ShiftMask::Ctrl : 0) |
           (modifiers.testFlag(Qt::AltModifier) ? ShiftMask::Alt : 0);
}

QRect Shrunk(const QRect& devicePixels, double ratio)
{
    const QPoint topLeft(static_cast<int>(std::floor(devicePixels.left() / ratio)),
                         static_cast<int>(std::floor(devicePixels.top() / ratio)));
    const QPoint behind(static_cast<int>(std::ceil((devicePixels.right() + 1) / ratio)),
                        static_cast<int>(std::ceil((devicePixels.bottom() + 1) / ratio)));
    return {topLeft, QSize(behind.x() - topLeft.x(), behind.y() - topLeft.y())};
}
} // namespace

PictureView::PictureView(QWidget* parent, PictureBox& picture, const Scale& scale, std::shared_ptr<const Gate> gate)
    : QWidget(parent), picture_(picture), scale_(scale), gate_(std::move(gate)), pacer_([this] { ShowChanges(); }),
      parts_(*this, picture, scale, gate_)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    // The paper stays white on a dark desktop; so what is written on it stays black.
    QPalette paper;
    paper.setColor(QPalette::Window, ToQColor(picture_.BackColor));
    paper.setColor(QPalette::WindowText, Qt::black);
    setPalette(paper);
    picture_.Changed = [this, open = gate_](const QRect& pixels) {
        if (open->IsOpen())
            Take(pixels);
    };
    ServeReadersOfPictures();
    TellReadersAnew(*this);
}

void PictureView::Take(const QRect& drawingPixels)
{
    changed_ |= scaled_.Invalidate(drawingPixels);
    parts_.PictureChanged();
    pacer_.Request();
}

void PictureView::ShowChanges()
{
    update(Shrunk(std::exchange(changed_, {}), devicePixelRatioF()));
}

void PictureView::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    if (picture_.Drawing().isNull())
        painter.fillRect(event->rect(), ToQColor(picture_.BackColor));
    else
        PaintDrawing(painter, event->rect());
}

void PictureView::PaintDrawing(QPainter& painter, const QRect& exposed)
{
    const double ratio = devicePixelRatioF();
    scaled_.SetRatio(scale_.TwipsAPixel() / (PictureBox::TwipsPerPixel * ratio));
    const int deviceWidth = static_cast<int>(std::ceil(width() * ratio));
    const int first = static_cast<int>(std::floor(exposed.top() * ratio)) / ScaledPicture::BandHeight;
    const int last = static_cast<int>(std::ceil((exposed.bottom() + 1) * ratio) - 1) / ScaledPicture::BandHeight;
    painter.scale(1 / ratio, 1 / ratio);
    for (int band = first; band <= last; ++band)
        painter.drawImage(QPoint(0, band * ScaledPicture::BandHeight),
                          scaled_.Band(band, deviceWidth, picture_.Drawing(), ToQColor(picture_.BackColor)));
}

void PictureView::Tell(const PictureBox::MouseEvent& handler, int button, const QMouseEvent& event) const
{
    // The picture may be gone before this is, which then still hears that it is hidden.
    if (!gate_->IsOpen() || !handler)
        return;
    const double x = scale_.ToTwips(static_cast<int>(std::floor(event.position().x())));
    const double y = scale_.ToTwips(static_cast<int>(std::floor(event.position().y())));
    gate_->Run([handler, button, shift = ShiftOf(event.modifiers()), x, y] { handler(button, shift, x, y); });
}

void PictureView::mousePressEvent(QMouseEvent* event)
{
    Tell(picture_.MouseDown, ButtonNumber(event->button()), *event);
}

void PictureView::mouseMoveEvent(QMouseEvent* event)
{
    Tell(picture_.MouseMove, ButtonsHeld(event->buttons()), *event);
}

void PictureView::mouseReleaseEvent(QMouseEvent* event)
{
    Tell(picture_.MouseUp, ButtonNumber(event->button()), *event);
}

void PictureView::mouseDoubleClickEvent(QMouseEvent*)
{
    gate_->Run(picture_.DblClick);
}

} // namespace lineforge
