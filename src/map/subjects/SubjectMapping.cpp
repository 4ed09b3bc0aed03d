#include "map/subjects/SubjectMapping.h"

#include "forms/Form1.h"
#include "forms/Form3.h"
#include "forms/Form7.h"
#include "map/items/BoxCaptions.h"
#include "map/items/CurrentBox.h"
#include "map/items/HitBox.h"
#include "map/items/MapFile.h"
#include "map/subjects/RecordFormPicture.h"
#include "map/subjects/SubjectPanel.h"
#include "platform/base/Text.h"
#include "platform/store/Fields.h"
#include "program/branch/BranchPaths.h"
#include "program/branch/ComeBackAfterwards.h"
#include "program/branch/SiblingBranch.h"
#include "program/ui/BranchUi.h"

#include <QScopeGuard>

#include <optional>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// Of `MapOption`.
constexpr int newRecord = 0;
constexpr int unmappedRecord = 1;
constexpr int alternateRecord = 2;

// Of `PictureOption`.
constexpr int selectNow = 6;
constexpr int leaveUntilLater = 7;

constexpr qsizetype numberLength = 4;

void ShowOption(Program& p, OptionButton forms::Form7::*chosen)
{
    forms::Form7& form = *p.Form7;
    for (OptionButton forms::Form7::*option : {&forms::Form7::Option1, &forms::Form7::Option2, &forms::Form7::Option3})
        (form.*option).Value = option == chosen;
    const bool isNew = chosen == &forms::Form7::Option1;
    form.Label1.Enabled = !isNew;
    form.Text1.Enabled = !isNew;
    form.Frame2.Enabled = isNew;
    form.Frame3.Enabled = isNew;
}

void StopMapping(Program& p)
{
    p.Tools.MapCursorMode = MapCursor::Normal;
    p.Screen.Pointer = MousePointer::Default;
}

void TellNotPresent(Program& p, const QString& text)
{
    p.Prompts.MsgBox(u"Record not Present"_s, text, Buttons::Information);
    StopMapping(p);
}

// The row of the pressed box; none beside all boxes. A lone box isn't searched for, but has to be pressed as well.
std::optional<int> PressedBox(Program& p)
{
    p.Mouse.BoxX = p.Mouse.BoxLeft;
    p.Mouse.BoxY = p.Mouse.BoxTop;
    if (p.Map.SBoxes == 0)
        return PressIsInBox(p, 0) ? std::optional(0) : std::nullopt;
    HitBox(p);
    return p.Mouse.BoxMiss == 0 ? std::optional<int>(p.Mouse.BoxIdx) : std::nullopt;
}

// Without a box the number goes into none. The new caption comes with the return from the record form.
void LinkBox(Program& p, std::optional<int> row, const QString& file, const QString& forename = {})
{
    p.Mapping.NewFile = file;
    if (row)
        TieBox(p, *row, file, forename);
}

// The first number that the records, in their stored order, run out of.
// KEPT(NumberingTest.FirstGapInStoredOrder): it never starts over, so that numbers which don't rise can be given twice.
// Mended, new records of such a branch would get other numbers.
QString NextFreeNumber(Program& p, Recordset& records)
{
    int counter = 1;
    const auto candidate = [&]() -> QString {
        return p.Mapping.sBranchLetter + QString::number(counter).rightJustified(3, u'0');
    };
    for (records.MoveFirst(); !records.Eof(); records.MoveNext()) {
        p.Record.sCurFile = records.Text(Field::File);
        while (SameText(p.Record.sCurFile, candidate()))
            ++counter;
    }
    return candidate();
}

// Its number is chosen among all that stand in the file when nobody else can add one.
void AddSubject(Program& p)
{
    Recordset& records = Records(p.Form3);
    QString file;
    records.AddNew();
    records.PutWhenWritten(Field::File, [&] { return file = NextFreeNumber(p, *records.Afresh()); });
    records.Put(Field::Gender, p.Mapping.NewGender);
    records.Update();
    records.SetBookmark(records.LastModified());
    p.Mapping.NewFile = file;
}

// The box comes after the record, so that it leads to no record that the database has refused.
void MapNewRecord(Program& p)
{
    AddSubject(p);
    LinkBox(p, PressedBox(p), p.Mapping.NewFile);
    SaveBoxes(p);
}

// Whatever the options said.
void MapFirstRecord(Program& p)
{
    MapNewRecord(p);
    p.Record.sCurFile = p.Mapping.NewFile;
}

