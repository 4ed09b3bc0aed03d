#include "map/tools/ToolsTest.h"

#include <ostream>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using forms::Form1;
using testing::ValuesIn;
using testing::WithParamInterface;

constexpr std::array<Image Form1::*, 8> images{&Form1::Image2, &Form1::Image3, &Form1::Image4, &Form1::Image5,
                                               &Form1::Image6, &Form1::Image7, &Form1::Image8, &Form1::Image9};

// What one button makes of one state. `Faces` tells what becomes of Image2 to Image9: R raised, S sunken, - as it was.
struct ButtonCase {
    Image Form1::*Button;
    int Before;
    int After;
    MousePointer Pointer;
    const char* Faces;
};

void PrintTo(const ButtonCase& c, std::ostream* out)
{
    const auto at = std::find(images.begin(), images.end(), c.Button) - images.begin();
    *out << "Image" << at + 2 << " while ToolSel is " << c.Before;
}

constexpr MousePointer AsItWas = MousePointer::Arrow;
constexpr MousePointer Arrow0 = MousePointer::Default;
constexpr MousePointer Cross = MousePointer::Cross;

const ButtonCase buttonCases[] = {
    // Line
    {&Form1::Image6, 0, 7, Cross, "RRRRSR-R"},
    {&Form1::Image6, 1, 7, Cross, "RRRRSR-R"},
    {&Form1::Image6, 3, 7, Cross, "RRRRSR-R"},
    {&Form1::Image6, 4, 7, Cross, "RRRRSR-R"},
    {&Form1::Image6, 7, 0, Arrow0, "RRRRRR-R"},
    {&Form1::Image6, 8, 7, Cross, "RRRRSR-R"},
    {&Form1::Image6, 9, 7, Cross, "RRRRSR-R"},
    {&Form1::Image6, 17, 0, Arrow0, "RRRRRR-R"},
    {&Form1::Image6, 18, 7, Cross, "RRRRSR-R"},
    {&Form1::Image6, 19, 7, Cross, "RRRRSR-R"},
    {&Form1::Image6, 27, 0, Arrow0, "RRRRRR-R"},
    {&Form1::Image6, 28, 7, Cross, "RRRRSR-R"},
    {&Form1::Image6, 29, 7, Cross, "RRRRSR-R"},
    // Box
    {&Form1::Image7, 0, 8, Cross, "RRRRRS-R"},
    {&Form1::Image7, 1, 8, Cross, "RRRRRS-R"},
    {&Form1::Image7, 3, 8, Cross, "RRRRRS-R"},
    {&Form1::Image7, 4, 8, Cross, "RRRRRS-R"},
    {&Form1::Image7, 7, 8, Cross, "RRRRRS-R"},
    {&Form1::Image7, 8, 0, Arrow0, "RRRRRR-R"},
    {&Form1::Image7, 9, 8, Cross, "RRRRRS-R"},
    {&Form1::Image7, 17, 8, Cross, "RRRRRS-R"},
    {&Form1::Image7, 18, 0, Arrow0, "RRRRRR-R"},
    {&Form1::Image7, 19, 8, Cross, "RRRRRS-R"},
    {&Form1::Image7, 27, 8, Cross, "RRRRRS-R"},
    {&Form1::Image7, 28, 0, Arrow0, "RRRRRR-R"},
    {&Form1::Image7, 29, 8, Cross, "RRRRRS-R"},
    // Text
    {&Form1::Image9, 0, 9, Cross, "RRRRRR-S"},
    {&Form1::Image9, 1, 9, Cross, "RRRRRR-S"},
    {&Form1::Image9, 3, 9, Cross, "RRRRRR-S"},
    {&Form1::Image9, 4, 9, Cross, "RRRRRR-S"},
    {&Form1::Image9, 7, 9, Cross, "RRRRRR-S"},
    {&Form1::Image9, 8, 9, Cross, "RRRRRR-S"},
    {&Form1::Image9, 9, 0, Arrow0, "RRRRRR-R"},
    {&Form1::Image9, 17, 9, Cross, "RRRRRR-S"},
    {&Form1::Image9, 18, 9, Cross, "RRRRRR-S"},
    {&Form1::Image9, 19, 0, Arrow0, "RRRRRR-R"},
    {&Form1::Image9, 27, 9, Cross, "RRRRRR-S"},
    {&Form1::Image9, 28, 9, Cross, "RRRRRR-S"},
    {&Form1::Image9, 29, 0, Arrow0, "RRRRRR-R"},
    // Move
    {&Form1::Image2, 0, 1, Cross, "S-------"},
    {&Form1::Image2, 1, 0, Arrow0, "R-------"},
    {&Form1::Image2, 3, 0, Arrow0, "R-------"},
    {&Form1::Image2, 4, 4, Arrow0, "S-------"},
    {&Form1::Image2, 7, 17, Arrow0, "SRRR----"},
    {&Form1::Image2, 8, 18, Arrow0, "SRRR----"},
    {&Form1::Image2, 9, 19, Arrow0, "SRRR----"},
    {&Form1::Image2, 17, 17, Arrow0, "S-------"},
    {&Form1::Image2, 18, 18, Arrow0, "S-------"},
    {&Form1::Image2, 19, 19, Arrow0, "S-------"},
    {&Form1::Image2, 27, 17, Arrow0, "SRRR----"},
    {&Form1::Image2, 28, 18, Arrow0, "SRRR----"},
    {&Form1::Image2, 29, 19, Arrow0, "SRRR----"},
    // Delete
    {&Form1::Image5, 0, 0, AsItWas, "---S----"},
    {&Form1::Image5, 1, 1, AsItWas, "---S----"},
    {&Form1::Image5, 3, 3, AsItWas, "---S----"},
    {&Form1::Image5, 4, 4, AsItWas, "---S----"},
    {&Form1::Image5, 7, 27, Arrow0, "RRRS-R-R"},
    {&Form1::Image5, 8, 28, Arrow0, "RRRSR--R"},
    {&Form1::Image5, 9, 29, Arrow0, "RRRSRR--"},
    {&Form1::Image5, 17, 27, Arrow0, "RRRS-R-R"},
    {&Form1::Image5, 18, 28, Arrow0, "RRRSR--R"},
    {&Form1::Image5, 19, 29, Arrow0, "RRRSRR--"},
    {&Form1::Image5, 27, 27, AsItWas, "---S----"},
    {&Form1::Image5, 28, 28, AsItWas, "---S----"},
    {&Form1::Image5, 29, 29, AsItWas, "---S----"},
};

