#include "MapView.h"
#include "stops/Stops.h"

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
constexpr QPoint place{250, 160}; // on the map, in pixels; its paper is bare there
constexpr int toTheRight = 120;

struct Fields {
    QImage Reference;
    QImage X;
    QImage Y;
};

Fields PictureOfFields(const Tour& tour)
{
    const forms::Form1& form = tour.MainForm;
    return {tour.PictureOf(tour.OnMain(form.Text8)), tour.PictureOf(tour.OnMain(form.Text9)),
            tour.PictureOf(tour.OnMain(form.Text10))};
}

void ClickTellsCoordinates(Tour& tour)
{
    const Fields before = PictureOfFields(tour);
    tour.Hands.Click(MapArea(tour).topLeft() + place);
    tour.Await(u"the three co-ordinates"_s, [&] {
        const Fields now = PictureOfFields(tour);
        return now.Reference != before.Reference && now.X != before.X && now.Y != before.Y;
    });
}

void ClickBesideTellsAnotherX(Tour& tour)
{
    const Fields before = PictureOfFields(tour);
    tour.Hands.Click(MapArea(tour).topLeft() + place + QPoint(toTheRight, 0));
    tour.Await(u"another reference and another X, but the same Y"_s, [&] {
        const Fields now = PictureOfFields(tour);
        return now.Reference != before.Reference && now.X != before.X && now.Y == before.Y;
    });
}
} // namespace

Steps CoordinatesStop()
{
    return {{u"coordinates"_s, ClickTellsCoordinates}, {u"coordinates-to-the-right"_s, ClickBesideTellsAnotherX}};
}

} // namespace lineforge::tour
