#include "BranchList.h"
#include "MapView.h"
#include "stops/Stops.h"

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
const QString branch = u"House of Hanover"_s;

void MouseChoosesInList(Tour& tour)
{
    const ScreenWindow list = OpenBranchList(tour);
    const QRect row = PlaceOfBranch(tour, list, tour.Home.BranchNames().indexOf(branch));
    const QImage before = tour.PictureOf(row);
    tour.Hands.Click(row.center());
    tour.Await(u"the chosen name to be marked"_s, [&] { return tour.PictureOf(row) != before; });
}

void ButtonOpensBranch(Tour& tour)
{
    const ScreenWindow list = tour.AwaitWindow(tour.ListForm.Caption);
    tour.Hands.Click(PlaceOfButton(tour, list, tour.ListForm.Command1));
    tour.AwaitGone(list);
    tour.AwaitWindow(TitleOfBranch(branch));
    const FiledBox box = BoxOfRecord(BoxesOfMap(tour.Home.Read(MapFileOf(u'B'))), u"B001"_s);
    tour.Await(u"the outline of box B001"_s, [&] { return ShowsOutline(tour, box); });
    tour.Await(u"the number in box B001"_s, [&] { return ShowsNumber(tour, box); });
    tour.Await(u"the forename in box B001"_s, [&] { return ShowsForename(tour, box); });
    tour.Await(u"the picture of the subject"_s, [&] { return ShowsSubjectPicture(tour); });
}
} // namespace

Steps OpenOtherStop()
{
    return {{u"other-branch-chosen"_s, MouseChoosesInList}, {u"other-branch-open"_s, ButtonOpensBranch}};
}

} // namespace lineforge::tour
