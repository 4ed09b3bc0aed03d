#include "map/subjects/SubjectPanel.h"

#include "forms/Form1.h"
#include "forms/Form3.h"
#include "platform/store/Fields.h"
#include "program/branch/BranchPaths.h"
#include "program/ui/BranchUi.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct PanelField {
    Label forms::Form1::*Shown;
    TextBox forms::Form3::*Box;
    QStringView Field;
};

constexpr PanelField panelFields[] = {
    {&forms::Form1::Label9, &forms::Form3::Text3, Field::Forename},
    {&forms::Form1::Label10, &forms::Form3::Text2, Field::Surname},
    {&forms::Form1::Label11, &forms::Form3::Text4, Field::BirthDate},
    {&forms::Form1::Label12, &forms::Form3::Text10, Field::Deceased},
    {&forms::Form1::Label14, &forms::Form3::Text6, Field::Spouse},
    {&forms::Form1::Label15, &forms::Form3::Text16, Field::Maiden},
    {&forms::Form1::Label17, &forms::Form3::Text23, Field::Gender},
};

const QString frameWithoutNumber = u"Ref  "_s;

// Whether the labels show a record that the frame above them doesn't name, or nobody beside somebody's picture.
bool HasGoneOn(Program& p)
{
    if (!p.Form1.IsLoaded() || !p.Form3.IsLoaded() || !p.Form3->Data1.IsOpen())
        return false;
    const forms::Form1& form = *p.Form1;
    const QString shown = p.Form3->Label25.Caption.Shown();
    const QString named = form.Frame1.Caption.value().mid(frameWithoutNumber.size());
    return shown != named || (shown.isEmpty() && !form.Image1.Picture.value().isNull());
}
} // namespace

void BindSubjectLabels(Program& p, forms::Form3& record)
{
    for (const PanelField& field : panelFields)
        record.Data1.Bind((*p.Form1).*field.Shown, field.Field.toString());
}

void FillSubjectLabels(Program& p)
{
    for (const PanelField& field : panelFields)
        ((*p.Form1).*field.Shown).Caption = ((*p.Form3).*field.Box).Text.value();
    p.Form1->Frame1.Caption = frameWithoutNumber + p.Form3->Label25.Caption.value();
}

void EmptySubjectLabels(Program& p, std::initializer_list<Label forms::Form1::*> labels, const QString& frame)
{
    for (Label forms::Form1::*label : labels)
        ((*p.Form1).*label).Caption = QString();
    p.Form1->Frame1.Caption = frame;
}

void LoadSubjectPicture(Program& p, Image& target)
{
    target.Picture = p.Pictures.Load(p.Files, p.Branch.WorkDir + PathSeparator + p.Record.sPicFile);
}

QImage PictureOrNone(Program& p, const QString& file)
{
    try {
        return p.Pictures.Load(p.Files, file);
    } catch (const RuntimeError&) {
        return {};
    }
}

bool ShowSubjectPicture(Program& p)
{
    bool hasPicture = false;
    p.Errors.Ignoring([&] {
        LoadSubjectPicture(p, p.Form1->Image1);
        hasPicture = true;
    });
    if (!hasPicture)
        p.Form1->Image1.Picture = QImage();
    return hasPicture;
}

void ShowRecordOnMap(Program& p)
{
    SetPictureName(p.Record, *p.Form3);
    const bool hasPicture = ShowSubjectPicture(p);
    FillSubjectLabels(p);
    if (!hasPicture)
        TellPictureMissing(p);
}

void PartFromFormerSubject(Program& p)
{
    if (!HasGoneOn(p))
        return;
    p.Form1->Frame1.Caption = frameWithoutNumber;
    p.Form1->Image1.Picture = QImage();
}

void FollowSubject(Program& p)
{
    if (!HasGoneOn(p))
        return;
    PartFromFormerSubject(p);
    const QString number = p.Form3->Label25.Caption.Shown();
    if (number.isEmpty())
        return;
    p.Form1->Frame1.Caption = frameWithoutNumber + number;
    p.Form1->Image1.Picture = PictureOrNone(p, SubjectPictureFile(p.Branch.WorkDir, number));
}

void TellPictureMissing(Program& p)
{
    p.Prompts.MsgBox(u"Image not Present"_s, u"Searched Image File for "_s + p.Record.sPicFile, Buttons::Information);
}

} // namespace lineforge
