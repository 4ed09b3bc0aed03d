#include "BranchList.h"
#include "Failure.h"
#include "MapView.h"
#include "Menus.h"
#include "stops/Stops.h"

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
const QString branch = u"Victoria and Albert"_s;

void KeysBringTheList(Tour& tour)
{
    tour.Hands.Press({Key::Alt}, u'f');
    const ScreenWindow menu = AwaitMenu(tour, tour.MainForm.mnuFile);
    tour.Hands.Type(u"o"_s);
    tour.AwaitGone(menu);
    AwaitBranchList(tour, tour.Home.BranchNames().size());
}

void DoubleClickOpensBranch(Tour& tour)
{
    const QStringList names = tour.Home.BranchNames();
    const ScreenWindow list = AwaitBranchList(tour, names.size());
    tour.Hands.DoubleClick(PlaceOfBranch(tour, list, names.indexOf(branch)).center());
    tour.AwaitGone(list);
    tour.AwaitWindow(TitleOfBranch(branch));

    // Two of this branch, and the father of one, who is a record of the sibling branch.
    const std::vector<FiledBox> boxes = BoxesOfMap(tour.Home.Read(MapFileOf(u'A')));
    for (const auto& file : {u"A001"_s, u"A002"_s, u"B013"_s}) {
        const FiledBox box = BoxOfRecord(boxes, file);
        tour.Await(u"the outline of box "_s + file, [&] { return ShowsOutline(tour, box); });
        tour.Await(u"the number in box "_s + file, [&] { return ShowsNumber(tour, box); });
        tour.Await(u"the forename in box "_s + file, [&] { return ShowsForename(tour, box); });
    }
    tour.Await(u"the picture of the subject"_s, [&] { return ShowsSubjectPicture(tour); });
}
} // namespace

Steps OpenStop()
{
    return {{u"list-of-branches"_s, KeysBringTheList}, {u"branch-open"_s, DoubleClickOpensBranch}};
}

} // namespace lineforge::tour
