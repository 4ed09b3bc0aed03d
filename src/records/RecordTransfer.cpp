#include "records/RecordTransfer.h"

#include "forms/Form1.h"
#include "forms/Form3.h"
#include "map/items/BoxCaptions.h"
#include "map/items/CurrentBox.h"
#include "map/items/MapFile.h"
#include "map/items/MapItems.h"
#include "map/items/MapParse.h"
#include "map/subjects/EnterBranch.h"
#include "map/subjects/RecordFormPicture.h"
#include "map/subjects/SubjectPanel.h"
#include "map/tools/LeaveTools.h"
#include "platform/store/DataRef.h"
#include "platform/store/Fields.h"
#include "program/branch/BranchPaths.h"
#include "program/branch/ComeBackAfterwards.h"
#include "program/branch/SiblingBranch.h"
#include "program/state/PictureNames.h"
#include "program/state/RecordFields.h"

#include <QScopeGuard>

#include <array>
#include <optional>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
using FieldTexts = std::array<QString, CopyFieldList.size()>;

constexpr qsizetype numberLength = 4;

bool Confirm(Prompts& prompts)
{
    return prompts.MsgBox(u"Record Set Copy"_s,
                          u"This complete Recordset will be copied to an existing\n"
                          u"pre mapped Data Record of your choice.\n"
                          u"Tree Map name containers should be the same colour."_s,
                          Buttons::InformationOkCancel) == Answer::Ok;
}

// Four characters, whatever they are; empty when the user gives up. A wrong length asks all over again.
QString AskDestination(Prompts& prompts)
{
    while (Confirm(prompts)) {
        QString number = prompts.InputBox(u"Data Record Destination."_s, u"Enter Destination Data Ref Number."_s);
        if (number.isEmpty() || number.size() == numberLength)
            return number;
        prompts.MsgBox(u"Incorrect Character length."_s, u"Incorrect File Ref Input."_s, Buttons::Information);
    }
    return {};
}

struct Source {
    QString File;
    FieldTexts Texts; // Null becomes empty text
};

// The record that was current when the user was asked. Nothing when it can't be read any more: the destination would be
// emptied.
std::optional<Source> ReadSource(Window<forms::Form3>& recordForm, ErrorState& errors, const Bookmark& asked)
{
    try {
        StandOn(Records(recordForm), asked);
        const Recordset& records = Records(recordForm);
        Source source{records.Text(Field::File), {}};
        for (std::size_t at = 0; at < CopyFieldList.size(); ++at)
            source.Texts[at] = records.Text(CopyFieldList[at]);
        return source;
    } catch (const RuntimeError& error) {
        errors.Last = error;
        return std::nullopt;
    }
}

QString PictureFile(const QString& workDir, const QString& file)
{
    return workDir + PathSeparator + file + TransferredPictureEnding;
}

// False when that branch isn't there, or can't be opened: the own one is then as it was.
bool OpenBranchOf(const BranchAccess& access, const QString& letter)
{
    const QString ownDirectory = access.Branch.WorkDir;
    const QString ownDatabase = access.Form3->Data1.DatabaseName;
    const QString database = DatabasePath(SiblingDirectory(ownDirectory, letter));
    try {
        PointAtDatabase(access, database);
    } catch (const RuntimeError& refusal) {
        access.Form3->Data1.DatabaseName = ownDatabase;
        if (refusal.IsTold)
            throw;
        return false;
    }
    access.Branch.WorkDir = SiblingDirectory(ownDirectory, letter);
    access.Branch.sDbaseName = database;
    return true;
}

void ShowItsMap(const ToolWork& work)
{
    PictureBox& picture = work.Form1->Picture1;
    picture.Cls();
    picture.Font = {};
    ForgetMap(work.Map, work.Mouse, work.Tools);
    DrawBranchMap(work);
    work.Screen.Pointer = MousePointer::Default;
}

struct StoredPicture {
    bool IsThere;
    std::optional<QByteArray> Bytes; // none: it can't be read
};

StoredPicture PictureIn(const FileSystem& files, ErrorState& errors, const QString& file)
{
    StoredPicture picture{!files.Dir(file).isEmpty(), {}};
    errors.Ignoring([&] { picture.Bytes = files.Read(file); });
    return picture;
}

// The record for which it was replaced has been refused: it keeps the picture that it had, or has none again, and the
// panel shows whom it has shown.
void PutPictureBack(const SubjectPanel& panel, const QString& file, const StoredPicture& before,
                    const QImage& shownBefore)
{
    panel.Form1->Image1.Picture = shownBefore;
    if (PictureIn(panel.Files, panel.Errors, file).Bytes == before.Bytes)
        return;
    if (before.Bytes)
        panel.Errors.Ignoring([&] { panel.Files.Replace(file, *before.Bytes); });
    else if (!before.IsThere)
        panel.Errors.Ignoring([&] { panel.Files.Kill(file); });
}

