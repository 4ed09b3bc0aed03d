#include "gallery/AddFile.h"

#include "forms/Form5.h"
#include "gallery/GalleryItem.h"
#include "gallery/GalleryTile.h"
#include "platform/base/Text.h"
#include "program/ui/BranchUi.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// What the four additions differ in.
struct Addition {
    GalleryKind Kind;
    QStringView Title;
    QStringView Question;
    QStringView DialogTitle;
    QStringView Filter;
    QStringView Ending; // empty: that of the source
    QStringView TableFull;
};
constexpr QStringView pictureTableFull =
    u"Last Gallery Picture used. You need to delete to have space for a new picture.";
constexpr Addition additions[] = {
    {GalleryKind::Picture, u"Gallery Picture Addition.", u"Add new *.bmp or *.jpg Gallery Picture ?",
     u"Select Picture Source File", u"Graphics(*.jpg)|*.jpg|Graphics(*.bmp)|*.bmp|All Files(*.*)|*.*|", u"",
     pictureTableFull},
    {GalleryKind::Sound, u"Gallery Sound Clip Addition.", u"Add new *.Wav Sound clip ?",
     u"Select Sound Clip Source File", u"Audio(*.Wav)|*.Wav|All Files(*.*)|*.*|", u".wav",
     u"Last Gallery Container used. You need to delete to have space for a new File."},
    {GalleryKind::Video, u"Gallery Video Clip Addition.", u"Add new *.avi Gallery Video Clip ?",
     u"Select Video Clip Source File", u"Video(*.avi)|*.avi|All Files(*.*)|*.*|", u".avi", pictureTableFull},
    {GalleryKind::Text, u"Gallery Text File Addition.", u"Add new *.txt Gallery Text File ?",
     u"Select Text Source File", u"Text(*.txt)|*.txt|All Files(*.*)|*.*|", u".txt", pictureTableFull},
};

const Addition& AdditionOf(GalleryKind kind)
{
    return additions[static_cast<int>(kind)];
}

void Refuse(Prompts& prompts, const Addition& addition)
{
    prompts.MsgBox(u"Directory Table Full."_s, addition.TableFull.toString(), Buttons::Information);
}

// The lowest subscript that no file has; 99 when all are taken. Nothing, after a box, when the last place is in use.
// KEPT(AddFileTest.AllSubscriptsTaken_EndsWithoutAWord): that is asked of the one name that ends in an asterisk, so
// that no other file in the last place brings the box.
// Mended, a record with a file there would take no more, not even into its gaps.
std::optional<int> FreeSubscript(const GalleryWork& work, const Addition& addition, const QString& key)
{
    // A file numbered 0 takes no place that an addition would.
    FixedArray<bool, 0, LastSubscript> taken;
    for (const QString& name : GalleryFiles(work.Files, work.State, key)) {
        if (SameText(name, QString(key + u"98.*"))) {
            Refuse(work.Prompts, addition);
            return std::nullopt;
        }
        Concerning(GalleryDirectory(work.Branch.WorkDir) + name, [&] { taken[SubscriptOf(name)] = true; });
    }
    int subscript = 1;
    while (subscript <= LastSubscript && taken[subscript])
        ++subscript;
    return subscript;
}

// KEPT(AddFileTest.NinetyEighthFile_LacksItsSubscript): the last of all goes without, and from then on no page of the
// record can be built.
// Mended, a gallery that is full could be shown, where it ends the program now.
QString SubscriptInName(int subscript)
{
    return subscript == LastSubscript ? QString() : SubscriptText(subscript);
}

// A copy that can't be shown would end the program with every page of the record from then on.
QImage PictureOfAddedFile(const GalleryWork& work, GalleryKind kind)
{
    try {
        return LoadTilePicture(work, TilePicturePath(work.Scratch.sFileB, kind, work.Branch.HomeDir));
    } catch (const RuntimeError&) {
        if (kind == GalleryKind::Picture)
            work.Files.Kill(work.Scratch.sFileB);
        throw;
    }
}

void ShowAddedFile(const GalleryWork& work, int subscript, GalleryKind kind)
{
    Image& tile = work.Form5->Image1[subscript - 1];
    tile.Picture = PictureOfAddedFile(work, kind);
    // It may stand there enlarged, empty since its last file was deleted; closed, it shows this one as well.
    if (work.State.EnlargedTile == subscript - 1)
        work.State.TilePicture = tile.Picture;
    tile.Tag = work.Scratch.sFileB;
    tile.Visible = true;
    work.Loop.DoEvents();
}

// A cancelled dialog leaves the current directory in the gallery. The name is the command's own: under the dialog the
// scanner goes on, and writes its records' numbers where such names are kept.
void CopyChosenFile(const GalleryWork& work, const QString& name, int subscript, const Addition& addition)
{
    const std::optional<QString> chosen =
        work.Prompts.OpenFile({addition.DialogTitle.toString(), addition.Filter.toString()});
    if (!chosen)
        return;
    work.Scratch.sFileA = *chosen;
    if (subscript == work.State.GalleryTop + 1) {
        work.State.GalleryTop += 1;
        ShowEmptyTile(*work.Form5, work.State.GalleryTop);
    }
    const QString ending = addition.Ending.isEmpty() ? chosen->right(4) : addition.Ending.toString();
    work.Scratch.sFileB = work.State.PageDirectory + name + ending;
    work.Files.FileCopy(work.Scratch.sFileA, work.Scratch.sFileB);
    work.Files.ChDir(work.Branch.WorkDir);
    ShowAddedFile(work, subscript, addition.Kind);
}
} // namespace

void AddGalleryFile(const GalleryWork& work, GalleryKind kind)
{
    const Addition& addition = AdditionOf(kind);
    if (kind == GalleryKind::Picture)
        CloseGalleryItem(work);
    if (work.Prompts.MsgBox(addition.Title.toString(), addition.Question.toString(), Buttons::QuestionOkCancel) !=
        Answer::Ok)
        return;
    // A file of nobody's would be found by no page.
    if (work.State.PageRecord.isEmpty())
        return TellNoRecords(work.Prompts);
    work.Files.ChDir(work.State.PageDirectory);
    const QString key = GalleryKey(work.State);
    const std::optional<int> subscript = FreeSubscript(work, addition, key);
    if (!subscript || *subscript > LastSubscript)
        return;
    work.Errors.Ignoring([&] { CopyChosenFile(work, key + SubscriptInName(*subscript), *subscript, addition); });
}

} // namespace lineforge
