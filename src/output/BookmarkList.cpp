#include "output/BookmarkList.h"

#include "output/OutputMode.h"
#include "output/PrintErrors.h"
#include "output/RecordReport.h"
#include "output/TextFile.h"
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

void PutOutRecord(Program& p, Pairs& pairs)
{
    if (p.Output.OutputMode == OutputMode::ListToFile) {
        WriteRecordToFile(p);
        return;
    }
    p.Output.OutputMode = OutputMode::SingleToPrinter;
    PrintRecord(p);
    pairs.Add();
}

// A record of a branch that isn't there, or can't be opened, is passed over as one that is gone. False when what stands
// for the branch's records is no database.
bool PutOutRecordOfSibling(Program& p, const QString& entry, Pairs& pairs)
{
    try {
        SwitchToSibling(p, entry.left(1));
    } catch (const RuntimeError& refusal) {
        p.Errors.Last = refusal;
        return refusal.Number != ErrorNumber::NotADatabase;
    }
    const auto goBack = qScopeGuard([&p] { p.Errors.Ignoring([&p] { ReturnFromSibling(p); }); });
    bool isThere = false;
    p.Errors.Ignoring([&] { isThere = Records(p.Form3).Seek(Field::File, entry); });
    if (isThere)
        PutOutRecord(p, pairs);
    return true;
}

void PutOutEntries(Program& p, Pairs& pairs)
{
    Meanwhile meanwhile(p.Loop);
    // Letters that aren't gone to again: a damaged database of an older installation is asked about once.
    QString passedOver = BranchLetter(p.Branch.WorkDir);
    for (int entry = 0; entry <= BookmarkState::Last && !p.Bookmarks.BookmarkList[entry].isEmpty(); ++entry) {
        const QString file = p.Bookmarks.BookmarkList[entry];
        if (Records(p.Form3).Seek(Field::File, file))
            PutOutRecord(p, pairs);
        else if (!passedOver.contains(file.left(1), Qt::CaseInsensitive) && !PutOutRecordOfSibling(p, file, pairs))
            passedOver += file.left(1);
        meanwhile.KeepPainted();
    }
}
} // namespace

void AddBookmark(Program& p)
{
    if (TellIfNoBranch(p.Branch, p.Form3, p.Prompts) || !Records(p.Form3).HasRow())
        return;
    p.Bookmarks.BookmarkList[p.Bookmarks.BookmarkCount] = Records(p.Form3).Text(Field::File);
    p.Bookmarks.BookmarkCount += 1;
}

void ClearBookmarks(Program& p)
{
    p.Bookmarks.BookmarkList.Erase();
    p.Bookmarks.BookmarkCount = 0;
}

void PutOutBookmarks(Program& p)
{
    if (p.Branch.IsSiblingShown())
        ReturnFromSibling(p);
    Pairs pairs(p.Printer);
    PutOutEntries(p, pairs);
    ClearBookmarks(p);
    if (p.Output.OutputMode == OutputMode::ListToFile)
        CloseTextFile(p);
    else
        pairs.Finish();
    p.Output.OutputMode = OutputMode::None;
    Records(p.Form3).MoveFirst();
}

void PrintBookmarks(Program& p)
{
    if (TellIfNoBranch(p.Branch, p.Form3, p.Prompts))
        return;
    ComeBackAfterwards(p.Branch, p.Record, p.Form3, [&] { ReportingErrors(p, [&] { PutOutBookmarks(p); }); });
    // After a refusal; the list is still there then.
    p.Printer.Abort();
    p.Output.OutputMode = OutputMode::None;
}

} // namespace lineforge
