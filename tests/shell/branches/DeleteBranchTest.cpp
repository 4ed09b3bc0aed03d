#include "map/subjects/SubjectPanel.h"
#include "program/branch/AliasList.h"
#include "program/branch/SiblingBranch.h"
#include "program/branch/WorkDatabase.h"
#include "shell/ShellTest.h"
#include "support/Pixels.h"
#include "support/SqliteFile.h"

#include <QDir>

namespace lineforge
{
namespace
{

class DeleteBranchTest : public ShellTest
{
protected:
    DeleteBranchTest()
    {
        GivenSmithsAndJones();
        Home.WriteFile(u"LfgDat_A/LfgGal_A/A001_01.jpg", "picture");
        Choose(u"Smiths");
    }

    void Delete() { Click(P.Form1->mnuDelSub.Click); }
    void ExpectRefused()
    {
        Prompts.Expect(u"Data not available", u"Cannot View until database file is Opened", Buttons::Information);
        ExpectNothingRemoved();
    }
    void ExpectRefusedElsewhere(const QString& directory)
    {
        const QString text =
            u"Cannot delete '%1' Tree Branch. Its Directory\n%2\n"
            u"is not in the Home Directory in use:\n%3"_s.arg(P.Branch.sBranchName, directory, P.Branch.HomeDir);
        Prompts.Expect(u"Delete '%1' DataBase and Galleries"_s.arg(P.Branch.sBranchName), text, Buttons::Information);
        ExpectNothingRemoved();
    }
    void ExpectNothingRemoved()
    {
        const Tree before = Home.Snapshot();
        Delete();
        EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
        EXPECT_EQ(ExitCode(), std::nullopt);
    }
    void ExpectToolsQuestion(Answer answer)
    {
        Prompts.Expect(u"Closing Graphics Tools", u"Save the Tree Graphic changes ?", Buttons::InformationYesNo,
                       answer);
    }
    void Link(const QString& target, QStringView name) { ASSERT_TRUE(QFile::link(target, Home.Path(name))); }
};

TEST_F(DeleteBranchTest, BothConfirmed_TheBranchGoes_AndNothingElse)
{
    Home.WriteFile(u"LfgDat_A/LfgDat_A.~cf", "map before");
    Home.WriteFile(u"LfgDat_A/.hidden", "hidden");
    const Tree before = Home.Snapshot();

    DeleteForGood();

    EXPECT_FALSE(Home.Exists(u"LfgDat_A"));
    for (const QString& change : Differences(before, Home.Snapshot()))
        EXPECT_TRUE(change.startsWith(u"gone: LfgDat_A"_s) || change.contains(u"AliasList"_s))
            << qUtf8Printable(change);
    EXPECT_TRUE(Registry().contains("[Jones=LfgDat_B,]"));
    EXPECT_EQ(P.Form8->List1.Items.value(), QStringList{u"Jones"_s});
}

// The map's arrays outlive their branch, whose name is still set: the command goes on until it fails at the records.
TEST_F(DeleteBranchTest, DoubleClickOnASiblingsBoxAfterwards_FailsAtTheRecords)
{
    P.Map.BoxArr[0][BoxColumn::File] = u"B001"_s;
    DeleteForGood();
    P.Mouse.DownX = 1300;
    P.Mouse.DownY = 700;
    ExpectFatalBox(u"Run-time error '91':\n\nObject variable not set",
                   u"No database is open for this:\n"_s + P.Form3->Data1.Caption);

    Click(P.Form1->Picture1.DblClick);

    EXPECT_EQ(ExitCode(), 1);
}

TEST_F(DeleteBranchTest, NoAtEither_LeavesEverything)
{
    const Tree before = Home.Snapshot();
    ExpectDeletionQuestion(Answer::No);
    Delete();
    ExpectDeletionQuestion(Answer::Yes);
    ExpectDeletionWarning(Answer::No);
    Delete();

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A001"_s);
}

TEST_F(DeleteBranchTest, NoAtTheSecond_StillReturnsFromTheOtherBranch)
{
    SwitchToSibling(P, u"B");
    const Tree before = Home.Snapshot();
    ExpectDeletionQuestion(Answer::Yes);
    ExpectDeletionWarning(Answer::No);

    Delete();

    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A001"_s);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(DeleteBranchTest, NoAtTheSecond_OnARecordOfAnotherBranch_ShowsTheOwnFirstSubject)
{
    SwitchToSibling(P, u"B");
    Records(P.Form3).MoveLast();
    ShowRecordOnMap(P);
    ExpectDeletionQuestion(Answer::Yes);
    ExpectDeletionWarning(Answer::No);

    Delete();

    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"John"_s);
    EXPECT_EQ(P.Form1->Frame1.Caption.value(), u"Ref  A001"_s);
    EXPECT_GT(P.Form1->Image1.Picture.value().pixelColor(10, 10).red(), 200);
    EXPECT_TRUE(P.Form1->Shape1.Visible);
    EXPECT_EQ(P.Form1->Shape1.Left, 1200 + BoxCentreX - 60);
}

TEST_F(DeleteBranchTest, NoAtTheFirst_LeavesTheOtherBranchOnShow)
{
    SwitchToSibling(P, u"B");
    ExpectDeletionQuestion(Answer::No);

    Delete();

    EXPECT_EQ(P.Branch.UsingAlternate, 1);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_B"));
}

TEST_F(DeleteBranchTest, OnARecordOfAnotherBranch_TheMapsOwnGoes)
{
    SwitchToSibling(P, u"B");

    DeleteForGood();

    EXPECT_FALSE(Home.Exists(u"LfgDat_A"));
    EXPECT_TRUE(Home.Exists(u"LfgDat_B/LfgDat_B.mdb"));
}

TEST_F(DeleteBranchTest, Windows_ShowNoBranch_TheMapsArraysStay)
{
    DeleteForGood();

    for (const Label* label : {&P.Form1->Label9, &P.Form1->Label10, &P.Form1->Label11, &P.Form1->Label12,
                               &P.Form1->Label14, &P.Form1->Label15, &P.Form1->Label17})
        EXPECT_EQ(label->Caption.value(), QString()) << qUtf8Printable(label->Name);
    EXPECT_EQ(P.Form1->Frame1.Caption.value(), QString());
    EXPECT_TRUE(P.Form1->Image1.Picture.value().isNull());
    EXPECT_FALSE(P.Form1->Shape1.Visible);
    EXPECT_EQ(P.Form1->Caption.value(), u"Lineforge. "_s);
    EXPECT_FALSE(P.Form3.IsLoaded());
    EXPECT_TRUE(IsBlank(P.Form1->Picture1));
    EXPECT_EQ(P.Branch.WorkDir, QString());
    EXPECT_EQ(P.Branch.WorkDirLen, 0);
    EXPECT_EQ(P.Files.CurDir(), Home.Path());
    EXPECT_EQ(P.Branch.sDbaseName, u"LfgDat_A.mdb"_s);
    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::File].Text(), u"A001"_s);
}

