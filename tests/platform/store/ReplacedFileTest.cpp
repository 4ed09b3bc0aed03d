#include "platform/base/RuntimeError.h"
#include "platform/store/OtherPrograms.h"
#include "platform/store/PeopleTable.h"

#include <QFile>

// A program that keeps directories the same on several machines puts another file in the place of the open one. What is
// read and written from then on is that file's, and nothing of what was typed is lost.
namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class ReplacedFileTest : public PeopleTable
{
protected:
    ReplacedFileTest()
    {
        GivenPeople({u"Ann"_s, u"Bob"_s, u"Cid"_s, u"Dora"_s});
        databases.Others().TellReplaced = [this](const QString& path) { told.push_back(path); };
        databases.Others().TellChanged = [this](const QString& record) { told.push_back(record + u" changed"_s); };
        databases.Others().TellGone = [this](const QString& record) { told.push_back(record + u" gone"_s); };
    }

    // By a copy of it, changed by these statements.
    void Replace(const QByteArray& sql = "SELECT 1")
    {
        const QString fresh = home.Path(u"fresh.db");
        QFile::remove(fresh);
        ASSERT_TRUE(QFile::copy(FilePath(), fresh));
        SqliteFile(fresh).Execute(sql);
        TakeItsPlace(fresh);
    }
    void TakeItsPlace(const QString& fresh)
    {
        ASSERT_EQ(std::rename(QFile::encodeName(fresh).constData(), QFile::encodeName(FilePath()).constData()), 0);
    }

    // What is told at the end of a command.
    QStringList Told()
    {
        databases.Others().TellOfReplaced();
        return std::exchange(told, {});
    }

    QStringList told;
};

TEST_F(ReplacedFileTest, NextMove_TakesTheNewFile_AndTells)
{
    Recordset people = Open();
    OnBob(people);
    Replace("UPDATE People SET Name = 'Sid' WHERE Name = 'Cid'");

    people.MoveNext();

    EXPECT_EQ(people.Text(u"Name"), u"Sid");
    EXPECT_EQ(Told(), QStringList(FilePath()));
    people.MoveNext();
    EXPECT_EQ(Told(), QStringList()) << "once";
}

TEST_F(ReplacedFileTest, Move_GoesOnFromTheSamePerson_WhereverHeStands)
{
    Recordset people = Open();
    OnBob(people);
    Replace("DELETE FROM People WHERE Name = 'Ann'; VACUUM");

    people.MoveNext();

    EXPECT_EQ(people.Text(u"Name"), u"Cid");
}

TEST_F(ReplacedFileTest, Edit_GoesToTheNewFile_IntoTheSamePerson)
{
    Recordset people = Open();
    OnBob(people);
    Replace("DELETE FROM People WHERE Name = 'Ann'; VACUUM");

    Rename(people, u"Bobby"_s);

    EXPECT_EQ(Stored(), QStringList({u"Bobby"_s, u"Cid"_s, u"Dora"_s}));
    EXPECT_EQ(Told(), QStringList(FilePath()));
}

TEST_F(ReplacedFileTest, EditOfAPersonWhoIsAnotherThere_IsNotStored_AndTold)
{
    Recordset people = Open();
    OnBob(people);
    Replace("UPDATE People SET Name = 'Robert' WHERE Name = 'Bob'");

    EXPECT_EQ(RefusalOf([&] { Rename(people, u"Bobby"_s); }), ErrorNumber::RecordChanged);

    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Robert"_s, u"Cid"_s, u"Dora"_s}));
    EXPECT_EQ(Told(), QStringList({FilePath(), u"Record A002 changed"_s}));
}

TEST_F(ReplacedFileTest, EveryCursorOnTheFile_GoesOver)
{
    Recordset one = Open();
    Recordset other = Open();
    OnBob(one);
    other.MoveLast();
    Replace("INSERT INTO People VALUES ('A005', 'Eve')");

    one.MoveNext();
    other.MoveNext();

    EXPECT_EQ(other.Text(u"Name"), u"Eve");
    EXPECT_EQ(Walk(one), QStringList({u"Ann"_s, u"Bob"_s, u"Cid"_s, u"Dora"_s, u"Eve"_s}));
    EXPECT_EQ(Told(), QStringList(FilePath())) << "one file, told once";
}

TEST_F(ReplacedFileTest, WalkUnderWay_GoesOnInTheNewFile_OnceAnotherCursorHasSeenIt)
{
    Recordset walking = Open();
    walking.MoveFirst();
    Recordset other = Open();
    Replace("UPDATE People SET Name = 'Robert' WHERE Name = 'Bob'");
    Rename(other, u"Anna"_s);

    walking.MoveNext();

    EXPECT_EQ(walking.Text(u"Name"), u"Robert");
}

TEST_F(ReplacedFileTest, Bookmarks_LeadToTheSamePeopleInTheNewFile)
{
    Recordset people = Open();
    people.MoveLast();
    const Bookmark dora = people.GetBookmark();
    Replace("DELETE FROM People WHERE Name = 'Ann'; VACUUM");
    people.MoveFirst();

    people.SetBookmark(dora);

    EXPECT_EQ(people.Text(u"Name"), u"Dora");
}

