#include "Ink.h"
#include "Menus.h"
#include "stops/Stops.h"

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
const QString helpTitle = u"Lineforge Help"_s;

void ContentsAreShown(Tour& tour)
{
    constexpr std::size_t fewestLines = 5;
    Choose(tour, tour.MainForm.mnuHelp, tour.MainForm.mnuConts);
    const ScreenWindow help = tour.AwaitWindow(helpTitle);
    tour.Await(u"the text of the help"_s, [&] {
        const QRect middle = help.Place.adjusted(help.Place.width() / 3, 50, -help.Place.width() / 3, -10);
        return InkedRows(tour.PictureOf(middle), 2).size() >= fewestLines;
    });
}

void HelpCloses(Tour& tour)
{
    const ScreenWindow help = tour.AwaitWindow(helpTitle);
    tour.Screen.AskToClose(help);
    tour.AwaitGone(help);
}

void AboutBoxIsShown(Tour& tour)
{
    Choose(tour, tour.MainForm.mnuHelp, tour.MainForm.MnuAbout);
    tour.AwaitWindow(u"About Lineforge"_s);
}

void AboutBoxCloses(Tour& tour)
{
    tour.Answer(u"About Lineforge"_s, Key::Return);
}
} // namespace

Steps HelpStop()
{
    return {{u"help"_s, ContentsAreShown},
            {u"help-closed"_s, HelpCloses},
            {u"about"_s, AboutBoxIsShown},
            {u"about-closed"_s, AboutBoxCloses}};
}

} // namespace lineforge::tour
