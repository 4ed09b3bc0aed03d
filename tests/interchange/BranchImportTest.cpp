#include "interchange/InterchangeTest.h"
#include "program/branch/AliasList.h"
#include "program/branch/SiblingBranch.h"
#include "program/branch/WorkDatabase.h"
#include "shell/handlers/InstallHandlers.h"
#include "support/Pixels.h"

#include <QDir>

#include <tuple>

namespace lineforge
{
namespace
{

class BranchImportTest : public InterchangeTest
{
protected:
    // The home has branches A and B; what came from elsewhere stands on the stick.
    BranchImportTest() { GivenSmithsAndJones(); }

    QString OnStick(QChar letter)
    {
        BranchOf(letter)
            .InDirectory(u"stick/LfgDat_%1"_s.arg(letter))
            .Gallery({{QString(letter + u"001_01.jpg"_s), "picture"}})
            .Build();
        return Home.Path(u"stick/LfgDat_%1/LfgDat_%1.mdb"_s.arg(letter));
    }

    void ImportAs(QChar letter, const QString& name, const QString& directory)
    {
        ExpectImportDialog(OnStick(letter));
        ExpectImportName(name);
        ExpectImportQuestion(name, directory);
        Import();
    }

    // Their letter is that of a branch in the list.
    void ImportCousins()
    {
        ExpectImportDialog(OnStick(u'A'));
        ExpectNameInUse(u"Import_A"_s);
        ExpectImportName(u"Cousins");
        ExpectImportQuestion(u"Cousins"_s, u"Import_A"_s);
        Import();
    }

    void ExpectNoChange(const Tree& before) { EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList()); }
};

TEST_F(BranchImportTest, Cancel_EndsInSilence)
{
    const Tree before = Home.Snapshot();
    ExpectImportDialog({});

    Import();

    ExpectNoChange(before);
}

struct ImportRefusalRow {
    QStringView File;
    QStringView Title;
    QStringView Text;
};
class ImportRefusalTest : public BranchImportTest, public testing::WithParamInterface<ImportRefusalRow>
{
};

TEST_P(ImportRefusalTest, Choice_IsRefused)
{
    Home.WriteFile(u"stick/LfgDat_C/LfgDat_C.txt", "text");
    Home.WriteFile(u"stick/LfgDat_C/Other_C.mdb", "other");
    const Tree before = Home.Snapshot();
    ExpectImportDialog(Home.Path(GetParam().File));
    Prompts.Expect(GetParam().Title, GetParam().Text, Buttons::Information);

    Import();

    ExpectNoChange(before);
}

INSTANTIATE_TEST_SUITE_P(Choices, ImportRefusalTest,
                         testing::Values(ImportRefusalRow{u"stick/LfgDat_C/LfgDat_C.mdb", u"File not present.",
                                                          u"File not found."},
                                         ImportRefusalRow{u"stick/LfgDat_C/LfgDat_C.txt", u"Database not selected.",
                                                          u" Must select a database *.mdb file"},
                                         ImportRefusalRow{u"stick/LfgDat_C/Other_C.mdb", u"Database not selected.",
                                                          u" Must select an 'LfgDat_[]' File"}));

TEST_F(BranchImportTest, NewLetter_GoesIntoItsOrdinaryDirectory_IsListed_AndOpens)
{
    ImportAs(u'C', u"Browns"_s, u"LfgDat_C"_s);

    EXPECT_EQ(TreeOf(u"LfgDat_C"_s), TreeOf(u"stick/LfgDat_C"_s));
    EXPECT_TRUE(Registry().contains("[Smiths=LfgDat_A,Jones=LfgDat_B,Browns=LfgDat_C,]"));
    EXPECT_EQ(P.Form8->List1.Items.value().last(), u"Browns"_s);
    EXPECT_EQ(P.Branch.sBranchName, u"Browns"_s);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_C"));
    EXPECT_EQ(P.Branch.WorkDirLen, P.Branch.WorkDir.size());
    EXPECT_EQ(P.Branch.sDbaseName, u"LfgDat_C.mdb"_s);
    EXPECT_EQ(P.Scratch.sNewDir, u"LfgDat_C"_s); // a bare name, as after New
    EXPECT_EQ(P.Files.CurDir(), P.Branch.WorkDir);
    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"C001"_s);
    EXPECT_EQ(P.Form6->Label2.Caption.value(), u"Browns"_s);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
}

