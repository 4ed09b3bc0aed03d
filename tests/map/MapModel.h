#pragma once

#include "platform/drawing/Geometry.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <array>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace lineforge
{

// The map as it is told in words, carried out step by step: what each press, move, release, double click and button
// does to arrays, counts, pen, pointer, current record and map file. It knows nothing of the program's own routines, so
// that a player of random gestures can hold the one against the other.
class MapModel
{
public:
    static constexpr int LastRow = 200;

    using Cells = std::array<QString, 6>; // null: nothing has been stored, which counts as 0
    using Line = std::array<int, 5>;
    struct Record {
        QString File;
        QString Forename;
        QString Gender;
    };
    struct Font {
        QString Name = QStringLiteral("Arial");
        double Size = 8;
        friend bool operator==(const Font&, const Font&) = default;
    };

    // What the user says to whatever is asked next.
    struct Answers {
        QString Text; // of a new text
        std::optional<unsigned> ChosenColour;
        std::optional<Font> ChosenFont;
        bool Saves = false;          // the changes of the tools
        bool ChangesPicture = false; // of a subject that has a box already
        bool ChoosesPicture = false; // or cancels the dialog
        bool Begins = true;          // a re-positioning
        bool Selects = true;         // and goes on with it
    };
    // What is chosen in the window of the mapping.
    struct Mapping {
        int Option = 0; // 0 new, 1 unmapped, 2 of another branch
        QString Number;
        QString Gender;
        bool SelectsPicture = false;
    };

    // The open branch is A; B stands beside it, and no other.
    MapModel(std::vector<Record> ofA, std::vector<Record> ofB);

    void OpenBranch(const QString& boxes, const QString& lines, const QString& texts);
    void OpenAgain(); // from the file
    void StepToNextRecord();
    void SearchInVain(); // the cursor ends behind the last record
    void OpenTools();
    void PressImage(int image); // 2 to 9
    void OpenTreeMenu();
    void PressView(); // of a surname that nobody bears
    void PressClear();
    void Press(int shift, double x, double y);
    void Move(bool isButtonDown, int shift, double x, double y);
    void Release(double x, double y);
    void DoubleClick();
    void MapSubject(const Mapping& mapping);
    void Remap();
    void PressRecords();
    void PressTree(const std::optional<QString>& typedForename);

    QString CurrentFile() const; // empty: none

    Answers Next;
    QStringList Told; // title and text of each box

    std::array<Cells, LastRow + 1> Boxes;
    std::array<Line, LastRow + 1> Lines{};
    std::array<Cells, LastRow + 1> Texts;
    int SBoxes = 0;
    int SLines = 0;
    int STexts = 0;
    QString BoxesList;
    QString LinesList;
    QString TextsList;
    std::array<QString, 3> File; // the lists as they stand there

    int ToolMode = 0;
    int ToolSel = 0;
    int ToolStep = 0;
    int CursorMode = 0;
    Point Down;
    Point Moved;
    int BoxIdx = 0;
    int BoxMiss = 0;
    int TextIdx = 0;
    int TextMiss = 0;
    int LineMiss = 0;
    std::vector<int> Chain{0};
    int Pointer = 0;
    unsigned Pen = 0;
    int Mode = 13;
    Font PenFont;
    unsigned DialogColour = 0;
    Rectangle Zone; // the rubber rectangle as it is seen
    bool IsZoneShown = false;
    bool IsMarkerShown = false;
    Point Marker;
    QString Coordinates; // of the three fields
    std::map<int, bool> Sunken;
    bool AreImagesShown = false;
    int Sounds = 0;

    // What is promised of the picture while no gesture is going on.
    enum class Promise {
        Opened, // it is the lists drawn on blank paper one after the other, captions beneath lines and texts
        Whole,  // it is the arrays painted on blank paper, captions above all
        Holes,  // something was wiped together with something else, which the next painting brings back
        Nothing // something may stand on it that is in no array any more
    };
    Promise Picture = Promise::Opened;
    bool IsPressed = false;

    bool UsingAlternate = false;
    std::map<QChar, std::vector<Record>> Tables;
    QString CurFile;

private:
    // Lists and file.
    QString ListOfBoxes() const;
    QString ListOfLines() const;
    QString ListOfTexts() const;
    void WriteFile();
    void SaveBoxes();
    void EraseItems();
    void ParseBoxes();
    void ParseLines();
    void ParseTexts();
    void Redraw();
    void DrawCaptions();
    bool HasCaption(int row) const;
    void PaintOnBlankPaper(Promise picture);
    void PromiseLess(Promise picture);
    bool IsPaintedWhole() const;
    bool IsAnyCaptionDrawn() const;
    bool IsOfOtherBranch(int row) const;
    bool IsInTable(int row) const;

    // Records.
    void AddPicture(QChar branch, const QString& file);
    bool HasPicture(QChar branch, const QString& file) const;
    std::vector<Record>& Table() { return Tables[Branch]; }
    const std::vector<Record>& Table() const { return Tables.at(Branch); }
    bool HasRow() const { return Cursor < static_cast<int>(Table().size()); }
    bool Seek(const QString& file);
    void KeepPosition();
    void ComeBack();
    void PointAt(QChar branch);
    int RowOfCurrent() const;
    void MarkCurrentBox();

    // Tools.
    void LeaveTools();
    void PressTool(int shift, Point at);
    bool TakesBox();
    bool TakesText();
    bool TakesChain();
    void PlaceText();
    void MoveTool(int shift, Point at);
    void DragZone(Point at);
    void StretchLine(int shift, Point at);
    void FinishGesture();
    void ReleaseTool();
    void FixZone();
    void DropZone();
    bool EndLine();
    void DeleteChain();
    void EndBox();
    void DropBox();
    void DeleteBox();
    void EndText();
    void ChooseItem(int image, int draw);
    void ChooseMove();
    void ChooseDelete();
    void Raise(const std::vector<int>& images);
    void HitBox();
    bool FindsBox();
    void HitText();
    void HitLine();
    void BuildChain();
    bool IsInBox(int row) const;
    void ClearCursor();

    // Subjects.
    void Tell(const QString& title, const QString& text) { Told += title + u'|' + text; }
    void ReturnToOwnBranch();
    bool GoToBranchOf(const QString& file);
    bool FinishTransfer();
    void MarkSubject();
    void ShowRecord();
    void MapPressedBox();
    void ShowPressedSubject();
    void MapNewSubject();
    bool MapExisting();
    bool StandsOnEntered();
    QString NextFreeNumber();
    void Link(const QString& file, const QString& forename = {});
    void GivePicture();
    void ShowPicture();
    void AskPicture();
    void StopMapping();
    void RenameCurrent(const QString& forename);
    void RenameInList(const QString& file, const QString& forename);

    unsigned PenSave = 0;
    int CountSave = 0;            // of the lines
    std::optional<int> DrawnLast; // of their rows
    Font FontSave;
    Point Last;
    Rectangle Kept;
    std::vector<int> ZoneBoxes;
    std::vector<int> ZoneLines;
    std::vector<int> ZoneTexts;
    Point Released; // the corner of a box centred on the last release

    QChar Branch = u'A';
    int Cursor = 0;
    std::optional<int> Saved;
    std::optional<int> AtOpening;
    int MapOption = 0;
    int PictureOption = 0; // 6 now, 7 later
    QString NewGender;
    QString NewFile;
    std::optional<std::pair<QChar, QString>> MappedPicture; // of the last mapping
    QSet<QString> Pictures;                                 // those that are there, by branch and number
    QString Entered;
    QString ShownForename;
};

} // namespace lineforge
