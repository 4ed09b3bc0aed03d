#include "platform/base/RuntimeError.h"
#include "platform/controls/DataControl.h"
#include "platform/store/OtherPrograms.h"
#include "platform/store/PeopleTable.h"

#include <sqlite3.h>

// Another program holds the file when this one wants to read or write it. The user says whether to try again, and
// nothing is lost when he doesn't.
namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class LockedDatabaseTest : public PeopleTable
{
protected:
    LockedDatabaseTest()
    {
        GivenPeople({u"Ann"_s, u"Bob"_s, u"Cid"_s});
        databases.Others().Milliseconds = 0;
        databases.Others().AskRetry = [this](const QString& path) {
            EXPECT_EQ(path, FilePath());
            ++questions;
            whileAsked();
            return lockGoesAt == questions ? (other.reset(), true) : lockGoesAt > questions;
        };
    }

    // Until the question of that number, which is answered with Retry like those before it; 0: Cancel at once.
    void Lock(int goesAt)
    {
        other = std::make_unique<SqliteFile>(FilePath());
        other->Execute("BEGIN EXCLUSIVE");
        lockGoesAt = goesAt;
    }

    std::unique_ptr<SqliteFile> other;
    int lockGoesAt = 0;
    int questions = 0;
    std::function<void()> whileAsked = [] {};
};

// What can be done with a file.
struct Use {
    const char* Name;
    void (*Do)(Recordset& people);
    QStringList Left;
};

void PrintTo(const Use& use, std::ostream* out)
{
    *out << use.Name;
}

class LockedUseTest : public LockedDatabaseTest, public testing::WithParamInterface<Use>
{
};

TEST_P(LockedUseTest, Retry_DoesItWhenTheOtherProgramIsDone)
{
    Recordset people = Open();
    people.MoveNext();
    people.Rest();
    Lock(3);

    EXPECT_EQ(ToldRefusalOf([&] { GetParam().Do(people); }), 0);

    EXPECT_EQ(questions, 3);
    EXPECT_EQ(Stored(), GetParam().Left);
}

TEST_P(LockedUseTest, Cancel_DoesNothing_AndTheNextAttemptAsksAgain)
{
    Recordset people = Open();
    people.MoveNext();
    people.Rest();
    Lock(0);

    EXPECT_EQ(ToldRefusalOf([&] { GetParam().Do(people); }), ErrorNumber::DatabaseBusy);
    EXPECT_EQ(ToldRefusalOf([&] { GetParam().Do(people); }), ErrorNumber::DatabaseBusy);

    other.reset();
    EXPECT_EQ(questions, 2);
    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Bob"_s, u"Cid"_s}));
    EXPECT_EQ(people.Text(u"Name"), u"Bob");
    GetParam().Do(people);
    EXPECT_EQ(Stored(), GetParam().Left);
}

INSTANTIATE_TEST_SUITE_P(
    Uses, LockedUseTest,
    testing::Values(
        Use{"edit",
            [](auto& people) {
                people.Edit();
                people.Put(u"Name", u"Bobby"_s);
                people.Update();
            },
            {u"Ann"_s, u"Bobby"_s, u"Cid"_s}},
        Use{"addition",
            [](auto& people) {
                people.AddNew();
                people.Put(u"Name", u"Dora"_s);
                people.Update();
            },
            {u"Ann"_s, u"Bob"_s, u"Cid"_s, u"Dora"_s}},
        Use{"deletion", [](auto& people) { people.Delete(); }, {u"Ann"_s, u"Cid"_s}},
        Use{"next", [](auto& people) { people.MoveNext(); }, {u"Ann"_s, u"Bob"_s, u"Cid"_s}},
        Use{"previous", [](auto& people) { people.MovePrevious(); }, {u"Ann"_s, u"Bob"_s, u"Cid"_s}},
        Use{"first", [](auto& people) { people.MoveFirst(); }, {u"Ann"_s, u"Bob"_s, u"Cid"_s}},
        Use{"last", [](auto& people) { people.MoveLast(); }, {u"Ann"_s, u"Bob"_s, u"Cid"_s}},
        Use{"search", [](auto& people) { people.Seek(u"Name", u"Cid"_s); }, {u"Ann"_s, u"Bob"_s, u"Cid"_s}}));

TEST_F(LockedDatabaseTest, Opening_AsksToo)
{
    Lock(2);
    Recordset people = Open();
    EXPECT_EQ(questions, 2);
    EXPECT_EQ(people.Text(u"Name"), u"Ann");
}

TEST_F(LockedDatabaseTest, OpeningThatIsGivenUp_LeavesNothingOpen)
{
    Lock(0);
    EXPECT_EQ(ToldRefusalOf([&] { Open(); }), ErrorNumber::DatabaseBusy);
    other.reset();
    EXPECT_EQ(Open().Text(u"Name"), u"Ann");
}

TEST_F(LockedDatabaseTest, OtherProgramThatOnlyReads_LetsAChangeWait)
{
    Recordset people = Open();
    SqliteFile reader(FilePath());
    reader.Execute("BEGIN; SELECT * FROM People");
    whileAsked = [&] { reader.Execute("COMMIT"); };
    lockGoesAt = 1;

    Rename(people, u"Anna"_s);

    EXPECT_EQ(questions, 1);
    EXPECT_EQ(Stored().front(), u"Anna");
}

