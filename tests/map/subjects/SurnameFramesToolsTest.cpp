#include "map/tools/ToolsTest.h"

#include <ostream>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::Values;
using testing::WithParamInterface;

// A user who marks a surname's line and draws on the map at the same time. Two Smiths stand in boxes.
class MarksAndToolsTest : public ToolsTest
{
protected:
    MarksAndToolsTest()
    {
        BranchA.Row({{u"File", u"A001"}, {u"Surname", u"Smith"}, {u"Gender", u"Male"}})
            .Row({{u"File", u"A002"}, {u"Surname", u"Smith"}, {u"Gender", u"Male"}})
            .Boxes(u"1000,1000,0,A001,,2000,2000,0,A002,,")
            .Lines(u"1000,4000,2000,4000,0,");
    }

    void View()
    {
        P.Form1->Text1.Text = u"Smith"_s;
        P.Form1->Command3.Click();
    }
    void OpenTools() { P.Form1->mnuTreeTools.Click(); }
    bool AreImagesShown()
    {
        for (const forms::Form1::ToolImage& tool : forms::Form1::Tools)
            if (!((*P.Form1).*tool.Button).Visible)
                return false;
        return true;
    }
    void ExpectFramesAtTheirPlaces()
    {
        ASSERT_EQ(Frames.Count(), 2U);
        for (const int frame : {1, 2}) {
            EXPECT_EQ(Frames[frame].Left, frame * 1000 - 40);
            EXPECT_EQ(Frames[frame].Top, frame * 1000 - 40);
            EXPECT_TRUE(Frames[frame].Visible);
        }
    }

    ControlArray<Shape>& Frames = P.Form1->Shape2;
};

TEST_F(MarksAndToolsTest, FramesOfAnEarlierView_StayInPlaceDuringAZoneMove)
{
    GivenMap();
    View();
    OpenTools();
    Choose(ToolSelection::ZoneDraw);
    Drag({{500, 500}, {3000, 3000}});
    ExpectFramesAtTheirPlaces();

    Press({1000, 1000});
    for (const Point& at : {Point{1200, 1100}, Point{4000, 4000}, Point{1500, 1700}}) {
        Move(at);
        ExpectFramesAtTheirPlaces();
    }
    Release({1500, 1700});

    EXPECT_EQ(Box(0)[BoxColumn::X], u"1500"_s);
    EXPECT_EQ(Box(1)[BoxColumn::Y], u"2700"_s);
    ExpectFramesAtTheirPlaces();
    Leave(Answer::Yes);
    ExpectFramesAtTheirPlaces();
}

struct Pressed {
    const char* Name;
    Button forms::Form1::*Command;
    int ToolMode;
};

void PrintTo(const Pressed& pressed, std::ostream* out)
{
    *out << pressed.Name;
}

class MarksWhileToolsAreOpenTest : public MarksAndToolsTest, public WithParamInterface<Pressed>
{
protected:
    void PressCommand()
    {
        P.Form1->Text1.Text = u"Smith"_s;
        ((*P.Form1).*GetParam().Command).Click();
    }
};

TEST_P(MarksWhileToolsAreOpenTest, TheToolsNoLongerReactToTheMouse_ThoughTheirImagesStay)
{
    GivenMap();
    for (const int sel : {7, 8, 17, 18, 27, 28, 29}) {
        SCOPED_TRACE(sel);
        OpenTools();
        Choose(sel);
        PressCommand();
        EXPECT_EQ(P.Tools.ToolMode, GetParam().ToolMode);
        const MapState before = P.Map;
        const QImage picture = Shown();

        Drag({{1300, 1100}, {1400, 1500}, {5000, 5000}});
        Drag({{1500, 4000}, {1600, 4500}});

        EXPECT_EQ(P.Map.BoxArr, before.BoxArr);
        EXPECT_EQ(P.Map.LineArr, before.LineArr);
        EXPECT_EQ(P.Map.TextArr, before.TextArr);
        EXPECT_EQ(P.Map.SBoxes, before.SBoxes);
        EXPECT_EQ(P.Map.SLines, before.SLines);
        EXPECT_TRUE(SameImage(Shown(), picture));
        EXPECT_EQ(P.Tools.ToolSel, sel);
        EXPECT_TRUE(AreImagesShown());
        P.Form1->Command4.Click();
        P.Map.MarkCount = 0;
    }
}

