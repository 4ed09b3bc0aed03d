#include "gallery/GalleryPage.h"

#include "forms/Form3.h"
#include "forms/Form5.h"
#include "gallery/GalleryFile.h"
#include "gallery/GalleryItem.h"
#include "gallery/GalleryTile.h"
#include "gallery/PageRecord.h"
#include "program/branch/BranchPaths.h"

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

void PlacePlayers(Program& p, forms::Form5& form)
{
    for (PictureBox* panel : {&form.Picture1, &form.Picture2}) {
        panel->Left = (p.Screen.Width - panel->Width) / 2;
        panel->Top = forms::Form5::FirstTile.Top;
    }
}

void ClearPage(Program& p)
{
    for (int index = 0; index <= forms::Form5::LastTile; ++index) {
        Image& tile = p.Form5->Image1[index];
        tile.Visible = false;
        tile.Tag = QString();
        tile.Picture = QImage();
    }
}

void TellWrongEnding(Program& p, const QString& name)
{
    p.Prompts.MsgBox(u"File access error."_s,
                     u"Incorrect File Subscript Found in Gallery \nDirectory : "_s + name.right(3),
                     Buttons::Information);
}

// False when the file has an ending that no gallery has. Error 9 for a place that no page has, whatever the ending, and
// before the page counts it.
bool PutOnPage(Program& p, const QString& name, PageFiles& files)
{
    const int subscript = SubscriptOf(name);
    PageFile& place = files[subscript];
    p.Gallery.GalleryTop = std::max<int>(p.Gallery.GalleryTop, subscript);
    const std::optional<GalleryKind> kind = KindOf(name);
    if (!kind)
        return false;
    const QString icons = p.Scratch.sNewDir + PathSeparator;
    place = {name, TilePicturePath(p.Gallery.PageDirectory + name, *kind, icons)};
    return true;
}

// The files of the record; of two with one subscript the later name holds the tile. Nothing, after a box, when one
// doesn't belong there.
std::optional<PageFiles> ListPage(Program& p)
{
    PageFiles files;
    for (const QString& name : GalleryFiles(p, GalleryKey(p))) {
        if (!Concerning(p.Gallery.PageDirectory + name, [&] { return PutOnPage(p, name, files); })) {
            TellWrongEnding(p, name);
            return std::nullopt;
        }
    }
    return files;
}

void ShowFile(Program& p, int index, const PageFile& file)
{
    Image& tile = p.Form5->Image1[index];
    tile.Tag = file.Name;
    tile.Picture = LoadTilePicture(p, file.ImagePath);
    tile.Visible = true;
}

void ExpectPictures(Program& p, const PageFiles& files)
{
    QStringList paths;
    for (int subscript = 1; subscript <= LastSubscript; ++subscript)
        if (!files[subscript].ImagePath.isEmpty())
            paths.append(files[subscript].ImagePath);
    ExpectTilePictures(p, paths);
}

// A user who has gone on to another record's page meanwhile must not find this one's files on its tiles; and a file
// that he has added meanwhile has its tile already.
void ShowTiles(Program& p, const PageFiles& files, int page)
{
    for (int index = 0; p.Gallery.Page == page && index <= p.Gallery.GalleryTop; ++index) {
        const int subscript = index + 1;
        const bool hasFile = subscript <= LastSubscript && !files[subscript].ImagePath.isEmpty();
        if (IsBuilt(p.Form5->Image1[index]))
            continue;
        if (hasFile)
            ShowFile(p, index, files[subscript]);
        else
            ShowEmptyTile(p, index);
        p.Loop.DoEvents();
    }
}
} // namespace

void LoadImageGrid(Program& p)
{
    forms::Form5& form = *p.Form5;
    form.Width = p.Screen.Width;
    form.Height = p.Screen.Height - 500;
    form.Centre(p.Screen.Area(), 250);
    form.Image1[0].Picture = QImage();
    // The last one is never placed, and stands where the first does.
    for (int index = 1; index <= forms::Form5::LastTile; ++index) {
        form.Image1.Load(index);
        if (index < forms::Form5::LastTile)
            PlaceTile(form, index);
    }
    PlacePlayers(p, form);
}

void ForgetPage(Program& p)
{
    ++p.Gallery.Page;
    p.Gallery.PageRecord.clear();
    p.Gallery.PageDirectory.clear();
    p.Gallery.PageForename.clear();
    p.Gallery.PageSurname.clear();
    p.Gallery.EnlargedTile.reset();
}

void BuildGalleryPage(Program& p)
{
    const int page = ++p.Gallery.Page;
    p.Gallery.FirstShow = 0;
    p.Gallery.PageRecord = p.Form3->Label25.Caption;
    p.Gallery.PageDirectory = GalleryDirectory(p.Branch.WorkDir);
    TakePageNames(p);
    p.Form5->Caption = p.Branch.sBranchName + u" Tree Branch. Gallery " + p.Gallery.PageRecord + u" of " +
                       p.Gallery.PageForename + u' ' + p.Gallery.PageSurname;
    CancelDeletion(p);
    // Not what is known of it.
    // KEPT(GalleryItemTest.NewPageBehindAnOpenPicture_HasAllTilesInTheirPlaces_AndTheNextClickCloses): the next click
    // on a tile closes it once more, and opens nothing.
    // Mended, that click would open what is on its tile.
    PutItemAway(p);
    ClearPage(p);
    p.Form5->Show();
    p.Loop.DoEvents();
    if (p.Gallery.Page != page)
        return;
    p.Gallery.GalleryTop = 0;
    p.Files.ChDir(p.Branch.WorkDir);
    p.Scratch.sNewDir = ApplicationDirectory(p.Branch.WorkDir);
    const std::optional<PageFiles> files = ListPage(p);
    if (!files)
        return;
    ExpectPictures(p, *files);
    ShowTiles(p, *files, page);
}

} // namespace lineforge
