#include "program/branch/WorkDatabase.h"
#include "shell/ShellTest.h"
#include "support/Pixels.h"
#include "support/SqliteFile.h"

#include <QDir>
#include <QFile>

namespace lineforge
{
namespace
{

class OpenBranchTest : public ShellTest
{
protected:
    OpenBranchTest() { GivenSmithsAndJones(); }

    void ExpectPictureBox(QStringView picture, ScriptedPrompts::WhileOpen whileOpen = {})
    {
        const QString text = u"Searched Image File for "_s + picture;
        Prompts.Expect(u"Image not Present", text, Buttons::Information, Answer::Ok, std::move(whileOpen));
    }

    // Lists these instead, and shows them to the user.
    void GivenListed(const std::vector<Alias>& branches)
    {
        GivenRegistry(branches);
        P.Form1->Open.Click();
    }
};

TEST_F(OpenBranchTest, Menu_ShowsTheListWithItsPath)
{
    P.Form1->Open.Click();

    EXPECT_TRUE(P.Form8->Visible);
    EXPECT_EQ(P.Form8->Caption.value(), u"Open Tree Branch"_s);
    EXPECT_EQ(P.Form8->Label1.Caption.value(), u"Path: "_s + Home.Path() + PathSeparator);
    EXPECT_EQ(P.Form8->List1.Items.value(), (QStringList{u"Smiths"_s, u"Jones"_s}));
    EXPECT_EQ(P.Form8->Command1.Caption.value(), u"Open"_s);
    EXPECT_EQ(P.Form8->Command2.Caption.value(), u"Cancel"_s);
    EXPECT_EQ(P.Form8->Command3.Caption.value(), u"Change Directory"_s);
}

TEST_F(OpenBranchTest, MenuWithABranchOpen_SavesItsBoxes)
{
    Choose(u"Smiths");
    MoveFirstBoxTo(1300);

    P.Form1->Open.Click();

    EXPECT_TRUE(MapOf(u'A').contains("1300,600,255,A001"));
    EXPECT_EQ(P.Form8->List1.Text(), u"Smiths"_s);
}

TEST_F(OpenBranchTest, MenuWithNoBranchOpen_WritesNothing)
{
    const Tree before = Home.Snapshot();

    P.Form1->Open.Click();

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(OpenBranchTest, Variables_TellTheBranch_TheDatabaseByItsBareName)
{
    Choose(u"Jones");

    EXPECT_EQ(P.Branch.sBranchName, u"Jones"_s);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_B"));
    EXPECT_EQ(P.Branch.WorkDirLen, P.Branch.WorkDir.size());
    EXPECT_EQ(P.Branch.sDbaseName, u"LfgDat_B.mdb"_s);
    EXPECT_EQ(P.Form3->Data1.DatabaseName, Home.Path(u"LfgDat_B/LfgDat_B.mdb"));
    EXPECT_EQ(P.Files.CurDir(), Home.Path(u"LfgDat_B"));
    EXPECT_EQ(P.Record.sCurFile, u"B001"_s);
    EXPECT_EQ(P.Record.sPicFile, u"B001Sub.Jpg"_s);
}

TEST_F(OpenBranchTest, FirstSubject_IsShownBesideTheMap)
{
    Choose(u"Smiths");

    const forms::Form1& form = *P.Form1;
    EXPECT_EQ(form.Label9.Caption.value(), u"John"_s);
    EXPECT_EQ(form.Label10.Caption.value(), u"Smith"_s);
    EXPECT_EQ(form.Label11.Caption.value(), u"1 May 1901"_s);
    EXPECT_EQ(form.Label12.Caption.value(), u"1950"_s);
    EXPECT_EQ(form.Label14.Caption.value(), u"Mary Jones"_s);
    EXPECT_EQ(form.Label15.Caption.value(), u"none"_s);
    EXPECT_EQ(form.Label17.Caption.value(), u"Male"_s);
    EXPECT_EQ(form.Frame1.Caption.value(), u"Ref  A001"_s);
    EXPECT_GT(form.Image1.Picture.value().pixelColor(10, 10).red(), 200);
}

TEST_F(OpenBranchTest, Captions_TellTheBranch)
{
    Choose(u"Smiths");

    EXPECT_EQ(P.Form1->Caption.value(), u"Lineforge Smiths Tree Branch."_s);
    EXPECT_EQ(P.Form3->Caption.value(), u"Lineforge Smiths Records."_s);
    EXPECT_EQ(P.Form6->Label2.Caption.value(), u"Smiths"_s);
}

TEST_F(OpenBranchTest, Map_IsReadAndDrawn_AndTheFirstRecordsBoxMarked)
{
    Choose(u"Smiths");

    EXPECT_EQ(P.Map.SBoxes, 1);
    EXPECT_EQ(P.Map.SLines, 0);
    EXPECT_EQ(P.Map.STexts, 0);
    EXPECT_GT(CountPixels(P.Form1->Picture1, Rgb(255, 0, 0)), 0);
    EXPECT_TRUE(P.Form1->Shape1.Visible);
    EXPECT_EQ(P.Form1->Shape1.BorderColor.value(), QbColor(9));
}

TEST_F(OpenBranchTest, MenusAndButtons_AreOnAfterwards)
{
    Choose(u"Smiths");

    EXPECT_TRUE(P.Form1->mnuEdit.Enabled);
    EXPECT_TRUE(P.Form1->mnuTreeGraphics.Enabled);
    EXPECT_TRUE(P.Form1->Picture1.Enabled);
}

TEST_F(OpenBranchTest, List_IsUnloadedAfterwards_AndThePointerBackToNormal)
{
    Choose(u"Smiths");

    EXPECT_FALSE(P.Form8.IsLoaded());
    EXPECT_EQ(P.Screen.Pointer.value(), MousePointer::Default);
}

TEST_F(OpenBranchTest, DoubleClickInTheList_OpensLikeTheButton)
{
    P.Form1->Open.Click();
    P.Form8->List1.SetText(u"Jones"_s);

    P.Form8->List1.DblClick();

    EXPECT_EQ(P.Branch.sBranchName, u"Jones"_s);
    EXPECT_FALSE(P.Form8.IsLoaded());
}

TEST_F(OpenBranchTest, NothingSelected_UnloadsTheListAndStops)
{
    P.Form1->Open.Click();

    P.Form8->Command1.Click();

    EXPECT_FALSE(P.Form8.IsLoaded());
    EXPECT_EQ(P.Branch.WorkDir, QString());
    EXPECT_EQ(P.Form1->Caption.value(), u"Lineforge"_s);
}

TEST_F(OpenBranchTest, Cancel_UnloadsTheList_AndTheOpenBranchStays)
{
    Choose(u"Smiths");
    P.Form1->Open.Click();
    P.Form8->List1.SetText(u"Jones"_s);

    P.Form8->Command2.Click();

    EXPECT_FALSE(P.Form8.IsLoaded());
    EXPECT_EQ(P.Branch.sBranchName, u"Smiths"_s);
    EXPECT_EQ(P.Map.SBoxes, 1);
}

TEST_F(OpenBranchTest, WhileItOpens_ListIsHiddenAndThePointerAnHourglass)
{
    QDir(Home.Path(u"LfgDat_A")).removeRecursively();
    ExpectCannotOpenBox([&] {
        EXPECT_FALSE(P.Form8->Visible);
        EXPECT_EQ(P.Screen.Pointer.value(), MousePointer::Hourglass);
    });

    Choose(u"Smiths");

    EXPECT_EQ(P.Screen.Pointer.value(), MousePointer::Default);
}

TEST_F(OpenBranchTest, NameThatBeginsAnEarlierName_OpensTheEarlierBranch)
{
    GivenListed({{u"Smiths", u"LfgDat_B"}, {u"Smith", u"LfgDat_A"}});
    P.Form8->List1.SetText(u"Smith"_s);

    P.Form8->Command1.Click();

    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_B"));
    EXPECT_EQ(P.Branch.sBranchName, u"Smith"_s);
}

TEST_F(OpenBranchTest, NamesAreComparedExactly_WithTheirCase)
{
    GivenListed({{u"smith", u"LfgDat_A"}, {u"Smith", u"LfgDat_B"}});
    P.Form8->List1.SetText(u"Smith"_s);

    P.Form8->Command1.Click();

    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_B"));
}

TEST_F(OpenBranchTest, NameThatTheTableHasNoMore_StopsWithNothingDone)
{
    Choose(u"Smiths");
    P.Form1->Open.Click();
    P.Form8->List1.SetText(u"Jones"_s);
    P.Alias.AliasTable.Erase();

    P.Form8->Command1.Click();

    EXPECT_EQ(P.Branch.sBranchName, u"Smiths"_s);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(P.Map.SBoxes, 1);
    EXPECT_FALSE(IsBlank(P.Form1->Picture1));
    EXPECT_FALSE(P.Form8->Visible);
    EXPECT_EQ(P.Screen.Pointer.value(), MousePointer::Default);
}

TEST_F(OpenBranchTest, FromOneBranchToAnother_LeavesNothingOfTheFirst)
{
    Choose(u"Smiths");
    QFile::remove(Home.Path(u"LfgDat_B/LfgDat_B.mdb"));
    BranchOf(u'B').Boxes(u"3000,900,65280,B002,Mary,").Build();

    Choose(u"Jones");

    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::X].Number(), 3000);
    EXPECT_EQ(P.Map.BoxArr[1][BoxColumn::X].Text(), QString());
    EXPECT_EQ(CountPixels(P.Form1->Picture1, Rgb(255, 0, 0)), 0);
    EXPECT_EQ(P.Form1->Frame1.Caption.value(), u"Ref  B001"_s);
}

TEST_F(OpenBranchTest, OpenBranchChosenAgain_IsReadAgain)
{
    Choose(u"Smiths");
    Records(P.Form3).MoveLast();

    Choose(u"Smiths");

    EXPECT_EQ(P.Record.sCurFile, u"A001"_s);
    EXPECT_EQ(P.Map.SBoxes, 1);
    EXPECT_EQ(P.Form1->Caption.value(), u"Lineforge Smiths Tree Branch."_s);
}

TEST_F(OpenBranchTest, PictureThatIsntThere_DoesNotStopTheOpening)
{
    Choose(u"Smiths");
    QFile::remove(Home.Path(u"LfgDat_B/B001Sub.jpg"));
    ExpectPictureBox(u"B001Sub.Jpg", [&] {
        EXPECT_TRUE(P.Form1->Image1.Picture.value().isNull());
        EXPECT_FALSE(P.Form1->Shape1.Visible);
    });

    Choose(u"Jones");

    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"John"_s);
    EXPECT_EQ(P.Form1->Caption.value(), u"Lineforge Jones Tree Branch."_s);
    EXPECT_EQ(P.Map.SBoxes, 1);
    EXPECT_FALSE(P.Form8.IsLoaded());
}

