#include "platform/qt/AccessibleName.h"

#include <algorithm>

namespace lineforge
{

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

QString BorrowedName(const Control& control, const Container& container)
{
    if (!control.ToolTipText.isEmpty())
        return control.ToolTipText;
    const Label* nearest = nullptr;
    const Label* above = nullptr;
    for (const Control* other : container.Controls()) {
        const auto* label = dynamic_cast<const Label*>(other);
        if (!label || label == &control || label->Caption.Shown().isEmpty())
            continue;
        if (IsLeftOf(*label, control) && (!nearest || label->Left.value() > nearest->Left.value()))
            nearest = label;
        if (IsAbove(*label, control))
            above = label;
    }
    const Label* namedBy = nearest ? nearest : above;
    return namedBy ? namedBy->Caption.Shown() : control.Name;
}

} // namespace lineforge
