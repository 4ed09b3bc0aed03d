#include "qt/views/AccessibleName.h"

#include "platform/canvas/PictureBox.h"
#include "platform/controls/TextPanel.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// As close as a caption stands above the box that it belongs to.
constexpr int closeAbove = 150;

bool Overlap(int beginA, int lengthA, int beginB, int lengthB)
{
    return beginA < beginB + lengthB && beginB < beginA + lengthA;
}

bool IsLeftOf(const Label& label, const Control& control)
{
    return label.Left.value() < control.Left.value() && Overlap(label.Top, label.Height, control.Top, control.Height);
}

bool IsAbove(const Label& label, const Control& control)
{
    const int gap = control.Top - (label.Top + label.Height);
    return gap > -closeAbove && gap < closeAbove && label.Top.value() < control.Top.value() &&
           Overlap(label.Left, label.Width, control.Left, control.Width);
}

// What a label is put beside to name it: a field that is filled in or chosen from. A label beside a picture or a button
// belongs to something else.
bool IsField(const Control& control)
{
    return dynamic_cast<const TextBox*>(&control) || dynamic_cast<const ListBox*>(&control) ||
           dynamic_cast<const DriveList*>(&control) || dynamic_cast<const DirectoryList*>(&control);
}

QString WithoutColon(const QString& caption)
{
    return caption.endsWith(u':') ? caption.chopped(1).trimmed() : caption;
}

QString WordFor(const Control& control)
{
    if (dynamic_cast<const Image*>(&control) || dynamic_cast<const PictureBox*>(&control))
        return u"Picture"_s;
    if (dynamic_cast<const ScrollBar*>(&control))
        return u"Vertical scrolling"_s;
    if (dynamic_cast<const Shape*>(&control))
        return u"Marker"_s;
    if (dynamic_cast<const TextPanel*>(&control))
        return u"Report"_s;
    return control.Name;
}

constexpr const char* roleProperty = "accessibleRole";

QAccessibleInterface* ReadableArea(const QString&, QObject* object)
{
    auto* widget = qobject_cast<QWidget*>(object);
    const QVariant role = widget ? widget->property(roleProperty) : QVariant();
    return role.isValid() ? new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt())) : nullptr;
}
} // namespace

QString SpokenCaption(const QString& caption)
{
    QString spoken;
    for (qsizetype at = 0; at < caption.size(); ++at) {
        if (caption[at] == u'&' && at + 1 < caption.size())
            ++at;
        spoken += caption[at];
    }
    return spoken;
}

const Label* LabelOf(const Control& field, const Container& container)
{
    const Label* nearest = nullptr;
    const Label* above = nullptr;
    for (const Control* other : container.Controls()) {
        const auto* label = dynamic_cast<const Label*>(other);
        if (!label || label->Caption.Shown().isEmpty())
            continue;
        if (IsLeftOf(*label, field) && (!nearest || label->Left.value() > nearest->Left.value()))
            nearest = label;
        if (IsAbove(*label, field))
            above = label;
    }
    return nearest ? nearest : above;
}

QString BorrowedName(const Control& control, const Container& container)
{
    if (!control.SpokenName.isEmpty())
        return control.SpokenName;
    if (const Label* label = IsField(control) ? LabelOf(control, container) : nullptr)
        return WithoutColon(label->Caption.Shown());
    if (!control.ToolTipText.isEmpty())
        return control.ToolTipText;
    const auto* frame = dynamic_cast<const Frame*>(&container);
    const QString around = frame ? SpokenCaption(frame->Caption).trimmed() : QString();
    return around.isEmpty() ? WordFor(control) : around;
}

void TakeFor(QWidget& widget, QAccessible::Role role)
{
    [[maybe_unused]] static const bool installed = (QAccessible::installFactory(ReadableArea), true);
    widget.setProperty(roleProperty, static_cast<int>(role));
    TellReadersAnew(widget);
}

void TellReadersAnew(QWidget& widget)
{
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&widget)));
}

} // namespace lineforge
