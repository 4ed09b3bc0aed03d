#include "map/SecondProgram.h"
#include "map/tools/ToolsTest.h"

#include <ostream>
#include <random>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::ValuesIn;
using testing::WithParamInterface;

// The way of a drag, counted from its press.
struct Way {
    const char* Name;
    std::vector<Point> Steps;
};

// Many small steps to all of these places, one after the other.
std::vector<Point> Strolling(const std::vector<Point>& places)
{
    constexpr int stepsEach = 25;
    std::vector<Point> steps;
    Point last;
    for (const Point& place : places) {
        for (int step = 1; step <= stepsEach; ++step)
            steps.push_back(
                {last.X + (place.X - last.X) * step / stepsEach, last.Y + (place.Y - last.Y) * step / stepsEach});
        last = place;
    }
    return steps;
}

const Way waysBack[] = {
    {"no step", {}},
    {"on the spot", {{0, 0}}},
    {"one twip", {{1, 0}, {0, 0}}},
    {"one pixel", {{5, 5}, {0, 0}}},
    {"once across", {{700, 300}, {0, 0}}},
    {"onto itself", {{40, 0}, {80, 40}, {20, 20}, {0, 0}}},
    {"many steps", Strolling({{900, 0}, {900, 900}, {-600, 700}, {0, 0}})},
    {"out on the left", {{-300, 0}, {-6000, 100}, {-6400, 0}, {0, 0}}},
    {"out at the top", {{0, -400}, {100, -7000}, {0, 0}}},
    {"out on the right", {{4000, 0}, {7000, 50}, {9000, 0}, {0, 0}}},
    {"out at the bottom", {{0, 7000}, {30, 11000}, {0, 12500}, {0, 0}}},
    {"out at a corner", {{6000, 10500}, {9000, 13000}, {0, 0}}},
    {"out on every side", Strolling({{-7000, 0}, {0, -9000}, {9000, 0}, {0, 13000}, {0, 0}})},
    {"further than any screen", {{-30000, -30000}, {30000, 30000}, {-99999, 5}, {0, 0}}},
};

const Way waysElsewhere[] = {
    {"one twip further", {{1, 1}}},
    {"to where it still covers its old place", {{15, 10}}},
    {"once across", {{1203, 777}}},
    {"many steps", Strolling({{1500, 200}, {-700, 900}, {333, 1111}})},
    {"onto the items on its way", Strolling({{400, 0}, {0, 300}})},
    {"over the left edge", {{-200, 10}, {-2300, 17}}},
    {"over the top edge", {{0, -500}, {13, -2900}}},
    {"over the right edge", {{3000, 0}, {5900, 11}}},
    {"over the bottom edge", {{0, 4000}, {21, 9700}}},
    {"out of the picture", {{-500, -500}, {-7000, -7000}}},
};

// What is dragged, and by which point of it.
struct Dragged {
    const char* Name;
    int Sel;
    Point Press;
    std::vector<std::vector<Point>> Runs = {}; // of lines, from end to end
    QStringView Box = {};                      // the number in the box
    QStringView Text = {};
    TextFont Font = {};
};

void PrintTo(const Dragged& item, std::ostream* out)
{
    *out << item.Name;
}

constexpr Point Middle{2500, 3000};
constexpr Point InText{2250, 2975};

