#include "records/RecordTest.h"

// A backup, a synchronisation or a database tool holds the branch's database while the user works on it.
namespace lineforge
{
namespace
{

using testing::Values;
using testing::WithParamInterface;

class LockedBranchTest : public RecordTest
{
public:
    LockedBranchTest()
    {
        GivenRecordForm();
        P.Form3->Data1.Settle();
    }

    void Lock(QChar branch = u'A') { other = LockDatabase(branch); }
    void Unlock() { other.reset(); }

    void ExpectRetry()
    {
        ExpectDatabaseInUse(Answer::Retry);
        ExpectDatabaseInUse(Answer::Retry, [this] { Unlock(); });
    }

    void Do(const Event& handler) { Click(handler); }
    void ChooseBranch(QStringView name)
    {
        P.Form1->Open.Click();
        P.Form8->List1.SetText(name.toString());
        Click(P.Form8->Command1.Click);
    }

    std::unique_ptr<SqliteFile> other;
};

// How the user leaves the record.
struct Leaving {
    const char* Name;
    void (*Go)(LockedBranchTest& test, Program& p);
};

void PrintTo(const Leaving& way, std::ostream* out)
{
    *out << way.Name;
}

class LockedLeavingTest : public LockedBranchTest, public WithParamInterface<Leaving>
{
protected:
    void Leave() { GetParam().Go(*this, P); }
};

TEST_P(LockedLeavingTest, Cancel_LeavesTheTextInItsBox_AndLosesNothing)
{
    P.Form3->Text3.Text = u"Anne"_s;
    Lock();
    ExpectDatabaseInUse(Answer::Cancel);

    Leave();

    EXPECT_EQ(ExitCode(), std::nullopt);
    ASSERT_TRUE(P.Form3.IsLoaded());
    EXPECT_EQ(P.Form3->Text3.Text.value(), u"Anne"_s);
    EXPECT_EQ(P.Screen.Pointer.value(), MousePointer::Default);
    Unlock();
    EXPECT_EQ(Stored("Forename"), u"John"_s);
    EXPECT_EQ(Current(), u"A001"_s);

    Leave();

    EXPECT_EQ(Stored("Forename"), u"Anne"_s);
    EXPECT_EQ(Stored("Forename", "A002"), u"Mary"_s);
}

TEST_P(LockedLeavingTest, Retry_StoresTheText_AndGoesOn)
{
    P.Form3->Text3.Text = u"Anne"_s;
    Lock();
    ExpectRetry();

    Leave();

    EXPECT_EQ(Stored("Forename"), u"Anne"_s);
    EXPECT_EQ(Stored("Forename", "A002"), u"Mary"_s);
}

INSTANTIATE_TEST_SUITE_P(Ways, LockedLeavingTest,
                         Values(Leaving{"Scan",
                                        [](auto& test, Program& p) {
                                            p.Form3->Picture2.Click();
                                            test.Do(p.Form3->Timer1.Tick);
                                        }},
                                Leaving{"Exit", [](auto& test, Program& p) { test.Do(p.Form3->mnuExit.Click); }},
                                Leaving{"Exit of the map",
                                        [](auto& test, Program& p) { test.Do(p.Form1->mnuExit.Click); }},
                                Leaving{"Frame", [](auto& test, Program& p) { test.Do(p.Form1->CloseByFrame); }},
                                Leaving{"Close", [](auto& test, Program& p) { test.Do(p.Form1->mnuCloseDB.Click); }},
                                Leaving{"Open another", [](auto& test, Program&) { test.ChooseBranch(u"Jones"); }}));

class ToolsLeftOnASiblingTest : public LockedBranchTest
{
protected:
    ToolsLeftOnASiblingTest()
    {
        Click(P.Form1->mnuTreeTools.Click);
        Click(P.Form1->Image6.Click);
        PictureBox& map = P.Form1->Picture1;
        map.MouseDown(1, 0, 1000, 6000);
        map.MouseMove(1, 0, 2000, 6000);
        map.MouseUp(1, 0, 2000, 6000);
        Click(P.Form1->Command4.Click);
        GivenRecordOfSibling();
    }
};

TEST_F(ToolsLeftOnASiblingTest, WayBackThatIsGone_ExitTellsItOnce_AndEnds)
{
    P.Form3.Load();
    QFile::remove(Home.Path(u"LfgDat_A/LfgDat_A.mdb"));
    Prompts.Expect(
        u"Lineforge",
        QString(u"Run-time error '3024':\n\nCouldn't find the database file.\n\nThis database isn't there, or "
                u"can't be opened:\n"_s +
                Home.Path(u"LfgDat_A/Lfgdat_A.mdb")),
        Buttons::Error, Answer::Ok);

    Click(P.Form3->mnuExit.Click);

    EXPECT_EQ(ExitCode(), 0);
}

// What is drawn is still to be asked for.
TEST_F(ToolsLeftOnASiblingTest, WayBackThatIsRefused_AsksWhenItIsThere)
{
    Lock();
    ExpectDatabaseInUse(Answer::Cancel);

    Click(P.Form1->mnuCloseDB.Click);

    Unlock();
    EXPECT_EQ(Current(), u"B002"_s);
    Prompts.Expect(u"Closing Graphics Tools", u"Save the Tree Graphic changes ?", Buttons::InformationYesNo,
                   Answer::Yes);
    Click(P.Form1->mnuCloseDB.Click);
    EXPECT_TRUE(MapOf(u'A').contains("1000,6000,2000,6000,0,"));
}

// What is changed besides the texts.
TEST_F(LockedBranchTest, TreeButton_WithTheGenderChanged_AsksOnce_AndTheChangeWaits)
{
    P.Form3->Text23.Text = u"Female"_s;
    Lock();
    ExpectDatabaseInUse(Answer::Cancel);

    Click(P.Form3->Command2.Click);

    EXPECT_EQ(ExitCode(), std::nullopt);
    Unlock();
    EXPECT_EQ(Stored("Gender"), u"Male"_s);
    Click(P.Form1->mnuCloseDB.Click);
    EXPECT_EQ(Stored("Gender"), u"Female"_s);
}

TEST_F(LockedBranchTest, Deletion_ThatIsGivenUp_KeepsRecordAndFiles)
{
    Prompts.Expect(u"Delete Record", u"Do you really want to delete this record?", Buttons::QuestionYesNo, Answer::Yes);
    Prompts.Expect(u"Deletion of Subject Records",
                   u"All information in this record will be deleted\n"
                   u"including any Subject and Gallery graphic files.\n"
                   u"Are you sure this is what you want ? ",
                   Buttons::ErrorYesNo, Answer::Yes, [this] { Lock(); });
    ExpectDatabaseInUse(Answer::Cancel);

    Click(P.Form3->mnuDelete.Click);

    Unlock();
    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(Stored("Forename"), u"John"_s);
    EXPECT_TRUE(Home.Exists(u"LfgDat_A/A001Sub.jpg"));
    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::File].Text(), u"A001"_s);
}

