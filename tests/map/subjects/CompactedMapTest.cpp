#include "map/subjects/SubjectMappingTest.h"
#include "map/tools/ToolsTest.h"
#include "platform/store/OtherPrograms.h"
#include "shell/run/RunHandler.h"

// The map's own writing of records, in a file that another program has compacted meanwhile.
namespace lineforge
{
namespace
{

using namespace Qt::StringLiterals;

class CompactedMappingTest : public SubjectMappingTest
{
protected:
    void Execute(const QByteArray& sql) { SqliteFile(Home.Path(BranchA.DatabaseFile())).Execute(sql); }
};

TEST_F(CompactedMappingTest, NewSubject_BecomesARecordOfItsOwn)
{
    GivenRecords({u"A001"_s, u"A002"_s, u"A003"_s});
    Records(P.Form3).MoveLast();
    Records(P.Form3).Rest();
    ChooseNewRecord();
    Execute("DELETE FROM Tree99 WHERE File = 'A001'; VACUUM");

    DoubleClickBox(0);

    EXPECT_EQ(FilesOf(BranchA), QStringList({u"A002"_s, u"A003"_s, u"A001"_s}));
    EXPECT_EQ(GendersOf(BranchA), QStringList({u"Female"_s, u"Female"_s, u"Male"_s}));
    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_EQ(FileOf(0), u"A001"_s);
}

TEST_F(CompactedMappingTest, NewSubject_TakesNoNumberThatAnotherProgramHasGiven)
{
    GivenRecords({u"A001"_s});
    ChooseNewRecord();
    Execute("INSERT INTO Tree99 (File) VALUES ('A002')");

    DoubleClickBox(0);

    EXPECT_EQ(FilesOf(BranchA), QStringList({u"A001"_s, u"A002"_s, u"A003"_s}));
    EXPECT_EQ(FileOf(0), u"A003"_s);
}

TEST_F(CompactedMappingTest, UnmappedSubject_IsTheOneNamed)
{
    GivenRecords({u"A001"_s, u"A002"_s, u"A003"_s});
    Choose(&forms::Form7::Option2, u"A002");
    Execute("DELETE FROM Tree99 WHERE File = 'A001'; VACUUM");

    DoubleClickBox(0);

    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(FileOf(0), u"A002"_s);
}

TEST_F(CompactedMappingTest, NewSubjectThatALockKeepsOut_LeavesTheBoxFree)
{
    GivenRecords({u"A001"_s});
    ChooseNewRecord();
    P.Databases.Others().Milliseconds = 0;
    {
        SqliteFile other(Home.Path(BranchA.DatabaseFile()));
        other.Execute("BEGIN EXCLUSIVE");
        Prompts.Expect(u"Database in use", u"The Database is in use by another program.",
                       Buttons::InformationRetryCancel, Answer::Cancel);
        const QString before = FileOf(0);
        RunHandler(P, [this] { DoubleClickBox(0); });
        EXPECT_EQ(FileOf(0), before);
    }
    EXPECT_EQ(FilesOf(BranchA), QStringList({u"A001"_s}));
}

class CompactedToolsTest : public ToolsTest
{
};

TEST_F(CompactedToolsTest, BoxMovedMeanwhile_KeepsItsOwnCaption_AndTheRecordIsCurrentAgain)
{
    for (const QString& file : {u"A001"_s, u"A002"_s, u"A003"_s})
        BranchA.Row({{u"File", file}, {u"Forename", QString(u"N" + file)}});
    BranchA.Boxes(u"1000,1000,255,A002,NA002,");
    GivenTools();
    Choose(ToolSelection::BoxMove);
    Press({1100, 1100});
    ASSERT_EQ(P.Tools.MapCursorMode, MapCursor::MovingSubject);
    SqliteFile(Home.Path(BranchA.DatabaseFile())).Execute("DELETE FROM Tree99 WHERE File = 'A001'; VACUUM");

    Release({1100, 1100});

    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A002"_s);
    EXPECT_EQ(P.Record.sForeName, u"NA002"_s);
}

} // namespace
} // namespace lineforge
