#include "qt/pictures/DraggableImage.h"

#include "platform/files/FileSystem.h"
#include "qt/events/Keys.h"
#include "qt/style/Outlines.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int pixelsAStep = 40; // of a picture that is moved about
constexpr int asideWeighs = 4;

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

// The tag of one without a file is a number of the program's own.
void DraggableImage::TakeTag()
{
    const QString name = control_.Tag.value().section(PathSeparator, -1);
    const bool isFile = name.contains(u'.');
    setAccessibleName(isFile ? name : u"Empty tile"_s);
    setToolTip(isFile ? name.toHtmlEscaped() : QString());
}

void DraggableImage::LieBelowThoseThere()
{
    for (QObject* child : parentWidget()->children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        const auto* image = dynamic_cast<DraggableImage*>(child);
        if (widget && widget != this && (!image || image->geometry().intersects(geometry())))
            return stackUnder(widget);
    }
}

// The release of the mouse goes to the box that has come up meanwhile.
bool DraggableImage::event(QEvent* event)
{
    if (event->type() == QEvent::WindowBlocked)
        LetGo();
    return ImageView::event(event);
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
    if (DraggableImage* held = Held())
        held->LetGo();
    isHeld_ = event->button() == Qt::LeftButton;
    heldAt_ = event->position().toPoint();
    event->setAccepted(isHeld_);
}

void DraggableImage::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint here = event->position().toPoint();
    const bool isDragged = outline_ && !outline_->isHidden();
    if (!isHeld_ || (!isDragged && (here - heldAt_).manhattanLength() < QApplication::startDragDistance()))
        return;
    // It takes the keyboard, so that Escape comes here.
    if (!isDragged)
        setFocus(Qt::MouseFocusReason);
    Outline(geometry().translated(here - heldAt_));
}

void DraggableImage::Outline(const QRect& place)
{
    if (!outline_)
        outline_ = new QRubberBand(QRubberBand::Rectangle, parentWidget());
    outline_->setGeometry(place);
    outline_->show();
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
    DraggableImage* held = Held();
    const bool isPress = IsPressKey(event->key()) && !event->isAutoRepeat();
    const bool isTake = event->key() == Qt::Key_Space && event->modifiers().testFlag(Qt::ShiftModifier);
    if (event->key() == Qt::Key_Escape && held)
        held->LetGo();
    else if (Step(DirectionOf(event->key())))
        event->accept();
    else if (isPress && held)
        DropByKey(*held);
    else if (isPress && isTake)
        TakeByKey();
    else
        Click(event);
}

// The focus comes back to what the click has hidden for a moment.
void DraggableImage::Click(QKeyEvent* event)
{
    ImageView::keyPressEvent(event);
    if (event->isAccepted() && isVisible())
        setFocus(Qt::OtherFocusReason);
}

void DraggableImage::TakeByKey()
{
    isHeld_ = true;
    setAccessibleDescription(u"Taken"_s);
    Outline(geometry());
}

// On itself it is only put down: whoever wants a click has an easier way to it.
void DraggableImage::DropByKey(DraggableImage& held)
{
    held.LetGo();
    if (&held != this && Dropped)
        Dropped(held);
}

// Moves what is larger than its room, else leads to the next one.
bool DraggableImage::Step(QPoint direction)
{
    if (direction.isNull())
        return false;
    if (!Slide(-direction * pixelsAStep))
        if (DraggableImage* next = Neighbour(direction))
            next->setFocus(Qt::TabFocusReason);
    return true;
}

// What is held lies where the focus is.
void DraggableImage::focusInEvent(QFocusEvent* event)
{
    if (DraggableImage* held = Held(); held && event->reason() != Qt::MouseFocusReason)
        held->Outline(geometry());
    ImageView::focusInEvent(event);
}

QList<DraggableImage*> DraggableImage::Group() const
{
    QList<DraggableImage*> group;
    for (QObject* child : parentWidget()->children())
        if (auto* image = dynamic_cast<DraggableImage*>(child); image && image->isVisible())
            group += image;
    return group;
}

DraggableImage* DraggableImage::Held() const
{
    const QList<DraggableImage*> group = Group();
    const auto held = std::ranges::find_if(group, &DraggableImage::isHeld_);
    return held == group.end() ? nullptr : *held;
}

// One straight ahead comes before one that is nearer but aside.
DraggableImage* DraggableImage::Neighbour(QPoint direction) const
{
    DraggableImage* nearest = nullptr;
    int least = std::numeric_limits<int>::max();
    for (DraggableImage* image : Group()) {
        const QPoint way = image->geometry().center() - geometry().center();
        const int ahead = QPoint::dotProduct(way, direction);
        const int aside = std::abs(QPoint::dotProduct(way, direction.transposed()));
        if (ahead > 0 && ahead + asideWeighs * aside < least) {
            least = ahead + asideWeighs * aside;
            nearest = image;
        }
    }
    return nearest;
}

// What is hidden while it is held can't be dropped any more.
void DraggableImage::hideEvent(QHideEvent* event)
{
    LetGo();
    ImageView::hideEvent(event);
}

void DraggableImage::wheelEvent(QWheelEvent* event)
{
    event->setAccepted(Slide(event->angleDelta()));
}

bool DraggableImage::Slide(QPoint by)
{
    const QSize room = parentWidget()->size();
    const QPoint wanted(Slid(x(), by.x(), width(), room.width()), Slid(y(), by.y(), height(), room.height()));
    if (wanted == pos())
        return false;
    if (Moved)
        Moved(wanted);
    return true;
}

// The outline stays for the next time: a window that is being hidden goes through its children just then, and none may
// be taken from it.
void DraggableImage::LetGo()
{
    isHeld_ = false;
    setAccessibleDescription({});
    if (outline_)
        outline_->hide();
}

} // namespace lineforge