TEST_F(DeleteBranchTest, SubdirectoryBesideTheGallery_KeepsTheDirectory_WithNothingElseInIt)
{
    Home.WriteFile(u"LfgDat_A/letters/1901.txt", "letter");

    DeleteForGood();

    EXPECT_EQ(QDir(Home.Path(u"LfgDat_A")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList{u"letters"_s});
    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/letters/1901.txt"), "letter");
    EXPECT_FALSE(Registry().contains("Smiths"));
}

TEST_F(DeleteBranchTest, SubdirectoryInTheGallery_KeepsBoth)
{
    Home.WriteFile(u"LfgDat_A/LfgGal_A/letters/1901.txt", "letter");

    DeleteForGood();

    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgGal_A/letters/1901.txt"), "letter");
    EXPECT_FALSE(Home.Exists(u"LfgDat_A/LfgGal_A/A001_01.jpg"));
    EXPECT_FALSE(Home.Exists(u"LfgDat_A/LfgDat_A.mdb"));
}

TEST_F(DeleteBranchTest, FileThatCantBeRemoved_StaysWithItsDirectory_InSilence)
{
    Home.MakeReadOnly(u"LfgDat_A/A002Sub.jpg");

    DeleteForGood();

    EXPECT_TRUE(Home.Exists(u"LfgDat_A/A002Sub.jpg"));
    EXPECT_FALSE(Home.Exists(u"LfgDat_A/LfgDat_A.mdb"));
    EXPECT_FALSE(Registry().contains("Smiths"));
    EXPECT_EQ(ExitCode(), std::nullopt);
}

// What is typed and can't be stored would hold the form, and with it the database that is being removed.
TEST_F(DeleteBranchTest, TextPendingThatCannotBeStored_GoesWithTheBranch_AndAnotherOpensAfterwards)
{
    Click(P.Form1->Command1.Click);
    SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb"))
        .Execute("CREATE TRIGGER Refusal BEFORE UPDATE ON Tree99 BEGIN SELECT RAISE(ABORT, 'refused'); END");
    P.Form3->Text2.Text = u"Brown"_s;

    DeleteForGood();

    EXPECT_FALSE(P.Form3.IsLoaded());
    EXPECT_FALSE(Home.Exists(u"LfgDat_A"));
    Choose(u"Jones");
    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"B001"_s);
    EXPECT_EQ(Records(P.Form3).Text(u"Surname"), u"Smith"_s);
}

