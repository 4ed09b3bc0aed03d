#include "Failure.h"
#include "Menus.h"
#include "stops/Stops.h"

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
void FileExitEnds(Tour& tour)
{
    const ScreenWindow main = tour.MainWindow();
    const ScreenWindow menu = OpenMenu(tour, tour.MainForm.mnuFile);
    tour.Hands.Click(PlaceInMenu(tour, menu, tour.MainForm.mnuFile, tour.MainForm.mnuExit).center());
    tour.AwaitEnd();
    Expect(!tour.Screen.Find(main.Id), u"nothing of the program on the screen"_s);
    for (const QChar branch : u"AB"_s)
        Expect(tour.Home.Read(MapFileOf(branch)) == tour.Home.Example(MapFileOf(branch)),
               u"the map of branch "_s + branch + u" as it was"_s);
}

void StartsWithoutSplash(Tour& tour)
{
    tour.StartProgram();
    tour.MeasureMenuBar();
    Expect(tour.Screen.Windows().size() == 1, u"no other window than the main window"_s);
}

void ClosingTheMainWindowEnds(Tour& tour)
{
    tour.Close(tour.MainWindow());
    tour.AwaitEnd();
}
} // namespace

Steps ExitStop()
{
    return {{u"exit"_s, FileExitEnds}};
}

Steps WithoutSplashStop()
{
    return {{u"started-again"_s, StartsWithoutSplash}, {u"closed"_s, ClosingTheMainWindowEnds}};
}

} // namespace lineforge::tour
