#include "monkey/Journal.h"
#include "monkey/Scratch.h"
#include "support/Printing.h"

#include <QProcess>

#include <gtest/gtest.h>

namespace lineforge::monkey
{
namespace
{
using namespace Qt::StringLiterals;

class SessionTest : public testing::Test
{
protected:
    Story Played(int seed, int steps, const QString& name)
    {
        const Scratch scratch(root_.Path(name));
        pristine_.CopyTo(scratch.Directory());
        QProcess process;
        process.start(QStringLiteral(LINEFORGE_MONKEY),
                      {u"--play"_s, QString::number(seed), QString::number(steps), scratch.Directory()});
        EXPECT_TRUE(process.waitForFinished(-1));
        EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
        return Story(scratch.JournalFile());
    }

    Pristine pristine_;
    TemporaryHome root_;
};

TEST_F(SessionTest, SameSeed_IsTheSameSession_ToTheLastStep)
{
    for (const int seed : {3, 11, 12}) {
        const Story first = Played(seed, 120, u"first-%1"_s.arg(seed));
        const Story second = Played(seed, 120, u"second-%1"_s.arg(seed));
        EXPECT_GE(first.Steps, 120);
        EXPECT_EQ(first.Lines, second.Lines) << seed;
    }
}

TEST_F(SessionTest, AnotherSeed_IsAnotherSession)
{
    EXPECT_NE(Played(3, 20, u"third"_s).Lines, Played(4, 20, u"fourth"_s).Lines);
}

} // namespace
} // namespace lineforge::monkey