// The name in the title bar is the former branch's.
TEST_F(DeleteBranchTest, AfterARecordTransferToAnotherBranch_TheOneThatGoesIsNamed)
{
    Prompts.Expect(u"Record Set Copy",
                   u"This complete Recordset will be copied to an existing\n"
                   u"pre mapped Data Record of your choice.\n"
                   u"Tree Map name containers should be the same colour.",
                   Buttons::InformationOkCancel, Answer::Ok);
    Prompts.ExpectInput(u"Data Record Destination.", u"Enter Destination Data Ref Number.", u"B002");
    Click(P.Form3->MnuRecTransfer.Click);
    ASSERT_EQ(P.Branch.sBranchName, u"Smiths"_s);

    DeleteForGood(u"Jones"_s, u"LfgDat_B");

    EXPECT_FALSE(Home.Exists(u"LfgDat_B"));
    EXPECT_TRUE(Home.Exists(u"LfgDat_A/LfgDat_A.mdb"));
    EXPECT_TRUE(Registry().contains("[Smiths=LfgDat_A,]"));
}

TEST_F(DeleteBranchTest, LetterThatIsLeftOnTheDisk_CountsAsTaken)
{
    Home.MakeReadOnly(u"LfgDat_A/A002Sub.jpg");
    DeleteForGood();
    AnswerName(u"Browns");
    Confirm(u"Browns", u"LfgDat_C", Answer::Cancel);

    P.Form1->New.Click();
}

TEST_F(DeleteBranchTest, LinksOutOfTheBranch_GoThemselves_AndNothingOutside)
{
    Home.WriteFile(u"mine/portrait.jpg", "mine");
    Link(Home.Path(u"mine/portrait.jpg"), u"LfgDat_A/A003Sub.jpg");
    Link(Home.Path(u"mine"), u"LfgDat_A/more");
    Link(Home.Path(u"LfgDat_B"), u"LfgDat_A/LfgGal_A/sibling");

    DeleteForGood();

    EXPECT_EQ(Home.ReadFile(u"mine/portrait.jpg"), "mine");
    EXPECT_TRUE(Home.Exists(u"LfgDat_B/LfgDat_B.mdb"));
    EXPECT_FALSE(Home.Exists(u"LfgDat_A"));
}

TEST_F(DeleteBranchTest, GalleryThatIsALink_KeepsWhatItLeadsTo)
{
    ASSERT_TRUE(QDir(Home.Path(u"LfgDat_A/LfgGal_A")).removeRecursively());
    Home.WriteFile(u"pictures/A001_01.jpg", "mine");
    Link(Home.Path(u"pictures"), u"LfgDat_A/LfgGal_A");

    DeleteForGood();

    EXPECT_EQ(Home.ReadFile(u"pictures/A001_01.jpg"), "mine");
    EXPECT_FALSE(Home.Exists(u"LfgDat_A"));
}

