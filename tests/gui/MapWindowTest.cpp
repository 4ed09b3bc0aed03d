#include "gui/ProgramWindowTest.h"
#include "map/subjects/MapInteraction.h"
#include "support/Pixels.h"
#include "support/Refusal.h"

#include <QTest>

#include <functional>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

constexpr Point johnsBox{1200, 600};
constexpr Point marysBox{2400, 600};
constexpr Point annsBox{1200, 1500}; // of the other branch

// The whole program on real windows, with a branch open.
class MapWindowTest : public ProgramWindowTest
{
protected:
    MapWindowTest()
    {
        BranchBuilder(Home, u'A')
            .Row({{u"File", u"A001"}, {u"Forename", u"John"}, {u"Surname", u"Smith"}, {u"Gender", u"Male"}})
            .Row({{u"File", u"A002"}, {u"Forename", u"Mary"}, {u"Surname", u"Smith"}, {u"Gender", u"Female"}})
            .Row({{u"File", u"A003"}, {u"Forename", u"Paul"}, {u"Surname", u"Smith"}, {u"Gender", u"Male"}})
            .Boxes(u"1200,600,255,A001,John,2400,600,255,A002,Mary,1200,1500,255,B001,Ann,2400,1500,255,A003,Paul,")
            .Picture(u"A001", Qt::red)
            .Picture(u"A002", Qt::blue)
            .Picture(u"A003", Qt::gray)
            .Build();
        BranchBuilder(Home, u'B')
            .Row({{u"File", u"B001"}, {u"Forename", u"Ann"}, {u"Gender", u"Female"}})
            .Picture(u"B001", Qt::green)
            .Build();
        WriteAliasList(Home, {{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}});
        OpenBranch(u"Smiths"_s);
    }

    QWidget& Map() { return Find<QWidget>(*P.Form1, u"Picture1"_s); }
    // Pixels of the window, for a point of the map in twips.
    QPoint At(Point twips)
    {
        return Map().mapTo(&ViewOf(*P.Form1), QPoint(PixelScale().ToPixels(twips.X), PixelScale().ToPixels(twips.Y)));
    }
    void DoubleClick(Point corner)
    {
        QTest::mouseDClick(ViewOf(*P.Form1).windowHandle(), Qt::LeftButton, {}, At({corner.X + 300, corner.Y + 100}));
    }
    // By way of the middle, where `underWay` looks around.
    void Drag(
        Point from, Point to, const std::function<void()>& underWay = [] {})
    {
        QWindow* window = ViewOf(*P.Form1).windowHandle();
        QTest::mousePress(window, Qt::LeftButton, {}, At(from));
        QTest::mouseMove(window, At({(from.X + to.X) / 2, (from.Y + to.Y) / 2}));
        underWay();
        QTest::mouseMove(window, At(to));
        underWay();
        QTest::mouseRelease(window, Qt::LeftButton, {}, At(to));
        ServeEvents();
    }
    void ClickOn(const QString& button) { QTest::mouseClick(&Find<QWidget>(*P.Form1, button), Qt::LeftButton); }
    void View(const QString& surname)
    {
        P.Form1->Text1.Text = surname;
        ClickOn(u"Command3"_s);
    }
    QWidget* Frame(int index) { return Map().findChild<QWidget*>(u"Shape2(%1)"_s.arg(index)); }
    bool IsGreen(Point twips)
    {
        const QColor colour = ViewOf(*P.Form1).grab().toImage().pixelColor(At(twips));
        return colour.green() > colour.red() + 60 && colour.green() > colour.blue() + 60;
    }
};

TEST_F(MapWindowTest, DoubleClickOnABox_ShowsItsSubject_AndMovesTheMarker)
{
    DoubleClick(marysBox);

    EXPECT_EQ(P.Form1->Frame1.Caption.value(), u"Ref  A002"_s);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"Mary"_s);
    const QPoint marker = Find<QWidget>(*P.Form1, u"Shape1"_s).pos();
    EXPECT_EQ(marker, QPoint(PixelScale().ToPixels(marysBox.X + 247), PixelScale().ToPixels(marysBox.Y + 48)));
}

TEST_F(MapWindowTest, DoubleClick_LeavesThePointOfItsPress_AndThePlaceOfItsRelease)
{
    DoubleClick(marysBox);

    EXPECT_NEAR(P.Mouse.DownX, marysBox.X + 300, 10);
    EXPECT_NEAR(P.Mouse.DownY, marysBox.Y + 100, 10);
    EXPECT_EQ(P.Form1->Text9.Text.value(), QString::number(P.Mouse.DownX));
    EXPECT_EQ(P.Form1->Text8.Text.value(), u"%1,%2"_s.arg(P.Mouse.DownX - 307).arg(P.Mouse.DownY - 108));
}

