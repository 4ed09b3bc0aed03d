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
#include "platform/store/DataRef.h"
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

void ShowOption(forms::Form7& form, OptionButton forms::Form7::*chosen)
{
    for (OptionButton forms::Form7::*option : {&forms::Form7::Option1, &forms::Form7::Option2, &forms::Form7::Option3})
        (form.*option).Value = option == chosen;
    const bool isNew = chosen == &forms::Form7::Option1;
    form.Label1.Enabled = !isNew;
    form.Text1.Enabled = !isNew;
    form.Frame2.Enabled = isNew;
    form.Frame3.Enabled = isNew;
}

void StopMapping(ToolState& tools, Screen& screen)
{
    tools.MapCursorMode = MapCursor::Normal;
    screen.Pointer = MousePointer::Default;
}

void TellNotPresent(const MappingWork& work, const QString& text)
{
    work.Prompts.MsgBox(u"Record not Present"_s, text, Buttons::Information);
    StopMapping(work.Tools, work.Screen);
}

// The row of the pressed box; none beside all boxes. A lone box isn't searched for, but has to be pressed as well.
std::optional<int> PressedBox(const MapState& map, MapMouseState& mouse)
{
    mouse.BoxX = mouse.BoxLeft;
    mouse.BoxY = mouse.BoxTop;
    if (map.SBoxes == 0)
        return PressIsInBox(map, mouse, 0) ? std::optional(0) : std::nullopt;
    HitBox(map, mouse);
    return mouse.BoxMiss == 0 ? std::optional<int>(mouse.BoxIdx) : std::nullopt;
}

// Without a box the number goes into none. The new caption comes with the return from the record form.
void LinkBox(const MappingWork& work, std::optional<int> row, const QString& file, const QString& forename = {})
{
    work.Mapping.NewFile = file;
    if (row)
        TieBox(work.Map, *work.Form1, *row, file, forename);
}

// The first number that the records, in their stored order, run out of.
// KEPT(NumberingTest.FirstGapInStoredOrder): it never starts over, so that numbers which don't rise can be given twice.
// Mended, new records of such a branch would get other numbers.
QString NextFreeNumber(RecordState& record, const QString& letter, Recordset& records)
{
    int counter = 1;
    const auto candidate = [&] { return DataRef(letter, counter).Text(); };
    for (records.MoveFirst(); !records.Eof(); records.MoveNext()) {
        record.sCurFile = records.Text(Field::File);
        while (SameText(record.sCurFile, candidate()))
            ++counter;
    }
    return candidate();
}

// Its number is chosen among all that stand in the file when nobody else can add one.
void AddSubject(const MappingWork& work)
{
    Recordset& records = Records(work.Form3);
    QString file;
    records.AddNew();
    records.PutWhenWritten(
        Field::File, [&] { return file = NextFreeNumber(work.Record, work.Mapping.sBranchLetter, *records.Afresh()); });
    records.Put(Field::Gender, work.Mapping.NewGender);
    records.Update();
    records.SetBookmark(records.LastModified());
    work.Mapping.NewFile = file;
}

// The box comes after the record, so that it leads to no record that the database has refused.
void MapNewRecord(const MappingWork& work)
{
    AddSubject(work);
    LinkBox(work, PressedBox(work.Map, work.Mouse), work.Mapping.NewFile);
    SaveBoxes(work.Map, work.Branch, work.Files);
}

// Whatever the options said.
void MapFirstRecord(const MappingWork& work)
{
    MapNewRecord(work);
    work.Record.sCurFile = work.Mapping.NewFile;
}

// Nothing, and a box, when no number of four characters was entered, or one that would break the map file. Kept by the
// command: under each further box the scanner puts its own record at hand.
std::optional<QString> TakeEnteredNumber(const MappingWork& work)
{
    const QString number = work.Form7->Text1.Text;
    work.Record.sCurFile = number;
    if (number.size() == numberLength && FitsList(number))
        return number;
    TellNotPresent(work, u"Incorrect Record Number "_s + number);
    return std::nullopt;
}

// False, and a box, when the open database has no such record.
bool StandOnRecord(const MappingWork& work, const QString& number)
{
    if (Records(work.Form3).Seek(Field::File, number))
        return true;
    TellNotPresent(work, u"Record not Found: "_s + number);
    return false;
}

