#include "output/TextReport.h"

#include "output/BookmarkList.h"
#include "output/OutputMode.h"
#include "output/RecordReport.h"
#include "output/TextFile.h"
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
struct TextReport {
    QStringView Announcement;
    int Mode;
    void (*Write)(Program& p);
};

// KEPT(TextReportTest.List_IsWrittenInItsOrder_FromAllItsBranches_AndEmptied): the second lacks its "to".
// Mended, the box would read otherwise than it always has.
constexpr TextReport database{u"Database will be Copied to the Text File located at\n", OutputMode::DatabaseToFile,
                              WriteAllRecords};
constexpr TextReport bookmarks{u"The Bookmark list will be copied Text File located at\n", OutputMode::ListToFile,
                               PutOutBookmarks};

void WriteReport(Program& p, const TextReport& report, const QString& stem)
{
    if (TellIfNoBranch(p.Branch, p.Form3, p.Prompts))
        return;
    ComeBackAfterwards(p.Branch, p.Record, p.Form3, [&] {
        // Where the user gives up, the old file stays.
        const auto closed = qScopeGuard([&p] {
            p.Output.TextFile.reset();
            p.Output.OutputMode = OutputMode::None;
        });
        p.Scratch.sFileA = p.Branch.WorkDir + PathSeparator + stem + u".txt";
        p.Scratch.sFileB = p.Branch.WorkDir + PathSeparator + stem + u".~tx";
        p.Prompts.MsgBox(u"Make a Text File."_s, report.Announcement + p.Scratch.sFileA, Buttons::Information);
        p.Output.OutputMode = report.Mode;
        OpenTextFile(p, p.Scratch.sFileA, p.Scratch.sFileB);
        report.Write(p);
    });
}
} // namespace

void WriteDatabaseText(Program& p)
{
    WriteReport(p, database, DirectoryName(p.Branch.WorkDir));
}

// The two names differ in an imported branch only.
void WriteBookmarksText(Program& p)
{
    WriteReport(p, bookmarks, u"LfgDat_"_s + BranchLetter(p.Branch.WorkDir));
}

void WriteAllRecords(Program& p)
{
    if (p.Branch.IsSiblingShown())
        ReturnFromSibling(p);
    Meanwhile meanwhile(p.Loop);
    Recordset& records = Records(p.Form3);
    for (records.MoveFirst(); !records.Eof(); records.MoveNext()) {
        if (p.Output.OutputMode == OutputMode::DatabaseToFile)
            WriteRecordToFile(p);
        meanwhile.KeepPainted();
    }
    CloseTextFile(p);
    p.Output.OutputMode = OutputMode::None;
    records.MoveFirst();
}

} // namespace lineforge
