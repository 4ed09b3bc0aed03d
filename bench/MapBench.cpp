#include "BenchHome.h"
#include "Machine.h"
#include "map/MapDisplay.h"
#include "shell/OpenBranch.h"

#include <benchmark/benchmark.h>

namespace lineforge::bench
{
namespace
{

using namespace Qt::StringLiterals;

constexpr int texts = 200;
constexpr int boxes = 100;
constexpr int lines = 200;
constexpr int chain = 50;
constexpr int step = 60; // of a drag, in twips

const BenchHome& Home()
{
    static const BenchHome home;
    return home;
}

// An open branch of 999 people.
class MapProgram : public Machine
{
public:
    MapProgram() : Machine(Home().Path())
    {
        P.Form8->List1.ListIndex = 0;
        OpenSelectedBranch(P);
    }

    void Press(int x, int y) { P.Form1->Picture1.MouseDown(1, 0, x, y); }
    void Move(int x, int y) { P.Form1->Picture1.MouseMove(1, 0, x, y); }
    void Release(int x, int y) { P.Form1->Picture1.MouseUp(1, 0, x, y); }
};

QString Number(int number)
{
    return u"%1"_s.arg(number, 3, 10, QLatin1Char('0'));
}

template <class Row, class... Values>
void Store(Row& row, const Values&... values)
{
    int column = 0;
    ((row[column++] = values), ...);
}

// The map as full as it can be: every box shows one of the branch's own people.
void FillMap(MapState& map)
{
    for (int row = 0; row < texts; ++row)
        Store(map.TextArr[row], 100 + row % 5 * 1500, 130 + row / 5 * 290, QString(u"The family "_s + Number(row)),
              u"Arial"_s, 8 + row % 4, 128);
    for (int row = 0; row < boxes; ++row)
        Store(map.BoxArr[row], 100 + row % 10 * 740, 150 + row / 10 * 1150, 255, QString(u'A' + Number(row * 9 + 1)),
              u"Elizabeth"_s);
    for (int row = 0; row < lines; ++row) {
        const int x = 120 + row % 10 * 740;
        const int y = 400 + row / 10 * 570;
        const bool isUpright = row % 2 == 1;
        Store(map.LineArr[row], x, y, isUpright ? x : x + 700, isUpright ? y + 500 : y + row % 3 * 150, 16711680);
    }
    map.STexts = texts - 1;
    map.SBoxes = boxes - 1;
    map.SLines = lines - 1;
}

void RedrawFullMap(benchmark::State& state)
{
    MapProgram program;
    FillMap(program.P.Map);
    for (auto _ : state) {
        RedrawMap(program.P);
        benchmark::DoNotOptimize(program.P.Form1->Picture1.Drawing());
    }
}

// One move of the mouse that carries the whole map along, to and fro.
void DragFullZone(benchmark::State& state)
{
    MapProgram program;
    Program& p = program.P;
    FillMap(p.Map);
    p.Form1->mnuTreeTools.Click();
    p.Form1->Image2.Click();
    program.Press(20, 20);
    program.Move(8300, 12700);
    program.Release(8300, 12700);
    program.Press(1000, 1000);
    program.Move(1000, 1000);
    if (!p.Tools.ZoneTexts[texts - 1] || !p.Tools.ZoneBoxes[boxes - 1] || !p.Tools.ZoneLines[lines - 1])
        state.SkipWithError("the zone doesn't hold the whole map");
    int x = 1000;
    for (auto _ : state) {
        x = x == 1000 ? 1000 + step : 1000;
        program.Move(x, 1000);
    }
}

// Likewise a chain of long lines, to and fro; row 0 can't be one of them unless it is pressed itself.
void DragChain(benchmark::State& state)
{
    MapProgram program;
    Program& p = program.P;
    constexpr int ends[] = {1000, 1600};
    p.Map.LineArr.Erase();
    for (int row = 1; row <= chain; ++row)
        Store(p.Map.LineArr[row], 300 + row * 140, ends[row % 2], 440 + row * 140, ends[(row + 1) % 2], 255);
    p.Map.SLines = chain;
    p.Form1->mnuTreeTools.Click();
    p.Form1->Image6.Click();
    p.Form1->Image2.Click();
    program.Press(510, 1300);
    if (p.Tools.LineMiss != 0 || p.Tools.ChainTop != chain - 1)
        state.SkipWithError("the chain was not taken whole");
    int x = 510;
    for (auto _ : state) {
        x = x == 510 ? 510 + step : 510;
        program.Move(x, 1300);
    }
}

BENCHMARK(RedrawFullMap)->Unit(benchmark::kMillisecond)->Repetitions(15)->UseRealTime();
BENCHMARK(DragFullZone)->Unit(benchmark::kMillisecond)->Repetitions(15)->UseRealTime();
BENCHMARK(DragChain)->Unit(benchmark::kMillisecond)->Repetitions(15)->UseRealTime();

} // namespace
} // namespace lineforge::bench
