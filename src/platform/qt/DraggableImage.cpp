#include "platform/qt/DraggableImage.h"

#include "platform/qt/Outlines.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace lineforge
{

namespace
{
// As near to where it is wanted as leaves no bare strip; what fits stays in its place.
int Slid(int place, int by, int length, int room)
{
    return length <= room ? place : std::clamp(place + by, room - length, 0);
}
} // namespace

DraggableImage::DraggableImage(QWidget* parent, Image& control) : ImageView(parent), control_(control)
{
    setFocusPolicy(Qt::TabFocus);
    TakesClicks = [this] { return bool(Dropped); };
    Clicked = [this] { Dropped(*this); };
}

void DraggableImage::paintEvent(QPaintEvent* event)
{
    if (Picture().isNull()) {
        QPainter painter(this);
        painter.setPen(QPen(OutlineColour(palette()), 1, Qt::DashLine));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    ImageView::paintEvent(event);
}

void DraggableImage::mousePressEvent(QMouseEvent* event)
{
    isHeld_ = event->button() == Qt::LeftButton;
    heldAt_ = event->position().toPoint();
    event->setAccepted(isHeld_);
}

void DraggableImage::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint here = event->position().toPoint();
    if (!isHeld_ || (!outline_ && (here - heldAt_).manhattanLength() < QApplication::startDragDistance()))
        return;
    if (!outline_) {
        outline_ = new QRubberBand(QRubberBand::Rectangle, parentWidget());
        outline_->resize(size());
        outline_->show();
    }
    outline_->move(mapToParent(here - heldAt_));
}

void DraggableImage::mouseReleaseEvent(QMouseEvent* event)
{
    if (!isHeld_ || event->button() != Qt::LeftButton)
        return;
    LetGo();
    auto* target = dynamic_cast<DraggableImage*>(parentWidget()->childAt(mapToParent(event->position().toPoint())));
    if (target && target->Dropped)
        target->Dropped(*this);
}

void DraggableImage::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && isHeld_)
        LetGo();
    else
        ImageView::keyPressEvent(event);
}

// What is hidden while it is held can't be dropped any more.
void DraggableImage::hideEvent(QHideEvent* event)
{
    LetGo();
    ImageView::hideEvent(event);
}

void DraggableImage::wheelEvent(QWheelEvent* event)
{
    const QSize room = parentWidget()->size();
    const QPoint by = event->angleDelta();
    const QPoint wanted(Slid(x(), by.x(), width(), room.width()), Slid(y(), by.y(), height(), room.height()));
    event->setAccepted(wanted != pos());
    if (event->isAccepted() && Moved)
        Moved(wanted);
}

void DraggableImage::LetGo()
{
    isHeld_ = false;
    delete outline_;
}

} // namespace lineforge
