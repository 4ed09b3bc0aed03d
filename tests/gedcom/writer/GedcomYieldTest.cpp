#include "gedcom/report/ConversionTest.h"

namespace lineforge
{
namespace
{

// What comes in between while a run goes on.
using GedcomYieldTest = ConversionTest;

constexpr int afterTheFirstName = 3;

TEST_F(GedcomYieldTest, ASourceThatGoesBeforeItIsOpened_LeavesTheHeadingAlone)
{
    AtYield(1, [&] { P.Files.Kill(SourcePath()); });
    ConvertBytes(Crlf(SmallFamily + Trailer));
    EXPECT_TRUE(IsCompleted());
    EXPECT_EQ(Report(), "");
    EXPECT_EQ(P.Errors.Last->Number, ErrorNumber::FileNotFound);
}

TEST_F(GedcomYieldTest, ASourceThatGoesMeanwhile_WasReadBefore)
{
    const QByteArray report = ReportOf(SmallFamily + Trailer);
    AtYield(afterTheFirstName, [&] { P.Files.Kill(SourcePath()); });
    EXPECT_EQ(ReportOf(SmallFamily + Trailer), report);
}

TEST_F(GedcomYieldTest, TheScratchUsedMeanwhile_DoesntMoveTheReport)
{
    AtYield(1, [&] { P.Scratch.sFileB = Home.Path(u"elsewhere.txt"); });
    EXPECT_NE(ReportOf(SmallFamily + Trailer), "");
    EXPECT_FALSE(Home.Exists(u"elsewhere.txt"));
}

// Whoever opens a window or closes a picture meanwhile must not give one person another's dates.
TEST_F(GedcomYieldTest, TheStateWordUsedMeanwhile_DoesntMoveTheReport)
{
    const QByteArray family = "0 HEAD\n0 @I1@ INDI\n2 GIVN John\n2 SURN Smith\n"
                              "0 @I2@ INDI\n2 GIVN Mary\n2 SURN Jones\n1 SEX F\n1 BIRT\n2 DATE 1902\n"
                              "0 @F1@ FAM\n1 HUSB @I1@\n1 WIFE @I2@\n" +
                              Trailer;
    P.Scratch.ScanState = 0;
    const QByteArray report = ReportOf(family);
    const int yields = Machine.Loop.Yields;
    for (const int state : {0, 1, 3, 6})
        for (int yield = 2; yield <= yields; ++yield) { // the first comes before anything is read
            P.Scratch.ScanState = 0;
            AtYield(yield, [&] { P.Scratch.ScanState = state; });
            EXPECT_EQ(ReportOf(family), report) << state << " at " << yield;
        }
}

TEST_F(GedcomYieldTest, TheWindowClosedMeanwhile_StaysClosedWhileTheReportIsWritten)
{
    const QByteArray report = ReportOf(SmallFamily + Trailer);
    for (const int yield : {1, 2, afterTheFirstName, 10}) {
        AtYield(yield, [&] { P.Form11->CloseByFrame(); });
        EXPECT_EQ(ReportOf(SmallFamily + Trailer), report);
        EXPECT_FALSE(P.Form11.IsLoaded());
        EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    }
}

TEST_F(GedcomYieldTest, TheWindowClosedAtTheEnd_StaysClosed)
{
    ConvertBytes(Crlf(SmallFamily + Trailer));
    const int yields = Machine.Loop.Yields;
    AtYield(yields, [&] { P.Form11->CloseByFrame(); });
    ConvertBytes(Crlf(SmallFamily + Trailer));
    EXPECT_FALSE(P.Form11.IsLoaded());
}

class SecondConversionTest : public GedcomYieldTest
{
protected:
    // The user converts another file at that yield of a run.
    void ConvertTwo(int yield, const QByteArray& other = SmallFamily)
    {
        ExpectChoice(Home.WriteFile(u"family.ged", Crlf(SmallFamily + Trailer)));
        ExpectAnnouncement(SourcePath());
        AtYield(yield, [&] { Convert(Home.WriteFile(u"other.ged", Crlf(other + Trailer))); });
        Click(P.Form1->mnuImpGedcom.Click);
    }
};

TEST_F(SecondConversionTest, BeforeTheFilesAreOpen_BothReportsAreWhole)
{
    const QByteArray whole = ReportOf(SmallFamily + Trailer);
    ConvertTwo(1, "0 HEAD\n0 @F8@ FAM\n1 x0\n0 @F9@ FAM\n1 NOTE x0\n");
    EXPECT_EQ(Report(), whole);
    EXPECT_EQ(Home.ReadFile(u"other.txt").count("HEAD OF FAMILY"), 2);
    EXPECT_TRUE(IsCompleted());
}

// The files are open, which refuses them to the second run.
TEST_F(SecondConversionTest, OnceTheyAreOpen_LeavesTheFirstWhole_InItsFileAndItsWindow)
{
    const QByteArray whole = ReportOf(SmallFamily + Trailer);
    const QStringList panel = Panel();
    ConvertTwo(afterTheFirstName);
    EXPECT_TRUE(IsCompleted());
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    EXPECT_FALSE(Home.Exists(u"other.txt"));
    EXPECT_EQ(Report(), whole);
    EXPECT_EQ(Panel(), panel);
    EXPECT_EQ(P.Errors.Last->Number, ErrorNumber::InputPastEnd);
    P.Scratch.ScanState = 0;
    EXPECT_EQ(ReportOf(SmallFamily + Trailer), whole);
}

TEST_F(SecondConversionTest, WhileTheFirstGoesOn_ItsWindowSaysSo)
{
    ExpectChoice(Home.WriteFile(u"family.ged", Crlf(SmallFamily + Trailer)));
    ExpectAnnouncement(SourcePath());
    AtYield(afterTheFirstName, [&] {
        Convert(Home.WriteFile(u"other.ged", Crlf(SmallFamily + Trailer)));
        EXPECT_EQ(Caption(), QString(u"Processing: " + SourcePath()));
        EXPECT_EQ(P.Screen.Pointer, MousePointer::Hourglass);
    });
    Click(P.Form1->mnuImpGedcom.Click);
    EXPECT_TRUE(IsCompleted());
}

TEST_F(SecondConversionTest, AtAnyYield_TheFirstIsWhole_AndNothingIsLeftOpen)
{
    const QByteArray whole = ReportOf(SmallFamily + Trailer);
    for (int yield = 1; yield <= 22; ++yield) {
        P.Scratch.ScanState = 0;
        ConvertTwo(yield);
        EXPECT_EQ(Report(), whole) << yield;
        EXPECT_EQ(P.Gedcom.Report, nullptr);
        EXPECT_EQ(P.Gedcom.Source, nullptr);
        EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
        Prompts.Verify();
    }
}

TEST_F(SecondConversionTest, ThoughtBetterOf_LeavesTheFirstAlone)
{
    const QByteArray whole = ReportOf(SmallFamily + Trailer);
    ExpectChoice(SourcePath());
    ExpectAnnouncement(SourcePath());
    AtYield(afterTheFirstName, [&] {
        ExpectChoice({});
        Click(P.Form1->mnuImpGedcom.Click);
    });
    Click(P.Form1->mnuImpGedcom.Click);
    EXPECT_EQ(Report(), whole);
}

TEST_F(GedcomYieldTest, AFatalErrorMeanwhile_KeepsWhatWasWritten)
{
    ExpectChoice(Home.WriteFile(u"family.ged", Crlf(SmallFamily + Trailer)));
    ExpectAnnouncement(SourcePath());
    AtYield(afterTheFirstName, [&] {
        Prompts.Expect(u"Lineforge", u"Run-time error '5':\n\nInvalid procedure call or argument", Buttons::Error,
                       Answer::Ok, [&] { EXPECT_TRUE(Report().endsWith("John  Smith\r\n")); });
        Click([] { throw RuntimeError(ErrorNumber::InvalidCall); });
        throw ProgramEnded();
    });
    Click(P.Form1->mnuImpGedcom.Click);
    EXPECT_EQ(ExitCode(), 1);
    EXPECT_TRUE(Report().endsWith("John  Smith\r\n"));
    EXPECT_EQ(P.Gedcom.Report, nullptr);
}

TEST_F(GedcomYieldTest, TheEndOfTheProgramMeanwhile_KeepsWhatWasWritten)
{
    ExpectChoice(Home.WriteFile(u"family.ged", Crlf(SmallFamily + Trailer)));
    ExpectAnnouncement(SourcePath());
    AtYield(afterTheFirstName, [&] { P.Form1.Unload(); });
    Click(P.Form1->mnuImpGedcom.Click);
    EXPECT_EQ(ExitCode(), 0);
    EXPECT_TRUE(Report().endsWith("John  Smith\r\n"));
    EXPECT_EQ(P.Gedcom.Report, nullptr);
    EXPECT_FALSE(P.Form11.IsLoaded());
}

} // namespace
} // namespace lineforge
