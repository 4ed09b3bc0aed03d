#include "BranchList.h"
#include "stops/Stops.h"

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
const QStringList others{u"Howard"_s, u"Percy"_s, u"Talbot"_s, u"Cavendish"_s};
const QString fileQuestion = u"Select AliasList configuration File"_s;

void AnotherListIsAskedFor(Tour& tour)
{
    const ScreenWindow list = OpenBranchList(tour);
    tour.Hands.Click(PlaceOfButton(tour, list, tour.ListForm.Command3));
    const ScreenWindow question = tour.AwaitWindow(fileQuestion);
    const QImage empty = tour.PictureOf(question.Place);
    tour.Hands.Type(tour.Home.MakeAnotherHome(others) + u"/AliasList.cfg"_s);
    tour.Await(u"the path in the box"_s, [&] { return tour.PictureOf(question.Place) != empty; });
}

void OtherBranchesAreListed(Tour& tour)
{
    const ScreenWindow question = tour.AwaitWindow(fileQuestion);
    tour.Hands.Press(Key::Return);
    tour.AwaitGone(question);
    AwaitBranchList(tour, others.size());
}

void CancelClosesTheList(Tour& tour)
{
    const ScreenWindow list = AwaitBranchList(tour, others.size());
    tour.Hands.Click(PlaceOfButton(tour, list, tour.ListForm.Command2));
    tour.AwaitGone(list);
}
} // namespace

Steps ChangeDirectoryStop()
{
    return {{u"change-directory"_s, AnotherListIsAskedFor},
            {u"other-home"_s, OtherBranchesAreListed},
            {u"other-home-cancelled"_s, CancelClosesTheList}};
}

} // namespace lineforge::tour
