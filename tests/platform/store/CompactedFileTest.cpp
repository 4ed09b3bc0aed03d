#include "platform/base/RuntimeError.h"
#include "platform/store/PeopleTable.h"

// Another program that compacts the file gives its rows new numbers. Whoever was on a person, or remembers one, must be
// on the same one afterwards.
namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class CompactedFileTest : public PeopleTable
{
protected:
    // Ann, Cid, Dora and Eve, with a hole in their numbers.
    CompactedFileTest()
    {
        GivenPeople({u"Ann"_s, u"Bob"_s, u"Cid"_s, u"Dora"_s, u"Eve"_s});
        Execute("DELETE FROM People WHERE Name = 'Bob'");
    }

    void Execute(const QByteArray& sql) { SqliteFile(FilePath()).Execute(sql); }

    QStringList Numbers()
    {
        QStringList numbers;
        for (const SqliteFile::Row& row : SqliteFile(FilePath()).Query("SELECT rowid FROM People ORDER BY rowid"))
            numbers.push_back(*row.front());
        return numbers;
    }

    void Compact()
    {
        const QStringList before = Numbers();
        Execute("VACUUM");
        ASSERT_NE(Numbers(), before) << "otherwise nothing is tested";
    }

    // Standing on Dora, at rest.
    void GoToDora(Recordset& people)
    {
        ASSERT_TRUE(people.Seek(u"Name", u"Dora"_s));
        ASSERT_EQ(people.Text(u"File"), u"A004");
    }
};

TEST_F(CompactedFileTest, Edit_IsStoredInTheSamePerson)
{
    Recordset people = Open();
    GoToDora(people);
    Compact();

    Rename(people, u"Dorothy"_s);

    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Cid"_s, u"Dorothy"_s, u"Eve"_s}));
    EXPECT_EQ(people.Text(u"Name"), u"Dorothy");
}

TEST_F(CompactedFileTest, EditBegunBefore_IsStoredInTheSamePerson)
{
    Recordset people = Open();
    GoToDora(people);
    people.Edit();
    people.Put(u"Name", u"Dorothy"_s);
    Compact();

    people.Update();

    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Cid"_s, u"Dorothy"_s, u"Eve"_s}));
    people.MoveFirst();
    people.SetBookmark(people.LastModified());
    EXPECT_EQ(people.Text(u"Name"), u"Dorothy");
}

TEST_F(CompactedFileTest, Deletion_TakesTheSamePerson)
{
    Recordset people = Open();
    GoToDora(people);
    Compact();

    people.Delete();

    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Cid"_s, u"Eve"_s}));
    people.MoveNext();
    EXPECT_EQ(people.Text(u"Name"), u"Eve");
}

TEST_F(CompactedFileTest, Addition_OverwritesNobody_AndComesLast)
{
    Recordset people = Open();
    GoToDora(people);
    people.AddNew();
    people.Put(u"Name", u"Fay"_s);
    Compact();

    people.Update();

    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Cid"_s, u"Dora"_s, u"Eve"_s, u"Fay"_s}));
    EXPECT_EQ(people.Text(u"Name"), u"Dora") << "the current row";
    people.SetBookmark(people.LastModified());
    EXPECT_EQ(people.Text(u"Name"), u"Fay");
}

TEST_F(CompactedFileTest, CurrentRow_IsReadAsTheSamePerson)
{
    for (const QString& name : {u"Ann"_s, u"Cid"_s, u"Dora"_s, u"Eve"_s}) {
        Recordset people = Open();
        people.Seek(u"Name", name);
        Compact();
        EXPECT_EQ(people.Text(u"Name"), name);
        // A hole again for the next one.
        Execute("INSERT INTO People (rowid, Name) SELECT rowid + 10, Name FROM People;"
                "DELETE FROM People WHERE rowid < 10");
    }
}

TEST_F(CompactedFileTest, Bookmarks_LeadToTheSamePeople)
{
    Recordset people = Open();
    std::vector<Bookmark> marks;
    for (people.MoveFirst(); !people.Eof(); people.MoveNext())
        marks.push_back(people.GetBookmark());
    Compact();

    QStringList names;
    for (const Bookmark& mark : marks) {
        people.SetBookmark(mark);
        names.push_back(people.Text(u"Name"));
    }
    EXPECT_EQ(names, QStringList({u"Ann"_s, u"Cid"_s, u"Dora"_s, u"Eve"_s}));
}

TEST_F(CompactedFileTest, BookmarksOfDifferentTimes_LeadToTheirPeople)
{
    Recordset people = Open();
    people.MoveLast();
    const Bookmark eve = people.GetBookmark();
    Compact();
    people.MoveLast();
    const Bookmark eveAgain = people.GetBookmark();
    people.MoveFirst();
    people.Rest();
    Execute("DELETE FROM People WHERE Name = 'Cid'");
    Compact();

    for (const Bookmark& mark : {eve, eveAgain}) {
        people.SetBookmark(mark);
        EXPECT_EQ(people.Text(u"Name"), u"Eve");
    }
}

