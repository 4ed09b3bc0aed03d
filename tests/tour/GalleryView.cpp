#include "GalleryView.h"

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

ScreenWindow OpenGallery(Tour& tour)
{
    tour.Hands.Click(tour.OnMain(tour.MainForm.Command2).center());
    return tour.AwaitWindow(u"Victoria and Albert Tree Branch. Gallery A001 of Victoria Hanover"_s);
}

ScreenWindow AwaitItem(Tour& tour, const QString& file)
{
    return tour.AwaitWindow(u"A001 Gallery of Victoria  Hanover   "_s + file);
}

ScreenWindow AwaitClosedItem(Tour& tour)
{
    return tour.AwaitWindow(u"A001 Gallery of  Victoria  Hanover"_s);
}

QRect TileOnGallery(const Tour& tour, const ScreenWindow& gallery, int index)
{
    constexpr int tilesInRow = 14;
    constexpr int gap = 100;
    const Rectangle first = forms::Form5::FirstTile;
    const Rectangle tile{first.Left + index % tilesInRow * (first.Width + gap),
                         first.Top + index / tilesInRow * (first.Height + gap), first.Width, first.Height};
    return tour.Places.Pixels().ToPixels(tile).translated(gallery.Place.topLeft() + QPoint(0, tour.MenuBarHeight()));
}

QRect OnPanel(const Tour& tour, const ScreenWindow& gallery, const PictureBox& panel, const Control& control)
{
    const Scale& pixels = tour.Places.Pixels();
    const QPoint corner((tour.Screen.Size().width() - pixels.ToPixels(panel.Width)) / 2,
                        pixels.ToPixels(forms::Form5::FirstTile.Top));
    return tour.PlaceOf(gallery, tour.GalleryForm, control).translated(corner);
}

} // namespace lineforge::tour
