#include "map/tools/ToolsTest.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::WithParamInterface;
using LineValues = std::vector<int>;
using Zone = Rectangle;

class ZoneToolTest : public ToolsTest
{
protected:
    // A rubber rectangle, from the first corner to the second.
    void DrawZone(Point from, Point to)
    {
        Choose(ToolSelection::ZoneDraw);
        Drag({from, to});
        ASSERT_EQ(P.Tools.ToolSel, ToolSelection::ZoneFixed);
    }

    Zone Rubber() const { return {Shape3.Left, Shape3.Top, Shape3.Width, Shape3.Height}; }
    Zone Kept() const { return {P.Tools.ZoneLeft, P.Tools.ZoneTop, P.Tools.ZoneWidth, P.Tools.ZoneHeight}; }

    Shape& Shape3 = P.Form1->Shape3;
};

struct Corners {
    Point From;
    Point To;
    Zone Expected;
};

class RubberTest : public ZoneToolTest, public WithParamInterface<Corners>
{
};

TEST_P(RubberTest, SpansFromThePressToThePointer_WhicheverWay)
{
    GivenTools();
    Choose(ToolSelection::ZoneDraw);

    Press(GetParam().From);
    EXPECT_EQ(Rubber(), (Zone{GetParam().From.X, GetParam().From.Y, 0, 0}));
    EXPECT_TRUE(Shape3.Visible);
    Move(GetParam().To);
    EXPECT_EQ(Rubber(), GetParam().Expected);
    EXPECT_EQ(P.Tools.ToolSel, ToolSelection::ZoneDraw);
    Release(GetParam().To);

    EXPECT_EQ(P.Tools.ToolSel, ToolSelection::ZoneFixed);
    EXPECT_EQ(P.Tools.ToolStep, 0);
    EXPECT_EQ(Kept(), GetParam().Expected);
    EXPECT_TRUE(Shape3.Visible);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::SizeAll);
}

INSTANTIATE_TEST_SUITE_P(Ways, RubberTest,
                         testing::Values(Corners{{1000, 2000}, {3000, 5000}, {1000, 2000, 2000, 3000}},
                                         Corners{{3000, 2000}, {1000, 5000}, {1000, 2000, 2000, 3000}},
                                         Corners{{1000, 5000}, {3000, 2000}, {1000, 2000, 2000, 3000}},
                                         Corners{{3000, 5000}, {1000, 2000}, {1000, 2000, 2000, 3000}},
                                         Corners{{1000, 2000}, {1000, 2000}, {1000, 2000, 0, 0}},
                                         Corners{{500, 400}, {-300, -200}, {-300, -200, 800, 600}}));

TEST_F(ZoneToolTest, RubberTurnedBackAcrossThePress_KeepsItsLastLeftAndTop)
{
    GivenTools();
    Choose(ToolSelection::ZoneDraw);
    Press({3000, 3000});
    Move({2000, 2500});
    Move({4000, 3200});

    EXPECT_EQ(Rubber(), (Zone{2000, 2500, 1000, 200}));
}

TEST_F(ZoneToolTest, Rubber_DrawsNothing)
{
    BranchA.Boxes(u"1000,500,0,0,,");
    GivenTools();
    const QImage before = Shown();

    DrawZone({500, 300}, {3000, 3000});

    EXPECT_TRUE(SameImage(Shown(), before));
}

TEST_F(ZoneToolTest, RubberGoesOn_WhenTheToolsHaveBeenClosedInTheMiddle)
{
    GivenTools();
    Choose(ToolSelection::ZoneDraw);
    Press({1000, 1000});
    P.Tools.ToolMode = 0;

    Move({3000, 2000});
    EXPECT_EQ(Rubber(), (Zone{1000, 1000, 2000, 1000}));
    Release({3000, 2000});
    EXPECT_EQ(P.Tools.ToolSel, ToolSelection::ZoneFixed);
}

// A text, a box and a line, all of them inside the zone {500, 500}-{3000, 3000}, and the same again outside.
class ZoneDragTest : public ZoneToolTest
{
protected:
    ZoneDragTest()
    {
        BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}, {u"Gender", u"Male"}})
            .Boxes(u"1000,1000,255,A001,John,6000,1000,255,0,,")
            .Lines(u"1000,2000,4000,2000,0,6000,2000,1000,2200,0,")
            .Texts(u"1000,2500,One,Arial,8,0,6000,2500,Two,Courier,14,0,");
    }

    void GivenZone()
    {
        GivenTools();
        DrawZone({500, 500}, {3000, 3000});
    }

    void ExpectCarried(int dx, int dy)
    {
        EXPECT_EQ(Box(0),
                  (RowTexts{QString::number(1000 + dx), QString::number(1000 + dy), u"255"_s, u"A001"_s, u"John"_s}));
        EXPECT_EQ(Line(0), (LineValues{1000 + dx, 2000 + dy, 4000 + dx, 2000 + dy, 0}));
        EXPECT_EQ(Text(0), (RowTexts{QString::number(1000 + dx), QString::number(2500 + dy), u"One"_s, u"Arial"_s,
                                     u"8"_s, u"0"_s}));
    }
    void ExpectOthersAtTheirPlaces()
    {
        EXPECT_EQ(Box(1), (RowTexts{u"6000"_s, u"1000"_s, u"255"_s, u"0"_s, u""_s}));
        EXPECT_EQ(Line(1), (LineValues{6000, 2000, 1000, 2200, 0}));
        EXPECT_EQ(Text(1), (RowTexts{u"6000"_s, u"2500"_s, u"Two"_s, u"Courier"_s, u"14"_s, u"0"_s}));
    }
};

