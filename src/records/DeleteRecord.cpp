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
#include "program/state/Program.h"
#include "program/ui/BranchUi.h"
#include "records/RecordPicture.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
bool ConfirmUnlinking(Program& p)
{
    return p.Prompts.MsgBox(u"Deletion of Subject Records"_s,
                            u"This Record is from another Tree Branch. You must \n"
                            u"open that Tree Branch to delete the full record. This\n"
                            u"delete will remove access to it from this Tree Branch.\n\n"
                            u"             Is this what you want ? "_s,
                            Buttons::QuestionYesNo) == Answer::Yes;
}

bool ConfirmDeletion(Program& p)
{
    return p.Prompts.MsgBox(u"Delete Record"_s, u"Do you really want to delete this record?"_s,
                            Buttons::QuestionYesNo) == Answer::Yes &&
           p.Prompts.MsgBox(u"Deletion of Subject Records"_s,
                            u"All information in this record will be deleted\n"
                            u"including any Subject and Gallery graphic files.\n"
                            u"Are you sure this is what you want ? "_s,
                            Buttons::ErrorYesNo) == Answer::Yes;
}

// The gallery is listed by its path, but a file killed by its bare name.
// KEPT(DeletedGalleryTest.CurrentDirectoryIsTheBranch_EveryFileStays): it goes only where the gallery is the current
// directory.
// Mended, pictures would be lost that outlive their record now.
void KillFiles(Program& p, const QString& file)
{
    p.Errors.Ignoring([&] { p.Files.Kill(SubjectPictureFile(p.Branch.WorkDir, file)); });
    const LikePattern ofRecord(QString(file + u"_##.jpg"));
    QStringList names;
    p.Errors.Ignoring([&] { names = p.Files.Files(GalleryDirectory(p.Branch.WorkDir) + u'*'); });
    for (const QString& name : names)
        if (ofRecord.Matches(name))
            p.Errors.Ignoring([&] { p.Files.Kill(name); });
}

void Unlink(Program& p)
{
    const QString file = Records(p.Form3).Text(Field::File);
    p.Record.sAltName = Records(p.Form3).Text(Field::Forename);
    OpenOwnBranch(p);
    EraseSiblingsBox(p, file);
    SaveBoxes(p);
    EndAlternate(p.Branch, p.Form3);
    Records(p.Form3).MoveFirst();
}

// Takes the record out of the table, and then out of its box. False when the table refuses.
bool TakeOut(Program& p)
{
    std::optional<int> row;
    p.Errors.Ignoring([&] { row = RowToErase(p); });
    try {
        Records(p.Form3).Delete();
    } catch (const RuntimeError& error) {
        p.Errors.Last = error;
        return false;
    }
    if (row)
        p.Errors.Ignoring([&] { EmptyBox(p, *row); });
    return true;
}

// The files go last, so that a record which can't be deleted keeps its own. What is typed goes with the record, or
// stays pending with it.
void DeleteWithFiles(Program& p)
{
    const QString file = Records(p.Form3).Text(Field::File);
    if (!TakeOut(p))
        return;
    if (!file.isEmpty())
        KillFiles(p, file);
    p.Errors.Ignoring([&] { Records(p.Form3).MoveFirst(); });
    p.Errors.Ignoring([&] { Records(p.Form3).Update(); });
    p.Errors.Ignoring([&] { SaveBoxes(p); });
}
} // namespace

void DeleteRecord(Program& p)
{
    if (p.Tools.MapCursorMode == MapCursor::Mapping)
        ClearMapCursor(p.Tools, p.Screen);
    if (!Records(p.Form3).HasRow())
        return;
    const Bookmark asked = Records(p.Form3).GetBookmark();
    if (p.Branch.IsSiblingShown()) {
        if (!ConfirmUnlinking(p))
            return;
        StandOn(Records(p.Form3), asked);
        Unlink(p);
    } else {
        if (!ConfirmDeletion(p))
            return;
        StandOn(Records(p.Form3), asked);
        DeleteWithFiles(p);
    }
    p.Errors.Ignoring([&] { ShowRecordPicture(p); });
}

} // namespace lineforge
