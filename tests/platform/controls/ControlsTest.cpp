#include "platform/controls/Controls.h"

#include "platform/canvas/PictureBox.h"
#include "platform/controls/DataControl.h"
#include "platform/controls/TextPanel.h"
#include "support/Printing.h"

#include <QDir>

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class ControlsTest : public testing::Test
{
protected:
    Container window;
};

TEST_F(ControlsTest, Control_IsKnownToItsParent_AndStandsWhereItWasPut)
{
    Button button(window, u"Command1", {120, 240, 1320, 285}, u"&Open");

    ASSERT_EQ(window.Controls().size(), 1u);
    EXPECT_EQ(window.Controls().front(), &button);
    EXPECT_EQ(button.Name, u"Command1");
    EXPECT_EQ(button.Caption.value(), u"&Open");
    EXPECT_EQ(button.Left, 120);
    EXPECT_EQ(button.Top, 240);
    EXPECT_EQ(button.Width, 1320);
    EXPECT_EQ(button.Height, 285);
    EXPECT_TRUE(button.Visible);
    EXPECT_TRUE(button.Enabled);

    button.Move({5, -5});
    EXPECT_EQ(button.Left, 5);
    EXPECT_EQ(button.Top, -5);
    EXPECT_EQ(button.Width, 1320);
}

TEST_F(ControlsTest, ControlsInAFrame_AreTheFramesOwn)
{
    Frame frame(window, u"Frame1", {}, u"Tools");
    const Label label(frame, u"Label1", {}, u"x");

    EXPECT_EQ(window.Controls().size(), 1u);
    ASSERT_EQ(frame.Controls().size(), 1u);
    EXPECT_EQ(frame.Controls().front(), &label);
}

TEST_F(ControlsTest, EventWithoutHandler_DoesNothing)
{
    const Button button(window, u"Command1", {}, u"");
    int clicks = 0;

    Fire(button.Click);
    Fire([&] { ++clicks; });

    EXPECT_EQ(clicks, 1);
}

TEST_F(ControlsTest, ListText_IsTheSelectedItem)
{
    ListBox list(window, u"List1", {});
    EXPECT_EQ(list.ListIndex, -1);
    EXPECT_EQ(list.Text(), QString());

    list.Items = QStringList({u"Smiths"_s, u"Jones"_s, u"Jones"_s});
    EXPECT_EQ(list.Text(), QString());
    list.ListIndex = 0;
    EXPECT_EQ(list.Text(), u"Smiths");
    list.SetText(u"Jones"_s);
    EXPECT_EQ(list.ListIndex, 1);
    list.SetText(u"jones"_s);
    EXPECT_EQ(list.ListIndex, -1) << "only exactly that text";
    list.ListIndex = 3;
    EXPECT_EQ(list.Text(), QString());
}

TEST_F(ControlsTest, Shape_IsHiddenUntilItIsToldToShow)
{
    const Shape shape(window, u"Shape1", {});
    EXPECT_FALSE(shape.Visible);
}

TEST_F(ControlsTest, Player_PassesCommandsOn_AndClosesWithItsWindow)
{
    MultimediaControl player(window, u"MMControl1");
    player.Command(u"Open");
    QStringList commands;
    player.Act = [&](QStringView command) { commands.push_back(command.toString()); };

    player.Command(u"Sound");
    player.Release();

    EXPECT_EQ(commands, QStringList({u"Sound"_s, u"Close"_s}));
}

TEST_F(ControlsTest, MenuItems_StandInTheirLevel)
{
    std::vector<MenuItem*> menus;
    MenuItem file(menus, u"mnuFile", u"&File");
    const MenuItem open(file, u"mnuOpen", u"&Open");
    const MenuItem separator(file, u"mnuDash", u"-");

    EXPECT_EQ(menus, std::vector<MenuItem*>{&file});
    EXPECT_EQ(file.Items.size(), 2u);
    EXPECT_EQ(file.Items.front()->Name, u"mnuOpen");
    EXPECT_EQ(file.Items.back()->Caption, u"-");
    EXPECT_TRUE(open.Enabled);
}

// Notes the kinds of control that it comes to.
class Tour : public ControlVisitor
{
public:
    void Visit(Label&) override { Stops.push_back(u"Label"_s); }
    void Visit(TextBox&) override { Stops.push_back(u"TextBox"_s); }
    void Visit(Button&) override { Stops.push_back(u"Button"_s); }
    void Visit(CheckBox&) override { Stops.push_back(u"CheckBox"_s); }
    void Visit(OptionButton&) override { Stops.push_back(u"OptionButton"_s); }
    void Visit(Frame&) override { Stops.push_back(u"Frame"_s); }
    void Visit(ListBox&) override { Stops.push_back(u"ListBox"_s); }
    void Visit(DriveList&) override { Stops.push_back(u"DriveList"_s); }
    void Visit(DirectoryList&) override { Stops.push_back(u"DirectoryList"_s); }
    void Visit(Image&) override { Stops.push_back(u"Image"_s); }
    void Visit(Shape&) override { Stops.push_back(u"Shape"_s); }
    void Visit(ScrollBar&) override { Stops.push_back(u"ScrollBar"_s); }
    void Visit(Timer&) override { Stops.push_back(u"Timer"_s); }
    void Visit(MultimediaControl&) override { Stops.push_back(u"MultimediaControl"_s); }
    void Visit(TextPanel&) override { Stops.push_back(u"TextPanel"_s); }
    void Visit(PictureBox&) override { Stops.push_back(u"PictureBox"_s); }
    void Visit(DataControl&) override { Stops.push_back(u"DataControl"_s); }
    QStringList Stops;
};

