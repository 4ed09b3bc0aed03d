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
void ClickTile(Program& p, int index)
{
    p.Gallery.GallerySel = index;
    p.Form1->MMControl1.Command(u"Sound");
    p.Loop.DoEvents();
    if (p.Scratch.ScanState == GalleryScan::Deleting) {
        // KEPT(DeleteFileTest.HighestFile_TakesTheTrailingTileAway_AndItsOwnTileOpensEmpty): the click on the highest
        // file goes on into the opening, although the file has gone.
        // Mended, the page would stay, without the empty picture that one more click closes.
        const bool goesOn = index == p.Gallery.GalleryTop - 1 && !IsEmptyTag(p.Form5->Image1[index].Tag);
        DeleteFileOfTile(p, index);
        if (!goesOn)
            return;
    }
    if (p.Scratch.ScanState == GalleryScan::ItemOpen) {
        CloseGalleryItem(p);
        return;
    }
    try {
        OpenGalleryItem(p);
    } catch (const RuntimeError&) {
        p.Prompts.MsgBox(u"File not Accessable."_s, u"Problem with File Path"_s, Buttons::Information);
    }
}
} // namespace

void DropOnTile(Program& p, int index, Image& source)
{
    Image& target = p.Form5->Image1[index];
    if (&source == &target)
        ClickTile(p, index);
    else
        RearrangeTiles(p, source, target);
}

} // namespace lineforge