TEST_F(CompactedFileTest, BookmarkOfADeletedPerson_LeadsToNobody_AndTheWalkGoesOnBehind)
{
    Recordset people = Open();
    people.MoveNext();
    const Bookmark cid = people.GetBookmark();
    people.Delete();
    Compact();
    people.MoveLast();

    people.SetBookmark(cid);

    EXPECT_FALSE(people.HasRow());
    EXPECT_EQ(RefusalOf([&] { people.Text(u"Name"); }), ErrorNumber::RecordDeleted);
    people.MoveNext();
    EXPECT_EQ(people.Text(u"Name"), u"Dora");
}

TEST_F(CompactedFileTest, BookmarkOfAnEarlierOpening_LeadsToTheSamePerson)
{
    Bookmark dora;
    {
        Recordset people = Open();
        GoToDora(people);
        dora = people.GetBookmark();
    }
    Compact();
    Recordset people = Open();
    EXPECT_EQ(people.Text(u"Name"), u"Ann");

    people.SetBookmark(dora);

    EXPECT_EQ(people.Text(u"Name"), u"Dora");
}

TEST_F(CompactedFileTest, BookmarkOfAnotherFile_IsNone)
{
    SqliteFile(home.Path(u"other.db")).Execute("CREATE TABLE People (Name TEXT); INSERT INTO People VALUES ('Zoe')");
    Recordset other(databases.Open(files, u"other.db"_s), u"People"_s);
    Recordset people = Open();

    EXPECT_EQ(RefusalOf([&] { people.SetBookmark(other.GetBookmark()); }), ErrorNumber::NotABookmark);
    EXPECT_EQ(people.Text(u"Name"), u"Ann");
}

TEST_F(CompactedFileTest, BookmarksOfOneCursor_LeadAnotherOnTheSameFile)
{
    Recordset one = Open();
    Recordset other = Open();
    GoToDora(one);
    const Bookmark dora = one.GetBookmark();
    Compact();

    other.SetBookmark(dora);

    EXPECT_EQ(other.Text(u"Name"), u"Dora");
    EXPECT_EQ(one.Text(u"Name"), u"Dora");
}

// How many moves a walk makes before the file is compacted.
class CompactedWalkTest : public CompactedFileTest, public testing::WithParamInterface<int>
{
protected:
    template <class Move>
    QStringList WalkWithCompacting(Recordset& people, Move&& move)
    {
        QStringList names;
        for (int moves = 0; !people.Bof() && !people.Eof(); ++moves) {
            names.push_back(people.Text(u"Name"));
            people.Rest();
            if (moves == GetParam())
                Compact();
            move(people);
        }
        return names;
    }
};

TEST_P(CompactedWalkTest, ForwardWalk_MeetsEverybodyOnce)
{
    Recordset people = Open();
    people.MoveFirst();

    EXPECT_EQ(WalkWithCompacting(people, [](Recordset& each) { each.MoveNext(); }),
              QStringList({u"Ann"_s, u"Cid"_s, u"Dora"_s, u"Eve"_s}));
}

TEST_P(CompactedWalkTest, BackwardWalk_MeetsEverybodyOnce)
{
    Recordset people = Open();
    people.MoveLast();

    EXPECT_EQ(WalkWithCompacting(people, [](Recordset& each) { each.MovePrevious(); }),
              QStringList({u"Eve"_s, u"Dora"_s, u"Cid"_s, u"Ann"_s}));
}

TEST_P(CompactedWalkTest, DeletingWalk_MeetsEverybodyOnce)
{
    Recordset people = Open();
    QStringList deleted;
    people.MoveFirst();
    for (int moves = 0; !people.Eof(); ++moves) {
        deleted.push_back(people.Text(u"Name"));
        people.Delete();
        if (moves == GetParam())
            Execute("VACUUM");
        people.MoveNext();
    }

    EXPECT_EQ(deleted, QStringList({u"Ann"_s, u"Cid"_s, u"Dora"_s, u"Eve"_s}));
    EXPECT_EQ(Stored(), QStringList());
}

INSTANTIATE_TEST_SUITE_P(After, CompactedWalkTest, testing::Values(0, 1, 2, 3));

TEST_F(CompactedFileTest, GapOfADeletedRow_IsLeftBackwardsToItsNeighbour)
{
    Recordset people = Open();
    GoToDora(people);
    people.Delete();
    Compact();

    people.MovePrevious();

    EXPECT_EQ(people.Text(u"Name"), u"Cid");
}

TEST_F(CompactedFileTest, GapBeforeTheFirstRow_IsLeftBothWays)
{
    for (const bool forward : {true, false}) {
        Recordset people = Open();
        people.MoveFirst();
        people.Delete();
        Execute("VACUUM");
        forward ? people.MoveNext() : people.MovePrevious();
        if (forward)
            EXPECT_EQ(people.Text(u"Name"), u"Cid");
        else
            EXPECT_TRUE(people.Bof());
        people.Rest();
        Execute("INSERT INTO People (rowid, Name) VALUES (-7, 'Ann')");
    }
}