TEST_F(BranchImportTest, FirstSubject_IsShownAsByOpen)
{
    ImportAs(u'C', u"Browns"_s, u"LfgDat_C"_s);

    EXPECT_EQ(P.Form1->Frame1.Caption.value(), u"Ref  C001"_s);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"John"_s);
    EXPECT_EQ(P.Form1->Label15.Caption.value(), u"none"_s);
    EXPECT_EQ(P.Record.sPicFile, u"C001Sub.Jpg"_s);
    EXPECT_FALSE(P.Form1->Image1.Picture.value().isNull());
    EXPECT_TRUE(P.Form1->Shape1.Visible);
    EXPECT_EQ(P.Form1->Caption.value(), u"Lineforge Browns Tree Branch."_s);
    EXPECT_EQ(P.Form3->Caption.value(), u"Lineforge Browns Records."_s);
    EXPECT_TRUE(P.Form1->mnuTreeGraphics.Enabled);
}

TEST_F(BranchImportTest, LetterThatIsListed_GoesIntoTheOtherFamily_WithItsOwnFileNames)
{
    ImportCousins();

    EXPECT_EQ(TreeOf(u"Import_A"_s), TreeOf(u"stick/LfgDat_A"_s));
    EXPECT_TRUE(Registry().contains("Cousins=Import_A,"));
    EXPECT_EQ(P.Branch.sDbaseName, u"LfgDat_A.mdb"_s);
}

TEST_F(BranchImportTest, ChangesOfAMapInTheOtherFamily_DontComeBack)
{
    ImportCousins();
    MoveFirstBoxTo(1300);

    P.Form1->mnuCloseDB.Click();
    EXPECT_TRUE(Home.ReadFile(u"Import_A/Import_A.cfg").contains("1300,600,255,A001"));
    Choose(u"Cousins");

    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::X].Text(), u"1200"_s);
}

TEST_F(BranchImportTest, ListAlone_DecidesOnTheDirectory)
{
    GivenRegistry({{u"Jones", u"LfgDat_B"}});
    ReadAliasList(P);
    const Tree before = TreeOf(u"LfgDat_A"_s);
    ExpectImportDialog(OnStick(u'A'));
    ExpectImportName(u"Cousins");
    ExpectImportQuestion(u"Cousins"_s, u"LfgDat_A"_s);
    Prompts.Expect(u"Error Setting New Directory",
                   u"LfgDat_A directory already exists. Must first delete this Database.", Buttons::Information);

    Import();

    EXPECT_EQ(TreeOf(u"LfgDat_A"_s), before);
    EXPECT_FALSE(Registry().contains("Cousins"));
}

TEST_F(BranchImportTest, SecondImportOfALetter_IsRefused)
{
    ImportCousins();
    const Tree before = Home.Snapshot();
    ExpectImportDialog(Home.Path(u"stick/LfgDat_A/LfgDat_A.mdb"));
    ExpectNameInUse(u"Import_A"_s);
    ExpectImportName(u"Others");
    ExpectImportQuestion(u"Others"_s, u"Import_A"_s);
    Prompts.Expect(u"Error Setting New Directory",
                   u"Import_A directory already exists. Must first delete this Database.", Buttons::Information);

    Import();

    ExpectNoChange(before);
    EXPECT_EQ(P.Branch.sBranchName, u"Cousins"_s);
}