bool MapUnmappedRecord(const MappingWork& work)
{
    const std::optional<QString> number = TakeEnteredNumber(work);
    if (!number || !StandOnRecord(work, *number))
        return false;
    LinkBox(work, PressedBox(work.Map, work.Mouse), *number, Records(work.Form3).Text(Field::Forename));
    work.Mapping.MapOption = newRecord;
    SaveBoxes(work.Map, work.Branch, work.Files);
    return true;
}

bool MapAlternateRecord(const MappingWork& work)
{
    const std::optional<QString> number = TakeEnteredNumber(work);
    if (!number)
        return false;
    const QString letter = number->first(1);
    // Before the box is tied to it.
    if (!TakeOldSibling(work, letter))
        return false;
    const auto sibling =
        ReachDatabase(work.Databases, work.Files, DatabasePath(SiblingDirectory(work.Branch.WorkDir, letter)));
    Records(work.Form3).Seek(Field::File, *number);
    const std::optional<int> row = PressedBox(work.Map, work.Mouse);
    work.Screen.Pointer = MousePointer::Hourglass;
    LinkBox(work, row, *number);
    work.Mapping.PictureOption = leaveUntilLater;
    DrawBoxCaptions(work, MapOnScreen(work.Map, *work.Form1));
    SaveBoxes(work.Map, work.Branch, work.Files);
    SwitchToSibling(work, letter);
    return StandOnRecord(work, *number);
}

bool MapByOption(const MappingWork& work)
{
    switch (work.Mapping.MapOption) {
    case unmappedRecord:
        return MapUnmappedRecord(work);
    case alternateRecord:
        return MapAlternateRecord(work);
    default:
        MapNewRecord(work);
        return true;
    }
}

void NamePictureFile(MappingState& mapping, const BranchState& branch)
{
    mapping.PictureFile = SubjectPictureFile(branch.WorkDir, mapping.NewFile);
}

void CopyBlankPortrait(const MappingWork& work)
{
    work.Files.ChDir(work.Branch.WorkDir);
    const auto changeBack = qScopeGuard([&] { work.Errors.Ignoring([&] { work.Files.ChDir(work.Branch.WorkDir); }); });
    work.Files.ChDir(u".."_s);
    work.Files.FileCopy(work.Files.CurDir() + PathSeparator + u"Tree99.jpg", work.Mapping.PictureFile);
}

// Nothing when the user cancels. The scanner may go on behind the dialog.
std::optional<QString> ChoosePicture(Window<forms::Form3>& recordForm, Prompts& prompts)
{
    const Bookmark subject = Records(recordForm).GetBookmark();
    std::optional<QString> chosen =
        prompts.OpenFile({u"Select Picture Source File"_s, u"DataBase|*.jpg|All Files|*.*|"_s});
    StandOn(Records(recordForm), subject);
    return chosen;
}

void ShowPicture(const BoxWork& work, const QImage& picture)
{
    PutRecordPicture(work.Branch, work.Form3, picture);
    work.Form1->Image1.Picture = picture;
}

// Whoever was shown before has neither picture nor marker any more, whatever becomes of the current record's.
void TakeMarker(const BoxWork& work)
{
    ShowPicture(work, QImage());
    MarkCurrentBox(work);
}

// Without a mapping so far there is no file, and nothing to be seen.
void ShowMappedPicture(const MappingWork& work)
{
    if (const QString& file = work.Mapping.PictureFile; !file.isEmpty())
        ShowPicture(work, work.Pictures.Load(work.Files, file));
    work.Form1->Image1.Visible = true;
    work.Screen.Pointer = MousePointer::Default;
}

// The record is there already and stays, without its picture, when that can't be had: the pointer then stays, too.
void GiveNewSubjectItsPicture(const MappingWork& work)
{
    NamePictureFile(work.Mapping, work.Branch);
    work.Errors.Ignoring([&] { TakeMarker(work); });
    work.Errors.Ignoring([&] {
        if (work.Mapping.PictureOption == selectNow) {
            const std::optional<QString> chosen = ChoosePicture(work.Form3, work.Prompts);
            // A scan that has ended meanwhile has shown its last record.
            TakeMarker(work);
            if (!chosen)
                return;
            work.Files.FileCopy(*chosen, work.Mapping.PictureFile);
        } else if (work.Mapping.MapOption == alternateRecord) {
            ClearMapCursor(work.Tools, work.Screen);
            work.Mapping.MapOption = newRecord;
        } else {
            CopyBlankPortrait(work);
        }
        ShowMappedPicture(work);
    });
}

