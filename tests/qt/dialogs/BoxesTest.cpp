#include "platform/base/RuntimeError.h"
#include "qt/WindowTest.h"

#include <QCheckBox>
#include <QPushButton>
#include <QTest>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct BoxForm : Form {
    BoxForm() : Form(u"BoxForm", u"Boxes", {6000, 3000}) { Command1.ToolTipText = u"a <b> & c"_s; }
    Button Command1{*this, u"Command1", {150, 150, 1200, 375}, u"&Open"};
    CheckBox Check1{*this, u"Check1", {150, 600, 3000, 315}, u"Don't &show this"};
};

struct BoxesTest : WindowTest {
    Window<BoxForm> Boxes{System()};
    void SetUp() override { Boxes->Visible = true; }
    QPushButton& Push() { return Find<QPushButton>(*Boxes, u"Command1"_s); }
    QCheckBox& Tick() { return Find<QCheckBox>(*Boxes, u"Check1"_s); }
};

TEST_F(BoxesTest, CaptionsShow_AndAreSpokenWithoutTheMarkOfTheAccessKey)
{
    EXPECT_EQ(Push().text(), u"&Open"_s);
    EXPECT_EQ(Push().accessibleName(), u"Open"_s);
    EXPECT_EQ(Tick().accessibleName(), u"Don't show this"_s);
    Boxes->Command1.Caption = u"&Close"_s;
    Boxes->Check1.Caption = u"Show"_s;
    EXPECT_EQ(Push().text(), u"&Close"_s);
    EXPECT_EQ(Push().accessibleName(), u"Close"_s);
    EXPECT_EQ(Tick().text(), u"Show"_s);
    EXPECT_EQ(Tick().accessibleName(), u"Show"_s);
}

TEST_F(BoxesTest, AButtonIsPressedByMouse_AccessKey_SpaceAndEnter)
{
    int clicks = 0;
    Boxes->Command1.Click = [&clicks] { ++clicks; };
    Activate(*Boxes);
    QTest::mouseClick(&Push(), Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
    QTest::keyClick(&ViewOf(*Boxes), Qt::Key_O, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&clicks] { return clicks == 2; })); // the key holds the button for a moment
    QTest::keyClick(&Push(), Qt::Key_Space);
    EXPECT_EQ(clicks, 3);
    QTest::keyClick(&Push(), Qt::Key_Return);
    EXPECT_EQ(clicks, 4);
}

TEST_F(BoxesTest, AButtonTakesItsColour_WithACaptionThatStandsOut_AndGivesItBack)
{
    const QPalette usual = Push().palette();
    Boxes->Command1.BackColor = Rgb(220, 0, 0);
    EXPECT_EQ(Push().palette().color(QPalette::Button), QColor(220, 0, 0));
    EXPECT_EQ(Push().palette().color(QPalette::ButtonText), QColor(Qt::white));
    Boxes->Command1.BackColor = Rgb(0, 220, 0);
    EXPECT_EQ(Push().palette().color(QPalette::Button), QColor(0, 220, 0));
    EXPECT_EQ(Push().palette().color(QPalette::ButtonText), QColor(Qt::black));
    Boxes->Command1.BackColor = std::nullopt;
    EXPECT_EQ(Push().palette().color(QPalette::Button), usual.color(QPalette::Button));
}

TEST_F(BoxesTest, ADisabledButtonIsDead)
{
    int clicks = 0;
    Boxes->Command1.Click = [&clicks] { ++clicks; };
    Boxes->Command1.Enabled = false;
    QTest::mouseClick(&Push(), Qt::LeftButton);
    EXPECT_EQ(clicks, 0);
    Boxes->Command1.Enabled = true;
    QTest::mouseClick(&Push(), Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
}

TEST_F(BoxesTest, WhatAHandlerRefusesReachesTheGuard)
{
    Boxes->Command1.Click = [] { throw RuntimeError(ErrorNumber::PathNotFound); };
    QTest::mouseClick(&Push(), Qt::LeftButton);
    EXPECT_EQ(Refusals(), std::vector<int>{ErrorNumber::PathNotFound});
}

TEST_F(BoxesTest, TickingSetsTheValueBeforeTheHandlerRuns)
{
    std::vector<bool> seen;
    Boxes->Check1.Click = [&] { seen.push_back(Boxes->Check1.Value); };
    QTest::mouseClick(&Tick(), Qt::LeftButton, {}, {8, Tick().height() / 2});
    QTest::mouseClick(&Tick(), Qt::LeftButton, {}, {8, Tick().height() / 2});
    EXPECT_EQ(seen, (std::vector<bool>{true, false}));
}

TEST_F(BoxesTest, AValueThatTheProgramSetsShows_AndIsNoClick)
{
    int clicks = 0;
    Boxes->Check1.Click = [&clicks] { ++clicks; };
    Boxes->Check1.Value = true;
    EXPECT_TRUE(Tick().isChecked());
    EXPECT_EQ(clicks, 0);
}

TEST_F(BoxesTest, AToolTipIsPlainText)
{
    EXPECT_EQ(Push().toolTip(), u"a &lt;b&gt; &amp; c"_s);
    EXPECT_EQ(Tick().toolTip(), QString());
}
} // namespace

} // namespace lineforge
