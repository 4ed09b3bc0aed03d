#include "shell/run/RunHandler.h"

#include "shell/ShellTest.h"

namespace lineforge
{
namespace
{

class FatalPathTest : public ShellTest
{
};

TEST_F(FatalPathTest, QuietHandler_JustRuns)
{
    bool hasRun = false;

    RunHandler(P, [&] { hasRun = true; });

    EXPECT_TRUE(hasRun);
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(FatalPathTest, ControlWithoutAHandler_DoesNothing)
{
    RunHandler(P, Event());

    EXPECT_EQ(ExitCode(), std::nullopt);
}

struct Fatality {
    int Number;
    QStringView Text;
};

void PrintTo(const Fatality& fatality, std::ostream* out)
{
    *out << fatality.Number;
}

class FatalErrorTest : public FatalPathTest, public testing::WithParamInterface<Fatality>
{
};

TEST_P(FatalErrorTest, ErrorThatNothingHasMet_IsShownWithItsNumberAndText_AndEndsTheProgramWithCode1)
{
    ExpectFatalBox(GetParam().Text);

    RunHandler(P, [] { throw RuntimeError(GetParam().Number); });

    EXPECT_EQ(ExitCode(), 1);
    ASSERT_TRUE(P.Errors.Last);
    EXPECT_EQ(P.Errors.Last->Number, GetParam().Number);
}

INSTANTIATE_TEST_SUITE_P(Errors, FatalErrorTest,
                         testing::Values(Fatality{75, u"Run-time error '75':\n\nPath/File access error"},
                                         Fatality{53, u"Run-time error '53':\n\nFile not found"},
                                         Fatality{9, u"Run-time error '9':\n\nSubscript out of range"},
                                         Fatality{3021, u"Run-time error '3021':\n\nNo current record."}));

TEST_F(FatalPathTest, WhatTheErrorIsAbout_StandsBeneathThePlatformsText)
{
    ExpectFatalBox(u"Run-time error '61':\n\nDisk full", u"The disk has no room left for this:\nA.txt"_s);

    RunHandler(P, [] { throw RuntimeError(ErrorNumber::DiskFull, u"A.txt"_s); });

    EXPECT_EQ(ExitCode(), 1);
}

TEST_F(FatalPathTest, EndOfTheProgram_StopsTheHandler_AndGoesNoFurther)
{
    bool wentOn = false;

    RunHandler(P, [&] {
        P.Loop.End(0);
        wentOn = true;
    });

    EXPECT_FALSE(wentOn);
    EXPECT_EQ(ExitCode(), 0);
}

TEST_F(FatalPathTest, ProgramThatEndsWhileTheMessageStands_IsNoSecondFailure)
{
    Prompts.Expect(u"Lineforge", u"Run-time error '75':\n\nPath/File access error", Buttons::Error, Answer::Ok,
                   [&] { RunHandler(P, [&] { P.Loop.End(0); }); });

    RunHandler(P, [] { throw RuntimeError(ErrorNumber::PathFileAccess); });

    EXPECT_EQ(ExitCode(), 1);
}

TEST_F(FatalPathTest, ErrorInAnInnerHandler_EndsTheOuterOneAtItsNextYield)
{
    ExpectFatalBox(u"Run-time error '6':\n\nOverflow");
    bool wentOn = false;
    Machine.Loop.AtNextYield([&] {
        RunHandler(P, [] { throw RuntimeError(ErrorNumber::Overflow); });
        // What the loop does once the program has been told to end.
        throw ProgramEnded{};
    });

    RunHandler(P, [&] {
        P.Loop.DoEvents();
        wentOn = true;
    });

    EXPECT_FALSE(wentOn);
    EXPECT_EQ(ExitCode(), 1);
}

TEST_F(FatalPathTest, FatalEnd_WritesNothingMore)
{
    GivenSmithsAndJones();
    Choose(u"Smiths");
    MoveFirstBoxTo(1300);
    const Tree before = Home.Snapshot();
    ExpectFatalBox(u"Run-time error '6':\n\nOverflow");

    Click([] { throw RuntimeError(ErrorNumber::Overflow); });

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

} // namespace
} // namespace lineforge