TEST_F(LockedDatabaseTest, WithinOneCommand_IsGivenUpOnce_AndTheNextOneAsksAgain)
{
    Recordset people = Open();
    Lock(0);
    {
        const OtherPrograms::Command command(databases.Others());
        EXPECT_EQ(ToldRefusalOf([&] { people.MoveLast(); }), ErrorNumber::DatabaseBusy);
        EXPECT_EQ(ToldRefusalOf([&] { people.MoveFirst(); }), ErrorNumber::DatabaseBusy);
    }
    EXPECT_EQ(questions, 1);
    const OtherPrograms::Command next(databases.Others());
    EXPECT_EQ(ToldRefusalOf([&] { people.MoveFirst(); }), ErrorNumber::DatabaseBusy);
    EXPECT_EQ(questions, 2);
}

TEST_F(LockedDatabaseTest, CommandWithinAnother_GivesUpForItselfAlone)
{
    Recordset people = Open();
    Lock(0);
    const OtherPrograms::Command outer(databases.Others());
    {
        const OtherPrograms::Command inner(databases.Others());
        EXPECT_EQ(ToldRefusalOf([&] { people.MoveLast(); }), ErrorNumber::DatabaseBusy);
    }
    EXPECT_EQ(ToldRefusalOf([&] { people.MoveLast(); }), ErrorNumber::DatabaseBusy);
    EXPECT_EQ(questions, 2);
}

TEST_F(LockedDatabaseTest, UnderTheQuestion_NothingMoves)
{
    Recordset people = Open();
    const Bookmark ann = people.GetBookmark();
    people.MoveNext();
    people.Rest();
    whileAsked = [&] {
        EXPECT_EQ(ToldRefusalOf([&] { people.MoveLast(); }), ErrorNumber::DatabaseBusy);
        EXPECT_EQ(ToldRefusalOf([&] { people.SetBookmark(ann); }), ErrorNumber::DatabaseBusy);
    };
    Lock(1);

    Rename(people, u"Bobby"_s);

    EXPECT_EQ(questions, 1);
    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Bobby"_s, u"Cid"_s}));
}

TEST_F(LockedDatabaseTest, WhatTheOtherProgramHasDoneMeanwhile_IsSeenBeforeAnythingIsWritten)
{
    Recordset people = Open();
    people.MoveNext();
    people.Rest();
    whileAsked = [&] { other->Execute("UPDATE People SET Name = 'Robert' WHERE Name = 'Bob'; COMMIT"); };
    Lock(1);

    EXPECT_EQ(RefusalOf([&] { Rename(people, u"Bobby"_s); }), ErrorNumber::RecordChanged);
    EXPECT_EQ(Stored().value(1), u"Robert");
}

TEST_F(LockedDatabaseTest, WhereNobodyIsToBeAsked_IsRefusedUntold)
{
    Recordset people = Open();
    Lock(0);
    const OtherPrograms::Quiet quiet(databases.Others());

    try {
        people.MoveLast();
        ADD_FAILURE() << "not refused";
    } catch (const RuntimeError& refusal) {
        EXPECT_EQ(refusal.Number, ErrorNumber::DatabaseBusy);
        EXPECT_FALSE(refusal.IsTold);
    }
    EXPECT_EQ(questions, 0);
}

// The same with a window's box.
class LockedBoxTest : public LockedDatabaseTest
{
protected:
    LockedBoxTest()
    {
        data.DatabaseName = u"people.db"_s;
        data.RecordSource = u"People"_s;
        data.Bind(name, u"Name"_s);
        data.Refresh(databases, files);
        data.Settle();
    }

    struct : Container {
    } window;
    DataControl data{window, u"Data1", {}, u"Lineforge"};
    TextBox name{window, u"Text1", {}};
};

TEST_F(LockedBoxTest, RowThatCannotBeRead_ShowsNobodyElsesText_AndNothingIsTypedIntoIt)
{
    data.Records().MoveNext();
    data.Records().Rest();
    Lock(0);

    EXPECT_EQ(ToldRefusalOf([&] { data.Settle(); }), ErrorNumber::DatabaseBusy);
    EXPECT_EQ(name.Text.Shown(), QString());
    EXPECT_TRUE(name.Locked);
    EXPECT_EQ(ToldRefusalOf([&] { name.Text = u"x"_s; }), ErrorNumber::DatabaseBusy);

    other.reset();
    EXPECT_EQ(name.Text.value(), u"Bob");
    EXPECT_FALSE(name.Locked);
    data.Records().MoveNext();
    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Bob"_s, u"Cid"_s}));
}

TEST_F(LockedBoxTest, WhatIsTyped_StaysInItsBox_AndIsStoredLater)
{
    name.Text = u"Anna"_s;
    Lock(0);

    EXPECT_EQ(ToldRefusalOf([&] { data.Records().MoveNext(); }), ErrorNumber::DatabaseBusy);
    EXPECT_EQ(name.Text.value(), u"Anna");

    other.reset();
    data.Records().MoveNext();
    EXPECT_EQ(Stored(), QStringList({u"Anna"_s, u"Bob"_s, u"Cid"_s}));
    EXPECT_EQ(name.Text.value(), u"Bob");
}

} // namespace
} // namespace lineforge