const Dragged draggedItems[] = {
    {"a level line", 17, Middle, {{{2000, 3000}, {3000, 3000}}}},
    {"an upright line", 17, Middle, {{{2500, 2500}, {2500, 3500}}}},
    {"a slanted line", 17, {2503, 3000}, {{{2001, 3302}, {3004, 2701}}}},
    {"lines at a right angle", 17, Middle, {{{2000, 3000}, {3000, 3000}, {3000, 3600}}}},
    {"lines at a sharp angle", 17, Middle, {{{2000, 3000}, {3000, 3000}, {2000, 3040}}}},
    {"lines at a flat angle", 17, Middle, {{{2000, 3000}, {3000, 3000}, {4000, 3030}}}},
    {"lines on top of each other", 17, Middle, {{{2000, 3000}, {3000, 3000}, {2200, 3000}}}},
    {"a closed chain", 17, Middle, {{{2000, 3000}, {3000, 3000}, {2700, 3900}, {2100, 3800}, {2000, 3000}}}},
    {"a fork", 17, Middle, {{{2000, 3000}, {3000, 3000}, {3600, 3300}}, {{3000, 3000}, {3500, 2500}, {3500, 2000}}}},
    {"a box with a record", 18, Middle, {}, u"A001"},
    {"a box whose record has gone", 18, Middle, {}, u"A009"},
    {"an empty box", 18, Middle, {}, u"0"},
    {"a box of another branch", 18, Middle, {}, u"B001"},
    {"a box of a branch that isn't there", 18, Middle, {}, u"C001"},
    {"a box whose record has another box", 18, Middle, {}, u"A002"},
    {"a text", 19, InText, {}, {}, u"The Smiths of Bath"},
    {"a text in another font", 19, InText, {}, {}, u"Baptized 1790", {u"Courier"_s, 14}},
    {"a text of one letter", 19, InText, {}, {}, u"i"},
};

// A map on which the dragged item lies over and under others of other colours. It stands in the lowest row of its kind
// that can be dragged with others, so that the press meets it first.
class ToolTracesTest : public ToolsTest
{
protected:
    ToolTracesTest()
    {
        BranchA.Row({{u"File", u"A001"}, {u"Forename", u"Theophilus"}, {u"Gender", u"Male"}})
            .Row({{u"File", u"A002"}, {u"Forename", u"Jane"}, {u"Gender", u"Female"}});
        BranchB.Row({{u"File", u"B001"}, {u"Forename", u"Tom"}}).Build();
        // Smaller pictures, for speed.
        for (PictureBox* picture : {&Picture, &Other.P.Form1->Picture1}) {
            picture->Width = side;
            picture->Height = side;
        }
        GivenTools();
        Other.Open(P.Branch.WorkDir);
    }

    void GivenOnTheMap(const Dragged& item)
    {
        ForgetMap(P.Map, P.Mouse, P.Tools);
        P.Map.SLines = 0;
        GivenLine(0, {7000, 100}, {8000, 100}, Blue);
        for (const std::vector<Point>& run : item.Runs)
            for (std::size_t end = 1; end < run.size(); ++end)
                GivenNextLine(run[end - 1], run[end]);
        P.Map.SBoxes = -1;
        if (!item.Box.isNull())
            GivenBox(++P.Map.SBoxes, {2200, 2900}, item.Box, Green);
        P.Map.STexts = -1;
        if (!item.Text.isNull())
            GivenText(++P.Map.STexts, {2200, 2930}, item.Text, item.Font, Blue);
        GivenCrossingItems();
    }

    // Takes the item by its point and goes that way.
    void DragAlong(const Dragged& item, const Way& way)
    {
        Choose(item.Sel);
        Press(item.Press);
        Point pointer = item.Press;
        for (const Point& step : way.Steps) {
            pointer = {item.Press.X + step.X, item.Press.Y + step.Y};
            Move(pointer);
        }
        Release(pointer);
        ASSERT_EQ(Picture.Mode, DrawMode::Copy);
    }

    testing::AssertionResult IsPaintedOnBlankPaper() { return SameImage(Shown(), Other.Painted(P.Map)); }

    static constexpr int side = 5000;

    SecondProgram Other;

private:
    void GivenNextLine(Point from, Point to)
    {
        constexpr Colour colours[] = {Red, Green, Blue};
        ++P.Map.SLines;
        GivenLine(P.Map.SLines, from, to, colours[P.Map.SLines % 3]);
    }
    void GivenCrossingItems()
    {
        GivenNextLine({1800, 2450}, {4200, 3310});
        GivenNextLine({2610, 2200}, {2440, 3900});
        GivenNextLine({1900, 3000}, {3200, 3000});
        GivenBox(++P.Map.SBoxes, {2320, 2960}, u"A002", Blue);
        GivenBox(++P.Map.SBoxes, {2750, 2870}, u"0", Red);
        GivenBox(++P.Map.SBoxes, {3500, 3500}, u"0", Green);
        GivenText(++P.Map.STexts, {2220, 2880}, u"Across the way", {u"Courier"_s, 12}, Red);
        GivenText(++P.Map.STexts, {2600, 3050}, u"and beneath", {}, Green);
        GivenText(++P.Map.STexts, {4000, 3900}, u"far", {}, Green);
    }
};

