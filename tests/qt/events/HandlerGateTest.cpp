#include "qt/events/HandlerGate.h"

#include "platform/machine/Platform.h"
#include "qt/WindowTest.h"

namespace lineforge
{

namespace
{
TEST(HandlersTest, TheRunnerGetsEveryHandler)
{
    Handlers handlers;
    QStringList story;
    handlers.Runner = [&story](const Event& handler) {
        story += QStringLiteral("before");
        handler();
        story += QStringLiteral("after");
    };
    handlers.Run([&story] { story += QStringLiteral("handler"); });
    EXPECT_EQ(story, QStringList({QStringLiteral("before"), QStringLiteral("handler"), QStringLiteral("after")}));
}

TEST(HandlersTest, TheEndOfTheProgramStopsAtTheRunner)
{
    Handlers handlers;
    handlers.Runner = [](const Event& handler) { handler(); };
    EXPECT_NO_THROW(handlers.Run([] { throw ProgramEnded{}; }));
    EXPECT_FALSE(handlers.IsRunning());
}

TEST(HandlersTest, IdleIsToldWhenTheOutermostReturns)
{
    Handlers handlers;
    int idle = 0;
    handlers.Idle = [&idle] { ++idle; };
    handlers.Run([&] {
        handlers.Run([] {});
        EXPECT_EQ(idle, 0);
        EXPECT_TRUE(handlers.IsRunning());
    });
    EXPECT_EQ(idle, 1);
    EXPECT_FALSE(handlers.IsRunning());
}

TEST(HandlersTest, AHandlerMayReplaceItself)
{
    Handlers handlers;
    Event event;
    int kept = 7;
    event = [&event, &kept, copy = std::vector<int>{1, 2, 3}] {
        event = [] {};
        kept = copy.at(2);
    };
    handlers.Run(event);
    EXPECT_EQ(kept, 3);
}

TEST(GateTest, ClosedItLetsNothingThrough)
{
    Handlers handlers;
    Gate gate(handlers);
    int runs = 0;
    gate.Run([&runs] { ++runs; });
    gate.Close();
    gate.Run([&runs] { ++runs; });
    EXPECT_EQ(runs, 1);
}
} // namespace

} // namespace lineforge
