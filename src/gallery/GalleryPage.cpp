#include "gallery/GalleryPage.h"

#include "forms/Form3.h"
#include "forms/Form5.h"
#include "gallery/GalleryFile.h"
#include "gallery/GalleryItem.h"
#include "gallery/GalleryTile.h"
#include "gallery/PageRecord.h"
#include "program/branch/BranchPaths.h"
#include "program/ui/BranchUi.h"

#include <algorithm>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int tilesInRow = 14;
constexpr int gap = 100;

// What stands on the tiles of a page, by subscript.
struct PageFile {
    QString Name;
    QString ImagePath;
};
using PageFiles = FixedArray<PageFile, 1, LastSubscript>;

void PlaceTile(forms::Form5& form, int index)
{
    Image& tile = form.Image1[index];
    const bool beginsRow = index % tilesInRow == 0;
    const Image& beside = form.Image1[beginsRow ? 0 : index % tilesInRow - 1];
    tile.Left = beginsRow ? beside.Left.value() : beside.Left + beside.Width + gap;
    if (index < tilesInRow) {
        tile.Top = form.Image1[0].Top.value();
        return;
    }
    const Image& above = form.Image1[(index / tilesInRow - 1) * tilesInRow];
    tile.Top = above.Top + above.Height + gap;
}

void PlacePlayers(const Screen& screen, forms::Form5& form)
{
    for (PictureBox* panel : {&form.Picture1, &form.Picture2}) {
        panel->Left = (screen.Width - panel->Width) / 2;
        panel->Top = forms::Form5::FirstTile.Top;
    }
}

void ClearPage(forms::Form5& form)
{
    for (int index = 0; index <= forms::Form5::LastTile; ++index) {
        Image& tile = form.Image1[index];
        tile.Visible = false;
        tile.Tag = QString();
        tile.Picture = QImage();
    }
}

void TellWrongEnding(Prompts& prompts, const QString& name)
{
    prompts.MsgBox(u"File access error."_s,
                   u"Incorrect File Subscript Found in Gallery \nDirectory : "_s + name.right(3), Buttons::Information);
}

// False when the file has an ending that no gallery has. Error 9 for a place that no page has, whatever the ending, and
// before the page counts it.
bool PutOnPage(const GalleryWork& work, const QString& name, PageFiles& files)
{
    const int subscript = SubscriptOf(name);
    PageFile& place = files[subscript];
    work.State.GalleryTop = std::max<int>(work.State.GalleryTop, subscript);
    const std::optional<GalleryKind> kind = KindOf(name);
    if (!kind)
        return false;
    const QString icons = work.Scratch.sNewDir + PathSeparator;
    place = {name, TilePicturePath(work.State.PageDirectory + name, *kind, icons)};
    return true;
}

// The files of the record; of two with one subscript the later name holds the tile. Nothing, after a box, when one
// doesn't belong there.
std::optional<PageFiles> ListPage(const GalleryWork& work)
{
    PageFiles files;
    for (const QString& name : GalleryFiles(work.Files, work.State, GalleryKey(work.State))) {
        if (!Concerning(work.State.PageDirectory + name, [&] { return PutOnPage(work, name, files); })) {
            TellWrongEnding(work.Prompts, name);
            return std::nullopt;
        }
    }
    return files;
}

void ShowFile(const GalleryWork& work, int index, const PageFile& file)
{
    Image& tile = work.Form5->Image1[index];
    tile.Tag = file.Name;
    tile.Picture = LoadTilePicture(work, file.ImagePath);
    tile.Visible = true;
}

void ExpectPictures(const GalleryWork& work, const PageFiles& files)
{
    QStringList paths;
    for (int subscript = 1; subscript <= LastSubscript; ++subscript)
        if (!files[subscript].ImagePath.isEmpty())
            paths.append(files[subscript].ImagePath);
    ExpectTilePictures(work, paths);
}

// A user who has gone on to another record's page meanwhile must not find this one's files on its tiles; and a file
// that he has added meanwhile has its tile already.
void ShowTiles(const GalleryWork& work, const PageFiles& files, int page)
{
    for (int index = 0; work.State.Page == page && index <= work.State.GalleryTop; ++index) {
        const int subscript = index + 1;
        const bool hasFile = subscript <= LastSubscript && !files[subscript].ImagePath.isEmpty();
        if (IsBuilt(work.Form5->Image1[index]))
            continue;
        if (hasFile)
            ShowFile(work, index, files[subscript]);
        else
            ShowEmptyTile(*work.Form5, index);
        work.Loop.DoEvents();
    }
}
} // namespace

void LoadImageGrid(forms::Form5& form, const Screen& screen)
{
    FillScreen(form, screen, 500);
    form.Image1[0].Picture = QImage();
    // The last one is never placed, and stands where the first does.
    for (int index = 1; index <= forms::Form5::LastTile; ++index) {
        form.Image1.Load(index);
        if (index < forms::Form5::LastTile)
            PlaceTile(form, index);
    }
    PlacePlayers(screen, form);
}

void ForgetPage(GalleryState& gallery)
{
    ++gallery.Page;
    gallery.PageRecord.clear();
    gallery.PageDirectory.clear();
    gallery.PageForename.clear();
    gallery.PageSurname.clear();
    gallery.EnlargedTile.reset();
}

void BuildGalleryPage(const GalleryWork& work)
{
    const int page = ++work.State.Page;
    work.State.FirstShow = 0;
    work.State.PageRecord = work.Form3->Label25.Caption;
    work.State.PageDirectory = GalleryDirectory(work.Branch.WorkDir);
    TakePageNames(work.State, work.Branch, work.Form3);
    work.Form5->Caption = work.Branch.sBranchName + u" Tree Branch. Gallery " + work.State.PageRecord + u" of " +
                          work.State.PageForename + u' ' + work.State.PageSurname;
    CancelDeletion(work.Scratch);
    // Not what is known of it.
    // KEPT(GalleryItemTest.NewPageBehindAnOpenPicture_HasAllTilesInTheirPlaces_AndTheNextClickCloses): the next click
    // on a tile closes it once more, and opens nothing.
    // Mended, that click would open what is on its tile.
    PutItemAway(work.State, *work.Form5);
    ClearPage(*work.Form5);
    work.Form5->Show();
    work.Loop.DoEvents();
    if (work.State.Page != page)
        return;
    work.State.GalleryTop = 0;
    work.Files.ChDir(work.Branch.WorkDir);
    work.Scratch.sNewDir = ApplicationDirectory(work.Branch.WorkDir);
    const std::optional<PageFiles> files = ListPage(work);
    if (!files)
        return;
    ExpectPictures(work, *files);
    ShowTiles(work, *files, page);
}

} // namespace lineforge
