#include "map/MapModelCells.h"

#include <algorithm>

// What press, moves and release are to the tools of the model.
namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int shiftKey = 1;
constexpr int ctrlKey = 2;
constexpr unsigned paper = 0xFFFFFF;
constexpr unsigned darkGrey = 0x808080;

// A button that is held takes the mouse off the picture, and no further than this.
int Clamped(double twips)
{
    return static_cast<int>(std::clamp(twips, -8000.0, 16000.0));
}

void Carry(QString& cell, int delta)
{
    cell = QString::number(*NumberIn(cell) + delta);
}

// The first above the count that is free: after a deletion items stand above it, which keep their rows.
template <class Rows, class IsFreeRow>
int RowForNew(Rows& rows, int count, IsFreeRow&& isFree)
{
    int row = count + 1;
    while (row <= MapModel::LastRow && !isFree(At(rows, row)))
        ++row;
    return row;
}

void Carry(MapModel::Line& line, Point delta)
{
    line[0] += delta.X;
    line[1] += delta.Y;
    line[2] += delta.X;
    line[3] += delta.Y;
}

} // namespace

void MapModel::Press(int shift, double x, double y)
{
    FinishGesture();
    IsPressed = true;
    Down = {Clamped(x), Clamped(y)};
    if (ToolMode == 3) {
        PressTool(shift, Down);
        return;
    }
    if (SBoxes == 0)
        return;
    BoxMiss = 0;
    for (int row = 0; row <= SBoxes; ++row) {
        if (IsInBox(row)) {
            ++Sounds;
            return;
        }
    }
}

void MapModel::PressTool(int shift, Point at)
{
    switch (ToolSel) {
    case 7: {
        CountSave = SLines;
        SLines = RowForNew(Lines, SLines, [](const Line& line) { return line[0] == 0; });
        if ((shift & ctrlKey) != 0) {
            const bool isKnown = DrawnLast && At(Lines, *DrawnLast)[0] != 0;
            int row = isKnown ? *DrawnLast : SLines - 1;
            while (row >= 0 && At(Lines, row)[0] == 0)
                --row;
            const Line before = row < 0 ? Line{} : At(Lines, row);
            Down = {Clamped(before[2]), Clamped(before[3])};
        }
        At(Lines, SLines)[0] = Down.X;
        At(Lines, SLines)[1] = Down.Y;
        PenSave = Pen;
        break;
    }
    case 17:
    case 27:
        if (!TakesChain())
            return;
        Last = at;
        break;
    case 8:
        SBoxes = RowForNew(Boxes, SBoxes, IsFree);
        PenSave = Pen;
        Pen = DialogColour;
        break;
    case 18:
    case 28:
        if (!TakesBox())
            return;
        Last = at;
        break;
    case 9:
        PlaceText();
        return;
    case 19:
    case 29:
        if (!TakesText())
            return;
        Last = at;
        PenSave = Pen;
        FontSave = PenFont;
        break;
    case 1:
        Zone = {Down.X, Down.Y, 0, 0};
        IsZoneShown = true;
        break;
    default:
        break;
    }
    ToolStep = -1;
}

bool MapModel::TakesBox()
{
    if (!FindsBox())
        return false;
    const QString file = At(Boxes, BoxIdx)[3];
    if (ToolSel == 28 && file == u"0")
        return false;
    const int before = Cursor;
    const bool isFound = !Table().empty() && Seek(file);
    if (isFound && ToolSel == 28) {
        Tell(u"Tree Box deletion"_s, u"You must delete or transfer the Record for this subject \n"
                                     u"before deleting the subject box."_s);
        BoxMiss = 1;
        // Behind the last row there is nothing to stay on.
        if (before < static_cast<int>(Table().size()))
            Cursor = before;
        return false;
    }
    if (isFound) {
        CurFile = file;
        Saved = Cursor;
        CursorMode = 3;
    } else {
        Cursor = before;
    }
    // The caption is printed over, in Arial 8.
    if (HasCaption(BoxIdx))
        PenFont = {};
    PenSave = Pen;
    return true;
}

