#include "map/subjects/MapInteractionTest.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::Values;
using testing::WithParamInterface;

class PressTest : public MapInteractionTest
{
protected:
    PressTest()
    {
        GivenBox(0, {1000, 500});
        GivenBox(1, {2000, 500});
        P.Map.SBoxes = 1;
    }
};

TEST_F(PressTest, OnABox_ClicksOnce_AndServesTheEventLoopOnce)
{
    Press(InsideOf(1));

    EXPECT_EQ(Sounds, QStringList{u"Sound"_s});
    EXPECT_EQ(Machine.Loop.Yields, 1);
}

TEST_F(PressTest, OnTwoBoxesThatOverlap_ClicksOnce)
{
    GivenBox(1, {1100, 550});

    Press({1300, 600});

    EXPECT_EQ(Sounds.size(), 1);
}

TEST_F(PressTest, BesideAllBoxes_IsSilent)
{
    P.Mouse.BoxMiss = 1;

    Press(Nowhere);

    EXPECT_EQ(Sounds, QStringList());
    EXPECT_EQ(Machine.Loop.Yields, 0);
    EXPECT_EQ(P.Mouse.BoxMiss, 0);
}

TEST_F(PressTest, OnTheLeftEdge_IsSilent_ButNotBesideIt)
{
    Press({1000, 600});
    EXPECT_EQ(Sounds.size(), 0);

    Press({1001, 600});
    EXPECT_EQ(Sounds.size(), 1);
}

TEST_F(PressTest, KeepsThePoint_FractionDropped)
{
    Picture.MouseDown(LeftButton, 0, 4321.9, -8.9);

    EXPECT_EQ(P.Mouse.DownX, 4321);
    EXPECT_EQ(P.Mouse.DownY, -8);
}

TEST_F(PressTest, NoBoxesCounted_KeepsThePoint_AndIsSilent)
{
    P.Map.SBoxes = 0;
    P.Mouse.BoxMiss = 1;

    Press(InsideOf(0));

    EXPECT_EQ(P.Mouse.DownX, 1300);
    EXPECT_EQ(Sounds, QStringList());
    EXPECT_EQ(P.Mouse.BoxMiss, 1);
}

TEST_F(PressTest, AnyMouseButton_Clicks)
{
    Press(InsideOf(0), RightButton);

    EXPECT_EQ(Sounds.size(), 1);
}

TEST_F(PressTest, SecondPressDuringTheClick_OverwritesThePoint)
{
    Machine.Loop.AtNextYield([&] { Press(InsideOf(1)); });

    Press(InsideOf(0));

    EXPECT_EQ(P.Mouse.DownX, InsideOf(1).X);
    EXPECT_EQ(Sounds.size(), 2);
}

class PressModeTest : public PressTest, public WithParamInterface<int>
{
};

TEST_P(PressModeTest, ABoxIsHit_AndThePointKept)
{
    P.Tools.MapCursorMode = GetParam();

    Press(InsideOf(0));

    EXPECT_EQ(Sounds.size(), 1);
    EXPECT_EQ(P.Mouse.DownX, 1300);
    EXPECT_EQ(P.Mouse.DownY, 600);
}

INSTANTIATE_TEST_SUITE_P(Modes, PressModeTest, Values(0, 1, 2, 3));

class ReleaseModeTest : public MapInteractionTest, public WithParamInterface<int>
{
};

TEST_P(ReleaseModeTest, ThePointIsShown_AndThePlaceOfABoxThere)
{
    P.Tools.MapCursorMode = GetParam();

    Picture.MouseUp(LeftButton, 0, 1234.9, 567.9);

    EXPECT_EQ(P.Form1->Text9.Text.value(), u"1234"_s);
    EXPECT_EQ(P.Form1->Text10.Text.value(), u"567"_s);
    EXPECT_EQ(P.Form1->Text8.Text.value(), u"927,459"_s);
    EXPECT_EQ(P.Mouse.sCoords, u"927,459"_s);
    EXPECT_EQ(P.Mouse.BoxX, 1234);
    EXPECT_EQ(P.Mouse.BoxY, 567);
    EXPECT_EQ(P.Mouse.BoxLeft, 927);
    EXPECT_EQ(P.Mouse.BoxTop, 459);
}

