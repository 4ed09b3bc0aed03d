#include "map/subjects/SurnameFrames.h"

#include "map/MapTest.h"
#include "map/items/MapDisplay.h"
#include "platform/machine/Platform.h"

#include <gmock/gmock.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::Values;
using testing::WithParamInterface;

constexpr Colour green = Rgb(0, 128, 0);

// Two Smiths with boxes in the rows 3 and 4, their sister in row 5, and somebody else in row 6.
class LineageMarksTest : public MapTest
{
protected:
    void GivenSmiths()
    {
        GivenOpen(BranchA.Row({{u"File", u"A001"}, {u"Surname", u"Smith"}, {u"Gender", u"Male"}})
                      .Row({{u"File", u"A002"}, {u"Surname", u"Smith"}, {u"Gender", u"Female"}})
                      .Row({{u"File", u"A003"}, {u"Surname", u"SMITH"}, {u"Gender", u"MALE"}})
                      .Row({{u"File", u"A004"}, {u"Surname", u"Smithson"}, {u"Gender", u"Male"}}));
        GivenBox(3, {1000, 500}, u"A001");
        GivenBox(4, {2000, 700}, u"A003");
        GivenBox(5, {3000, 900}, u"A002");
        GivenBox(6, {4000, 900}, u"A004");
        Records(P.Form3).MoveNext();
    }

    // One man, in a box at that corner.
    void GivenSmithAt(Point corner)
    {
        GivenOpen(BranchA.Row({{u"File", u"A001"}, {u"Surname", u"Smith"}, {u"Gender", u"Male"}}));
        GivenBox(0, corner, u"A001");
    }

    void View(const QString& surname)
    {
        P.Form1->Text1.Text = surname;
        P.Form1->Command3.Click();
    }
    void Clear() { P.Form1->Command4.Click(); }

    Point PlaceOf(int frame) { return {Frames[frame].Left, Frames[frame].Top}; }

    ControlArray<Shape>& Frames = P.Form1->Shape2;
};

TEST_F(LineageMarksTest, View_FramesTheMenOfTheLine_LeftOfTheirBoxesAndAbove)
{
    GivenSmiths();

    View(u"Smith"_s);

    ASSERT_EQ(Frames.Count(), 2U);
    EXPECT_EQ(P.Map.MarkCount, 2);
    EXPECT_EQ(PlaceOf(1), (Point{960, 460}));
    EXPECT_EQ(PlaceOf(2), (Point{1960, 660}));
}

TEST_F(LineageMarksTest, Frame_IsAThickGreenRectangle_LargerThanTheBox)
{
    GivenSmiths();

    View(u"Smith"_s);

    const Shape& frame = Frames[1];
    EXPECT_TRUE(frame.Visible);
    EXPECT_EQ(frame.Width, 735);
    EXPECT_EQ(frame.Height, 495);
    EXPECT_EQ(frame.BorderColor, green);
    EXPECT_EQ(frame.BorderWidth, 3);
    EXPECT_FALSE(frame.Filled);
    EXPECT_EQ(frame.Kind, Shape::Outline::Rectangle);
}

