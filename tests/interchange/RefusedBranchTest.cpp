#include "interchange/InterchangeTest.h"
#include "map/tools/MapMouse.h"
#include "program/branch/SiblingBranch.h"
#include "program/branch/WorkDatabase.h"
#include "support/SqliteFile.h"

#include <QDir>
#include <QFile>

#include <tuple>

namespace lineforge
{
namespace
{

enum class Way { Open, Import };

const std::vector<Way> ways{Way::Open, Way::Import};

const char* NameOf(Way way)
{
    return way == Way::Open ? "Open" : "Import";
}

// A user of branch A opens, or brings in, one whose database can't be opened. That one is named from then on, but
// nothing of it is open, and nothing of branch A any more.
class RefusedBranchTest : public InterchangeTest
{
protected:
    RefusedBranchTest()
    {
        GivenSmithsAndJones();
        for (const QStringView directory : {u"LfgDat_B", u"stick/LfgDat_C"}) {
            const QString stem = directory + PathSeparator + directory.last(8);
            Home.WriteFile(QString(stem + u".mdb"), "no database");
            Home.WriteFile(QString(stem + u".txt"), "report");
            const QString gallery = directory + u"/LfgGal_"_s + directory.last(1) + PathSeparator;
            Home.WriteFile(QString(gallery + u"A001_01.jpg"), PictureBytes(Qt::red));
            Home.WriteFile(QString(directory + u"/A001Sub.jpg"), PictureBytes(Qt::green));
        }
        Choose(u"Smiths");
    }

