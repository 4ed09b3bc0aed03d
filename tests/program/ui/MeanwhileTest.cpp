#include "program/ui/Meanwhile.h"

#include "support/Clocks.h"
#include "support/FakeEventLoop.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace std::chrono_literals;

class MeanwhileTest : public testing::Test
{
protected:
    // How often the windows have been painted when a step is made after that time.
    int PaintingsAfter(std::chrono::milliseconds time)
    {
        clocks_.LetPass(time);
        work_.KeepPainted();
        return loop_.Paintings;
    }
    int Yields() const { return loop_.Yields; }

private:
    HeldClocks clocks_;
    FakeEventLoop loop_;
    Meanwhile work_{loop_};
};

TEST_F(MeanwhileTest, WindowsArePainted_FromHalfASecondOn_AndThenEveryTenthOfASecond)
{
    EXPECT_EQ(PaintingsAfter(0ms), 0);
    EXPECT_EQ(PaintingsAfter(499ms), 0);
    EXPECT_EQ(PaintingsAfter(2ms), 1);
    EXPECT_EQ(PaintingsAfter(0ms), 1);
    EXPECT_EQ(PaintingsAfter(99ms), 1);
    EXPECT_EQ(PaintingsAfter(2ms), 2);
}

TEST_F(MeanwhileTest, AStepThatTakesLong_IsPaintedBehindOnce)
{
    EXPECT_EQ(PaintingsAfter(10s), 1);
    EXPECT_EQ(PaintingsAfter(0ms), 1);
    EXPECT_EQ(PaintingsAfter(50ms), 1);
}

TEST_F(MeanwhileTest, NothingThatTheUserDoesIsServed)
{
    EXPECT_EQ(PaintingsAfter(10s), 1);
    EXPECT_EQ(Yields(), 0);
}

} // namespace
} // namespace lineforge
