#include "map/MapModelCells.h"

#include <algorithm>

// Double clicks, mapping and the way to the record form and back, in the model.
namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int cross = 2;
}

// After press and release of the first click.
void MapModel::DoubleClick()
{
    if (ToolMode == 3)
        return;
    if (CursorMode == 2 && Pointer == cross) {
        if (FinishTransfer())
            MarkSubject();
        return;
    }
    if (UsingAlternate)
        ReturnToOwnBranch();
    if (CursorMode == 1 && Table().empty()) {
        MapNewSubject();
        return;
    }
    HitBox();
    // With one box there is none to be chosen.
    CurFile = SBoxes != 0 && BoxMiss == 0 ? At(Boxes, BoxIdx)[3] : QString();
    if (CurFile.isEmpty())
        return;
    if (CursorMode == 1)
        MapPressedBox();
    else if (CurFile != u"0" || CursorMode != 0)
        ShowPressedSubject();
}

void MapModel::ReturnToOwnBranch()
{
    PointAt(u'A');
    UsingAlternate = false;
}

// A miss leaves the transfer pending, and so does a box that isn't saved.
bool MapModel::FinishTransfer()
{
    if (Table().empty()) {
        Tell(u"Database Empty"_s, u"The Database has no records to access"_s);
        ClearCursor();
        return false;
    }
    if (!HasRow()) {
        ClearCursor();
        return false;
    }
    int pressed = 0;
    while (pressed <= SBoxes && !IsInBox(pressed))
        ++pressed;
    if (SBoxes == 0 || pressed > SBoxes || pressed > 99)
        return false;
    const QString file = CurrentFile();
    const QString forename = Filed(Table()[static_cast<std::size_t>(Cursor)].Forename);
    // The last box can't be erased, but one of another branch; of several that is the one that was pressed first.
    const bool isPressedFirst = UsingAlternate && BoxIdx <= LastRow && IsSame(At(Boxes, BoxIdx)[3], file);
    const int old = isPressedFirst ? BoxIdx : RowOfCurrent();
    if (isPressedFirst || old < (UsingAlternate ? 100 : 99)) {
        At(Boxes, old)[3] = u"0"_s;
        At(Boxes, old)[4] = u""_s;
    }
    HitBox();
    At(Boxes, BoxIdx)[3] = file;
    At(Boxes, BoxIdx)[4] = forename;
    Pen = 0;
    PenFont = {};
    PromiseLess(Promise::Holes);
    SaveBoxes();
    // The other branch is opened afresh, on the same record.
    if (UsingAlternate) {
        PointAt(Branch);
        Seek(file);
    }
    ClearCursor();
    return true;
}

// A subject without a gender leaves the marker alone.
void MapModel::MarkSubject()
{
    if (!HasRow() || Table()[static_cast<std::size_t>(Cursor)].Gender.isEmpty())
        return;
    MarkCurrentBox();
    if (CursorMode == 2)
        Pointer = cross;
}

bool MapModel::GoToBranchOf(const QString& file)
{
    const QChar letter = file[0].toUpper();
    if (letter == Branch)
        return true;
    if (letter != u'A' && letter != u'B') {
        Tell(u"External Record not present."_s,
             u"Cannot Access this External Database and subject.\n<home>LfgDat_%1/LfgDat_%1.mdb not present."_s.arg(
                 file[0]));
        return false;
    }
    PointAt(letter);
    UsingAlternate = true;
    return true;
}

void MapModel::ShowPressedSubject()
{
    if (!GoToBranchOf(CurFile))
        return;
    if (Table().empty()) {
        Tell(u"Database Empty"_s, u"This Tree Branch has no records to access"_s);
        return;
    }
    KeepPosition();
    if (!Seek(CurFile)) {
        Tell(u"Database Searched"_s, u"No File data found"_s);
        ComeBack();
        return;
    }
    ShowRecord();
    MarkSubject();
}