class ToolButtonTest : public ToolsTest, public WithParamInterface<ButtonCase>
{
protected:
    void SetAll(bool sunken)
    {
        Form1& form = *P.Form1;
        for (const Form1::ToolImage& tool : Form1::Tools)
            (form.*tool.Button).Picture = (form.*(sunken ? tool.Sunken : tool.Raised)).Picture.value();
    }

    void ExpectFaces(const char* faces, bool wereSunken)
    {
        for (std::size_t at = 0; at < images.size(); ++at) {
            const bool isSunken = faces[at] == 'S' || (faces[at] == '-' && wereSunken);
            EXPECT_EQ(IsSunken(images[at]), isSunken) << "Image" << at + 2;
            EXPECT_EQ(IsRaised(images[at]), !isSunken) << "Image" << at + 2;
        }
    }
};

TEST_P(ToolButtonTest, ChangesTheTool_ThePointer_AndTheFaces)
{
    const ButtonCase& c = GetParam();
    GivenTools();
    for (const bool wereSunken : {false, true}) {
        SetAll(wereSunken);
        P.Tools.ToolSel = c.Before;
        P.Screen.Pointer = AsItWas;

        Click(c.Button);

        EXPECT_EQ(P.Tools.ToolSel, c.After);
        EXPECT_EQ(P.Screen.Pointer, c.Pointer);
        EXPECT_EQ(P.Tools.ToolMode, 3);
        EXPECT_EQ(P.Tools.ToolStep, 0);
        ExpectFaces(c.Faces, wereSunken);
    }
}