TEST_F(ZoneDragTest, CarriesWhatIsInside_ALineByItsStartAlone)
{
    GivenZone();

    Drag({{1000, 1000}, {1200, 1100}, {1300, 5200}});

    ExpectCarried(300, 4200);
    ExpectOthersAtTheirPlaces();
}

TEST_F(ZoneDragTest, AnywhereOnThePicture_ByThePointersTravel)
{
    GivenZone();

    Drag({{7000, 7000}, {7100, 7000}, {7010, 7020}});

    ExpectCarried(10, 20);
}

TEST_F(ZoneDragTest, WhatTheZoneMeetsOnItsWay_IsLeftAlone)
{
    GivenZone();

    Drag({{1000, 1000}, {3500, 1000}, {6000, 1000}, {7000, 1000}});

    ExpectCarried(6000, 0);
    ExpectOthersAtTheirPlaces();
}

TEST_F(ZoneDragTest, BackToTheStart_NothingHasChanged)
{
    GivenZone();
    const QImage before = Afresh();

    Drag({{1000, 1000}, {3500, 1000}, {6000, 1000}, {1000, 1000}});

    ExpectCarried(0, 0);
    ExpectOthersAtTheirPlaces();
    EXPECT_TRUE(SameImage(Shown(), before));
}

TEST_F(ZoneDragTest, OverThePicturesEdgesAndBack_NothingIsLost)
{
    GivenZone();

    Drag({{1000, 1000}, {-4000, -4000}, {12000, 12000}, {-4000, 12000}, {12000, -4000}, {1100, 1200}});

    ExpectCarried(100, 200);
    ExpectOthersAtTheirPlaces();
}

TEST_F(ZoneDragTest, FirstStep_ChangesTheState_TheZoneAndThePressPoint)
{
    GivenZone();
    P.Form1->Shape1.Visible = true;

    Press({1000, 1000});
    EXPECT_EQ(P.Tools.ToolSel, ToolSelection::ZoneFixed);
    EXPECT_EQ(P.Tools.LastX, 500);
    EXPECT_EQ(P.Tools.LastY, 500);
    Move({1200, 1100});

    EXPECT_EQ(P.Tools.ToolSel, ToolSelection::ZoneDrag);
    EXPECT_EQ(Rubber(), (Zone{700, 600, 2500, 2500}));
    EXPECT_EQ(Kept(), Rubber());
    EXPECT_EQ(P.Mouse.DownX, 1200);
    EXPECT_EQ(P.Mouse.DownY, 1100);
    EXPECT_EQ(P.Tools.DeltaX, 200);
    EXPECT_EQ(P.Tools.DeltaY, 100);
    EXPECT_FALSE(P.Form1->Shape1.Visible);
    ExpectCarried(200, 100);
}

TEST_F(ZoneDragTest, Release_EndsTheTool)
{
    GivenZone();
    P.Tools.MapCursorMode = 2;

    Drag({{1000, 1000}, {1200, 1100}});

    EXPECT_EQ(P.Tools.ToolSel, ToolSelection::None);
    EXPECT_EQ(P.Tools.ToolStep, 0);
    EXPECT_FALSE(Shape3.Visible);
    EXPECT_TRUE(IsRaised(&forms::Form1::Image2));
    EXPECT_EQ(P.Tools.MapCursorMode, 0);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    EXPECT_EQ(P.Tools.ToolMode, 3);
    EXPECT_EQ(Picture.Mode, DrawMode::Copy);
}

TEST_F(ZoneDragTest, Release_ClearsThePicture_SoThatNoTraceStays)
{
    GivenZone();
    Picture.ForeColor = Green;
    Picture.Line({5000, 5000}, {8000, 8000});

    Drag({{1000, 1000}, {1200, 1100}});

    EXPECT_EQ(CountPixels(Picture, Green), 0);
    EXPECT_TRUE(IsAsPaintedAfresh());
}

