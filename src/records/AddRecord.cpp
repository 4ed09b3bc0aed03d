#include "records/AddRecord.h"

#include "forms/Form3.h"
#include "map/subjects/RecordFormPicture.h"
#include "platform/store/DataRef.h"
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
// The last row decides, not the highest number.
QString NumberAfter(const DataRef& last)
{
    const int number = Concerning(u"Record "_s + last.Text(), [&] { return ToInteger(last.Digits()) + 1; });
    return DataRef(last.Letter(), number).Text();
}

// There is no last row to number on from.
bool TellIfNoRecords(const Recordset& records, Prompts& prompts)
{
    if (!records.IsEmpty())
        return false;
    TellNoRecords(prompts);
    return true;
}

QString AppendRow(Recordset& records, RecordState& state)
{
    records.MoveLast();
    state.SavedBookmark = records.GetBookmark();
    QString file;
    records.AddNew();
    // The last of all that stand in the file when nobody else can add one.
    records.PutWhenWritten(Field::File, [&] {
        const auto all = records.Afresh();
        all->MoveLast();
        return file = NumberAfter(DataRef(all->Text(Field::File)));
    });
    records.Update();
    records.SetBookmark(records.LastModified());
    return file;
}
} // namespace

void AddRecord(const SubjectPictures& pictures)
{
    if (TellIfAlternate(pictures.Branch, pictures.Prompts, u"Addition of Subject Records"_s,
                        u"This Record is from another Tree Branch. You must open\n"
                        u" that Tree Branch first to Add a new unmapped record. "_s))
        return;
    const Answer add = pictures.Prompts.MsgBox(u"New Database Record"_s,
                                               u"Adding a new Record here will not \nbe mapped into the Tree system."_s,
                                               Buttons::InformationOkCancel);
    if (add != Answer::Ok || TellIfNoRecords(Records(pictures.Form3), pictures.Prompts))
        return;
    const QString file = AppendRow(Records(pictures.Form3), pictures.Record);
    const QString picture = SubjectPictureFile(pictures.Branch.WorkDir, file);
    pictures.Files.FileCopy(pictures.Branch.HomeDir + u"Tree99.jpg", picture);
    PutRecordPicture(pictures.Branch, pictures.Form3, pictures.Pictures.Load(pictures.Files, picture));
    pictures.Prompts.MsgBox(u"New Blank Record Created"_s, u"New Record "_s + file + u" created.",
                            Buttons::Information);
}

void ChangeSubjectPicture(const SubjectPictures& pictures)
{
    if (TellIfAlternate(pictures.Branch, pictures.Prompts, u"Change to Subject Picture."_s,
                        u"This Record is from another Tree Branch. You must \n"
                        u"open that Tree Branch to change the Subject Picture. "_s))
        return;
    const Bookmark asked = Records(pictures.Form3).HasRow() ? Records(pictures.Form3).GetBookmark() : Bookmark();
    const Answer change = pictures.Prompts.MsgBox(u"Subject Picture Change."_s,
                                                  u"Change or add the Subject Picture ?"_s, Buttons::QuestionOkCancel);
    if (change != Answer::Ok || !asked)
        return;
    const std::optional<QString> chosen =
        pictures.Prompts.OpenFile({u"Select Picture Source File"_s, u"Graphics|*.jpg|All Files|*.*|"_s});
    if (!chosen)
        return;
    pictures.Errors.Ignoring([&] {
        StandOn(Records(pictures.Form3), asked);
        const QString picture = SubjectPictureFile(pictures.Branch.WorkDir, pictures.Form3->Label25.Caption);
        pictures.Files.FileCopy(*chosen, picture);
        PutRecordPicture(pictures.Branch, pictures.Form3, pictures.Pictures.Load(pictures.Files, picture));
    });
}

} // namespace lineforge
