#pragma once

#include "platform/canvas/PictureBox.h"
#include "qt/events/HandlerGate.h"
#include "qt/pictures/PictureParts.h"
#include "qt/pictures/ScaledPicture.h"
#include "qt/style/FramePacer.h"
#include "qt/style/Scale.h"

#include <QWidget>

#include <memory>

namespace lineforge
{

// Shows a picture and hands it the mouse. Changes are collected and shown at most 60 times a second, however often the
// program lets the event loop run while it draws.
class PictureView : public QWidget
{
public:
    PictureView(QWidget* parent, PictureBox& picture, const Scale& scale, std::shared_ptr<const Gate> gate);

    bool HearsMouse() const { return picture_.MouseDown != nullptr; }
    PictureParts& Parts() { return parts_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    // The second press of a double click is nothing but the double click; its release comes as any other.
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void Take(const QRect& drawingPixels);
    void ShowChanges();
    void PaintDrawing(QPainter& painter, const QRect& exposed);
    void Tell(const PictureBox::MouseEvent& handler, int button, const QMouseEvent& event) const;

    PictureBox& picture_;
    const Scale scale_;
    std::shared_ptr<const Gate> gate_;
    ScaledPicture scaled_;
    QRect changed_; // in pixels of the screen, not yet asked to be painted
    FramePacer pacer_;
    PictureParts parts_;
};

// From now on readers meet in a picture, besides its controls, what stands on it.
void ServeReadersOfPictures();

} // namespace lineforge
