#include "gedcom/GedcomTest.h"
#include "support/ChildProcess.h"
#include "support/SmallDisk.h"

// The disk refuses, and what other handlers do while a file is being written.
namespace lineforge
{
namespace
{

class GedcomFaultTest : public GedcomTest
{
protected:
    GedcomFaultTest()
    {
        GivenPeople({{u"A001"_s, u"A002"_s}, {u"A002"_s}, {u"A003"_s, u"A001"_s}});
        P.Form12->Text7.Text = u"A001"_s;
    }

    // At the yields from that one on, the first being the one behind the phone.
    void AtYield(int number, const std::function<void()>& action)
    {
        for (int before = 1; before < number; ++before)
            Machine.Loop.AtNextYield([] {});
        Machine.Loop.AtNextYield(action);
    }

    void ExpectLeftBox(ScriptedPrompts::WhileOpen whileOpen = {})
    {
        Prompts.Expect(u"GedCom File", u"The Tree Branch was left before the GedCom file was complete.",
                       Buttons::Information, Answer::Ok, std::move(whileOpen));
    }

    // What the loop does once the program has been told to end.
    [[noreturn]] static void Ended() { throw ProgramEnded{}; }

    static constexpr int amongTheLineage = 3;
};

TEST_F(GedcomFaultTest, DirectoryThatIsReadOnly_EndsTheProgram_AndNothingIsWritten)
{
    Home.MakeReadOnly(u"LfgDat_A");
    const Tree before = Home.Snapshot();
    ExpectFatalBox(u"Run-time error '75':\n\nPath/File access error",
                   u"This can't be opened, made, changed or removed:\n"_s + Home.Path(u"LfgDat_A/Gedcom.tmp"));

    CreateFile();

    EXPECT_EQ(ExitCode(), 1);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    Home.MakeWritable(u"LfgDat_A");
}

TEST_F(GedcomFaultTest, FileThatIsReadOnly_EndsTheProgram_AndStays)
{
    Home.WriteFile(u"LfgDat_A/Gedcom.tmp", "old");
    Home.MakeReadOnly(u"LfgDat_A/Gedcom.tmp");
    ExpectFatalBox(u"Run-time error '75':\n\nPath/File access error",
                   u"This can't be opened, made, changed or removed:\n"_s + Home.Path(u"LfgDat_A/Gedcom.tmp"));

    CreateFile();

    EXPECT_EQ(ExitCode(), 1);
    EXPECT_EQ(File(), "old");
}

TEST_F(GedcomFaultTest, FullTable_EndsTheProgram_AndWhatWasWrittenStays)
{
    P.Scratch.IdxB = 100;
    ExpectFatalBox(u"Run-time error '9':\n\nSubscript out of range",
                   u"The list or table that is needed has no place of this number:\n100"_s);

    CreateFile();

    EXPECT_EQ(ExitCode(), 1);
    EXPECT_FALSE(P.Lineage.File);
    EXPECT_TRUE(File().startsWith("0 HEAD\r\n"));
    EXPECT_TRUE(File().endsWith("2 PHON Text5\r\n"));
}

TEST_F(GedcomFaultTest, FileIsClosed_BeforeTheErrorIsShown)
{
    P.Scratch.IdxB = 100;
    QByteArray whileShown;
    Prompts.Expect(u"Lineforge",
                   u"Run-time error '9':\n\nSubscript out of range\n\n"
                   u"The list or table that is needed has no place of this number:\n100",
                   Buttons::Error, Answer::Ok, [&] { whileShown = File(); });

    CreateFile();

    EXPECT_TRUE(whileShown.endsWith("2 PHON Text5\r\n"));
}

TEST_F(GedcomFaultTest, ErrorInAnotherHandler_ClosesTheFileToo)
{
    AtYield(amongTheLineage, [&] {
        ExpectFatalBox(u"Run-time error '6':\n\nOverflow");
        Click([] { throw RuntimeError(ErrorNumber::Overflow); });
        EXPECT_TRUE(File().endsWith("2 PHON Text5\r\n"));
        Ended();
    });

    CreateFile();

    EXPECT_EQ(ExitCode(), 1);
    EXPECT_NE(Panel().last(), u"0 TRLR");
}

TEST_F(GedcomFaultTest, LockThatIsGivenUp_LeavesNoHalfFile_AndTheNextRunWritesItWhole)
{
    std::unique_ptr<SqliteFile> other;
    AtYield(amongTheLineage, [&] { other = LockDatabase(u'A'); });
    ExpectDatabaseInUse(Answer::Cancel);

    CreateFile();

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_FALSE(Home.Exists(u"LfgDat_A/Gedcom.tmp"));
    other.reset();
    P.Scratch.IdxA = 0;
    CreateFile();
    EXPECT_TRUE(File().endsWith("0 TRLR\r\n"));
}

TEST_F(GedcomFaultTest, DiskThatIsFull_EndsTheProgram)
{
    EXPECT_EQ(ExitCodeInChild([&] {
                  constexpr int fewBytes = 100;
                  LimitFileSize(fewBytes);
                  ExpectFatalBox(u"Run-time error '57':\n\nDevice I/O error",
                                 u"The disk failed at this:\n"_s + Home.Path(u"LfgDat_A/Gedcom.tmp"));
                  CreateFile();
                  const bool isAsTold = ExitCode() == 1 && Prompts.IsUsedUp() && File().size() == fewBytes;
                  return isAsTold ? 0 : 1;
              }),
              0);
}

TEST_F(GedcomFaultTest, SecondPressDuringARun_DoesNothing)
{
    QStringList before;
    QStringList after;
    AtYield(amongTheLineage, [&] {
        before = Panel();
        CreateFile();
        after = Panel();
    });

    CreateFile();

    EXPECT_EQ(after, before);
    EXPECT_TRUE(File().endsWith("1 DESC 2\r\n1 ORDI N\r\n0 TRLR\r\n"));
    EXPECT_EQ(Panel().count(u"0 TRLR"_s), 1);
}

TEST_F(GedcomFaultTest, PressAfterARun_WritesAgain)
{
    CreateFile();
    P.Form12->Text1.Text = u"Ann"_s;
    CreateFile();
    EXPECT_TRUE(File().contains("Created by Ann"));
}

TEST_F(GedcomFaultTest, WindowHiddenDuringARun_WritesOn)
{
    Click(P.Form1->mnuExpGedcom.Click);
    AtYield(amongTheLineage, [&] { Click(P.Form12->Command2.Click); });

    CreateFile();

    EXPECT_FALSE(P.Form12->Visible);
    EXPECT_TRUE(File().endsWith("0 TRLR\r\n"));
}

TEST_F(GedcomFaultTest, WindowClosedDuringARun_IsHidden_AndTheFileIsWrittenOn)
{
    Click(P.Form1->mnuExpGedcom.Click);
    AtYield(amongTheLineage, [&] { Click(P.Form12->CloseByFrame); });

    CreateFile();

    EXPECT_FALSE(P.Form12->Visible);
    EXPECT_TRUE(File().endsWith("1 DESC 2\r\n1 ORDI N\r\n0 TRLR\r\n"));
    EXPECT_EQ(Panel().last(), u"0 TRLR");
}

TEST_F(GedcomFaultTest, WindowClosedBeforeTheLineage_KeepsItsStartRecord)
{
    Click(P.Form1->mnuExpGedcom.Click);
    P.Form12->Text7.Text = u"A001"_s;
    AtYield(1, [&] { Click(P.Form12->CloseByFrame); });
    CreateFile();
    EXPECT_EQ(P.Form12->Text7.Text.value(), u"A001"_s);
    EXPECT_TRUE(Panel().filter(u"Rec A001"_s).size() == 1);
}

TEST_F(GedcomFaultTest, DatabaseThatCouldntBeOpened_IsTold_AndNothingIsWritten)
{
    Click(P.Form1->mnuExpGedcom.Click);
    Home.WriteFile(u"LfgDat_B/LfgDat_B.mdb", QByteArray(5000, 'x'));
    for (const bool isClosedBefore : {false, true}) {
        if (isClosedBefore)
            Click(P.Form1->mnuCloseDB.Click);
        Prompts.Expect(u"Read Only or Incorrect Database", u"Cannot open this database", Buttons::Information);
        Choose(u"Jones");
        const Tree before = Home.Snapshot();
        Prompts.Expect(u"Data not available", u"Cannot View until database file is Opened", Buttons::Information);
        CreateFile();
        EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
        EXPECT_EQ(ExitCode(), std::nullopt);
    }
}

struct Leaving {
    const char* Name;
    int Yield;
    void (*Leave)(Program& p);
};

void PrintTo(const Leaving& leaving, std::ostream* out)
{
    *out << leaving.Name << " at yield " << leaving.Yield;
}

void CloseIt(Program& p)
{
    p.Form1->mnuCloseDB.Click();
}

void OpenAnother(Program& p)
{
    p.Form1->Open.Click();
    p.Form8->List1.SetText(u"Jones"_s);
    p.Form8->Command1.Click();
}

void GoToASibling(Program& p)
{
    p.Branch.WorkDirSaved = p.Branch.WorkDir;
    p.Branch.WorkDir = p.Branch.HomeDir + u"LfgDat_B";
    OpenWorkDatabase(p);
    p.Branch.UsingAlternate = 1;
}

class LeavingTest : public GedcomFaultTest, public testing::WithParamInterface<Leaving>
{
};

TEST_P(LeavingTest, BranchThatIsLeft_EndsTheRun_IsTold_AndNoUnfinishedFileIsLeft)
{
    Home.WriteFile(u"LfgDat_B/Gedcom.tmp", "of the other branch");
    Tree before;
    AtYield(GetParam().Yield, [&] {
        Click([&] { GetParam().Leave(P); });
        before = Home.Snapshot();
    });
    ExpectLeftBox([&] {
        EXPECT_FALSE(P.Lineage.File);
        EXPECT_FALSE(Home.Exists(u"LfgDat_A/Gedcom.tmp"));
    });

    CreateFile();

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_FALSE(P.Lineage.File);
    EXPECT_FALSE(Panel().contains(u"0 TRLR"_s));
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList{u"gone: LfgDat_A/Gedcom.tmp"_s});
    EXPECT_EQ(Home.ReadFile(u"LfgDat_B/Gedcom.tmp"), "of the other branch");
}

INSTANTIATE_TEST_SUITE_P(Yields, LeavingTest,
                         testing::Values(Leaving{"close", 1, CloseIt}, Leaving{"close", 3, CloseIt},
                                         Leaving{"close", 9, CloseIt}, Leaving{"open", 1, OpenAnother},
                                         Leaving{"open", 2, OpenAnother}, Leaving{"open", 7, OpenAnother},
                                         Leaving{"sibling", 4, GoToASibling}));

TEST_F(GedcomFaultTest, BranchDeletedDuringARun_IsTold_AndItsDirectoryIsGone)
{
    AtYield(amongTheLineage, [&] {
        DeleteForGood();
        ExpectLeftBox();
    });

    CreateFile();

    EXPECT_FALSE(Home.Exists(u"LfgDat_A"));
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(GedcomFaultTest, AfterALeftRun_TheNextOneWritesItsFile)
{
    AtYield(amongTheLineage, [&] {
        Click(P.Form1->mnuCloseDB.Click);
        ExpectLeftBox();
    });
    CreateFile();
    Choose(u"Smiths");

    CreateFile();

    EXPECT_TRUE(File().endsWith("0 TRLR\r\n"));
}

TEST_F(GedcomFaultTest, SameBranchOpenedAgainDuringARun_IsWalkedOn)
{
    AtYield(amongTheLineage, [&] {
        Click([&] {
            P.Form1->mnuCloseDB.Click();
            Choose(u"Smiths");
        });
    });

    CreateFile();

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_TRUE(File().endsWith("1 DESC 2\r\n1 ORDI N\r\n0 TRLR\r\n"));
}

class EndedRunTest : public GedcomFaultTest, public testing::WithParamInterface<Leaving>
{
};

TEST_P(EndedRunTest, ProgramThatIsLeft_EndsTheRunQuietly_AndNoUnfinishedFileIsLeft)
{
    AtYield(GetParam().Yield, [&] {
        Click([&] { GetParam().Leave(P); });
        EXPECT_EQ(ExitCode(), 0);
        Ended();
    });

    CreateFile();

    EXPECT_FALSE(P.Lineage.File);
    EXPECT_FALSE(Home.Exists(u"LfgDat_A/Gedcom.tmp"));
}

INSTANTIATE_TEST_SUITE_P(Ways, EndedRunTest,
                         testing::Values(Leaving{"menu", 1, [](Program& p) { p.Form1->mnuExit.Click(); }},
                                         Leaving{"menu", 6, [](Program& p) { p.Form1->mnuExit.Click(); }},
                                         Leaving{"frame", 3, [](Program& p) { p.Form1->CloseByFrame(); }},
                                         Leaving{"gallery's menu", 3, [](Program& p) { p.Form5->mnuExit.Click(); }},
                                         Leaving{"record form's menu", 3,
                                                 [](Program& p) { p.Form3->mnuExit.Click(); }}));

TEST_F(GedcomFaultTest, FatalErrorInAnotherHandler_KeepsWhatWasWritten)
{
    AtYield(amongTheLineage, [&] {
        ExpectFatalBox(u"Run-time error '6':\n\nOverflow");
        Click([] { throw RuntimeError(ErrorNumber::Overflow); });
        Ended();
    });

    CreateFile();

    EXPECT_TRUE(File().endsWith("2 PHON Text5\r\n"));
}

TEST_F(GedcomFaultTest, OpeningThatIsRefusedDuringARun_EndsIt_IsTold_AndNoUnfinishedFileIsLeft)
{
    Home.WriteFile(u"LfgDat_B/LfgDat_B.mdb", "no database");
    AtYield(amongTheLineage, [&] {
        ExpectCannotOpenBox();
        Choose(u"Jones");
        ExpectLeftBox();
    });

    CreateFile();

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_FALSE(Home.Exists(u"LfgDat_A/Gedcom.tmp"));
}

} // namespace
} // namespace lineforge