TEST_F(CompactedFileTest, Ends_StayEnds)
{
    Recordset people = Open();
    Walk(people);
    Compact();
    EXPECT_TRUE(people.Eof());
    people.MovePrevious();
    EXPECT_EQ(people.Text(u"Name"), u"Eve");
}

TEST_F(CompactedFileTest, RowsOfAnotherCursor_StayOut_AndThoseOfTheOwnStayIn)
{
    Recordset mine = Open();
    Recordset other = Open();
    const auto add = [](Recordset& people, const QString& name) {
        people.AddNew();
        people.Put(u"Name", name);
        people.Update();
    };
    add(mine, u"Mine"_s);
    add(other, u"Theirs"_s);
    add(mine, u"Mine too"_s);
    Compact();

    EXPECT_EQ(Walk(mine), QStringList({u"Ann"_s, u"Cid"_s, u"Dora"_s, u"Eve"_s, u"Mine"_s, u"Mine too"_s}));
    EXPECT_EQ(Walk(other), QStringList({u"Ann"_s, u"Cid"_s, u"Dora"_s, u"Eve"_s, u"Theirs"_s}));
    add(mine, u"Mine again"_s);
    EXPECT_EQ(Walk(other), QStringList({u"Ann"_s, u"Cid"_s, u"Dora"_s, u"Eve"_s, u"Theirs"_s}));
}

TEST_F(CompactedFileTest, PeopleWithoutANumber_AreToldByAllThatIsKnownOfThem)
{
    Execute("UPDATE People SET File = NULL WHERE Name = 'Cid'; UPDATE People SET File = '' WHERE Name = 'Dora'");
    Recordset people = Open();
    people.Seek(u"Name", u"Cid"_s);
    Recordset other = Open();
    other.Seek(u"Name", u"Dora"_s);
    Compact();

    Rename(people, u"Sid"_s);
    Rename(other, u"Dot"_s);

    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Sid"_s, u"Dot"_s, u"Eve"_s}));
}

TEST_F(CompactedFileTest, PeopleOfTheSameNumber_AreToldByAllThatIsKnownOfThem)
{
    Execute("UPDATE People SET File = 'A001'");
    Recordset people = Open();
    people.Seek(u"Name", u"Dora"_s);
    Compact();

    Rename(people, u"Dorothy"_s);

    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Cid"_s, u"Dorothy"_s, u"Eve"_s}));
}

TEST_F(CompactedFileTest, TwinsInAllFields_KeepTheirOrder)
{
    Execute("UPDATE People SET File = 'A001', Name = 'Twin' WHERE Name <> 'Ann'");
    Recordset people = Open();
    people.MoveFirst();
    people.MoveNext();
    people.MoveNext();
    people.Rest();
    Compact();

    Rename(people, u"Middle"_s);

    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Twin"_s, u"Middle"_s, u"Twin"_s}));
}

TEST_F(CompactedFileTest, NullAndEmptyText_AreNotTaken_ForEachOther)
{
    Execute("UPDATE People SET File = '', Name = NULL WHERE Name = 'Cid';"
            "UPDATE People SET File = NULL, Name = '' WHERE Name = 'Dora'");
    Recordset people = Open();
    people.MoveFirst();
    people.MoveNext();
    people.MoveNext();
    people.Rest();
    Compact();

    Rename(people, u"Dora"_s);

    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"-"_s, u"Dora"_s, u"Eve"_s}));
}

TEST_F(CompactedFileTest, WhatAnotherCursorOfTheProgramHasWritten_IsNoChangeByOthers)
{
    Recordset mine = Open();
    Recordset other = Open();
    GoToDora(mine);
    GoToDora(other);
    Rename(other, u"Dorothy"_s);
    Compact();

    Rename(mine, mine.Text(u"Name") + u" Ann"_s);

    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Cid"_s, u"Dorothy Ann"_s, u"Eve"_s}));
}

TEST_F(CompactedFileTest, RefusedWrite_LeavesEverybodyKnown)
{
    Recordset people = Open();
    GoToDora(people);
    Execute("CREATE TRIGGER Refusal BEFORE UPDATE ON People BEGIN SELECT RAISE(ABORT, 'refused'); END");
    people.Edit();
    people.Put(u"Name", u"Dorothy"_s);
    EXPECT_EQ(RefusalOf([&] { people.Update(); }), ErrorNumber::DeviceIo);
    Execute("DROP TRIGGER Refusal");
    Compact();

    people.Update();

    EXPECT_EQ(Stored(), QStringList({u"Ann"_s, u"Cid"_s, u"Dorothy"_s, u"Eve"_s}));
}

} // namespace
} // namespace lineforge