void MapModel::ShowRecord()
{
    CurFile = CurrentFile();
    if (!HasPicture(Branch, CurFile))
        Tell(u"Image not Present"_s, u"Searched Image File for "_s + CurFile + u"Sub.Jpg"_s);
}

void MapModel::MapSubject(const Mapping& mapping)
{
    OpenTreeMenu();
    Pointer = cross;
    CursorMode = 1;
    MapOption = mapping.Option;
    Entered = mapping.Number;
    NewGender = mapping.Gender;
    PictureOption = mapping.SelectsPicture ? 6 : 7;
}

void MapModel::MapPressedBox()
{
    if (!CurFile.startsWith(u'0')) {
        if (!GoToBranchOf(CurFile))
            return;
        if (Table().empty()) {
            Tell(u"Database Empty"_s, u"This Tree Branch has no records to access"_s);
            return;
        }
        KeepPosition();
    }
    if (Seek(CurFile))
        AskPicture();
    else
        MapNewSubject();
}

void MapModel::StopMapping()
{
    CursorMode = 0;
    Pointer = 0;
}

// Beside all boxes the number goes into none; a lone box isn't searched for.
void MapModel::Link(const QString& file, const QString& forename)
{
    NewFile = file;
    HitBox();
    const int row = SBoxes == 0 ? 0 : BoxIdx;
    if (SBoxes == 0 ? !IsInBox(0) : BoxMiss != 0)
        return;
    // The new caption comes with the way back from the record form.
    PromiseLess(Promise::Holes);
    if (HasCaption(row)) {
        Pen = 0;
        PenFont = {};
    }
    At(Boxes, row)[3] = file;
    At(Boxes, row)[4] = Filed(forename);
}

QString MapModel::NextFreeNumber()
{
    int counter = 1;
    const auto candidate = [&]() -> QString { return Branch + QString::number(counter).rightJustified(3, u'0'); };
    for (const Record& record : Table()) {
        CurFile = record.File;
        while (record.File.compare(candidate(), Qt::CaseInsensitive) == 0)
            ++counter;
    }
    return candidate();
}

void MapModel::MapNewSubject()
{
    const auto addRecord = [this](const QString& file) {
        Table().push_back({file, {}, NewGender});
        Cursor = static_cast<int>(Table().size()) - 1;
    };
    if (Table().empty()) {
        CurFile = Branch + u"001"_s;
        Link(CurFile);
        SaveBoxes();
        addRecord(CurFile);
    } else if (MapOption == 0) {
        const QString file = NextFreeNumber();
        Link(file);
        addRecord(file);
        SaveBoxes();
    } else if (!MapExisting()) {
        return;
    }
    GivePicture();
}

bool MapModel::StandsOnEntered()
{
    if (Seek(CurFile))
        return true;
    Tell(u"Record not Present"_s, u"Record not Found: "_s + CurFile);
    StopMapping();
    return false;
}

bool MapModel::MapExisting()
{
    CurFile = Entered;
    if (CurFile.size() != 4 || Filed(CurFile) != CurFile) {
        Tell(u"Record not Present"_s, u"Incorrect Record Number "_s + CurFile);
        StopMapping();
        return false;
    }
    if (MapOption == 1) {
        if (!StandsOnEntered())
            return false;
        Link(CurFile, Table()[static_cast<std::size_t>(Cursor)].Forename);
        MapOption = 0;
        SaveBoxes();
        return true;
    }
    Seek(CurFile);
    Link(CurFile);
    Pointer = 11;
    PictureOption = 7;
    // The numbers alone, without a walk through the table.
    bool isAnyDrawn = HasRow() && RowOfCurrent() <= 99;
    for (int row = 0; row <= 99; ++row)
        isAnyDrawn = isAnyDrawn || (HasCaption(row) && IsOfOtherBranch(row));
    if (isAnyDrawn) {
        Pen = 0;
        PenFont = {};
    }
    SaveBoxes();
    PointAt(CurFile[0].toUpper());
    UsingAlternate = true;
    return StandsOnEntered();
}