TEST_F(MapWindowTest, DoubleClickOnTheMarker_GoesThroughToTheBox)
{
    P.Form1->Frame1.Caption = u"before"_s;

    DoubleClick(johnsBox);

    EXPECT_EQ(P.Form1->Frame1.Caption.value(), u"Ref  A001"_s);
}

TEST_F(MapWindowTest, DoubleClickOnABoxOfAnotherBranch_AndBack)
{
    DoubleClick(annsBox);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"Ann"_s);
    EXPECT_EQ(P.Branch.UsingAlternate, 1);

    DoubleClick(johnsBox);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"John"_s);
    EXPECT_EQ(P.Branch.UsingAlternate, 0);
}

TEST_F(MapWindowTest, DoubleClickOnAScrolledMap_FindsTheBox)
{
    P.Form1->VScroll1.Value = 300;
    ServeEvents();

    DoubleClick(marysBox);

    EXPECT_EQ(P.Form1->Frame1.Caption.value(), u"Ref  A002"_s);
}

TEST_F(MapWindowTest, View_PutsFramesOnTheMap_AndClearTakesThemAway)
{
    View(u"smith"_s);

    ASSERT_TRUE(Frame(1));
    ASSERT_TRUE(Frame(2));
    EXPECT_FALSE(Frame(3));
    EXPECT_TRUE(Frame(1)->isVisible());
    EXPECT_EQ(Frame(1)->pos(), QPoint(PixelScale().ToPixels(1160), PixelScale().ToPixels(560)));
    EXPECT_EQ(Frame(2)->pos(), QPoint(PixelScale().ToPixels(2360), PixelScale().ToPixels(1460)));
    EXPECT_EQ(Frame(1)->size(), QSize(PixelScale().ToPixels(735), PixelScale().ToPixels(495)));
    EXPECT_TRUE(IsGreen({1160 + 15, 800}));

    ClickOn(u"Command4"_s);

    EXPECT_FALSE(Frame(1));
    EXPECT_FALSE(Frame(2));
    EXPECT_FALSE(IsGreen({1160 + 15, 800}));
}

TEST_F(MapWindowTest, Frames_ScrollWithTheMap)
{
    View(u"Smith"_s);
    const QPoint before = Frame(1)->mapTo(&ViewOf(*P.Form1), QPoint());

    P.Form1->VScroll1.Value = 300;
    ServeEvents();

    EXPECT_EQ(Frame(1)->mapTo(&ViewOf(*P.Form1), QPoint()), before - QPoint(0, PixelScale().ToPixels(300)));
}

TEST_F(MapWindowTest, DoubleClickThroughAFrame_FindsTheBox)
{
    View(u"Smith"_s);
    P.Form1->Frame1.Caption = u"before"_s;

    DoubleClick(johnsBox);

    EXPECT_EQ(P.Form1->Frame1.Caption.value(), u"Ref  A001"_s);
}

TEST_F(MapWindowTest, ZoneThatIsMovedWithTheTools_LeavesTheFramesWhereTheyAre)
{
    View(u"Smith"_s);
    const QPoint johns = Frame(1)->pos();
    const QPoint pauls = Frame(2)->pos();
    P.Form1->mnuTreeTools.Click();
    ClickOn(u"Image2"_s);
    Drag({1000, 400}, {2100, 1000});

    const auto framesStand = [&] {
        return Frame(1)->isVisible() && Frame(1)->pos() == johns && Frame(2)->isVisible() && Frame(2)->pos() == pauls;
    };
    Drag({1600, 700}, {1900, 1300}, [&] { EXPECT_TRUE(framesStand()); });

    EXPECT_GT(P.Map.BoxArr[0][BoxColumn::X].Number(), johnsBox.X);
    EXPECT_TRUE(framesStand());
    EXPECT_TRUE(IsGreen({1160 + 15, 800}));

    Prompts.Expect(u"Closing Graphics Tools", u"Save the Tree Graphic changes ?", Buttons::InformationYesNo,
                   Answer::No);
    ClickOn(u"Image8"_s);
    EXPECT_TRUE(framesStand());
}

TEST_F(MapWindowTest, SecondView_IsRefused_AndTheFramesStay)
{
    View(u"Smith"_s);
    View(u"Smith"_s);
    EXPECT_EQ(Refusals(), std::vector<int>{ErrorNumber::ArrayElementLoaded});
    EXPECT_TRUE(Frame(2));
}

TEST_F(MapWindowTest, SecondClear_IsRefused)
{
    View(u"Smith"_s);
    ClickOn(u"Command4"_s);
    ClickOn(u"Command4"_s);
    EXPECT_EQ(Refusals(), std::vector<int>{ErrorNumber::ArrayElementMissing});

    View(u"Smith"_s);
    EXPECT_TRUE(Frame(1));
}

} // namespace
} // namespace lineforge