INSTANTIATE_TEST_SUITE_P(Modes, ReleaseModeTest, Values(0, 1, 2));

TEST_F(MapInteractionTest, Release_WhileASubjectIsMoved_ShowsNothing)
{
    P.Tools.MapCursorMode = 3;

    Release({1234, 567});

    EXPECT_EQ(P.Form1->Text8.Text.value(), QString());
    EXPECT_EQ(P.Form1->Text9.Text.value(), QString());
    EXPECT_EQ(P.Mouse.BoxX, 0);
    EXPECT_EQ(P.Mouse.BoxLeft, 0);
}

// A branch of three people; A001 and A002 have boxes in the rows 0 and 1, row 2 is empty.
class LocalDoubleClickTest : public MapInteractionTest
{
protected:
    LocalDoubleClickTest()
    {
        GivenOpen(BranchA
                      .Row({{u"File", u"A001"},
                            {u"Forename", u"John"},
                            {u"Surname", u"Smith"},
                            {u"BirthDate", u"1801"},
                            {u"Deceased", u"1870"},
                            {u"Spouse", u"Jane"},
                            {u"Maiden", u"none"},
                            {u"Gender", u"Male"}})
                      .Row({{u"File", u"A002"}, {u"Forename", u"Jane"}, {u"Gender", u"Female"}})
                      .Row({{u"File", u"A003"}, {u"Forename", u"Kim"}})
                      .Picture(u"A001", Qt::red)
                      .Picture(u"A002", Qt::blue)
                      .Picture(u"A003", Qt::green));
        GivenBox(0, {1000, 500}, u"A001");
        GivenBox(1, {2000, 500}, u"A002");
        GivenBox(2, {3000, 500}, u"0");
        GivenBox(3, {4000, 500}, u"A003");
        P.Map.SBoxes = 3;
        Records(P.Form3).MoveLast();
        P.Form1->Frame1.Caption = u"before"_s;
    }

    void ExpectNothingHappened()
    {
        EXPECT_EQ(ShownNumber(), u"before"_s);
        EXPECT_EQ(Current(), u"A003"_s);
        EXPECT_EQ(P.Branch.UsingAlternate, 0);
    }
};

TEST_F(LocalDoubleClickTest, OnABox_ShowsItsRecordInThePanel)
{
    P.Form1->Image1.Visible = false;

    DoubleClickBox(0);

    const forms::Form1& form = *P.Form1;
    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_EQ(ShownNumber(), u"Ref  A001"_s);
    EXPECT_EQ(form.Label9.Caption.value(), u"John"_s);
    EXPECT_EQ(form.Label10.Caption.value(), u"Smith"_s);
    EXPECT_EQ(form.Label11.Caption.value(), u"1801"_s);
    EXPECT_EQ(form.Label12.Caption.value(), u"1870"_s);
    EXPECT_EQ(form.Label14.Caption.value(), u"Jane"_s);
    EXPECT_EQ(form.Label15.Caption.value(), u"none"_s);
    EXPECT_EQ(form.Label17.Caption.value(), u"Male"_s);
    EXPECT_TRUE(form.Image1.Visible);
    const QImage shown = form.Image1.Picture;
    ASSERT_FALSE(shown.isNull());
    EXPECT_GT(qRed(shown.pixel(5, 5)), 200);
    EXPECT_EQ(P.Record.sCurFile, u"A001"_s);
    EXPECT_EQ(P.Record.sPicFile, u"A001Sub.Jpg"_s);
}

TEST_F(LocalDoubleClickTest, OnABox_MarksIt_AndAsksForANewGalleryPage)
{
    P.Gallery.FirstShow = 0;

    DoubleClickBox(1);

    EXPECT_TRUE(IsMarkerOnBox(1));
    EXPECT_EQ(Marker.BorderColor, Rgb(255, 0, 0));
    EXPECT_EQ(P.Gallery.FirstShow, 1);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
}

