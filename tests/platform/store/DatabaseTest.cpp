#include "platform/store/Database.h"

#include "platform/base/RuntimeError.h"
#include "platform/store/PeopleTable.h"

#include <QFile>

#include <tuple>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class OpenDatabaseTest : public PeopleTable
{
protected:
    int RefusalToOpen(const QString& path, const QString& table = u"People"_s)
    {
        return RefusalOf([&] { Recordset(databases.Open(files, path), table); });
    }
};

TEST_F(OpenDatabaseTest, MissingFile_IsDatabaseNotFound_AndIsNotMade)
{
    EXPECT_EQ(RefusalToOpen(u"missing.db"_s), ErrorNumber::DatabaseNotFound);
    EXPECT_EQ(RefusalToOpen(u"nowhere/missing.db"_s), ErrorNumber::DatabaseNotFound);
    EXPECT_FALSE(home.Exists(u"missing.db"));
}

TEST_F(OpenDatabaseTest, Directory_IsDatabaseNotFound)
{
    home.MakeDirectory(u"folder");

    EXPECT_EQ(RefusalToOpen(u"folder"_s), ErrorNumber::DatabaseNotFound);
}

TEST_F(OpenDatabaseTest, ReadOnlyFile_IsRefused_WhoeverRunsTheProgram)
{
    home.MakeReadOnly(u"people.db");
    EXPECT_EQ(RefusalToOpen(u"people.db"_s), ErrorNumber::DatabaseReadOnly);

    home.MakeWritable(u"people.db");
    EXPECT_EQ(RefusalToOpen(u"people.db"_s), 0);
}

TEST_F(OpenDatabaseTest, Garbage_IsNotADatabase)
{
    home.WriteFile(u"garbage.db", QByteArray(5000, 'x'));
    home.WriteFile(u"short.db", "hello");

    for (const QString& name : {u"garbage.db"_s, u"short.db"_s}) {
        EXPECT_EQ(RefusalToOpen(name), ErrorNumber::NotADatabase);
        EXPECT_EQ(RefusalOf([&] { std::ignore = databases.Open(files, name); }), ErrorNumber::NotADatabase)
            << "told by the opening itself";
    }
}

TEST_F(OpenDatabaseTest, FileOfNoBytes_HasNoTable)
{
    home.WriteFile(u"empty.db", {});

    EXPECT_EQ(RefusalToOpen(u"empty.db"_s), ErrorNumber::TableNotFound);
    EXPECT_EQ(home.ReadFile(u"empty.db"), QByteArray());
}

TEST_F(OpenDatabaseTest, DatabaseWithoutTheTable_IsTableNotFound)
{
    EXPECT_EQ(RefusalToOpen(u"people.db"_s, u"Tree99"_s), ErrorNumber::TableNotFound);
    EXPECT_EQ(RefusalToOpen(u"people.db"_s, QString()), ErrorNumber::TableNotFound);
}

TEST_F(OpenDatabaseTest, TableNameInOtherCase_IsFound)
{
    EXPECT_EQ(RefusalToOpen(u"people.db"_s, u"PEOPLE"_s), 0);
}

TEST_F(OpenDatabaseTest, DamagedDatabase_IsRefused_NotReadWrongly)
{
    GivenPeople({u"Ann"_s});
    QByteArray bytes = home.ReadFile(u"people.db");
    bytes.replace(100, bytes.size() - 100, QByteArray(bytes.size() - 100, '\x7f'));
    home.WriteFile(u"damaged.db", bytes);

    EXPECT_EQ(RefusalToOpen(u"damaged.db"_s), ErrorNumber::NotADatabase);
}

TEST_F(OpenDatabaseTest, OpeningAndWalking_ChangeNoByte_AndLeaveNoFile)
{
    GivenPeople({u"Ann"_s, u"Bob"_s});
    const Tree before = home.Snapshot();
    {
        Recordset people = Open();
        Walk(people);
        people.Seek(u"Name", u"Bob"_s);
        people.MoveLast();
        people.MovePrevious();
        people.Edit();
        people.Put(u"Name", u"not stored"_s);
        EXPECT_EQ(Differences(before, home.Snapshot()), QStringList());
    }
    EXPECT_EQ(Differences(before, home.Snapshot()), QStringList());
}

TEST_F(OpenDatabaseTest, PathInOtherCase_IsTheSameOpenFile)
{
    const auto one = databases.Open(files, u"people.db"_s);

    EXPECT_EQ(databases.Open(files, u"PEOPLE.DB"_s), one);
    EXPECT_EQ(databases.Open(files, home.Path(u"x/../People.db")), one);
}

