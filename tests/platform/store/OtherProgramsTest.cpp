#include "platform/store/OtherPrograms.h"

#include "platform/base/RuntimeError.h"
#include "platform/controls/DataControl.h"
#include "platform/store/PeopleTable.h"

#include <sqlite3.h>

// What another program has written under an open cursor. Nothing of one person may be read or written as another's, and
// nothing is lost without a word.
namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class OtherProgramsTest : public PeopleTable
{
protected:
    OtherProgramsTest()
    {
        GivenPeople({u"Ann"_s, u"Bob"_s, u"Cid"_s, u"Dora"_s});
        databases.Others().TellChanged = [this](const QString& record) { told.push_back(record + u" changed"_s); };
        databases.Others().TellGone = [this](const QString& record) { told.push_back(record + u" gone"_s); };
    }

    void Execute(const QByteArray& sql) { SqliteFile(FilePath()).Execute(sql); }

    QStringList told;
};

TEST_F(OtherProgramsTest, RowChangedSinceItWasRead_IsNotWritten_AndReadAgain)
{
    Recordset people = Open();
    OnBob(people);
    Execute("UPDATE People SET Name = 'Robert' WHERE File = 'A002'");

    EXPECT_EQ(ToldRefusalOf([&] { Rename(people, u"Bobby"_s); }), ErrorNumber::RecordChanged);

    EXPECT_EQ(told, QStringList(u"Record A002 changed"_s));
    EXPECT_EQ(people.Text(u"Name"), u"Robert");
    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Robert"_s, u"Cid"_s, u"Dora"_s}));
}

TEST_F(OtherProgramsTest, SecondAttempt_IsWritten)
{
    Recordset people = Open();
    OnBob(people);
    Execute("UPDATE People SET Name = 'Robert' WHERE File = 'A002'");
    ToldRefusalOf([&] { Rename(people, u"Bobby"_s); });

    Rename(people, u"Bobby"_s);

    EXPECT_EQ(Stored().value(1), u"Bobby");
    EXPECT_EQ(told.size(), 1);
}

TEST_F(OtherProgramsTest, RowChangedAndCompacted_IsStillToldApart)
{
    Recordset people = Open();
    OnBob(people);
    Execute("DELETE FROM People WHERE Name = 'Ann'; UPDATE People SET Name = 'Robert' WHERE File = 'A002'; VACUUM");

    EXPECT_EQ(ToldRefusalOf([&] { Rename(people, u"Bobby"_s); }), ErrorNumber::RecordChanged);

    EXPECT_EQ(people.Text(u"Name"), u"Robert");
    EXPECT_EQ(Stored(), QStringList({u"Robert"_s, u"Cid"_s, u"Dora"_s}));
}

TEST_F(OtherProgramsTest, ChangeOfAnotherRow_IsNoneOfThisOne)
{
    Recordset people = Open();
    OnBob(people);
    Execute("UPDATE People SET Name = 'Anna' WHERE File = 'A001'");

    Rename(people, u"Bobby"_s);

    EXPECT_EQ(Stored(), QStringList({u"Anna"_s, u"Bobby"_s, u"Cid"_s, u"Dora"_s}));
    EXPECT_EQ(told, QStringList());
}

TEST_F(OtherProgramsTest, RowChangedBeforeTheCursorCameToIt_IsWritten)
{
    Recordset people = Open();
    OnBob(people);
    Execute("UPDATE People SET Name = 'Sid' WHERE File = 'A003'");

    people.MoveNext();
    EXPECT_EQ(people.Text(u"Name"), u"Sid");
    Rename(people, u"Sidney"_s);

    EXPECT_EQ(Stored().value(2), u"Sidney");
}

