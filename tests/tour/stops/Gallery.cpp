#include "Failure.h"
#include "GalleryView.h"
#include "Ink.h"
#include "Menus.h"
#include "stops/Stops.h"

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
const QString gallery = u"LfgDat_A/LfgGal_A/"_s;
constexpr int trailingTile = 10; // behind the six files of the example and the four that are added

bool IsInGallery(const Tour& tour, const QString& file)
{
    return tour.Home.Has(gallery + file);
}

void AwaitTile(Tour& tour, const ScreenWindow& window, int index)
{
    tour.Await(u"the picture on tile %1"_s.arg(index),
               [&] { return !IsOneColour(tour.PictureOf(TileOnGallery(tour, window, index).adjusted(9, 9, -9, -9))); });
}

void PageIsBuilt(Tour& tour)
{
    const ScreenWindow window = OpenGallery(tour);
    for (int index = 0; index < 6; ++index)
        AwaitTile(tour, window, index);
}

ScreenWindow ClickTile(Tour& tour, const ScreenWindow& window, int index, const QString& file)
{
    tour.Hands.Click(TileOnGallery(tour, window, index).center());
    return AwaitItem(tour, file);
}

void PictureIsEnlarged(Tour& tour)
{
    const ScreenWindow window =
        *tour.Screen.Find(u"Victoria and Albert Tree Branch. Gallery A001 of Victoria Hanover"_s);
    ClickTile(tour, window, 0, u"A001_01.jpg"_s);
}

void PictureIsPutBack(Tour& tour)
{
    const ScreenWindow window = AwaitItem(tour, u"A001_01.jpg"_s);
    tour.Hands.Click(window.Place.center());
    AwaitTile(tour, AwaitClosedItem(tour), 5);
}

// The buttons share the width of the player equally; they are its lowest part.
QPoint ButtonOf(const Tour& tour, const QRect& player, int button)
{
    constexpr int buttons = 5;
    const int height = tour.Places.Pixels().ToPixels(tour.GalleryForm.MMControl1.Height);
    return {player.left() + player.width() * (2 * button + 1) / (2 * buttons), player.bottom() - height / 4};
}

void Play(Tour& tour, const ScreenWindow& window, const PictureBox& panel, const MultimediaControl& player)
{
    constexpr int play = 1;
    const QRect place = OnPanel(tour, window, panel, player);
    tour.Await(u"the player"_s, [&] { return !IsOneColour(tour.PictureOf(place)); });
    tour.Hands.Click(ButtonOf(tour, place, play));
    const QImage atFirst = tour.PictureOf(place);
    tour.Await(u"something to be seen of the playing"_s, [&] { return tour.PictureOf(place) != atFirst; });
}

void SoundIsPlayed(Tour& tour)
{
    const ScreenWindow window = ClickTile(tour, AwaitClosedItem(tour), 3, u"A001_04.wav"_s);
    Play(tour, window, tour.GalleryForm.Picture1, tour.GalleryForm.MMControl1);
}

void FilmIsPlayed(Tour& tour)
{
    const forms::Form5& form = tour.GalleryForm;
    const ScreenWindow sound = AwaitItem(tour, u"A001_04.wav"_s);
    tour.Hands.Click(OnPanel(tour, sound, form.Picture1, form.Command3).center());
    const ScreenWindow window = ClickTile(tour, AwaitClosedItem(tour), 4, u"A001_05.avi"_s);
    Play(tour, window, form.Picture2, form.MMControl2);
}

void TextIsInTheEditor(Tour& tour)
{
    const forms::Form5& form = tour.GalleryForm;
    const ScreenWindow film = AwaitItem(tour, u"A001_05.avi"_s);
    tour.Hands.Click(OnPanel(tour, film, form.Picture2, form.Command4).center());
    ClickTile(tour, AwaitClosedItem(tour), 5, u"A001_06.txt"_s);
    const ScreenWindow editor = tour.AwaitWindow(u"A001_06.txt - Lineforge Editor"_s);
    tour.Await(u"the text"_s, [&] { return HoldsBlackLetters(tour.PictureOf(editor.Place)); });
}

