#include "SubjectView.h"

#include "Ink.h"
#include "MapView.h"
#include "program/state/MapState.h"

namespace lineforge::tour
{

QImage PanelPicture(const Tour& tour)
{
    return tour.PictureOf(tour.OnMain(tour.MainForm.Frame1) | tour.OnMain(tour.MainForm.Label17));
}

QPoint CentreOf(const Tour& tour, const FiledBox& box)
{
    return PlaceOnMap(tour, {box.Corner.x(), box.Corner.y(), BoxWidth, BoxHeight}).center();
}

bool ShowsMarker(const Tour& tour, const FiledBox& box, QColor colour)
{
    constexpr double mostOfIt = 0.8;
    constexpr Point fromCorner{247, 48};
    const QRect place = PlaceOnMap(tour, {box.Corner.x() + fromCorner.X, box.Corner.y() + fromCorner.Y, 135, 255});
    return ShareOfTintedColumns(tour.PictureOf(place), colour) >= mostOfIt;
}

QImage PictureOfBox(const Tour& tour, const FiledBox& box)
{
    constexpr int nameBelow = 100;
    return tour.PictureOf(PlaceOnMap(tour, {box.Corner.x(), box.Corner.y(), BoxWidth, BoxHeight + nameBelow}));
}

bool ShowsFrame(const Tour& tour, const FiledBox& box, QColor colour)
{
    constexpr double nearlyAll = 0.95;
    constexpr int offset = 40;
    const QRect place = PlaceOnMap(tour, {box.Corner.x() - offset, box.Corner.y() - offset, 735, 495});
    const QImage top = tour.PictureOf(QRect(place.topLeft(), QSize(place.width(), 3)));
    const QImage bottom = tour.PictureOf(QRect(place.x(), place.bottom() - 2, place.width(), 3));
    return ShareOfTintedColumns(top, colour) >= nearlyAll && ShareOfTintedColumns(bottom, colour) >= nearlyAll;
}

} // namespace lineforge::tour
