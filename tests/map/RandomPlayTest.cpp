#include "map/MapPlayer.h"
#include "support/Sessions.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{

constexpr int groups = 10;
constexpr int usualSessions = 300;
constexpr int steps = 40;

class RandomPlayTest : public testing::TestWithParam<int>
{
};

TEST_P(RandomPlayTest, ProgramAndModelAreAlike_StepByStep)
{
    SecondProgram painter;
    const auto [first, behind] = SessionsToPlay(usualSessions);
    for (int seed = first + GetParam(); seed < behind && !HasFailure(); seed += groups) {
        MapPlayer player(static_cast<unsigned>(seed), painter);
        int step = 0;
        while (step < steps && player.Step())
            ++step;
        EXPECT_EQ(step, steps) << "seed " << seed << ": " << qUtf8Printable(player.Difference()) << '\n'
                               << qUtf8Printable(player.Log.join(u'\n'));
    }
}

INSTANTIATE_TEST_SUITE_P(Groups, RandomPlayTest, testing::Range(0, groups));

} // namespace
} // namespace lineforge
