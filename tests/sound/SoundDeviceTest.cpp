#include "qt/media/Films.h"
#include "qt/media/PlayerTest.h"

#include <QElapsedTimer>
#include <QProcess>

#include <algorithm>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// Samples of one byte, a second of them.
QByteArray Tone()
{
    QByteArray samples;
    for (int sample = 0; sample < 8000; ++sample)
        samples += static_cast<char>(sample / 10 % 2 == 0 ? 0x40 : 0xc0);
    return samples;
}

// A machine on which somebody listens to all that is played.
class SoundDeviceTest : public PlayerTest
{
protected:
    SoundDeviceTest()
    {
        listener_.start(u"parec"_s, {u"--raw"_s, u"--latency-msec=10"_s});
        // It hears the silence as well.
        if (!listener_.waitForReadyRead(Patience))
            throw std::runtime_error("there is no sound device");
        listener_.readAll();
    }
    ~SoundDeviceTest() override
    {
        listener_.kill();
        listener_.waitForFinished();
    }

    bool IsHeard()
    {
        return QTest::qWaitFor(
            [this] {
                const QByteArray heard = listener_.readAll();
                return std::ranges::any_of(heard, [](char byte) { return byte != 0; });
            },
            Patience);
    }

private:
    QProcess listener_;
};

TEST_F(SoundDeviceTest, AShortSoundIsHeard_AndWaitedForWhereItsControlSaysSo)
{
    Player().FileName = Home.WriteFile(u"tone.wav", WavFile(8000, 1, 8, Tone()));
    Player().Wait = true;
    QElapsedTimer time;
    time.start();
    Press(u"Sound");
    EXPECT_GE(time.elapsed(), 500); // of a second, the end of which the device may still hold
    EXPECT_TRUE(IsHeard());
}

TEST_F(SoundDeviceTest, TheSoundOfTheGalleryIsHeard)
{
    OpenSound();
    Press(u"Play");
    EXPECT_TRUE(IsHeard());
    EXPECT_TRUE(ReachesItsEnd());
}

TEST_F(SoundDeviceTest, TheSoundOfAFilmIsHeard_AlsoWhereItsPictureCanNotBeSeen)
{
    const QByteArray silent = FilmThatNobodyCanSee();
    QByteArray film = silent;
    film.replace(QByteArray(800, '\x80'), Tone().first(800));
    ASSERT_NE(film, silent);
    Open(Home.WriteFile(u"film.avi", film));
    Press(u"Play");
    EXPECT_TRUE(IsHeard());
    EXPECT_TRUE(ReachesItsEnd());
}

} // namespace
} // namespace lineforge
