#pragma once

#include "platform/controls/Controls.h"
#include "qt/views/ClickableWidgets.h"

#include <QPointer>
#include <QRubberBand>

namespace lineforge
{

// An image that the mouse takes and drops on another one beside it, or on itself: a plain click is a drop on itself.
// While it is dragged an outline of its size follows the pointer; Escape puts it back. One without a picture shows
// where it is. A picture larger than what it stands in is moved about by the wheel and the arrow keys.
// With the keyboard: the arrow keys lead to its neighbours. Shift+Space takes it; the outline then lies on whichever
// has the focus, and Space or Enter there drops it.
class DraggableImage : public ImageView
{
public:
    DraggableImage(QWidget* parent, Image& control);
    Image& Control() const { return control_; }
    // Is called what its tag says; to be called whenever that changes.
    void TakeTag();
    // Below all that is no image of this kind, and below such a one in the same place: of two the earlier one takes the
    // mouse. The rest stay in the order in which they were made, which is the one they are read in. To be called when
    // it has its place.
    void LieBelowThoseThere();
    std::function<void(DraggableImage& source)> Dropped; // on this one
    std::function<void(QPoint topLeft)> Moved;           // by wheel or keys, in pixels

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    // Those beside it and itself, as far as they are seen.
    QList<DraggableImage*> Group() const;
    // The one among them that is being dragged; null for none.
    DraggableImage* Held() const;
    DraggableImage* Neighbour(QPoint direction) const;
    void Outline(const QRect& place);
    void Click(QKeyEvent* event);
    void TakeByKey();
    void DropByKey(DraggableImage& held);
    bool Step(QPoint direction);
    bool Slide(QPoint by);
    void LetGo();

    Image& control_;
    bool isHeld_ = false;
    QPoint heldAt_;                 // within the image
    QPointer<QRubberBand> outline_; // hidden while nothing is dragged
};

} // namespace lineforge
