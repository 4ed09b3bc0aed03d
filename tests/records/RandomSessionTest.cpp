#include "records/SessionPlayer.h"

#include <gtest/gtest.h>

// Sessions of chance with records and comparison, against the model. Some hundreds by themselves; as many as
// LINEFORGE_SESSIONS says, or from LINEFORGE_FIRST_SESSION on.
namespace lineforge
{
namespace
{

constexpr int blocks = 8;
constexpr int usualSessions = 240;
constexpr int movesOfASession = 40;

int FromEnvironment(const char* name, int otherwise)
{
    bool isNumber = false;
    const int number = qEnvironmentVariableIntValue(name, &isNumber);
    return isNumber ? number : otherwise;
}

class RandomSessionTest : public testing::TestWithParam<int>
{
};

TEST_P(RandomSessionTest, ProgramAndModelAreAlike_MoveByMove)
{
    const int sessions = FromEnvironment("LINEFORGE_SESSIONS", usualSessions);
    const int first = FromEnvironment("LINEFORGE_FIRST_SESSION", 0);
    for (int seed = first + GetParam(); seed < first + sessions; seed += blocks) {
        SessionPlayer player(static_cast<unsigned>(seed));
        const QString differences = player.Play(movesOfASession);
        ASSERT_TRUE(differences.isEmpty() && !HasFailure()) << "session " << seed << '\n'
                                                            << qUtf8Printable(differences);
    }
}

INSTANTIATE_TEST_SUITE_P(Blocks, RandomSessionTest, testing::Range(0, blocks));

} // namespace
} // namespace lineforge