// Nothing, and a box, when no number of four characters was entered, or one that would break the map file. Kept by the
// command: under each further box the scanner puts its own record at hand.
std::optional<QString> TakeEnteredNumber(Program& p)
{
    const QString number = p.Form7->Text1.Text;
    p.Record.sCurFile = number;
    if (number.size() == numberLength && FitsList(number))
        return number;
    TellNotPresent(p, u"Incorrect Record Number "_s + number);
    return std::nullopt;
}

// False, and a box, when the open database has no such record.
bool StandOnRecord(Program& p, const QString& number)
{
    if (Records(p.Form3).Seek(Field::File, number))
        return true;
    TellNotPresent(p, u"Record not Found: "_s + number);
    return false;
}

bool MapUnmappedRecord(Program& p)
{
    const std::optional<QString> number = TakeEnteredNumber(p);
    if (!number || !StandOnRecord(p, *number))
        return false;
    LinkBox(p, PressedBox(p), *number, Records(p.Form3).Text(Field::Forename));
    p.Mapping.MapOption = newRecord;
    SaveBoxes(p);
    return true;
}

bool MapAlternateRecord(Program& p)
{
    const std::optional<QString> number = TakeEnteredNumber(p);
    if (!number)
        return false;
    const QString letter = number->first(1);
    // Before the box is tied to it.
    if (!TakeOldSibling(p, letter))
        return false;
    const auto sibling = ReachDatabase(p.Databases, p.Files, DatabasePath(SiblingDirectory(p.Branch.WorkDir, letter)));
    Records(p.Form3).Seek(Field::File, *number);
    const std::optional<int> row = PressedBox(p);
    p.Screen.Pointer = MousePointer::Hourglass;
    LinkBox(p, row, *number);
    p.Mapping.PictureOption = leaveUntilLater;
    DrawBoxCaptions(p, MapOnScreen(p));
    SaveBoxes(p);
    SwitchToSibling(p, letter);
    return StandOnRecord(p, *number);
}

bool MapByOption(Program& p)
{
    switch (p.Mapping.MapOption) {
    case unmappedRecord:
        return MapUnmappedRecord(p);
    case alternateRecord:
        return MapAlternateRecord(p);
    default:
        MapNewRecord(p);
        return true;
    }
}

void NamePictureFile(Program& p)
{
    p.Mapping.PictureFile = SubjectPictureFile(p.Branch.WorkDir, p.Mapping.NewFile);
}

void CopyBlankPortrait(Program& p)
{
    p.Files.ChDir(p.Branch.WorkDir);
    const auto changeBack = qScopeGuard([&] { p.Errors.Ignoring([&] { p.Files.ChDir(p.Branch.WorkDir); }); });
    p.Files.ChDir(u".."_s);
    p.Files.FileCopy(p.Files.CurDir() + PathSeparator + u"Tree99.jpg", p.Mapping.PictureFile);
}

// Nothing when the user cancels. The scanner may go on behind the dialog.
std::optional<QString> ChoosePicture(Program& p)
{
    const Bookmark subject = Records(p.Form3).GetBookmark();
    std::optional<QString> chosen =
        p.Prompts.OpenFile({u"Select Picture Source File"_s, u"DataBase|*.jpg|All Files|*.*|"_s});
    StandOn(Records(p.Form3), subject);
    return chosen;
}

void ShowPicture(Program& p, const QImage& picture)
{
    PutRecordPicture(p.Branch, p.Form3, picture);
    p.Form1->Image1.Picture = picture;
}

// Whoever was shown before has neither picture nor marker any more, whatever becomes of the current record's.
void TakeMarker(Program& p)
{
    ShowPicture(p, QImage());
    MarkCurrentBox(p);
}

// Without a mapping so far there is no file, and nothing to be seen.
void ShowMappedPicture(Program& p)
{
    if (const QString& file = p.Mapping.PictureFile; !file.isEmpty())
        ShowPicture(p, p.Pictures.Load(p.Files, file));
    p.Form1->Image1.Visible = true;
    p.Screen.Pointer = MousePointer::Default;
}

// The record is there already and stays, without its picture, when that can't be had: the pointer then stays, too.
void GiveNewSubjectItsPicture(Program& p)
{
    NamePictureFile(p);
    p.Errors.Ignoring([&] { TakeMarker(p); });
    p.Errors.Ignoring([&] {
        if (p.Mapping.PictureOption == selectNow) {
            const std::optional<QString> chosen = ChoosePicture(p);
            // A scan that has ended meanwhile has shown its last record.
            TakeMarker(p);
            if (!chosen)
                return;
            p.Files.FileCopy(*chosen, p.Mapping.PictureFile);
        } else if (p.Mapping.MapOption == alternateRecord) {
            ClearMapCursor(p.Tools, p.Screen);
            p.Mapping.MapOption = newRecord;
        } else {
            CopyBlankPortrait(p);
        }
        ShowMappedPicture(p);
    });
}

