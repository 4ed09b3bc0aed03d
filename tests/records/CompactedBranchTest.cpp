#include "records/RecordTest.h"
#include "support/Printing.h"

// Another program takes a record out of the branch and compacts its file while the user is typing: all rows stand under
// other numbers then. What is typed belongs to the person for whom it was typed.
namespace lineforge
{
namespace
{

using testing::Values;
using testing::WithParamInterface;

class CompactedBranchTest : public RecordTest
{
public:
    CompactedBranchTest()
    {
        Records(P.Form3).MoveNext();
        GivenRecordForm();
        Home.WriteFile(u"Tree99.jpg", PictureBytes(Qt::blue));
        P.Form3->Text2.Text = u"Typed"_s;
        P.Form3->Text23.Text = u"F"_s;
    }

    void Compact()
    {
        P.Form3->Data1.Settle();
        SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb")).Execute("DELETE FROM Tree99 WHERE File = 'A001'; VACUUM");
    }

    void ExpectStoredInMaryAlone()
    {
        EXPECT_EQ(Stored("Surname", "A002"), u"Typed"_s);
        EXPECT_EQ(Stored("Gender", "A002"), u"F"_s);
        EXPECT_EQ(Stored("Surname", "A003"), std::nullopt);
        EXPECT_EQ(Stored("Gender", "A003"), u"Male"_s);
    }