TEST_F(BranchImportTest, FileInTheWayOfTheDirectory_IsToldByItsNumber_WithTheOldBranchOpen)
{
    Choose(u"Smiths");
    Home.WriteFile(u"LfgDat_C", "a file");
    const QString database = OnStick(u'C');
    const Tree before = Home.Snapshot();
    ExpectImportDialog(database);
    ExpectImportName(u"Browns");
    ExpectImportQuestion(u"Browns"_s, u"LfgDat_C"_s);
    ExpectPathFileAccessBox();

    Import();

    ExpectNoChange(before);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(P.Branch.sBranchName, u"Smiths"_s);
    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A001"_s);
}

TEST_F(BranchImportTest, RegistryThatCantBeWritten_IsReadAgain_AndTheBranchOpensUnlisted)
{
    const QString database = OnStick(u'C');
    Home.WriteFile(u"AliasList.bak", "previous generation");
    Home.MakeReadOnly(u"AliasList.bak");
    ExpectImportDialog(database);
    ExpectImportName(u"Browns");
    ExpectImportQuestion(u"Browns"_s, u"LfgDat_C"_s);

    Import();

    EXPECT_TRUE(Registry().contains("[Smiths=LfgDat_A,Jones=LfgDat_B,]"));
    EXPECT_EQ(P.Alias.sAliasList, u"Smiths=LfgDat_A,Jones=LfgDat_B,"_s);
    EXPECT_EQ(P.Form8->List1.Items.value(), (QStringList{u"Smiths"_s, u"Jones"_s}));
    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"C001"_s);
}

TEST_F(BranchImportTest, EmptyName_EndsIt)
{
    const QString database = OnStick(u'C');
    const Tree before = Home.Snapshot();
    ExpectImportDialog(database);
    ExpectImportName({});

    Import();

    ExpectNoChange(before);
}

TEST_F(BranchImportTest, NameInUse_CaseIgnored_IsToldAndAskedAgain)
{
    ExpectImportDialog(OnStick(u'C'));
    ExpectImportName(u"SMITHS");
    Prompts.Expect(u"Duplicate Name entered.", u"Cannot have Tree Branch databases with same name",
                   Buttons::Information);
    ExpectImportName(u"Browns");
    ExpectImportQuestion(u"Browns"_s, u"LfgDat_C"_s);

    Import();

    EXPECT_EQ(P.Branch.sBranchName, u"Browns"_s);
}

TEST_F(BranchImportTest, NameThatTheListWouldntGiveBack_IsRefusedAsOneInUse)
{
    ExpectImportDialog(OnStick(u'C'));
    for (const QStringView name : {u"Bro=wns", u" ", u"\u200B", u"\u3164\u0301", u"[]", u"[Smiths", u"Bro[wns"}) {
        ExpectImportName(name);
        Prompts.Expect(u"Duplicate Name entered.", u"Cannot have Tree Branch databases with same name",
                       Buttons::Information);
    }
    ExpectImportName(u"Browns");
    ExpectImportQuestion(u"Browns"_s, u"LfgDat_C"_s);

    Import();

    EXPECT_EQ(P.Branch.sBranchName, u"Browns"_s);
}

TEST_F(BranchImportTest, CancelOfTheQuestion_EndsIt_WithTheOldBranchOpen)
{
    Choose(u"Smiths");
    const QString database = OnStick(u'C');
    const Tree before = Home.Snapshot();
    ExpectImportDialog(database);
    ExpectImportName(u"Browns");
    ExpectImportQuestion(u"Browns"_s, u"LfgDat_C"_s, Answer::Cancel);

    Import();

    ExpectNoChange(before);
    EXPECT_EQ(P.Branch.sBranchName, u"Smiths"_s);
    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A001"_s);
}

TEST_F(BranchImportTest, BranchThatWasOpen_IsNotSaved)
{
    Choose(u"Smiths");
    MoveFirstBoxTo(1300);
    const Tree before = TreeOf(u"LfgDat_A"_s);

    ImportAs(u'C', u"Browns"_s, u"LfgDat_C"_s);

    EXPECT_EQ(TreeOf(u"LfgDat_A"_s), before);
    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::File].Text(), u"C001"_s);
}