TEST_F(DeleteBranchTest, BranchDirectoryThatIsALink_KeepsAllItsFiles)
{
    ASSERT_TRUE(QDir().rename(Home.Path(u"LfgDat_A"), Home.Path(u"real")));
    Link(Home.Path(u"real"), u"LfgDat_A");
    const QByteArray database = Home.ReadFile(u"real/LfgDat_A.mdb");

    DeleteForGood();

    EXPECT_EQ(Home.ReadFile(u"real/LfgDat_A.mdb"), database);
    EXPECT_EQ(Home.ReadFile(u"real/LfgGal_A/A001_01.jpg"), "picture");
    EXPECT_FALSE(Registry().contains("Smiths"));
}

TEST_F(DeleteBranchTest, EmptyGalleryBehindALink_Stays)
{
    ASSERT_TRUE(QDir().rename(Home.Path(u"LfgDat_A"), Home.Path(u"real")));
    ASSERT_TRUE(QFile::remove(Home.Path(u"real/LfgGal_A/A001_01.jpg")));
    Link(Home.Path(u"real"), u"LfgDat_A");

    DeleteForGood();

    EXPECT_TRUE(Home.Exists(u"real/LfgGal_A"));
}

TEST_F(DeleteBranchTest, ImportedBranch_GoesWithItsEntry)
{
    GivenRegistry({{u"Smiths", u"Import_A"}, {u"Jones", u"LfgDat_B"}});
    BranchOf(u'A').InDirectory(u"Import_A").Gallery({{u"A001_01.jpg"_s, "picture"}}).Build();
    Choose(u"Smiths");
    ExpectDeletionQuestion(Answer::Yes);
    ExpectDeletionWarning(Answer::Yes, u"Smiths"_s, u"Import_A");

    Delete();

    EXPECT_FALSE(Home.Exists(u"Import_A"));
    EXPECT_TRUE(Home.Exists(u"LfgDat_A/LfgDat_A.mdb"));
    EXPECT_TRUE(Registry().contains("[Jones=LfgDat_B,]"));
}

TEST_F(DeleteBranchTest, ToolsThatAreOpen_AreLeftBehindBothConfirmations_AndABranchOpensAfterwards)
{
    P.Form1->mnuTreeTools.Click();
    ASSERT_EQ(P.Tools.ToolMode, ToolsOpen);
    ExpectDeletionQuestion(Answer::Yes);
    ExpectDeletionWarning(Answer::Yes);
    ExpectToolsQuestion(Answer::No);
    Delete();

    EXPECT_FALSE(Home.Exists(u"LfgDat_A"));
    EXPECT_EQ(P.Tools.ToolMode, 0);
    Choose(u"Jones");
    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"B001"_s);
}

TEST_F(DeleteBranchTest, NoAtEither_LeavesTheToolsOpen)
{
    P.Form1->mnuTreeTools.Click();
    ExpectDeletionQuestion(Answer::No);
    Delete();
    ExpectDeletionQuestion(Answer::Yes);
    ExpectDeletionWarning(Answer::No);
    Delete();

    EXPECT_EQ(P.Tools.ToolMode, ToolsOpen);
}

TEST_F(DeleteBranchTest, WithNoBranchOpen_IsToldAndRemovesNothing)
{
    P.Form1->mnuCloseDB.Click();

    ExpectRefused();
}

TEST_F(DeleteBranchTest, ASecondTime_IsToldAndRemovesNothing)
{
    DeleteForGood();

    ExpectRefused();
}

class DeleteElsewhereTest : public DeleteBranchTest, public testing::WithParamInterface<QStringView>
{
};

TEST_P(DeleteElsewhereTest, DirectoryThatIsNoBranchBeneathTheHome_IsRefused)
{
    Home.WriteFile(u"documents/letter.txt", "letter");
    Home.WriteFile(u"other/LfgDat_A/LfgDat_A.mdb", "records");
    P.Branch.WorkDir = QString(GetParam().toString()).replace(u"HOME"_s, Home.Path());

    ExpectRefusedElsewhere(P.Branch.WorkDir);
}

INSTANTIATE_TEST_SUITE_P(Directories, DeleteElsewhereTest,
                         testing::Values(u"/", u"HOME", u"HOME/", u"HOME/documents", u"HOME/other/LfgDat_A",
                                         u"HOME/LfgDat_A/..", u"HOME/LfgDat_A/LfgGal_A", u"HOME/LfgDat_", u"/LfgDat_A",
                                         u"HOME/LfgDat_AB"));