    void Do(const Event& handler) { Click(handler); }
    void Search(QStringView prompt, QStringView answer) { Prompts.ExpectInput(u"Search Database", prompt, answer); }
    void NoMatch(QStringView text) { Prompts.Expect(u"Database Result", text, Buttons::Information); }
    void ExpectAddition(QStringView number)
    {
        Prompts.Expect(u"New Database Record", u"Adding a new Record here will not \nbe mapped into the Tree system.",
                       Buttons::InformationOkCancel, Answer::Ok);
        Prompts.Expect(u"New Blank Record Created", QString(u"New Record "_s + number + u" created."),
                       Buttons::Information);
    }
    void ExpectBackup()
    {
        Prompts.Expect(
            u"Backup Database",
            u"Backup will copy your current Database File \nand Tree Config file to your chosen destination.",
            Buttons::Information);
        Prompts.ExpectSaveFile(u"Select Backup Destination Directory", u"DataBase *.mdb|*.mdb|All Files|*.*|",
                               Home.Path(u"safe.mdb"));
    }
    void ChooseBranch(QStringView name) { Choose(name); }
    void PressBox(int x)
    {
        P.Mouse.DownX = x;
        P.Mouse.DownY = 700;
        Click(P.Form1->Picture1.DblClick);
    }
};

// What the user does next.
struct Way {
    const char* Name;
    void (*Go)(CompactedBranchTest& test, Program& p);
};

void PrintTo(const Way& way, std::ostream* out)
{
    *out << way.Name;
}

class CompactedWayTest : public CompactedBranchTest, public WithParamInterface<Way>
{
};

TEST_P(CompactedWayTest, WhatIsTyped_IsStoredInThePersonItWasTypedFor)
{
    Compact();

    GetParam().Go(*this, P);

    ExpectStoredInMaryAlone();
}

INSTANTIATE_TEST_SUITE_P(Ways, CompactedWayTest,
                         Values(Way{"Tree",
                                    [](auto& test, Program& p) {
                                        test.Do(p.Form3->Command2.Click);
                                        p.Form3.Unload();
                                    }},
                                Way{"Gallery", [](auto& test, Program& p) { test.Do(p.Form3->Command1.Click); }},
                                Way{"Scan",
                                    [](auto& test, Program& p) {
                                        test.Do(p.Form3->Picture2.Click);
                                        test.Do(p.Form3->Timer1.Tick);
                                    }},
                                Way{"Scan back",
                                    [](auto& test, Program& p) {
                                        test.Do(p.Form3->Picture5.Click);
                                        test.Do(p.Form3->Timer1.Tick);
                                    }},
                                Way{"Search by number",
                                    [](auto& test, Program& p) {
                                        test.Search(u"Enter the Data Reference number", u"A003");
                                        test.Do(p.Form3->mnuSearchDataRef.Click);
                                    }},
                                Way{"Search by surname",
                                    [](auto& test, Program& p) {
                                        test.Search(u"Enter the Surname or partial Surname", u"nobody");
                                        test.NoMatch(u"No Match Found for Surname: nobody");
                                        test.Do(p.Form3->mnuSearchSurName.Click);
                                    }},
                                Way{"Add",
                                    [](auto& test, Program& p) {
                                        test.ExpectAddition(u"A004");
                                        test.Do(p.Form3->mnuAdd.Click);
                                    }},
                                Way{"Exit", [](auto& test, Program& p) { test.Do(p.Form3->mnuExit.Click); }},
                                Way{"Exit of the map", [](auto& test, Program& p) { test.Do(p.Form1->mnuExit.Click); }},
                                Way{"Frame", [](auto& test, Program& p) { test.Do(p.Form1->CloseByFrame); }},
                                Way{"Close", [](auto& test, Program& p) { test.Do(p.Form1->mnuCloseDB.Click); }},
                                Way{"Open another", [](auto& test, Program&) { test.ChooseBranch(u"Jones"); }},
                                Way{"Backup",
                                    [](auto& test, Program& p) {
                                        test.ExpectBackup();
                                        test.Do(p.Form1->mnuBackup.Click);
                                    }},
                                Way{"Double click", [](auto& test, Program&) { test.PressBox(5100); }}));

TEST_F(CompactedBranchTest, Deletion_TakesTheRecordOnShow_AndItsPicture)
{
    Compact();
    Prompts.Expect(u"Delete Record", u"Do you really want to delete this record?", Buttons::QuestionYesNo, Answer::Yes);
    Prompts.Expect(u"Deletion of Subject Records",
                   u"All information in this record will be deleted\n"
                   u"including any Subject and Gallery graphic files.\n"
                   u"Are you sure this is what you want ? ",
                   Buttons::ErrorYesNo, Answer::Yes);

    Click(P.Form3->mnuDelete.Click);

    EXPECT_EQ(SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb")).Value("SELECT group_concat(File) FROM Tree99"),
              u"A003"_s);
    EXPECT_FALSE(Home.Exists(u"LfgDat_A/A002Sub.jpg"));
    EXPECT_TRUE(Home.Exists(u"LfgDat_A/A003Sub.jpg"));
}

TEST_F(CompactedBranchTest, QuestionsUnderWhichTheFileIsCompacted_AreAboutTheSameRecord)
{
    Prompts.Expect(u"Delete Record", u"Do you really want to delete this record?", Buttons::QuestionYesNo, Answer::Yes);
    Prompts.Expect(u"Deletion of Subject Records",
                   u"All information in this record will be deleted\n"
                   u"including any Subject and Gallery graphic files.\n"
                   u"Are you sure this is what you want ? ",
                   Buttons::ErrorYesNo, Answer::Yes, [this] { Compact(); });

    Click(P.Form3->mnuDelete.Click);

    EXPECT_EQ(SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb")).Value("SELECT group_concat(File) FROM Tree99"),
              u"A003"_s);
}

TEST_F(CompactedBranchTest, Transfer_GoesFromThePersonOnShowToTheOneNamed)
{
    Prompts.Expect(u"Record Set Copy",
                   u"This complete Recordset will be copied to an existing\n"
                   u"pre mapped Data Record of your choice.\n"
                   u"Tree Map name containers should be the same colour.",
                   Buttons::InformationOkCancel, Answer::Ok, [this] { Compact(); });
    Prompts.ExpectInput(u"Data Record Destination.", u"Enter Destination Data Ref Number.", u"A003");

    Click(P.Form3->MnuRecTransfer.Click);

    EXPECT_EQ(Stored("Surname", "A003"), u"Typed"_s);
    EXPECT_EQ(Stored("Forename", "A003"), u"Mary"_s);
    EXPECT_EQ(Stored("Forename", "A002"), u"Mary"_s);
}

// The record itself is another one by now.
class OvertakenRecordTest : public CompactedBranchTest
{
protected:
    void Execute(const QByteArray& sql)
    {
        P.Form3->Data1.Settle();
        SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb")).Execute(sql);
    }
    void ExpectChanged()
    {
        Prompts.Expect(u"Record changed",
                       u"Record A002 has been changed by another program.\n"
                       u"Nothing was stored. The Record is shown as it is now.",
                       Buttons::Information);
    }
};

TEST_F(OvertakenRecordTest, ChangedByAnotherProgram_IsTold_ShownAsItIs_AndTheProgramGoesOn)
{
    Execute("UPDATE Tree99 SET Notes = 'elsewhere' WHERE File = 'A002'");
    P.Form3->Picture2.Click();
    ExpectChanged();

    Click(P.Form3->Timer1.Tick);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(P.Form3->Text2.Text.value(), u"Jones"_s);
    EXPECT_EQ(P.Form3->Text11.Text.value(), u"elsewhere"_s);
    EXPECT_EQ(Stored("Surname", "A002"), u"Jones"_s);
    EXPECT_FALSE(P.Form3->Timer1.Enabled);
    P.Form3->Picture2.Click();
    Click(P.Form3->Timer1.Tick);
    EXPECT_EQ(Current(), u"A003"_s);
}

TEST_F(OvertakenRecordTest, Exit_IsHeldBack_AndTakesPlaceTheNextTime)
{
    Execute("UPDATE Tree99 SET Notes = 'elsewhere' WHERE File = 'A002'");
    ExpectChanged();
    Click(P.Form3->mnuExit.Click);
    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_TRUE(P.Form1.IsLoaded());

    Click(P.Form3->mnuExit.Click);

    EXPECT_EQ(ExitCode(), 0);
    EXPECT_EQ(Stored("Surname", "A002"), u"Jones"_s);
}

TEST_F(OvertakenRecordTest, RemovedByAnotherProgram_IsTold_AndTheProgramGoesOn)
{
    Execute("DELETE FROM Tree99 WHERE File = 'A002'");
    P.Form3->Picture2.Click();
    Prompts.Expect(u"Record removed", u"Record A002 has been removed by another program.\nNothing was stored.",
                   Buttons::Information);

    Click(P.Form3->Timer1.Tick);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(P.Form3->Text2.Text.value(), QString());
    EXPECT_FALSE(P.Form3->Timer1.Enabled);
    P.Form3->Picture2.Click();
    Click(P.Form3->Timer1.Tick);
    EXPECT_EQ(Current(), u"A003"_s);
    EXPECT_EQ(Stored("Surname", "A003"), std::nullopt);
}

class DeletionOfOvertakenTest : public OvertakenRecordTest
{
protected:
    DeletionOfOvertakenTest()
    {
        P.Form3->Data1.Refresh(P.Databases, P.Files);
        Records(P.Form3).MoveNext();
        P.Form3->Data1.Settle();
    }
    void ExpectQuestions(const std::function<void()>& meanwhile = {})
    {
        Prompts.Expect(u"Delete Record", u"Do you really want to delete this record?", Buttons::QuestionYesNo,
                       Answer::Yes);
        Prompts.Expect(u"Deletion of Subject Records",
                       u"All information in this record will be deleted\n"
                       u"including any Subject and Gallery graphic files.\n"
                       u"Are you sure this is what you want ? ",
                       Buttons::ErrorYesNo, Answer::Yes, meanwhile);
    }
    void ChangeOutside() { Execute("UPDATE Tree99 SET Notes = 'elsewhere' WHERE File = 'A002'"); }
    void ExpectLeftAlone()
    {
        EXPECT_EQ(ExitCode(), std::nullopt);
        EXPECT_EQ(Stored("Notes", "A002"), u"elsewhere"_s);
        EXPECT_EQ(P.Form3->Text11.Text.value(), u"elsewhere"_s);
        EXPECT_TRUE(Home.Exists(u"LfgDat_A/A002Sub.jpg"));
    }
};

TEST_F(DeletionOfOvertakenTest, RecordThatHasBeenChangedUnseen_IsShown_AndMayBeDeletedThen)
{
    ChangeOutside();
    ExpectQuestions();
    ExpectChanged();
    Click(P.Form3->mnuDelete.Click);
    ExpectLeftAlone();

    ExpectQuestions();
    Click(P.Form3->mnuDelete.Click);
    EXPECT_FALSE(Home.Exists(u"LfgDat_A/A002Sub.jpg"));
}

TEST_F(DeletionOfOvertakenTest, RecordChangedUnderTheQuestions_IsNotDeleted)
{
    ExpectQuestions([this] { ChangeOutside(); });
    ExpectChanged();
    Click(P.Form3->mnuDelete.Click);
    ExpectLeftAlone();
}

TEST_F(DeletionOfOvertakenTest, RecordRemovedUnderTheQuestions_KeepsItsFiles)
{
    ExpectQuestions([this] { Execute("DELETE FROM Tree99 WHERE File = 'A002'"); });
    Prompts.Expect(u"Record removed", u"Record A002 has been removed by another program.\nNothing was stored.",
                   Buttons::Information);

    Click(P.Form3->mnuDelete.Click);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_TRUE(Home.Exists(u"LfgDat_A/A002Sub.jpg"));
}

} // namespace
} // namespace lineforge