TEST_F(LocalDoubleClickTest, NumbersAreComparedWithoutRegardToCase)
{
    GivenBox(0, {1000, 500}, u"a001");

    DoubleClickBox(0);

    EXPECT_EQ(ShownNumber(), u"Ref  A001"_s);
}

TEST_F(LocalDoubleClickTest, BesideAllBoxes_DoesNothing)
{
    GivenMarkerElsewhere();

    DoubleClick(Nowhere);

    ExpectNothingHappened();
    EXPECT_TRUE(IsMarkerUntouched());
    EXPECT_EQ(P.Mouse.BoxMiss, 1);
}

TEST_F(LocalDoubleClickTest, OnAnEmptyBox_DoesNothing)
{
    DoubleClickBox(2);

    ExpectNothingHappened();
}

TEST_F(LocalDoubleClickTest, OnABoxWithoutText_DoesNothing)
{
    GivenBox(2, {3000, 500}, u"");

    DoubleClickBox(2);

    ExpectNothingHappened();
}

TEST_F(LocalDoubleClickTest, OnTheLeftEdge_IsOutside)
{
    DoubleClick({1000, 600});

    ExpectNothingHappened();
}

TEST_F(LocalDoubleClickTest, OneRightOfTheLeftEdge_IsInside)
{
    DoubleClick({1001, 600});

    EXPECT_EQ(ShownNumber(), u"Ref  A001"_s);
}

TEST_F(LocalDoubleClickTest, NoBoxesCounted_SelectsNothing_ThoughABoxStandsInRow0)
{
    P.Map.SBoxes = 0;

    DoubleClickBox(0);

    ExpectNothingHappened();
    EXPECT_EQ(Sounds, QStringList());
}

TEST_F(LocalDoubleClickTest, BoxInRow100_IsHit_ButNoMarkerFindsIt)
{
    GivenBox(0, {1000, 500});
    GivenBox(100, {6000, 500}, u"A001");
    P.Map.SBoxes = 100;
    GivenMarkerElsewhere();

    DoubleClickBox(100);

    EXPECT_EQ(ShownNumber(), u"Ref  A001"_s);
    EXPECT_EQ(P.Mouse.BoxIdx, 100);
    EXPECT_FALSE(Marker.Visible);
}

TEST_F(LocalDoubleClickTest, LeavesThePlaceOfTheReleaseAsThePosition_WhenNothingIsShown)
{
    P.Mouse.BoxX = 1;
    P.Mouse.BoxY = 2;

    DoubleClickBox(2);
    EXPECT_EQ(P.Mouse.BoxX, 3300);

    Press(InsideOf(2));
    Release(InsideOf(2));
    Picture.DblClick();
    EXPECT_EQ(P.Mouse.BoxX, 3300 - 307);
    EXPECT_EQ(P.Mouse.BoxY, 600 - 108);
}

TEST_F(LocalDoubleClickTest, WhileTheToolsAreOpen_DoesNothing)
{
    P.Tools.ToolMode = 3;

    DoubleClickBox(0);

    ExpectNothingHappened();
}

TEST_F(LocalDoubleClickTest, WithLineageMarks_ShowsTheRecord)
{
    P.Tools.ToolMode = 1;

    DoubleClickBox(0);

    EXPECT_EQ(ShownNumber(), u"Ref  A001"_s);
}

TEST_F(LocalDoubleClickTest, NoBranchOpen_IsTold)
{
    P.Branch.sDbaseName.clear();
    Prompts.Expect(u"Data not available", u"Cannot View until database file is Opened", Buttons::Information);

    DoubleClickBox(0);

    ExpectNothingHappened();
}

TEST_F(LocalDoubleClickTest, NoSuchRecord_IsTold_AndTheCurrentRecordStays)
{
    GivenBox(0, {1000, 500}, u"A009");
    Prompts.Expect(u"Database Searched", u"No File data found", Buttons::Information);
    GivenMarkerElsewhere();

    DoubleClickBox(0);

    ExpectNothingHappened();
    EXPECT_TRUE(IsMarkerUntouched());
}

