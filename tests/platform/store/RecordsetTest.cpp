#include "platform/store/Recordset.h"

#include "platform/base/RuntimeError.h"
#include "platform/store/OtherPrograms.h"
#include "platform/store/PeopleTable.h"

#include <sqlite3.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class RecordsetTest : public PeopleTable
{
};

TEST_F(RecordsetTest, Opening_StandsOnTheFirstRow)
{
    GivenPeople({u"Ann"_s, u"Bob"_s});
    Recordset people = Open();

    EXPECT_FALSE(people.Bof());
    EXPECT_FALSE(people.Eof());
    EXPECT_FALSE(people.IsEmpty());
    EXPECT_TRUE(people.HasRow());
    EXPECT_EQ(people.Text(u"Name"), u"Ann");
    EXPECT_FALSE(people.LastModified());
}

TEST_F(RecordsetTest, Walk_ComesToEveryRowInStorageOrder_AndEndsAtEof)
{
    GivenPeople({u"Cid"_s, u"Ann"_s, u"Bob"_s});
    Recordset people = Open();

    EXPECT_EQ(Walk(people), QStringList({u"Cid"_s, u"Ann"_s, u"Bob"_s}));
    EXPECT_TRUE(people.Eof());
    EXPECT_FALSE(people.Bof());
    EXPECT_FALSE(people.HasRow());
    EXPECT_EQ(Walk(people), QStringList({u"Cid"_s, u"Ann"_s, u"Bob"_s})) << "and once more";
}

TEST_F(RecordsetTest, BackwardWalk_EndsAtBof)
{
    GivenPeople({u"Ann"_s, u"Bob"_s, u"Cid"_s});
    Recordset people = Open();
    QStringList names;
    for (people.MoveLast(); !people.Bof(); people.MovePrevious())
        names.push_back(people.Text(u"Name"));

    EXPECT_EQ(names, QStringList({u"Cid"_s, u"Bob"_s, u"Ann"_s}));
    EXPECT_TRUE(people.Bof());
    EXPECT_FALSE(people.Eof());
    EXPECT_FALSE(people.HasRow());
}

TEST_F(RecordsetTest, MovingBackFromAnEnd_ComesToTheOutermostRow)
{
    GivenPeople({u"Ann"_s, u"Bob"_s});
    Recordset people = Open();

    people.MoveLast();
    people.MoveNext();
    ASSERT_TRUE(people.Eof());
    people.MovePrevious();
    EXPECT_EQ(people.Text(u"Name"), u"Bob");

    people.MoveFirst();
    people.MovePrevious();
    ASSERT_TRUE(people.Bof());
    people.MoveNext();
    EXPECT_EQ(people.Text(u"Name"), u"Ann");
}

TEST_F(RecordsetTest, DirectionsMayChangeWithinAWalk)
{
    GivenPeople({u"Ann"_s, u"Bob"_s, u"Cid"_s});
    Recordset people = Open();

    people.MoveNext();
    people.MoveNext();
    EXPECT_EQ(people.Text(u"Name"), u"Cid");
    people.MovePrevious();
    EXPECT_EQ(people.Text(u"Name"), u"Bob");
    people.MoveNext();
    EXPECT_EQ(people.Text(u"Name"), u"Cid");
}

TEST_F(RecordsetTest, MovingOnPastAnEnd_IsNoCurrentRecord)
{
    GivenPeople({u"Ann"_s});
    Recordset people = Open();

    people.MoveNext();
    EXPECT_EQ(RefusalOf([&] { people.MoveNext(); }), ErrorNumber::NoCurrentRecord);
    EXPECT_TRUE(people.Eof());

    people.MoveFirst();
    people.MovePrevious();
    EXPECT_EQ(RefusalOf([&] { people.MovePrevious(); }), ErrorNumber::NoCurrentRecord);
    EXPECT_TRUE(people.Bof());
}

TEST_F(RecordsetTest, EmptyTable_IsAtBothEnds_AndItsFirstAndLastRowAreQuietlyNone)
{
    Recordset people = Open();
    EXPECT_TRUE(people.Bof());
    EXPECT_TRUE(people.Eof());
    EXPECT_TRUE(people.IsEmpty());
    EXPECT_FALSE(people.HasRow());

    people.MoveFirst();
    EXPECT_TRUE(people.IsEmpty());
    people.MoveLast();
    EXPECT_TRUE(people.IsEmpty());
}

