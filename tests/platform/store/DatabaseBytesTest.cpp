#include "platform/store/DatabaseBytes.h"

#include "platform/store/OtherPrograms.h"
#include "platform/store/PeopleTable.h"
#include "support/ChildProcess.h"
#include "support/CutOffChange.h"

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class DatabaseBytesTest : public PeopleTable
{
protected:
    DatabaseBytesTest()
    {
        GivenPeople({u"Ann"_s, u"Bob"_s});
        databases.Others().Milliseconds = 0;
    }

    std::optional<QByteArray> Bytes(QStringView name = u"people.db")
    {
        return DatabaseBytes(databases.Others(), home.Path(name));
    }

    // The names in a database of those bytes.
    QStringList NamesIn(const std::optional<QByteArray>& bytes)
    {
        SqliteFile copy(home.WriteFile(u"copy.db", bytes.value_or(QByteArray())));
        EXPECT_EQ(copy.Value("PRAGMA integrity_check"), u"ok"_s);
        QStringList names;
        for (const SqliteFile::Row& row : copy.Query("SELECT Name FROM People ORDER BY rowid"))
            names += row.front().value_or(u"-"_s);
        return names;
    }
};

TEST_F(DatabaseBytesTest, AreThoseOfTheFile_AndNothingIsLeftBeside)
{
    const Tree before = home.Snapshot();
    EXPECT_EQ(Bytes(), home.ReadFile(u"people.db"));
    EXPECT_EQ(Differences(before, home.Snapshot()), QStringList());
}

TEST_F(DatabaseBytesTest, OfMoreThanABlock_AreWhole)
{
    SqliteFile(FilePath()).Execute("INSERT INTO People VALUES ('A003', hex(zeroblob(1500000)))");
    EXPECT_EQ(Bytes(), home.ReadFile(u"people.db"));
}

TEST_F(DatabaseBytesTest, ChangeThatAnotherProgramHasntCommitted_IsntInThem)
{
    SqliteFile other(FilePath());
    other.Execute("BEGIN IMMEDIATE; UPDATE People SET Name = 'half'");
    EXPECT_EQ(NamesIn(Bytes()), QStringList({u"Ann"_s, u"Bob"_s}));
    other.Execute("COMMIT");
    EXPECT_EQ(NamesIn(Bytes()), QStringList({u"half"_s, u"half"_s}));
}

TEST_F(DatabaseBytesTest, CommitOfAnotherProgram_IsAskedAbout_AndWaitedFor)
{
    auto other = std::make_unique<SqliteFile>(FilePath());
    other->Execute("BEGIN EXCLUSIVE; UPDATE People SET Name = 'new'");
    QStringList asked;
    databases.Others().AskRetry = [&](const QString& path) {
        asked += path;
        other->Execute("COMMIT");
        return true;
    };
    EXPECT_EQ(NamesIn(Bytes()), QStringList({u"new"_s, u"new"_s}));
    EXPECT_EQ(asked, QStringList(FilePath()));
}

TEST_F(DatabaseBytesTest, CommitThatIsntWaitedFor_Refuses)
{
    SqliteFile other(FilePath());
    other.Execute("BEGIN EXCLUSIVE");
    databases.Others().AskRetry = [](const QString&) { return false; };
    EXPECT_EQ(ToldRefusalOf([&] { Bytes(); }), ErrorNumber::DatabaseBusy);
}

// The newest stands in a file beside it, as long as the other program has it open.
TEST_F(DatabaseBytesTest, OfADatabaseWithALogOfItsChanges_HaveThoseInThem)
{
    SqliteFile other(FilePath());
    other.Execute("PRAGMA journal_mode = WAL; UPDATE People SET Name = 'Bobby' WHERE Name = 'Bob'");
    ASSERT_TRUE(home.Exists(u"people.db-wal"));
    EXPECT_EQ(NamesIn(Bytes()), QStringList({u"Ann"_s, u"Bobby"_s}));
    other.Execute("BEGIN IMMEDIATE; DELETE FROM People");
    EXPECT_EQ(NamesIn(Bytes()), QStringList({u"Ann"_s, u"Bobby"_s}));
}

TEST_F(DatabaseBytesTest, ChangeThatWasCutOff_IsTakenBack)
{
    CutOffChange(FilePath(), "UPDATE People SET Name = 'half done'",
                 "INSERT INTO People VALUES ('x', hex(zeroblob(500)))");
    ASSERT_TRUE(home.Exists(u"people.db-journal"));

    EXPECT_EQ(NamesIn(Bytes()), QStringList({u"Ann"_s, u"Bob"_s}));
    EXPECT_FALSE(home.Exists(u"people.db-journal"));
}

// A lock of this process is gone as soon as any handle on the file is closed that isn't the engine's.
TEST_F(DatabaseBytesTest, LockThatThisProcessHolds_StaysWhileTheyAreRead)
{
    SqliteFile ours(FilePath());
    ours.Execute("BEGIN IMMEDIATE");
    Bytes();
    EXPECT_EQ(ExitCodeInChild([&] { return SqliteFile(FilePath()).Try("BEGIN IMMEDIATE"); }), 5);
}

TEST_F(DatabaseBytesTest, OfATornDatabase_AreWhatIsLeft)
{
    const QByteArray left = home.ReadFile(u"people.db").first(5000);
    home.WriteFile(u"torn.db", left);
    EXPECT_EQ(Bytes(u"torn.db").value_or(left), left);
}

TEST_F(DatabaseBytesTest, WhatIsNoDatabaseOfOurs_HasNone)
{
    home.WriteFile(u"other.mdb", QByteArray("\0\1\0\0Standard Jet DB\0", 20) + QByteArray(4000, 'x'));
    home.MakeDirectory(u"directory");
    ASSERT_EQ(mkfifo(home.Path(u"pipe").toLocal8Bit().constData(), 0600), 0);
    for (const QStringView name : {u"other.mdb", u"directory", u"pipe", u"gone.db"})
        EXPECT_EQ(Bytes(name), std::nullopt) << qUtf8Printable(name.toString());
}

} // namespace
} // namespace lineforge
