#include "qt/WindowTest.h"
#include "qt/media/QtMedia.h"
#include "qt/media/Sounds.h"
#include "support/TemporaryHome.h"

#include <QElapsedTimer>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct SplashForm : Form {
    SplashForm() : Form(u"SplashForm", {}, {6000, 3000}) {}
    Frame Frame1{*this, u"Frame1", {0, 0, 3000, 3000}};
    MultimediaControl MMControl1{*this, u"MMControl1"};
    MultimediaControl Inner{Frame1, u"Inner"};
};

struct MediaTest : WindowTest {
    TemporaryHome Home;
    Window<SplashForm> Splash{System()};
    QString Second = Home.WriteFile(u"second.wav", WavFile(8000, 1, 8, QByteArray(8000, '\x80')));
};

TEST_F(MediaTest, ControlsAreServedBeforeTheWindowIsShown_InFramesToo)
{
    EXPECT_TRUE(Splash->MMControl1.Act);
    EXPECT_TRUE(Splash->Inner.Act);
    EXPECT_EQ(System().WidgetOf(*Splash), nullptr);
}

TEST_F(MediaTest, AMissingFileIsPassedOver_WithoutWaiting)
{
    Splash->MMControl1.Wait = true;
    Splash->MMControl1.Command(u"Open");
    Splash->MMControl1.FileName = Home.Path() + u"/nowhere.wav"_s;
    QElapsedTimer time;
    time.start();
    Splash->MMControl1.Command(u"Sound");
    Splash->MMControl1.Command(u"close");
    EXPECT_LT(time.elapsed(), 500);
}

TEST_F(MediaTest, ASoundNeverHoldsTheProgramUpMuchLongerThanItLasts)
{
    Splash->MMControl1.Wait = true;
    Splash->MMControl1.FileName = Second;
    QElapsedTimer time;
    time.start();
    Splash->MMControl1.Command(u"Sound");
    // With a device the second, its second of patience, and what the sound system takes to start.
    EXPECT_LT(time.elapsed(), 10000);
}

TEST_F(MediaTest, UnloadingTheWindowStopsItsSound)
{
    Splash->MMControl1.FileName = Second;
    Splash->MMControl1.Command(u"Sound");
    Splash.Unload();
    PassEventLoop();
    EXPECT_FALSE(Splash.IsLoaded());
}

TEST_F(MediaTest, OnlyAWaitingControlThatIsNotToNotifyWaits_AndNeverForAClick)
{
    MultimediaControl& control = Splash->MMControl1;
    EXPECT_FALSE(QtMedia::Waits(control, 1000));
    control.Wait = true;
    EXPECT_TRUE(QtMedia::Waits(control, 1000));
    EXPECT_TRUE(QtMedia::Waits(control, 201));
    EXPECT_FALSE(QtMedia::Waits(control, 200));
    control.Notify = true;
    EXPECT_FALSE(QtMedia::Waits(control, 1000));
}
} // namespace

} // namespace lineforge