TEST_F(OtherProgramsTest, ChangeNoticedByAnotherCursor_IsStillAChangeForThisOne)
{
    Recordset people = Open();
    Recordset other = Open();
    OnBob(people);
    Execute("UPDATE People SET Name = 'Robert' WHERE File = 'A002'");
    EXPECT_EQ(Walk(other).value(1), u"Robert");

    EXPECT_EQ(ToldRefusalOf([&] { Rename(people, u"Bobby"_s); }), ErrorNumber::RecordChanged);
    EXPECT_EQ(Stored().value(1), u"Robert");
}

TEST_F(OtherProgramsTest, ChangedRow_IsNotDeleted)
{
    Recordset people = Open();
    OnBob(people);
    Execute("UPDATE People SET Name = 'Robert' WHERE File = 'A002'");

    EXPECT_EQ(ToldRefusalOf([&] { people.Delete(); }), ErrorNumber::RecordChanged);

    EXPECT_EQ(people.Text(u"Name"), u"Robert");
    EXPECT_EQ(Stored().size(), 4);
}

TEST_F(OtherProgramsTest, DeletedRow_IsTold_AndNothingIsWritten)
{
    Recordset people = Open();
    OnBob(people);
    Execute("DELETE FROM People WHERE File = 'A002'");

    EXPECT_EQ(ToldRefusalOf([&] { Rename(people, u"Bobby"_s); }), ErrorNumber::RecordDeleted);

    EXPECT_EQ(told, QStringList(u"Record A002 gone"_s));
    EXPECT_FALSE(people.HasRow());
    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Cid"_s, u"Dora"_s}));
    EXPECT_EQ(ToldRefusalOf([&] { people.Text(u"Name"); }), ErrorNumber::RecordDeleted);
    EXPECT_EQ(told.size(), 1) << "told once";
    people.MoveNext();
    EXPECT_EQ(people.Text(u"Name"), u"Cid");
}

TEST_F(OtherProgramsTest, RowUnderTheNumberOfADeletedOne_IsNobodyElses)
{
    Recordset people = Open();
    people.MoveLast();
    ASSERT_EQ(people.Text(u"Name"), u"Dora");
    const Bookmark dora = people.GetBookmark();
    Execute("DELETE FROM People WHERE File = 'A004'; INSERT INTO People VALUES ('A005', 'Eve')");
    ASSERT_EQ(SqliteFile(FilePath()).Value("SELECT max(rowid) FROM People"), u"4"_s);

    EXPECT_EQ(ToldRefusalOf([&] { Rename(people, u"Dorothy"_s); }), ErrorNumber::RecordDeleted);
    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Bob"_s, u"Cid"_s, u"Eve"_s}));
    people.MoveNext();
    EXPECT_EQ(people.Text(u"Name"), u"Eve") << "who stands behind the gap";
    people.SetBookmark(dora);
    EXPECT_FALSE(people.HasRow());
}

TEST_F(OtherProgramsTest, RowsThatHaveChangedPlaces_AreFollowed)
{
    Recordset people = Open();
    OnBob(people);
    Execute("UPDATE People SET File = 'A002', Name = 'Bob' WHERE rowid = 1;"
            "UPDATE People SET File = 'A001', Name = 'Ann' WHERE rowid = 2");

    Rename(people, u"Bobby"_s);

    EXPECT_EQ(Stored(), QStringList({u"Bobby"_s, u"Ann"_s, u"Cid"_s, u"Dora"_s}));
}

TEST_F(OtherProgramsTest, TwinOfARowThatIsGone_IsNotWrittenWithoutAWord)
{
    Execute("UPDATE People SET File = 'A002', Name = 'Twin' WHERE Name IN ('Bob', 'Cid')");
    Recordset people = Open();
    people.MoveNext();
    people.MoveNext();
    people.Rest();
    Execute("DELETE FROM People WHERE rowid = 2");

    EXPECT_NE(ToldRefusalOf([&] { Rename(people, u"Second"_s); }), 0);
    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Twin"_s, u"Dora"_s}));
    EXPECT_EQ(told.size(), 1);
}

