#include "output/BookmarkList.h"

#include "output/OpenTextFile.h"
#include "output/OutputMode.h"
#include "output/PrintErrors.h"
#include "output/RecordReport.h"
#include "platform/store/DataRef.h"
#include "platform/store/Fields.h"
#include "program/branch/BranchPaths.h"
#include "program/branch/ComeBackAfterwards.h"
#include "program/branch/SiblingBranch.h"
#include "program/branch/WorkDatabase.h"
#include "program/ui/BranchUi.h"
#include "program/ui/Meanwhile.h"

#include <QScopeGuard>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// Two records go to one print job.
class Pairs
{
public:
    explicit Pairs(Printer& printer) : printer_(printer) {}

    void Add()
    {
        if (isHalfFull_)
            printer_.EndDoc();
        isHalfFull_ = !isHalfFull_;
    }
    void Finish()
    {
        if (isHalfFull_)
            printer_.EndDoc();
    }

private:
    Printer& printer_;
    bool isHalfFull_ = false;
};

void PutOutRecord(const RecordOutput& output, Pairs& pairs)
{
    if (output.State.OutputMode == OutputMode::ListToFile) {
        WriteRecordToFile(Records(output.Form3), output.State, output.Scratch);
        return;
    }
    output.State.OutputMode = OutputMode::SingleToPrinter;
    PrintRecord(Records(output.Form3), output.State, output.Printer, output.Scratch);
    pairs.Add();
}

// A record of a branch that isn't there, or can't be opened, is passed over as one that is gone. False when what stands
// for the branch's records is no database. Who doesn't wait for a branch in use gives the output up, and keeps the
// list.
bool PutOutRecordOfSibling(const RecordOutput& output, const QString& entry, Pairs& pairs)
{
    try {
        SwitchToSibling(output, DataRef(entry).Letter());
    } catch (const RuntimeError& refusal) {
        if (refusal.IsTold)
            throw;
        output.Errors.Last = refusal;
        return refusal.Number != ErrorNumber::NotADatabase;
    }
    auto goBack = qScopeGuard([&output] { output.Errors.Ignoring([&output] { ReturnFromSibling(output); }); });
    bool isThere = false;
    output.Errors.Ignoring([&] { isThere = Records(output.Form3).Seek(Field::File, entry); });
    if (isThere)
        PutOutRecord(output, pairs);
    goBack.dismiss();
    ReturnFromSibling(output);
    return true;
}

void PutOutEntries(const RecordOutput& output, Pairs& pairs)
{
    Meanwhile meanwhile(output.Loop);
    // Letters that aren't gone to again: a damaged database of an older installation is asked about once.
    QString passedOver = BranchLetter(output.Branch.WorkDir);
    for (int entry = 0; entry <= BookmarkState::Last && !output.Bookmarks.BookmarkList[entry].isEmpty(); ++entry) {
        const QString file = output.Bookmarks.BookmarkList[entry];
        if (Records(output.Form3).Seek(Field::File, file))
            PutOutRecord(output, pairs);
        else if (const QString letter = DataRef(file).Letter();
                 !passedOver.contains(letter, Qt::CaseInsensitive) && !PutOutRecordOfSibling(output, file, pairs))
            passedOver += letter;
        meanwhile.KeepPainted();
    }
}
} // namespace

void AddBookmark(BookmarkState& bookmarks, const BranchState& branch, Window<forms::Form3>& recordForm,
                 Prompts& prompts)
{
    if (TellIfNoBranch(branch, recordForm, prompts) || !Records(recordForm).HasRow())
        return;
    bookmarks.BookmarkList[bookmarks.BookmarkCount] = Records(recordForm).Text(Field::File);
    bookmarks.BookmarkCount += 1;
}

void ClearBookmarks(BookmarkState& bookmarks)
{
    bookmarks.BookmarkList.Erase();
    bookmarks.BookmarkCount = 0;
}

void PutOutBookmarks(const RecordOutput& output)
{
    if (output.Branch.IsSiblingShown())
        ReturnFromSibling(output);
    Pairs pairs(output.Printer);
    PutOutEntries(output, pairs);
    ClearBookmarks(output.Bookmarks);
    if (output.State.OutputMode == OutputMode::ListToFile)
        CloseTextFile(output.State);
    else
        pairs.Finish();
    output.State.OutputMode = OutputMode::None;
    Records(output.Form3).MoveFirst();
}

void PrintBookmarks(const RecordOutput& output)
{
    if (TellIfNoBranch(output.Branch, output.Form3, output.Prompts))
        return;
    ComeBackAfterwards(output.Branch, output.Record, output.Form3,
                       [&] { ReportingErrors(output.Errors, output.Prompts, [&] { PutOutBookmarks(output); }); });
    // After a refusal; the list is still there then.
    output.Printer.Abort();
    output.State.OutputMode = OutputMode::None;
}

} // namespace lineforge