TEST_F(RecordsetTest, EmptyTable_RefusesEverythingThatNeedsARow)
{
    Recordset people = Open();

    EXPECT_EQ(RefusalOf([&] { people.MoveNext(); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(RefusalOf([&] { people.MovePrevious(); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(RefusalOf([&] { people.Text(u"Name"); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(RefusalOf([&] { people.Value(u"Name"); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(RefusalOf([&] { people.FieldIs(u"Name", u"Ann"_s); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(RefusalOf([&] { people.Edit(); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(RefusalOf([&] { people.Delete(); }), ErrorNumber::NoCurrentRecord);
    EXPECT_EQ(RefusalOf([&] { people.GetBookmark(); }), ErrorNumber::NoCurrentRecord);
}

TEST_F(RecordsetTest, BothEndsOfAFilledTable_RefuseEverythingThatNeedsARow)
{
    GivenPeople({u"Ann"_s});
    for (const bool atEof : {true, false}) {
        Recordset people = Open();
        atEof ? people.MoveNext() : people.MovePrevious();

        EXPECT_EQ(RefusalOf([&] { people.Text(u"Name"); }), ErrorNumber::NoCurrentRecord);
        EXPECT_EQ(RefusalOf([&] { people.FieldIs(u"Name", u"Ann"_s); }), ErrorNumber::NoCurrentRecord);
        EXPECT_EQ(RefusalOf([&] { people.Edit(); }), ErrorNumber::NoCurrentRecord);
        EXPECT_EQ(RefusalOf([&] { people.Delete(); }), ErrorNumber::NoCurrentRecord);
        EXPECT_EQ(RefusalOf([&] { people.GetBookmark(); }), ErrorNumber::NoCurrentRecord);
        EXPECT_FALSE(people.HasRow());
    }
}

TEST_F(RecordsetTest, NamesOfFields_AreTakenInAnyCase_AndAnUnknownOneIsItemNotFound)
{
    GivenPeople({u"Ann"_s});
    Recordset people = Open();

    EXPECT_EQ(people.Text(u"NAME"), u"Ann");
    EXPECT_EQ(people.Text(u"name"), u"Ann");
    EXPECT_TRUE(people.FieldIs(u"nAmE", u"Ann"_s));
    EXPECT_EQ(RefusalOf([&] { people.Text(u"Surname"); }), ErrorNumber::ItemNotFound);
    EXPECT_EQ(RefusalOf([&] { people.FieldIs(u"", u"Ann"_s); }), ErrorNumber::ItemNotFound);
    EXPECT_EQ(RefusalOf([&] { people.Seek(u"Surname", u"Ann"_s); }), ErrorNumber::ItemNotFound);
    EXPECT_EQ(people.Text(u"Name"), u"Ann") << "and the row is still the current one";
}

TEST_F(RecordsetTest, Null_IsNotTheEmptyText)
{
    GivenPeople({std::nullopt, u""_s});
    Recordset people = Open();

    EXPECT_EQ(people.Value(u"Name"), FieldValue());
    EXPECT_EQ(people.Text(u"Name"), QString());
    EXPECT_FALSE(people.FieldIs(u"Name", u""_s));

    people.MoveNext();
    EXPECT_EQ(people.Value(u"Name"), FieldValue(u""_s));
    EXPECT_TRUE(people.FieldIs(u"Name", u""_s));
    EXPECT_TRUE(people.FieldIs(u"Name", QString()));
}

TEST_F(RecordsetTest, FieldIs_IgnoresCase_AndComparesWholeTexts)
{
    GivenPeople({u"Zo\u00eb"_s});
    Recordset people = Open();
    for (int pass = 0; pass < 3; ++pass) {
        // The first passes of a walk read a field another way than the later ones.
        people.MoveFirst();
        EXPECT_TRUE(people.FieldIs(u"Name", u"zO\u00cb"_s));
        EXPECT_FALSE(people.FieldIs(u"Name", u"Zo"_s));
        EXPECT_FALSE(people.FieldIs(u"Name", u"Zo\u00ebs"_s));
    }
}

TEST_F(RecordsetTest, FieldReadFirstInTheMiddleOfAWalk_IsThatOfItsRow)
{
    GivenPeople({u"Ann"_s, u"Bob"_s, u"Cid"_s});
    Recordset people = Open();

    people.MoveFirst();
    EXPECT_EQ(people.Text(u"File"), u"A001");
    people.MoveNext();
    EXPECT_EQ(people.Text(u"File"), u"A002");
    EXPECT_EQ(people.Text(u"Name"), u"Bob");
    people.MoveNext();
    EXPECT_EQ(people.Text(u"Name"), u"Cid");
    EXPECT_EQ(people.Text(u"File"), u"A003");
}

TEST_F(RecordsetTest, Bookmark_LeadsBackToItsRow)
{
    GivenPeople({u"Ann"_s, u"Bob"_s, u"Cid"_s});
    Recordset people = Open();
    people.MoveNext();
    const Bookmark saved = people.GetBookmark();

    Walk(people);
    ASSERT_TRUE(people.Eof());
    people.SetBookmark(saved);

    EXPECT_FALSE(people.Eof());
    EXPECT_EQ(people.Text(u"Name"), u"Bob");
    people.MoveNext();
    EXPECT_EQ(people.Text(u"Name"), u"Cid");
}

TEST_F(RecordsetTest, BookmarkThatHoldsNothing_IsNotABookmark)
{
    GivenPeople({u"Ann"_s});
    Recordset people = Open();

    EXPECT_EQ(RefusalOf([&] { people.SetBookmark({}); }), ErrorNumber::NotABookmark);
    EXPECT_EQ(people.Text(u"Name"), u"Ann");
}

TEST_F(RecordsetTest, Rows_AreThoseOfTheOpening_AndThoseOfTheCursorsOwn)
{
    GivenPeople({u"Ann"_s});
    Recordset mine = Open();
    Recordset other = Open();

    other.AddNew();
    other.Put(u"Name", u"Theirs"_s);
    other.Update();
    mine.AddNew();
    mine.Put(u"Name", u"Mine"_s);
    mine.Update();

    EXPECT_EQ(Walk(mine), QStringList({u"Ann"_s, u"Mine"_s}));
    EXPECT_EQ(Walk(other), QStringList({u"Ann"_s, u"Theirs"_s}));
    Recordset fresh = Open();
    EXPECT_EQ(Walk(fresh), QStringList({u"Ann"_s, u"Theirs"_s, u"Mine"_s}));
}

TEST_F(RecordsetTest, RowAddedByAnotherCursor_IsNeitherLastNorFound)
{
    GivenPeople({u"Ann"_s});
    Recordset mine = Open();
    Recordset other = Open();
    other.AddNew();
    other.Put(u"Name", u"Theirs"_s);
    other.Update();

    mine.MoveLast();
    EXPECT_EQ(mine.Text(u"Name"), u"Ann");
    EXPECT_FALSE(mine.Seek(u"Name", u"Theirs"_s));
    EXPECT_TRUE(mine.Eof());
    EXPECT_FALSE(mine.Bof());
}

TEST_F(RecordsetTest, RowAddedByAnotherCursorInPlaceOfTheLast_IsNotTakenForIt)
{
    GivenPeople({u"Ann"_s, u"Bob"_s});
    Recordset mine = Open();
    mine.MoveLast();
    const Bookmark bob = mine.GetBookmark();
    Recordset other = Open();

    other.MoveLast();
    other.Delete();
    other.AddNew();
    other.Put(u"Name", u"Theirs"_s);
    other.Update();

    EXPECT_EQ(Walk(mine), QStringList(u"Ann"_s));
    mine.SetBookmark(bob);
    EXPECT_EQ(RefusalOf([&] { mine.Text(u"Name"); }), ErrorNumber::RecordDeleted);
}

TEST_F(RecordsetTest, TableEmptiedByAnotherCursor_IsEmptyAtTheNextMove)
{
    GivenPeople({u"Ann"_s});
    Recordset mine = Open();
    Recordset other = Open();
    other.Delete();

    mine.MoveFirst();

    EXPECT_TRUE(mine.IsEmpty());
}

TEST_F(RecordsetTest, ValueChangedByAnotherCursor_IsReadAtOnce)
{
    GivenPeople({u"Ann"_s, u"Bob"_s});
    Recordset mine = Open();
    Recordset other = Open();
    ASSERT_EQ(mine.Text(u"Name"), u"Ann");

    other.Edit();
    other.Put(u"Name", u"Anna"_s);
    other.Update();

    EXPECT_EQ(mine.Text(u"Name"), u"Anna");
    EXPECT_TRUE(mine.FieldIs(u"Name", u"ANNA"_s));
    EXPECT_EQ(Walk(mine), QStringList({u"Anna"_s, u"Bob"_s}));
}

TEST_F(RecordsetTest, ValueChangedInTheMiddleOfAWalk_IsReadAtOnce_AndTheWalkGoesOn)
{
    GivenPeople({u"Ann"_s, u"Bob"_s, u"Cid"_s});
    Recordset mine = Open();
    Walk(mine);
    mine.MoveFirst();
    mine.MoveNext();
    ASSERT_EQ(mine.Text(u"Name"), u"Bob");
    Recordset other = Open();

    for (const QString& name : {u"Rob"_s, u"Robert"_s}) {
        ASSERT_TRUE(other.Seek(u"File", u"A002"_s));
        other.Edit();
        other.Put(u"Name", name);
        other.Update();
        EXPECT_EQ(mine.Text(u"Name"), name);
    }
    mine.MoveNext();
    EXPECT_EQ(mine.Text(u"Name"), u"Cid");
}

TEST_F(RecordsetTest, RowDeletedByAnotherCursor_IsGone_AndTheWalkGoesOn)
{
    GivenPeople({u"Ann"_s, u"Bob"_s, u"Cid"_s});
    Recordset mine = Open();
    mine.MoveNext();
    Recordset other = Open();
    other.MoveNext();

    other.Delete();

    EXPECT_FALSE(mine.HasRow());
    EXPECT_FALSE(mine.Eof());
    EXPECT_EQ(RefusalOf([&] { mine.Text(u"Name"); }), ErrorNumber::RecordDeleted);
    EXPECT_EQ(RefusalOf([&] { mine.FieldIs(u"Name", u"Bob"_s); }), ErrorNumber::RecordDeleted);
    EXPECT_EQ(RefusalOf([&] { mine.Edit(); }), ErrorNumber::RecordDeleted);
    EXPECT_EQ(RefusalOf([&] { mine.Delete(); }), ErrorNumber::RecordDeleted);
    mine.MoveNext();
    EXPECT_EQ(mine.Text(u"Name"), u"Cid");
}

TEST_F(RecordsetTest, RowDeletedAheadOfAWalk_IsNotComeTo)
{
    GivenPeople({u"Ann"_s, u"Bob"_s, u"Cid"_s});
    Recordset mine = Open();
    mine.MoveFirst();
    Recordset other = Open();
    other.MoveNext();
    other.Delete();

    mine.MoveNext();
    EXPECT_EQ(mine.Text(u"Name"), u"Cid");
}

TEST_F(RecordsetTest, FieldsBeyondTheSixtyFourth_AreReadAndWritten)
{
    constexpr int fields = 100;
    QStringList names;
    QStringList texts;
    for (int field = 0; field < fields; ++field) {
        names.push_back(u"Field%1 TEXT"_s.arg(field));
        texts.push_back(u"'%1a'"_s.arg(field));
    }
    SqliteFile file(home.Path(u"wide.db"));
    file.Execute("CREATE TABLE Wide (" + names.join(u',').toUtf8() + ")");
    file.Execute("INSERT INTO Wide VALUES (" + texts.join(u',').toUtf8() + ")");
    file.Execute("INSERT INTO Wide SELECT * FROM Wide");

    Recordset wide(databases.Open(files, u"wide.db"_s), u"Wide"_s);
    for (int pass = 0; pass < 2; ++pass)
        for (wide.MoveFirst(); !wide.Eof(); wide.MoveNext())
            for (const int field : {0, 1, 62, 63, 64, 65, 99}) {
                EXPECT_EQ(wide.Text(u"Field%1"_s.arg(field)), u"%1a"_s.arg(field));
                EXPECT_TRUE(wide.FieldIs(u"field%1"_s.arg(field), u"%1A"_s.arg(field)));
            }
    EXPECT_TRUE(wide.Seek(u"Field99", u"99A"_s));
    wide.Edit();
    wide.Put(u"Field64", u"new"_s);
    wide.Update();
    EXPECT_EQ(wide.Text(u"Field64"), u"new");
    EXPECT_EQ(wide.Text(u"Field63"), u"63a");
}

TEST_F(RecordsetTest, RowNumbersWithGaps_AreWalkedInTheirOrder)
{
    SqliteFile(FilePath())
        .Execute("INSERT INTO People (rowid, Name) VALUES (100, 'late'), (-5, 'early'), (7, 'middle')");
    Recordset people = Open();

    EXPECT_EQ(Walk(people), QStringList({u"early"_s, u"middle"_s, u"late"_s}));
}

TEST_F(RecordsetTest, NamesOfTableAndFieldsWithQuotesAndBlanks_AreTaken)
{
    SqliteFile(home.Path(u"odd.db"))
        .Execute("CREATE TABLE \"My \"\"odd\"\" table\" (\"a \"\"b\"\" c\" TEXT);"
                 "INSERT INTO \"My \"\"odd\"\" table\" VALUES ('x')");
    Recordset odd(databases.Open(files, u"odd.db"_s), u"My \"odd\" table"_s);

    EXPECT_EQ(odd.Text(u"A \"B\" C"), u"x");
    EXPECT_TRUE(odd.Seek(u"a \"b\" c", u"X"_s));
}

class RestTest : public PeopleTable
{
protected:
    RestTest() { GivenPeople({u"Ann"_s, u"Bob"_s, u"Cid"_s}); }

    // Whether somebody else could write now.
    int TryToWrite() { return SqliteFile(FilePath()).Try("UPDATE People SET File = File"); }
};

TEST_F(RestTest, WalkUnderWay_HoldsTheFile_UntilItRests)
{
    Recordset people = Open();
    people.MoveFirst();
    EXPECT_EQ(TryToWrite(), SQLITE_BUSY);

    people.Rest();
    EXPECT_EQ(TryToWrite(), SQLITE_OK);
    EXPECT_EQ(people.Text(u"Name"), u"Ann");
    people.MoveNext();
    EXPECT_EQ(people.Text(u"Name"), u"Bob") << "and goes on where it rested";
}

TEST_F(RestTest, FreshCursor_HoldsNothing)
{
    const Recordset people = Open();
    EXPECT_EQ(TryToWrite(), SQLITE_OK);
}

TEST_F(RestTest, CursorThatHasStopped_HoldsNothing)
{
    Recordset people = Open();

    Walk(people);
    EXPECT_EQ(TryToWrite(), SQLITE_OK) << "at the end of a walk";
    people.MoveLast();
    EXPECT_EQ(TryToWrite(), SQLITE_OK) << "on the last row";
    people.MovePrevious();
    EXPECT_EQ(TryToWrite(), SQLITE_OK) << "before it";
    people.Seek(u"Name", u"Ann"_s);
    EXPECT_EQ(TryToWrite(), SQLITE_OK) << "after a search";
    static_cast<void>(people.Text(u"Name"));
    EXPECT_EQ(TryToWrite(), SQLITE_OK) << "after reading";
    people.Edit();
    EXPECT_EQ(TryToWrite(), SQLITE_OK) << "while editing";
    people.Put(u"Name", u"x"_s);
    people.Update();
    EXPECT_EQ(TryToWrite(), SQLITE_OK) << "after an update";
    people.AddNew();
    people.Update();
    EXPECT_EQ(TryToWrite(), SQLITE_OK) << "after an addition";
    people.SetBookmark(people.LastModified());
    people.Delete();
    EXPECT_EQ(TryToWrite(), SQLITE_OK) << "after a deletion";
}

TEST_F(RestTest, FileLockedBySomebodyElse_RefusesTheUpdate_AndTakesItAfterwards)
{
    Recordset people = Open();
    databases.Others().Milliseconds = 0;
    SqliteFile other(FilePath());
    other.Execute("BEGIN IMMEDIATE");
    people.Edit();
    people.Put(u"Name", u"Anna"_s);

    EXPECT_EQ(RefusalOf([&] { people.Update(); }), ErrorNumber::DatabaseBusy);
    other.Execute("ROLLBACK");
    people.Update();

    EXPECT_EQ(Stored().value(0), u"Anna");
}

} // namespace
} // namespace lineforge