class TracelessDragTest : public ToolTracesTest, public WithParamInterface<Dragged>
{
};

TEST_P(TracelessDragTest, BackToItsPlace_ThePictureIsAsBefore)
{
    const Dragged& item = GetParam();
    GivenOnTheMap(item);
    const QImage before = Afresh();
    const MapState map = P.Map;
    for (const Way& way : waysBack) {
        SCOPED_TRACE(way.Name);

        DragAlong(item, way);

        EXPECT_TRUE(SameImage(Shown(), before));
        EXPECT_EQ(P.Map.BoxArr, map.BoxArr);
        EXPECT_EQ(P.Map.LineArr, map.LineArr);
        EXPECT_EQ(P.Map.TextArr, map.TextArr);
    }
}

TEST_P(TracelessDragTest, Elsewhere_ThePictureIsTheArraysOnBlankPaper)
{
    const Dragged& item = GetParam();
    for (const Way& way : waysElsewhere) {
        SCOPED_TRACE(way.Name);
        GivenOnTheMap(item);
        Afresh();
        const MapState map = P.Map;

        DragAlong(item, way);

        EXPECT_TRUE(IsPaintedOnBlankPaper());
        EXPECT_FALSE(P.Map.BoxArr == map.BoxArr && P.Map.LineArr == map.LineArr && P.Map.TextArr == map.TextArr);
    }
}

INSTANTIATE_TEST_SUITE_P(Items, TracelessDragTest, ValuesIn(draggedItems));

TEST_F(ToolTracesTest, AFewDragsOneAfterTheOther_ThePictureIsTheArraysOnBlankPaper)
{
    GivenOnTheMap({"all kinds", 17, Middle, {{{2000, 3000}, {3000, 3000}, {3000, 3600}}}, u"A001", u"Smith"});
    Afresh();

    for (const Dragged& item : {Dragged{"the text", 19, InText}, Dragged{"the box", 18, Middle},
                                Dragged{"the lines", 17, Middle}, Dragged{"the second box", 18, {2900, 3140}}})
        DragAlong(item, {"", Strolling({{300, -120}, {37, 13}})});

    EXPECT_TRUE(IsPaintedOnBlankPaper());
}

TEST_F(ToolTracesTest, BoxWhoseRecordStandsInALowerRowToo_ThePictureIsTheArraysOnBlankPaper)
{
    GivenOnTheMap({"the box", 18, Middle, {}, u"A001"});
    GivenBox(++P.Map.SBoxes, {1000, 1000}, u"A001", Red);
    Afresh();

    DragAlong({"", 18, {1300, 1100}}, {"", {{200, 500}, {-300, 900}}});

    EXPECT_TRUE(IsPaintedOnBlankPaper());
}

class RandomDragsTest : public ToolTracesTest, public WithParamInterface<unsigned>
{
protected:
    int Any(int from, int to) { return std::uniform_int_distribution(from, to)(random_); }
    Point AnyPoint() { return {Any(0, side), Any(0, side)}; }
    Colour AnyColour() { return Rgb(static_cast<unsigned>(Any(0, 255)), static_cast<unsigned>(Any(0, 255)), 0); }

    // Lines that hang together more often than not, boxes and texts anywhere.
    void GivenAnyMap()
    {
        ForgetMap(P.Map, P.Mouse, P.Tools);
        P.Map.SLines = Any(3, 30);
        for (int row = 0; row <= P.Map.SLines; ++row) {
            const auto& before = P.Map.LineArr[std::max(0, row - Any(1, 3))];
            const Point from =
                row > 0 && Any(0, 3) > 0 ? Point{before[LineColumn::X2], before[LineColumn::Y2]} : AnyPoint();
            GivenLine(row, from, Any(0, 2) == 0 ? Point{Any(0, side), from.Y} : AnyPoint(), AnyColour());
        }
        static constexpr QStringView files[] = {u"0", u"A001", u"A002", u"A009", u"B001", u"C001"};
        P.Map.SBoxes = 5;
        for (int row = 0; row <= P.Map.SBoxes; ++row)
            GivenBox(row, AnyPoint(), files[row], AnyColour());
        P.Map.STexts = 5;
        for (int row = 0; row <= P.Map.STexts; ++row)
            GivenText(row, AnyPoint(), u"The Smiths", {Any(0, 1) == 0 ? u"Arial"_s : u"Courier"_s, Any(6, 20) * 1.0},
                      AnyColour());
    }

