#include "map/items/HitLine.h"

#include "program/ui/BranchUi.h"

#include <algorithm>

namespace lineforge
{

namespace
{
using LineRow = FixedArray<int, 0, 4>;

constexpr int band = 20;        // twips on either side
constexpr int lastOfChain = 99; // the entries that are cleared and looked through; one more fits behind them

bool IsBetween(int value, int one, int other)
{
    return value > std::min(one, other) && value < std::max(one, other);
}

Point StartOf(const LineRow& line)
{
    return {line[LineColumn::X1], line[LineColumn::Y1]};
}

Point EndOf(const LineRow& line)
{
    return {line[LineColumn::X2], line[LineColumn::Y2]};
}

// KEPT(LineChainTest.Line0_IsNeverAdded): line 0 can't be told from an entry that nothing has been stored in, and
// counts as listed.
// Mended, it would move and be deleted with the lines that it hangs on.
bool IsInChain(const MapState& map, int row)
{
    for (int entry = 0; entry <= lastOfChain; ++entry)
        if (map.LineChain[entry] == row)
            return true;
    return false;
}

void AddToChain(MapState& map, ToolState& tools, int row)
{
    if (IsInChain(map, row))
        return;
    tools.ChainTop += 1;
    map.LineChain[tools.ChainTop] = row;
}

bool IsChainFull(const ToolState& tools)
{
    return tools.ChainTop > lastOfChain;
}

// Adds the lines that hang on that one.
void AddNeighbours(MapState& map, ToolState& tools, const LineRow& line)
{
    for (int row = 0; row <= map.SLines && !IsChainFull(tools); ++row) {
        const LineRow& other = map.LineArr[row];
        if (IsFreeRow(other))
            continue;
        if (StartOf(line) == EndOf(other) || StartOf(line) == StartOf(other))
            AddToChain(map, tools, row);
        if (!IsChainFull(tools) && (EndOf(line) == StartOf(other) || EndOf(line) == EndOf(other)))
            AddToChain(map, tools, row);
    }
}

// Goes on from the newest line of each pass only.
// KEPT(LineChainTest.Fork_BothBranchesAreCarried_ButOnlyTheHigherIsFollowed): of two lines that fork from one, the
// higher is followed and the other is carried along.
// Mended, what hangs on the other would move and be deleted as well.
void FollowChain(MapState& map, ToolState& tools)
{
    int followed = -1;
    while (tools.ChainTop > followed && !IsChainFull(tools)) {
        followed = tools.ChainTop;
        AddNeighbours(map, tools, map.LineArr[map.LineChain[followed]]);
    }
}

// After a miss the chain begins with the row behind the last, which nothing reads; with all rows in use there is none.
void FindLine(MapState& map, ToolState& tools, const MapMouseState& mouse)
{
    const Point press{mouse.DownX, mouse.DownY};
    for (int entry = 0; entry <= lastOfChain; ++entry)
        map.LineChain[entry] = 0;
    int row = 0;
    while (row <= map.SLines && (IsFreeRow(map.LineArr[row]) || !IsLineHit(map.LineArr[row], press)))
        ++row;
    tools.LineMiss = row > map.SLines ? 1 : 0;
    tools.ChainTop = 0;
    map.LineChain[0] = row;
    FollowChain(map, tools);
}
} // namespace

bool IsLineHit(const LineRow& line, Point press)
{
    const auto [x1, y1] = StartOf(line);
    const auto [x2, y2] = EndOf(line);
    const auto [x, y] = press;
    if (IsBetween(x, x1, x2) && ((y + band > y2 && y - band < y1) || (y + band < y2 && y - band > y1)))
        return true;
    return IsBetween(y, y1, y2) && ((x - band > x2 && x + band < x1) || (x + band > x2 && x - band < x1));
}

void HitLine(MapState& map, ToolState& tools, const MapMouseState& mouse, ErrorState& errors, Prompts& prompts)
{
    if (map.SLines == 0)
        return;
    try {
        FindLine(map, tools, mouse);
    } catch (const RuntimeError& error) {
        errors.Last = error;
        ReportError(errors, prompts);
    }
}

bool FindsLine(MapState& map, ToolState& tools, const MapMouseState& mouse, ErrorState& errors, Prompts& prompts)
{
    HitLine(map, tools, mouse, errors, prompts);
    if (tools.LineMiss == 0 && IsFreeRow(map.LineArr[map.LineChain[0]]))
        tools.LineMiss = 1;
    return tools.LineMiss == 0;
}

} // namespace lineforge
