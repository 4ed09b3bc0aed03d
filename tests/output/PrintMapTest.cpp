#include "output/OutputTest.h"
#include "support/Pixels.h"

namespace lineforge
{
namespace
{

constexpr Colour red = Rgb(255, 0, 0);
constexpr Colour green = Rgb(0, 255, 0);
constexpr Colour blue = Rgb(0, 0, 255);

// Where things of the picture stand on paper.
constexpr Point OnPaperOf(Point place)
{
    return {place.X + 1200, place.Y * 9 / 5};
}
constexpr int boxWidth = 615;
constexpr int boxHeight = 390;

class PrintMapTest : public OutputTest
{
protected:
    BranchBuilder BranchA{Home, u'A'};

    // The map of that branch on paper.
    QString PaperOfMap(BranchBuilder& branch)
    {
        GivenOpen(branch);
        return PaperOfMap();
    }
    QString PaperOfMap()
    {
        P.Form1->mnuPrint.Click();
        EXPECT_EQ(Jobs().size(), 1);
        return Jobs().value(0);
    }

    static testing::AssertionResult IsBoxAt(const QImage& paper, Point corner, Colour colour)
    {
        const int right = corner.X + boxWidth;
        const int bottom = corner.Y + boxHeight;
        const Point middle{corner.X + boxWidth / 2, corner.Y + boxHeight / 2};
        for (const Point edge : {Point{middle.X, corner.Y}, Point{middle.X, bottom}, Point{corner.X, middle.Y},
                                 Point{right, middle.Y}, corner, Point{right, bottom}})
            if (ColourAt(paper, edge) != colour)
                return testing::AssertionFailure() << "no edge at " << edge.X << ", " << edge.Y;
        constexpr int beside = 25;
        for (const Point clear :
             {Point{corner.X - beside, middle.Y}, Point{corner.X + beside, middle.Y}, Point{right - beside, middle.Y},
              Point{right + beside, middle.Y}, Point{middle.X, corner.Y - beside}, Point{middle.X, bottom + beside}})
            if (ColourAt(paper, clear) != White)
                return testing::AssertionFailure() << "not clear at " << clear.X << ", " << clear.Y;
        return testing::AssertionSuccess();
    }

    static void ExpectWordAt(const QString& paper, QStringView text, Point place)
    {
        // The box that is told of a word begins a little above or beside the point where it is printed.
        constexpr double tolerance = 60;
        const QRectF found = WordOn(paper, text).Place;
        EXPECT_NEAR(found.left(), place.X, tolerance) << qPrintable(text.toString());
        EXPECT_NEAR(found.top(), place.Y, tolerance) << qPrintable(text.toString());
    }
};

TEST_F(PrintMapTest, Map_IsOneLandscapePage)
{
    const QString paper = PaperOfMap(BranchA.Row({{u"File", u"A001"}}).Boxes(u"1000,500,0,0,,"));

    EXPECT_EQ(PagesOf(paper), 1);
    EXPECT_EQ(PaperOf(paper), QSize(842, 595));
}

TEST_F(PrintMapTest, Boxes_StandTwipForTwip_1200ToTheRight_AndStretchedDownwards)
{
    const QImage paper = PictureOf(PaperOfMap(
        BranchA.Row({{u"File", u"A001"}}).Boxes(u"1000,500,255,0,,3000,2000,16711680,0,,6000,5000,65280,0,,")));

    EXPECT_TRUE(IsBoxAt(paper, OnPaperOf({1000, 500}), red));
    EXPECT_TRUE(IsBoxAt(paper, OnPaperOf({3000, 2000}), blue));
    EXPECT_TRUE(IsBoxAt(paper, OnPaperOf({6000, 5000}), green));
    EXPECT_TRUE(IsBoxAt(paper, {2200, 900}, red));
}

TEST_F(PrintMapTest, Lines_RunBetweenTheirEnds)
{
    const QImage paper = PictureOf(
        PaperOfMap(BranchA.Row({{u"File", u"A001"}}).Lines(u"1000,500,3000,500,255,1000,1000,1000,2000,16711680,")));

    for (const int x : {2200, 3200, 4200})
        EXPECT_EQ(ColourAt(paper, {x, 900}), red) << x;
    EXPECT_EQ(ColourAt(paper, {4250, 900}), White);
    for (const int y : {1800, 2700, 3600})
        EXPECT_EQ(ColourAt(paper, {2200, y}), blue) << y;
    EXPECT_EQ(ColourAt(paper, {2200, 3650}), White);
}

TEST_F(PrintMapTest, ArialTexts_ComeInSmallCourier_AtTheirPlace)
{
    const QString paper = PaperOfMap(BranchA.Row({{u"File", u"A001"}}).Texts(u"2000,1500,iiiiii WWWWWW,Arial,20,0,"));

    ExpectWordAt(paper, u"iiiiii", OnPaperOf({2000, 1500}));
    const QRectF narrow = WordOn(paper, u"iiiiii").Place;
    const QRectF wide = WordOn(paper, u"WWWWWW").Place;
    EXPECT_NEAR(narrow.width(), wide.width(), 5);
    EXPECT_NEAR(narrow.height(), 7 * 20, 40);
}

TEST_F(PrintMapTest, OtherTexts_KeepTheirFontAndSize)
{
    const QString paper =
        PaperOfMap(BranchA.Row({{u"File", u"A001"}}).Texts(u"2000,1500,iiiiii WWWWWW,Times New Roman,20,255,"));

    ExpectWordAt(paper, u"iiiiii", OnPaperOf({2000, 1500}));
    const QRectF narrow = WordOn(paper, u"iiiiii").Place;
    EXPECT_LT(2 * narrow.width(), WordOn(paper, u"WWWWWW").Place.width());
    EXPECT_NEAR(narrow.height(), 20 * 20, 100);
    EXPECT_GT(CountPixels(PictureOf(paper), red, {3200, 2700, 3000, 500}), 100);
}

TEST_F(PrintMapTest, Captions_AreNumberForenameAndYearOfBirth)
{
    const QString paper =
        PaperOfMap(BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}, {u"BirthDate", u"1 May 1901"}})
                       .Boxes(u"2000,1000,255,A001,John,4000,1000,255,B001,,"));

    ExpectWordAt(paper, u"A001", {2000 + 1300, 1800 + 10});
    ExpectWordAt(paper, u"John", {2000 + 1250, 1800 + 130});
    ExpectWordAt(paper, u"B", {2000 + 1250, 1800 + 260});
    EXPECT_TRUE(LinesOn(paper).join(u' ').contains(u"1901"));
    // Of another branch.
    ExpectWordAt(paper, u"B001", {4000 + 1300, 1800 + 10});
    ExpectWordAt(paper, u"Bob", {4000 + 1250, 1800 + 130});
}