TEST_F(OpenBranchTest, PictureThatIsNone_CountsAsMissing)
{
    Home.WriteFile(u"LfgDat_A/A001Sub.jpg", "no picture");
    ExpectPictureBox(u"A001Sub.Jpg");

    Choose(u"Smiths");

    EXPECT_TRUE(P.Form1->Image1.Picture.value().isNull());
}

TEST_F(OpenBranchTest, EmptyBranchAfterAnother_OpensWithItsMap_AndShowsNoSubject)
{
    Choose(u"Smiths");
    ASSERT_FALSE(P.Form1->Image1.Picture.value().isNull());
    QFile::remove(Home.Path(u"LfgDat_B/LfgDat_B.mdb"));
    BranchBuilder(Home, u'B').Boxes(u"3000,900,255,0,,").Lines(u"1507,817,2307,817,0,").Build();
    ExpectEmptyBox();

    Choose(u"Jones");

    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::X].Number(), 3000);
    EXPECT_GT(CountPixels(P.Form1->Picture1, Rgb(255, 0, 0)), 0);
    for (const Label* label : {&P.Form1->Label9, &P.Form1->Label10, &P.Form1->Label11, &P.Form1->Label12,
                               &P.Form1->Label14, &P.Form1->Label17})
        EXPECT_EQ(label->Caption.value(), QString()) << qUtf8Printable(label->Name);
    EXPECT_EQ(P.Form1->Frame1.Caption.value(), u"Ref  "_s);
    EXPECT_TRUE(P.Form1->Image1.Picture.value().isNull());
    EXPECT_FALSE(P.Form1->Shape1.Visible);
    EXPECT_FALSE(P.Form8.IsLoaded());
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_B"));
}

