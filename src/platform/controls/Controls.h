#pragma once

#include "platform/controls/ControlVisitor.h"
#include "platform/drawing/Geometry.h"
#include "platform/drawing/Surface.h"

#include <QImage>
#include <QProperty>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>
#include <vector>

// The controls of a window as data: their state in observable properties, their events as functions that the window's
// handlers fill in. Nothing here knows how a control looks; whoever shows a window walks its controls once and keeps
// both sides in step.
namespace lineforge
{

class Container;
using Event = std::function<void()>;

inline void Fire(const Event& event)
{
    if (event)
        event();
}

class ControlText;

// Where the text of a control comes from when it shows a field of the current record.
class TextSource
{
public:
    virtual ~TextSource() = default;
    // Brings the texts that it feeds up to date.
    virtual void Settle() = 0;
    // A user or the program has put another text in a control that it feeds.
    virtual void Edited(const ControlText& text) = 0;
    // The control that a text belongs to goes.
    virtual void Forget(const ControlText& text) = 0;
};

// The text of a label or a box. Fed by a source it is brought up to date whenever it is read or set.
class ControlText
{
public:
    ControlText() = default;
    ControlText(const ControlText&) = delete;
    ~ControlText()
    {
        if (source_)
            source_->Forget(*this);
    }

    QString value() const
    {
        if (source_)
            source_->Settle();
        return text_.value();
    }
    operator QString() const { return value(); }

    ControlText& operator=(const QString& text)
    {
        if (source_)
            source_->Settle();
        text_ = text;
        if (source_)
            source_->Edited(*this);
        return *this;
    }

    template <class Observer>
    auto OnChange(Observer&& observer)
    {
        return text_.addNotifier(std::forward<Observer>(observer));
    }

    // For the source alone: ties the text to it, and shows what it holds without calling that an edit.
    void Attach(TextSource* source) { source_ = source; }
    void Show(const QString& text) { text_ = text; }
    // The text as it stands, up to date or not.
    const QString& Shown() const { return text_.value(); }

private:
    QProperty<QString> text_;
    TextSource* source_ = nullptr;
};

struct Control {
    Control(Container& parent, QStringView name, Rectangle place);
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    virtual void Accept(ControlVisitor& visitor) = 0;
    // The window goes: lets go of what the control holds open.
    virtual void Release() {}

    QString Name;
    QProperty<int> Left;
    QProperty<int> Top;
    QProperty<int> Width;
    QProperty<int> Height;
    QProperty<bool> Visible{true};
    QProperty<bool> Enabled{true};
    QString ToolTipText;
    // What it is called where it is read aloud, for one that nothing to be seen beside it names well.
    QString SpokenName;

    void Move(Point place)
    {
        Left = place.X;
        Top = place.Y;
    }

private:
    Container& parent_;
};

// Gives a kind of control its stop in every visitor.
template <class Kind>
struct ControlKind : Control {
    using Control::Control;
    void Accept(ControlVisitor& visitor) override { visitor.Visit(static_cast<Kind&>(*this)); }
};

// What controls stand in: a window, a frame, a picture.
class Container
{
public:
    virtual ~Container() = default;
    const std::vector<Control*>& Controls() const { return controls_; }

    // Told of controls that come and go while the window is shown; set by whoever shows it.
    std::function<void(Control& control)> Added;
    std::function<void(Control& control)> Removed;

private:
    friend struct Control;
    std::vector<Control*> controls_;
};

struct Label : ControlKind<Label> {
    Label(Container& parent, QStringView name, Rectangle place, QStringView caption = {});
    ControlText Caption;
    TextFont Font;
    bool Centred = false;
};

// A stretch of a text, in characters.
struct TextRange {
    int Start = 0;
    int Length = 0;
    friend bool operator==(const TextRange&, const TextRange&) = default;
};

// How long a text may get in a box with that limit, 0 for none, while it holds one of that length. What is longer than
// the limit has come from elsewhere, and is never cut.
int LongestText(int limit, qsizetype present);

struct TextBox : ControlKind<TextBox> {
    TextBox(Container& parent, QStringView name, Rectangle place, int maxLength = 0);
    ControlText Text;
    int MaxLength;                 // characters, 0 for no limit
    char16_t AccessKey = 0;        // with Alt it brings the focus here; 0 for none
    QProperty<bool> Locked{false}; // can be read and selected in, but not be written in
    // What is selected on the screen; its start is the caret when that is nothing.
    int SelStart = 0;
    QString SelText;
    Event Click; // the selection stands by then
    // Stands out in a box of several lines.
    QProperty<TextRange> Marked;

    // Puts a text in the place of the selection, as much of it as the box takes, with the caret behind it.
    void ReplaceSelection(const QString& text);
    // Told when the program has moved the caret; set by whoever shows the box.
    Event CaretMoved;
};

struct Button : ControlKind<Button> {
    Button(Container& parent, QStringView name, Rectangle place, QStringView caption = {});
    QProperty<QString> Caption;
    QProperty<QImage> Picture;                  // in the place of a caption
    QProperty<std::optional<Colour>> BackColor; // none: as buttons usually look
    char16_t AccessKey = 0;                     // with Alt it presses the button; 0 for none
    Event Click;
};

struct CheckBox : ControlKind<CheckBox> {
    CheckBox(Container& parent, QStringView name, Rectangle place, QStringView caption);
    QProperty<QString> Caption;
    QProperty<bool> Value{false};
    Event Click;
};

// One of several choices in its container. On the screen a click switches it on and the others there off; a program
// that sets `Value` sees to the others itself.
struct OptionButton : ControlKind<OptionButton> {
    OptionButton(Container& parent, QStringView name, Rectangle place, QStringView caption);
    QProperty<QString> Caption;
    QProperty<bool> Value{false};
    Event Click; // the values stand by then
};

struct Frame : ControlKind<Frame>, Container {
    Frame(Container& parent, QStringView name, Rectangle place, QStringView caption = {});
    QProperty<QString> Caption;
    Event Click;
};

struct ListBox : ControlKind<ListBox> {
    using ControlKind::ControlKind;
    QProperty<QStringList> Items;
    QProperty<int> ListIndex{-1}; // -1 for nothing selected
    Event DblClick;