INSTANTIATE_TEST_SUITE_P(States, ToolButtonTest, ValuesIn(buttonCases));

class ItemButtonTest : public ToolsTest, public WithParamInterface<Image Form1::*>
{
};

TEST_P(ItemButtonTest, EndsAGestureStep_WhetherItGoesOnOrOff)
{
    GivenTools();
    P.Tools.ToolStep = -1;
    Click(GetParam());
    EXPECT_EQ(P.Tools.ToolStep, 0);

    P.Tools.ToolStep = -1;
    Click(GetParam());
    EXPECT_EQ(P.Tools.ToolStep, 0);
    EXPECT_EQ(P.Tools.ToolSel, ToolSelection::None);
}

INSTANTIATE_TEST_SUITE_P(Kinds, ItemButtonTest, testing::Values(&Form1::Image6, &Form1::Image7, &Form1::Image9));

TEST_F(ToolsTest, Open_RecordOfAnotherBranchShown_IsRefused)
{
    GivenMap();
    P.Branch.UsingAlternate = 1;
    Prompts.Expect(u"Using Alternate Tree Branch.",
                   u"Cannot Change Tree Map until local Tree Branch\nRecord is Selected.", Buttons::Information);

    P.Form1->mnuTreeTools.Click();

    EXPECT_EQ(P.Tools.ToolMode, 0);
    EXPECT_FALSE(P.Form1->Image2.Visible);
}

TEST_F(ToolsTest, Open_NoBranch_IsRefused)
{
    Prompts.Expect(u"DataBase not Opened", u"Cannot Change Tree Map until database\nfile is Opened or begins from New",
                   Buttons::Information);

    P.Form1->mnuTreeTools.Click();

    EXPECT_EQ(P.Tools.ToolMode, 0);
    EXPECT_FALSE(P.Form1->Image2.Visible);
}

// A backup that fails leaves the branch without its records.
TEST_F(ToolsTest, Open_WithoutRecords_IsRefused)
{
    GivenMap();
    P.Form3.Unload();
    Prompts.Expect(u"DataBase not Opened", u"Cannot Change Tree Map until database\nfile is Opened or begins from New",
                   Buttons::Information);

    P.Form1->mnuTreeTools.Click();

    EXPECT_EQ(P.Tools.ToolMode, 0);
    EXPECT_FALSE(P.Form1->Image2.Visible);
}

TEST_F(ToolsTest, Open_RecordOfAnotherBranch_IsToldBeforeTheMissingBranch)
{
    P.Branch.UsingAlternate = 1;
    Prompts.Expect(u"Using Alternate Tree Branch.",
                   u"Cannot Change Tree Map until local Tree Branch\nRecord is Selected.", Buttons::Information);

    P.Form1->mnuTreeTools.Click();
}

TEST_F(ToolsTest, Images_AreHiddenUntilTheToolsOpen)
{
    GivenMap();

    for (const auto image : images)
        EXPECT_FALSE(((*P.Form1).*image).Visible);
    EXPECT_FALSE(P.Form1->Shape3.Visible);
}

TEST_F(ToolsTest, Open_ShowsAllImagesRaised_HidesTheMarker_AndThePenIsBlack)
{
    GivenMap();
    P.Form1->Shape1.Visible = true;
    Picture.ForeColor = Red;

    P.Form1->mnuTreeTools.Click();

    EXPECT_EQ(P.Tools.ToolMode, 3);
    EXPECT_EQ(P.Tools.ToolSel, ToolSelection::None);
    for (const auto image : images) {
        EXPECT_TRUE(((*P.Form1).*image).Visible);
        EXPECT_TRUE(IsRaised(image));
    }
    EXPECT_FALSE(P.Form1->Shape1.Visible);
    EXPECT_EQ(Picture.ForeColor, Black);
}

TEST_F(ToolsTest, Open_EmptyBranch_IsNoError)
{
    GivenTools();

    EXPECT_EQ(P.Tools.ToolMode, 3);
}