TEST_F(BranchImportTest, ToolsThatAreOpen_StaySo)
{
    Choose(u"Smiths");
    P.Form1->mnuTreeTools.Click();
    ASSERT_EQ(P.Tools.ToolMode, ToolsOpen);

    ImportAs(u'C', u"Browns"_s, u"LfgDat_C"_s);

    EXPECT_EQ(P.Tools.ToolMode, ToolsOpen);
}

TEST_F(BranchImportTest, OnARecordOfAnotherBranch_TheImportedOneIsItsOwn)
{
    Choose(u"Smiths");
    SwitchToSibling(P, u"B");

    ImportAs(u'C', u"Browns"_s, u"LfgDat_C"_s);

    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_C"));
    for (Button forms::Form3::*transport : forms::Form3::Transport)
        EXPECT_TRUE(((*P.Form3).*transport).Enabled);
}

TEST_F(BranchImportTest, SourceThatCantBeWritten_IsCopiedIntoFilesThatCan)
{
    const QString database = OnStick(u'C');
    for (const QStringView file : {u"stick/LfgDat_C/LfgDat_C.mdb", u"stick/LfgDat_C/LfgDat_C.cfg",
                                   u"stick/LfgDat_C/C001Sub.jpg", u"stick/LfgDat_C/LfgGal_C/C001_01.jpg"})
        Home.MakeReadOnly(file);
    Home.MakeReadOnly(u"stick/LfgDat_C");
    ExpectImportDialog(database);
    ExpectImportName(u"Browns");
    ExpectImportQuestion(u"Browns"_s, u"LfgDat_C"_s);

    Import();

    for (const QStringView file : {u"LfgDat_C/LfgDat_C.mdb", u"LfgDat_C/LfgDat_C.cfg", u"LfgDat_C/C001Sub.jpg",
                                   u"LfgDat_C/LfgGal_C/C001_01.jpg", u"LfgDat_C"})
        EXPECT_EQ(P.Files.GetAttr(Home.Path(file)) & FileSystem::ReadOnly, 0) << qPrintable(file.toString());
    Records(P.Form3).Edit();
    Records(P.Form3).Put(u"Notes", u"mine"_s);
    Records(P.Form3).Update();
    EXPECT_EQ(Records(P.Form3).Text(u"Notes"), u"mine"_s);
    Home.MakeWritable(u"stick/LfgDat_C");
}

TEST_F(BranchImportTest, SourceWithoutAMap_IsToldAndOpensWithoutOne)
{
    Choose(u"Smiths");
    const QString database = OnStick(u'C');
    QFile::remove(Home.Path(u"stick/LfgDat_C/LfgDat_C.cfg"));
    ExpectImportDialog(database);
    ExpectImportName(u"Browns");
    ExpectImportQuestion(u"Browns"_s, u"LfgDat_C"_s);
    Prompts.Expect(u"Graphic Config File not Found.", u"You need to create a new Ancestral Map for this Database.",
                   Buttons::Information);

    Import();

    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"C001"_s);
    EXPECT_TRUE(IsBlank(P.Form1->Picture1));
}

TEST_F(BranchImportTest, PictureThatIsMissing_IsTold)
{
    const QString database = OnStick(u'C');
    QFile::remove(Home.Path(u"stick/LfgDat_C/C001Sub.jpg"));
    ExpectImportDialog(database);
    ExpectImportName(u"Browns");
    ExpectImportQuestion(u"Browns"_s, u"LfgDat_C"_s);
    Prompts.Expect(u"Image not Present", u"Searched Image File for C001Sub.Jpg", Buttons::Information);

    Import();

    EXPECT_TRUE(P.Form1->Image1.Picture.value().isNull());
    EXPECT_FALSE(P.Form1->Shape1.Visible);
    EXPECT_TRUE(P.Form1->mnuTreeGraphics.Enabled);
}