    Point AnyGrip(int sel)
    {
        const int row = Any(0, 5);
        if (sel == 18)
            return {P.Map.BoxArr[row][BoxColumn::X].Number() + 300, P.Map.BoxArr[row][BoxColumn::Y].Number() + 100};
        if (sel == 19)
            return {P.Map.TextArr[row][TextColumn::X].Number() + 50, P.Map.TextArr[row][TextColumn::Y].Number() + 50};
        const auto& line = P.Map.LineArr[Any(0, P.Map.SLines)];
        return {(line[LineColumn::X1] + line[LineColumn::X2]) / 2, (line[LineColumn::Y1] + line[LineColumn::Y2]) / 2};
    }

private:
    std::mt19937 random_{GetParam()};
};

TEST_P(RandomDragsTest, ThePictureIsTheArraysOnBlankPaper)
{
    GivenAnyMap();
    Afresh();
    for (int drag = 0; drag < 12; ++drag) {
        const int sel = Any(17, 19);
        SCOPED_TRACE(testing::Message() << "drag " << drag << " of kind " << sel);
        Way way{"", {}};
        for (int step = Any(0, 6); step > 0; --step)
            way.Steps.push_back({Any(-side, side), Any(-side, side)});

        DragAlong({"", sel, AnyGrip(sel)}, way);

        ASSERT_TRUE(IsPaintedOnBlankPaper());
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomDragsTest, testing::Range(1U, 17U));

TEST_F(ToolTracesTest, NewLine_ThePictureIsTheArraysOnBlankPaper)
{
    GivenOnTheMap(draggedItems[0]);
    Afresh();
    DialogColour = Red;
    Choose(ToolSelection::LineDraw);

    Press({1500, 2500});
    for (const Point& step : Strolling({{3000, 0}, {1000, 1500}, {-9000, 300}, {2000, 900}}))
        Move({1500 + step.X, 2500 + step.Y});
    Release({3500, 3400});

    EXPECT_TRUE(IsPaintedOnBlankPaper());
}

TEST_F(ToolTracesTest, NewBoxes_ThePictureIsTheArraysOnBlankPaper)
{
    GivenOnTheMap(draggedItems[0]);
    Afresh();
    DialogColour = Red;
    Choose(ToolSelection::BoxDraw);

    Drag({{2600, 3000}, {3600, 4000}, {2610, 3010}});
    Drag({{2620, 3020}, {100, 100}});
    PressAndRelease({100, 50});

    EXPECT_TRUE(IsPaintedOnBlankPaper());
}

TEST_F(ToolTracesTest, NewText_ThePictureIsTheArraysOnBlankPaper)
{
    GivenOnTheMap(draggedItems[0]);
    Afresh();
    DialogColour = Red;

    PlaceText({2400, 3000}, u"Emigrated");

    EXPECT_TRUE(IsPaintedOnBlankPaper());
}

TEST_F(ToolTracesTest, Zone_ThePictureIsTheArraysOnBlankPaper)
{
    GivenOnTheMap({"all kinds", 1, Middle, {{{2000, 3000}, {3000, 3000}, {3000, 3600}}}, u"A001", u"Smith"});
    Afresh();
    Choose(ToolSelection::ZoneDraw);
    Drag({{1950, 2800}, {2700, 3200}});

    Press(Middle);
    for (const Point& step : Strolling({{900, 900}, {-5000, 0}, {50, 35}}))
        Move({Middle.X + step.X, Middle.Y + step.Y});
    Release({Middle.X + 50, Middle.Y + 35});

    EXPECT_TRUE(IsPaintedOnBlankPaper());
}

} // namespace
} // namespace lineforge