TEST_F(ToolsTest, Open_Again_LeavesTheToolInHand)
{
    GivenTools();
    Choose(ToolSelection::BoxMove);

    P.Form1->mnuTreeTools.Click();

    EXPECT_EQ(P.Tools.ToolSel, ToolSelection::BoxMove);
}

TEST_F(ToolsTest, ToolTips_NameTheTools)
{
    const Form1& form = *P.Form1;
    EXPECT_EQ(form.Image2.ToolTipText, u"Move"_s);
    EXPECT_EQ(form.Image3.ToolTipText, u"Colour"_s);
    EXPECT_EQ(form.Image4.ToolTipText, u"Text Font"_s);
    EXPECT_EQ(form.Image5.ToolTipText, u"Delete"_s);
    EXPECT_EQ(form.Image6.ToolTipText, u"Line Tool"_s);
    EXPECT_EQ(form.Image7.ToolTipText, u"Box Tool"_s);
    EXPECT_EQ(form.Image8.ToolTipText, u"Exit Map Changes"_s);
    EXPECT_EQ(form.Image9.ToolTipText, u"Text Tool"_s);
}

TEST_F(ToolsTest, Faces_RaisedAndSunken_AllDiffer)
{
    GivenTools();
    std::vector<QImage> faces;
    for (const Form1::ToolImage& tool : Form1::Tools)
        for (const auto kept : {tool.Raised, tool.Sunken})
            faces.push_back(((*P.Form1).*kept).Picture);

    for (std::size_t one = 0; one < faces.size(); ++one) {
        EXPECT_FALSE(faces[one].isNull());
        for (std::size_t other = 0; other < one; ++other)
            EXPECT_NE(faces[one], faces[other]) << one << ", " << other;
    }
}

TEST_F(ToolsTest, Colour_IsBlackAtFirst_AndLivesInTheDialog)
{
    GivenTools();
    Prompts.ExpectColour(Black, Red, [&] { EXPECT_TRUE(IsSunken(&Form1::Image3)); });
    Click(&Form1::Image3);

    EXPECT_EQ(DialogColour, Red);
    EXPECT_TRUE(IsRaised(&Form1::Image3));
    Prompts.ExpectColour(Red);
    Click(&Form1::Image3);
}

TEST_F(ToolsTest, Colour_Cancelled_StaysAsItWas)
{
    GivenTools();
    DialogColour = Blue;
    Choose(ToolSelection::LineDraw);
    Prompts.ExpectColour(Blue, {}, [&] { EXPECT_TRUE(IsSunken(&Form1::Image3)); });

    Click(&Form1::Image3);

    EXPECT_EQ(DialogColour, Blue);
    EXPECT_TRUE(IsRaised(&Form1::Image3));
    EXPECT_EQ(P.Tools.ToolSel, ToolSelection::LineDraw);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Cross);
}

TEST_F(ToolsTest, Colour_OutlivesTheTools)
{
    GivenTools();
    DialogColour = Red;

    Leave(Answer::No);
    P.Form1->mnuTreeTools.Click();
    PlaceBox({2000, 1000});

    EXPECT_EQ(Box(1)[BoxColumn::Colour], QString::number(Red));
}

TEST_F(ToolsTest, Font_GoesToThePicture_WithoutItsBold)
{
    GivenTools();
    Prompts.ExpectFont({}, TextFont{u"Courier"_s, 14, true, true}, [&] { EXPECT_TRUE(IsSunken(&Form1::Image4)); });

    Click(&Form1::Image4);

    EXPECT_EQ(Picture.Font.Name, u"Courier"_s);
    EXPECT_EQ(Picture.Font.Size, 14);
    EXPECT_FALSE(Picture.Font.Bold);
    EXPECT_TRUE(IsRaised(&Form1::Image4));
}

TEST_F(ToolsTest, Font_DialogOpensOnTheLastChoice)
{
    GivenTools();
    Prompts.ExpectFont({}, TextFont{u"Courier"_s, 14});
    Click(&Form1::Image4);

    Prompts.ExpectFont({u"Courier"_s, 14});
    Click(&Form1::Image4);
}