TEST_F(LockedBranchTest, Addition_ThatIsGivenUp_AddsNothing)
{
    Prompts.Expect(u"New Database Record", u"Adding a new Record here will not \nbe mapped into the Tree system.",
                   Buttons::InformationOkCancel, Answer::Ok, [this] { Lock(); });
    ExpectDatabaseInUse(Answer::Cancel);

    Click(P.Form3->mnuAdd.Click);

    Unlock();
    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb")).Value("SELECT count(*) FROM Tree99"), u"3"_s);
    EXPECT_EQ(Current(), u"A001"_s);
}

TEST_F(LockedBranchTest, Scan_ThatIsGivenUp_Halts)
{
    P.Form3->Picture2.Click();
    Lock();
    ExpectDatabaseInUse(Answer::Cancel);

    Click(P.Form3->Timer1.Tick);

    EXPECT_FALSE(P.Form3->Timer1.Enabled);
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(LockedBranchTest, ScanUnderTheQuestion_StandsStill)
{
    P.Form3->Picture2.Click();
    Lock();
    ExpectDatabaseInUse(Answer::Retry, [this] {
        P.Form3->Timer1.Tick();
        Unlock();
    });

    Click(P.Form3->Timer1.Tick);

    EXPECT_EQ(Current(), u"A002"_s);
}

// A branch that is only now to be opened.
class LockedOpeningTest : public LockedBranchTest
{
protected:
    LockedOpeningTest() { Lock(u'B'); }
};

TEST_F(LockedOpeningTest, Cancel_LeavesTheBranchThatIsOpen)
{
    const QByteArray map = MapOf(u'A');
    ExpectDatabaseInUse(Answer::Cancel);

    ChooseBranch(u"Jones");

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(P.Branch.sBranchName, u"Smiths"_s);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::File].Text(), u"A001"_s);
    EXPECT_EQ(P.Screen.Pointer.value(), MousePointer::Default);
    Click(P.Form1->mnuCloseDB.Click);
    EXPECT_EQ(MapOf(u'A'), map);
}

TEST_F(LockedOpeningTest, Retry_Opens)
{
    ExpectRetry();

    ChooseBranch(u"Jones");

    EXPECT_EQ(P.Branch.sBranchName, u"Jones"_s);
    EXPECT_EQ(Current(), u"B001"_s);
}

TEST_F(LockedOpeningTest, DoubleClickOnABoxOfThatBranch_ThatIsGivenUp_StaysInTheOwnOne)
{
    P.Map.BoxArr[2][BoxColumn::File] = u"B002"_s;
    P.Mouse.DownX = 5100;
    P.Mouse.DownY = 700;
    ExpectDatabaseInUse(Answer::Cancel);

    Click(P.Form1->Picture1.DblClick);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(Current(), u"A001"_s);
}

TEST_F(LockedOpeningTest, MapWithBoxesOfThatBranch_IsDrawnWithoutTheirForenames_AndWithoutAQuestion)
{
    P.Map.BoxArr[0][BoxColumn::File] = u"B001"_s;

    Choose(u"Smiths");

    EXPECT_EQ(P.Branch.sBranchName, u"Smiths"_s);
    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::File].Text(), u"B001"_s);
}

} // namespace
} // namespace lineforge