// False when the destination has no picture that can be shown.
bool CopyPicture(const SubjectPanel& panel, const QString& source, const QString& destination)
{
    panel.Errors.Clear();
    panel.Errors.Ignoring([&] { panel.Files.FileCopy(source, destination); });
    if (panel.Errors.Last)
        panel.Prompts.MsgBox(u"Subject File Copy Problem."_s, u"Subject Picture File Error."_s, Buttons::Information);
    try {
        panel.Form1->Image1.Picture = panel.Pictures.Load(panel.Files, destination);
        return true;
    } catch (const RuntimeError&) {
        panel.Prompts.MsgBox(u"Subject File Loaad Problem."_s, u"Cannot Load Subject Picture File."_s,
                             Buttons::Information);
        return false;
    }
}

// False, and a box that names that number, when there is no such record.
bool FindDestination(const SubjectPictures& pictures, const QString& file, const QString& told)
{
    if (Records(pictures.Form3).Seek(Field::File, file))
        return true;
    PutRecordPicture(pictures.Branch, pictures.Form3, QImage());
    pictures.Prompts.MsgBox(u"Database Result"_s, u"No Match Found for Data Ref: "_s + told, Buttons::Information);
    return false;
}

void WriteFields(Window<forms::Form3>& recordForm, const FieldTexts& texts)
{
    Recordset& records = Records(recordForm);
    records.Edit();
    for (std::size_t at = 0; at < CopyFieldList.size(); ++at)
        records.Put(CopyFieldList[at], texts[at]);
    records.Update();
}

void ShowOverwritten(const BoxWork& work)
{
    FindBoxOfRecord(work);
    FillSubjectLabels(work.Form1, work.Form3);
    FitForename(work.Record, Records(work.Form3));
    if (const int row = work.Scratch.IdxA; row <= LastFiledBox)
        RenameBox(work.Map, *work.Form1, row, Records(work.Form3).Text(Field::Forename));
    MarkCurrentBox(work);
}
} // namespace

void TransferRecord(const ToolWork& work, const SubjectPanel& panel)
{
    if (TellIfAlternate(work.Branch, work.Prompts, u"Search Alternate Tree Branch Records."_s,
                        u"This Record is from another Tree Branch. You must open \n"
                        u"that Tree Branch to Transfer this Record."_s))
        return;
    work.Errors.Clear();
    work.Errors.Ignoring([&] { Records(work.Form3).Update(); });
    // Who has been told that a text isn't stored wants to see to it.
    if ((work.Errors.Last && work.Errors.Last->IsTold) || !Records(work.Form3).HasRow())
        return;
    const Bookmark asked = Records(work.Form3).GetBookmark();
    const QString destination = AskDestination(work.Prompts);
    if (destination.isEmpty())
        return;

    const std::optional<Source> source = ReadSource(work.Form3, work.Errors, asked);
    if (!source)
        return;
    const QString picture = PictureFile(work.Branch.WorkDir, source->File);
    QString directory = work.Branch.WorkDir;
    bool isOpen = true;
    if (const QString letter = DataRef(destination).Letter(); !DataRef(source->File).IsOf(letter)) {
        directory = SiblingDirectory(directory, letter);
        LeaveToolsIfOpen(work);
        isOpen = OpenBranchOf(work, letter);
        if (isOpen) {
            ShowItsMap(work);
            if (Records(work.Form3).IsEmpty())
                return;
        }
    }
    const QString itsPicture = PictureFile(directory, destination);
    // Of a branch that can't be opened nobody's picture is replaced.
    const bool keepsPicture = !isOpen && !work.Files.Dir(itsPicture).isEmpty();
    const StoredPicture pictureBefore = PictureIn(work.Files, work.Errors, itsPicture);
    const QImage shownBefore = work.Form1->Image1.Picture;
    if (!keepsPicture && !CopyPicture(panel, picture, itsPicture))
        return;
    auto pictureBack = qScopeGuard([&] { PutPictureBack(panel, itsPicture, pictureBefore, shownBefore); });
    // KEPT(RecordTransferTest.NoSuchRecord_IsToldWithTheNumberShownLast_AndThePictureStaysCopied): the box doesn't name
    // the number that was typed, unless its branch couldn't be opened, and a number that isn't there leaves its picture
    // behind.
    // Mended, the box would tell the number in the place of the record shown last or of the pattern searched for last.
    const bool isFound = FindDestination(panel, destination, isOpen ? work.Record.sCurFile : destination);
    if (isFound)
        WriteFields(work.Form3, source->Texts);
    pictureBack.dismiss();
    if (isFound)
        ShowOverwritten(work);
}

} // namespace lineforge
