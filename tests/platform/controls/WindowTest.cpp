#include "platform/controls/Window.h"

#include "platform/machine/Platform.h"
#include "support/FakeWindows.h"
#include "support/Printing.h"
#include "support/Refusal.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

struct Splash : Form {
    Splash() : Form(u"Splash", u"Welcome", {3000, 2000}) {}
    Button Command1{*this, u"Command1", {}, u"Close"};
    MultimediaControl Player{*this, u"MMControl1"};
};

class WindowTest : public testing::Test
{
protected:
    WindowTest()
    {
        window.Install = [this](Splash& splash) {
            story.push_back(u"install"_s);
            splash.Load = [this] { story.push_back(u"load"_s); };
            splash.Unloading = [this] { story.push_back(u"unloading"_s); };
            splash.Player.Act = [this](QStringView command) { story.push_back(command.toString()); };
        };
    }

    FakeWindows system;
    Window<Splash> window{system};
    QStringList story;
};

TEST_F(WindowTest, UntouchedWindow_IsNotMade)
{
    EXPECT_FALSE(window.IsLoaded());
    window.Unload();

    EXPECT_EQ(system.MadeNames, QStringList());
    EXPECT_EQ(story, QStringList());
}

TEST_F(WindowTest, FirstTouch_MakesIt_AndLaterOnesFindIt)
{
    window->Caption = u"Hello"_s;
    Splash* made = &*window;
    window.Load();

    EXPECT_TRUE(window.IsLoaded());
    EXPECT_EQ(&*window, made);
    EXPECT_EQ(window->Caption.value(), u"Hello");
    EXPECT_EQ(system.MadeNames, QStringList(u"Splash"_s));
    EXPECT_EQ(story, QStringList({u"install"_s, u"load"_s}));
}

TEST_F(WindowTest, Window_IsOnTheScreensSide_BeforeItsLoadRuns)
{
    window.Install = [this](Splash& splash) { splash.Load = [this] { story = system.MadeNames; }; };
    window.Load();

    EXPECT_EQ(story, QStringList(u"Splash"_s));
}

TEST_F(WindowTest, WindowTouchedInItsOwnLoad_IsTheSame)
{
    window.Install = [this](Splash& splash) { splash.Load = [this] { window->Caption = u"set by load"_s; }; };

    EXPECT_EQ(window->Caption.value(), u"set by load");
    EXPECT_EQ(system.MadeNames.size(), 1);
}

TEST_F(WindowTest, Unload_TellsTheWindow_LetsGo_AndTakesItAway)
{
    window.Load();
    story.clear();

    window.Unload();

    EXPECT_FALSE(window.IsLoaded());
    EXPECT_EQ(story, QStringList({u"unloading"_s, u"Close"_s}));
    EXPECT_EQ(system.RetiredNames, QStringList(u"Splash"_s));
    window.Unload();
    EXPECT_EQ(system.RetiredNames.size(), 1);
}

TEST_F(WindowTest, TouchAfterUnload_MakesANewWindow)
{
    window->Caption = u"old"_s;
    const Splash* old = &*window;
    window.Unload();

    EXPECT_EQ(window->Caption.value(), u"Welcome");
    EXPECT_NE(&*window, old);
    EXPECT_EQ(system.MadeNames.size(), 2);
    EXPECT_EQ(story.count(u"load"_s), 2);
}

TEST_F(WindowTest, UnloadInItsOwnHandler_IsSafe)
{
    window->Command1.Click = [this, kept = u"still here"_s] {
        window.Unload();
        story.push_back(kept);
    };
    Button& button = window->Command1;

    Fire(button.Click);

    EXPECT_FALSE(window.IsLoaded());
    EXPECT_EQ(story.last(), u"still here");
}

TEST_F(WindowTest, UnloadWhileUnloading_HappensOnce)
{
    window->Unloading = [this] {
        story.push_back(u"unloading"_s);
        window.Unload();
    };

    window.Unload();

    EXPECT_EQ(story.count(u"unloading"_s), 1);
    EXPECT_EQ(system.RetiredNames.size(), 1);
}

TEST_F(WindowTest, UnloadInItsOwnLoad_IsSafe)
{
    window.Install = [this](Splash& splash) { splash.Load = [this] { window.Unload(); }; };

    EXPECT_EQ(window->Name, u"Splash") << "who touched it gets the window that went";
    EXPECT_FALSE(window.IsLoaded());
    EXPECT_EQ(system.RetiredNames.size(), 1);
}

TEST_F(WindowTest, RefusalWhileUnloading_LeavesAWindowThatCanStillBeUnloaded)
{
    window->Unloading = [] { throw RuntimeError(ErrorNumber::DiskFull); };
    EXPECT_EQ(RefusalOf([&] { window.Unload(); }), ErrorNumber::DiskFull);
    EXPECT_TRUE(window.IsLoaded());

    window->Unloading = {};
    window.Unload();
    EXPECT_FALSE(window.IsLoaded());
}

TEST_F(WindowTest, ClosingByTheFrame_Unloads)
{
    window.Load();
    Fire(window->CloseByFrame);

    EXPECT_FALSE(window.IsLoaded());
    EXPECT_EQ(system.RetiredNames.size(), 1);
}

} // namespace
} // namespace lineforge
