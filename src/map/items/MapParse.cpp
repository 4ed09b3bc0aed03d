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

void DrawAllCaptions(const MapWork& work)
{
    work.Errors.Ignoring([&] { KeepPosition(work.Record, Records(work.Form3)); });
    work.Errors.Ignoring([&] { DrawBoxCaptions(work, MapOnScreen(work.Map, *work.Form1)); });
    work.Errors.Ignoring([&] { DrawOwnCaptions(work, MapOnScreen(work.Map, *work.Form1)); });
    work.Errors.Ignoring([&] { ComeBack(work.Record, work.Form3); });
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

void ParseBoxes(const MapWork& work)
{
    if (CountsAsEmpty(work.Map.sBoxesText))
        return;
    const MapSheet screen = MapOnScreen(work.Map, *work.Form1);
    const int rows =
        ForEachValue(work.Map.sBoxesText, BoxColumn::Count, [&](int row, int column, const QString& value) {
            if (row > LastMapRow)
                return;
            work.Map.BoxArr[row][column] = value;
            // The outline needs no more than the columns before the record's.
            if (column == BoxColumn::File)
                work.Errors.Ignoring([&] { DrawBox(work.Map, screen, row); });
        });
    work.Map.SBoxes = HighestRow(rows);
    DrawAllCaptions(work);
}

void ParseLines(const MapPicture& shown)
{
    shown.Form1->Picture1.ForeColor = Black;
    if (CountsAsEmpty(shown.Map.sLinesText))
        return;
    const MapSheet screen = MapOnScreen(shown.Map, *shown.Form1);
    const int rows =
        ForEachValue(shown.Map.sLinesText, LineColumn::Count, [&](int row, int column, const QString& value) {
            shown.Map.LineArr[row][column] = ToLong(value);
            if (column == LineColumn::Colour)
                DrawLine(shown.Map, screen, row);
        });
    shown.Map.SLines = rows - 1;
}

void ParseTexts(const MapPicture& shown)
{
    shown.Map.STexts = -1;
    if (CountsAsEmpty(shown.Map.sTextsText))
        return;
    const MapSheet screen = MapOnScreen(shown.Map, *shown.Form1);
    const int rows =
        ForEachValue(shown.Map.sTextsText, TextColumn::Count, [&](int row, int column, const QString& value) {
            if (row > LastMapRow)
                return;
            shown.Map.TextArr[row][column] = value;
            if (column == TextColumn::Colour)
                shown.Errors.Ignoring([&] { DrawText(shown, screen, row); });
        });
    shown.Map.STexts = HighestRow(rows);
    ResetMapFont(shown.Form1->Picture1);
}

void ParseWhatIsThere(const MapWork& work)
{
    work.Errors.Ignoring([&] { ParseBoxes(work); });
    try {
        ParseLines(work);
    } catch (const RuntimeError&) {
        const int whole = WholeLines(work.Map.sLinesText);
        for (int row = whole; row <= LastMapRow; ++row)
            work.Map.LineArr[row].Erase();
        // So that a new line takes the place of none.
        work.Map.SLines = whole - 1;
    }
    work.Errors.Ignoring([&] { ParseTexts(work); });
}

} // namespace lineforge