TEST_F(BranchImportTest, WhatElseStandsInTheSource_StaysThere)
{
    const QString database = OnStick(u'C');
    Home.WriteFile(u"stick/LfgDat_C/letters/1901.txt", "letter");
    Home.WriteFile(u"stick/LfgDat_C/LfgGal_C/letters/1901.txt", "letter");
    Home.WriteFile(u"stick/LfgDat_C/Gr\u00fc\u00dfe.txt", "accents");
    const Tree before = Home.Snapshot();
    ExpectImportDialog(database);
    ExpectImportName(u"Browns");
    ExpectImportQuestion(u"Browns"_s, u"LfgDat_C"_s);

    Import();

    EXPECT_FALSE(Home.Exists(u"LfgDat_C/letters"));
    EXPECT_FALSE(Home.Exists(u"LfgDat_C/LfgGal_C/letters"));
    EXPECT_EQ(Home.ReadFile(u"LfgDat_C/Gr\u00fc\u00dfe.txt"), "accents");
    for (const QString& change : Differences(before, Home.Snapshot()))
        EXPECT_TRUE(change.startsWith(u"new: LfgDat_C"_s) || change.contains(u"AliasList"_s)) << qUtf8Printable(change);
}

TEST_F(BranchImportTest, FileThatCantBeCopied_LeavesThatOneOut_AndTheBranchIsListed)
{
    const QString database = OnStick(u'C');
    QFile::remove(Home.Path(u"stick/LfgDat_C/C002Sub.jpg"));
    ASSERT_TRUE(QFile::link(Home.Path(u"nowhere"), Home.Path(u"stick/LfgDat_C/C002Sub.jpg")));
    ExpectImportDialog(database);
    ExpectImportName(u"Browns");
    ExpectImportQuestion(u"Browns"_s, u"LfgDat_C"_s);

    Import();

    EXPECT_FALSE(QFileInfo(Home.Path(u"LfgDat_C/C002Sub.jpg")).isSymLink());
    EXPECT_TRUE(Registry().contains("Browns=LfgDat_C,"));
    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"C001"_s);
}

TEST_F(BranchImportTest, Hourglass_TurnsFromTheCopiesToTheMap)
{
    QList<MousePointer> pointers;
    const auto watch = P.Screen.Pointer.addNotifier([&] { pointers += P.Screen.Pointer; });

    ImportAs(u'C', u"Browns"_s, u"LfgDat_C"_s);

    ASSERT_FALSE(pointers.isEmpty());
    EXPECT_EQ(pointers.first(), MousePointer::Hourglass);
    EXPECT_EQ(pointers.last(), MousePointer::Default);
}

TEST_F(BranchImportTest, EmptyBranch_OpensWithoutWhatNeedsRecords)
{
    BranchBuilder(Home, u'C')
        .InDirectory(u"stick/LfgDat_C")
        .Boxes(u"1200,600,255,0,0,")
        .Lines(u"1,2,3,4,0,")
        .Texts(u"300,150,The Browns,Arial,8,0,")
        .Build();
    P.Form1->Label9.Caption = u"John"_s;
    ExpectImportDialog(Home.Path(u"stick/LfgDat_C/LfgDat_C.mdb"));
    ExpectImportName(u"Browns");
    ExpectImportQuestion(u"Browns"_s, u"LfgDat_C"_s);
    ExpectEmptyBox();

    Import();

    EXPECT_EQ(P.Form1->Frame1.Caption.value(), u"Ref  "_s);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), QString());
    EXPECT_FALSE(P.Form1->mnuTreeGraphics.Enabled);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_C"));
}

