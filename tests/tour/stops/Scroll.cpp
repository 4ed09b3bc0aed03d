#include "MapView.h"
#include "stops/Stops.h"

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
// From the ends of the bar, past the arrow: there the handle begins, while it stands at that end.
int PastArrow(const Tour& tour)
{
    constexpr int twips = 300;
    return tour.Places.Pixels().ToPixels(twips);
}

QRect Bar(const Tour& tour)
{
    return tour.OnMain(tour.MainForm.VScroll1);
}

QPoint TopOfBar(const Tour& tour)
{
    return QPoint(Bar(tour).center().x(), Bar(tour).top() + PastArrow(tour));
}

QPoint BottomOfBar(const Tour& tour)
{
    return QPoint(Bar(tour).center().x(), Bar(tour).bottom() - PastArrow(tour));
}

// The lower map is where the upper was, and the upper is off the window.
bool IsMovedUp(const QImage& before, const QImage& after, int pixels)
{
    const QSize common(before.width(), before.height() - pixels);
    return after.copy(QRect(QPoint(), common)) == before.copy(QRect(QPoint(0, pixels), common));
}

int Page(const Tour& tour)
{
    return tour.Places.Pixels().ToPixels(tour.MainForm.VScroll1.LargeChange);
}

int WholeWay(const Tour& tour)
{
    return tour.Places.Pixels().ToPixels(tour.MainForm.VScroll1.Max);
}

void ClickMovesMapUp(Tour& tour)
{
    const QImage start = MapPicture(tour);
    tour.Hands.Click(BottomOfBar(tour));
    tour.Await(u"the map to move up by a page, its titles off the window"_s,
               [&] { return IsMovedUp(start, MapPicture(tour), Page(tour)); });
}

void ClickMovesMapDown(Tour& tour)
{
    const QImage pageDown = MapPicture(tour);
    tour.Hands.Click(TopOfBar(tour));
    tour.Await(u"the map back at its start"_s, [&] { return IsMovedUp(MapPicture(tour), pageDown, Page(tour)); });
}

void DragGoesToTheEnd(Tour& tour)
{
    const QImage start = MapPicture(tour);
    tour.Hands.Drag(TopOfBar(tour), BottomOfBar(tour) + QPoint(0, PastArrow(tour)));
    tour.Await(u"the map at its end"_s, [&] { return IsMovedUp(start, MapPicture(tour), WholeWay(tour)); });
}

void DragGoesBackToTheStart(Tour& tour)
{
    const QImage end = MapPicture(tour);
    tour.Hands.Drag(BottomOfBar(tour), TopOfBar(tour) - QPoint(0, PastArrow(tour)));
    tour.Await(u"the map back at its start"_s, [&] { return IsMovedUp(MapPicture(tour), end, WholeWay(tour)); });
}
} // namespace

Steps ScrollStop()
{
    return {{u"map-a-page-down"_s, ClickMovesMapUp},
            {u"map-a-page-up"_s, ClickMovesMapDown},
            {u"map-at-its-end"_s, DragGoesToTheEnd},
            {u"map-at-its-start"_s, DragGoesBackToTheStart}};
}

} // namespace lineforge::tour
