#include "qt/pictures/PictureParts.h"

#include "qt/pictures/KeyboardPointer.h"
#include "qt/views/ClickableWidgets.h"
#include "qt/views/Readers.h"

#include <QWidget>

#include <algorithm>
#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int atRest = 250; // milliseconds without a change

// A part as readers see it: a button without a widget.
class PartForReaders : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    PartForReaders(PictureParts& parts, int number) : parts_(parts), number_(number) {}

    bool isValid() const override { return Part() != nullptr; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return parent()->window(); }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&parts_.View()); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Button; }
    void setText(QAccessible::Text, const QString&) override {}

    QString text(QAccessible::Text kind) const override
    {
        const PicturePart* part = Part();
        if (part && kind == QAccessible::Name)
            return part->SpokenName;
        return part && kind == QAccessible::Description ? part->SpokenPlace : QString();
    }

    QRect rect() const override
    {
        const PicturePart* part = Part();
        return part ? parts_.PixelsOf(*part).translated(parts_.View().mapToGlobal(QPoint())) : QRect();
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        const PicturePart* part = Part();
        state.invalid = part == nullptr;
        state.disabled = !parts_.View().isEnabled();
        state.focusable = true;
        state.focused = part && parts_.Focused() == this;
        state.offscreen = part && !parts_.View().visibleRegion().intersects(parts_.PixelsOf(*part));
        state.invisible = !parts_.View().isVisible();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }
    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }
    void doAction(const QString& action) override
    {
        if (action == pressAction())
            parts_.PressSoon(number_);
        else if (action == setFocusAction())
            parts_.FocusSoon(number_);
    }

    int Number() const { return number_; }

private:
    const PicturePart* Part() const { return parts_.Find(number_); }

    PictureParts& parts_;
    int number_;
};
} // namespace

PictureParts::PictureParts(QWidget& view, const PictureBox& picture, const Scale& scale,
                           std::shared_ptr<const Gate> gate)
    : view_(view), picture_(picture), scale_(scale), gate_(std::move(gate))
{
    rest_.setSingleShot(true);
    rest_.setInterval(atRest);
    // Whoever asked while it was being drawn may have met half of it.
    connect(&rest_, &QTimer::timeout, this, [this] {
        isStale_ = true;
        Refresh();
    });
}

PictureParts::~PictureParts()
{
    if (pointer_)
        pointer_->Moved = nullptr;
    for (const QAccessible::Id id : std::as_const(interfaces_))
        QAccessible::deleteAccessibleInterface(id);
}

void PictureParts::Follow(KeyboardPointer& pointer)
{
    pointer_ = &pointer;
    pointer.Moved = [this] { PointerMoved(); };
}

void PictureParts::PictureChanged()
{
    isStale_ = true;
    if (isMet_ && Readers::AreListening())
        rest_.start();
}

const std::vector<PicturePart>& PictureParts::Parts()
{
    Refresh();
    return parts_;
}

// What goes is told while it is still known.
void PictureParts::Refresh()
{
    if (!std::exchange(isStale_, false))
        return;
    std::vector<PicturePart> now;
    if (gate_->IsOpen() && picture_.Parts)
        now = picture_.Parts();
    for (const int number : interfaces_.keys())
        if (std::ranges::find(now, number, &PicturePart::Number) == now.end())
            Forget(number);
    const std::vector<PicturePart> before = std::exchange(parts_, std::move(now));
    if (!std::exchange(isMet_, true) || !Readers::AreListening())
        return;
    for (const PicturePart& part : parts_) {
        const auto old = std::ranges::find(before, part.Number, &PicturePart::Number);
        if (old == before.end())
            Readers::Tell(*InterfaceOf(part.Number), QAccessible::ObjectCreated);
        else if (old->SpokenName != part.SpokenName)
            Readers::Tell(*InterfaceOf(part.Number), QAccessible::NameChanged);
    }
    PointerMoved();
}