TEST_F(LocalDoubleClickTest, NoSuchRecord_CursorBehindTheLastRow_AndNoPositionSaved_StaysThere)
{
    GivenBox(0, {1000, 500}, u"A009");
    Records(P.Form3).Seek(u"File", u"nobody"_s);
    Prompts.Expect(u"Database Searched", u"No File data found", Buttons::Information);

    DoubleClickBox(0);

    EXPECT_TRUE(Records(P.Form3).Eof());
}

TEST_F(LocalDoubleClickTest, CursorBehindTheLastRow_TheRecordIsFoundAllTheSame)
{
    Records(P.Form3).Seek(u"File", u"nobody"_s);

    DoubleClickBox(0);

    EXPECT_EQ(ShownNumber(), u"Ref  A001"_s);
    EXPECT_TRUE(IsMarkerOnBox(0));
}

TEST_F(LocalDoubleClickTest, NoGender_TheMarkerStaysOnThePreviousSubject)
{
    DoubleClickBox(0);
    P.Gallery.FirstShow = 0;

    DoubleClickBox(3);

    EXPECT_EQ(ShownNumber(), u"Ref  A003"_s);
    EXPECT_TRUE(IsMarkerOnBox(0));
    EXPECT_EQ(P.Gallery.FirstShow, 0);
}

TEST_F(LocalDoubleClickTest, PictureMissing_EmptiesThePanels_AndIsToldOnceADoubleClick)
{
    DoubleClickBox(0);
    ASSERT_FALSE(P.Form1->Image1.Picture.value().isNull());
    P.Files.Kill(Home.Path(u"LfgDat_A/A002Sub.jpg"));

    for (int time = 0; time < 2; ++time) {
        Prompts.Expect(u"Image not Present", u"Searched Image File for A002Sub.Jpg", Buttons::Information);
        DoubleClickBox(1);
        EXPECT_TRUE(Prompts.IsUsedUp());
    }

    EXPECT_TRUE(P.Form1->Image1.Picture.value().isNull());
    EXPECT_EQ(ShownNumber(), u"Ref  A002"_s);
    EXPECT_TRUE(IsMarkerOnBox(1));
}

TEST_F(LocalDoubleClickTest, EmptyBoxWhileRepositioning_IsTakenForARecordOfBranchZero)
{
    P.Tools.MapCursorMode = 2;
    ExpectMissing(u"LfgDat_0/LfgDat_0.mdb");

    DoubleClickBox(2);

    ExpectNothingHappened();
    EXPECT_EQ(P.Tools.MapCursorMode, 2);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
}

TEST_F(MapInteractionTest, DoubleClick_EmptyBranch_IsTold)
{
    GivenOpen(BranchA);
    GivenBox(1, {1000, 500}, u"A001");
    P.Map.SBoxes = 1;
    Prompts.Expect(u"Database Empty", u"This Tree Branch has no records to access", Buttons::Information);

    DoubleClickBox(1);

    EXPECT_EQ(P.Branch.UsingAlternate, 0);
}

TEST_F(MapInteractionTest, DoubleClick_NoBranchEverOpened_IsTold)
{
    Prompts.Expect(u"Data not available", u"Cannot View until database file is Opened", Buttons::Information);

    DoubleClick({1000, 500});
}

class BackOutTest : public MapInteractionTest, public WithParamInterface<MenuItem forms::Form1::*>
{
};

TEST_P(BackOutTest, OpeningTheMenu_CancelsAPendingRepositioning)
{
    P.Tools.MapCursorMode = 2;
    P.Screen.Pointer = MousePointer::Cross;

    ((*P.Form1).*GetParam()).Click();

    EXPECT_EQ(P.Tools.MapCursorMode, 0);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
}

INSTANTIATE_TEST_SUITE_P(Menus, BackOutTest, Values(&forms::Form1::mnuFile, &forms::Form1::mnuHelp));

TEST_F(MapInteractionTest, ScrollBar_MovesTheMapUp)
{
    P.Form1->VScroll1.Value = 1500;
    P.Form1->VScroll1.Change();

    EXPECT_EQ(Picture.Top, -1500);
}

} // namespace
} // namespace lineforge