TEST_F(OpenBranchTest, RecordWithoutABox_IsShownWithoutAMarker)
{
    GivenListed({{u"Browns", u"LfgDat_C"}});
    BranchOf(u'C').Boxes(u"2000,600,255,C002,Mary,").Build();
    P.Form8->List1.SetText(u"Browns"_s);

    P.Form8->Command1.Click();

    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"John"_s);
    EXPECT_FALSE(P.Form1->Shape1.Visible);
}

TEST_F(OpenBranchTest, MissingMap_IsTold_AndTheBranchOpens)
{
    QFile::remove(Home.Path(u"LfgDat_A/LfgDat_A.cfg"));
    Prompts.Expect(u"Graphic Config File not Found.", u"You need to create a new Ancestral Map for this Database.",
                   Buttons::Information);

    Choose(u"Smiths");

    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"John"_s);
    EXPECT_TRUE(IsBlank(P.Form1->Picture1));
    EXPECT_FALSE(P.Form1->Shape1.Visible);
}

TEST_F(OpenBranchTest, MapCutOffInItsBoxes_CostsWhatIsMissing_AndTheBranchOpens)
{
    Home.WriteFile(u"LfgDat_A/LfgDat_A.cfg", "[Boxes]\r\n1200,600,255,A001,John,\r\n");
    Prompts.Expect(u"Box Config File record corrupt", u"Config Line Record empty", Buttons::Information);

    Choose(u"Smiths");

    EXPECT_EQ(P.Map.SBoxes, 0);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"John"_s);
    EXPECT_TRUE(P.Form1->Shape1.Visible);
}