TEST_F(ControlsTest, EveryKindOfControl_HasItsStop)
{
    Label label(window, u"a", {});
    TextBox text(window, u"b", {});
    Button button(window, u"c", {}, u"");
    CheckBox check(window, u"d", {}, u"");
    OptionButton option(window, u"n", {}, u"");
    Frame frame(window, u"e", {});
    ListBox list(window, u"f", {});
    DriveList drives(window, u"p", {});
    DirectoryList directories(window, u"q", {});
    Image image(window, u"g", {});
    Shape shape(window, u"h", {});
    ScrollBar bar(window, u"i", {}, 100, 1, 10);
    Timer timer(window, u"j", 100);
    MultimediaControl player(window, u"k");
    TextPanel panel(window, u"o", {});
    PictureBox picture(window, u"l", {});
    DataControl data(window, u"m", {}, u"");

    Tour tour;
    for (Control* control : window.Controls())
        control->Accept(tour);

    EXPECT_EQ(tour.Stops,
              QStringList({u"Label"_s, u"TextBox"_s, u"Button"_s, u"CheckBox"_s, u"OptionButton"_s, u"Frame"_s,
                           u"ListBox"_s, u"DriveList"_s, u"DirectoryList"_s, u"Image"_s, u"Shape"_s, u"ScrollBar"_s,
                           u"Timer"_s, u"MultimediaControl"_s, u"TextPanel"_s, u"PictureBox"_s, u"DataControl"_s}));
}

TEST_F(ControlsTest, DirectoryList_TellsOfAChange_OnlyWhenItStoodElsewhere)
{
    DirectoryList list(window, u"Dir1", {});
    int changes = 0;
    list.Change = [&] { ++changes; };

    list.GoTo(u"/"_s);
    list.GoTo(u"/"_s);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(list.Path.value(), u"/"_s);

    const QString home = QDir::tempPath();
    list.GoTo(home + u'/');
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(list.Path.value(), home);

    list.GoTo(home + u"/there is no such directory");
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(list.Path.value(), home);
}

TEST_F(ControlsTest, DriveList_TellsOfEveryChoice)
{
    DriveList list(window, u"Drive1", {});
    QStringList chosen;
    list.Change = [&] { chosen += list.Drive; };

    list.Choose(u"/"_s);
    list.Choose(u"/"_s);

    EXPECT_EQ(chosen, QStringList({u"/"_s, u"/"_s}));
}

TEST_F(ControlsTest, TextPanel_KeepsItsLines_ACarriageReturnBeginsAnother)
{
    TextPanel panel(window, u"Picture1", {});
    int changes = 0;
    panel.Changed = [&] { ++changes; };

    panel.Print(u"one");
    panel.Print();
    panel.Print(u"two\rthree");

    EXPECT_EQ(panel.Lines, QStringList({u"one"_s, u""_s, u"two"_s, u"three"_s}));
    EXPECT_EQ(panel.CurrentY(), 4 * TextPanel::LineHeight);
    EXPECT_EQ(changes, 3);
    panel.Cls();
    EXPECT_EQ(panel.CurrentY(), 0);
    EXPECT_EQ(changes, 4);
}

class ControlTextTest : public ControlsTest
{
};

TEST_F(ControlTextTest, UnboundText_IsWhatItWasSetTo_AndObserversHear)
{
    Label label(window, u"Label1", {}, u"first");
    int heard = 0;
    const auto observer = label.Caption.OnChange([&] { ++heard; });

    EXPECT_EQ(label.Caption.value(), u"first");
    label.Caption = u"second"_s;
    label.Caption = u"second"_s;

    const QString text = label.Caption;
    EXPECT_EQ(text, u"second");
    EXPECT_EQ(heard, 1) << "once a change";
}

// Feeds a text, and notes what it is asked.
struct NotingSource : TextSource {
    void Settle() override { Calls.push_back(u"settle"_s); }
    void Edited(const ControlText& text) override { Calls.push_back(u"edited: "_s + text.Shown()); }
    void Forget(const ControlText&) override { Calls.push_back(u"forget"_s); }
    QStringList Calls;
};

TEST_F(ControlTextTest, BoundTextThatGoes_IsForgottenByItsSource)
{
    NotingSource source;
    {
        Container gone;
        Label label(gone, u"Label1", {});
        label.Caption.Attach(&source);
    }
    EXPECT_EQ(source.Calls, QStringList(u"forget"_s));
}

TEST_F(ControlTextTest, BoundText_IsSettledBeforeItIsReadOrSet_AndOnlySettingIsAnEdit)
{
    NotingSource source;
    TextBox box(window, u"Text1", {});
    box.Text.Attach(&source);

    static_cast<void>(box.Text.value());
    EXPECT_EQ(source.Calls, QStringList(u"settle"_s));
    box.Text.Show(u"from the row"_s);
    static_cast<void>(box.Text.Shown());
    EXPECT_EQ(source.Calls.size(), 1);
    box.Text = u"typed"_s;
    EXPECT_EQ(source.Calls, QStringList({u"settle"_s, u"settle"_s, u"edited: typed"_s}));
    box.Text.Attach(nullptr);
    box.Text = u"own"_s;
    EXPECT_EQ(source.Calls.size(), 3);
}

} // namespace
} // namespace lineforge
