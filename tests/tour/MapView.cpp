#include "MapView.h"

#include "Ink.h"
#include "program/state/MapState.h"

namespace lineforge::tour
{

namespace
{
// Twips from the box's top. The number's letters end above the lowest part of the forename's, which reach below the
// box.
constexpr Stretch wholeBox{0, BoxHeight};
constexpr Stretch numberOnly{20, 100};
constexpr Stretch forenameOnly{165, 245};

QRect PlaceOf(const Tour& tour, const FiledBox& box, Stretch rows)
{
    return PlaceOnMap(tour, {box.Corner.x(), box.Corner.y() + rows.First, BoxWidth, rows.Last - rows.First});
}
} // namespace

// The picture reaches a little under the scroll bar, and below the window.
QRect MapArea(const Tour& tour)
{
    QRect area = tour.OnMain(tour.MainForm.Picture1) & tour.MainWindow().Place;
    area.setRight(tour.OnMain(tour.MainForm.VScroll1).left() - 1);
    return area;
}

QImage MapPicture(const Tour& tour)
{
    return tour.PictureOf(MapArea(tour));
}

QRect PlaceOnMap(const Tour& tour, const Rectangle& twips)
{
    return tour.Places.Pixels().ToPixels(twips).translated(tour.OnMain(tour.MainForm.Picture1).topLeft());
}

// Letters inside the box may come near its outline, but no more than here and there.
bool ShowsOutline(const Tour& tour, const FiledBox& box)
{
    constexpr double nearlyAll = 0.85;
    const QRect place = PlaceOf(tour, box, wholeBox);
    const QImage topEdge = tour.PictureOf(QRect(place.x(), place.y() - 1, place.width(), 3));
    return ShareOfTintedColumns(topEdge, box.Colour) >= nearlyAll;
}

bool ShowsNumber(const Tour& tour, const FiledBox& box)
{
    return HoldsBlackLetters(tour.PictureOf(PlaceOf(tour, box, numberOnly)));
}

bool ShowsForename(const Tour& tour, const FiledBox& box)
{
    return HoldsBlackLetters(tour.PictureOf(PlaceOf(tour, box, forenameOnly)));
}

bool ShowsSubjectPicture(const Tour& tour)
{
    constexpr int fewestColours = 50;
    return CountColours(tour.PictureOf(tour.OnMain(tour.MainForm.Image1))) >= fewestColours;
}

} // namespace lineforge::tour
