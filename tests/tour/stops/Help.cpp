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
    constexpr std::size_t fewestTopics = 5;
    Choose(tour, tour.MainForm.mnuHelp, tour.MainForm.mnuConts);
    const ScreenWindow help = tour.AwaitWindow(helpTitle);
    const QRect list(help.Place.x() + help.Place.width() / 30, help.Place.center().y(), help.Place.width() / 6,
                     help.Place.height() / 3);
    const QRect text = help.Place.adjusted(help.Place.width() / 3, help.Place.height() / 10, 0, 0);
    tour.Await(u"topics of the help"_s, [&] { return InkedRows(tour.PictureOf(list), 0).size() >= fewestTopics; });
    tour.Await(u"the text of the help"_s, [&] { return HoldsBlackLetters(tour.PictureOf(text)); });
}

void HelpCloses(Tour& tour)
{
    const ScreenWindow help = tour.AwaitWindow(helpTitle);
    tour.Close(help);
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
