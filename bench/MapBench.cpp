#include "BenchHome.h"
#include "Machine.h"
#include "Runs.h"
#include "forms/Form1.h"
#include "forms/Form8.h"
#include "map/items/MapDisplay.h"
#include "map/items/MapItems.h"
#include "platform/canvas/TextMask.h"
#include "shell/branches/OpenBranch.h"

#include <QFontMetrics>
#include <QPainter>

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

// A chain of long lines; row 0 can't be one of them unless it is pressed itself.
void FillChain(MapState& map)
{
    constexpr int ends[] = {1000, 1600};
    map.LineArr.Erase();
    for (int row = 1; row <= chain; ++row)
        Store(map.LineArr[row], 300 + row * 140, ends[row % 2], 440 + row * 140, ends[(row + 1) % 2], 255);
    map.SLines = chain;
}

MapProgram& FullMap()
{
    static MapProgram& program = *[] {
        auto* made = new MapProgram;
        FillMap(made->P.Map);
        return made;
    }();
    return program;
}

void RedrawFullMap(benchmark::State& state)
{
    Program& p = FullMap().P;
    for (auto _ : state)
        RedrawMap(p, MapOnScreen(p.Map, *p.Form1));
}

// Takes the whole map.
MapProgram* PressedZone()
{
    auto* program = new MapProgram;
    Program& p = program->P;
    FillMap(p.Map);
    p.Form1->mnuTreeTools.Click();
    p.Form1->Image2.Click();
    program->Press(20, 20);
    program->Move(8300, 12700);
    program->Release(8300, 12700);
    program->Press(1000, 1000);
    program->Move(1000, 1000);
    return program;
}

// One move of the mouse that carries the whole map along, to and fro.
void DragFullZone(benchmark::State& state)
{
    static MapProgram& program = *PressedZone();
    const ToolState& tools = program.P.Tools;
    if (!tools.ZoneTexts[texts - 1] || !tools.ZoneBoxes[boxes - 1] || !tools.ZoneLines[lines - 1])
        state.SkipWithError("the zone doesn't hold the whole map");
    int x = 1000;
    for (auto _ : state) {
        x = x == 1000 ? 1000 + step : 1000;
        program.Move(x, 1000);
    }
}

MapProgram* PressedChain()
{
    auto* program = new MapProgram;
    Program& p = program->P;
    FillChain(p.Map);
    p.Form1->mnuTreeTools.Click();
    p.Form1->Image6.Click();
    p.Form1->Image2.Click();
    program->Press(510, 1300);
    return program;
}

// Likewise.
void DragChain(benchmark::State& state)
{
    static MapProgram& program = *PressedChain();
    if (program.P.Tools.LineMiss != 0 || program.P.Tools.ChainTop != chain - 1)
        state.SkipWithError("the chain was not taken whole");
    int x = 510;
    for (auto _ : state) {
        x = x == 510 ? 510 + step : 510;
        program.Move(x, 1300);
    }
}

// What is on a map, painted by the toolkit alone: a picture as large as the program's, a painter begun once, and no
// exclusive-or, which costs it more.
class BareMap
{
public:
    explicit BareMap(const PictureBox& picture)
        : image_(picture.Width / PictureBox::TwipsPerPixel, picture.Height / PictureBox::TwipsPerPixel,
                 QImage::Format_RGB32)
    {
        image_.fill(Qt::white);
    }