bool TellIfNothingToMap(const BranchState& branch, Window<forms::Form3>& recordForm, Prompts& prompts)
{
    const bool isNone = !IsBranchOpen(branch, recordForm);
    if (isNone)
        prompts.MsgBox(u"Data not available"_s, u"Cannot Map until database file is Opened"_s, Buttons::Information);
    return isNone;
}
} // namespace

void ShowMappingOptions(const BranchState& branch, Window<forms::Form3>& recordForm, Prompts& prompts,
                        Window<forms::Form7>& options)
{
    if (!TellIfNothingToMap(branch, recordForm, prompts))
        options->Show();
}

void ChooseBlankRecord(forms::Form7& form)
{
    ShowOption(form, &forms::Form7::Option1);
    form.Text1.Text = QString();
}

void ChooseUnmappedRecord(forms::Form7& form)
{
    ShowOption(form, &forms::Form7::Option2);
}

void ChooseAlternateRecord(forms::Form7& form)
{
    ShowOption(form, &forms::Form7::Option3);
}

void TakeMappingOptions(MappingState& mapping, ToolState& tools, Screen& screen, forms::Form7& form)
{
    screen.Pointer = MousePointer::Cross;
    tools.MapCursorMode = MapCursor::Mapping;
    form.Hide();
    if (form.Option1.Value)
        mapping.MapOption = newRecord;
    else if (form.Option2.Value)
        mapping.MapOption = unmappedRecord;
    else if (form.Option3.Value)
        mapping.MapOption = alternateRecord;
    if (form.Option4.Value)
        mapping.NewGender = u"Male"_s;
    else if (form.Option5.Value)
        mapping.NewGender = u"Female"_s;
    if (form.Option6.Value)
        mapping.PictureOption = leaveUntilLater;
    else if (form.Option7.Value)
        mapping.PictureOption = selectNow;
}

void MapNewSubject(const MappingWork& work)
{
    PutRecordPicture(work.Branch, work.Form3, QImage());
    work.Form3->Show();
    work.Mapping.sBranchLetter = BranchLetter(work.Branch.WorkDir);
    if (Records(work.Form3).IsEmpty())
        MapFirstRecord(work);
    else if (!MapByOption(work))
        return;
    GiveNewSubjectItsPicture(work);
    FillSubjectLabels(work.Form1, work.Form3);
    // The record form stays in front, for the new record is to be written now; one of another branch stands there
    // already.
    if (work.Branch.IsSiblingShown())
        work.Form1->Show();
}

void AskSubjectPicture(const MappingWork& work)
{
    const Bookmark asked = Records(work.Form3).GetBookmark();
    const Answer change = work.Prompts.MsgBox(u"New Subject Mapping"_s,
                                              u"This Subject has already been Logged into the Database.\n"
                                              u"Do you want to change the Subject Picture ? "_s,
                                              Buttons::QuestionYesNo);
    if (change != Answer::Yes) {
        StopMapping(work.Tools, work.Screen);
        return;
    }
    work.Errors.Ignoring([&] { StandOn(Records(work.Form3), asked); });
    work.Record.sCurFile = work.Form3->Label25.Caption;
    work.Errors.Ignoring([&] {
        if (work.Mapping.PictureOption == selectNow) {
            NamePictureFile(work.Mapping, work.Branch);
            const std::optional<QString> chosen = ChoosePicture(work.Form3, work.Prompts);
            if (!chosen)
                return;
            work.Files.FileCopy(*chosen, work.Mapping.PictureFile);
        }
        TakeMarker(work);
        ShowMappedPicture(work);
    });
}

void RemapSubject(const BranchState& branch, Window<forms::Form3>& recordForm, Prompts& prompts, ToolState& tools,
                  Screen& screen)
{
    if (TellIfNothingToMap(branch, recordForm, prompts))
        return;
    const Answer begin = prompts.MsgBox(u"Subject re Position"_s,
                                        u"You are about to move the position of a subject. \n"
                                        u"Please ensure that an empty subject box position is \n"
                                        u"available for substitution."_s,
                                        Buttons::InformationOkCancel);
    if (begin != Answer::Ok)
        return;
    tools.MapCursorMode = MapCursor::Repositioning;
    // A cross that a mapping has left would make the first double click the second.
    screen.Pointer = MousePointer::Default;
    const Answer select = prompts.MsgBox(u"Data link Transfer"_s,
                                         u"Select subject old map position then select \n"
                                         u"subject new map position to transfer data link"_s,
                                         Buttons::InformationOkCancel);
    if (select == Answer::Cancel)
        ClearMapCursor(tools, screen);
}

} // namespace lineforge