void MapModel::PlaceText()
{
    STexts = RowForNew(Texts, STexts, IsFree);
    At(Texts, STexts) = {QString::number(Down.X),
                         QString::number(Down.Y - 50),
                         Next.Text.isNull() ? u""_s : Next.Text,
                         PenFont.Name,
                         QString::number(PenFont.Size),
                         QString::number(DialogColour)};
}

void MapModel::Move(bool isButtonDown, int shift, double x, double y)
{
    // A box has swallowed the release.
    if (!isButtonDown) {
        FinishGesture();
        return;
    }
    const Point at{Clamped(x), Clamped(y)};
    if (ToolStep == 0)
        return;
    if (ToolSel == 1) {
        Moved = at;
        Zone.Height = std::abs(at.Y - Down.Y);
        Zone.Width = std::abs(at.X - Down.X);
        if (at.X < Down.X)
            Zone.Left = Down.X - Zone.Width;
        if (at.Y < Down.Y)
            Zone.Top = Down.Y - Zone.Height;
    } else if (ToolSel == 3 || ToolSel == 4) {
        DragZone(at);
    } else if (ToolMode == 3 && ToolSel != 0) {
        Moved = at;
        MoveTool(shift, at);
    }
}

// The zone carries what lay inside at its first step.
void MapModel::DragZone(Point at)
{
    const auto isInside = [&](std::optional<int> x, std::optional<int> y) {
        return x && y && *x != 0 && IsBetween(*x, Kept.Left, Kept.Left + Kept.Width) &&
               IsBetween(*y, Kept.Top, Kept.Top + Kept.Height);
    };
    if (ToolSel == 3) {
        ZoneTexts.clear();
        ZoneBoxes.clear();
        ZoneLines.clear();
        for (int row = 0; row <= 199; ++row) {
            if (isInside(NumberIn(At(Texts, row)[0]), NumberIn(At(Texts, row)[1])))
                ZoneTexts.push_back(row);
            if (isInside(NumberIn(At(Boxes, row)[0]), NumberIn(At(Boxes, row)[1])))
                ZoneBoxes.push_back(row);
            if (isInside(At(Lines, row)[0], At(Lines, row)[1]))
                ZoneLines.push_back(row);
        }
    }
    IsMarkerShown = false;
    Zone.Left += at.X - Down.X;
    Zone.Top += at.Y - Down.Y;
    Down = at;
    const Point delta{Zone.Left - Kept.Left, Zone.Top - Kept.Top};
    for (const int row : ZoneTexts) {
        Carry(At(Texts, row)[0], delta.X);
        Carry(At(Texts, row)[1], delta.Y);
    }
    for (const int row : ZoneBoxes) {
        Carry(At(Boxes, row)[0], delta.X);
        Carry(At(Boxes, row)[1], delta.Y);
    }
    for (const int row : ZoneLines)
        Carry(At(Lines, row), delta);
    Kept.Left = Zone.Left;
    Kept.Top = Zone.Top;
    ToolSel = 4;
}

void MapModel::MoveTool(int shift, Point at)
{
    const Point delta{at.X - Last.X, at.Y - Last.Y};
    if (ToolSel == 7) {
        StretchLine(shift, at);
    } else if (ToolSel == 17 && LineMiss == 0) {
        for (const int row : Chain)
            Carry(At(Lines, row), delta);
        Mode = 10;
        Last = at;
    } else if (ToolSel == 18 && BoxMiss == 0) {
        Carry(At(Boxes, BoxIdx)[0], delta.X);
        Carry(At(Boxes, BoxIdx)[1], delta.Y);
        Mode = 10;
        Last = at;
    } else if (ToolSel == 19 && TextMiss == 0) {
        // Wiped in its own font, which stays in the hand when it is Arial.
        if (const Cells& text = At(Texts, TextIdx); Mode != 7)
            PenFont = text[3] == u"Arial" ? Font{text[3], text[4].toDouble()} : Font{};
        Carry(At(Texts, TextIdx)[0], delta.X);
        Carry(At(Texts, TextIdx)[1], delta.Y);
        Mode = 7;
        Pen = darkGrey;
        Last = at;
    }
}

