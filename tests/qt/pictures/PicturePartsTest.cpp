#include "qt/pictures/PictureParts.h"

#include "qt/Dialogs.h"
#include "qt/WindowTest.h"
#include "qt/pictures/KeyboardPointer.h"
#include "qt/views/Reader.h"
#include "support/Clocks.h"

#include <QTest>

#include <optional>
#include <utility>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

struct PartsForm : Form {
    PartsForm() : Form(u"PartsForm", u"Parts", {6000, 4500})
    {
        Picture1.Parts = [this] {
            ++Asked;
            return Parts;
        };
        Picture1.MouseDown = [this](int, int, double x, double y) { Note(u"down", x, y); };
        Picture1.MouseUp = [this](int, int, double x, double y) { Note(u"up", x, y); };
        Picture1.DblClick = [this] { Story += u"double"_s; };
    }
    void Note(QStringView what, double x, double y)
    {
        Story += what.toString();
        At = {static_cast<int>(x), static_cast<int>(y)};
    }
    void Draw() { Picture1.Line({0, 0}, {100, 100}); }

    PictureBox Picture1{*this, u"Picture1", {300, 150, 4500, 9000}};
    Shape Shape1{Picture1, u"Shape1", {0, 0, 150, 150}};
    Button Command1{*this, u"Command1", {4950, 150, 975, 375}, u"Records"};
    std::vector<PicturePart> Parts{{3, {600, 600, 900, 300}, u"A001 John"_s, u"600, 600"_s},
                                   {7, {1800, 600, 900, 300}, u"Empty box"_s, u"1800, 600"_s}};
    int Asked = 0;
    QStringList Story;
    Point At; // of the last event
};

class PicturePartsTest : public WindowTest
{
protected:
    void SetUp() override
    {
        Pictured->Shape1.Visible = true;
        Pictured->Visible = true;
        Activate(*Pictured);
        Listening->TakeHeard();
    }

    QWidget& View() { return Find<QWidget>(*Pictured, u"Picture1"_s); }
    QWidget& Pointer() { return Find<QWidget>(*Pictured, KeyboardPointer::Name); }
    QAccessibleInterface& Picture() { return *QAccessible::queryAccessibleInterface(&View()); }
    QAccessibleInterface& Part(const QString& name)
    {
        for (int index = 0; index < Picture().childCount(); ++index)
            if (Picture().child(index)->text(QAccessible::Name) == name)
                return *Picture().child(index);
        throw std::runtime_error("no part of the name " + name.toStdString());
    }
    QStringList Children()
    {
        QStringList names;
        for (int index = 0; index < Picture().childCount(); ++index)
            names += Picture().child(index)->text(QAccessible::Name);
        return names;
    }
    QRect Pixels(Rectangle place) const { return PixelScale().ToPixels(place); }
    // With the arrows, as the hand does.
    void PointAt(QPoint pixel)
    {
        View().setFocus(Qt::TabFocusReason);
        QTest::keyClick(&View(), Qt::Key_Right); // brings out the pointer
        const auto go = [this](Qt::Key key, int distance) {
            for (int steps = 0; steps < distance; ++steps)
                QTest::keyClick(&View(), key, Qt::ControlModifier);
        };
        const QPoint way = pixel - Pointer().geometry().center();
        go(way.x() < 0 ? Qt::Key_Left : Qt::Key_Right, std::abs(way.x()));
        go(way.y() < 0 ? Qt::Key_Up : Qt::Key_Down, std::abs(way.y()));
        ServeEvents();
    }
    QStringList HeardAfter(HeldClocks& clocks, std::chrono::milliseconds time)
    {
        clocks.LetPass(time);
        ServeEvents();
        return Listening->TakeHeard();
    }

    std::optional<Reader> Listening{std::in_place};
    Window<PartsForm> Pictured{System()};
};

TEST_F(PicturePartsTest, StandBehindTheControlsOfThePicture)
{
    EXPECT_EQ(Children(), QStringList({u"Marker"_s, u"Pointer"_s, u"A001 John"_s, u"Empty box"_s}));
    QAccessibleInterface& john = Part(u"A001 John"_s);
    EXPECT_EQ(john.parent(), &Picture());
    EXPECT_EQ(Picture().indexOfChild(&john), 2);
    EXPECT_EQ(john.role(), QAccessible::Button);
    EXPECT_EQ(john.text(QAccessible::Description), u"600, 600"_s);
    EXPECT_EQ(john.rect(), Pixels({600, 600, 900, 300}).translated(View().mapToGlobal(QPoint())));
    EXPECT_TRUE(john.state().focusable);
    EXPECT_FALSE(john.state().offscreen);
    EXPECT_EQ(Picture().childAt(john.rect().center().x(), john.rect().center().y()), &john);
}

TEST_F(PicturePartsTest, OneThatIsScrolledAway_SaysSo)
{
    Pictured->Picture1.Top = -1500;
    EXPECT_TRUE(Part(u"A001 John"_s).state().offscreen);
}

