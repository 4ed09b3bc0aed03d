#include "platform/controls/Controls.h"

#include "platform/base/WholeLetters.h"

#include <QDir>

#include <algorithm>
#include <limits>

namespace lineforge
{

Control::Control(Container& parent, QStringView name, Rectangle place)
    : Name(name.toString()), Left(place.Left), Top(place.Top), Width(place.Width), Height(place.Height), parent_(parent)
{
    parent.controls_.push_back(this);
}

Control::~Control()
{
    std::erase(parent_.controls_, this);
}

Label::Label(Container& parent, QStringView name, Rectangle place, QStringView caption)
    : ControlKind(parent, name, place)
{
    Caption.Show(caption.toString());
}

TextBox::TextBox(Container& parent, QStringView name, Rectangle place, int maxLength)
    : ControlKind(parent, name, place), MaxLength(maxLength)
{
}

int LongestText(int limit, qsizetype present)
{
    return limit == 0 ? std::numeric_limits<int>::max() : std::max(limit, static_cast<int>(present));
}

void TextBox::ReplaceSelection(const QString& text)
{
    const QString before = Text;
    if (Locked)
        return;
    const qsizetype start = std::clamp<qsizetype>(SelStart, 0, before.size());
    const qsizetype rest = std::min(start + SelText.size(), before.size());
    const qsizetype room = LongestText(MaxLength, before.size()) - (start + before.size() - rest);
    const QString taken = text.left(SplitsLetter(text, room) ? room - 1 : room);
    // Nothing put in the place of nothing is no edit: a field that was never filled in stays so.
    if (const QString after = before.first(start) + taken + before.sliced(rest); after != before)
        Text = after;
    SelStart = static_cast<int>(start + taken.size());
    SelText.clear();
    Fire(CaretMoved);
}

Button::Button(Container& parent, QStringView name, Rectangle place, QStringView caption)
    : ControlKind(parent, name, place), Caption(caption.toString())
{
}

CheckBox::CheckBox(Container& parent, QStringView name, Rectangle place, QStringView caption)
    : ControlKind(parent, name, place), Caption(caption.toString())
{
}

OptionButton::OptionButton(Container& parent, QStringView name, Rectangle place, QStringView caption)
    : ControlKind(parent, name, place), Caption(caption.toString())
{
}

Frame::Frame(Container& parent, QStringView name, Rectangle place, QStringView caption)
    : ControlKind(parent, name, place), Caption(caption.toString())
{
}

QString ListBox::Text() const
{
    return Items.value().value(ListIndex.value());
}

void ListBox::SetText(const QString& text)
{
    ListIndex = static_cast<int>(Items.value().indexOf(text));
}

void DirectoryList::GoTo(const QString& directory)
{
    const QString path = QDir::cleanPath(directory);
    if (path == Path.value() || !QDir(path).exists())
        return;
    Path = path;
    Fire(Change);
}

Shape::Shape(Container& parent, QStringView name, Rectangle place) : ControlKind(parent, name, place)
{
    Visible = false;
}

ScrollBar::ScrollBar(Container& parent, QStringView name, Rectangle place, int max, int smallChange, int largeChange)
    : ControlKind(parent, name, place), Max(max), SmallChange(smallChange), LargeChange(largeChange)
{
}

Timer::Timer(Container& parent, QStringView name, int milliseconds)
    : ControlKind(parent, name, {}), Interval(milliseconds)
{
    Enabled = false;
}

MultimediaControl::MultimediaControl(Container& parent, QStringView name, Rectangle place)
    : ControlKind(parent, name, place)
{
}

MenuItem::MenuItem(std::vector<MenuItem*>& level, QStringView name, QStringView caption)
    : Name(name.toString()), Caption(caption.toString())
{
    level.push_back(this);
}

MenuItem::MenuItem(MenuItem& parent, QStringView name, QStringView caption) : MenuItem(parent.Items, name, caption) {}

} // namespace lineforge
