#include "output/TextReport.h"

#include "output/BookmarkList.h"
#include "output/OpenTextFile.h"
#include "output/OutputMode.h"
#include "output/RecordReport.h"
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
    void (*Write)(const RecordOutput& output);
};

// KEPT(TextReportTest.List_IsWrittenInItsOrder_FromAllItsBranches_AndEmptied): the second lacks its "to".
// Mended, the box would read otherwise than it always has.
constexpr TextReport database{u"Database will be Copied to the Text File located at\n", OutputMode::DatabaseToFile,
                              WriteAllRecords};
constexpr TextReport bookmarks{u"The Bookmark list will be copied Text File located at\n", OutputMode::ListToFile,
                               PutOutBookmarks};

void WriteReport(const RecordOutput& output, const TextReport& report, const QString& stem)
{
    if (TellIfNoBranch(output.Branch, output.Form3, output.Prompts))
        return;
    ComeBackAfterwards(output.Branch, output.Record, output.Form3, [&] {
        // Where the user gives up, the old file stays.
        const auto closed = qScopeGuard([&output] {
            output.State.TextFile.reset();
            output.State.OutputMode = OutputMode::None;
        });
        output.Scratch.sFileA = output.Branch.WorkDir + PathSeparator + stem + u".txt";
        output.Scratch.sFileB = output.Branch.WorkDir + PathSeparator + stem + u".~tx";
        output.Prompts.MsgBox(u"Make a Text File."_s, report.Announcement + output.Scratch.sFileA,
                              Buttons::Information);
        output.State.OutputMode = report.Mode;
        OpenTextFile(output.State, output.Files, output.Scratch.sFileA, output.Scratch.sFileB);
        report.Write(output);
    });
}
} // namespace

void WriteDatabaseText(const RecordOutput& output)
{
    WriteReport(output, database, DirectoryName(output.Branch.WorkDir));
}

// The two names differ in an imported branch only.
void WriteBookmarksText(const RecordOutput& output)
{
    WriteReport(output, bookmarks, u"LfgDat_"_s + BranchLetter(output.Branch.WorkDir));
}

void WriteAllRecords(const RecordOutput& output)
{
    if (output.Branch.IsSiblingShown())
        ReturnFromSibling(output);
    Meanwhile meanwhile(output.Loop);
    Recordset& records = Records(output.Form3);
    for (records.MoveFirst(); !records.Eof(); records.MoveNext()) {
        if (output.State.OutputMode == OutputMode::DatabaseToFile)
            WriteRecordToFile(Records(output.Form3), output.State, output.Scratch);
        meanwhile.KeepPainted();
    }
    CloseTextFile(output.State);
    output.State.OutputMode = OutputMode::None;
    records.MoveFirst();
}

} // namespace lineforge