TEST_F(PicturePartsTest, AreAskedForOnce_AsLongAsNothingIsDrawn)
{
    Children();
    Children();
    EXPECT_EQ(Pictured->Asked, 1);
    Pictured->Draw();
    Children();
    EXPECT_EQ(Pictured->Asked, 2);
}

TEST_F(PicturePartsTest, APictureThatNobodyHasRead_IsNeverAsked)
{
    Pictured->Draw();
    PassEventLoop();
    EXPECT_EQ(Pictured->Asked, 0);
}

TEST_F(PicturePartsTest, WhatComesGoesOrIsRenamed_IsTold_WhenThePictureHasComeToRest)
{
    HeldClocks clocks;
    Children();
    Pictured->Parts = {{7, {1800, 600, 900, 300}, u"A002 Mary"_s, u"1800, 600"_s},
                       {9, {1800, 1200, 900, 300}, u"Empty box"_s, u"1800, 1200"_s}};
    Pictured->Draw();
    EXPECT_EQ(HeardAfter(clocks, 200ms), QStringList());
    Pictured->Draw();
    EXPECT_EQ(HeardAfter(clocks, 200ms), QStringList());
    EXPECT_EQ(HeardAfter(clocks, 100ms), QStringList({u"gone A001 John"_s, u"named A002 Mary"_s, u"new Empty box"_s}));
    EXPECT_EQ(Children().mid(2), QStringList({u"A002 Mary"_s, u"Empty box"_s}));
}

TEST_F(PicturePartsTest, ThePointerTellsWhereItStands_AndThatHasTheFocus)
{
    PointAt(Pixels({600, 600, 900, 300}).center());
    EXPECT_EQ(Pointer().accessibleName(), u"Pointer on A001 John"_s);
    EXPECT_EQ(Listening->TakeHeard().last(), u"focus A001 John"_s);
    EXPECT_EQ(Picture().focusChild(), &Part(u"A001 John"_s));
    EXPECT_TRUE(Part(u"A001 John"_s).state().focused);
    EXPECT_FALSE(Part(u"Empty box"_s).state().focused);

    PointAt(Pixels({1800, 600, 900, 300}).center());
    EXPECT_EQ(Listening->TakeHeard().last(), u"focus Empty box"_s);

    PointAt(Pixels({1800, 1800, 900, 300}).center());
    EXPECT_EQ(Pointer().accessibleName(), u"Pointer"_s);
    EXPECT_EQ(Listening->TakeHeard().last(), u"focus Picture"_s);
}

TEST_F(PicturePartsTest, WithoutReaders_ThePointerAsksNobody)
{
    Listening.reset();
    PointAt(Pixels({600, 600, 900, 300}).center());
    EXPECT_EQ(Pictured->Asked, 0);
}

TEST_F(PicturePartsTest, Pressed_IsADoubleClickInItsMiddle_OnceTheReaderHasHisAnswer)
{
    Part(u"Empty box"_s).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(Pictured->Story, QStringList());
    ServeEvents();
    EXPECT_EQ(Pictured->Story, QStringList({u"down"_s, u"up"_s, u"double"_s, u"up"_s}));
    EXPECT_TRUE(Pixels({1800, 600, 900, 300})
                    .contains(PixelScale().ToPixels(Pictured->At.X), PixelScale().ToPixels(Pictured->At.Y)));
}

TEST_F(PicturePartsTest, GivenTheFocus_HasThePointer)
{
    Part(u"Empty box"_s).actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    ServeEvents();
    EXPECT_TRUE(View().hasFocus());
    EXPECT_EQ(Pointer().geometry().center(), Pixels({1800, 600, 900, 300}).center());
    EXPECT_EQ(Pictured->Story, QStringList());
}

TEST_F(PicturePartsTest, WhileABoxWaitsForAnAnswer_NothingIsPressed)
{
    const NextDialog next([this](QDialog& box) {
        Part(u"Empty box"_s).actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        ServeEvents();
        box.reject();
    });
    Machine().Bundle().Prompts.MsgBox(u"Title"_s, u"Text"_s, Buttons::Plain);
    ServeEvents();
    EXPECT_EQ(Pictured->Story, QStringList());
}

TEST_F(PicturePartsTest, OneThatIsGone_IsPressedInVain)
{
    QAccessibleInterface& john = Part(u"A001 John"_s);
    john.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    Pictured->Parts.erase(Pictured->Parts.begin());
    Pictured->Draw();
    ServeEvents();
    EXPECT_EQ(Pictured->Story, QStringList());
}

TEST_F(PicturePartsTest, AWindowThatIsUnloaded_TakesThemAlong)
{
    Children();
    Pictured.Unload();
    PassEventLoop();
    EXPECT_FALSE(Pictured.IsLoaded());
}

} // namespace
} // namespace lineforge
