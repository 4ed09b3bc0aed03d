#include "Layout.h"

#include "Failure.h"
#include "forms/Form1.h"
#include "qt/style/Desktop.h"

#include <optional>

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
Scale ScaleOn(const Display& screen)
{
    // Where the program places its windows it leaves room for a title whether or not there is a window manager to show
    // one. A wrong guess would show in the sizes of the windows, which the tour checks.
    constexpr int titlePixels = 24;
    return screen.PlacesAsAsked() ? FittingScale(forms::MainWindowClient, screen.Room(), titlePixels)
                                  : ScaleForRoom(forms::MainWindowClient, screen.Room());
}

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

Layout::Layout(const Display& screen) : scale_(ScaleOn(screen)) {}

QRect Layout::PlaceOf(const Form& form, const Control& control) const
{
    const std::optional<QRect> place = Find(scale_, form, control);
    Expect(place.has_value(), u"the control "_s + control.Name + u" in the window "_s + form.Name);
    return *place;
}

} // namespace lineforge::tour
