#pragma once

#include "platform/Controls.h"
#include "platform/qt/ClickableWidgets.h"

#include <QPointer>
#include <QRubberBand>

namespace lineforge
{

// An image that the mouse takes and drops on another one beside it, or on itself: a plain click is a drop on itself.
// While it is dragged an outline of its size follows the pointer; Escape puts it back. One without a picture shows
// where it is. A picture larger than what it stands in is moved about by the wheel.
class DraggableImage : public ImageView
{
public:
    DraggableImage(QWidget* parent, Image& control);
    Image& Control() const { return control_; }
    std::function<void(DraggableImage& source)> Dropped; // on this one
    std::function<void(QPoint topLeft)> Moved;           // by the wheel, in pixels

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void LetGo();

    Image& control_;
    bool isHeld_ = false;
    QPoint heldAt_; // within the image
    QPointer<QRubberBand> outline_;
};

} // namespace lineforge
