#include "output/OutputMode.h"
#include "output/OutputTest.h"

#include <QDir>
#include <QFile>

namespace lineforge
{
namespace
{

const QStringView report = u"LfgDat_A/LfgDat_A.txt";
const QStringView reportBefore = u"LfgDat_A/LfgDat_A.~tx";

class TextReportTest : public OutputTest
{
protected:
    void WriteDatabase()
    {
        ExpectDatabaseTextBox();
        P.Form1->mnuTxtDBase.Click();
    }

    void WriteList()
    {
        ExpectListTextBox();
        P.Form1->mnuTxtFileList.Click();
    }
};

TEST_F(TextReportTest, Database_IsWrittenInStorageOrder_OneRecordAfterTheOther)
{
    GivenRecords({{{u"File", u"A003"}}, {{u"File", u"A001"}}, {{u"File", u"A002"}}});

    WriteDatabase();

    EXPECT_EQ(RecordsIn(report), QStringList({u"A003"_s, u"A001"_s, u"A002"_s}));
    const QByteArray text = Home.ReadFile(report);
    EXPECT_TRUE(text.startsWith("     ANCESTRAL RECORD A003\r\n"));
    EXPECT_TRUE(text.contains("Notes(2):      \r\n         \r\n\r\n     ANCESTRAL RECORD A001\r\n"));
    EXPECT_TRUE(text.endsWith("Notes(2):      \r\n         \r\n\r\n"));
}

TEST_F(TextReportTest, Database_IsTold_BeforeAnythingIsWritten)
{
    GivenPeople(1);
    const Tree before = Home.Snapshot();
    ExpectDatabaseTextBox(report, [&] { EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList()); });

    P.Form1->mnuTxtDBase.Click();