TEST_F(BranchImportTest, FileThatIsNoDatabase_IsListed_AndLeavesWhatOpenWouldLeave)
{
    const auto left = [this] {
        return std::tuple(P.Branch.WorkDir, P.Branch.sDbaseName, P.Branch.sBranchName, int(P.Branch.UsingAlternate),
                          P.Files.CurDir(), P.Form1->Caption.value(), P.Form3.IsLoaded(),
                          P.Form1->Label9.Caption.value(), P.Form1->Shape1.Visible.value(),
                          P.Form1->Image1.Picture.value().isNull(), P.Map.BoxArr[0][BoxColumn::File].Text(),
                          IsBlank(P.Form1->Picture1), P.Form1->mnuTreeGraphics.Enabled.value(),
                          P.Screen.Pointer.value());
    };
    const auto expectBox = [this] {
        Prompts.Expect(u"Read Only or Incorrect Database", u"Cannot open this database", Buttons::Information);
    };
    Home.WriteFile(u"stick/LfgDat_C/LfgDat_C.mdb", "no database");
    Choose(u"Smiths");
    ExpectImportDialog(Home.Path(u"stick/LfgDat_C/LfgDat_C.mdb"));
    ExpectImportName(u"Browns");
    ExpectImportQuestion(u"Browns"_s, u"LfgDat_C"_s);
    expectBox();

    Import();

    EXPECT_TRUE(Registry().contains("Browns=LfgDat_C,"));
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_C"));
    EXPECT_EQ(P.Branch.sDbaseName, u"LfgDat_C.mdb"_s);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    const auto afterImport = left();
    Choose(u"Smiths");
    expectBox();
    Choose(u"Browns");
    EXPECT_EQ(afterImport, left());
}

TEST_F(BranchImportTest, ForeignPeopleInTheOtherFamily_ShowTheirNumberAlone)
{
    // The same map as an ordinary branch with its neighbour and without, and imported with the neighbour there.
    const QStringView boxes = u"1200,600,255,D001,John,2000,600,255,B001,John,";
    GivenRegistry({{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}, {u"Greens", u"LfgDat_D"}});
    BranchOf(u'D').Boxes(boxes).Build();
    BranchOf(u'D').InDirectory(u"stick/LfgDat_D").Boxes(boxes).Build();
    Choose(u"Greens");
    const QImage withForename = P.Form1->Picture1.Image();
    ASSERT_TRUE(QDir().rename(Home.Path(u"LfgDat_B"), Home.Path(u"away")));
    Choose(u"Greens");
    const QImage numberAlone = P.Form1->Picture1.Image();
    ASSERT_TRUE(QDir().rename(Home.Path(u"away"), Home.Path(u"LfgDat_B")));
    ExpectImportDialog(Home.Path(u"stick/LfgDat_D/LfgDat_D.mdb"));
    ExpectNameInUse(u"Import_D"_s);
    ExpectImportName(u"Cousins");
    ExpectImportQuestion(u"Cousins"_s, u"Import_D"_s);

    Import();

    EXPECT_NE(withForename, numberAlone);
    EXPECT_EQ(P.Form1->Picture1.Image(), numberAlone);
}

TEST_F(BranchImportTest, ExportedAndImportedElsewhere_IsTheSameFileByFile_AndPixelByPixel)
{
    Choose(u"Smiths");
    const QImage map = P.Form1->Picture1.Image();
    P.Form1->mnuCloseDB.Click();
    Home.MakeDirectory(u"stick");
    Home.WriteFile(u"LfgDat_A/LfgGal_A/A001_01.jpg", "picture");
    Export(u'A', Home.Path(u"stick"));

    TestPlatform elsewhere;
    Program other(elsewhere.Platform);
    InstallHandlers(other);
    WriteAliasList(elsewhere.Home, {});
    StartProgram(other);
    elsewhere.Prompts.ExpectOpenFile(u"Select Import Database File", Filter, Home.Path(u"stick/LfgDat_A/LfgDat_A.mdb"));
    elsewhere.Prompts.ExpectInput(u"Imported Tree Branch alternate name",
                                  u"Enter alternate user friendly name for this imported Tree Branch Map.", u"Smiths");
    const QString question =
        u"Imported 'Smiths' Database and files will be placed in\ndirectory "_s + elsewhere.Home.Path() + u"/LfgDat_A";
    elsewhere.Prompts.Expect(u"New Directory and Files", question, Buttons::InformationOkCancel);
    other.Form1->mnuImpSub.Click();

    EXPECT_EQ(TreeOf(elsewhere.Home, u"LfgDat_A"_s), TreeOf(u"LfgDat_A"_s));
    EXPECT_EQ(other.Form1->Picture1.Image(), map);
}

} // namespace
} // namespace lineforge