TEST_F(OtherProgramsTest, RowAddedByAnotherProgram_IsSeenFromTheNextMoveOn)
{
    Recordset people = Open();
    OnBob(people);
    Execute("INSERT INTO People VALUES ('A005', 'Eve')");

    EXPECT_EQ(Walk(people), QStringList({u"Ann"_s, u"Bob"_s, u"Cid"_s, u"Dora"_s, u"Eve"_s}));
    people.MoveLast();
    EXPECT_EQ(people.Text(u"Name"), u"Eve");
    EXPECT_TRUE(people.Seek(u"Name", u"Eve"_s));
}

TEST_F(OtherProgramsTest, TableFilledByAnotherProgram_IsNoLongerEmpty)
{
    Execute("DELETE FROM People");
    Recordset people = Open();
    ASSERT_TRUE(people.IsEmpty());
    Execute("INSERT INTO People VALUES ('A001', 'Ann')");

    people.MoveFirst();

    EXPECT_EQ(people.Text(u"Name"), u"Ann");
}

TEST_F(OtherProgramsTest, WithoutAnybodyToTell_TheRefusalIsNotCalledTold)
{
    databases.Others().TellChanged = {};
    Recordset people = Open();
    OnBob(people);
    Execute("UPDATE People SET Name = 'Robert' WHERE File = 'A002'");

    try {
        Rename(people, u"Bobby"_s);
        ADD_FAILURE() << "not refused";
    } catch (const RuntimeError& refusal) {
        EXPECT_EQ(refusal.Number, ErrorNumber::RecordChanged);
        EXPECT_FALSE(refusal.IsTold);
        EXPECT_EQ(refusal.Subject, FilePath() + u"\nRecord A002");
    }
}

TEST_F(OtherProgramsTest, WhileTheUserIsTold_TheFileIsFree)
{
    int result = -1;
    databases.Others().TellChanged = [&](const QString&) {
        result = SqliteFile(FilePath()).Try("UPDATE People SET Name = Name");
    };
    Recordset people = Open();
    OnBob(people);
    Execute("UPDATE People SET Name = 'Robert' WHERE File = 'A002'");

    ToldRefusalOf([&] { Rename(people, u"Bobby"_s); });

    EXPECT_EQ(result, SQLITE_OK);
}

// The same with a window's box in which something has been typed.
class TypedMeanwhileTest : public OtherProgramsTest
{
protected:
    TypedMeanwhileTest()
    {
        data.DatabaseName = u"people.db"_s;
        data.RecordSource = u"People"_s;
        data.Bind(name, u"Name"_s);
        data.Bind(file, u"File"_s);
        data.Refresh(databases, files);
        data.Records().MoveNext();
        data.Settle();
    }

    struct : Container {
    } window;
    DataControl data{window, u"Data1", {}, u"Lineforge"};
    TextBox name{window, u"Text1", {}};
    TextBox file{window, u"Text2", {}};
};

TEST_F(TypedMeanwhileTest, FileCompacted_TextGoesToTheSamePerson)
{
    name.Text = u"Bobby"_s;
    Execute("DELETE FROM People WHERE Name = 'Ann'; VACUUM");

    data.Records().MoveNext();

    EXPECT_EQ(Stored(), QStringList({u"Bobby"_s, u"Cid"_s, u"Dora"_s}));
    EXPECT_EQ(name.Text.value(), u"Cid");
    EXPECT_EQ(told, QStringList());
}

TEST_F(TypedMeanwhileTest, RowChanged_MoveDoesNotTakePlace_AndTheRowIsShownAsItIs)
{
    name.Text = u"Bobby"_s;
    Execute("UPDATE People SET Name = 'Robert' WHERE File = 'A002'");

    EXPECT_EQ(ToldRefusalOf([&] { data.Records().MoveNext(); }), ErrorNumber::RecordChanged);

    EXPECT_EQ(told, QStringList(u"Record A002 changed"_s));
    EXPECT_EQ(name.Text.value(), u"Robert");
    EXPECT_EQ(file.Text.value(), u"A002");
    EXPECT_EQ(Stored().value(1), u"Robert");
    data.Records().MoveNext();
    EXPECT_EQ(name.Text.value(), u"Cid");
}

