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

void AddToChain(Program& p, int row)
{
    if (IsInChain(p.Map, row))
        return;
    p.Tools.ChainTop += 1;
    p.Map.LineChain[p.Tools.ChainTop] = row;
}

bool IsChainFull(const Program& p)
{
    return p.Tools.ChainTop > lastOfChain;
}

// Adds the lines that hang on that one.
void AddNeighbours(Program& p, const LineRow& line)
{
    for (int row = 0; row <= p.Map.SLines && !IsChainFull(p); ++row) {
        const LineRow& other = p.Map.LineArr[row];
        if (IsFreeRow(other))
            continue;
        if (StartOf(line) == EndOf(other) || StartOf(line) == StartOf(other))
            AddToChain(p, row);
        if (!IsChainFull(p) && (EndOf(line) == StartOf(other) || EndOf(line) == EndOf(other)))
            AddToChain(p, row);
    }
}

// Goes on from the newest line of each pass only.
// KEPT(LineChainTest.Fork_BothBranchesAreCarried_ButOnlyTheHigherIsFollowed): of two lines that fork from one, the
// higher is followed and the other is carried along.
// Mended, what hangs on the other would move and be deleted as well.
void FollowChain(Program& p)
{
    int followed = -1;
    while (p.Tools.ChainTop > followed && !IsChainFull(p)) {
        followed = p.Tools.ChainTop;
        AddNeighbours(p, p.Map.LineArr[p.Map.LineChain[followed]]);
    }
}

// After a miss the chain begins with the row behind the last, which nothing reads; with all rows in use there is none.
void FindLine(Program& p)
{
    const Point press{p.Mouse.DownX, p.Mouse.DownY};
    for (int entry = 0; entry <= lastOfChain; ++entry)
        p.Map.LineChain[entry] = 0;
    int row = 0;
    while (row <= p.Map.SLines && (IsFreeRow(p.Map.LineArr[row]) || !IsLineHit(p.Map.LineArr[row], press)))
        ++row;
    p.Tools.LineMiss = row > p.Map.SLines ? 1 : 0;
    p.Tools.ChainTop = 0;
    p.Map.LineChain[0] = row;
    FollowChain(p);
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

void HitLine(Program& p)
{
    if (p.Map.SLines == 0)
        return;
    try {
        FindLine(p);
    } catch (const RuntimeError& error) {
        p.Errors.Last = error;
        ReportError(p.Errors, p.Prompts);
    }
}

bool FindsLine(Program& p)
{
    HitLine(p);
    if (p.Tools.LineMiss == 0 && IsFreeRow(p.Map.LineArr[p.Map.LineChain[0]]))
        p.Tools.LineMiss = 1;
    return p.Tools.LineMiss == 0;
}

} // namespace lineforge