TEST_F(DeleteBranchTest, AfterAChangeOfTheHomeDirectory_TheOldOnesBranchStays)
{
    Home.WriteFile(u"other/AliasList.cfg", Home.ReadFile(u"AliasList.cfg"));
    P.Branch.HomeDir = Home.Path(u"other") + PathSeparator;

    ExpectRefusedElsewhere(Home.Path(u"LfgDat_A"));
}

TEST_F(DeleteBranchTest, AfterAChangeOfTheHomeDirectory_OnARecordOfAnotherBranch_BothRegistriesStay)
{
    SwitchToSibling(P, u"B");
    Home.WriteFile(u"other/AliasList.cfg", "[Alias]\r\n[Greens=LfgDat_D,]\r\n[CFG]\r\n[1,]\r\n");
    P.Branch.HomeDir = Home.Path(u"other") + PathSeparator;
    ReadAliasList(P);

    ExpectRefusedElsewhere(Home.Path(u"LfgDat_A"));
}

// The list in force tells of the branches of another home.
TEST_F(DeleteBranchTest, AfterAChangeOfTheHomeDirectory_IsNamedAsItWasOpened_WhateverIsListedThere)
{
    Home.WriteFile(u"other/AliasList.cfg", "[Alias]\r\n[Browns=LfgDat_A,]\r\n[CFG]\r\n[1,]\r\n");
    P.Branch.HomeDir = Home.Path(u"other") + PathSeparator;
    ReadAliasList(P);

    ExpectRefusedElsewhere(Home.Path(u"LfgDat_A"));
}

TEST_F(DeleteBranchTest, RecordsOfOtherBranchesThatReferToIt_StayAsTheyAre)
{
    ASSERT_TRUE(QFile::remove(Home.Path(u"LfgDat_B/LfgDat_B.mdb")));
    BranchOf(u'B').Row({{u"File", u"B003"}, {u"FatherRec", u"A001"}, {u"MotherRec", u"A002"}}).Build();
    const QByteArray database = Home.ReadFile(u"LfgDat_B/LfgDat_B.mdb");

    DeleteForGood();

    EXPECT_EQ(Home.ReadFile(u"LfgDat_B/LfgDat_B.mdb"), database);
    Choose(u"Jones");
    ASSERT_TRUE(Records(P.Form3).Seek(u"File", u"B003"_s));
    EXPECT_EQ(Records(P.Form3).Text(u"FatherRec"), u"A001"_s);
    EXPECT_EQ(Records(P.Form3).Text(u"MotherRec"), u"A002"_s);
}

TEST_F(DeleteBranchTest, RegistryThatCantBeWritten_IsReadAgain_AndListsTheBranch)
{
    Home.WriteFile(u"AliasList.bak", "previous generation");
    Home.MakeReadOnly(u"AliasList.bak");

    DeleteForGood();

    EXPECT_FALSE(Home.Exists(u"LfgDat_A"));
    EXPECT_TRUE(Registry().contains("[Smiths=LfgDat_A,Jones=LfgDat_B,]"));
    EXPECT_EQ(P.Alias.sAliasList, u"Smiths=LfgDat_A,Jones=LfgDat_B,"_s);
    EXPECT_EQ(P.Form8->List1.Items.value(), (QStringList{u"Smiths"_s, u"Jones"_s}));
    EXPECT_EQ(ExitCode(), std::nullopt);
}