TEST_P(MarksWhileToolsAreOpenTest, AZoneThatIsFixed_IsNotDragged)
{
    GivenTools();
    Choose(ToolSelection::ZoneDraw);
    Drag({{500, 500}, {3000, 3000}});
    PressCommand();

    Drag({{1000, 1000}, {1500, 1700}});

    EXPECT_EQ(Box(0)[BoxColumn::X], u"1000"_s);
    EXPECT_EQ(P.Tools.ToolSel, ToolSelection::ZoneFixed);
    EXPECT_TRUE(P.Form1->Shape3.Visible);
}

TEST_P(MarksWhileToolsAreOpenTest, TheMouseIsTheMapsAgain)
{
    GivenTools();
    QStringList sounds;
    P.Form1->MMControl1.Act = [&](QStringView command) { sounds.push_back(command.toString()); };
    PressCommand();

    PressAndRelease({1300, 1100});

    EXPECT_EQ(sounds, QStringList{u"Sound"_s});
    EXPECT_EQ(P.Form1->Text9.Text.value(), u"1300"_s);
}

TEST_P(MarksWhileToolsAreOpenTest, TheExitButtonClosesTheToolsAllTheSame)
{
    GivenTools();
    PlaceBox({5000, 5000});
    PressCommand();

    Leave(Answer::Yes);

    EXPECT_FALSE(AreImagesShown());
    EXPECT_EQ(P.Tools.ToolSel, ToolSelection::None);
    EXPECT_TRUE(MapBytes().contains("4693,4892,0,0,,"));
}

TEST_P(MarksWhileToolsAreOpenTest, TreeToolsOnceMore_TheToolInHandWorksAgain)
{
    GivenTools();
    Choose(ToolSelection::BoxDraw);
    PressCommand();
    OpenTools();

    PressAndRelease({5000, 5000});

    EXPECT_EQ(P.Map.SBoxes, 2);
    EXPECT_EQ(Box(2)[BoxColumn::X], u"4693"_s);
}

INSTANTIATE_TEST_SUITE_P(Buttons, MarksWhileToolsAreOpenTest,
                         Values(Pressed{"View", &forms::Form1::Command3, 1},
                                Pressed{"Clear", &forms::Form1::Command4, 0}));

// The tools left to themselves, the user looks at a subject of another branch and then closes them.
TEST_F(MarksAndToolsTest, SubjectOfAnotherBranchShownBehindTheTools_TheyCloseOnTheirOwnBranch)
{
    BranchB.Row({{u"File", u"B001"}, {u"Gender", u"Male"}})
        .Row({{u"File", u"B002"}, {u"Gender", u"Male"}})
        .Picture(u"B002", Qt::green)
        .Build();
    BranchA.Boxes(u"1000,1000,0,A001,,2000,2000,0,A002,,3000,3000,0,B002,,");
    GivenTools();
    Choose(ToolSelection::BoxDraw);
    P.Form1->Command4.Click();
    PressAndRelease({3300, 3100});
    Picture.DblClick();
    Release({3300, 3100});
    ASSERT_EQ(P.Branch.UsingAlternate, 1);

    ExpectSaveQuestion(Answer::Yes);
    P.Form1->mnuEdit.Click();

    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A001"_s);
    EXPECT_EQ(MapBytes(),
              BytesOf(u"1000,1000,0,A001,,2000,2000,0,A002,,3000,3000,0,B002,,", u"1000,4000,2000,4000,0,", u""));
    EXPECT_TRUE(IsAsPaintedAfresh());
}

} // namespace
} // namespace lineforge
