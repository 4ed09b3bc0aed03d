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
void KillFilesOfTile(const GalleryWork& work, int index)
{
    const QString& directory = work.State.PageDirectory;
    for (const QString& name : work.Files.Files(directory + GalleryKey(work.State) + SubscriptText(index + 1) + u".*"))
        work.Files.Kill(directory + name);
    const QString named = GalleryPath(work.State, work.Form5->Image1[index].Tag);
    if (!work.Files.Dir(named).isEmpty())
        work.Files.Kill(named);
}
} // namespace

void BeginDeletion(const GalleryWork& work)
{
    CloseGalleryItem(work);
    if (work.Prompts.MsgBox(u"Deleting Gallery File."_s, u"Click on the File Icon you want to Delete."_s,
                            Buttons::InformationOkCancel) == Answer::Ok)
        work.Scratch.ScanState = GalleryScan::Deleting;
}

void DeleteFileOfTile(const GalleryWork& work, int index)
{
    Image& tile = work.Form5->Image1[index];
    work.Scratch.ScanState = GalleryScan::Browsing;
    if (IsEmptyTag(tile.Tag))
        return;
    KillFilesOfTile(work, index);
    tile.Picture = QImage();
    Integer16& top = work.State.GalleryTop;
    if (index != top - 1) {
        tile.Tag = QString::number(index + 1);
        work.Loop.DoEvents();
        return;
    }
    // The tiles below aren't looked at, however many of them are empty.
    Image& trailing = work.Form5->Image1[top];
    trailing.Visible = false;
    trailing.Tag = QString::number(top);
    top -= 1;
}

} // namespace lineforge
