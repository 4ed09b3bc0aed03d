#include "platform/canvas/PictureBox.h"
#include "support/Pixels.h"
#include "support/RecordingSurface.h"
#include "support/TestPlatform.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

TEST(TestPlatformTest, Bundle_LeadsToTheDoubles)
{
    TestPlatform machine;
    machine.Prompts.Expect(u"Hello", u"", Buttons::Plain);

    machine.Platform.Prompts.MsgBox(u"Hello"_s, QString(), Buttons::Plain);
    machine.Platform.Loop.DoEvents();

    EXPECT_EQ(machine.Loop.Yields, 1);
    EXPECT_EQ(machine.Platform.Screen.Area(), (Size{12000, 9000}));
    EXPECT_EQ(machine.Platform.ExecutableDirectory, machine.Home.Path() + u'/');
}

TEST(FakeEventLoopTest, QueuedActions_RunOneAYield_AndThrowThroughIt)
{
    FakeEventLoop loop;
    QStringList story;
    loop.AtNextYield([&] { story.push_back(u"first"_s); });
    loop.AtNextYield([&] { loop.End(3); });

    loop.DoEvents();
    EXPECT_EQ(story, QStringList(u"first"_s));
    EXPECT_THROW(loop.DoEvents(), ProgramEnded);
    EXPECT_EQ(loop.ExitCode, 3);
    loop.DoEvents();
    EXPECT_EQ(loop.Yields, 3);
}

TEST(FakeEventLoopTest, ActionThatYieldsItself_IsNotRunAgain)
{
    FakeEventLoop loop;
    int runs = 0;
    loop.AtNextYield([&] {
        ++runs;
        loop.DoEvents();
    });

    loop.DoEvents();
    EXPECT_EQ(runs, 1);
}

TEST(RecordingSurfaceTest, EveryCall_IsALine)
{
    RecordingSurface surface;
    surface.DrawWidth = 2;
    surface.ForeColor = Rgb(255, 0, 0);
    surface.Line({0, 0}, {10, 10});
    surface.Mode = DrawMode::Xor;
    surface.Box({100, 200, 300, 400});
    surface.Font = {u"Courier"_s, 9.75, true, true};
    surface.PrintAt({10, 20}, u"100% \"sure\""_s);

    EXPECT_EQ(surface.Take(), QStringList({u"Line 0,0 10,10 pen 2 colour 255 mode 13"_s,
                                           u"Box 100,200 300x400 pen 2 colour 255 mode 7"_s,
                                           u"Print 10,20 \"100% \"sure\"\" Courier 9.75 bold italic colour 255"_s}));
    EXPECT_EQ(surface.Calls, QStringList());
}

TEST(RecordingSurfaceTest, Texts_AreMeasuredByAFixedRule)
{
    RecordingSurface surface;
    EXPECT_EQ(surface.TextWidth(u"John"_s), 320);
    EXPECT_EQ(surface.TextHeight(u"John"_s), 200);
}

class PixelsTest : public testing::Test
{
protected:
    Container window;
    PictureBox picture{window, u"Picture1", {0, 0, 500, 400}};
};

TEST_F(PixelsTest, UndrawnPicture_ShowsItsBackground)
{
    picture.BackColor = Rgb(1, 2, 3);
    EXPECT_TRUE(IsBlank(picture));
    EXPECT_EQ(ColourAt(picture, {499, 399}), Rgb(1, 2, 3));
    EXPECT_EQ(CountPixels(picture, Rgb(1, 2, 3)), 100 * 80);
}

TEST_F(PixelsTest, Pixels_AreCountedByColourAndPlace)
{
    picture.Line({100, 100}, {100, 100});

    EXPECT_FALSE(IsBlank(picture));
    EXPECT_EQ(CountPixels(picture, Black), 9);
    EXPECT_EQ(CountPixels(picture, Black, {100, 100, 5, 5}), 1);
    EXPECT_EQ(CountPixels(picture, Black, {100, 100, 1000, 1000}), 4);
    EXPECT_EQ(ColourAt(picture, {95, 95}), Black);
    EXPECT_EQ(ColourAt(picture, {94, 95}), White);
}

TEST_F(PixelsTest, PlaceOutsideThePicture_FailsTheTest)
{
    EXPECT_NONFATAL_FAILURE(ColourAt(picture, {500, 0}), "outside");
}

} // namespace
} // namespace lineforge