void MapModel::StretchLine(int shift, Point at)
{
    if ((shift & shiftKey) != 0) {
        if (std::abs(at.X - Down.X) > std::abs(at.Y - Down.Y))
            Moved.Y = Down.Y;
        if (std::abs(Moved.Y - Down.Y) > std::abs(Moved.X - Down.X))
            Moved.X = Down.X;
    }
    Line& line = At(Lines, SLines);
    line = {Down.X, Down.Y, Moved.X, Moved.Y, line[4]};
    Pen = DialogColour;
}

void MapModel::Release(double x, double y)
{
    if (CursorMode <= 2) {
        const Point at{Clamped(x), Clamped(y)};
        Released = {at.X - 307, at.Y - 108};
        Coordinates = QString(u"%1 %2 %3,%4"_s).arg(at.X).arg(at.Y).arg(Released.X).arg(Released.Y);
    }
    FinishGesture();
}

// Any event that shows that the release has been missed stands for it.
void MapModel::FinishGesture()
{
    if (!IsPressed)
        return;
    IsPressed = false;
    if (ToolMode == 3 || ToolSel == 1 || ToolSel == 4)
        ReleaseTool();
    else if (ToolSel != 0)
        PromiseLess(Promise::Nothing); // the tools were left to themselves in the middle of it
}

void MapModel::ReleaseTool()
{
    bool isPainted = true;
    switch (ToolSel) {
    case 1:
        isPainted = false;
        FixZone();
        break;
    case 4:
        isPainted = false;
        DropZone();
        break;
    case 7:
        isPainted = EndLine();
        break;
    case 17:
        Mode = 13;
        break;
    case 27:
        DeleteChain();
        break;
    case 8:
        EndBox();
        break;
    case 18:
        DropBox();
        break;
    case 28:
        DeleteBox();
        break;
    case 19:
    case 29:
        EndText();
        break;
    default:
        break;
    }
    if (isPainted)
        Redraw();
    ToolStep = 0;
}

void MapModel::FixZone()
{
    ToolSel = 3;
    Kept = Zone;
    Pointer = 5;
}

void MapModel::DropZone()
{
    ToolSel = 0;
    IsZoneShown = false;
    Sunken[2] = false;
    Redraw();
    PaintOnBlankPaper(Promise::Whole);
    CursorMode = 0;
    Pointer = 0;
}

// False when it is too short to be one: then nothing is painted again.
bool MapModel::EndLine()
{
    if (std::abs(Moved.X - Down.X) < 100 && std::abs(Moved.Y - Down.Y) < 50) {
        At(Lines, SLines) = {};
        SLines = CountSave;
        Pen = PenSave;
        PromiseLess(Promise::Holes);
        return false;
    }
    At(Lines, SLines) = {Down.X, Down.Y, Moved.X, Moved.Y, static_cast<int>(Pen)};
    DrawnLast = SLines;
    Pen = PenSave;
    return true;
}

void MapModel::DeleteChain()
{
    if (LineMiss != 0)
        return;
    for (const int row : Chain)
        At(Lines, row) = {};
    --SLines;
}

void MapModel::EndBox()
{
    Cells& box = At(Boxes, SBoxes);
    box = {QString::number(Down.X - 307), QString::number(Down.Y - 108), QString::number(Pen), u"0"_s, u""_s};
    Pen = PenSave;
}

void MapModel::DropBox()
{
    if (BoxMiss != 0)
        return;
    Mode = 13;
    if (CursorMode != 3)
        return;
    ComeBack();
    Pen = 0;
    // At the left edge the box is free, and has no caption.
    if (IsPlaced(At(Boxes, BoxIdx)))
        PenFont = {};
    CursorMode = 0;
}

void MapModel::DeleteBox()
{
    if (BoxMiss != 0)
        return;
    Cells& box = At(Boxes, BoxIdx);
    box = {u"0"_s, u"0"_s, u"0"_s, u"0"_s, box[4]};
    --SBoxes;
}

void MapModel::EndText()
{
    if (TextMiss != 0)
        return;
    if (ToolSel == 29) {
        At(Texts, TextIdx).fill(u"0"_s);
        --STexts;
    } else {
        Mode = 13;
    }
    Pen = PenSave;
    PenFont = FontSave;
}

} // namespace lineforge