TEST_F(OpenBranchTest, MapThatIsCutOff_LeavesTheGenerationBefore_WhenTheProgramIsLeft)
{
    Home.WriteFile(u"LfgDat_A/LfgDat_A.~cf", "the map before");
    Home.WriteFile(u"LfgDat_A/LfgDat_A.cfg", "[Boxes]\r\n1200,600,255,A001,John,\r\n");
    Prompts.Expect(u"Box Config File record corrupt", u"Config Line Record empty", Buttons::Information);
    Choose(u"Smiths");

    Click(P.Form1->mnuCloseDB.Click);
    Click(P.Form1->mnuExit.Click);

    EXPECT_EQ(ExitCode(), 0);
    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgDat_A.~cf"), "the map before");
}

TEST_F(OpenBranchTest, LineThatIsNoNumber_CostsOnlyTheLines)
{
    Home.WriteFile(u"LfgDat_A/LfgDat_A.cfg", MapFileBytes(u"LfgDat_A", u"1200,600,255,A001,John,", u"one,two,three,",
                                                          u"300,150,The Smiths,Arial,8,0,"));

    Choose(u"Smiths");

    EXPECT_EQ(P.Map.SBoxes, 0);
    EXPECT_EQ(P.Map.STexts, 0);
    EXPECT_EQ(P.Form1->Caption.value(), u"Lineforge Smiths Tree Branch."_s);
}

