#include "program/branch/SiblingBranch.h"
#include "program/branch/WorkDatabase.h"
#include "shell/ShellTest.h"
#include "support/Pixels.h"
#include "support/SqliteFile.h"

namespace lineforge
{
namespace
{

class CloseBranchTest : public ShellTest
{
protected:
    CloseBranchTest()
    {
        GivenSmithsAndJones();
        Choose(u"Smiths");
    }

    void Close() { P.Form1->mnuCloseDB.Click(); }
};

TEST_F(CloseBranchTest, Boxes_AreSavedFirst)
{
    MoveFirstBoxTo(1300);

    Close();

    EXPECT_TRUE(MapOf(u'A').contains("1300,600,255,A001"));
}

TEST_F(CloseBranchTest, Map_IsErased)
{
    Close();

    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::X].Text(), QString());
    EXPECT_EQ(P.Map.LineArr[0][LineColumn::X1], 0);
    EXPECT_EQ(P.Map.TextArr[0][TextColumn::X].Text(), QString());
    EXPECT_EQ(P.Map.sBoxesText + P.Map.sLinesText + P.Map.sTextsText, QString());
    EXPECT_TRUE(IsBlank(P.Form1->Picture1));
}

TEST_F(CloseBranchTest, Subject_IsEmptied_ButForTheMaidenName)
{
    Close();

    for (const Label* label : {&P.Form1->Label9, &P.Form1->Label10, &P.Form1->Label11, &P.Form1->Label12,
                               &P.Form1->Label14, &P.Form1->Label17})
        EXPECT_EQ(label->Caption.value(), QString()) << qUtf8Printable(label->Name);
    EXPECT_EQ(P.Form1->Label15.Caption.value(), u"none"_s);
    EXPECT_EQ(P.Form1->Frame1.Caption.value(), u"Ref  "_s);
    EXPECT_TRUE(P.Form1->Image1.Picture.value().isNull());
    EXPECT_FALSE(P.Form1->Shape1.Visible);
}

TEST_F(CloseBranchTest, MaidenName_KeepsWhatItShowed_WhereAnotherWasStillPending)
{
    P.Form3->Text16.Text = u"Miller"_s;

    Close();

    EXPECT_EQ(P.Form1->Label15.Caption.value(), u"none"_s);
    EXPECT_EQ(SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb")).Value("SELECT Maiden FROM Tree99 WHERE File = 'A001'"),
              u"Miller"_s);
}

TEST_F(CloseBranchTest, MaidenName_TypedForNobody_IsNotShownThen)
{
    Records(P.Form3).MoveLast();
    Records(P.Form3).MoveNext();
    P.Form3->Text16.Text = u"Miller"_s;
    Prompts.Expect(u"Image not Present", u"Searched Image File for Sub.Jpg", Buttons::Information);
    P.Form3->Command2.Click();

    Close();

    EXPECT_EQ(P.Form1->Label15.Caption.value(), QString());
}

TEST_F(CloseBranchTest, Variables_TellThatNoBranchIsOpen)
{
    Close();

    EXPECT_EQ(P.Branch.WorkDir, QString());
    EXPECT_EQ(P.Branch.WorkDirLen, 0);
    EXPECT_EQ(P.Branch.sDbaseName, QString());
    EXPECT_EQ(P.Record.sPicFile, QString());
}

TEST_F(CloseBranchTest, Windows_AreUnloaded_AllButTheMainOne)
{
    P.Form2.Load();
    P.Form4.Load();
    P.Form7.Load();
    P.Form8.Load();

    Close();

    EXPECT_TRUE(P.Form1.IsLoaded());
    EXPECT_FALSE(P.Form2.IsLoaded());
    EXPECT_FALSE(P.Form3.IsLoaded());
    EXPECT_FALSE(P.Form4.IsLoaded());
    EXPECT_FALSE(P.Form5.IsLoaded());
    EXPECT_FALSE(P.Form6.IsLoaded());
    EXPECT_FALSE(P.Form7.IsLoaded());
    EXPECT_FALSE(P.Form8.IsLoaded());
    EXPECT_FALSE(P.form9.IsLoaded());
}

TEST_F(CloseBranchTest, GalleryMedia_AreClosed)
{
    QStringList commands;
    P.Form5->MMControl1.Act = [&](QStringView command) { commands += command.toString(); };

    Close();

    EXPECT_TRUE(commands.contains(u"Close"_s));
}

TEST_F(CloseBranchTest, Database_IsLetGo)
{
    Close();

    EXPECT_EQ(SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb")).Try("BEGIN EXCLUSIVE; COMMIT"), 0);
}

TEST_F(CloseBranchTest, EditStillPendingOnTheRecordForm_IsWritten)
{
    P.Form3->Text3.Text = u"Anne"_s;

    Close();

    EXPECT_EQ(SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb")).Value("SELECT Forename FROM Tree99 WHERE File = 'A001'"),
              u"Anne"_s);
}

TEST_F(CloseBranchTest, CaptionAndMenus_StayAsTheyWere)
{
    Close();

    EXPECT_EQ(P.Form1->Caption.value(), u"Lineforge Smiths Tree Branch."_s);
    for (const MenuItem* menu :
         {&P.Form1->mnuTreeGraphics, &P.Form1->mnuEdit, &P.Form1->mnuAddBkMark, &P.Form1->mnuClrList,
          &P.Form1->mnuMainCopy, &P.Form1->mnuTreePrint, &P.Form1->mnuExpGedcom})
        EXPECT_TRUE(menu->Enabled) << qUtf8Printable(menu->Name);
    EXPECT_TRUE(P.Form1->Picture1.Enabled);
}

TEST_F(CloseBranchTest, Bookmarks_Survive)
{
    P.Bookmarks.BookmarkList[0] = u"A002"_s;
    P.Bookmarks.BookmarkCount = 1;

    Close();
    Choose(u"Jones");

    EXPECT_EQ(P.Bookmarks.BookmarkList[0], u"A002"_s);
    EXPECT_EQ(P.Bookmarks.BookmarkCount, 1);
}

TEST_F(CloseBranchTest, WithNoBranchOpen_TheMapGoesToTheHomeDirectory_AndNothingElseChanges)
{
    Close();
    const Tree before = Home.Snapshot();

    Close();

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList{u"new: .cfg"_s});
}

TEST_F(CloseBranchTest, AfterIt_ABranchOpensAgain_AndItsLabelsFollowTheRecords)
{
    Close();

    Choose(u"Smiths");
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"John"_s);
    Records(P.Form3).MoveNext();
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"Mary"_s);
}

TEST_F(CloseBranchTest, ReadOnlyMap_EndsTheProgram_WithNothingClosed)
{
    Home.MakeReadOnly(u"LfgDat_A/LfgDat_A.cfg");
    ExpectFatalBox(u"Run-time error '75':\n\nPath/File access error",
                   u"This can't be opened, made, changed or removed:\n"_s + Home.Path(u"LfgDat_A/LfgDat_A.cfg"));

    Click(P.Form1->mnuCloseDB.Click);

    EXPECT_EQ(ExitCode(), 1);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(P.Map.SBoxes, 1);
}

TEST_F(CloseBranchTest, OnARecordOfAnotherBranch_SavesTheMapsOwnBranch_AndEndsWithNeither)
{
    SwitchToSibling(P, u"B");

    Close();

    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_EQ(P.Branch.WorkDir, QString());
    EXPECT_EQ(P.Branch.HomeDir, Home.Path() + PathSeparator);
}

} // namespace
} // namespace lineforge