    void PaintLines(const MapState& map, int first, int last)
    {
        for (int row = first; row <= last; ++row) {
            const auto& line = map.LineArr[row];
            painter_.setPen(PenOf(static_cast<Colour>(line[LineColumn::Colour])));
            painter_.drawLine(Pixels(line[LineColumn::X1], line[LineColumn::Y1]),
                              Pixels(line[LineColumn::X2], line[LineColumn::Y2]));
        }
    }
    void PaintBoxes(const MapState& map)
    {
        for (int row = 0; row < boxes; ++row) {
            const auto& box = map.BoxArr[row];
            painter_.setPen(PenOf(ColourOfBox(map, row)));
            painter_.drawRect(QRect(Pixels(box[BoxColumn::X].Number(), box[BoxColumn::Y].Number()),
                                    QSize(BoxWidth, BoxHeight) / PictureBox::TwipsPerPixel));
        }
    }
    void PaintTexts(const MapState& map)
    {
        for (int row = 0; row < texts; ++row) {
            const auto& text = map.TextArr[row];
            PaintText(Pixels(text[TextColumn::X].Number(), text[TextColumn::Y].Number()), FontOfText(map, row),
                      text[TextColumn::Text].Text(), Qt::darkRed);
        }
    }
    void PaintCaptions(const MapState& map)
    {
        for (const auto& [place, captions] : map.Captions)
            for (const QString& caption : captions)
                PaintText(Pixels(place.first, place.second), TextFont(), caption, Qt::black);
    }
    // On its way a box shows two of its lines.
    void PaintNames(const MapState& map)
    {
        for (int row = 0; row < boxes; ++row) {
            const auto& box = map.BoxArr[row];
            const QPoint corner = Pixels(box[BoxColumn::X].Number(), box[BoxColumn::Y].Number());
            PaintText(corner, TextFont(), box[BoxColumn::File].Text(), Qt::black);
            PaintText(corner, TextFont(), box[BoxColumn::Forename].Text(), Qt::black);
        }
    }

private:
    static QPoint Pixels(int x, int y) { return QPoint(x, y) / PictureBox::TwipsPerPixel; }
    static QPen PenOf(Colour colour) { return QPen(ToQColor(colour), 3, Qt::SolidLine, Qt::SquareCap); }
    void PaintText(QPoint place, const TextFont& textFont, const QString& text, const QColor& colour)
    {
        const QFont font = ToPixelFont(textFont);
        painter_.setFont(font);
        painter_.setPen(colour);
        painter_.drawText(place.x(), place.y() + QFontMetrics(font).ascent(), text);
    }

    QImage image_;
    QPainter painter_{&image_};
};

void PaintFullMap(benchmark::State& state)
{
    Program& p = FullMap().P;
    RedrawMap(p, MapOnScreen(p.Map, *p.Form1));
    BareMap bare(p.Form1->Picture1);
    for (auto _ : state) {
        bare.PaintBoxes(p.Map);
        bare.PaintTexts(p.Map);
        bare.PaintLines(p.Map, 0, lines - 1);
        bare.PaintCaptions(p.Map);
    }
}

// Where it was, and where it comes to.
void PaintFullZone(benchmark::State& state)
{
    Program& p = FullMap().P;
    BareMap bare(p.Form1->Picture1);
    for (auto _ : state)
        for (int time = 0; time < 2; ++time) {
            bare.PaintBoxes(p.Map);
            bare.PaintTexts(p.Map);
            bare.PaintLines(p.Map, 0, lines - 1);
            bare.PaintNames(p.Map);
        }
}

// Likewise.
void PaintChain(benchmark::State& state)
{
    Program& p = FullMap().P;
    const auto map = std::make_unique<MapState>();
    FillChain(*map);
    BareMap bare(p.Form1->Picture1);
    for (auto _ : state)
        for (int time = 0; time < 2; ++time)
            bare.PaintLines(*map, 1, chain);
}

BENCHMARK(RedrawFullMap)->Apply(ShortRuns<100>);
BENCHMARK(PaintFullMap)->Apply(ShortRuns<100>);
BENCHMARK(DragFullZone)->Apply(ShortRuns<100, 4>);
BENCHMARK(PaintFullZone)->Apply(ShortRuns<100, 4>);
BENCHMARK(DragChain)->Apply(ShortRuns<100, 10>);
BENCHMARK(PaintChain)->Apply(ShortRuns<100, 10>);

} // namespace
} // namespace lineforge::bench
