#include "map/MapPlayer.h"

// What is done by the mouse on the map.
namespace lineforge
{

using namespace Qt::StringLiterals;

// As often as not on a grid, on which edges meet.
Point MapPlayer::AnyPoint()
{
    const Point at{Any(-600, side + 600), Any(-600, side + 600)};
    return OneIn(2) ? Point{at.X / 100 * 100, at.Y / 100 * 100} : at;
}

Point MapPlayer::AnyGripOfBox()
{
    const auto& box = P.Map.BoxArr[Any(0, std::clamp(P.Map.SBoxes, 0, LastMapRow))];
    const Point corner{box[BoxColumn::X].NumberOr(0), box[BoxColumn::Y].NumberOr(0)};
    // On its edges, too, and just beside them.
    return {corner.X + (OneIn(4) ? Any(0, 1) * 615 + Any(-1, 1) : Any(1, 614)),
            corner.Y + (OneIn(4) ? Any(0, 1) * 217 + Any(-1, 1) : Any(1, 216))};
}

Point MapPlayer::AnyGripOfText()
{
    const auto& text = P.Map.TextArr[Any(0, std::clamp(P.Map.STexts, 0, LastMapRow))];
    return {text[TextColumn::X].NumberOr(0) + Any(-2, 602), text[TextColumn::Y].NumberOr(0) + Any(-2, 102)};
}

Point MapPlayer::AnyGripOfLine()
{
    const auto& line = P.Map.LineArr[Any(0, std::clamp(P.Map.SLines, 0, LastMapRow))];
    return {(line[LineColumn::X1] + line[LineColumn::X2]) / 2 + Any(-22, 22),
            (line[LineColumn::Y1] + line[LineColumn::Y2]) / 2 + Any(-22, 22)};
}

// More often than not a place where something can be hit.
Point MapPlayer::AnyPress()
{
    switch (Any(0, 7)) {
    case 0:
    case 1:
    case 2:
        return AnyGripOfBox();
    case 3:
        return AnyGripOfText();
    case 4:
    case 5:
        return AnyGripOfLine();
    default:
        return AnyPoint();
    }
}

int MapPlayer::AnyShift()
{
    return (OneIn(4) ? ShiftMask::Ctrl : 0) + (OneIn(4) ? ShiftMask::Shift : 0);
}

void MapPlayer::Press(Point at, int shift)
{
    Do(
        u"press %1,%2 %3"_s.arg(at.X).arg(at.Y).arg(shift),
        [&] { P.Form1->Picture1.MouseDown(Any(1, 2), shift, at.X + 0.5, at.Y + 0.5); },
        [&] { model_.Press(shift, at.X + 0.5, at.Y + 0.5); });
}

void MapPlayer::Move(Point at, int shift, bool isButtonDown)
{
    Do(
        u"move %1,%2 %3 %4"_s.arg(at.X).arg(at.Y).arg(shift).arg(isButtonDown),
        [&] { P.Form1->Picture1.MouseMove(isButtonDown ? 1 : 0, shift, at.X + 0.5, at.Y + 0.5); },
        [&] { model_.Move(isButtonDown, shift, at.X + 0.5, at.Y + 0.5); });
}

void MapPlayer::Release(Point at)
{
    Do(
        u"release %1,%2"_s.arg(at.X).arg(at.Y), [&] { P.Form1->Picture1.MouseUp(1, 0, at.X + 0.5, at.Y + 0.5); },
        [&] { model_.Release(at.X + 0.5, at.Y + 0.5); });
}

void MapPlayer::DoubleClick(Point at)
{
    Press(at, 0);
    Release(at);
    Do(
        u"double click"_s, [&] { P.Form1->Picture1.DblClick(); }, [&] { model_.DoubleClick(); });
    Release(at);
}

void MapPlayer::MakeGesture()
{
    Point at = AnyPress();
    if (!OneIn(20))
        Press(at, AnyShift());
    for (int moves = Any(0, 4); moves > 0; --moves) {
        at = OneIn(3) ? AnyPress() : AnyPoint();
        Move(at, AnyShift(), !OneIn(30));
        if (OneIn(40))
            PressButton();
        if (OneIn(60))
            Press(at, AnyShift());
    }
    // One that a box has swallowed is told by the next event.
    if (!OneIn(30))
        Release(at);
    if (OneIn(15))
        DoubleClick(at);
}

} // namespace lineforge
