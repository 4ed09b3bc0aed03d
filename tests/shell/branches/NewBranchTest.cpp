#include "shell/branches/NewBranchTest.h"

#include "support/Pixels.h"

#include <QDir>
#include <QFile>

namespace lineforge
{
namespace
{

TEST_F(MadeBranchTest, Files_AreTheTemplatesUnderTheBranchsName_WithAnEmptyGallery)
{
    const Tree before = Home.Snapshot();

    Make(u"Browns", u"LfgDat_C");

    EXPECT_EQ(
        Differences(before, Home.Snapshot()),
        (QStringList{u"changed: AliasList.cfg"_s, u"new: AliasList.bak"_s, u"new: LfgDat_C"_s,
                     u"new: LfgDat_C/LfgDat_C.cfg"_s, u"new: LfgDat_C/LfgDat_C.mdb"_s, u"new: LfgDat_C/LfgGal_C"_s}));
    EXPECT_EQ(MapOf(u'C'), Home.ReadFile(u"LfgEmpt.~cf"));
    EXPECT_EQ(Home.ReadFile(u"LfgDat_C/LfgDat_C.mdb"), Home.ReadFile(u"LfgEmpt.~Md"));
}

TEST_F(MadeBranchTest, Registry_GetsTheEntryAtItsEnd_AndKeepsThePreviousGeneration)
{
    Make(u"Browns", u"LfgDat_C");

    EXPECT_EQ(Registry(), RegistryWith("Browns=LfgDat_C"));
    EXPECT_EQ(Home.ReadFile(u"AliasList.bak"), registryOfTwo);
    EXPECT_EQ(P.Alias.AliasTable[2], u"Browns=LfgDat_C"_s);
    EXPECT_EQ(P.Form8->List1.Items.value(), (QStringList{u"Smiths"_s, u"Jones"_s, u"Browns"_s}));
    EXPECT_EQ(P.Form8->List1.Text(), u"Browns"_s);
}

TEST_F(MadeBranchTest, Variables_TellTheNewBranch_TheDatabaseAsAWholePath)
{
    Make(u"Browns", u"LfgDat_C");

    EXPECT_EQ(P.Branch.sBranchName, u"Browns"_s);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_C"));
    EXPECT_EQ(P.Branch.WorkDirLen, P.Branch.WorkDir.size());
    EXPECT_EQ(P.Branch.sDbaseName, Home.Path(u"LfgDat_C/LfgDat_C.mdb"));
    EXPECT_EQ(P.Form3->Data1.DatabaseName, P.Branch.sDbaseName);
    EXPECT_TRUE(P.Form3->Data1.Records().IsEmpty());
}

TEST_F(MadeBranchTest, MainWindow_ShowsNoSubject_AndItsMenusAreOn)
{
    Choose(u"Smiths");
    ASSERT_FALSE(P.Form1->Image1.Picture.value().isNull());
    P.Form4->Show();

    Make(u"Browns", u"LfgDat_C");

    for (const Label* label :
         {&P.Form1->Label9, &P.Form1->Label10, &P.Form1->Label11, &P.Form1->Label12, &P.Form1->Label14})
        EXPECT_EQ(label->Caption.value(), QString()) << qUtf8Printable(label->Name);
    EXPECT_EQ(P.Form1->Frame1.Caption.value(), QString());
    EXPECT_TRUE(P.Form1->Image1.Picture.value().isNull());
    EXPECT_FALSE(P.Form1->Shape1.Visible);
    EXPECT_FALSE(P.Form4->Visible);
    EXPECT_TRUE(IsBlank(P.Form1->Picture1));
    EXPECT_TRUE(P.Form1->Picture1.Enabled);
    EXPECT_TRUE(P.Form1->mnuEdit.Enabled);
}

TEST_F(MadeBranchTest, BranchThatWasOpen_IsSavedFirst_AndThenLeftAlone)
{
    Choose(u"Smiths");
    MoveFirstBoxTo(1300);

    Make(u"Browns", u"LfgDat_C");

    EXPECT_TRUE(MapOf(u'A').contains("1300,600,255,A001"));
    EXPECT_EQ(MapOf(u'C'), Home.ReadFile(u"LfgEmpt.~cf"));
}

TEST_F(MadeBranchTest, WithNoBranchOpen_NoMapIsWritten)
{
    Make(u"Browns", u"LfgDat_C");

    EXPECT_FALSE(Home.Exists(u".cfg"));
}

TEST_F(MadeBranchTest, DirectoriesAreMadeInTheHome_WhateverTheCurrentDirectoryWas)
{
    Choose(u"Smiths");
    ASSERT_EQ(P.Files.CurDir(), Home.Path(u"LfgDat_A"));

    Make(u"Browns", u"LfgDat_C");

    EXPECT_TRUE(Home.Exists(u"LfgDat_C/LfgGal_C"));
    EXPECT_EQ(P.Files.CurDir(), Home.Path());
}

// The scanner can go to the open branch's directory while a question is up.
TEST_F(MadeBranchTest, DirectoriesAreMadeInTheHome_WhereverTheCurrentDirectoryGoesMeanwhile)
{
    Choose(u"Smiths");
    const Tree before = Home.Snapshot();
    AnswerName(u"Browns", [&] { P.Files.ChDir(Home.Path(u"LfgDat_A")); });
    Confirm(u"Browns", u"LfgDat_C", Answer::Ok, [&] { P.Files.ChDir(Home.Path(u"LfgDat_B")); });
    ExpectEmptyBox();

    Click(P.Form1->New.Click);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(Differences(before, Home.Snapshot()),
              (QStringList{u"changed: AliasList.cfg"_s, u"new: AliasList.bak"_s, u"new: LfgDat_A/LfgDat_A.~cf"_s,
                           u"new: LfgDat_C"_s, u"new: LfgDat_C/LfgDat_C.cfg"_s, u"new: LfgDat_C/LfgDat_C.mdb"_s,
                           u"new: LfgDat_C/LfgGal_C"_s}));
}

TEST_F(MadeBranchTest, AfterABranchWithAFullMap_WhatIsDrawnIsSaved)
{
    QString boxes;
    QString lines;
    for (int row = 0; row < 100; ++row)
        boxes += u"%1,%2,0,0,,"_s.arg(10 + row % 10 * 700).arg(500 + row / 10 * 300);
    for (int row = 0; row < 200; ++row)
        lines += u"100,%1,1100,%1,0,"_s.arg(100 + 40 * row);
    GivenRegistry({{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}, {u"Greens", u"LfgDat_D"}});
    BranchOf(u'D').Boxes(boxes).Lines(lines).Build();
    Choose(u"Greens");
    Make(u"Browns", u"LfgDat_C");
    P.Form1->mnuTreeTools.Click();
    const auto draw = [&](Image forms::Form1::*tool, Point from, Point to) {
        PictureBox& picture = P.Form1->Picture1;
        ((*P.Form1).*tool).Click();
        picture.MouseDown(1, 0, from.X, from.Y);
        picture.MouseMove(1, 0, to.X, to.Y);
        picture.MouseUp(1, 0, to.X, to.Y);
    };
    draw(&forms::Form1::Image7, {1307, 2108}, {1307, 2108});
    draw(&forms::Form1::Image6, {1000, 1000}, {2000, 1000});
    Prompts.Expect(u"Closing Graphics Tools", u"Save the Tree Graphic changes ?", Buttons::InformationYesNo,
                   Answer::Yes);

    P.Form1->Image8.Click();

    EXPECT_EQ(MapOf(u'C'), MapFileBytes(u"LfgDat_C", u"1000,2000,0,0,,", u"1000,1000,2000,1000,0,", u""));
}

TEST_F(MadeBranchTest, TwoInARow_TakeTwoLetters)
{
    Make(u"Browns", u"LfgDat_C");
    Make(u"Greens", u"LfgDat_D");

    EXPECT_EQ(P.Alias.sAliasList, u"Smiths=LfgDat_A,Jones=LfgDat_B,Browns=LfgDat_C,Greens=LfgDat_D,"_s);
}

TEST_F(MadeBranchTest, NewBranch_OpensAgainFromTheList_WithAWarningOfTheBoxesThatWereSavedEmpty)
{
    Make(u"Browns", u"LfgDat_C");

    Prompts.Expect(u"Box Config File record corrupt", u"Config Box Record empty", Buttons::Information);
    ExpectEmptyBox();
    Choose(u"Browns");

    EXPECT_EQ(P.Branch.sDbaseName, u"LfgDat_C.mdb"_s);
}

struct Letters {
    const char* What;
    QStringList Directories;
    QStringView Directory;
};

void PrintTo(const Letters& letters, std::ostream* out)
{
    *out << letters.What;
}

QStringList DirectoriesUpTo(QChar last)
{
    QStringList names;
    for (char16_t letter = u'A'; letter <= last.unicode(); ++letter)
        names += u"LfgDat_"_s + QChar(letter);
    return names;
}

class NewLetterTest : public NewBranchTest, public testing::WithParamInterface<Letters>
{
};

TEST_P(NewLetterTest, FirstFreeLetter_IsTaken)
{
    GivenRegistry();
    WriteTemplates(Home);
    for (const QString& directory : GetParam().Directories)
        Home.MakeDirectory(directory);
    StartProgram(P);

    Make(u"Browns", GetParam().Directory);

    EXPECT_EQ(P.Branch.WorkDir, Home.Path(GetParam().Directory));
}

INSTANTIATE_TEST_SUITE_P(
    Letters, NewLetterTest,
    testing::Values(Letters{"none there", {}, u"LfgDat_A"}, Letters{"A to C", DirectoriesUpTo(u'C'), u"LfgDat_D"},
                    Letters{"A and C", {u"LfgDat_A"_s, u"LfgDat_C"_s}, u"LfgDat_B"},
                    Letters{"A to Y", DirectoriesUpTo(u'Y'), u"LfgDat_Z"},
                    Letters{"spelt in other cases", {u"LFGDAT_A"_s, u"lfgdat_b"_s}, u"LfgDat_C"},
                    Letters{"the last letter of a longer name counts", {u"LfgDat_A"_s, u"LfgDat_XB"_s}, u"LfgDat_C"},
                    Letters{"no letter at the end", {u"LfgDat_A"_s, u"LfgDat_B1"_s, u"LfgDat_"_s}, u"LfgDat_B"},
                    Letters{"other directories", {u"Import_A"_s, u"LfgGal_A"_s, u"MyLfgDat_A"_s}, u"LfgDat_A"}));

TEST_F(MadeBranchTest, DirectoryZ_FillsTheTable_EvenWithGapsBelow)
{
    Choose(u"Smiths");
    Home.MakeDirectory(u"lfgdat_z");
    const Tree before = Home.Snapshot();
    ExpectFullBox();

    P.Form1->New.Click();

    EXPECT_TRUE(Prompts.IsUsedUp());
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(P.Branch.sBranchName, u"Smiths"_s);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList{u"new: LfgDat_A/LfgDat_A.~cf"_s});
}

TEST_F(MadeBranchTest, LetterFreedOnDisk_StaysTakenToTheEndOfTheRun)
{
    Home.MakeDirectory(u"LfgDat_C");
    AnswerName({});
    P.Form1->New.Click();
    QDir().rmdir(Home.Path(u"LfgDat_C"));

    Make(u"Browns", u"LfgDat_D");

    EXPECT_FALSE(Home.Exists(u"LfgDat_C"));
}

TEST_F(MadeBranchTest, DirectoryThatIsThereAfterAll_StopsTheCommand_AndIsNotTouched)
{
    Choose(u"Smiths");
    AnswerName(u"Browns");
    Confirm(u"Browns", u"LfgDat_C", Answer::Ok, [&] {
        Home.WriteFile(u"LfgDat_C/LfgDat_C.cfg", "somebody's map");
        Home.WriteFile(u"LfgDat_C/LfgDat_C.mdb", "somebody's records");
    });
    ExpectDirectoryThereBox();

    P.Form1->New.Click();
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_C"));
    EXPECT_EQ(Registry(), registryOfTwo);

    Click(P.Form1->mnuExit.Click);
    EXPECT_EQ(MapOf(u'C'), "somebody's map");
    EXPECT_EQ(Home.ReadFile(u"LfgDat_C/LfgDat_C.mdb"), "somebody's records");
    EXPECT_FALSE(Home.Exists(u"LfgDat_C/LfgDat_C.~cf"));
}

// What stands in the way of making the directory, other than one that is there.
class DirectoryThatCantBeMadeTest : public MadeBranchTest
{
protected:
    DirectoryThatCantBeMadeTest() { Choose(u"Smiths"); }