// One of each kind, from files that the home has.
void FilesAreAdded(Tour& tour)
{
    struct Addition {
        QChar Entry;
        QString Title;
        QString Dialog;
        QString Source;
        QString Added;
    };
    const Addition additions[] = {
        {u'p', u"Gallery Picture Addition."_s, u"Select Picture Source File"_s, u"LfgDat_A/A002Sub.jpg"_s,
         u"A001_07.jpg"_s},
        {u'a', u"Gallery Sound Clip Addition."_s, u"Select Sound Clip Source File"_s, u"LfgOpen.wav"_s,
         u"A001_08.wav"_s},
        {u'v', u"Gallery Video Clip Addition."_s, u"Select Video Clip Source File"_s, gallery + u"A001_05.avi"_s,
         u"A001_09.avi"_s},
        {u't', u"Gallery Text File Addition."_s, u"Select Text Source File"_s, gallery + u"A001_06.txt"_s,
         u"A001_10.txt"_s},
    };
    const ScreenWindow editor = tour.AwaitWindow(u"A001_06.txt - Lineforge Editor"_s);
    tour.Close(editor);
    tour.AwaitGone(editor);
    for (const Addition& addition : additions) {
        AwaitItem(tour, u"A001_06.txt"_s);
        OpenMenusByKeys(tour, u"ea"_s);
        tour.Hands.Press({}, addition.Entry);
        tour.Answer(addition.Title, Key::Return);
        const ScreenWindow dialog = tour.AwaitWindow(addition.Dialog);
        tour.Hands.Type(tour.Home.Directory() + addition.Source);
        tour.Hands.Press(Key::Return);
        tour.AwaitGone(dialog);
        tour.Await(addition.Added, [&] { return IsInGallery(tour, addition.Added); });
        Expect(tour.Home.Read(gallery + addition.Added) == tour.Home.Read(addition.Source), u"the same file"_s);
    }
    AwaitTile(tour, AwaitItem(tour, u"A001_06.txt"_s), trailingTile - 1);
}

// The text added last goes on to the empty tile behind it.
void TileIsDragged(Tour& tour)
{
    const ScreenWindow window = AwaitItem(tour, u"A001_06.txt"_s);
    tour.Hands.Drag(TileOnGallery(tour, window, trailingTile - 1).center(),
                    TileOnGallery(tour, window, trailingTile).center());
    tour.Await(u"the file under its new name"_s, [&] { return IsInGallery(tour, u"A001_11.txt"_s); });
    Expect(!IsInGallery(tour, u"A001_10.txt"_s), u"its old name to be free"_s);
    AwaitTile(tour, window, trailingTile);
}

void FileIsDeleted(Tour& tour)
{
    const ScreenWindow window = AwaitItem(tour, u"A001_06.txt"_s);
    OpenMenusByKeys(tour, u"e"_s);
    tour.Hands.Press({}, u'd');
    tour.Answer(u"Deleting Gallery File."_s, Key::Return);
    tour.Hands.Click(TileOnGallery(tour, window, 6).center());
    tour.Await(u"the file to go"_s, [&] { return !IsInGallery(tour, u"A001_07.jpg"_s); });
}

void GalleryIsLeft(Tour& tour)
{
    const ScreenWindow window = AwaitItem(tour, u"A001_06.txt"_s);
    tour.Hands.Click(tour.PlaceOf(window, tour.GalleryForm, tour.GalleryForm.Command1).center());
    tour.AwaitGone(window);
}
} // namespace

Steps GalleryStop()
{
    return {{u"gallery-page"_s, PageIsBuilt},      {u"gallery-picture"_s, PictureIsEnlarged},
            {u"gallery-back"_s, PictureIsPutBack}, {u"gallery-sound"_s, SoundIsPlayed},
            {u"gallery-film"_s, FilmIsPlayed},     {u"gallery-text"_s, TextIsInTheEditor},
            {u"gallery-added"_s, FilesAreAdded},   {u"gallery-dragged"_s, TileIsDragged},
            {u"gallery-deleted"_s, FileIsDeleted}, {u"gallery-left"_s, GalleryIsLeft}};
}

} // namespace lineforge::tour
