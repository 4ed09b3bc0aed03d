#include "platform/base/RuntimeError.h"
#include "platform/store/PeopleTable.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class RecordsetLikeTest : public PeopleTable
{
protected:
    // The people whose names fit, by a walk of its own.
    static QStringList Fitting(Recordset& people, QStringView pattern)
    {
        const LikePattern like(pattern);
        const int name = people.Column(u"Name");
        QStringList files;
        for (people.MoveFirst(); !people.Eof(); people.MoveNext())
            if (people.IsLike(name, like))
                files.push_back(people.Text(u"File"));
        return files;
    }

    const LikePattern anything{u"*"};
};

TEST_F(RecordsetLikeTest, Column_IsThePlaceInTheTable_ByANameInAnyCase)
{
    const Recordset people = Open();

    EXPECT_EQ(people.Column(u"File"), 0);
    EXPECT_EQ(people.Column(u"Name"), 1);
    EXPECT_EQ(people.Column(u"nAME"), 1);
    EXPECT_EQ(RefusalOf([&] { static_cast<void>(people.Column(u"Surname")); }), ErrorNumber::ItemNotFound);
}

TEST_F(RecordsetLikeTest, Walk_FindsTheRowsThatFit_OftenAsItIsMade)
{
    GivenPeople({u"Ann Smith"_s, std::nullopt, u"SMITHSON"_s, u""_s, u"Zo\u00eb Smith"_s, u"Smyth"_s});
    Recordset people = Open();

    // The first walk reads a field another way than the later ones.
    for (int pass = 0; pass < 3; ++pass) {
        EXPECT_EQ(Fitting(people, u"*smith*"), QStringList({u"A001"_s, u"A003"_s, u"A005"_s}));
        EXPECT_EQ(Fitting(people, u"*O\u00cb*"), QStringList{u"A005"_s});
        EXPECT_EQ(Fitting(people, u"sm[iy]th*"), QStringList({u"A003"_s, u"A006"_s}));
        EXPECT_EQ(Fitting(people, u""), QStringList{u"A004"_s});
        EXPECT_EQ(Fitting(people, u"*"), QStringList({u"A001"_s, u"A003"_s, u"A004"_s, u"A005"_s, u"A006"_s}));
    }
}

TEST_F(RecordsetLikeTest, NameThatIsNull_FitsNothing)
{
    GivenPeople({std::nullopt});
    const Recordset people = Open();

    EXPECT_FALSE(people.IsLike(1, anything));
    EXPECT_FALSE(people.IsLike(1, LikePattern(u"")));
}

TEST_F(RecordsetLikeTest, EditPending_IsWhatIsLookedAt)
{
    GivenPeople({u"Ann"_s, u"Bob"_s});
    Recordset people = Open();
    Fitting(people, u"*");
    people.MoveFirst();

    people.Edit();
    people.Put(u"Name", u"Cid"_s);
    EXPECT_TRUE(people.IsLike(1, LikePattern(u"c*")));
    EXPECT_FALSE(people.IsLike(1, LikePattern(u"a*")));
    EXPECT_TRUE(people.IsLike(0, LikePattern(u"A001"))) << "the other fields are those of the row";
    people.Put(u"Name", {});
    EXPECT_FALSE(people.IsLike(1, anything));

    people.Put(u"Name", u"Dan"_s);
    people.Update();
    EXPECT_TRUE(people.IsLike(1, LikePattern(u"d*")));
}

TEST_F(RecordsetLikeTest, EditDropped_IsForgotten)
{
    GivenPeople({u"Ann"_s, u"Bob"_s});
    Recordset people = Open();
    people.Edit();
    people.Put(u"Name", u"Cid"_s);

    people.MoveNext();

    EXPECT_EQ(Fitting(people, u"*"), QStringList({u"A001"_s, u"A002"_s}));
    EXPECT_EQ(Fitting(people, u"Cid"), QStringList());
}

TEST_F(RecordsetLikeTest, RowBeingAdded_HasOnlyTheFieldsThatWerePut)
{
    GivenPeople({u"Ann"_s});
    Recordset people = Open();

    people.AddNew();
    people.Put(u"Name", u"Cid"_s);

    EXPECT_TRUE(people.IsLike(1, LikePattern(u"cid")));
    EXPECT_FALSE(people.IsLike(0, anything));
}

TEST_F(RecordsetLikeTest, OutsideTheRows_IsNoCurrentRecord)
{
    Recordset none = Open();
    EXPECT_EQ(RefusalOf([&] { static_cast<void>(none.IsLike(1, anything)); }), ErrorNumber::NoCurrentRecord);

    GivenPeople({u"Ann"_s});
    for (const bool atEof : {true, false}) {
        Recordset people = Open();
        Fitting(people, u"*");
        people.MoveFirst();
        atEof ? people.MoveNext() : people.MovePrevious();
        EXPECT_EQ(RefusalOf([&] { static_cast<void>(people.IsLike(1, anything)); }), ErrorNumber::NoCurrentRecord);
    }
}

TEST_F(RecordsetLikeTest, RowThatIsGone_IsRecordDeleted)
{
    GivenPeople({u"Ann"_s, u"Bob"_s});
    Recordset people = Open();
    Recordset other = Open();
    other.Delete();

    EXPECT_EQ(RefusalOf([&] { static_cast<void>(people.IsLike(1, anything)); }), ErrorNumber::RecordDeleted);
}

TEST_F(RecordsetLikeTest, ChangeByAnotherCursor_IsSeenInTheMiddleOfAWalk)
{
    GivenPeople({u"Ann"_s, u"Bob"_s, u"Cid"_s});
    Recordset people = Open();
    Recordset other = Open();
    Fitting(people, u"*");
    people.MoveFirst();
    people.MoveNext();
    ASSERT_TRUE(people.IsLike(1, LikePattern(u"Bob")));

    other.MoveNext();
    other.Edit();
    other.Put(u"Name", u"Dan"_s);
    other.Update();

    EXPECT_TRUE(people.IsLike(1, LikePattern(u"Dan")));
    people.MoveNext();
    EXPECT_TRUE(people.IsLike(1, LikePattern(u"Cid")));
}

TEST_F(RecordsetLikeTest, SeekAndBookmark_LeadToTheRowThatIsLookedAt)
{
    GivenPeople({u"Ann"_s, u"Bob"_s, u"Cid"_s});
    Recordset people = Open();
    Fitting(people, u"*");

    people.Seek(u"File", u"A003"_s);
    EXPECT_TRUE(people.IsLike(1, LikePattern(u"Cid")));
    people.MovePrevious();
    EXPECT_TRUE(people.IsLike(1, LikePattern(u"Bob")));
}

} // namespace
} // namespace lineforge