TEST_F(ReplacedFileTest, ReplacedAgainAndAgain_IsFollowedEachTime)
{
    Recordset people = Open();
    OnBob(people);
    for (const QString& name : {u"Bobby"_s, u"Robert"_s, u"Rob"_s}) {
        // One more before all others each time.
        Replace("INSERT INTO People (rowid, Name) SELECT min(rowid) - 1, 'New' FROM People; VACUUM");
        Rename(people, name);
        people.MoveNext();
        EXPECT_EQ(people.Text(u"Name"), u"Cid");
        people.MovePrevious();
        EXPECT_EQ(people.Text(u"Name"), name);
    }
    EXPECT_EQ(Stored(), QStringList({u"New"_s, u"New"_s, u"New"_s, u"Ann"_s, u"Rob"_s, u"Cid"_s, u"Dora"_s}));
}

TEST_F(ReplacedFileTest, FileThatIsNoDatabase_DoesNotKeepFromReading_ButFromWriting)
{
    Recordset people = Open();
    OnBob(people);
    TakeItsPlace(home.WriteFile(u"fresh.db", QByteArray(5000, 'x')));

    people.MoveNext();
    EXPECT_EQ(people.Text(u"Name"), u"Cid");
    EXPECT_EQ(RefusalOf([&] { Rename(people, u"Sid"_s); }), ErrorNumber::DatabaseBusy);
    EXPECT_EQ(home.ReadFile(u"people.db"), QByteArray(5000, 'x'));
    EXPECT_EQ(Told(), QStringList());
}

// As programs leave it that put the content in later.
TEST_F(ReplacedFileTest, EmptyFile_DoesNotKeepFromReading_ButFromWriting_UntilItsContentHasCome)
{
    Recordset people = Open();
    OnBob(people);
    Replace("UPDATE People SET Name = 'Sid' WHERE Name = 'Cid'");
    const QByteArray content = home.ReadFile(u"people.db");
    TakeItsPlace(home.WriteFile(u"fresh.db", {}));

    EXPECT_EQ(RefusalOf([&] { Rename(people, u"Bobby"_s); }), ErrorNumber::DatabaseBusy);
    people.MoveNext();
    EXPECT_EQ(people.Text(u"Name"), u"Cid");
    EXPECT_EQ(Told(), QStringList());
    EXPECT_EQ(home.ReadFile(u"people.db"), QByteArray());
    TakeItsPlace(home.WriteFile(u"fresh.db", content));

    people.MoveFirst();
    people.MoveNext();
    people.MoveNext();

    EXPECT_EQ(people.Text(u"Name"), u"Sid");
    EXPECT_EQ(Told(), QStringList(FilePath()));
}

TEST_F(ReplacedFileTest, FileThatCanOnlyBeRead_DoesNotKeepFromReading_ButFromWriting)
{
    Recordset people = Open();
    OnBob(people);
    Replace();
    home.MakeReadOnly(u"people.db");

    people.MoveNext();
    EXPECT_EQ(people.Text(u"Name"), u"Cid");
    EXPECT_EQ(RefusalOf([&] { Rename(people, u"Sid"_s); }), ErrorNumber::DatabaseBusy);
    EXPECT_EQ(Told(), QStringList());
    home.MakeWritable(u"people.db");
}

TEST_F(ReplacedFileTest, FileOfAnotherTable_DoesNotKeepFromReading_ButFromWriting)
{
    Recordset people = Open();
    OnBob(people);
    SqliteFile(home.Path(u"fresh.db")).Execute("CREATE TABLE People (Name TEXT, File TEXT)");
    TakeItsPlace(home.Path(u"fresh.db"));

    people.MoveNext();
    EXPECT_EQ(people.Text(u"Name"), u"Cid");
    EXPECT_EQ(RefusalOf([&] { Rename(people, u"Sid"_s); }), ErrorNumber::DatabaseBusy);
    EXPECT_EQ(Told(), QStringList());
}

TEST_F(ReplacedFileTest, FileThatHasGone_IsReadOn_AndCountsAsLockedForWhoWrites)
{
    Recordset people = Open();
    OnBob(people);
    QFile::remove(FilePath());

    people.MoveNext();
    EXPECT_EQ(people.Text(u"Name"), u"Cid");
    EXPECT_EQ(RefusalOf([&] { Rename(people, u"Sid"_s); }), ErrorNumber::DatabaseBusy);
}

TEST_F(ReplacedFileTest, OldFile_IsLetGo)
{
    const auto openFiles = [] { return FileSystem(u"/proc/self/fd"_s).Files(u"*"_s).size(); };
    Recordset people = Open();
    OnBob(people);
    people.MoveNext();
    people.Rest();
    const auto before = openFiles();
    Replace();

    people.MoveFirst();
    people.Rest();
    static_cast<void>(people.Text(u"Name"));

    EXPECT_EQ(openFiles(), before);
}

} // namespace
} // namespace lineforge