bool TellIfNothingToMap(Program& p)
{
    const bool isNone = !IsBranchOpen(p.Branch, p.Form3);
    if (isNone)
        p.Prompts.MsgBox(u"Data not available"_s, u"Cannot Map until database file is Opened"_s, Buttons::Information);
    return isNone;
}
} // namespace

void ShowMappingOptions(Program& p)
{
    if (!TellIfNothingToMap(p))
        p.Form7->Show();
}

void ChooseBlankRecord(Program& p)
{
    ShowOption(p, &forms::Form7::Option1);
    p.Form7->Text1.Text = QString();
}

void ChooseUnmappedRecord(Program& p)
{
    ShowOption(p, &forms::Form7::Option2);
}

void ChooseAlternateRecord(Program& p)
{
    ShowOption(p, &forms::Form7::Option3);
}

void TakeMappingOptions(Program& p)
{
    forms::Form7& form = *p.Form7;
    p.Screen.Pointer = MousePointer::Cross;
    p.Tools.MapCursorMode = MapCursor::Mapping;
    form.Hide();
    if (form.Option1.Value)
        p.Mapping.MapOption = newRecord;
    else if (form.Option2.Value)
        p.Mapping.MapOption = unmappedRecord;
    else if (form.Option3.Value)
        p.Mapping.MapOption = alternateRecord;
    if (form.Option4.Value)
        p.Mapping.NewGender = u"Male"_s;
    else if (form.Option5.Value)
        p.Mapping.NewGender = u"Female"_s;
    if (form.Option6.Value)
        p.Mapping.PictureOption = leaveUntilLater;
    else if (form.Option7.Value)
        p.Mapping.PictureOption = selectNow;
}

void MapNewSubject(Program& p)
{
    PutRecordPicture(p.Branch, p.Form3, QImage());
    p.Form3->Show();
    p.Mapping.sBranchLetter = BranchLetter(p.Branch.WorkDir);
    if (Records(p.Form3).IsEmpty())
        MapFirstRecord(p);
    else if (!MapByOption(p))
        return;
    GiveNewSubjectItsPicture(p);
    FillSubjectLabels(p.Form1, p.Form3);
    // The record form stays in front, for the new record is to be written now; one of another branch stands there
    // already.
    if (p.Branch.IsSiblingShown())
        p.Form1->Show();
}

void AskSubjectPicture(Program& p)
{
    const Bookmark asked = Records(p.Form3).GetBookmark();
    const Answer change = p.Prompts.MsgBox(u"New Subject Mapping"_s,
                                           u"This Subject has already been Logged into the Database.\n"
                                           u"Do you want to change the Subject Picture ? "_s,
                                           Buttons::QuestionYesNo);
    if (change != Answer::Yes) {
        StopMapping(p);
        return;
    }
    p.Errors.Ignoring([&] { StandOn(Records(p.Form3), asked); });
    p.Record.sCurFile = p.Form3->Label25.Caption;
    p.Errors.Ignoring([&] {
        if (p.Mapping.PictureOption == selectNow) {
            NamePictureFile(p);
            const std::optional<QString> chosen = ChoosePicture(p);
            if (!chosen)
                return;
            p.Files.FileCopy(*chosen, p.Mapping.PictureFile);
        }
        TakeMarker(p);
        ShowMappedPicture(p);
    });
}

void RemapSubject(Program& p)
{
    if (TellIfNothingToMap(p))
        return;
    const Answer begin = p.Prompts.MsgBox(u"Subject re Position"_s,
                                          u"You are about to move the position of a subject. \n"
                                          u"Please ensure that an empty subject box position is \n"
                                          u"available for substitution."_s,
                                          Buttons::InformationOkCancel);
    if (begin != Answer::Ok)
        return;
    p.Tools.MapCursorMode = MapCursor::Repositioning;
    // A cross that a mapping has left would make the first double click the second.
    p.Screen.Pointer = MousePointer::Default;
    const Answer select = p.Prompts.MsgBox(u"Data link Transfer"_s,
                                           u"Select subject old map position then select \n"
                                           u"subject new map position to transfer data link"_s,
                                           Buttons::InformationOkCancel);
    if (select == Answer::Cancel)
        ClearMapCursor(p.Tools, p.Screen);
}

} // namespace lineforge
