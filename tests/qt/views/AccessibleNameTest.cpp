#include "qt/views/AccessibleName.h"

#include "qt/WindowTest.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct NamedForm : Form {
    NamedForm() : Form(u"NamedForm", {}, {9000, 3000}) {}
    Label Far{*this, u"Far", {0, 300, 300, 255}, u"Far"};
    Label Near{*this, u"Near", {400, 300, 600, 255}, u"Near"};
    Label Empty{*this, u"Empty", {1100, 300, 60, 255}};
    TextBox Beside{*this, u"Beside", {1200, 290, 900, 315}};
    Label Head{*this, u"Head", {3000, 1000, 900, 240}, u"Head"};
    TextBox Below{*this, u"Below", {3000, 1260, 900, 315}};
    TextBox Alone{*this, u"Alone", {6000, 2400, 900, 315}};
    Frame Framed{*this, u"Framed", {0, 1500, 2000, 1000}, u"&Field"};
    TextBox Inside{Framed, u"Inside", {100, 300, 900, 315}};
    Image Portrait{*this, u"Portrait", {4500, 1700, 900, 900}};
    Label Titled{*this, u"Titled", {3000, 1600, 900, 240}, u"Surname :"};
    TextBox Titling{*this, u"Titling", {4000, 1600, 300, 315}};
    DirectoryList Folders{*this, u"Folders", {3000, 1260, 900, 315}};
    Button Tool{*this, u"Tool", {4500, 1000, 900, 240}};
    ScrollBar Bar{*this, u"Bar", {8700, 1500, 255, 1500}, 100, 1, 10};
};

TEST(AccessibleNameTest, TheNearestLabelOnTheLeftThatSaysSomething)
{
    const NamedForm form;
    EXPECT_EQ(BorrowedName(form.Beside, form), u"Near"_s);
}

TEST(AccessibleNameTest, ElseTheLabelRightAbove)
{
    const NamedForm form;
    EXPECT_EQ(BorrowedName(form.Below, form), u"Head"_s);
}

TEST(AccessibleNameTest, ElseTheCaptionOfTheFrameAroundIt)
{
    const NamedForm form;
    EXPECT_EQ(BorrowedName(form.Inside, form.Framed), u"Field"_s);
}

TEST(AccessibleNameTest, ElseWhatItIs)
{
    const NamedForm form;
    EXPECT_EQ(BorrowedName(form.Portrait, form), u"Picture"_s);
    EXPECT_EQ(BorrowedName(form.Bar, form), u"Vertical scrolling"_s);
}

TEST(AccessibleNameTest, ElseItsOwnName)
{
    const NamedForm form;
    EXPECT_EQ(BorrowedName(form.Alone, form), u"Alone"_s);
}

TEST(AccessibleNameTest, AFieldIsCalledByItsLabel_WhateverItsToolTipTells)
{
    NamedForm form;
    form.Beside.ToolTipText = form.Folders.ToolTipText = u"Double Click to change"_s;
    EXPECT_EQ(BorrowedName(form.Beside, form), u"Near"_s);
    EXPECT_EQ(BorrowedName(form.Folders, form), u"Head"_s);
}

TEST(AccessibleNameTest, AFieldWithoutALabel_IsCalledByItsToolTip)
{
    NamedForm form;
    form.Alone.ToolTipText = u"Address, second line"_s;
    EXPECT_EQ(BorrowedName(form.Alone, form), u"Address, second line"_s);
}

TEST(AccessibleNameTest, ALabelBesideAButtonOrAPicture_IsNotTheirs)
{
    NamedForm form;
    EXPECT_EQ(BorrowedName(form.Portrait, form), u"Picture"_s);
    form.Tool.ToolTipText = u"Draw a box"_s;
    EXPECT_EQ(BorrowedName(form.Tool, form), u"Draw a box"_s);
}

TEST(AccessibleNameTest, ANameOfItsOwnComesBeforeAll)
{
    NamedForm form;
    form.Beside.ToolTipText = u"Double Click to change"_s;
    form.Beside.SpokenName = u"Surname, current branch"_s;
    EXPECT_EQ(BorrowedName(form.Beside, form), u"Surname, current branch"_s);
}

TEST(AccessibleNameTest, TheColonBehindALabelIsNotSpoken)
{
    const NamedForm form;
    EXPECT_EQ(BorrowedName(form.Titling, form), u"Surname"_s);
}

TEST(AccessibleNameTest, TheMarkOfAnAccessKeyIsNotSpoken)
{
    EXPECT_EQ(SpokenCaption(u"E&xit"_s), u"Exit"_s);
    EXPECT_EQ(SpokenCaption(u"Births && deaths"_s), u"Births & deaths"_s);
    EXPECT_EQ(SpokenCaption(u"Open"_s), u"Open"_s);
}
} // namespace

} // namespace lineforge
