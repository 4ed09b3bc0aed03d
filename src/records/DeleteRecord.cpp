#include "records/DeleteRecord.h"

#include "gallery/GalleryFile.h"
#include "map/items/BoxCaptions.h"
#include "map/items/CurrentBox.h"
#include "map/items/MapFile.h"
#include "platform/base/Like.h"
#include "platform/store/Fields.h"
#include "program/branch/BranchPaths.h"
#include "program/branch/ComeBackAfterwards.h"
#include "program/branch/SiblingBranch.h"
#include "program/ui/BranchUi.h"
#include "records/RecordPicture.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
bool ConfirmUnlinking(Prompts& prompts)
{
    return prompts.MsgBox(u"Deletion of Subject Records"_s,
                          u"This Record is from another Tree Branch. You must \n"
                          u"open that Tree Branch to delete the full record. This\n"
                          u"delete will remove access to it from this Tree Branch.\n\n"
                          u"             Is this what you want ? "_s,
                          Buttons::QuestionYesNo) == Answer::Yes;
}

bool ConfirmDeletion(Prompts& prompts)
{
    return prompts.MsgBox(u"Delete Record"_s, u"Do you really want to delete this record?"_s, Buttons::QuestionYesNo) ==
               Answer::Yes &&
           prompts.MsgBox(u"Deletion of Subject Records"_s,
                          u"All information in this record will be deleted\n"
                          u"including any Subject and Gallery graphic files.\n"
                          u"Are you sure this is what you want ? "_s,
                          Buttons::ErrorYesNo) == Answer::Yes;
}

// The gallery is listed by its path, but a file killed by its bare name.
// KEPT(DeletedGalleryTest.CurrentDirectoryIsTheBranch_EveryFileStays): it goes only where the gallery is the current
// directory.
// Mended, pictures would be lost that outlive their record now.
void KillFiles(FileSystem& files, ErrorState& errors, const QString& workDir, const QString& file)
{
    errors.Ignoring([&] { files.Kill(SubjectPictureFile(workDir, file)); });
    const LikePattern ofRecord(QString(file + u"_##.jpg"));
    QStringList names;
    errors.Ignoring([&] { names = files.Files(GalleryDirectory(workDir) + u'*'); });
    for (const QString& name : names)
        if (ofRecord.Matches(name))
            errors.Ignoring([&] { files.Kill(name); });
}

void Unlink(const MapWork& work)
{
    const QString file = Records(work.Form3).Text(Field::File);
    work.Record.sAltName = Records(work.Form3).Text(Field::Forename);
    OpenOwnBranch(work);
    EraseSiblingsBox(work, file);
    SaveBoxes(work.Map, work.Branch, work.Files);
    EndAlternate(work.Branch, work.Form3);
    Records(work.Form3).MoveFirst();
}

// Takes the record out of the table, and then out of its box. False when the table refuses.
bool TakeOut(const BoxWork& work)
{
    std::optional<int> row;
    work.Errors.Ignoring([&] { row = RowToErase(work); });
    try {
        Records(work.Form3).Delete();
    } catch (const RuntimeError& error) {
        work.Errors.Last = error;
        return false;
    }
    if (row)
        work.Errors.Ignoring([&] { EmptyBox(work.Map, *work.Form1, *row); });
    return true;
}

// The files go last, so that a record which can't be deleted keeps its own. What is typed goes with the record, or
// stays pending with it.
void DeleteWithFiles(const MapWork& work)
{
    const QString file = Records(work.Form3).Text(Field::File);
    if (!TakeOut(work))
        return;
    if (!file.isEmpty())
        KillFiles(work.Files, work.Errors, work.Branch.WorkDir, file);
    work.Errors.Ignoring([&] { Records(work.Form3).MoveFirst(); });
    work.Errors.Ignoring([&] { Records(work.Form3).Update(); });
    work.Errors.Ignoring([&] { SaveBoxes(work.Map, work.Branch, work.Files); });
}
} // namespace

void DeleteRecord(const MapWork& work, const SubjectPictures& pictures, Screen& screen)
{
    if (work.Tools.MapCursorMode == MapCursor::Mapping)
        ClearMapCursor(work.Tools, screen);
    if (!Records(work.Form3).HasRow())
        return;
    const Bookmark asked = Records(work.Form3).GetBookmark();
    if (work.Branch.IsSiblingShown()) {
        if (!ConfirmUnlinking(work.Prompts))
            return;
        StandOn(Records(work.Form3), asked);
        Unlink(work);
    } else {
        if (!ConfirmDeletion(work.Prompts))
            return;
        StandOn(Records(work.Form3), asked);
        DeleteWithFiles(work);
    }
    work.Errors.Ignoring([&] { ShowRecordPicture(pictures); });
}

} // namespace lineforge
