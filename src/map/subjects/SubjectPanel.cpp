#include "map/subjects/SubjectPanel.h"

#include "forms/Form1.h"
#include "forms/Form3.h"
#include "platform/store/Fields.h"
#include "program/branch/BranchPaths.h"
#include "program/state/Program.h"
#include "program/ui/BranchUi.h"

#include <algorithm>
#include <array>
#include <iterator>

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

constexpr QStringView frameWithoutNumber = u"Ref  ";

struct Emptying {
    EmptiedBy Command;
    QStringView Frame;
    std::array<Label forms::Form1::*, 2> Kept; // the other labels are emptied
};

constexpr Emptying emptyings[] = {
    {EmptiedBy::NewBranch, {}, {&forms::Form1::Label15, &forms::Form1::Label17}},
    {EmptiedBy::BranchWithoutRecords, frameWithoutNumber, {&forms::Form1::Label15}},
    {EmptiedBy::CloseBranch, frameWithoutNumber, {&forms::Form1::Label15}},
    {EmptiedBy::DeleteBranch, {}, {}},
};

// Whether the labels show a record that the frame above them doesn't name, or nobody beside somebody's picture.
bool HasGoneOn(Window<forms::Form1>& mainWindow, Window<forms::Form3>& recordForm)
{
    if (!mainWindow.IsLoaded() || !recordForm.IsLoaded() || !recordForm->Data1.IsOpen())
        return false;
    const forms::Form1& form = *mainWindow;
    const QString shown = recordForm->Label25.Caption.Shown();
    const QString named = form.Frame1.Caption.value().mid(frameWithoutNumber.size());
    return shown != named || (shown.isEmpty() && !form.Image1.Picture.value().isNull());
}
} // namespace

SubjectPictures::SubjectPictures(Program& p)
    : Branch(p.Branch), Record(p.Record), Files(p.Files), Pictures(p.Pictures), Errors(p.Errors), Prompts(p.Prompts),
      Form3(p.Form3)
{
}

SubjectPanel::SubjectPanel(Program& p) : SubjectPictures(p), Form1(p.Form1) {}

void BindSubjectLabels(forms::Form1& shown, forms::Form3& record)
{
    for (const PanelField& field : panelFields)
        record.Data1.Bind(shown.*field.Shown, field.Field.toString());
}

void FillSubjectLabels(Window<forms::Form1>& mainWindow, Window<forms::Form3>& recordForm)
{
    for (const PanelField& field : panelFields)
        ((*mainWindow).*field.Shown).Caption = ((*recordForm).*field.Box).Text.value();
    mainWindow->Frame1.Caption = frameWithoutNumber + recordForm->Label25.Caption.value();
}

void EmptySubjectPanel(forms::Form1& form, EmptiedBy command)
{
    const Emptying& emptying = *std::ranges::find(emptyings, command, &Emptying::Command);
    for (const PanelField& field : panelFields)
        if (std::ranges::find(emptying.Kept, field.Shown) == std::end(emptying.Kept))
            (form.*field.Shown).Caption = QString();
    form.Frame1.Caption = emptying.Frame.toString();
    form.Image1.Picture = QImage();
}

void LoadSubjectPicture(const SubjectPictures& pictures, Image& target)
{
    target.Picture =
        pictures.Pictures.Load(pictures.Files, pictures.Branch.WorkDir + PathSeparator + pictures.Record.sPicFile);
}

QImage PictureOrNone(PictureCache& pictures, const FileSystem& files, const QString& file)
{
    try {
        return pictures.Load(files, file);
    } catch (const RuntimeError&) {
        return {};
    }
}

bool ShowSubjectPicture(const SubjectPanel& panel)
{
    bool hasPicture = false;
    panel.Errors.Ignoring([&] {
        LoadSubjectPicture(panel, panel.Form1->Image1);
        hasPicture = true;
    });
    if (!hasPicture)
        panel.Form1->Image1.Picture = QImage();
    return hasPicture;
}

void ShowRecordOnMap(const SubjectPanel& panel)
{
    SetPictureName(panel.Record, *panel.Form3);
    const bool hasPicture = ShowSubjectPicture(panel);
    FillSubjectLabels(panel.Form1, panel.Form3);
    if (!hasPicture)
        TellPictureMissing(panel.Record, panel.Prompts);
}

void PartFromFormerSubject(Window<forms::Form1>& mainWindow, Window<forms::Form3>& recordForm)
{
    if (!HasGoneOn(mainWindow, recordForm))
        return;
    mainWindow->Frame1.Caption = frameWithoutNumber.toString();
    mainWindow->Image1.Picture = QImage();
}

void FollowSubject(const SubjectPanel& panel)
{
    if (!HasGoneOn(panel.Form1, panel.Form3))
        return;
    PartFromFormerSubject(panel.Form1, panel.Form3);
    const QString number = panel.Form3->Label25.Caption.Shown();
    if (number.isEmpty())
        return;
    panel.Form1->Frame1.Caption = frameWithoutNumber + number;
    panel.Form1->Image1.Picture =
        PictureOrNone(panel.Pictures, panel.Files, SubjectPictureFile(panel.Branch.WorkDir, number));
}

void TellPictureMissing(const RecordState& record, Prompts& prompts)
{
    prompts.MsgBox(u"Image not Present"_s, u"Searched Image File for "_s + record.sPicFile, Buttons::Information);
}

} // namespace lineforge
