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
DataControl& CurrentData(const ComparedSides& sides)
{
    return sides.Form3->Data1;
}

DataControl& CompareData(const ComparedSides& sides)
{
    return sides.Form6->Data1;
}

QString CurrentDirectory(const ComparedSides& sides)
{
    return sides.Branch.WorkDir;
}

QString CompareDirectory(const ComparedSides& sides)
{
    return sides.State.sCompDir.chopped(1);
}

void MarkDifference(forms::Form6& form)
{
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

ShownRecord RecordOf(const ComparedSides& sides, const Side& side)
{
    return {side.Directory(sides), side.Records(sides).GetBookmark()};
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

Recordset& CompareRecords(Window<forms::Form6>& window)
{
    return window->Data1.Records();
}

void ShowNothing(CompareState& state, forms::Form6& form, const Side& side)
{
    state.*side.Shown = {};
    (form.*side.Number).Caption = QString();
    (form.*side.Picture).Picture = QImage();
    (form.*side.Surname).Text = QString();
    (form.*side.Forename).Text = QString();
    (form.*side.FieldFrame).Caption = u"Field"_s;
    ShowField(form, side, {});
}

void ShowStepped(const ComparedSides& sides, const Side& side, NullForename null)
{
    ShowStepped(sides, side, ReadPerson(sides, side, null));
}

void ShowStepped(const ComparedSides& sides, const Side& side, const PersonTexts& person)
{
    ShowPerson(sides, side, person);
    ((*sides.Form6).*side.FieldFrame).Caption = u"Field:"_s;
    ShowField(*sides.Form6, side, {});
}

void ShowPicture(const ComparedSides& sides, const Side& side, const QString& file)
{
    Image& image = (*sides.Form6).*side.Picture;
    image.Picture = QImage();
    sides.Errors.Ignoring(
        [&] { image.Picture = sides.Pictures.Load(sides.Files, SubjectPictureFile(side.Directory(sides), file)); });
}

PersonTexts ReadPerson(const ComparedSides& sides, const Side& side, NullForename null)
{
    const Recordset& record = side.Records(sides);
    const QString file = record.Text(Field::File);
    const FieldValue forename = record.Value(Field::Forename);
    if (!forename && null == NullForename::Refused)
        throw RuntimeError(ErrorNumber::InvalidUseOfNull,
                           u"Forename\nRecord "_s + file + u'\n' + side.Directory(sides));
    return {file, record.Text(Field::Surname), forename.value_or(QString()), RecordOf(sides, side)};
}

void ShowPerson(const ComparedSides& sides, const Side& side, const PersonTexts& person)
{
    forms::Form6& form = *sides.Form6;
    sides.State.*side.Shown = person.Whose;
    (form.*side.Number).Caption = person.File;
    ShowPicture(sides, side, person.File);
    (form.*side.Surname).Text = person.Surname;
    (form.*side.Forename).Text = person.Forename;
}

bool HasRecord(const ComparedSides& sides, const Side& side)
{
    return side.Data(sides).IsOpen() && side.Records(sides).HasRow();
}

bool IsOnShow(const ComparedSides& sides, const Side& side)
{
    const ShownRecord& shown = sides.State.*side.Shown;
    return HasRecord(sides, side) && shown.Directory == side.Directory(sides) &&
           IsSameRecord(side.Records(sides), shown.Record);
}

bool IsOneRecord(const ComparedSides& sides)
{
    return HasRecord(sides, CurrentSide) && HasRecord(sides, CompareSide) &&
           CurrentSide.Directory(sides) == CompareSide.Directory(sides) &&
           IsSameRecord(CurrentSide.Records(sides), CompareSide.Records(sides).GetBookmark());
}

void SetFieldCaptions(forms::Form6& form, const QString& current, const QString& compare)
{
    form.Frame5.Caption = current;
    form.Frame6.Caption = compare;
}

void ShowField(forms::Form6& form, const Side& side, const QString& text)
{
    (form.*side.Field).Text = text;
    MarkDifference(form);
}

void ShowFields(forms::Form6& form, const QString& current, const QString& compare)
{
    form.Text2.Text = current;
    form.Text4.Text = compare;
    MarkDifference(form);
}

void EmptyFields(forms::Form6& form)
{
    ShowFields(form, {}, {});
}

} // namespace lineforge