    // The selected item; empty for none. Setting it selects the first item of exactly that text, or none.
    QString Text() const;
    void SetText(const QString& text);
};

// A choice of the places where directories begin, see platform/files/Drives.h.
struct DriveList : ControlKind<DriveList> {
    using ControlKind::ControlKind;
    QProperty<QStringList> Drives;
    QProperty<QString> Drive;
    Event Change;

    // As the user does.
    void Choose(const QString& drive)
    {
        Drive = drive;
        Fire(Change);
    }
};

// A directory with those above it and those in it. A click on one of them selects it, a double click goes there.
struct DirectoryList : ControlKind<DirectoryList> {
    using ControlKind::ControlKind;
    QProperty<QString> Path; // where it stands; no separator at its end but the root's
    Event Click;
    Event Change; // it has gone elsewhere

    // Told `Change` only when it stood elsewhere. A directory that isn't there leaves it where it stands.
    void GoTo(const QString& directory);
};

// A picture stretched to the control.
struct Image : ControlKind<Image> {
    using ControlKind::ControlKind;
    QProperty<QImage> Picture;
    // Off: whoever puts a picture in gives the control its size, too.
    bool Stretch = true;
    // What the program keeps with the picture.
    QProperty<QString> Tag;
    // The mouse takes it and drops it on another, or on itself, which is a plain click then.
    bool Draggable = false;
    Event Click;
    std::function<void(Image& source)> DragDrop; // another was dropped on this one, or this one itself
};

// An outline above its container, which lets the mouse through. Hidden until it is told to show.
struct Shape : ControlKind<Shape> {
    Shape(Container& parent, QStringView name, Rectangle place);
    enum class Outline { Oval, Rectangle };
    Outline Kind = Outline::Oval;
    QProperty<Colour> BorderColor{Black};
    int BorderWidth = 1; // pixels
    bool Filled = false; // with the colour of its border
    bool Dotted = false; // its outline
};

struct ScrollBar : ControlKind<ScrollBar> {
    ScrollBar(Container& parent, QStringView name, Rectangle place, int max, int smallChange, int largeChange);
    QProperty<int> Value{0};
    QProperty<int> Max;
    int SmallChange;
    int LargeChange;
    Event Change;
};

// Ticks again and again while it is enabled, which it isn't at first.
struct Timer : ControlKind<Timer> {
    Timer(Container& parent, QStringView name, int milliseconds);
    QProperty<int> Interval; // milliseconds
    Event Tick;
};

// A player of sounds and videos. Without a place it isn't seen and plays short sounds: its commands act at once, and a
// file or device that isn't there is passed over. With a place it shows five buttons of equal width, in the order
// rewind, play, pause, step, stop, which serve the file that is open.
struct MultimediaControl : ControlKind<MultimediaControl> {
    MultimediaControl(Container& parent, QStringView name, Rectangle place = {});
    void Release() override { Command(u"Close"); }
    bool HasPlace() const { return Width > 0 && Height > 0; }

    // "Open", "Sound", "Close".
    // With a place "Open" reads the named file and returns when it can be played. It raises FileNotFound when the file
    // isn't there and InvalidFileFormat when it is nothing that can be played. "Close" stops and lets go of the file;
    // closing what is not open does nothing, and opening again closes what was open.
    // The buttons give theirs in the same way: "Rewind", "Play", "Pause" (given again it goes on), "Step", "Stop". They
    // do nothing while nothing is open.
    void Command(QStringView command)
    {
        if (Act)
            Act(command);
    }

    bool Notify = false;
    bool Wait = false;
    bool Shareable = false;
    int ScreenHeight = 0; // twips of its upper part that show the film; 0: sound alone
    QString DeviceType;
    QString FileName;
    std::function<void(QStringView command)> Act; // by whoever shows the window

    // What the player tells of the file, set by whoever plays it.
    QProperty<bool> IsOpen{false};
    QProperty<int> Position{0}; // milliseconds; `Length` once it has played to its end
    QProperty<int> Length{0};   // milliseconds
    QProperty<QImage> Screen;   // the film's picture at the position; null for a sound
};

// An entry of a menu, the menu itself included. A caption of "-" is a separator.
struct MenuItem {
    MenuItem(std::vector<MenuItem*>& level, QStringView name, QStringView caption);
    MenuItem(MenuItem& parent, QStringView name, QStringView caption);
    MenuItem(const MenuItem&) = delete;
    MenuItem& operator=(const MenuItem&) = delete;

    QString Name;
    QString Caption;
    QProperty<bool> Enabled{true};
    Event Click; // of a menu: it opens
    std::vector<MenuItem*> Items;
};

} // namespace lineforge