TEST_F(ToolsTest, Font_Cancelled_StaysAsItWas)
{
    GivenTools();
    Picture.Font = {u"Times"_s, 20};
    Prompts.ExpectFont({}, {}, [&] { EXPECT_TRUE(IsSunken(&Form1::Image4)); });

    Click(&Form1::Image4);

    EXPECT_EQ(Picture.Font, (TextFont{u"Times"_s, 20}));
    EXPECT_TRUE(IsRaised(&Form1::Image4));
}

TEST_F(ToolsTest, Exit_ServesTheLoopOnce_WithTheSunkenFace_BeforeTheQuestion)
{
    GivenTools();
    const int yields = Machine.Loop.Yields;
    bool isServed = false;
    Machine.Loop.AtNextYield([&] {
        isServed = true;
        EXPECT_TRUE(IsSunken(&Form1::Image8));
        EXPECT_TRUE(P.Form1->Image8.Visible);
        EXPECT_EQ(P.Screen.Pointer, MousePointer::Hourglass);
    });
    ExpectSaveQuestion(Answer::No, [&] {
        EXPECT_TRUE(isServed);
        EXPECT_FALSE(P.Form1->Image8.Visible);
    });

    Click(&Form1::Image8);

    EXPECT_EQ(Machine.Loop.Yields, yields + 1);
    EXPECT_EQ(P.Tools.ToolMode, 0);
}

class EditingMenuTest : public ToolsTest, public WithParamInterface<MenuItem Form1::*>
{
protected:
    void OpenMenu() { ((*P.Form1).*GetParam()).Click(); }
};

TEST_P(EditingMenuTest, ToolInHand_ClosesTheTools_WithTheSunkenPictureOfTheHome)
{
    QImage sunken(7, 5, QImage::Format_RGB32);
    sunken.fill(Qt::magenta);
    ASSERT_TRUE(sunken.save(Home.Path(u"Save-Dwn.bmp"), "BMP"));
    GivenTools();
    Choose(ToolSelection::BoxDelete);
    ExpectSaveQuestion(Answer::No, [&] { EXPECT_EQ(P.Form1->Image8.Picture.value().size(), QSize(7, 5)); });

    OpenMenu();

    EXPECT_EQ(P.Tools.ToolMode, 0);
    EXPECT_EQ(P.Tools.ToolSel, ToolSelection::None);
    EXPECT_FALSE(P.Form1->Image8.Visible);
}

TEST_P(EditingMenuTest, HomeWithoutThePicture_ClosesTheToolsAllTheSame)
{
    GivenTools();
    Choose(ToolSelection::LineDraw);
    ExpectSaveQuestion(Answer::No);

    OpenMenu();

    EXPECT_EQ(P.Tools.ToolMode, 0);
}

TEST_P(EditingMenuTest, NoToolInHand_LeavesTheToolsOpen)
{
    GivenTools();

    OpenMenu();

    EXPECT_EQ(P.Tools.ToolMode, 3);
    EXPECT_TRUE(P.Form1->Image8.Visible);
}

TEST_P(EditingMenuTest, CancelsAPendingMapping_WithAndWithoutATool)
{
    GivenTools();
    for (const int sel : {0, 7}) {
        P.Tools.ToolSel = sel;
        P.Tools.MapCursorMode = 1;
        P.Screen.Pointer = MousePointer::Cross;
        if (sel != 0)
            ExpectSaveQuestion(Answer::No);

        OpenMenu();

        EXPECT_EQ(P.Tools.MapCursorMode, 0);
        EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    }
}

TEST_P(EditingMenuTest, ToolsClosed_AsksNothing)
{
    GivenMap();

    OpenMenu();

    EXPECT_EQ(P.Tools.ToolMode, 0);
}

INSTANTIATE_TEST_SUITE_P(Menus, EditingMenuTest, testing::Values(&Form1::mnuEdit, &Form1::mnuTreeGraphics));

} // namespace
} // namespace lineforge
