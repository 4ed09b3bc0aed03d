#include "records/SessionPlayer.h"
#include "support/Sessions.h"

#include <gtest/gtest.h>

// Sessions of chance with records and comparison, against the model.
namespace lineforge
{
namespace
{

constexpr int blocks = 8;
constexpr int usualSessions = 400;
constexpr int movesOfASession = 40;

class RandomSessionTest : public testing::TestWithParam<int>
{
};

TEST_P(RandomSessionTest, ProgramAndModelAreAlike_MoveByMove)
{
    const auto [first, behind] = SessionsToPlay(usualSessions);
    for (int seed = first + GetParam(); seed < behind; seed += blocks) {
        SessionPlayer player(static_cast<unsigned>(seed));
        const QString differences = player.Play(movesOfASession);
        ASSERT_TRUE(differences.isEmpty() && !HasFailure()) << "session " << seed << '\n'
                                                            << qUtf8Printable(differences);
    }
}

INSTANTIATE_TEST_SUITE_P(Blocks, RandomSessionTest, testing::Range(0, blocks));

} // namespace
} // namespace lineforge
