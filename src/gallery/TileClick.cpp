#include "gallery/TileClick.h"

#include "forms/Form1.h"
#include "forms/Form5.h"
#include "gallery/DeleteFile.h"
#include "gallery/GalleryFile.h"
#include "gallery/GalleryItem.h"
#include "gallery/Rearrange.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
void ClickTile(const GalleryWork& work, Window<forms::Form1>& mainWindow, int index)
{
    work.State.GallerySel = index;
    mainWindow->MMControl1.Command(u"Sound");
    work.Loop.DoEvents();
    if (work.Scratch.ScanState == GalleryScan::Deleting) {
        // KEPT(DeleteFileTest.HighestFile_TakesTheTrailingTileAway_AndItsOwnTileOpensEmpty): the click on the highest
        // file goes on into the opening, although the file has gone.
        // Mended, the page would stay, without the empty picture that one more click closes.
        const bool goesOn = index == work.State.GalleryTop - 1 && !IsEmptyTag(work.Form5->Image1[index].Tag);
        DeleteFileOfTile(work, index);
        if (!goesOn)
            return;
    }
    if (work.Scratch.ScanState == GalleryScan::ItemOpen) {
        CloseGalleryItem(work);
        return;
    }
    try {
        OpenGalleryItem(work);
    } catch (const RuntimeError&) {
        work.Prompts.MsgBox(u"File not Accessable."_s, u"Problem with File Path"_s, Buttons::Information);
    }
}
} // namespace

void DropOnTile(const GalleryWork& work, Window<forms::Form1>& mainWindow, int index, Image& source)
{
    Image& target = work.Form5->Image1[index];
    if (&source == &target)
        ClickTile(work, mainWindow, index);
    else
        RearrangeTiles(work, source, target);
}

} // namespace lineforge
