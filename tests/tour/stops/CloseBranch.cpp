#include "Ink.h"
#include "MapView.h"
#include "Menus.h"
#include "stops/Stops.h"

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
void MapAndSubjectGo(Tour& tour)
{
    Choose(tour, tour.MainForm.mnuFile, tour.MainForm.mnuCloseDB);
    tour.Await(u"a blank map"_s, [&] { return IsOneColour(MapPicture(tour)); });
    tour.Await(u"no subject"_s, [&] { return IsOneColour(tour.PictureOf(tour.OnMain(tour.MainForm.Image1))); });
}
} // namespace

Steps CloseBranchStop()
{
    return {{u"branch-closed"_s, MapAndSubjectGo}};
}

} // namespace lineforge::tour
