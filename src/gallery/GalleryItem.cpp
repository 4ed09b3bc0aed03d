#include "gallery/GalleryItem.h"

#include "forms/Form5.h"
#include "gallery/GalleryFile.h"
#include "gallery/GalleryTile.h"
#include "gallery/PageRecord.h"
#include "platform/base/Number.h"
#include "platform/drawing/PictureFile.h"
#include "program/branch/BranchPaths.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct PlayerPanel {
    PictureBox forms::Form5::*Panel;
    MultimediaControl forms::Form5::*Player;
    QStringView DeviceType;
    bool ShowsBeforeOpen;
};
constexpr PlayerPanel soundPanel{&forms::Form5::Picture1, &forms::Form5::MMControl1, u"WaveAudio", true};
constexpr PlayerPanel videoPanel{&forms::Form5::Picture2, &forms::Form5::MMControl2, u"AviVideo", false};

const PlayerPanel& PanelOf(GalleryKind kind)
{
    return kind == GalleryKind::Sound ? soundPanel : videoPanel;
}

Image& SelectedTile(const GalleryWork& work)
{
    return work.Form5->Image1[work.State.GallerySel];
}

// "of" is followed by one blank while an item is open and by two when it has been closed.
QString ItemCaption(const GalleryWork& work, QStringView of)
{
    TakePageNames(work.State, work.Branch, work.Form3);
    const GalleryState& gallery = work.State;
    return gallery.PageRecord + u" Gallery " + of + gallery.PageForename + u"  " + gallery.PageSurname;
}

void ShowPage(const GalleryWork& work, bool isShown)
{
    forms::Form5& form = *work.Form5;
    form.Command1.Visible = isShown;
    form.Command2.Visible = isShown;
    for (int index = 0; index <= work.State.GalleryTop; ++index)
        form.Image1[index].Visible = isShown && IsBuilt(form.Image1[index]);
}

// A tile keeps a small picture only. The whole one is read first, so that one that can't be leaves the page as it is.
// The tile of a file that has just been deleted has none, and opens empty.
QImage WholePicture(const GalleryWork& work, const Image& tile)
{
    return tile.Picture.value().isNull() ? QImage() : LoadPicture(work.Files, GalleryPath(work.State, tile.Tag));
}

void PutPictureAway(GalleryState& gallery, forms::Form5& form)
{
    if (!gallery.EnlargedTile)
        return;
    Image& tile = form.Image1[*gallery.EnlargedTile];
    gallery.EnlargedTile.reset();
    tile.Visible = false;
    tile.Top = gallery.GalSaveTop;
    tile.Left = ToInteger(gallery.GalSaveLeft);
    tile.Height = gallery.GalSaveHeight;
    tile.Width = gallery.GalSaveWidth;
    tile.Picture = gallery.TilePicture;
    tile.Stretch = true;
}

void OpenPicture(const GalleryWork& work)
{
    Image& tile = SelectedTile(work);
    const QImage picture = WholePicture(work, tile);
    // Where something else has taken the state word, one stands open still.
    PutPictureAway(work.State, *work.Form5);
    work.Scratch.ScanState = GalleryScan::ItemOpen;
    ShowPage(work, false);
    work.State.EnlargedTile = work.State.GallerySel;
    work.State.GalSaveTop = tile.Top;
    work.State.GalSaveLeft = QString::number(tile.Left);
    work.State.GalSaveHeight = tile.Height;
    work.State.GalSaveWidth = tile.Width;
    work.State.TilePicture = tile.Picture;
    tile.Stretch = false;
    if (!picture.isNull()) {
        const Size size = work.Screen.SizeOf(picture);
        tile.Width = size.Width;
        tile.Height = size.Height;
        tile.Picture = picture;
    }
    const Size area = work.Form5->ScaleSize();
    tile.Left = (area.Width - tile.Width) / 2;
    tile.Top = (area.Height - tile.Height) / 2;
    tile.Visible = true;
}

void OpenPlayer(const GalleryWork& work, const PlayerPanel& panel)
{
    forms::Form5& form = *work.Form5;
    MultimediaControl& player = form.*panel.Player;
    work.Scratch.ScanState = GalleryScan::ItemOpen;
    ShowPage(work, false);
    (form.*panel.Panel).Visible = true;
    player.Notify = false;
    player.Wait = true;
    player.Shareable = false;
    player.DeviceType = panel.DeviceType.toString();
    player.FileName = work.Files.Resolve(GalleryPath(work.State, SelectedTile(work).Tag));
    if (panel.ShowsBeforeOpen)
        player.Visible = true;
    player.Command(u"Open");
    player.Visible = true;
}

void PutPlayerAway(forms::Form5& form, const PlayerPanel& panel)
{
    if (!(form.*panel.Panel).Visible)
        return;
    (form.*panel.Panel).Visible = false;
    (form.*panel.Player).Command(u"Close");
    (form.*panel.Player).Visible = false;
}

// The editor runs beside the program, and the tiles stay.
void OpenText(const GalleryWork& work)
{
    work.Scratch.sNewDir = ApplicationDirectory(work.Branch.WorkDir);
    work.State.EditorTask =
        work.Processes.Shell(work.Files.Resolve(work.Scratch.sNewDir + PathSeparator + u"Notepad.exe"),
                             work.Files.Resolve(GalleryPath(work.State, SelectedTile(work).Tag)));
}

void ExitPlayer(const GalleryWork& work, const PlayerPanel& panel)
{
    if (work.Scratch.ScanState == GalleryScan::Deleting)
        CancelDeletion(work.Scratch);
    else if (((*work.Form5).*panel.Panel).Visible)
        CloseGalleryItem(work);
}
} // namespace

void OpenGalleryItem(const GalleryWork& work)
{
    constexpr int captionTail = 11;
    const QString tag = SelectedTile(work).Tag;
    work.Form5->Caption = ItemCaption(work, u"of ") + u"   " + tag.right(captionTail);
    const std::optional<GalleryKind> kind = KindOf(tag);
    if (!kind)
        return;
    switch (*kind) {
    case GalleryKind::Picture:
        return OpenPicture(work);
    case GalleryKind::Sound:
    case GalleryKind::Video:
        return OpenPlayer(work, PanelOf(*kind));
    case GalleryKind::Text:
        return OpenText(work);
    }
}

void PutItemAway(GalleryState& gallery, forms::Form5& form)
{
    PutPlayerAway(form, soundPanel);
    PutPlayerAway(form, videoPanel);
    PutPictureAway(gallery, form);
    form.Command1.Visible = true;
    form.Command2.Visible = true;
}

void CloseGalleryItem(const GalleryWork& work)
{
    if (work.Scratch.ScanState != GalleryScan::ItemOpen)
        return;
    work.Form5->Caption = ItemCaption(work, u"of  ");
    PutItemAway(work.State, *work.Form5);
    ShowPage(work, true);
    work.Scratch.ScanState = GalleryScan::Browsing;
}

void ExitSoundPlayer(const GalleryWork& work)
{
    ExitPlayer(work, soundPanel);
}

void ExitVideoPlayer(const GalleryWork& work)
{
    ExitPlayer(work, videoPanel);
}

void CancelDeletion(ScratchState& scratch)
{
    if (scratch.ScanState == GalleryScan::Deleting)
        scratch.ScanState = GalleryScan::Browsing;
}

} // namespace lineforge