TEST_F(LineageMarksTest, Frames_StandInTheMap_AndNothingIsDrawn)
{
    GivenSmiths();

    View(u"Smith"_s);

    EXPECT_THAT(Picture.Controls(), testing::Contains(&Frames[1]));
    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(LineageMarksTest, View_SetsThePenOfTheMap)
{
    GivenSmiths();
    Picture.Mode = DrawMode::NotXor;
    Picture.DrawWidth = 2;

    View(u"Smith"_s);

    EXPECT_EQ(Picture.Mode, DrawMode::Copy);
    EXPECT_EQ(Picture.DrawWidth, 1);
}

TEST_F(LineageMarksTest, View_SurnameInSmallLetters_MarksTheSame)
{
    GivenSmiths();

    View(u"smith"_s);

    EXPECT_EQ(Frames.Count(), 2U);
}

TEST_F(LineageMarksTest, View_SurnameOfNobody_ChangesNothing)
{
    GivenSmiths();

    View(u"Nobody"_s);

    EXPECT_EQ(Frames.Count(), 0U);
    EXPECT_EQ(P.Map.MarkCount, 0);
    EXPECT_TRUE(IsBlank(Picture));
    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A002"_s);
}

TEST_F(LineageMarksTest, View_LeavesTheCurrentRecord)
{
    GivenSmiths();

    View(u"Smith"_s);

    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A002"_s);
}

TEST_F(LineageMarksTest, View_CursorBehindTheLastRow_AndNoPositionSaved_IsLeftThere)
{
    GivenSmiths();
    Records(P.Form3).Seek(u"File", u"nobody"_s);

    View(u"Smith"_s);

    EXPECT_EQ(Frames.Count(), 2U);
    EXPECT_TRUE(Records(P.Form3).Eof());
}

TEST_F(LineageMarksTest, View_WomanOfTheLine_GetsNoFrame)
{
    GivenOpen(BranchA.Row({{u"File", u"A001"}, {u"Surname", u"Smith"}, {u"Gender", u"Female"}}));
    GivenBox(0, {1000, 500}, u"A001");

    View(u"Smith"_s);

    EXPECT_EQ(Frames.Count(), 0U);
}

TEST_F(LineageMarksTest, View_MaidenName_IsNotLookedAt)
{
    GivenOpen(BranchA.Row({{u"File", u"A001"}, {u"Surname", u"Jones"}, {u"Maiden", u"Smith"}, {u"Gender", u"Male"}}));
    GivenBox(0, {1000, 500}, u"A001");

    View(u"Smith"_s);

    EXPECT_EQ(Frames.Count(), 0U);
}

struct GenderText {
    QString Gender;
    bool Counts;
};

void PrintTo(const GenderText& gender, std::ostream* out)
{
    *out << '"' << qUtf8Printable(gender.Gender) << '"';
}

class LineageGenderTest : public LineageMarksTest, public WithParamInterface<GenderText>
{
};

TEST_P(LineageGenderTest, OnlyTheWholeWordCounts)
{
    GivenOpen(BranchA.Row({{u"File", u"A001"}, {u"Surname", u"Smith"}, {u"Gender", GetParam().Gender}}));
    GivenBox(0, {1000, 500}, u"A001");

    View(u"Smith"_s);

    EXPECT_EQ(Frames.Count(), GetParam().Counts ? 1U : 0U);
}

INSTANTIATE_TEST_SUITE_P(Genders, LineageGenderTest,
                         Values(GenderText{u"Male"_s, true}, GenderText{u"male"_s, true}, GenderText{u"MALE"_s, true},
                                GenderText{u"M"_s, false}, GenderText{u"Males"_s, false}, GenderText{u" Male"_s, false},
                                GenderText{u"Female"_s, false}, GenderText{u""_s, false}));

TEST_F(LineageMarksTest, View_NullFields_DontCount)
{
    GivenOpen(
        BranchA.Row({{u"File", u"A001"}, {u"Gender", u"Male"}}).Row({{u"File", u"A002"}, {u"Surname", u"Smith"}}));
    GivenBox(0, {1000, 500}, u"A001");

    View(u"Smith"_s);

    EXPECT_EQ(Frames.Count(), 0U);
}

TEST_F(LineageMarksTest, View_RecordInTwoBoxes_GetsOneFrame_AtTheFirst)
{
    GivenSmithAt({1000, 500});
    GivenBox(1, {2000, 700}, u"A001");

    View(u"Smith"_s);

    ASSERT_EQ(Frames.Count(), 1U);
    EXPECT_EQ(PlaceOf(1), (Point{960, 460}));
}

TEST_F(LineageMarksTest, View_RecordWithoutBox_IsFramedWhereTheLastOneWasFound)
{
    GivenSmiths();
    GivenBox(4, {2000, 700}, u"0");

    View(u"Smith"_s);

    ASSERT_EQ(Frames.Count(), 2U);
    EXPECT_EQ(PlaceOf(2), PlaceOf(1));
}

TEST_F(LineageMarksTest, View_FirstRecordWithoutBox_IsFramedAtTheLastRelease)
{
    GivenSmithAt({1000, 500});
    GivenBox(0, {1000, 500}, u"0");
    Picture.MouseUp(1, 0, 3000, 4000);

    View(u"Smith"_s);

    ASSERT_EQ(Frames.Count(), 1U);
    EXPECT_EQ(PlaceOf(1), (Point{2960, 3960}));
}

TEST_F(LineageMarksTest, View_BoxBehindTheFiledOnes_IsNotFound)
{
    GivenSmithAt({1000, 500});
    GivenBox(0, {1000, 500}, u"0");
    GivenBox(100, {2000, 700}, u"A001");

    View(u"Smith"_s);

    ASSERT_EQ(Frames.Count(), 1U);
    EXPECT_EQ(PlaceOf(1), (Point{-40, -40}));
}

TEST_F(LineageMarksTest, View_PlaceInTheCorner_GetsItsFrame)
{
    GivenSmithAt({0, 0});

    View(u"Smith"_s);

    ASSERT_EQ(Frames.Count(), 1U);
    EXPECT_EQ(PlaceOf(1), (Point{-40, -40}));
    EXPECT_EQ(Machine.Loop.Yields, 0);
}

TEST_F(LineageMarksTest, View_BoxInAFreeRow_IsNone_SoTheFrameStandsAtTheLastRelease)
{
    GivenSmithAt({0, 700});
    Picture.MouseUp(1, 0, 3000, 900);

    View(u"Smith"_s);

    ASSERT_EQ(Frames.Count(), 1U);
    EXPECT_EQ(PlaceOf(1), (Point{2960, 860}));
}

TEST_F(LineageMarksTest, View_WithoutSurname_IsTold)
{
    GivenSmiths();
    Prompts.Expect(u"Lineage View", u"Enter Surname for view.", Buttons::Information);

    View(QString());

    EXPECT_EQ(Frames.Count(), 0U);
    EXPECT_EQ(P.Tools.ToolMode, 1);
}

TEST_F(LineageMarksTest, View_WithoutSurname_LeavesFramesToBeCleared)
{
    GivenSmiths();
    View(u"Smith"_s);
    Prompts.Expect(u"Lineage View", u"Enter Surname for view.", Buttons::Information);

    View(QString());

    EXPECT_EQ(P.Map.MarkCount, 2);
    Clear();
    EXPECT_EQ(Frames.Count(), 0U);
}

// The buttons stay enabled when the branch is closed.
TEST_F(LineageMarksTest, ViewAndClear_WithoutABranch_AreTold_AndChangeNothing)
{
    P.Form1->mnuCloseDB.Click();
    P.Form1->Text1.Text = u"Smith"_s;
    for (Button* button : {&P.Form1->Command3, &P.Form1->Command4}) {
        const int mode = P.Tools.ToolMode;
        Prompts.Expect(u"Data not available", u"Cannot View until database file is Opened", Buttons::Information);

        button->Click();

        EXPECT_EQ(P.Tools.ToolMode, mode);
        EXPECT_EQ(Frames.Count(), 0U);
    }
}

TEST_F(LineageMarksTest, View_EmptyBranch_IsTold)
{
    GivenOpen(BranchA);
    Prompts.Expect(u"Database Empty", u"The Database has no records to access", Buttons::Information);

    View(u"Smith"_s);

    EXPECT_EQ(Frames.Count(), 0U);
    EXPECT_EQ(P.Map.MarkCount, 0);
}

TEST_F(LineageMarksTest, ViewAndClear_WhileTheToolsAreOpen_OverwriteTheirMode)
{
    GivenSmiths();

    P.Tools.ToolMode = 3;
    View(u"Smith"_s);
    EXPECT_EQ(P.Tools.ToolMode, 1);

    P.Tools.ToolMode = 3;
    Clear();
    EXPECT_EQ(P.Tools.ToolMode, 0);
}

TEST_F(LineageMarksTest, SecondViewInARow_IsRefused)
{
    GivenSmiths();
    View(u"Smith"_s);

    EXPECT_EQ(RefusalOf([&] { View(u"Smith"_s); }), ErrorNumber::ArrayElementLoaded);

    EXPECT_EQ(Frames.Count(), 2U);
}

TEST_F(LineageMarksTest, SecondView_AfterOneThatFoundNobody_IsNotRefused)
{
    GivenSmiths();
    View(u"Nobody"_s);

    View(u"Smith"_s);

    EXPECT_EQ(Frames.Count(), 2U);
}

TEST_F(LineageMarksTest, Clear_TakesAllFramesAway_AndKeepsTheirCount)
{
    GivenSmiths();
    View(u"Smith"_s);

    Clear();

    EXPECT_EQ(Frames.Count(), 0U);
    EXPECT_EQ(P.Map.MarkCount, 2);
    EXPECT_EQ(P.Tools.ToolMode, 0);
}

TEST_F(LineageMarksTest, Clear_WithoutFrames_DoesNothing)
{
    GivenSmiths();

    Clear();

    EXPECT_EQ(Frames.Count(), 0U);
    EXPECT_EQ(P.Map.MarkCount, 0);
}

TEST_F(LineageMarksTest, SecondClearInARow_IsRefused)
{
    GivenSmiths();
    View(u"Smith"_s);
    Clear();

    EXPECT_EQ(RefusalOf([&] { Clear(); }), ErrorNumber::ArrayElementMissing);
}

TEST_F(LineageMarksTest, ViewAfterClear_FramesAfresh)
{
    GivenSmiths();
    View(u"Smith"_s);
    Clear();

    View(u"Smithson"_s);

    ASSERT_EQ(Frames.Count(), 1U);
    EXPECT_EQ(PlaceOf(1), (Point{3960, 860}));
}

TEST_F(LineageMarksTest, Redraw_LeavesTheFrames)
{
    GivenSmiths();
    P.Map.SBoxes = 6;
    View(u"Smith"_s);

    RedrawMap(P, MapOnScreen(P.Map, *P.Form1));

    ASSERT_EQ(Frames.Count(), 2U);
    EXPECT_EQ(PlaceOf(2), (Point{1960, 660}));
    EXPECT_TRUE(Frames[1].Visible);
}

// Such a view never ends by itself; here the user ends it at one of its yields.
class EndlessViewTest : public LineageMarksTest
{
protected:
    EndlessViewTest() { GivenSmithAt({1000, 0}); }
    void AtYield(std::function<void()> action) { Machine.Loop.AtNextYield(std::move(action)); }
    void EndAtYield()
    {
        AtYield([] { throw ProgramEnded{}; });
    }
};

TEST_F(EndlessViewTest, BoxInTheTopRow_ServesTheEventLoopAgainAndAgain)
{
    for (int yield = 1; yield < 50; ++yield)
        AtYield([] {});
    EndAtYield();

    EXPECT_THROW(View(u"Smith"_s), ProgramEnded);

    EXPECT_EQ(Machine.Loop.Yields, 50);
    EXPECT_EQ(Frames.Count(), 0U);
}

TEST_F(EndlessViewTest, BoxThatLeavesTheTopRowMeanwhile_IsFramed)
{
    AtYield([&] { GivenBox(0, {1000, 500}, u"A001"); });
    EndAtYield();

    View(u"Smith"_s);

    ASSERT_EQ(Frames.Count(), 1U);
    EXPECT_EQ(PlaceOf(1), (Point{960, 460}));
    EXPECT_EQ(Machine.Loop.Yields, 1);
    EXPECT_THROW(P.Loop.DoEvents(), ProgramEnded);
}

TEST_F(EndlessViewTest, RecordThatLeavesTheLineMeanwhile_IsPassedOver)
{
    AtYield([&] {
        Records(P.Form3).Edit();
        Records(P.Form3).Put(u"Surname", u"Jones"_s);
        Records(P.Form3).Update();
    });
    EndAtYield();

    View(u"Smith"_s);

    EXPECT_EQ(Frames.Count(), 0U);
    EXPECT_THROW(P.Loop.DoEvents(), ProgramEnded);
}

// The scanner ticks on while its window is hidden.
TEST_F(EndlessViewTest, CursorThatLeavesTheLastRowMeanwhile_EndsTheView)
{
    AtYield([&] { Records(P.Form3).MoveNext(); });
    EndAtYield();

    View(u"Smith"_s);

    EXPECT_EQ(Frames.Count(), 0U);
    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A001"_s);
    EXPECT_THROW(P.Loop.DoEvents(), ProgramEnded);
}

TEST_F(EndlessViewTest, BranchClosedMeanwhile_EndsTheView)
{
    AtYield([&] { P.Form1->mnuCloseDB.Click(); });
    EndAtYield();

    EXPECT_EQ(RefusalOf([&] { View(u"Smith"_s); }), 0);

    EXPECT_EQ(P.Branch.WorkDir, QString());
    EXPECT_EQ(Frames.Count(), 0U);
    EXPECT_EQ(Machine.Loop.Yields, 1);
    EXPECT_THROW(P.Loop.DoEvents(), ProgramEnded);
}

TEST_F(EndlessViewTest, RecordsThatAFailedBackupTakesMeanwhile_EndTheView)
{
    AtYield([&] { P.Form3.Unload(); });
    EndAtYield();

    EXPECT_EQ(RefusalOf([&] { View(u"Smith"_s); }), 0);

    EXPECT_EQ(Frames.Count(), 0U);
    EXPECT_THROW(P.Loop.DoEvents(), ProgramEnded);
}

TEST_F(EndlessViewTest, ProgramExitedMeanwhile_Ends)
{
    AtYield([&] { P.Form1->mnuExit.Click(); });

    EXPECT_THROW(View(u"Smith"_s), ProgramEnded);

    EXPECT_EQ(Machine.Loop.ExitCode, 0);
}

} // namespace
} // namespace lineforge