TEST_F(ZoneDragTest, PressAndReleaseWithoutAMove_ChangesNothing_AndTheZoneStaysFixed)
{
    GivenZone();

    PressAndRelease({1000, 1000});

    EXPECT_EQ(P.Tools.ToolSel, ToolSelection::ZoneFixed);
    EXPECT_TRUE(Shape3.Visible);
    EXPECT_EQ(Rubber(), (Zone{500, 500, 2500, 2500}));
    ExpectCarried(0, 0);

    Drag({{1000, 1000}, {1100, 1200}});
    ExpectCarried(100, 200);
}

TEST_F(ZoneDragTest, TravellingBox_ShowsItsNumberAndName_AnEmptyOneAZero)
{
    BranchA.Boxes(u"1000,1000,255,A001,Christopher,1000,1500,255,0,,").Lines(u"0,0,0,").Texts(u"0,0,0,");
    GivenZone();
    PictureByHand hand;
    for (const Point corner : {Point{4000, 4000}, Point{4000, 4500}}) {
        hand->ForeColor = Red;
        hand->Box({corner.X, corner.Y, 615, 217});
    }
    hand->ForeColor = Black;
    hand->PrintAt({4100, 4000}, u"A001"_s);
    hand->PrintAt({4050, 4100}, u"Chris'r"_s);
    hand->PrintAt({4100, 4500}, u"0"_s);
    Picture.Cls();

    Press({1000, 1000});
    Move({4000, 4000});

    EXPECT_TRUE(SameDrawing(Picture, *hand));
}

TEST_F(ZoneDragTest, TravellingItems_AreWipedWhereTheyStood)
{
    BranchA.Boxes(u"0,0,0,").Lines(u"1000,2000,2000,2000,255,").Texts(u"1000,2500,One,Courier,14,255,");
    GivenZone();
    PictureByHand hand;
    hand->ForeColor = Red;
    hand->Line({4000, 5000}, {5000, 5000});
    hand->Font = {u"Courier"_s, 14};
    hand->PrintAt({4000, 5500}, u"One"_s);

    Press({1000, 1000});
    Move({1100, 1030});
    Move({4000, 4000});

    EXPECT_TRUE(SameDrawing(Picture, *hand));
}

TEST_F(ZoneDragTest, LastRowsServed_Are199OfAllThree)
{
    GivenTools();
    for (const int row : {199, 200}) {
        GivenBox(row, {1000, 1000});
        GivenLine(row, {1000, 2000}, {2000, 2000});
        GivenText(row, {1000, 2500}, u"Far");
    }
    DrawZone({500, 500}, {3000, 3000});

    Drag({{1000, 1000}, {1100, 1200}});

    EXPECT_EQ(Box(199)[BoxColumn::X], u"1100"_s);
    EXPECT_EQ(Line(199)[LineColumn::X1], 1100);
    EXPECT_EQ(Text(199)[TextColumn::X], u"1100"_s);
    EXPECT_EQ(Box(200)[BoxColumn::X], u"1000"_s);
    EXPECT_EQ(Line(200)[LineColumn::X1], 1000);
    EXPECT_EQ(Text(200)[TextColumn::X], u"1000"_s);
}

struct Place {
    Point At;
    bool IsInside;
};

class ZoneEdgeTest : public ZoneToolTest, public WithParamInterface<Place>
{
};

TEST_P(ZoneEdgeTest, EdgesAreOutside_ForAllThreeKinds)
{
    GivenTools();
    const auto [at, isInside] = GetParam();
    GivenBox(1, at);
    GivenLine(1, at, {8000, 8000});
    GivenText(1, at, u"At");
    P.Map.SBoxes = P.Map.SLines = P.Map.STexts = 1;
    DrawZone({1000, 2000}, {3000, 5000});

    Drag({{100, 100}, {107, 103}});

    const int dx = isInside ? 7 : 0;
    const int dy = isInside ? 3 : 0;
    const Point moved{at.X + dx, at.Y + dy};
    EXPECT_EQ(Box(1)[BoxColumn::X].toInt(), moved.X);
    EXPECT_EQ(Box(1)[BoxColumn::Y].toInt(), moved.Y);
    EXPECT_EQ(Line(1), (LineValues{moved.X, moved.Y, 8000 + dx, 8000 + dy, 0}));
    EXPECT_EQ(Text(1)[TextColumn::X].toInt(), moved.X);
    EXPECT_EQ(Text(1)[TextColumn::Y].toInt(), moved.Y);
}

INSTANTIATE_TEST_SUITE_P(Edges, ZoneEdgeTest,
                         testing::Values(Place{{1000, 3000}, false}, Place{{1001, 3000}, true},
                                         Place{{2999, 3000}, true}, Place{{3000, 3000}, false},
                                         Place{{2000, 2000}, false}, Place{{2000, 2001}, true},
                                         Place{{2000, 4999}, true}, Place{{2000, 5000}, false}));

