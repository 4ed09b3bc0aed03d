#include "qt/media/SoundFile.h"

#include "qt/media/Sounds.h"
#include "support/TemporaryHome.h"

#include <gtest/gtest.h>

namespace lineforge
{

namespace
{
TEST(SoundFileTest, ReadsFormatAndSamples)
{
    const auto sound = ParseSound(WavFile(8000, 1, 16, QByteArray(1600, 'x')));
    ASSERT_TRUE(sound);
    EXPECT_EQ(sound->SamplesASecond, 8000);
    EXPECT_EQ(sound->Channels, 1);
    EXPECT_EQ(sound->BitsASample, 16);
    EXPECT_EQ(sound->Samples, QByteArray(1600, 'x'));
    EXPECT_EQ(sound->Milliseconds(), 100);
}

TEST(SoundFileTest, StereoAndEightBits)
{
    const auto sound = ParseSound(WavFile(11025, 2, 8, QByteArray(22050, 'x')));
    ASSERT_TRUE(sound);
    EXPECT_EQ(sound->Milliseconds(), 1000);
}

TEST(SoundFileTest, PassesOverChunksThatItDoesNotKnow)
{
    EXPECT_TRUE(ParseSound(WavFile(8000, 1, 8, "abcd", Chunk("LIST", "odd"))));
}

TEST(SoundFileTest, ACutFilePlaysAsFarAsItGoes)
{
    const auto sound = ParseSound(WavFile(8000, 1, 8, QByteArray(100, 'x')).chopped(40));
    ASSERT_TRUE(sound);
    EXPECT_EQ(sound->Samples.size(), 60);
}

TEST(SoundFileTest, NoSoundNoAnswer)
{
    const QByteArray good = WavFile(8000, 1, 8, "abcd");
    EXPECT_FALSE(ParseSound({}));
    EXPECT_FALSE(ParseSound("RIFF"));
    EXPECT_FALSE(ParseSound(good.left(20)));
    EXPECT_FALSE(ParseSound(good.left(44))); // no samples
    EXPECT_FALSE(ParseSound(QByteArray(good).replace("WAVE", "WAVX")));
    EXPECT_FALSE(ParseSound(WavFile(8000, 1, 12, "abcd")));
    EXPECT_FALSE(ParseSound(WavFile(8000, 0, 8, "abcd")));
    EXPECT_FALSE(ParseSound(WavFile(0, 1, 8, "abcd")));
}

TEST(SoundFileTest, AChunkLongerThanAnyFileIsNoTrap)
{
    QByteArray file = WavFile(8000, 1, 8, "abcd", Chunk("LIST", "even"));
    file.replace(file.indexOf("LIST") + 4, 4, QByteArray(4, '\xFF'));
    EXPECT_FALSE(ParseSound(file));
}

TEST(SoundFileTest, SamplesThatClaimToLastForMonths_LastNoLongerThanCanBeTold)
{
    EXPECT_GT(ParseSound(WavFile(1, 1, 8, QByteArray(3'000'000, 'x')))->Milliseconds(), 2'000'000'000);
}

TEST(SoundFileTest, AFileLargerThanAnySound_IsNone)
{
    TemporaryHome home;
    QFile file(home.WriteFile(QStringLiteral("long.wav"), WavFile(8000, 1, 8, "abcd")));
    ASSERT_TRUE(ReadSound(file.fileName()));
    ASSERT_TRUE(file.resize(qint64{1} << 30));
    EXPECT_FALSE(ReadSound(file.fileName()));
}

TEST(SoundFileTest, AMissingFileIsNoSound)
{
    const TemporaryHome home;
    EXPECT_FALSE(ReadSound(home.Path() + QStringLiteral("/nowhere.wav")));
}
} // namespace

} // namespace lineforge