    void ExpectRefused()
    {
        const Tree before = Home.Snapshot();
        AnswerName(u"Browns");
        Confirm(u"Browns", u"LfgDat_C");
        ExpectFatalBox(u"Run-time error '75':\n\nPath/File access error",
                       u"This can't be opened, made, changed or removed:\n"_s + Home.Path(u"LfgDat_C"));

        Click(P.Form1->New.Click);

        EXPECT_EQ(ExitCode(), 1);
        EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
        EXPECT_EQ(P.Branch.WorkDirLen, P.Branch.WorkDir.size());
        EXPECT_EQ(P.Branch.sBranchName, u"Smiths"_s);
        // The boxes of the open branch were saved before.
        EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList{u"new: LfgDat_A/LfgDat_A.~cf"_s});
    }
};

TEST_F(DirectoryThatCantBeMadeTest, ForAFileInItsWay_EndsTheProgram_WithTheOldBranchInTheVariables)
{
    Home.WriteFile(u"LfgDat_C", "a file");

    ExpectRefused();
}

TEST_F(DirectoryThatCantBeMadeTest, ForAHomeThatCantBeWritten_EndsTheProgram_WithTheOldBranchInTheVariables)
{
    Home.MakeReadOnly({});

    ExpectRefused();

    Home.MakeWritable({});
}

