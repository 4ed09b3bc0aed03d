#include "records/AddRecord.h"

#include "forms/Form3.h"
#include "map/subjects/RecordFormPicture.h"
#include "platform/store/Fields.h"
#include "program/branch/BranchPaths.h"
#include "program/branch/ComeBackAfterwards.h"
#include "program/branch/SiblingBranch.h"
#include "program/ui/BranchUi.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr qsizetype digits = 3;

// The last row decides, not the highest number; above 999 the number simply grows.
QString NumberAfter(const QString& last)
{
    const int number = Concerning(u"Record "_s + last, [&] { return ToInteger(last.right(digits)) + 1; });
    return last.left(1) + QString::number(number).rightJustified(digits, u'0');
}

// There is no last row to number on from.
bool IsTableEmpty(Program& p)
{
    if (!Records(p.Form3).IsEmpty())
        return false;
    TellNoRecords(p.Prompts);
    return true;
}

QString AppendRow(Program& p)
{
    Recordset& records = Records(p.Form3);
    records.MoveLast();
    p.Record.SavedBookmark = records.GetBookmark();
    QString file;
    records.AddNew();
    // The last of all that stand in the file when nobody else can add one.
    records.PutWhenWritten(Field::File, [&] {
        const auto all = records.Afresh();
        all->MoveLast();
        return file = NumberAfter(all->Text(Field::File));
    });
    records.Update();
    records.SetBookmark(records.LastModified());
    return file;
}
} // namespace

void AddRecord(Program& p)
{
    if (TellIfAlternate(p.Branch, p.Prompts, u"Addition of Subject Records"_s,
                        u"This Record is from another Tree Branch. You must open\n"
                        u" that Tree Branch first to Add a new unmapped record. "_s))
        return;
    const Answer add = p.Prompts.MsgBox(u"New Database Record"_s,
                                        u"Adding a new Record here will not \nbe mapped into the Tree system."_s,
                                        Buttons::InformationOkCancel);
    if (add != Answer::Ok || IsTableEmpty(p))
        return;
    const QString file = AppendRow(p);
    const QString picture = SubjectPictureFile(p.Branch.WorkDir, file);
    p.Files.FileCopy(p.Branch.HomeDir + u"Tree99.jpg", picture);
    PutRecordPicture(p, p.Pictures.Load(p.Files, picture));
    p.Prompts.MsgBox(u"New Blank Record Created"_s, u"New Record "_s + file + u" created.", Buttons::Information);
}

void ChangeSubjectPicture(Program& p)
{
    if (TellIfAlternate(p.Branch, p.Prompts, u"Change to Subject Picture."_s,
                        u"This Record is from another Tree Branch. You must \n"
                        u"open that Tree Branch to change the Subject Picture. "_s))
        return;
    const Bookmark asked = Records(p.Form3).HasRow() ? Records(p.Form3).GetBookmark() : Bookmark();
    const Answer change = p.Prompts.MsgBox(u"Subject Picture Change."_s, u"Change or add the Subject Picture ?"_s,
                                           Buttons::QuestionOkCancel);
    if (change != Answer::Ok || !asked)
        return;
    const std::optional<QString> chosen =
        p.Prompts.OpenFile({u"Select Picture Source File"_s, u"Graphics|*.jpg|All Files|*.*|"_s});
    if (!chosen)
        return;
    p.Errors.Ignoring([&] {
        StandOn(Records(p.Form3), asked);
        const QString picture = SubjectPictureFile(p.Branch.WorkDir, p.Form3->Label25.Caption);
        p.Files.FileCopy(*chosen, picture);
        PutRecordPicture(p, p.Pictures.Load(p.Files, picture));
    });
}

} // namespace lineforge
