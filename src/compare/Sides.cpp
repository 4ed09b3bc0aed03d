#include "compare/Sides.h"

#include "compare/Difference.h"
#include "program/BranchPaths.h"
#include "program/WorkDatabase.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
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
} // namespace

// clang-format off
const Side CurrentSide{Records,        CurrentDirectory,
                       &forms::Form6::Label4, &forms::Form6::Image1, &forms::Form6::Text1, &forms::Form6::Text5,
                       &forms::Form6::Frame5, &forms::Form6::Text2};
const Side CompareSide{CompareRecords, CompareDirectory,
                       &forms::Form6::Label9, &forms::Form6::Image2, &forms::Form6::Text3, &forms::Form6::Text6,
                       &forms::Form6::Frame6, &forms::Form6::Text4};
// clang-format on

Recordset& CompareRecords(Program& p)
{
    return p.Form6->Data1.Records();
}

void ShowNothing(Program& p, const Side& side)
{
    forms::Form6& form = *p.Form6;
    (form.*side.Number).Caption = QString();
    (form.*side.Picture).Picture = QImage();
    (form.*side.Surname).Text = QString();
    (form.*side.Forename).Text = QString();
    (form.*side.FieldFrame).Caption = u"Field"_s;
    ShowField(p, side, {});
}

void ShowStepped(Program& p, const Side& side, NullForename null)
{
    ShowPerson(p, side, ReadPerson(p, side, null));
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
    const QString file = record.Text(u"File");
    const FieldValue forename = record.Value(u"Forename");
    if (!forename && null == NullForename::Refused)
        throw RuntimeError(ErrorNumber::InvalidUseOfNull, u"Forename\nRecord "_s + file + u'\n' + side.Directory(p));
    return {file, record.Text(u"Surname"), forename.value_or(QString())};
}

void ShowPerson(Program& p, const Side& side, const PersonTexts& person)
{
    forms::Form6& form = *p.Form6;
    (form.*side.Number).Caption = person.File;
    ShowPicture(p, side, person.File);
    (form.*side.Surname).Text = person.Surname;
    (form.*side.Forename).Text = person.Forename;
}

bool IsOnShow(Program& p, const Side& side)
{
    const Recordset& record = side.Records(p);
    return record.HasRow() && record.Text(u"File") == ((*p.Form6).*side.Number).Caption.value();
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