class MissingTemplateTest : public MadeBranchTest, public testing::WithParamInterface<const char16_t*>
{
};

TEST_P(MissingTemplateTest, EndsTheProgram_WithTheRegistryAsItWas)
{
    QFile::remove(Home.Path(GetParam()));
    AnswerName(u"Browns");
    Confirm(u"Browns", u"LfgDat_C");
    ExpectFatalBox(u"Run-time error '53':\n\nFile not found", u"There is no such file:\n"_s + Home.Path(GetParam()));

    Click(P.Form1->New.Click);

    EXPECT_EQ(ExitCode(), 1);
    EXPECT_EQ(Registry(), registryOfTwo);
    EXPECT_EQ(P.Branch.WorkDir, QString());
    EXPECT_EQ(P.Branch.sBranchName, QString());
}

INSTANTIATE_TEST_SUITE_P(Templates, MissingTemplateTest, testing::Values(u"LfgEmpt.~cf", u"LfgEmpt.~Md"),
                         [](const auto& lost) { return lost.index == 0 ? "Map" : "Records"; });

TEST_F(MadeBranchTest, RegistryThatIsGone_IsWrittenAnewWithAllThatWasKnown)
{
    QFile::remove(Home.Path(u"AliasList.cfg"));
    AnswerName(u"Browns");
    Confirm(u"Browns", u"LfgDat_C");
    // By the list that the record form takes its caption from, and by the command itself.
    Prompts.Expect(u"File not Found.", u"Can't find AliasList.cfg in Home Directory", Buttons::Information);
    Prompts.Expect(u"File not Found.", u"Can't find AliasList.cfg in Home Directory", Buttons::Information);
    ExpectEmptyBox();

    P.Form1->New.Click();

    EXPECT_EQ(Registry(), RegistryWith("Browns=LfgDat_C"));
}

TEST_F(MadeBranchTest, ReadOnlyRegistry_IsTold_AndEndsTheProgram_WithTheRegistryAsItWas)
{
    Home.MakeReadOnly(u"AliasList.cfg");
    AnswerName(u"Browns");
    Confirm(u"Browns", u"LfgDat_C");
    Prompts.Expect(u"File Attribute set for Read Only.",
                   u"Cannot access a Read Only File. Use 'Import File' to read this File.", Buttons::Information);
    Prompts.Expect(u"File Attribute set for Read Only.",
                   u"Cannot access a Read Only File. Use 'Import File' to read this File.", Buttons::Information);
    ExpectFatalBox(u"Run-time error '75':\n\nPath/File access error",
                   u"This can't be opened, made, changed or removed:\n"_s + Home.Path(u"AliasList.cfg"));

    Click(P.Form1->New.Click);

    EXPECT_EQ(ExitCode(), 1);
    EXPECT_EQ(Registry(), registryOfTwo);
}

} // namespace
} // namespace lineforge