TEST_F(TypedMeanwhileTest, ChangeNoticedWhileTyping_LeavesTheText_UntilItIsToBeStored)
{
    Recordset other = Open();
    name.Text = u"Bobby"_s;
    Execute("UPDATE People SET Name = 'Robert' WHERE File = 'A002'");
    Walk(other);
    EXPECT_EQ(data.Records().Text(u"Name"), u"Robert");

    data.Settle();
    EXPECT_EQ(name.Text.value(), u"Bobby");
    EXPECT_EQ(ToldRefusalOf([&] { data.Records().MoveNext(); }), ErrorNumber::RecordChanged);
    EXPECT_EQ(Stored().value(1), u"Robert");
}

TEST_F(TypedMeanwhileTest, ChangeNoticedBeforeTyping_IsShown_AndMayBeWrittenOver)
{
    Recordset other = Open();
    Execute("UPDATE People SET Name = 'Robert' WHERE File = 'A002'");
    Walk(other);
    static_cast<void>(data.Records().Text(u"Name"));
    EXPECT_EQ(name.Text.value(), u"Robert");

    name.Text = u"Bobby"_s;
    data.Records().MoveNext();

    EXPECT_EQ(Stored().value(1), u"Bobby");
    EXPECT_EQ(told, QStringList());
}

TEST_F(TypedMeanwhileTest, RowDeleted_LossOfTheTextIsTold_AndTheNextMoveTakesPlace)
{
    name.Text = u"Bobby"_s;
    Execute("DELETE FROM People WHERE File = 'A002'");

    EXPECT_EQ(ToldRefusalOf([&] { data.Records().MoveNext(); }), ErrorNumber::RecordDeleted);

    EXPECT_EQ(told, QStringList(u"Record A002 gone"_s));
    EXPECT_EQ(name.Text.value(), QString());
    data.Records().MoveNext();
    EXPECT_EQ(name.Text.value(), u"Cid");
    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Cid"_s, u"Dora"_s}));
}

TEST_F(TypedMeanwhileTest, DeletionNoticedWhileTyping_IsTold_WhenTheTextIsToBeStored)
{
    Recordset other = Open();
    name.Text = u"Bobby"_s;
    Execute("DELETE FROM People WHERE File = 'A002'");
    Walk(other);
    EXPECT_FALSE(data.Records().HasRow());
    EXPECT_EQ(told, QStringList());

    EXPECT_EQ(ToldRefusalOf([&] { data.Records().MoveNext(); }), ErrorNumber::RecordDeleted);

    EXPECT_EQ(told, QStringList(u"Record A002 gone"_s));
    EXPECT_EQ(name.Text.value(), QString());
}

TEST_F(TypedMeanwhileTest, RowDeletedWithNothingTyped_IsNotTold)
{
    Execute("DELETE FROM People WHERE File = 'A002'");

    data.Records().MoveNext();

    EXPECT_EQ(name.Text.value(), u"Cid");
    EXPECT_EQ(told, QStringList());
}

TEST_F(TypedMeanwhileTest, Release_TellsAndStays_AndLetsGoTheSecondTime)
{
    name.Text = u"Bobby"_s;
    Execute("UPDATE People SET Name = 'Robert' WHERE File = 'A002'");

    EXPECT_EQ(ToldRefusalOf([&] { data.Release(); }), ErrorNumber::RecordChanged);
    EXPECT_TRUE(data.IsOpen());
    EXPECT_EQ(name.Text.value(), u"Robert");
    data.Release();
    EXPECT_FALSE(data.IsOpen());
}

} // namespace
} // namespace lineforge
