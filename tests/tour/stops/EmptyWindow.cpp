#include "Failure.h"
#include "Ink.h"
#include "MapView.h"
#include "Menus.h"
#include "stops/Stops.h"

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
void NothingIsOpen(Tour& tour)
{
    tour.MeasureMenuBar();
    Expect(IsOneColour(MapPicture(tour)), u"a blank map"_s);
    Expect(IsOneColour(tour.PictureOf(tour.OnMain(tour.MainForm.Image1))), u"no subject"_s);

    const auto darkestOf = [&](const MenuItem& menu) {
        return DarkestGrey(tour.PictureOf(PlaceInMenuBar(tour, menu)));
    };
    constexpr int clearly = 60;
    const forms::Form1& form = tour.MainForm;
    Expect(darkestOf(form.mnuEdit) > darkestOf(form.mnuFile) + clearly, u"the menu Edit paler than File"_s);
    Expect(darkestOf(form.mnuTreeGraphics) > darkestOf(form.mnuHelp) + clearly, u"Tree Graphics paler than Help"_s);
}

// The key for the menu Edit comes before that for File; had it opened anything, the menu of File wouldn't be the only
// one.
void EditOpensNothing(Tour& tour)
{
    tour.Hands.Press({Key::Alt}, u'e');
    tour.Hands.Press({Key::Alt}, u'f');
    AwaitMenu(tour, tour.MainForm.mnuFile);
}

void EscapeClosesMenu(Tour& tour)
{
    const ScreenWindow menu = AwaitMenu(tour, tour.MainForm.mnuFile);
    tour.Hands.Press(Key::Escape);
    tour.AwaitGone(menu);
    // The first Escape closes the menu, the next leaves the menu bar.
    tour.Hands.Press(Key::Escape);
    Expect(tour.Screen.Popups().empty(), u"no menu on the screen"_s);
}
} // namespace

Steps EmptyWindowStop()
{
    return {{u"nothing-open"_s, NothingIsOpen},
            {u"file-menu"_s, EditOpensNothing},
            {u"file-menu-closed"_s, EscapeClosesMenu}};
}

} // namespace lineforge::tour
