#include "Layout.h"

#include "Failure.h"
#include "forms/Form1.h"

#include <optional>

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
// Room for a title is left by the program whether or not there is a window manager to show one. A wrong guess would
// show in the sizes of the windows, which the tour checks.
constexpr int titlePixels = 24;

QRect ToPixels(const Scale& scale, const Control& control)
{
    return scale.ToPixels(Rectangle{control.Left, control.Top, control.Width, control.Height});
}

std::optional<QRect> Find(const Scale& scale, const Container& container, const Control& wanted)
{
    for (const Control* control : container.Controls()) {
        if (control == &wanted)
            return ToPixels(scale, wanted);
        const auto* inner = dynamic_cast<const Container*>(control);
        if (!inner)
            continue;
        if (const std::optional<QRect> place = Find(scale, *inner, wanted))
            return place->translated(ToPixels(scale, *control).topLeft());
    }
    return std::nullopt;
}
} // namespace

Layout::Layout(QSize screen) : scale_(FittingScale(forms::MainWindowClient, screen, titlePixels)) {}

QRect Layout::PlaceOf(const Form& form, const Control& control) const
{
    const std::optional<QRect> place = Find(scale_, form, control);
    Expect(place.has_value(), u"the control "_s + control.Name + u" in the window "_s + form.Name);
    return *place;
}

} // namespace lineforge::tour