    void BeRefused(Way way)
    {
        if (way == Way::Open)
            return OpenJones();
        ExpectImportDialog(Home.Path(u"stick/LfgDat_C/LfgDat_C.mdb"));
        ExpectImportName(u"Browns");
        ExpectImportQuestion(u"Browns"_s, u"LfgDat_C"_s);
        ExpectCannotOpenBox();
        Click(P.Form1->mnuImpSub.Click);
    }
    void OpenJones()
    {
        ExpectCannotOpenBox();
        Choose(u"Jones");
    }
    QString SurnameOfJohn()
    {
        return SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb"))
            .Value("SELECT Surname FROM Tree99 WHERE File = 'A001'")
            .value_or(QString());
    }
};

struct Command {
    const char* Name;
    void (*Give)(Program& p);
    void (*Expect)(ScriptedPrompts& user);
};

void NoDatabase(ScriptedPrompts& user)
{
    user.Expect(u"Data not available", u"Cannot View until database file is Opened", Buttons::Information);
}

void NothingToMap(ScriptedPrompts& user)
{
    user.Expect(u"Data not available", u"Cannot Map until database file is Opened", Buttons::Information);
}

void NoMap(ScriptedPrompts& user)
{
    user.Expect(u"DataBase not Opened", u"Cannot Change Tree Map until database\nfile is Opened or begins from New",
                Buttons::Information);
}

void Nothing(ScriptedPrompts&) {}

// All that reads, shows or changes records, pictures or the map.
constexpr Command commands[] = {
    {"Bookmark", [](Program& p) { p.Form1->mnuAddBkMark.Click(); }, NoDatabase},
    {"PrintMap", [](Program& p) { p.Form1->mnuPrint.Click(); }, NoDatabase},
    {"PrintRecord", [](Program& p) { p.Form1->mnuPrintRecord.Click(); }, NoDatabase},
    {"PrintBookmarks", [](Program& p) { p.Form1->mnuPrinList.Click(); }, NoDatabase},
    {"BookmarksText", [](Program& p) { p.Form1->mnuTxtFileList.Click(); }, NoDatabase},
    {"DatabaseText", [](Program& p) { p.Form1->mnuTxtDBase.Click(); }, NoDatabase},
    {"DatabaseMenu", [](Program& p) { p.Form1->mnuDataBase.Click(); }, NoDatabase},
    {"ViewRecords", [](Program& p) { p.Form1->mnuViewRecs.Click(); }, NoDatabase},
    {"CompareMenu", [](Program& p) { p.Form1->mnuComp.Click(); }, NoDatabase},
    {"MapSubject", [](Program& p) { p.Form1->mnuMapSubject.Click(); }, NothingToMap},
    {"Remap", [](Program& p) { p.Form1->mnuRemap.Click(); }, NothingToMap},
    {"Tools", [](Program& p) { p.Form1->mnuTreeTools.Click(); }, NoMap},
    {"Records", [](Program& p) { p.Form1->Command1.Click(); }, NoDatabase},
    {"Gallery", [](Program& p) { p.Form1->Command2.Click(); }, NoDatabase},
    {"ViewLineage", [](Program& p) { p.Form1->Command3.Click(); }, NoDatabase},
    {"ClearLineage", [](Program& p) { p.Form1->Command4.Click(); }, NoDatabase},
    {"CompareButton", [](Program& p) { p.Form1->Command5.Click(); }, NoDatabase},
    {"DoubleClick", [](Program& p) { p.Form1->Picture1.DblClick(); }, NoDatabase},
    {"Press",
     [](Program& p) {
         PressMap(p, 0, 1300, 700);
         ReleaseMap(p, 1300, 700);
     },
     Nothing},
    {"Gedcom", [](Program& p) { p.Form12->Command1.Click(); }, NoDatabase},
};

void PrintTo(const Command& command, std::ostream* out)
{
    *out << command.Name;
}

class CommandAfterRefusalTest : public RefusedBranchTest, public testing::WithParamInterface<std::tuple<Way, Command>>
{
};

TEST_P(CommandAfterRefusalTest, MeetsABranchWithoutData_AndChangesNothing)
{
    const auto& [way, command] = GetParam();
    BeRefused(way);
    const Tree before = Home.Snapshot();
    command.Expect(Prompts);

    Click([&] { command.Give(P); });

    EXPECT_TRUE(Prompts.IsUsedUp());
    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_TRUE(P.Form1->Visible);
    for (const bool isVisible : {P.Form3.IsLoaded() && P.Form3->Visible, P.Form5.IsLoaded() && P.Form5->Visible,
                                 P.Form6.IsLoaded() && P.Form6->Visible, P.Form7.IsLoaded() && P.Form7->Visible})
        EXPECT_FALSE(isVisible);
    EXPECT_EQ(P.Tools.ToolMode, 0);
    EXPECT_TRUE(Machine.Printer.Jobs.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Commands, CommandAfterRefusalTest,
                         testing::Combine(testing::ValuesIn(ways), testing::ValuesIn(commands)), [](const auto& turn) {
                             return std::string(NameOf(std::get<Way>(turn.param))) + std::get<Command>(turn.param).Name;
                         });

class AfterRefusalTest : public RefusedBranchTest, public testing::WithParamInterface<Way>
{
protected:
    void BeRefused() { RefusedBranchTest::BeRefused(GetParam()); }
    QString Directory() const { return GetParam() == Way::Open ? u"LfgDat_B"_s : u"LfgDat_C"_s; }
    QString Name() const { return GetParam() == Way::Open ? u"Jones"_s : u"Browns"_s; }
};

INSTANTIATE_TEST_SUITE_P(Ways, AfterRefusalTest, testing::ValuesIn(ways),
                         [](const auto& turn) { return NameOf(turn.param); });

TEST_P(AfterRefusalTest, WindowsWithTheOldBranchsRecords_AreGone_AndTheMapIsInFront)
{
    Click(P.Form1->mnuComp.Click);
    Click(P.Form1->Command1.Click);
    Click(P.Form3->Image1.Click);
    Click(P.Form1->Command2.Click);
    ASSERT_TRUE(P.Form2->Visible && P.Form3->Visible && P.Form5->Visible && P.Form6->Visible && !P.Form1->Visible);

    BeRefused();

    for (const bool isLoaded : {P.Form2.IsLoaded(), P.Form3.IsLoaded(), P.Form5.IsLoaded(), P.Form6.IsLoaded()})
        EXPECT_FALSE(isLoaded);
    EXPECT_TRUE(P.Form1->Visible);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(Directory()));
    EXPECT_EQ(P.Branch.sDbaseName, QString(Directory() + u".mdb"));
    EXPECT_EQ(P.Branch.sBranchName, Name());
}

TEST_P(AfterRefusalTest, OldBranch_OpensAgain)
{
    BeRefused();

    Choose(u"Smiths");
    Click(P.Form1->Command1.Click);

    EXPECT_TRUE(P.Form3->Visible);
    EXPECT_EQ(P.Form3->Text3.Text.value(), u"John"_s);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"John"_s);
}

TEST_P(AfterRefusalTest, TextThatWasTyped_IsStoredInItsOwnBranch)
{
    Click(P.Form1->Command1.Click);
    P.Form3->Text2.Text = u"Brown"_s;

    BeRefused();

    EXPECT_EQ(SurnameOfJohn(), u"Brown"_s);
}

TEST_P(AfterRefusalTest, Delete_TakesTheNamedBranch_AndNothingOfTheOldOne)
{
    BeRefused();
    const Tree before = TreeOf(u"LfgDat_A"_s);

    DeleteForGood(Name(), Directory());

    EXPECT_FALSE(Home.Exists(Directory()));
    EXPECT_EQ(TreeOf(u"LfgDat_A"_s), before);
    EXPECT_FALSE(Registry().contains(Name().toUtf8()));
}

TEST_P(AfterRefusalTest, Backup_CopiesTheNamedBranch)
{
    BeRefused();
    Prompts.Expect(u"Backup Database",
                   u"Backup will copy your current Database File \nand Tree Config file to your chosen destination.",
                   Buttons::Information);
    Prompts.ExpectSaveFile(u"Select Backup Destination Directory", u"DataBase *.mdb|*.mdb|All Files|*.*|",
                           Home.Path(u"x.mdb"));

    Click(P.Form1->mnuBackup.Click);

    EXPECT_EQ(Home.ReadFile(u"x.~md"), "no database");
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_P(AfterRefusalTest, Close_WritesNothing)
{
    BeRefused();
    const Tree before = Home.Snapshot();

    Click(P.Form1->mnuCloseDB.Click);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_EQ(P.Branch.WorkDir, QString());
}

TEST_P(AfterRefusalTest, Exit_WritesNothing)
{
    BeRefused();
    const Tree before = Home.Snapshot();

    Click(P.Form1->mnuExit.Click);

    EXPECT_EQ(ExitCode(), 0);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

// A user with a text that the database of his branch doesn't take, as on a full disk, wants to go over to another.
class RefusedTextTest : public RefusedBranchTest, public testing::WithParamInterface<Way>
{
protected:
    RefusedTextTest()
    {
        for (const QStringView directory : {u"LfgDat_B", u"stick/LfgDat_C"}) {
            QDir(Home.Path(directory)).removeRecursively();
            BranchOf(directory.back()).InDirectory(directory).Build();
        }
        Click(P.Form1->Command1.Click);
        Database("CREATE TRIGGER Refusal BEFORE UPDATE ON Tree99 BEGIN SELECT RAISE(ABORT, 'refused'); END");
        P.Form3->Text2.Text = u"Brown"_s;
    }

    void Database(const QByteArray& statement) { SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb")).Execute(statement); }
    void Go()
    {
        if (GetParam() == Way::Import)
            return Click(P.Form1->mnuImpSub.Click);
        Click(P.Form1->Open.Click);
        P.Form8->List1.SetText(u"Jones"_s);
        Click(P.Form8->Command1.Click);
    }
    void ExpectQuestions()
    {
        if (GetParam() == Way::Open)
            return;
        ExpectImportDialog(Home.Path(u"stick/LfgDat_C/LfgDat_C.mdb"));
        ExpectImportName(u"Browns");
        ExpectImportQuestion(u"Browns"_s, u"LfgDat_C"_s);
    }
};

INSTANTIATE_TEST_SUITE_P(Ways, RefusedTextTest, testing::ValuesIn(ways),
                         [](const auto& turn) { return NameOf(turn.param); });

TEST_P(RefusedTextTest, IsTold_AndStaysInItsBox_WithItsBranchOpen)
{
    const QByteArray registry = Registry();
    ExpectQuestions();
    ExpectErrorBox(ErrorNumber::DeviceIo, u"Device I/O error");

    Go();

    EXPECT_TRUE(Prompts.IsUsedUp());
    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(P.Branch.sBranchName, u"Smiths"_s);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A001"_s);
    EXPECT_EQ(P.Form3->Text2.Text.value(), u"Brown"_s);
    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::File].Text(), u"A001"_s);
    EXPECT_EQ(P.Screen.Pointer.value(), MousePointer::Default);
    EXPECT_EQ(Registry(), registry);
    EXPECT_FALSE(Home.Exists(u"LfgDat_C"));
    EXPECT_EQ(SurnameOfJohn(), u"Smith"_s);
}

TEST_P(RefusedTextTest, IsStoredWhenTheDatabaseTakesIt_AndTheOtherBranchOpens)
{
    ExpectQuestions();
    ExpectErrorBox(ErrorNumber::DeviceIo, u"Device I/O error");
    Go();
    Database("DROP TRIGGER Refusal");
    ExpectQuestions();

    Go();

    EXPECT_EQ(SurnameOfJohn(), u"Brown"_s);
    EXPECT_EQ(P.Branch.sBranchName, GetParam() == Way::Open ? u"Jones"_s : u"Browns"_s);
    EXPECT_EQ(P.Form3->Text2.Text.value(), u"Smith"_s);
}

TEST_F(RefusedBranchTest, OnARecordOfASibling_TheProgramIsOutOfBoth)
{
    BranchOf(u'D').Build();
    SwitchToSibling(P, u"D");

    OpenJones();

    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_FALSE(P.Form3.IsLoaded());
    NoDatabase(Prompts);
    Click(P.Form1->Command1.Click);
}

TEST_F(RefusedBranchTest, GalleryThatIsBeingBuilt_StopsWithItsWindow)
{
    Machine.Loop.AtNextYield([&] {
        P.Form1->Open.Click();
        QDir(Home.Path(u"LfgDat_B")).removeRecursively();
        P.Form8->List1.SetText(u"Jones"_s);
        ExpectCannotOpenBox();
        Click(P.Form8->Command1.Click);
    });

    Click(P.Form1->Command2.Click);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_TRUE(P.Form1->Visible);
    EXPECT_FALSE(P.Form5.IsLoaded() && P.Form5->Visible);
}

TEST_F(RefusedBranchTest, ToolsThatAreOpen_AreClosedByARefusedImport_ForThereIsNoMapToDrawOn)
{
    P.Form1->mnuTreeTools.Click();
    ASSERT_EQ(P.Tools.ToolMode, ToolsOpen);

    BeRefused(Way::Import);

    EXPECT_EQ(P.Tools.ToolMode, 0);
    EXPECT_FALSE(P.Form1->Image7.Visible);
    Click([&] {
        PressMap(P, 0, 1300, 700);
        ReleaseMap(P, 1300, 700);
    });
    EXPECT_EQ(ExitCode(), std::nullopt);
}

} // namespace
} // namespace lineforge
