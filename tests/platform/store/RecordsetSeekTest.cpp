#include "platform/base/RuntimeError.h"
#include "platform/store/PeopleTable.h"
#include "platform/store/Recordset.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class RecordsetSeekTest : public PeopleTable
{
protected:
    // The walk that a search stands for.
    static bool SeekByWalking(Recordset& people, QStringView field, const QString& value)
    {
        for (people.MoveFirst(); !people.Eof(); people.MoveNext())
            if (people.FieldIs(field, value))
                return true;
        return false;
    }
};

class SeekEqualsWalkTest : public RecordsetSeekTest, public testing::WithParamInterface<QStringView>
{
};

TEST_P(SeekEqualsWalkTest, Search_EndsWhereTheWalkDoes)
{
    GivenPeople({std::nullopt, u"Ann"_s, u"ANN"_s, u"Zo\u00eb"_s, u"ZO\u00cb"_s, u""_s, u"Stra\u00dfe"_s, u"Strasse"_s,
                 u"\u212Ate"_s, u"kate"_s, u"\u0416\u0435\u043d\u044f"_s, u" Ann"_s, u"Ann "_s, u"1"_s, u"01"_s, u"%"_s,
                 u"A_n"_s, u"O'Neil"_s, u"last"_s});
    Recordset seeking = Open();
    Recordset walking = Open();
    const QString value = GetParam().toString();

    EXPECT_EQ(seeking.Seek(u"Name", value), SeekByWalking(walking, u"Name", value));
    EXPECT_EQ(seeking.Eof(), walking.Eof());
    EXPECT_EQ(seeking.Bof(), walking.Bof());
    ASSERT_EQ(seeking.HasRow(), walking.HasRow());
    const auto file = [](const Recordset& people) { return people.HasRow() ? people.Text(u"File") : QString(); };
    EXPECT_EQ(file(seeking), file(walking));
}

INSTANTIATE_TEST_SUITE_P(Values, SeekEqualsWalkTest,
                         testing::Values(u"Ann", u"ann", u"zo\u00cb", u"Zoe", u"", u"strasse", u"STRA\u00dfE", u"Kate",
                                         u"\u212Aate", u"\u0436\u0415\u041d\u042f", u" ann", u"ANN ", u"1", u"01",
                                         u"1.0", u"%", u"A%", u"a_N", u"A?n", u"o'neil", u"LAST", u"nobody", u"-",
                                         u"null"));

TEST_F(RecordsetSeekTest, Search_StandsOnTheFirstMatch)
{
    GivenPeople({u"Ann"_s, u"bob"_s, u"BOB"_s});
    Recordset people = Open();

    EXPECT_TRUE(people.Seek(u"name", u"Bob"_s));
    EXPECT_EQ(people.Text(u"File"), u"A002");
    people.MoveNext();
    EXPECT_EQ(people.Text(u"File"), u"A003");
}

TEST_F(RecordsetSeekTest, SearchInVain_EndsAtEof)
{
    GivenPeople({u"Ann"_s});
    Recordset people = Open();

    EXPECT_FALSE(people.Seek(u"Name", u"Bob"_s));
    EXPECT_TRUE(people.Eof());
    EXPECT_FALSE(people.Bof());
    people.MovePrevious();
    EXPECT_EQ(people.Text(u"Name"), u"Ann");
}

TEST_F(RecordsetSeekTest, SearchInAnEmptyTable_FindsNothing)
{
    Recordset people = Open();

    EXPECT_FALSE(people.Seek(u"Name", u"Bob"_s));
    EXPECT_TRUE(people.IsEmpty());
}

TEST_F(RecordsetSeekTest, SearchFromEof_StartsAtTheFirstRow)
{
    GivenPeople({u"Ann"_s, u"Bob"_s});
    Recordset people = Open();
    Walk(people);

    EXPECT_TRUE(people.Seek(u"Name", u"Ann"_s));
    EXPECT_EQ(people.Text(u"File"), u"A001");
}

TEST_F(RecordsetSeekTest, SearchForgetsTheEditInHand)
{
    GivenPeople({u"Ann"_s, u"Bob"_s});
    Recordset people = Open();
    people.Edit();
    people.Put(u"Name", u"Bob"_s);

    EXPECT_TRUE(people.Seek(u"Name", u"Bob"_s));
    EXPECT_EQ(people.Text(u"File"), u"A002");
    EXPECT_EQ(Stored().value(0), u"Ann");
}

TEST_F(RecordsetSeekTest, RowOfTheCursorsOwn_IsFound)
{
    GivenPeople({u"Ann"_s});
    Recordset people = Open();
    people.AddNew();
    people.Put(u"Name", u"Dora"_s);
    people.Update();

    EXPECT_TRUE(people.Seek(u"Name", u"dora"_s));
    EXPECT_EQ(people.GetBookmark(), people.LastModified());
}

TEST_F(RecordsetSeekTest, NumbersAndBytesInTheTable_AreComparedAsTheTextTheyReadAs)
{
    SqliteFile(home.Path(u"numbers.db"))
        .Execute("CREATE TABLE Numbers (Whole INTEGER, Loose, Fraction REAL);"
                 "INSERT INTO Numbers VALUES (7, 7, 1.5), (8, x'4142', 2.5)");
    Recordset numbers(databases.Open(files, u"numbers.db"_s), u"Numbers"_s);
    Recordset walking(databases.Open(files, u"numbers.db"_s), u"Numbers"_s);

    for (const QStringView field : {u"Whole", u"Loose", u"Fraction"})
        for (const QString& value : {u"7"_s, u"07"_s, u"7.0"_s, u"8"_s, u"ab"_s, u"1.5"_s, u"1.50"_s})
            EXPECT_EQ(numbers.Seek(field, value), SeekByWalking(walking, field, value))
                << qUtf8Printable(value) << " in " << qUtf8Printable(field.toString());
}

} // namespace
} // namespace lineforge
