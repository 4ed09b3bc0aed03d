#include "compare/Sides.h"

#include "compare/TextDifference.h"
#include "forms/Form3.h"
#include "forms/Form6.h"
#include "platform/store/Fields.h"
#include "program/branch/BranchPaths.h"
#include "program/branch/WorkDatabase.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
DataControl& CurrentData(Program& p)
{
    return p.Form3->Data1;
}

DataControl& CompareData(Program& p)
{
    return p.Form6->Data1;
}

QString CurrentDirectory(const Program& p)
{
    return p.Branch.WorkDir;
}

QString CompareDirectory(const Program& p)
{
    return p.Compare.sCompDir.chopped(1);
}

void MarkDifference(Program& p)
{
    forms::Form6& form = *p.Form6;
    const auto [inCurrent, inCompare] = DifferenceOf(form.Text2.Text.value(), form.Text4.Text.value());
    form.Text2.Marked = inCurrent;
    form.Text4.Marked = inCompare;
}

// The same record has another mark once another program has written to the file.
bool IsSameRecord(const Recordset& records, const Bookmark& mark)
{
    if (!mark || records.GetBookmark() == mark)
        return mark.has_value();
    try {
        const auto there = records.Afresh();
        there->SetBookmark(mark);
        return there->HasRow() && there->GetBookmark() == records.GetBookmark();
    } catch (const RuntimeError& refusal) {
        if (refusal.IsTold)
            throw;
        return false;
    }
}

ShownRecord RecordOf(Program& p, const Side& side)
{
    return {side.Directory(p), side.Records(p).GetBookmark()};
}
} // namespace

// clang-format off
const Side CurrentSide{CurrentData, CurrentDirectory, &CompareState::ShownCurrent,
                       &forms::Form6::Label4, &forms::Form6::Image1, &forms::Form6::Text1, &forms::Form6::Text5,
                       &forms::Form6::Frame5, &forms::Form6::Text2};
const Side CompareSide{CompareData, CompareDirectory, &CompareState::ShownCompare,
                       &forms::Form6::Label9, &forms::Form6::Image2, &forms::Form6::Text3, &forms::Form6::Text6,
                       &forms::Form6::Frame6, &forms::Form6::Text4};
// clang-format on

Recordset& CompareRecords(Program& p)
{
    return CompareSide.Records(p);
}

void ShowNothing(Program& p, const Side& side)
{
    forms::Form6& form = *p.Form6;
    p.Compare.*side.Shown = {};
    (form.*side.Number).Caption = QString();
    (form.*side.Picture).Picture = QImage();
    (form.*side.Surname).Text = QString();
    (form.*side.Forename).Text = QString();
    (form.*side.FieldFrame).Caption = u"Field"_s;
    ShowField(p, side, {});
}

void ShowStepped(Program& p, const Side& side, NullForename null)
{
    ShowStepped(p, side, ReadPerson(p, side, null));
}

void ShowStepped(Program& p, const Side& side, const PersonTexts& person)
{
    ShowPerson(p, side, person);
    ((*p.Form6).*side.FieldFrame).Caption = u"Field:"_s;
    ShowField(p, side, {});
}

void ShowPicture(Program& p, const Side& side, const QString& file)
{
    Image& image = (*p.Form6).*side.Picture;
    image.Picture = QImage();
    p.Errors.Ignoring([&] { image.Picture = p.Pictures.Load(p.Files, SubjectPictureFile(side.Directory(p), file)); });
}

PersonTexts ReadPerson(Program& p, const Side& side, NullForename null)
{
    const Recordset& record = side.Records(p);
    const QString file = record.Text(Field::File);
    const FieldValue forename = record.Value(Field::Forename);
    if (!forename && null == NullForename::Refused)
        throw RuntimeError(ErrorNumber::InvalidUseOfNull, u"Forename\nRecord "_s + file + u'\n' + side.Directory(p));
    return {file, record.Text(Field::Surname), forename.value_or(QString()), RecordOf(p, side)};
}

void ShowPerson(Program& p, const Side& side, const PersonTexts& person)
{
    forms::Form6& form = *p.Form6;
    p.Compare.*side.Shown = person.Whose;
    (form.*side.Number).Caption = person.File;
    ShowPicture(p, side, person.File);
    (form.*side.Surname).Text = person.Surname;
    (form.*side.Forename).Text = person.Forename;
}

bool HasRecord(Program& p, const Side& side)
{
    return side.Data(p).IsOpen() && side.Records(p).HasRow();
}

bool IsOnShow(Program& p, const Side& side)
{
    const ShownRecord& shown = p.Compare.*side.Shown;
    return HasRecord(p, side) && shown.Directory == side.Directory(p) && IsSameRecord(side.Records(p), shown.Record);
}

bool IsOneRecord(Program& p)
{
    return HasRecord(p, CurrentSide) && HasRecord(p, CompareSide) &&
           CurrentSide.Directory(p) == CompareSide.Directory(p) &&
           IsSameRecord(CurrentSide.Records(p), CompareSide.Records(p).GetBookmark());
}

void SetFieldCaptions(Program& p, const QString& current, const QString& compare)
{
    p.Form6->Frame5.Caption = current;
    p.Form6->Frame6.Caption = compare;
}

void ShowField(Program& p, const Side& side, const QString& text)
{
    ((*p.Form6).*side.Field).Text = text;
    MarkDifference(p);
}

void ShowFields(Program& p, const QString& current, const QString& compare)
{
    p.Form6->Text2.Text = current;
    p.Form6->Text4.Text = compare;
    MarkDifference(p);
}

void EmptyFields(Program& p)
{
    ShowFields(p, {}, {});
}

} // namespace lineforge