void MapModel::GivePicture()
{
    MappedPicture = {Branch, NewFile};
    MarkCurrentBox();
    if (PictureOption == 6) {
        if (Next.ChoosesPicture) {
            AddPicture(Branch, NewFile);
            ShowPicture();
        }
    } else if (MapOption == 2) {
        ClearCursor();
        MapOption = 0;
        ShowPicture();
    } else {
        AddPicture(Branch, NewFile);
        ShowPicture();
    }
}

// One that isn't there leaves the pointer alone.
void MapModel::ShowPicture()
{
    if (MappedPicture && !HasPicture(MappedPicture->first, MappedPicture->second))
        return;
    Pointer = 0;
}

void MapModel::AskPicture()
{
    Tell(u"New Subject Mapping"_s, u"This Subject has already been Logged into the Database.\n"
                                   u"Do you want to change the Subject Picture ? "_s);
    if (!Next.ChangesPicture) {
        StopMapping();
        return;
    }
    CurFile = CurrentFile();
    if (PictureOption == 6) {
        MappedPicture = {Branch, NewFile};
        if (!Next.ChoosesPicture)
            return;
        AddPicture(Branch, NewFile);
    }
    MarkCurrentBox();
    ShowPicture();
}

void MapModel::Remap()
{
    OpenTreeMenu();
    Tell(u"Subject re Position"_s, u"You are about to move the position of a subject. \n"
                                   u"Please ensure that an empty subject box position is \n"
                                   u"available for substitution."_s);
    if (!Next.Begins)
        return;
    CursorMode = 2;
    Pointer = 0;
    Tell(u"Data link Transfer"_s, u"Select subject old map position then select \n"
                                  u"subject new map position to transfer data link"_s);
    if (!Next.Selects)
        ClearCursor();
}

void MapModel::PressRecords()
{
    if (ToolMode == 3)
        LeaveTools();
    CurFile = CurrentFile();
    ShownForename = HasRow() ? Table()[static_cast<std::size_t>(Cursor)].Forename : QString();
    ClearCursor();
    Pointer = 0;
}

// The name in the first box of the current record.
void MapModel::RenameCurrent(const QString& forename)
{
    const int row = HasRow() ? RowOfCurrent() : 100;
    if (row > 99)
        return;
    At(Boxes, row)[4] = Filed(forename);
    Pen = 0;
    PenFont = {};
    PromiseLess(Promise::Holes);
}

void MapModel::RenameInList(const QString& file, const QString& forename)
{
    QStringList values = BoxesList.split(u',');
    for (qsizetype at = 0; at + 4 < values.size(); at += 5) {
        if (!file.isEmpty() && IsSame(values[at + 3], file)) {
            values[at + 4] = Filed(forename);
            break;
        }
    }
    BoxesList = values.join(u',');
}

void MapModel::PressTree(const std::optional<QString>& typedForename)
{
    if (HasRow() && typedForename) {
        Table()[static_cast<std::size_t>(Cursor)].Forename = *typedForename;
        // Another box of the record keeps the old name until the map is painted on blank paper.
        PromiseLess(Promise::Nothing);
    }
    const QString forename = HasRow() ? Table()[static_cast<std::size_t>(Cursor)].Forename : QString();
    if (forename.compare(ShownForename, Qt::CaseInsensitive) != 0) {
        RenameCurrent(forename);
        // What is drawn with the tools is saved by them alone.
        if (AreImagesShown)
            RenameInList(CurrentFile(), forename);
        else
            BoxesList = ListOfBoxes();
    }
    if (CursorMode == 1) {
        KeepPosition();
        ComeBack();
        if (HasRow())
            RenameCurrent(Table()[static_cast<std::size_t>(Cursor)].Forename);
        CursorMode = 0;
    }
    ShowRecord();
    // A new page of the gallery is asked for from the start.
    MarkCurrentBox();
}

} // namespace lineforge