TEST_F(OpenDatabaseTest, FileThatNobodyUsesAnyMore_IsOpenedAfresh)
{
    std::ignore = databases.Open(files, u"people.db"_s);
    home.WriteFile(u"people.db", "no database any more");

    EXPECT_EQ(RefusalToOpen(u"people.db"_s), ErrorNumber::NotADatabase);
}

TEST_F(OpenDatabaseTest, FileReplacedBehindTheOpenOne_IsGoneOverTo)
{
    GivenPeople({u"Ann"_s});
    Recordset old = Open();
    SqliteFile(home.Path(u"other.db"))
        .Execute("CREATE TABLE People (File TEXT, Name TEXT); INSERT INTO People VALUES ('A009', 'Zoe')");
    ASSERT_TRUE(databases.Open(files, u"people.db"_s)->IsStillThere());

    files.FileCopy(u"other.db"_s, u"people.db"_s);

    Recordset fresh = Open();
    EXPECT_EQ(fresh.Text(u"Name"), u"Zoe");
    EXPECT_FALSE(old.HasRow()) << "Ann is not in the file that stands there now";
    old.MoveFirst();
    EXPECT_EQ(old.Text(u"Name"), u"Zoe");
}

TEST_F(OpenDatabaseTest, DeletedFile_IsNotStillThere)
{
    const auto database = databases.Open(files, u"people.db"_s);
    files.Kill(u"people.db"_s);

    EXPECT_FALSE(database->IsStillThere());
    EXPECT_EQ(RefusalToOpen(u"people.db"_s), ErrorNumber::DatabaseNotFound);
}

TEST_F(OpenDatabaseTest, ClosedFile_LeavesNothingOpen)
{
    const auto openFiles = [] { return FileSystem(u"/proc/self/fd"_s).Files(u"*"_s).size(); };
    GivenPeople({u"Ann"_s});
    const auto before = openFiles();
    {
        Recordset people = Open();
        people.MoveFirst();
        EXPECT_GT(openFiles(), before);
    }
    EXPECT_EQ(openFiles(), before);

    EXPECT_EQ(RefusalToOpen(u"people.db"_s, u"NoSuchTable"_s), ErrorNumber::TableNotFound);
    EXPECT_EQ(openFiles(), before) << "nor does a refused opening";
}

class StatementTest : public PeopleTable
{
};

TEST_F(StatementTest, Changes_GrowWithEveryRowWritten)
{
    GivenPeople({u"Ann"_s, u"Bob"_s});
    const auto database = databases.Open(files, u"people.db"_s);
    const std::int64_t before = database->Changes();

    database->Prepare("SELECT * FROM People")->Step();
    EXPECT_EQ(database->Changes(), before);
    database->Prepare("UPDATE People SET Name = 'x'")->Step();
    EXPECT_EQ(database->Changes(), before + 2);
}

TEST_F(StatementTest, Values_AreBoundAndReadByTheirKind)
{
    const auto database = databases.Open(files, u"people.db"_s);
    const auto statement = database->Prepare("SELECT ?1 AS Number, ?2 AS Text, ?3 AS Missing, ?4 AS Empty");
    statement->Bind(0, std::int64_t{1} << 40);
    statement->Bind(1, QByteArrayView("Zo\xC3\xAB"));
    statement->BindNull(2);
    statement->Bind(3, QByteArrayView());

    ASSERT_TRUE(statement->Step());
    EXPECT_EQ(statement->Columns(), 4);
    EXPECT_EQ(statement->ColumnNames()[1], u"Text"_s);
    EXPECT_EQ(statement->Integer(0), std::int64_t{1} << 40);
    EXPECT_EQ(statement->Text(1).toByteArray(), "Zo\xC3\xAB");
    EXPECT_TRUE(statement->Text(2).isNull());
    EXPECT_FALSE(statement->Text(3).isNull()) << "no characters are an empty text";
    EXPECT_EQ(statement->Text(3).size(), 0);
    EXPECT_FALSE(statement->Step());
}

TEST_F(StatementTest, ResetStatement_RunsAgain)
{
    GivenPeople({u"Ann"_s, u"Bob"_s});
    const auto database = databases.Open(files, u"people.db"_s);
    const auto statement = database->Prepare("SELECT Name FROM People ORDER BY rowid");

    ASSERT_TRUE(statement->Step());
    statement->Reset();
    ASSERT_TRUE(statement->Step());
    EXPECT_EQ(statement->Text(0).toByteArray(), "Ann");
}

} // namespace
} // namespace lineforge
