#include "records/RecordTest.h"

#include <QFile>

// What becomes of the record form when the database under it goes bad while it is open.
namespace lineforge
{
namespace
{

using testing::Values;
using testing::WithParamInterface;

const QStringView database = u"LfgDat_A/LfgDat_A.mdb";

class RecordFaultTest : public RecordTest
{
protected:
    RecordFaultTest() { GivenRecordForm(); }

    // From here on the engine refuses every change of a record, and nothing else.
    void RefuseWrites()
    {
        SqliteFile(Home.Path(database))
            .Execute("CREATE TRIGGER Refusal BEFORE UPDATE ON Tree99 BEGIN SELECT RAISE(ABORT, 'refused'); END");
    }

    // Written over in place, as by a disk that has lost its way; the program keeps the file open.
    void WriteRubbish()
    {
        QFile file(Home.Path(database));
        const qint64 bytes = file.size();
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_EQ(file.write(QByteArray(bytes, 'x')), bytes);
    }

    void ExpectWriteBox()
    {
        ExpectFatalBox(u"Run-time error '57':\n\nDevice I/O error",
                       u"The disk failed at this:\n"_s + Home.Path(database) + u"\nRecord A001");
    }

    void ExpectMapBox()
    {
        ExpectFatalBox(u"Run-time error '75':\n\nPath/File access error",
                       u"This can't be opened, made, changed or removed:\n"_s + Home.Path(u"LfgDat_A/LfgDat_A.cfg"));
    }

    void ExpectBackOnTheMap()
    {
        EXPECT_EQ(ExitCode(), std::nullopt);
        EXPECT_TRUE(P.Form1->Visible);
        EXPECT_FALSE(P.Form3->Visible);
    }
};

TEST_F(RecordFaultTest, WritesRefused_TreeStillGoesBack_AndTheTextStaysPending)
{
    P.Form3->Text3.Text = u"Anne"_s;
    P.Form3->Text23.Text = u"Female"_s;
    RefuseWrites();

    Click(P.Form3->Command2.Click);

    ExpectBackOnTheMap();
    EXPECT_EQ(Stored("Forename"), u"John"_s);
    EXPECT_EQ(P.Form3->Text3.Text.value(), u"Anne"_s);
    SqliteFile(Home.Path(database)).Execute("DROP TRIGGER Refusal");
    Records(P.Form3).MoveNext();
    EXPECT_EQ(Stored("Forename"), u"Anne"_s);
    EXPECT_EQ(Stored("Gender"), u"Female"_s);
}

TEST_F(RecordFaultTest, WritesRefused_GalleryStillOpens)
{
    P.Form3->Text3.Text = u"Anne"_s;
    RefuseWrites();

    Click(P.Form3->Command1.Click);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_TRUE(P.Form5->Visible);
    EXPECT_FALSE(P.Form3->Visible);
}

TEST_F(RecordFaultTest, WritesRefused_ExitTellsSo_AndEnds)
{
    P.Form3->Text3.Text = u"Anne"_s;
    MoveFirstBoxTo(1300);
    RefuseWrites();
    ExpectWriteBox();

    Click(P.Form3->mnuExit.Click);

    EXPECT_EQ(ExitCode(), 1);
    EXPECT_TRUE(MapOf(u'A').contains("1300,600,255,A001,John,"));
    EXPECT_EQ(Stored("Forename"), u"John"_s);
    EXPECT_EQ(Stored("Forename", "A002"), u"Mary"_s);
}

TEST_F(RecordFaultTest, WritesRefused_ExitWithNothingTyped_EndsWithoutAWord)
{
    RefuseWrites();

    Click(P.Form3->mnuExit.Click);

    EXPECT_EQ(ExitCode(), 0);
}

TEST_F(RecordFaultTest, WritesAndMapRefused_ExitTellsBoth)
{
    P.Form3->Text3.Text = u"Anne"_s;
    RefuseWrites();
    Home.MakeReadOnly(u"LfgDat_A/LfgDat_A.cfg");
    ExpectMapBox();
    ExpectWriteBox();

    Click(P.Form3->mnuExit.Click);

    EXPECT_EQ(ExitCode(), 1);
}

TEST_F(RecordFaultTest, WritesRefused_AScansStepEndsTheProgram_WithTheRecordsIntact)
{
    P.Form3->Text3.Text = u"Anne"_s;
    RefuseWrites();
    P.Form3->Picture2.Click();
    ExpectWriteBox();

    Click(P.Form3->Timer1.Tick);

    EXPECT_EQ(ExitCode(), 1);
    EXPECT_EQ(Stored("Forename"), u"John"_s);
    EXPECT_EQ(Stored("Forename", "A002"), u"Mary"_s);
}

TEST_F(RecordFaultTest, WritesRefused_WithNothingTyped_TheScanRunsToItsEnd)
{
    RefuseWrites();
    P.Form3->Picture2.Click();

    for (int tick = 0; tick < 3; ++tick)
        Click(P.Form3->Timer1.Tick);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(Current(), u"A003"_s);
    EXPECT_FALSE(P.Form3->Timer1.Enabled);
}

TEST_F(RecordFaultTest, LockedByAnotherProgram_TreeGoesBack_AndTheTextIsWrittenLater)
{
    P.Form3->Text23.Text = u"Female"_s;
    {
        const auto other = LockDatabase(u'A');
        ExpectDatabaseInUse(Answer::Cancel);
        Click(P.Form3->Command2.Click);
        ExpectBackOnTheMap();
    }
    EXPECT_EQ(Stored("Gender"), u"Male"_s);

    Click(P.Form1->mnuCloseDB.Click);

    EXPECT_EQ(Stored("Gender"), u"Female"_s);
}

TEST_F(RecordFaultTest, TurnedReadOnly_WhatIsOpenIsStillWritten_AndTheNextOpeningIsRefused)
{
    P.Form3->Text3.Text = u"Anne"_s;
    Home.MakeReadOnly(database);
    Click(P.Form3->Command2.Click);
    ExpectBackOnTheMap();
    Click(P.Form1->mnuCloseDB.Click);
    EXPECT_EQ(Stored("Forename"), u"Anne"_s);
    Prompts.Expect(u"Read Only or Incorrect Database", u"Cannot open this database", Buttons::Information);

    Choose(u"Smiths");

    EXPECT_EQ(Stored("Forename", "A002"), u"Mary"_s);
}

// What the user may do on the form, with errors passed over.
struct Quiet {
    const char* Name;
    Button forms::Form3::*Pressed;
};

void PrintTo(const Quiet& quiet, std::ostream* out)
{
    *out << quiet.Name;
}

class RubbishTest : public RecordFaultTest, public WithParamInterface<Quiet>
{
protected:
    void Press() { Click(((*P.Form3).*GetParam().Pressed).Click); }
};

TEST_P(RubbishTest, AtRest_ErrorsArePassedOver_AndTheWayOutStaysOpen)
{
    WriteRubbish();

    Press();

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_FALSE(P.Form3->Visible);
}

TEST_P(RubbishTest, WithTextsPending_ErrorsArePassedOver)
{
    P.Form3->Text3.Text = u"Anne"_s;
    P.Form3->Text23.Text = u"Female"_s;
    WriteRubbish();

    Press();

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_FALSE(P.Form3->Visible);
}

TEST_P(RubbishTest, BeforeTheBoxesHaveFollowedAMove_ErrorsArePassedOver)
{
    Records(P.Form3).MoveNext();
    WriteRubbish();

    Press();

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_FALSE(P.Form3->Visible);
}

TEST_P(RubbishTest, DatabaseVanished_WhatWasTypedCostsNothingElse)
{
    P.Form3->Text3.Text = u"Anne"_s;
    P.Form3->Text23.Text = u"Female"_s;
    QFile::remove(Home.Path(database));
    ExpectDatabaseInUse(Answer::Cancel);

    Press();

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_FALSE(P.Form3->Visible);
    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::Forename].Text(), u"Anne"_s);
}