TEST_F(PrintMapTest, Frame_IsBlack_1000To9700AcrossThePage_AndItsFootIsCutOff)
{
    const QImage paper = PictureOf(
        PaperOfMap(BranchA.Row({{u"File", u"A001"}}).Lines(u"100,500,700,500,255,").Texts(u"5000,100,T,Arial,8,255,")));

    for (const int y : {100, 5000, 11'800}) {
        EXPECT_EQ(ColourAt(paper, {1000, y}), Black) << y;
        EXPECT_EQ(ColourAt(paper, {9700, y}), Black) << y;
        EXPECT_EQ(ColourAt(paper, {950, y}), White) << y;
        EXPECT_EQ(ColourAt(paper, {9750, y}), White) << y;
    }
    for (const int x : {2000, 9000})
        EXPECT_EQ(ColourAt(paper, {x, 0}), Black) << x;
    EXPECT_EQ(ColourAt(paper, {500, 0}), White);
    EXPECT_EQ(ColourAt(paper, {5000, 11'850}), White);
}

TEST_F(PrintMapTest, MapLargerThanThePage_IsCutOff_AndThereIsNoSecondPage)
{
    const QString paper = PaperOfMap(BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}})
                                         .Boxes(u"1000,500,255,0,,15500,500,255,0,,1000,12000,255,A001,John,")
                                         .Lines(u"2000,1000,2000,12000,16711680,")
                                         .Texts(u"2000,12500,Below,Courier New,30,0,"));

    EXPECT_EQ(PagesOf(paper), 1);
    const QImage picture = PictureOf(paper);
    EXPECT_TRUE(IsBoxAt(picture, {2200, 900}, red));
    EXPECT_EQ(ColourAt(picture, {16'700, 1000}), red); // its left edge, the right one is cut off
    EXPECT_EQ(ColourAt(picture, {3200, 11'850}), blue);
}

TEST_F(PrintMapTest, Arrays_ArePrinted_AsTheyStandInMemory)
{
    GivenOpen(BranchA.Row({{u"File", u"A001"}}).Boxes(u"1000,500,255,0,,"));
    P.Map.BoxArr[0][BoxColumn::X] = 4000;

    const QImage paper = PictureOf(PaperOfMap());

    EXPECT_TRUE(IsBoxAt(paper, OnPaperOf({4000, 500}), red));
    EXPECT_EQ(CountPixels(paper, red, {2100, 800, 900, 600}), 0);
}

TEST_F(PrintMapTest, EmptyMap_IsTheFrameAlone)
{
    const QString paper = PaperOfMap(BranchA.Row({{u"File", u"A001"}}));

    EXPECT_EQ(ColourAt(PictureOf(paper), {1000, 5000}), Black);
    EXPECT_EQ(LinesOn(paper), QStringList());
}

TEST_F(PrintMapTest, Screen_ShowsWhatItShowedBefore_AndNothingIsLeftBehind)
{
    GivenOpen(BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}})
                  .Row({{u"File", u"A002"}})
                  .Boxes(u"1000,500,255,A001,John,")
                  .Texts(u"300,150,The Smiths,Times New Roman,14,255,"));
    GoTo(u"A002");
    const QImage before = ShownBy(P.Form1->Picture1);
    const TextFont font = P.Form1->Picture1.Font;

    PaperOfMap();

    EXPECT_TRUE(ShownBy(P.Form1->Picture1) == before);
    EXPECT_EQ(P.Form1->Picture1.Font, font);
    EXPECT_EQ(P.Output.PrintToPrinter, 0);
    EXPECT_EQ(P.Output.Page, nullptr);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    EXPECT_EQ(Current(), u"A002"_s);
}

TEST_F(PrintMapTest, RecordPrintedAfterwards_IsUprightAndBlackAgain)
{
    PaperOfMap(BranchA.Row({{u"File", u"A001"}}).Texts(u"300,150,The Smiths,Arial,14,255,"));

    P.Form1->mnuPrintRecord.Click();

    ASSERT_EQ(Jobs().size(), 2);
    EXPECT_EQ(PaperOf(Jobs().last()), QSize(595, 842));
    const QImage paper = PictureOf(Jobs().last());
    EXPECT_EQ(CountPixels(paper, red), 0);
    EXPECT_GT(CountPixels(paper, Black), 0);
}

TEST_F(PrintMapTest, MapPrintedTwice_IsTwoJobs)
{
    GivenOpen(BranchA.Row({{u"File", u"A001"}}).Boxes(u"1000,500,255,0,,"));
    P.Form1->mnuPrint.Click();
    P.Form1->mnuPrint.Click();

    ASSERT_EQ(Jobs().size(), 2);
    EXPECT_TRUE(PictureOf(Jobs().first()) == PictureOf(Jobs().last()));
}

TEST_F(PrintMapTest, NoPrinter_IsReportedOnce_UnderAnHourglass_AndThePointerReturns)
{
    GivenOpen(BranchA.Row({{u"File", u"A001"}})
                  .Boxes(u"1000,500,255,A001,John,2000,500,255,0,,")
                  .Lines(u"1,1,2,2,0,")
                  .Texts(u"300,150,The Smiths,Arial,8,0,"));
    Machine.Printer.IsThere = false;
    ExpectPrinterErrorBox([&] { EXPECT_EQ(P.Screen.Pointer, MousePointer::Hourglass); });

    P.Form1->mnuPrint.Click();

    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    EXPECT_EQ(P.Output.PrintToPrinter, 0);
    EXPECT_EQ(Machine.Printer.Asked, 1);
}

TEST_F(PrintMapTest, NoPrinter_ForAnEmptyMap_IsReportedOnce)
{
    GivenOpen(BranchA.Row({{u"File", u"A001"}}));
    Machine.Printer.IsThere = false;
    ExpectPrinterErrorBox();

    P.Form1->mnuPrint.Click();

    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
}

TEST_F(PrintMapTest, AfterNoPrinter_TheMapIsPrintedWhenThereIsOne)
{
    GivenOpen(BranchA.Row({{u"File", u"A001"}}).Boxes(u"1000,500,255,0,,"));
    Machine.Printer.IsThere = false;
    ExpectPrinterErrorBox();
    P.Form1->mnuPrint.Click();
    Machine.Printer.IsThere = true;

    EXPECT_TRUE(IsBoxAt(PictureOf(PaperOfMap()), {2200, 900}, red));
}

TEST_F(PrintMapTest, SpoiltBox_IsReported_AndAllElseIsPrinted)
{
    GivenOpen(BranchA.Row({{u"File", u"A001"}}).Boxes(u"1000,500,255,0,,3000,500,255,0,,"));
    P.Map.BoxArr[0][BoxColumn::X] = u"spoilt"_s;
    Prompts.Expect(u"Error", u"Error # 13 was generated by Lineforge\rType mismatch", Buttons::Plain);

    const QImage paper = PictureOf(PaperOfMap());

    EXPECT_TRUE(IsBoxAt(paper, OnPaperOf({3000, 500}), red));
    EXPECT_EQ(ColourAt(paper, {1000, 5000}), Black);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
}

// The menu stays enabled when the branch is closed.
TEST_F(PrintMapTest, ClosedBranch_IsTold)
{
    GivenOpen(BranchA.Row({{u"File", u"A001"}}).Boxes(u"1000,500,255,0,,"));
    P.Form1->mnuCloseDB.Click();
    ExpectNoBranchBox();

    P.Form1->mnuPrint.Click();

    EXPECT_EQ(Machine.Printer.Asked, 0);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
}

} // namespace
} // namespace lineforge
