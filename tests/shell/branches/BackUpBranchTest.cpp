#include "program/branch/SiblingBranch.h"
#include "program/branch/WorkDatabase.h"
#include "shell/ShellTest.h"

#include <QDir>

namespace lineforge
{
namespace
{

class BackUpBranchTest : public ShellTest
{
protected:
    BackUpBranchTest()
    {
        GivenSmithsAndJones();
        Home.MakeDirectory(u"safe");
        Choose(u"Smiths");
    }

    void ExpectIntroduction()
    {
        Prompts.Expect(
            u"Backup Database",
            u"Backup will copy your current Database File \nand Tree Config file to your chosen destination.",
            Buttons::Information);
    }
    void BackUpAs(const std::optional<QString>& path, ScriptedPrompts::WhileOpen whileOpen = {})
    {
        ExpectIntroduction();
        Prompts.ExpectSaveFile(u"Select Backup Destination Directory", u"DataBase *.mdb|*.mdb|All Files|*.*|", path,
                               std::move(whileOpen));
        Click(P.Form1->mnuBackup.Click);
    }
};

TEST_F(BackUpBranchTest, DatabaseAndMap_GoUnderTheChosenName_NeverAsAnMdb)
{
    const Tree before = Home.Snapshot();

    BackUpAs(Home.Path(u"safe/x.mdb"));

    EXPECT_EQ(Home.ReadFile(u"safe/x.~md"), Home.ReadFile(u"LfgDat_A/LfgDat_A.mdb"));
    EXPECT_EQ(Home.ReadFile(u"safe/x.~cf"), Home.ReadFile(u"LfgDat_A/LfgDat_A.cfg"));
    QStringList changes = Differences(before, Home.Snapshot());
    changes.removeIf([](const QString& change) { return change.contains(u"LfgDat_A/LfgDat_A.~cf"_s); });
    EXPECT_EQ(changes, QStringList({u"new: safe/x.~cf"_s, u"new: safe/x.~md"_s}));
}

TEST_F(BackUpBranchTest, AnyEndingOfFourCharacters_IsCutOff)
{
    BackUpAs(Home.Path(u"safe/1 May.bak"));

    EXPECT_TRUE(Home.Exists(u"safe/1 May.~md"));
    EXPECT_TRUE(Home.Exists(u"safe/1 May.~cf"));
}

TEST_F(BackUpBranchTest, Map_IsWrittenFirst_WithTheListsAsTheyStand)
{
    P.Map.sTextsText = u"300,150,New,Arial,8,0,"_s;

    BackUpAs({});

    EXPECT_TRUE(MapOf(u'A').contains("300,150,New,Arial,8,0,"));
}

TEST_F(BackUpBranchTest, Cancel_LeavesTheRecordFormAndWritesNoBackup)
{
    P.Form3->Show();

    BackUpAs({});

    EXPECT_TRUE(P.Form3->Visible);
    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A001"_s);
    EXPECT_TRUE(QDir(Home.Path(u"safe")).isEmpty());
}

TEST_F(BackUpBranchTest, EditStillPending_GoesIntoTheBackup)
{
    P.Form3->Text3.Text = u"Anne"_s;

    BackUpAs(Home.Path(u"safe/x.mdb"));

    EXPECT_EQ(Home.ReadFile(u"safe/x.~md"), Home.ReadFile(u"LfgDat_A/LfgDat_A.mdb"));
    EXPECT_EQ(Records(P.Form3).Text(u"Forename"), u"Anne"_s);
}

TEST_F(BackUpBranchTest, Database_IsOpenAgainAfterwards_WhereverTheCurrentDirectoryIs)
{
    P.Files.ChDir(Home.Path());

    BackUpAs(Home.Path(u"safe/x.mdb"));

    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A001"_s);
    Records(P.Form3).MoveNext();
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"Mary"_s);
    EXPECT_FALSE(P.Form3->Visible);
}

TEST_F(BackUpBranchTest, OlderBackup_IsReplaced)
{
    Home.WriteFile(u"safe/x.~md", "older");
    Home.WriteFile(u"safe/x.~cf", "older");

    BackUpAs(Home.Path(u"safe/x.mdb"));

    EXPECT_EQ(Home.ReadFile(u"safe/x.~md"), Home.ReadFile(u"LfgDat_A/LfgDat_A.mdb"));
    EXPECT_EQ(Home.ReadFile(u"safe/x.~cf"), Home.ReadFile(u"LfgDat_A/LfgDat_A.cfg"));
}

TEST_F(BackUpBranchTest, NameShorterThanAnEnding_EndsInSilence_WithTheRecordFormClosed)
{
    const Tree before = Home.Snapshot();

    BackUpAs(u"/ab"_s);

    EXPECT_FALSE(P.Form3.IsLoaded());
    QStringList changes = Differences(before, Home.Snapshot());
    changes.removeIf([](const QString& change) { return change.contains(u"LfgDat_A/LfgDat_A.~cf"_s); });
    EXPECT_EQ(changes, QStringList());
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(BackUpBranchTest, RecordFormThatIsClosedByIt_IsToldOf_UntilABackupOpensItAgain)
{
    BackUpAs(u"/ab"_s);
    Prompts.Expect(u"Data not available", u"Cannot View until database file is Opened", Buttons::Information);
    Click(P.Form1->Command1.Click);
    EXPECT_EQ(ExitCode(), std::nullopt);

    BackUpAs(Home.Path(u"safe/x.mdb"));
    Click(P.Form1->Command1.Click);

    EXPECT_TRUE(P.Form3->Visible);
    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A001"_s);
}

TEST_F(BackUpBranchTest, PlaceThatCantBeWritten_EndsInSilence)
{
    BackUpAs(Home.Path(u"gone/x.mdb"));

    EXPECT_FALSE(Home.Exists(u"gone"));
    EXPECT_FALSE(P.Form3.IsLoaded());
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(BackUpBranchTest, OlderBackupThatCantBeReplaced_StaysWhole)
{
    Home.WriteFile(u"safe/x.~md", "older");
    Home.MakeReadOnly(u"safe/x.~md");

    BackUpAs(Home.Path(u"safe/x.mdb"));

    EXPECT_EQ(Home.ReadFile(u"safe/x.~md"), "older");
    EXPECT_FALSE(Home.Exists(u"safe/x.~cf"));
}

// What stands in the file while another program commits is half of this and half of that.
TEST_F(BackUpBranchTest, CommitOfAnotherProgram_IsWaitedFor)
{
    std::unique_ptr<SqliteFile> other;
    ExpectIntroduction();
    Prompts.ExpectSaveFile(u"Select Backup Destination Directory", u"DataBase *.mdb|*.mdb|All Files|*.*|",
                           Home.Path(u"safe/x.mdb"), [&] { other = LockDatabase(u'A'); });
    ExpectDatabaseInUse(Answer::Retry, [&] {
        other->Execute("UPDATE Tree99 SET Forename = 'Johnny' WHERE File = 'A001'; COMMIT");
        other.reset();
    });

    Click(P.Form1->mnuBackup.Click);

    EXPECT_EQ(Home.ReadFile(u"safe/x.~md"), Home.ReadFile(u"LfgDat_A/LfgDat_A.mdb"));
    EXPECT_TRUE(Home.ReadFile(u"safe/x.~md").contains("Johnny"));
    EXPECT_EQ(Records(P.Form3).Text(u"Forename"), u"Johnny"_s);
}

TEST_F(BackUpBranchTest, CommitThatIsntWaitedFor_EndsIt_AsAPlaceThatCantBeWrittenDoes)
{
    std::unique_ptr<SqliteFile> other;
    ExpectIntroduction();
    Prompts.ExpectSaveFile(u"Select Backup Destination Directory", u"DataBase *.mdb|*.mdb|All Files|*.*|",
                           Home.Path(u"safe/x.mdb"), [&] { other = LockDatabase(u'A'); });
    ExpectDatabaseInUse(Answer::Cancel);

    Click(P.Form1->mnuBackup.Click);

    EXPECT_TRUE(QDir(Home.Path(u"safe")).isEmpty());
    EXPECT_FALSE(P.Form3.IsLoaded());
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(BackUpBranchTest, ChangesThatAnotherProgramKeepsBesideTheDatabase_GoIntoTheBackup)
{
    std::unique_ptr<SqliteFile> other;
    BackUpAs(Home.Path(u"safe/x.mdb"), [&] {
        other = std::make_unique<SqliteFile>(Home.Path(u"LfgDat_A/LfgDat_A.mdb"));
        other->Execute("PRAGMA journal_mode = WAL; UPDATE Tree99 SET Forename = 'Johnny' WHERE File = 'A001'");
    });

    SqliteFile backup(Home.Path(u"safe/x.~md"));
    EXPECT_EQ(backup.Value("SELECT Forename FROM Tree99 WHERE File = 'A001'"), u"Johnny"_s);
    EXPECT_EQ(backup.Value("PRAGMA integrity_check"), u"ok"_s);
}

TEST_F(BackUpBranchTest, MissingMap_LeavesTheDatabaseAlone)
{
    BackUpAs(Home.Path(u"safe/x.mdb"), [this] { QFile::remove(Home.Path(u"LfgDat_A/LfgDat_A.cfg")); });

    EXPECT_TRUE(Home.Exists(u"safe/x.~md"));
    EXPECT_FALSE(Home.Exists(u"safe/x.~cf"));
}

TEST_F(BackUpBranchTest, ImportedBranch_GivesTheMapThatCameWithIt)
{
    GivenRegistry({{u"Cousins", u"Import_A"}});
    BranchOf(u'A').InDirectory(u"Import_A").Build();
    Choose(u"Cousins");
    P.Map.sTextsText = u"300,150,New,Arial,8,0,"_s;

    BackUpAs(Home.Path(u"safe/x.mdb"));

    EXPECT_EQ(Home.ReadFile(u"safe/x.~cf"), Home.ReadFile(u"Import_A/LfgDat_A.cfg"));
    EXPECT_FALSE(Home.ReadFile(u"safe/x.~cf").contains("New"));
    EXPECT_TRUE(Home.ReadFile(u"Import_A/Import_A.cfg").contains("New"));
}

TEST_F(BackUpBranchTest, OnARecordOfAnotherBranch_ThatBranchGoes)
{
    SwitchToSibling(P, u"B");

    BackUpAs(Home.Path(u"safe/x.mdb"));

    EXPECT_EQ(Home.ReadFile(u"safe/x.~md"), Home.ReadFile(u"LfgDat_B/LfgDat_B.mdb"));
    EXPECT_EQ(Home.ReadFile(u"safe/x.~cf"), Home.ReadFile(u"LfgDat_B/LfgDat_B.cfg"));
    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"B001"_s);
}

// Its record stands alone, on the form that has been made anew, too.
TEST_F(BackUpBranchTest, OnARecordOfAnotherBranch_TheTransportButtonsStayOff_UntilTheReturn)
{
    SwitchToSibling(P, u"B");

    BackUpAs(Home.Path(u"safe/x.mdb"));
    Click(P.Form1->Command1.Click);

    for (Button forms::Form3::*transport : forms::Form3::Transport)
        EXPECT_FALSE(((*P.Form3).*transport).Enabled);
    ReturnFromSibling(P);
    for (Button forms::Form3::*transport : forms::Form3::Transport)
        EXPECT_TRUE(((*P.Form3).*transport).Enabled);
}

TEST_F(BackUpBranchTest, WithNoBranchOpen_IsTold)
{
    P.Form1->mnuCloseDB.Click();
    Prompts.Expect(u"Data not available", u"Cannot View until database file is Opened", Buttons::Information);

    Click(P.Form1->mnuBackup.Click);
}

TEST_F(BackUpBranchTest, BackupPutBackByHand_OpensAsItWas)
{
    BackUpAs(Home.Path(u"safe/x.mdb"));
    const QImage map = P.Form1->Picture1.Image();
    Records(P.Form3).Edit();
    Records(P.Form3).Put(u"Forename", u"Spoilt"_s);
    Records(P.Form3).Update();
    MoveFirstBoxTo(3000);
    P.Form1->mnuCloseDB.Click();

    Home.WriteFile(u"LfgDat_A/LfgDat_A.mdb", Home.ReadFile(u"safe/x.~md"));
    Home.WriteFile(u"LfgDat_A/LfgDat_A.cfg", Home.ReadFile(u"safe/x.~cf"));
    Choose(u"Smiths");

    EXPECT_EQ(Records(P.Form3).Text(u"Forename"), u"John"_s);
    EXPECT_EQ(P.Form1->Picture1.Image(), map);
}

} // namespace
} // namespace lineforge
