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

Image& SelectedTile(Program& p)
{
    return p.Form5->Image1[p.Gallery.GallerySel];
}

// "of" is followed by one blank while an item is open and by two when it has been closed.
QString ItemCaption(Program& p, QStringView of)
{
    TakePageNames(p);
    const GalleryState& gallery = p.Gallery;
    return gallery.PageRecord + u" Gallery " + of + gallery.PageForename + u"  " + gallery.PageSurname;
}

void ShowPage(Program& p, bool isShown)
{
    forms::Form5& form = *p.Form5;
    form.Command1.Visible = isShown;
    form.Command2.Visible = isShown;
    for (int index = 0; index <= p.Gallery.GalleryTop; ++index)
        form.Image1[index].Visible = isShown && IsBuilt(form.Image1[index]);
}

// A tile keeps a small picture only. The whole one is read first, so that one that can't be leaves the page as it is.
// The tile of a file that has just been deleted has none, and opens empty.
QImage WholePicture(Program& p, const Image& tile)
{
    return tile.Picture.value().isNull() ? QImage() : LoadPicture(p.Files, GalleryPath(p, tile.Tag));
}

void PutPictureAway(Program& p)
{
    if (!p.Gallery.EnlargedTile)
        return;
    Image& tile = p.Form5->Image1[*p.Gallery.EnlargedTile];
    p.Gallery.EnlargedTile.reset();
    tile.Visible = false;
    tile.Top = p.Gallery.GalSaveTop;
    tile.Left = ToInteger(p.Gallery.GalSaveLeft);
    tile.Height = p.Gallery.GalSaveHeight;
    tile.Width = p.Gallery.GalSaveWidth;
    tile.Picture = p.Gallery.TilePicture;
    tile.Stretch = true;
}

void OpenPicture(Program& p)
{
    Image& tile = SelectedTile(p);
    const QImage picture = WholePicture(p, tile);
    // Where something else has taken the state word, one stands open still.
    PutPictureAway(p);
    p.Scratch.ScanState = GalleryScan::ItemOpen;
    ShowPage(p, false);
    p.Gallery.EnlargedTile = p.Gallery.GallerySel;
    p.Gallery.GalSaveTop = tile.Top;
    p.Gallery.GalSaveLeft = QString::number(tile.Left);
    p.Gallery.GalSaveHeight = tile.Height;
    p.Gallery.GalSaveWidth = tile.Width;
    p.Gallery.TilePicture = tile.Picture;
    tile.Stretch = false;
    if (!picture.isNull()) {
        const Size size = p.Screen.SizeOf(picture);
        tile.Width = size.Width;
        tile.Height = size.Height;
        tile.Picture = picture;
    }
    const Size area = p.Form5->ScaleSize();
    tile.Left = (area.Width - tile.Width) / 2;
    tile.Top = (area.Height - tile.Height) / 2;
    tile.Visible = true;
}

void OpenPlayer(Program& p, const PlayerPanel& panel)
{
    forms::Form5& form = *p.Form5;
    MultimediaControl& player = form.*panel.Player;
    p.Scratch.ScanState = GalleryScan::ItemOpen;
    ShowPage(p, false);
    (form.*panel.Panel).Visible = true;
    player.Notify = false;
    player.Wait = true;
    player.Shareable = false;
    player.DeviceType = panel.DeviceType.toString();
    player.FileName = p.Files.Resolve(GalleryPath(p, SelectedTile(p).Tag));
    if (panel.ShowsBeforeOpen)
        player.Visible = true;
    player.Command(u"Open");
    player.Visible = true;
}

void PutPlayerAway(Program& p, const PlayerPanel& panel)
{
    forms::Form5& form = *p.Form5;
    if (!(form.*panel.Panel).Visible)
        return;
    (form.*panel.Panel).Visible = false;
    (form.*panel.Player).Command(u"Close");
    (form.*panel.Player).Visible = false;
}

// The editor runs beside the program, and the tiles stay.
void OpenText(Program& p)
{
    p.Scratch.sNewDir = ApplicationDirectory(p.Branch.WorkDir);
    p.Gallery.EditorTask = p.Processes.Shell(p.Files.Resolve(p.Scratch.sNewDir + PathSeparator + u"Notepad.exe"),
                                             p.Files.Resolve(GalleryPath(p, SelectedTile(p).Tag)));
}

void ExitPlayer(Program& p, const PlayerPanel& panel)
{
    if (p.Scratch.ScanState == GalleryScan::Deleting)
        CancelDeletion(p);
    else if (((*p.Form5).*panel.Panel).Visible)
        CloseGalleryItem(p);
}
} // namespace

void OpenGalleryItem(Program& p)
{
    constexpr int captionTail = 11;
    const QString tag = SelectedTile(p).Tag;
    p.Form5->Caption = ItemCaption(p, u"of ") + u"   " + tag.right(captionTail);
    const std::optional<GalleryKind> kind = KindOf(tag);
    if (!kind)
        return;
    switch (*kind) {
    case GalleryKind::Picture:
        return OpenPicture(p);
    case GalleryKind::Sound:
    case GalleryKind::Video:
        return OpenPlayer(p, PanelOf(*kind));
    case GalleryKind::Text:
        return OpenText(p);
    }
}

void PutItemAway(Program& p)
{
    PutPlayerAway(p, soundPanel);
    PutPlayerAway(p, videoPanel);
    PutPictureAway(p);
    p.Form5->Command1.Visible = true;
    p.Form5->Command2.Visible = true;
}

void CloseGalleryItem(Program& p)
{
    if (p.Scratch.ScanState != GalleryScan::ItemOpen)
        return;
    p.Form5->Caption = ItemCaption(p, u"of  ");
    PutItemAway(p);
    ShowPage(p, true);
    p.Scratch.ScanState = GalleryScan::Browsing;
}

void ExitSoundPlayer(Program& p)
{
    ExitPlayer(p, soundPanel);
}

void ExitVideoPlayer(Program& p)
{
    ExitPlayer(p, videoPanel);
}

void CancelDeletion(Program& p)
{
    if (p.Scratch.ScanState == GalleryScan::Deleting)
        p.Scratch.ScanState = GalleryScan::Browsing;
}

} // namespace lineforge
