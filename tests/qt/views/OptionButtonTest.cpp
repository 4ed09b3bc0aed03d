#include "qt/WindowTest.h"

#include <QAccessible>
#include <QRadioButton>
#include <QTest>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct OptionForm : Form {
    OptionForm() : Form(u"OptionForm", u"Options", {6000, 3000}) { Option3.Value = true; }
    Frame Frame1{*this, u"Frame1", {150, 150, 2700, 1500}, u"Gender"};
    OptionButton Option1{Frame1, u"Option1", {150, 300, 2400, 315}, u"&Male"};
    OptionButton Option2{Frame1, u"Option2", {150, 700, 2400, 315}, u"Female"};
    Frame Frame2{*this, u"Frame2", {3000, 150, 2700, 1500}, u"Picture"};
    OptionButton Option3{Frame2, u"Option3", {150, 300, 2400, 315}, u"Later"};
    OptionButton Option4{Frame2, u"Option4", {150, 700, 2400, 315}, u"Now"};
};

struct OptionButtonTest : WindowTest {
    Window<OptionForm> Options{System()};
    void SetUp() override { Options->Visible = true; }
    QRadioButton& View(int number) { return Find<QRadioButton>(*Options, u"Option%1"_s.arg(number)); }
    void ClickOn(int number) { QTest::mouseClick(&View(number), Qt::LeftButton, {}, {8, View(number).height() / 2}); }

    // Which of the four are on: in the program, and on the screen.
    std::vector<bool> Values()
    {
        return {Options->Option1.Value, Options->Option2.Value, Options->Option3.Value, Options->Option4.Value};
    }
    std::vector<bool> Shown()
    {
        return {View(1).isChecked(), View(2).isChecked(), View(3).isChecked(), View(4).isChecked()};
    }
    void ExpectOn(const std::vector<bool>& expected)
    {
        EXPECT_EQ(Values(), expected);
        EXPECT_EQ(Shown(), expected);
    }
};

TEST_F(OptionButtonTest, Captions_Show_AndAreSpokenWithoutTheMarkOfTheAccessKey)
{
    EXPECT_EQ(View(1).text(), u"&Male"_s);
    EXPECT_EQ(View(1).accessibleName(), u"Male"_s);
    Options->Option2.Caption = u"Other"_s;
    EXPECT_EQ(View(2).text(), u"Other"_s);
    EXPECT_EQ(View(2).accessibleName(), u"Other"_s);
}

TEST_F(OptionButtonTest, ReadersSwitchOneOn_AsAClickDoes)
{
    int clicks = 0;
    Options->Option4.Click = [&] {
        ++clicks;
        EXPECT_FALSE(Options->Option3.Value);
    };
    auto* told = QAccessible::queryAccessibleInterface(&View(4))->actionInterface();
    told->doAction(QAccessibleActionInterface::toggleAction());
    ServeEvents();
    ExpectOn({false, false, false, true});
    ClickOn(4);
    ServeEvents();
    EXPECT_EQ(clicks, 2);
}

TEST_F(OptionButtonTest, ASetMayBeginWithNoneOn)
{
    ExpectOn({false, false, true, false});
}

TEST_F(OptionButtonTest, AClick_SwitchesOffTheOthersOfItsFrameAlone)
{
    ClickOn(1);
    ExpectOn({true, false, true, false});
    ClickOn(2);
    ExpectOn({false, true, true, false});
    ClickOn(4);
    ExpectOn({false, true, false, true});
}

TEST_F(OptionButtonTest, AClickOnTheOneThatIsOn_LeavesItOn)
{
    ClickOn(3);
    ExpectOn({false, false, true, false});
}

TEST_F(OptionButtonTest, ByTheTimeOfTheClick_AllValuesStand)
{
    std::vector<std::vector<bool>> seen;
    for (OptionButton* option : {&Options->Option3, &Options->Option4})
        option->Click = [&] { seen.push_back(Values()); };

    ClickOn(4);
    ClickOn(3);

    EXPECT_EQ(seen, (std::vector<std::vector<bool>>{{false, false, false, true}, {false, false, true, false}}));
}

TEST_F(OptionButtonTest, WhatTheProgramSets_Shows_AndIsNoClick)
{
    int clicks = 0;
    for (OptionButton* option : {&Options->Option3, &Options->Option4})
        option->Click = [&clicks] { ++clicks; };

    Options->Option4.Value = true;
    ExpectOn({false, false, true, true}); // the other one is the program's business
    Options->Option3.Value = false;
    ExpectOn({false, false, false, true});
    Options->Option4.Value = false;
    ExpectOn({false, false, false, false});
    EXPECT_EQ(clicks, 0);

    ClickOn(3);
    ExpectOn({false, false, true, false});
}

TEST_F(OptionButtonTest, AClickPutsTwoThatTheProgramSwitchedOnInOrder)
{
    Options->Option1.Value = true;
    Options->Option2.Value = true;

    ClickOn(2);

    ExpectOn({false, true, true, false});
}

TEST_F(OptionButtonTest, ArrowKeys_ChooseWithinTheFrame)
{
    int clicks = 0;
    Options->Option4.Click = [&clicks] { ++clicks; };
    Activate(*Options);
    View(3).setFocus();

    QTest::keyClick(&View(3), Qt::Key_Down);

    EXPECT_TRUE(View(4).hasFocus());
    EXPECT_EQ(clicks, 1);
    ExpectOn({false, false, false, true});
    QTest::keyClick(&View(4), Qt::Key_Up);
    ExpectOn({false, false, true, false});
}

TEST_F(OptionButtonTest, WhereNoneIsOn_TheFocusChoosesNothing_AndSpaceDoes)
{
    Activate(*Options);
    View(1).setFocus(Qt::TabFocusReason);
    QTest::keyClick(&View(1), Qt::Key_Down);
    EXPECT_TRUE(View(2).hasFocus());
    ExpectOn({false, false, true, false});

    QTest::keyClick(&View(2), Qt::Key_Space);

    ExpectOn({false, true, true, false});
}

TEST_F(OptionButtonTest, ADisabledOneIsDead)
{
    Options->Option1.Enabled = false;
    ClickOn(1);
    ExpectOn({false, false, true, false});
}
} // namespace

} // namespace lineforge