TEST_F(OpenBranchTest, ImportedBranch_OpensFromItsDirectory_UnderItsOrdinaryFileNames)
{
    BranchOf(u'C').InDirectory(u"Import_C").Build();
    GivenListed({{u"Cousins", u"Import_C"}});
    P.Form8->List1.SetText(u"Cousins"_s);

    P.Form8->Command1.Click();

    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"Import_C"));
    EXPECT_EQ(P.Branch.sDbaseName, u"LfgDat_C.mdb"_s);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"John"_s);
}

struct BadDatabase {
    const char* What;
    void (*Spoil)(TemporaryHome& home);
};

void PrintTo(const BadDatabase& bad, std::ostream* out)
{
    *out << bad.What;
}

class BadDatabaseTest : public OpenBranchTest, public testing::WithParamInterface<BadDatabase>
{
};

TEST_P(BadDatabaseTest, CannotBeOpened_IsTold_AndChangesNothingOnDisk)
{
    Choose(u"Smiths");
    P.Form1->Open.Click();
    GetParam().Spoil(Home);
    P.Form8->List1.SetText(u"Jones"_s);
    const Tree before = Home.Snapshot();
    ExpectCannotOpenBox();

    P.Form8->Command1.Click();

    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_B"));
    EXPECT_EQ(P.Branch.WorkDirLen, P.Branch.WorkDir.size());
    EXPECT_EQ(P.Branch.sDbaseName, u"LfgDat_B.mdb"_s);
    EXPECT_EQ(P.Branch.sBranchName, u"Jones"_s);
    EXPECT_TRUE(IsBlank(P.Form1->Picture1));
    EXPECT_FALSE(P.Form1->Shape1.Visible);
    EXPECT_EQ(P.Screen.Pointer.value(), MousePointer::Default);
    EXPECT_EQ(P.Form1->Caption.value(), u"Lineforge Smiths Tree Branch."_s);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_P(BadDatabaseTest, ExitAfterIt_WritesNoMapAnywhere)
{
    Choose(u"Smiths");
    P.Form1->Open.Click();
    GetParam().Spoil(Home);
    P.Form8->List1.SetText(u"Jones"_s);
    ExpectCannotOpenBox();
    P.Form8->Command1.Click();
    const Tree before = Home.Snapshot();

    Click(P.Form1->mnuExit.Click);

    EXPECT_EQ(ExitCode(), 0);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_P(BadDatabaseTest, AnotherBranch_OpensAfterIt)
{
    GetParam().Spoil(Home);
    ExpectCannotOpenBox();
    Choose(u"Jones");

    Choose(u"Smiths");

    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"John"_s);
    EXPECT_EQ(P.Map.SBoxes, 1);
}

const QStringView databaseOfB = u"LfgDat_B/LfgDat_B.mdb";

INSTANTIATE_TEST_SUITE_P(
    Databases, BadDatabaseTest,
    testing::Values(
        BadDatabase{"directory gone", [](TemporaryHome& home) { QDir(home.Path(u"LfgDat_B")).removeRecursively(); }},
        BadDatabase{"database gone", [](TemporaryHome& home) { QFile::remove(home.Path(databaseOfB)); }},
        BadDatabase{"read-only", [](TemporaryHome& home) { home.MakeReadOnly(databaseOfB); }},
        BadDatabase{"no database", [](TemporaryHome& home) { home.WriteFile(databaseOfB, QByteArray(5000, 'x')); }},
        BadDatabase{"empty file", [](TemporaryHome& home) { home.WriteFile(databaseOfB, {}); }},
        BadDatabase{"cut off in its first page",
                    [](TemporaryHome& home) { home.WriteFile(databaseOfB, home.ReadFile(databaseOfB).first(50)); }},
        BadDatabase{"without the table",
                    [](TemporaryHome& home) {
                        QFile::remove(home.Path(databaseOfB));
                        SqliteFile(home.Path(databaseOfB)).Execute("CREATE TABLE Tree98 (File TEXT)");
                    }},
        BadDatabase{"a directory of its name", [](TemporaryHome& home) {
                        QFile::remove(home.Path(databaseOfB));
                        home.MakeDirectory(databaseOfB);
                    }}));

} // namespace
} // namespace lineforge