    EXPECT_TRUE(Home.Exists(report));
}

TEST_F(TextReportTest, DatabaseThatALockKeepsOut_LeavesTheOldReport_AndNoMode)
{
    GivenPeople(2);
    WriteDatabase();
    const QByteArray text = Home.ReadFile(report);
    std::unique_ptr<SqliteFile> other;
    ExpectDatabaseTextBox(report, [&] { other = LockDatabase(u'A'); });
    ExpectDatabaseInUse(Answer::Cancel);

    Click(P.Form1->mnuTxtDBase.Click);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(Home.ReadFile(report), text);
    EXPECT_EQ(P.Output.OutputMode, OutputMode::None);
    other.reset();
    WriteDatabase();
    EXPECT_EQ(Home.ReadFile(report), text);
}

TEST_F(TextReportTest, Database_ComesBackToTheCurrentRecord_AndLeavesNoMode)
{
    GivenPeople(3);
    GoTo(u"A002");

    WriteDatabase();

    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(P.Output.OutputMode, OutputMode::None);
    EXPECT_EQ(P.Output.TextFile, nullptr);
    EXPECT_EQ(Machine.Printer.Asked, 0);
}

TEST_F(TextReportTest, FirstRun_MakesNoPreviousGeneration)
{
    GivenPeople(1);

    WriteDatabase();

    EXPECT_FALSE(Home.Exists(reportBefore));
}

TEST_F(TextReportTest, SecondRun_KeepsTheFirstResult_ThirdRun_TheSecond)
{
    GivenPeople(1);
    WriteDatabase();
    const QByteArray first = Home.ReadFile(report);
    Records(P.Form3).Edit();
    Records(P.Form3).Put(u"Surname", u"Second"_s);
    Records(P.Form3).Update();

    WriteDatabase();

    const QByteArray second = Home.ReadFile(report);
    EXPECT_NE(second, first);
    EXPECT_EQ(Home.ReadFile(reportBefore), first);
    GivenBookmarks({u"A001"_s, u"A001"_s});

    WriteList();

    EXPECT_EQ(Home.ReadFile(reportBefore), second);
    EXPECT_EQ(Home.ReadFile(report), second + second);
}

TEST_F(TextReportTest, FileThatIsSpeltOtherwise_IsFoundAndKept)
{
    GivenPeople(1);
    Home.WriteFile(u"LfgDat_A/LFGDAT_A.TXT", "before");

    WriteDatabase();

    EXPECT_EQ(Home.ReadFile(reportBefore), "before");
    EXPECT_EQ(QDir(Home.Path(u"LfgDat_A")).entryList({u"*.txt"_s}).size(), 1);
}

TEST_F(TextReportTest, EmptyBranch_GivesAnEmptyFile)
{
    GivenRecords({});

    WriteDatabase();

    EXPECT_TRUE(Home.Exists(report));
    EXPECT_EQ(Home.ReadFile(report), QByteArray());
    EXPECT_EQ(P.Output.OutputMode, OutputMode::None);
}

TEST_F(TextReportTest, List_IsWrittenInItsOrder_FromAllItsBranches_AndEmptied)
{
    GivenPeople(3);
    GivenBookmarks({u"A003"_s, u"B001"_s, u"A001"_s, u"A003"_s, u"A009"_s});
    GoTo(u"A002");

    WriteList();

    EXPECT_EQ(RecordsIn(report), QStringList({u"A003"_s, u"B001"_s, u"A001"_s, u"A003"_s}));
    EXPECT_EQ(P.Bookmarks.BookmarkCount, 0);
    EXPECT_EQ(P.Bookmarks.BookmarkList[0], QString());
    EXPECT_EQ(P.Output.OutputMode, OutputMode::None);
    EXPECT_EQ(P.Output.TextFile, nullptr);
    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(Machine.Printer.Asked, 0);
}

TEST_F(TextReportTest, ListWithASiblingThatCantBeOpened_PassesItOver)
{
    GivenPeople(2);
    Home.WriteFile(u"LfgDat_B/LfgDat_B.mdb", QByteArray(5000, 'x'));
    GivenBookmarks({u"A002"_s, u"B001"_s, u"Q001"_s, u"A001"_s});
    const QString directory = P.Branch.WorkDir;

    WriteList();

    EXPECT_EQ(RecordsIn(report), QStringList({u"A002"_s, u"A001"_s}));
    EXPECT_EQ(P.Branch.WorkDir, directory);
    EXPECT_EQ(P.Branch.UsingAlternate, 0);
}

TEST_F(TextReportTest, EmptyList_OpensTheFileAndClosesItEmpty)
{
    GivenPeople(1);

    WriteList();

    EXPECT_TRUE(Home.Exists(report));
    EXPECT_EQ(Home.ReadFile(report), QByteArray());
}

TEST_F(TextReportTest, FullListOf101_IsPutOutWithoutAnError)
{
    GivenPeople(1);
    GivenBookmarks(QStringList(101, u"A001"_s));
    ExpectListTextBox();

    Click(P.Form1->mnuTxtFileList.Click);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(RecordsIn(report).size(), 101);
    EXPECT_EQ(P.Bookmarks.BookmarkCount, 0);
}

// The list may be written once more after it has been printed, and the other way round.
TEST_F(TextReportTest, ListAfterPrint_IsEmpty)
{
    GivenPeople(1);
    GivenBookmarks({u"A001"_s});
    P.Form1->mnuPrinList.Click();

    WriteList();

    EXPECT_EQ(Home.ReadFile(report), QByteArray());
    EXPECT_EQ(Jobs().size(), 1);
}

TEST_F(TextReportTest, DatabaseBegunOnASiblingsRecord_IsThatOfTheOwnBranch_InTheFileThatWasAnnounced)
{
    GivenPeople(2);
    GivenRecordOfSibling();
    ExpectDatabaseTextBox(u"LfgDat_B/LfgDat_B.txt");

    P.Form1->mnuTxtDBase.Click();

    EXPECT_EQ(RecordsIn(u"LfgDat_B/LfgDat_B.txt"), QStringList({u"A001"_s, u"A002"_s}));
    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(Current(), u"A001"_s);
}

TEST_F(TextReportTest, ListBegunOnASiblingsRecord_KeepsTheFirstRow)
{
    GivenPeople(2);
    GivenRecordOfSibling();
    GivenBookmarks({u"A002"_s, u"B001"_s});
    ExpectListTextBox(u"LfgDat_B/LfgDat_B.txt");

    P.Form1->mnuTxtFileList.Click();

    EXPECT_EQ(RecordsIn(u"LfgDat_B/LfgDat_B.txt"), QStringList({u"A002"_s, u"B001"_s}));
    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_EQ(Current(), u"A001"_s);
}

TEST_F(TextReportTest, ImportedBranch_HasAFileForTheDatabaseAndAnotherForTheList)
{
    BranchBuilder(Home, u'A').InDirectory(u"Import_A").Row({{u"File", u"A001"}}).Picture(u"A001", Qt::red).Build();
    Choose(u"Guests");
    GivenBookmarks({u"A001"_s});
    ExpectDatabaseTextBox(u"Import_A/Import_A.txt");
    P.Form1->mnuTxtDBase.Click();
    ExpectListTextBox(u"Import_A/LfgDat_A.txt");
    P.Form1->mnuTxtFileList.Click();

    EXPECT_EQ(RecordsIn(u"Import_A/Import_A.txt"), QStringList{u"A001"_s});
    EXPECT_EQ(RecordsIn(u"Import_A/LfgDat_A.txt"), QStringList{u"A001"_s});
    EXPECT_FALSE(Home.Exists(u"Import_A/Import_A.~tx"));
    EXPECT_FALSE(Home.Exists(u"Import_A/LfgDat_A.~tx"));
}

TEST_F(TextReportTest, NoBranch_BothCommandsAreTold)
{
    const Tree before = Home.Snapshot();
    ExpectNoBranchBox();
    P.Form1->mnuTxtDBase.Click();
    ExpectNoBranchBox();
    P.Form1->mnuTxtFileList.Click();

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

class TextReportFaultTest : public TextReportTest
{
protected:
    TextReportFaultTest()
    {
        GivenPeople(2);
        WriteDatabase();
        WriteDatabase();
        GivenBookmarks({u"A002"_s});
        Whole = Home.Snapshot();
    }
    ~TextReportFaultTest() override
    {
        for (const QStringView path : {QStringView(u"LfgDat_A"), report})
            if (Home.Exists(path))
                Home.MakeWritable(path);
    }

    void ExpectNothingChanged() { EXPECT_EQ(Differences(Whole, Home.Snapshot()), QStringList()); }

    Tree Whole;
};

TEST_F(TextReportFaultTest, ReadOnlyDirectory_Database_IsRefused_AndBothOldFilesAreWhole)
{
    Home.MakeReadOnly(u"LfgDat_A");
    ExpectDatabaseTextBox();
    ExpectFatalBox(u"Run-time error '75':\n\nPath/File access error",
                   u"This can't be opened, made, changed or removed:\n"_s + Home.Path(u"LfgDat_A/LfgDat_A.~tx"));

    Click(P.Form1->mnuTxtDBase.Click);

    EXPECT_EQ(ExitCode(), 1);
    ExpectNothingChanged();
}

TEST_F(TextReportFaultTest, ReadOnlyDirectory_List_IsRefused_AndBothOldFilesAreWhole)
{
    Home.MakeReadOnly(u"LfgDat_A");
    ExpectListTextBox();
    ExpectFatalBox(u"Run-time error '75':\n\nPath/File access error",
                   u"This can't be opened, made, changed or removed:\n"_s + Home.Path(u"LfgDat_A/LfgDat_A.~tx"));

    Click(P.Form1->mnuTxtFileList.Click);

    EXPECT_EQ(ExitCode(), 1);
    ExpectNothingChanged();
}

TEST_F(TextReportFaultTest, ReadOnlyFile_IsRefused_AndStaysWhole)
{
    Home.MakeReadOnly(report);
    const QByteArray old = Home.ReadFile(report);
    ExpectDatabaseTextBox();
    ExpectFatalBox(u"Run-time error '75':\n\nPath/File access error",
                   u"This can't be opened, made, changed or removed:\n"_s + Home.Path(report));

    Click(P.Form1->mnuTxtDBase.Click);

    EXPECT_EQ(ExitCode(), 1);
    EXPECT_EQ(Home.ReadFile(report), old);
}

TEST_F(TextReportFaultTest, DatabaseSpoiltWhileItIsRead_KeepsTheOldFile)
{
    Records(P.Form3).Rest();
    const QByteArray old = Home.ReadFile(report);
    ExpectDatabaseTextBox(report, [&] {
        QFile file(Home.Path(u"LfgDat_A/LfgDat_A.mdb"));
        const qint64 bytes = file.size();
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_EQ(file.write(QByteArray(bytes, 'x')), bytes);
    });
    ExpectFatalBox(u"Run-time error '3343':\n\nUnrecognized database format.",
                   u"This can't be read as a database of records:\n"_s + Home.Path(u"LfgDat_A/LfgDat_A.mdb"));

    Click(P.Form1->mnuTxtDBase.Click);

    EXPECT_EQ(Home.ReadFile(report), old);
}

TEST_F(TextReportFaultTest, DirectoryVanished_IsRefused)
{
    ExpectDatabaseTextBox(report, [&] { QDir(Home.Path(u"LfgDat_A")).removeRecursively(); });
    ExpectFatalBox(u"Run-time error '76':\n\nPath not found",
                   u"There is no such directory:\n"_s + Home.Path(u"LfgDat_A"));

    Click(P.Form1->mnuTxtDBase.Click);

    EXPECT_EQ(ExitCode(), 1);
}

} // namespace
} // namespace lineforge