TEST_F(ZoneToolTest, FreeRows_StayOut_WhenTheZoneBeginsInTheCorner)
{
    GivenTools();
    DrawZone({0, 0}, {3000, 3000});

    Drag({{100, 100}, {200, 300}});

    EXPECT_EQ(Line(5), LineValues(5, 0));
    EXPECT_EQ(Box(5), RowTexts(5, QString()));
    EXPECT_EQ(Text(5), RowTexts(6, QString()));
}

TEST_F(ZoneToolTest, FreeRows_StayOut_EvenWhenTheZoneReachesOverTheCorner)
{
    BranchA.Lines(u"1000,1000,2000,1000,0,1000,2000,2000,2000,0,");
    GivenTools();
    Choose(ToolSelection::LineDelete);
    PressAndRelease({1500, 1000});
    DrawZone({3000, 3000}, {-500, -500});

    Drag({{100, 100}, {200, 300}});

    EXPECT_EQ(Line(0), LineValues(5, 0));
    EXPECT_EQ(Line(5), LineValues(5, 0));
    EXPECT_EQ(Box(5)[BoxColumn::X], QString());
    EXPECT_EQ(Line(1), (LineValues{1100, 2200, 2100, 2200, 0}));
}

TEST_F(ZoneToolTest, SecondZone_CarriesItsOwnItemsOnly)
{
    BranchA.Boxes(u"1000,1000,0,0,,5000,1000,0,0,,");
    GivenTools();
    DrawZone({500, 500}, {2000, 2000});
    Drag({{100, 100}, {200, 100}});
    DrawZone({4500, 500}, {6000, 2000});
    Drag({{100, 100}, {100, 300}});

    EXPECT_EQ(Box(0)[BoxColumn::X], u"1100"_s);
    EXPECT_EQ(Box(0)[BoxColumn::Y], u"1000"_s);
    EXPECT_EQ(Box(1)[BoxColumn::X], u"5000"_s);
    EXPECT_EQ(Box(1)[BoxColumn::Y], u"1200"_s);
}

TEST_F(ZoneToolTest, ItemsAtNoPossiblePlace_StayOut_EvenWhenTheZoneReachesOverTheEdge)
{
    BranchA.Boxes(u"1000,here,255,0,,there,1000,255,0,,").Texts(u"1000,here,One,Arial,8,0,there,1000,Two,Arial,8,0,");
    GivenTools();
    DrawZone({3000, 3000}, {-500, -500});

    Drag({{100, 100}, {200, 300}});

    EXPECT_EQ(Box(0), (RowTexts{u"1000"_s, u"here"_s, u"255"_s, u"0"_s, u""_s}));
    EXPECT_EQ(Box(1), (RowTexts{u"there"_s, u"1000"_s, u"255"_s, u"0"_s, u""_s}));
    EXPECT_EQ(Text(0)[TextColumn::Y], u"here"_s);
    EXPECT_EQ(Text(1)[TextColumn::X], u"there"_s);
    EXPECT_TRUE(IsBlank(Picture));
}

class ZonePutAwayTest : public ZoneToolTest, public WithParamInterface<Image forms::Form1::*>
{
};

TEST_P(ZonePutAwayTest, AnItemToolChosen_HidesTheRectangle)
{
    GivenTools();
    DrawZone({500, 500}, {2000, 2000});

    Click(GetParam());

    EXPECT_FALSE(Shape3.Visible);
}

INSTANTIATE_TEST_SUITE_P(ItemTools, ZonePutAwayTest,
                         testing::Values(&forms::Form1::Image6, &forms::Form1::Image7, &forms::Form1::Image9));

TEST_F(ZoneToolTest, ToolsClosed_HideTheRectangle)
{
    GivenMap();
    for (const Answer answer : {Answer::Yes, Answer::No}) {
        P.Form1->mnuTreeTools.Click();
        DrawZone({500, 500}, {2000, 2000});

        ExpectSaveQuestion(answer, [&] { EXPECT_FALSE(Shape3.Visible); });
        Click(&forms::Form1::Image8);

        EXPECT_FALSE(Shape3.Visible);
        EXPECT_EQ(P.Tools.ToolSel, ToolSelection::None);
    }
}

TEST_F(ZoneToolTest, MoveButton_PutsTheZoneAway)
{
    GivenTools();
    DrawZone({500, 500}, {2000, 2000});

    Click(&forms::Form1::Image2);

    EXPECT_EQ(P.Tools.ToolSel, ToolSelection::None);
    EXPECT_FALSE(Shape3.Visible);
}

TEST_F(ZoneToolTest, Rectangle_IsDotted)
{
    EXPECT_TRUE(Shape3.Dotted);
    EXPECT_EQ(Shape3.Kind, Shape::Outline::Rectangle);
}

} // namespace
} // namespace lineforge