void PictureParts::Forget(int number)
{
    Readers::Tell(*InterfaceOf(number), QAccessible::ObjectDestroyed);
    QAccessible::deleteAccessibleInterface(interfaces_.take(number));
}

QAccessibleInterface* PictureParts::InterfaceOf(int number)
{
    QAccessible::Id& id = interfaces_[number];
    if (id == 0)
        id = QAccessible::registerAccessibleInterface(new PartForReaders(*this, number));
    return QAccessible::accessibleInterface(id);
}

int PictureParts::Count()
{
    return static_cast<int>(Parts().size());
}

QAccessibleInterface* PictureParts::Child(int index)
{
    return index >= 0 && index < Count() ? InterfaceOf(parts_[static_cast<std::size_t>(index)].Number) : nullptr;
}

QAccessibleInterface* PictureParts::ChildAt(QPoint pixel)
{
    const PicturePart* part = At(pixel);
    return part ? InterfaceOf(part->Number) : nullptr;
}

int PictureParts::IndexOf(const QAccessibleInterface* child)
{
    const auto* known = dynamic_cast<const PartForReaders*>(child);
    const PicturePart* part = known ? Find(known->Number()) : nullptr;
    return part ? static_cast<int>(part - parts_.data()) : -1;
}

const PicturePart* PictureParts::Find(int number)
{
    const auto found = std::ranges::find(Parts(), number, &PicturePart::Number);
    return found == parts_.end() ? nullptr : &*found;
}

// Where two lie upon each other a press finds the first.
const PicturePart* PictureParts::At(QPoint pixel)
{
    const auto found = std::ranges::find_if(
        Parts(), [this, pixel](const PicturePart& part) { return PixelsOf(part).contains(pixel); });
    return found == parts_.end() ? nullptr : &*found;
}

QAccessibleInterface* PictureParts::Focused()
{
    return focused_ && view_.hasFocus() && Find(*focused_) ? InterfaceOf(*focused_) : nullptr;
}

// Costs nothing while there are no readers.
void PictureParts::PointerMoved()
{
    if (!pointer_ || !Readers::AreListening())
        return;
    const std::optional<QPoint> place = pointer_->Place();
    const PicturePart* part = place ? At(*place) : nullptr;
    const QString name = part ? QString(u"Pointer on " + part->SpokenName) : u"Pointer"_s;
    if (pointer_->accessibleName() != name)
        pointer_->setAccessibleName(name);
    const std::optional<int> below = part ? std::optional(part->Number) : std::nullopt;
    if (std::exchange(focused_, below) == below || std::exchange(isFocusUntold_, true))
        return;
    // The toolkit tells of the picture's own focus only after the pointer has come up.
    QMetaObject::invokeMethod(this, &PictureParts::TellFocus, Qt::QueuedConnection);
}

void PictureParts::TellFocus()
{
    isFocusUntold_ = false;
    if (!view_.hasFocus())
        return;
    QAccessibleInterface* focused = Focused();
    Readers::Tell(focused ? *focused : *QAccessible::queryAccessibleInterface(&view_), QAccessible::Focus);
}

void PictureParts::PressSoon(int number)
{
    const auto press = [this, number] {
        const PicturePart* part = Find(number);
        if (!part || !pointer_ || !CanBePressed(view_))
            return;
        pointer_->StandAt(PixelsOf(*part).center());
        pointer_->DoubleClick({});
    };
    QMetaObject::invokeMethod(this, press, Qt::QueuedConnection);
}

void PictureParts::FocusSoon(int number)
{
    const auto focus = [this, number] {
        const PicturePart* part = Find(number);
        if (part && pointer_ && CanBePressed(view_))
            pointer_->StandAt(PixelsOf(*part).center());
    };
    QMetaObject::invokeMethod(this, focus, Qt::QueuedConnection);
}

} // namespace lineforge
