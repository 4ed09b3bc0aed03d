#include "Failure.h"
#include "stops/Stops.h"

#include <algorithm>

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
constexpr qsizetype splashChoice = 4; // its line in the list of branches
constexpr int splashCorner = 2250;    // twips from the screen's, both ways
constexpr int tickBox = 8;            // pixels from the left of a check box to the middle of what is ticked

// The splash alone has the size that its form was laid out for.
std::optional<ScreenWindow> FindSplash(const Tour& tour)
{
    const QSize size = tour.Places.Pixels().ToPixels(tour.SplashForm.Client);
    const std::vector<ScreenWindow> windows = tour.Screen.Windows();
    const auto found = std::ranges::find(windows, size, [](const ScreenWindow& each) { return each.Place.size(); });
    return found == windows.end() ? std::nullopt : std::optional(*found);
}

void SplashStandsBeforeMainWindow(Tour& tour)
{
    Expect(tour.Home.AliasLines().at(splashChoice) == u"[0,]", u"a home that hasn't chosen yet"_s);
    tour.StartProgram();
    tour.Await(u"the splash"_s, [&] { return FindSplash(tour).has_value(); });
    const ScreenWindow splash = *FindSplash(tour);
    const int corner = tour.Places.Pixels().ToPixels(splashCorner);
    Expect(!tour.Screen.PlacesAsAsked() || splash.Place.topLeft() == QPoint(corner, corner),
           u"the splash at its place"_s);
    Expect(tour.MainWindow().Place.contains(splash.Place), u"the main window behind the splash"_s);
    tour.Await(u"the splash to be kept above"_s, [&] {
        const std::optional<ScreenWindow> now = FindSplash(tour);
        return now && tour.Screen.IsKeptAbove(*now);
    });
    // A main window that is painted comes before no other any more.
    if (tour.Screen.PlacesAsAsked())
        tour.MeasureMenuBar();
    tour.Screen.Raise(splash);
}

void TickIsKept(Tour& tour)
{
    const QRect check = tour.PlaceOf(*FindSplash(tour), tour.SplashForm, tour.SplashForm.Check1);
    const QImage before = tour.PictureOf(check);
    tour.Hands.Click(QPoint(check.x() + tickBox, check.center().y()));
    tour.Await(u"the choice in the list of branches"_s,
               [&] { return tour.Home.AliasLines().value(splashChoice) == u"[1,]"; });
    tour.Await(u"the tick in its box"_s, [&] { return tour.PictureOf(check) != before; });
    Expect(tour.Home.BranchNames().size() == 2, u"the branches still in their list"_s);
}

void ClickTakesSplashAway(Tour& tour)
{
    const ScreenWindow splash = *FindSplash(tour);
    tour.Hands.Click(tour.PlaceOf(splash, tour.SplashForm, tour.SplashForm.imgLogo).center());
    tour.AwaitGone(splash);
}
} // namespace

Steps SplashStop()
{
    return {{u"splash"_s, SplashStandsBeforeMainWindow},
            {u"splash-not-again"_s, TickIsKept},
            {u"splash-gone"_s, ClickTakesSplashAway}};
}

} // namespace lineforge::tour
