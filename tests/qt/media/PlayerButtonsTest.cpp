#include "qt/media/PlayerTest.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
using PlayerButtonsTest = PlayerTest;

TEST_F(PlayerButtonsTest, PauseStays_AndGoesOnWhenPressedAgain)
{
    OpenSound();
    Press(u"Pause");
    EXPECT_TRUE(StandsStill());
    Press(u"Play");
    ASSERT_TRUE(GoesOn());
    Press(u"Pause");
    const int paused = Position();
    EXPECT_TRUE(StandsStill());
    Press(u"Pause");
    EXPECT_TRUE(GoesOn());
    EXPECT_GE(Position(), paused);
}

TEST_F(PlayerButtonsTest, RewindGoesToTheBeginning_AndPlaysOnIfItPlayed)
{
    OpenSound();
    Press(u"Play");
    ASSERT_TRUE(Reaches(600));
    Press(u"Rewind");
    EXPECT_TRUE(QTest::qWaitFor([this] { return Position() < 600; }, Patience));
    EXPECT_TRUE(Reaches(600));
    Press(u"Pause");
    Press(u"Rewind");
    EXPECT_EQ(Position(), 0);
    EXPECT_TRUE(StandsStill());
}

TEST_F(PlayerButtonsTest, RewindFromTheEndShowsTheFirstPictureAgain)
{
    OpenFilm();
    ASSERT_TRUE(ShowsAPicture());
    const QImage first = Player().Screen;
    Press(u"Play");
    ASSERT_TRUE(ReachesItsEnd());
    Press(u"Rewind");
    EXPECT_TRUE(QTest::qWaitFor([this, first] { return Player().Screen.value() == first; }, Patience));
    EXPECT_EQ(Position(), 0);
    EXPECT_TRUE(StandsStill());
}

TEST_F(PlayerButtonsTest, StopGoesToTheBeginning_WhereAFilmShowsItsFirstPicture)
{
    OpenFilm();
    ASSERT_TRUE(ShowsAPicture());
    const QImage first = Player().Screen;
    Press(u"Play");
    ASSERT_TRUE(Reaches(500));
    Press(u"Stop");
    EXPECT_EQ(Position(), 0);
    EXPECT_TRUE(QTest::qWaitFor([this, first] { return Player().Screen.value() == first; }, Patience));
    EXPECT_TRUE(StandsStill());
    Press(u"Pause");
    EXPECT_TRUE(StandsStill());
    Press(u"Play");
    EXPECT_TRUE(Reaches(500));
}

TEST_F(PlayerButtonsTest, PlayAtTheEndBeginsAnew)
{
    OpenFilm();
    Press(u"Play");
    ASSERT_TRUE(ReachesItsEnd());
    Press(u"Play");
    EXPECT_TRUE(QTest::qWaitFor([this] { return Position() < 1000; }, Patience));
    EXPECT_TRUE(ReachesItsEnd());
}

TEST_F(PlayerButtonsTest, StepShowsEveryPictureOfAFilm_AndStaysAtTheEnd)
{
    OpenFilm();
    ASSERT_TRUE(ShowsAPicture());
    Watch();
    int steps = 0;
    int before = -1;
    while (Position() > before && steps < 100) {
        before = Position();
        const auto shown = Pictures.size();
        Press(u"Step");
        ++steps;
        if (Position() > before) {
            EXPECT_TRUE(QTest::qWaitFor([this, shown] { return Pictures.size() > shown; }, Patience)) << steps;
        }
    }
    // Thirty pictures: twenty-nine steps between them, and one that leads nowhere.
    EXPECT_EQ(steps, 30);
    EXPECT_EQ(Pictures.size(), 29U);
    EXPECT_TRUE(StandsStill());
    Press(u"Play");
    EXPECT_TRUE(ReachesItsEnd());
    Press(u"Step");
    EXPECT_TRUE(StandsStill());
}

TEST_F(PlayerButtonsTest, StepStopsAPlayingSound_AndGoesOnALittle)
{
    OpenSound();
    Press(u"Step");
    EXPECT_EQ(Position(), 100);
    Press(u"Step");
    EXPECT_EQ(Position(), 200);
    Press(u"Play");
    ASSERT_TRUE(GoesOn());
    Press(u"Step");
    EXPECT_GE(Position(), 300);
    EXPECT_TRUE(StandsStill());
    Press(u"Pause");
    EXPECT_TRUE(GoesOn());
}

TEST_F(PlayerButtonsTest, WithNothingOpenTheButtonsDoNothing)
{
    for (const QStringView command : {u"Rewind", u"Play", u"Pause", u"Step", u"Stop", u"Close"})
        Press(command);
    EXPECT_FALSE(Player().IsOpen);
}
} // namespace

} // namespace lineforge
