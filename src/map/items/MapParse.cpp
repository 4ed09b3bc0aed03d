#include "map/items/MapParse.h"

#include "forms/Form1.h"
#include "map/items/BoxCaptions.h"
#include "map/items/MapItems.h"
#include "map/items/MapValues.h"
#include "platform/base/Number.h"
#include "program/branch/ComeBackAfterwards.h"

namespace lineforge
{

namespace
{
// The highest row that `rows` filled rows can have reached in an array.
int HighestRow(int rows)
{
    return std::min(rows - 1, LastMapRow);
}

void DrawAllCaptions(Program& p)
{
    p.Errors.Ignoring([&] { KeepPosition(p.Record, Records(p.Form3)); });
    p.Errors.Ignoring([&] { DrawBoxCaptions(p, MapOnScreen(p)); });
    p.Errors.Ignoring([&] { DrawOwnCaptions(p, MapOnScreen(p)); });
    p.Errors.Ignoring([&] { ComeBack(p.Record, p.Form3); });
}

// How many lines can be read before the list breaks off.
int WholeLines(const QString& list)
{
    int whole = 0;
    try {
        ForEachValue(list, LineColumn::Count, [&](int row, int column, const QString& value) {
            ToLong(value);
            if (column == LineColumn::Colour)
                whole = row + 1;
        });
    } catch (const RuntimeError&) {
        // That is the end of them.
    }
    return std::min(whole, LastMapRow + 1);
}
} // namespace

void ParseBoxes(Program& p)
{
    if (CountsAsEmpty(p.Map.sBoxesText))
        return;
    const MapSheet screen = MapOnScreen(p);
    const int rows = ForEachValue(p.Map.sBoxesText, BoxColumn::Count, [&](int row, int column, const QString& value) {
        if (row > LastMapRow)
            return;
        p.Map.BoxArr[row][column] = value;
        // The outline needs no more than the columns before the record's.
        if (column == BoxColumn::File)
            p.Errors.Ignoring([&] { DrawBox(p.Map, screen, row); });
    });
    p.Map.SBoxes = HighestRow(rows);
    DrawAllCaptions(p);
}

void ParseLines(Program& p)
{
    p.Form1->Picture1.ForeColor = Black;
    if (CountsAsEmpty(p.Map.sLinesText))
        return;
    const MapSheet screen = MapOnScreen(p);
    const int rows = ForEachValue(p.Map.sLinesText, LineColumn::Count, [&](int row, int column, const QString& value) {
        p.Map.LineArr[row][column] = ToLong(value);
        if (column == LineColumn::Colour)
            DrawLine(p.Map, screen, row);
    });
    p.Map.SLines = rows - 1;
}

void ParseTexts(Program& p)
{
    p.Map.STexts = -1;
    if (CountsAsEmpty(p.Map.sTextsText))
        return;
    const MapSheet screen = MapOnScreen(p);
    const int rows = ForEachValue(p.Map.sTextsText, TextColumn::Count, [&](int row, int column, const QString& value) {
        if (row > LastMapRow)
            return;
        p.Map.TextArr[row][column] = value;
        if (column == TextColumn::Colour)
            p.Errors.Ignoring([&] { DrawText(p, screen, row); });
    });
    p.Map.STexts = HighestRow(rows);
    ResetMapFont(p.Form1->Picture1);
}

void ParseWhatIsThere(Program& p)
{
    p.Errors.Ignoring([&] { ParseBoxes(p); });
    try {
        ParseLines(p);
    } catch (const RuntimeError&) {
        const int whole = WholeLines(p.Map.sLinesText);
        for (int row = whole; row <= LastMapRow; ++row)
            p.Map.LineArr[row].Erase();
        // So that a new line takes the place of none.
        p.Map.SLines = whole - 1;
    }
    p.Errors.Ignoring([&] { ParseTexts(p); });
}

} // namespace lineforge