// As older versions took them. The list shows what stands before the first sign.
TEST_F(DeleteBranchTest, NameWithTheSignThatEndsIt_TakesItsWholeEntryAlong)
{
    GivenRegistry({{u"Smi=ths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}});
    Choose(u"Smi");
    ExpectDeletionQuestion(Answer::Yes, u"Smi"_s);
    ExpectDeletionWarning(Answer::Yes, u"Smi"_s);

    Delete();

    EXPECT_TRUE(Registry().contains("[Jones=LfgDat_B,]"));
    EXPECT_EQ(P.Form8->List1.Items.value(), QStringList{u"Jones"_s});
}

// The list shows the second by its own name, but opens the first one, which is the one that is named.
TEST_F(DeleteBranchTest, NameThatBeginsAnEarlierName_TakesTheEntryOfTheDeletedBranchAlone)
{
    GivenRegistry({{u"Smiths", u"LfgDat_A"}, {u"Smith", u"LfgDat_B"}});
    Choose(u"Smith");

    DeleteForGood(u"Smiths"_s);

    EXPECT_FALSE(Home.Exists(u"LfgDat_A"));
    EXPECT_TRUE(Home.Exists(u"LfgDat_B/LfgDat_B.mdb"));
    EXPECT_TRUE(Registry().contains("[Smith=LfgDat_B,]"));
}

TEST_F(DeleteBranchTest, DirectoryThatIsListedTwice_LosesBothEntries)
{
    GivenRegistry({{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}, {u"Old Smiths", u"lfgdat_a"}});

    DeleteForGood();

    EXPECT_TRUE(Registry().contains("[Jones=LfgDat_B,]"));
}

class MadeAndDeletedTest : public ShellTest, public testing::WithParamInterface<QStringView>
{
};

TEST_P(MadeAndDeletedTest, NameThatTheListCutsUp_LeavesNothingOfItself)
{
    GivenSmithsAndJones();
    AnswerName(GetParam());
    Confirm(GetParam(), u"LfgDat_C");
    ExpectEmptyBox();
    P.Form1->New.Click();

    DeleteForGood(GetParam().toString(), u"LfgDat_C");

    EXPECT_FALSE(Home.Exists(u"LfgDat_C"));
    EXPECT_TRUE(Registry().contains("[Smiths=LfgDat_A,Jones=LfgDat_B,]"));
    EXPECT_EQ(P.Form8->List1.Items.value(), (QStringList{u"Smiths"_s, u"Jones"_s}));
}

INSTANTIATE_TEST_SUITE_P(Names, MadeAndDeletedTest,
                         testing::Values(u"Browns", u"Browns, of Leeds", u"Browns,", u",Browns", u"Browns, of, Leeds",
                                         u"Bro]wns", u"Jones, of Leeds"));

TEST_F(DeleteBranchTest, BoxesOfOtherBranches_KeepTheirPeople_AndShowTheNumberAlone)
{
    Home.WriteFile(u"LfgDat_B/LfgDat_B.cfg",
                   MapFileBytes(u"LfgDat_B", u"1200,600,255,B001,John,2000,600,255,A001,John,", u"1507,817,2307,817,0,",
                                u"300,150,The Jones,Arial,8,0,"));
    Choose(u"Jones");
    const QImage withForename = P.Form1->Picture1.Image();
    ASSERT_TRUE(QDir().rename(Home.Path(u"LfgDat_A"), Home.Path(u"away")));
    Choose(u"Jones");
    const QImage numberAlone = P.Form1->Picture1.Image();
    ASSERT_TRUE(QDir().rename(Home.Path(u"away"), Home.Path(u"LfgDat_A")));
    Choose(u"Smiths");
    DeleteForGood();

    Choose(u"Jones");

    EXPECT_EQ(P.Map.BoxArr[1][BoxColumn::File].Text(), u"A001"_s);
    EXPECT_NE(withForename, numberAlone);
    EXPECT_EQ(P.Form1->Picture1.Image(), numberAlone);
    EXPECT_TRUE(MapOf(u'B').contains("A001"));
}

TEST_F(DeleteBranchTest, NameThatTheListDoesntHave_TakesTheEntryOfItsDirectoryAlong)
{
    P.Branch.sBranchName = u"Unlisted"_s;

    DeleteForGood(u"Smiths"_s);

    EXPECT_TRUE(Registry().contains("[Jones=LfgDat_B,]"));
    EXPECT_FALSE(Home.Exists(u"LfgDat_A"));
}

TEST_F(DeleteBranchTest, Exit_AfterIt_WritesTheMapWhereNoBranchReadsIt)
{
    DeleteForGood();
    const Tree before = Home.Snapshot();

    Click(P.Form1->mnuExit.Click);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList{u"new: .cfg"_s});
    EXPECT_EQ(ExitCode(), 0);
}

} // namespace
} // namespace lineforge