INSTANTIATE_TEST_SUITE_P(Buttons, RubbishTest,
                         Values(Quiet{"Tree", &forms::Form3::Command2}, Quiet{"Gallery", &forms::Form3::Command1}));

TEST_F(RecordFaultTest, Rubbish_ExitTellsThatTheTextIsntStored)
{
    P.Form3->Text3.Text = u"Anne"_s;
    WriteRubbish();
    ExpectFatalBox(u"Run-time error '3343':\n\nUnrecognized database format.",
                   u"This can't be read as a database of records:\n"_s + Home.Path(database) + u"\nRecord A001");

    Click(P.Form3->mnuExit.Click);

    EXPECT_EQ(ExitCode(), 1);
}

TEST_F(RecordFaultTest, Rubbish_AStepOfTheScanEndsTheProgram)
{
    P.Form3->Picture2.Click();
    WriteRubbish();
    ExpectFatalBox(u"Run-time error '3343':\n\nUnrecognized database format.",
                   u"This can't be read as a database of records:\n"_s + Home.Path(database));

    Click(P.Form3->Timer1.Tick);

    EXPECT_EQ(ExitCode(), 1);
}

TEST_F(RecordFaultTest, Vanished_TheScanRunsToItsEnd)
{
    QFile::remove(Home.Path(database));
    P.Form3->Picture2.Click();

    for (int tick = 0; tick < 3; ++tick)
        Click(P.Form3->Timer1.Tick);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(Current(), u"A003"_s);
}

TEST_F(RecordFaultTest, BranchDirectoryVanished_TheEndOfTheScanIsRefused_AfterTheTimerIsOff)
{
    Records(P.Form3).MoveLast();
    P.Form3->Picture2.Click();
    QDir(Home.Path(u"LfgDat_A")).removeRecursively();
    ExpectFatalBox(u"Run-time error '76':\n\nPath not found",
                   u"There is no such directory:\n"_s + Home.Path(u"LfgDat_A"));

    Click(P.Form3->Timer1.Tick);

    EXPECT_EQ(ExitCode(), 1);
    EXPECT_FALSE(P.Form3->Timer1.Enabled);
}

TEST_F(RecordFaultTest, RecordDeletedByAnotherProgram_TreeGoesBack_AndTheOthersAreIntact)
{
    P.Form3->Text3.Text = u"Anne"_s;
    P.Form3->Text23.Text = u"Female"_s;
    SqliteFile(Home.Path(database)).Execute("DELETE FROM Tree99 WHERE File = 'A001'");
    Prompts.Expect(u"Record removed", u"Record A001 has been removed by another program.\nNothing was stored.",
                   Buttons::Information);
    ExpectMissingPicture(u"Sub.Jpg");

    Click(P.Form3->Command2.Click);

    ExpectBackOnTheMap();
    EXPECT_EQ(Stored("Forename", "A002"), u"Mary"_s);
    EXPECT_EQ(Stored("Forename", "A003"), u"Peter"_s);
}

} // namespace
} // namespace lineforge
