#include "gallery/DeleteFile.h"

#include "forms/Form5.h"
#include "gallery/GalleryFile.h"
#include "gallery/GalleryItem.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// A file that was moved below subscript 10 has one digit, and is no file of the subscript by its name.
void KillFilesOfTile(Program& p, int index)
{
    const QString& directory = p.Gallery.PageDirectory;
    for (const QString& name : p.Files.Files(directory + GalleryKey(p) + SubscriptText(index + 1) + u".*"))
        p.Files.Kill(directory + name);
    const QString named = GalleryPath(p, p.Form5->Image1[index].Tag);
    if (!p.Files.Dir(named).isEmpty())
        p.Files.Kill(named);
}
} // namespace

void BeginDeletion(Program& p)
{
    CloseGalleryItem(p);
    if (p.Prompts.MsgBox(u"Deleting Gallery File."_s, u"Click on the File Icon you want to Delete."_s,
                         Buttons::InformationOkCancel) == Answer::Ok)
        p.Scratch.ScanState = GalleryScan::Deleting;
}

void DeleteFileOfTile(Program& p, int index)
{
    Image& tile = p.Form5->Image1[index];
    p.Scratch.ScanState = GalleryScan::Browsing;
    if (IsEmptyTag(tile.Tag))
        return;
    KillFilesOfTile(p, index);
    tile.Picture = QImage();
    Integer16& top = p.Gallery.GalleryTop;
    if (index != top - 1) {
        tile.Tag = QString::number(index + 1);
        p.Loop.DoEvents();
        return;
    }
    // The tiles below aren't looked at, however many of them are empty.
    Image& trailing = p.Form5->Image1[top];
    trailing.Visible = false;
    trailing.Tag = QString::number(top);
    top -= 1;
}

} // namespace lineforge
