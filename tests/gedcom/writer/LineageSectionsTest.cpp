#include "gedcom/GedcomTest.h"
#include "gedcom/writer/Lineage.h"
#include "support/Refusal.h"

// Where the table ends, where a search fails, and what happens in the yields.
namespace lineforge
{
namespace
{

class LineageSectionsTest : public GedcomTest
{
protected:
    void CollectFrom(const QString& start)
    {
        P.Form12->Text7.Text = start;
        CollectLineage(P);
    }

    static QString Number(int number) { return u"A%1"_s.arg(number, 3, 10, QChar(u'0')); }

    // Each the child of the next one.
    static std::vector<Person> LineOf(int length)
    {
        std::vector<Person> people;
        for (int at = 1; at <= length; ++at)
            people.push_back({Number(at), at < length ? std::optional(Number(at + 1)) : std::nullopt});
        return people;
    }
};

TEST_F(LineageSectionsTest, LineOf99_HasOffspringInEveryRow)
{
    GivenPeople(LineOf(99));

    CollectFrom(u"A001"_s);

    EXPECT_EQ(P.Lineage.sLineageCount, u"99");
    EXPECT_EQ(Table().last(), u"Fam|A099||    |    |A098"_s);
}

// The second section leaves at the last row, which the third goes over the edge of.
TEST_F(LineageSectionsTest, LineOf100_FillsTheTable_AndIsASubscriptErrorInTheThirdSection)
{
    GivenPeople(LineOf(100));

    EXPECT_EQ(RefusalOf([&] { CollectFrom(u"A001"_s); }), ErrorNumber::Subscript);

    EXPECT_EQ(P.Lineage.sLineageCount, u"100");
    EXPECT_EQ(Table().last(), u"|A100||    |    |"_s) << "the last row gets no offspring";
    EXPECT_TRUE(Panel().last().startsWith(u"SECTION3"));
}

TEST_F(LineageSectionsTest, LineOf101_IsASubscriptErrorInTheFirstSection)
{
    GivenPeople(LineOf(101));

    EXPECT_EQ(RefusalOf([&] { CollectFrom(u"A001"_s); }), ErrorNumber::Subscript);

    EXPECT_EQ(Panel().last(), u"Rec A100 Pa A101 Ma     "_s);
}

TEST_F(LineageSectionsTest, ForebearWhoIsHisOwnSon_IsASubscriptError_NoEndlessWalk)
{
    GivenPeople({{u"A001"_s, u"A002"_s}, {u"A002"_s, u"A001"_s}});

    EXPECT_EQ(RefusalOf([&] { CollectFrom(u"A001"_s); }), ErrorNumber::Subscript);
}

// 25 of the line, each with four more children: 125 individuals are more than there are rows.
TEST_F(LineageSectionsTest, FullTable_TakesNoMoreOffspring_AndGoesOnToTheFourthSection)
{
    std::vector<Person> people = LineOf(25);
    int next = 100;
    for (int father = 1; father <= 25; ++father)
        for (int child = 0; child < 4; ++child)
            people.push_back({Number(++next), Number(father)});
    GivenPeople(people);

    EXPECT_EQ(RefusalOf([&] { CollectFrom(u"A001"_s); }), ErrorNumber::Subscript)
        << "the fourth section finds no empty row to end at";

    EXPECT_EQ(Table().size(), 100);
    EXPECT_TRUE(Panel().contains(u"SECTION4:"_s));
    EXPECT_EQ(P.Scratch.IdxB, 100);
}

TEST_F(LineageSectionsTest, OffspringGoneMeanwhile_HasNoParents_AndEndsTheMarkingOfAllRowsBehindIt)
{
    GivenPeople({{u"A001"_s, u"A002"_s}, {u"A003"_s, u"A001"_s, u"A004"_s}, {u"A002"_s}, {u"A004"_s}});
    // The first yield comes behind the offspring of the first row.
    Machine.Loop.AtNextYield([&] {
        Recordset& records = Records(P.Form3);
        ASSERT_TRUE(records.Seek(u"File", u"A003"_s));
        records.Delete();
    });

    CollectFrom(u"A001"_s);

    EXPECT_EQ(Table(), QStringList({u"|A001||A002|    |A003"_s, u"|A002||    |    |A001"_s, u"|A003||||"_s}));
}

TEST_F(LineageSectionsTest, SpouseWithoutARecord_FillsAllFreeRows)
{
    GivenPeople({{u"A001"_s}, {u"A002"_s, u"A001"_s, u"Z999"_s}});

    CollectFrom(u"A001"_s);

    ASSERT_EQ(Table().size(), 100);
    EXPECT_EQ(Table()[1], u"|A002||A001|Z999|"_s);
    for (int row = 2; row < 100; ++row)
        EXPECT_EQ(Table()[row], u"|Z999|A001|||"_s);
    EXPECT_TRUE(Panel().last().startsWith(u"Ind:Z999 Sps:A001"));
}

TEST_F(LineageSectionsTest, SpouseWhoIsInTheTable_IsNotAddedAgain)
{
    GivenPeople({{u"A001"_s}, {u"A002"_s, u"A001"_s, u"A003"_s}, {u"A003"_s, u"A001"_s, u"A003"_s}});

    CollectFrom(u"A001"_s);

    EXPECT_EQ(Table(),
              QStringList({u"Fam|A001|A003|    |    |A002,A003"_s, u"|A002||A001|A003|"_s, u"|A003||A001|A003|"_s}));
}

TEST_F(LineageSectionsTest, AddedSpouse_BringsHerParents_EmptyWhereThereAreNone)
{
    GivenPeople({{u"A001"_s}, {u"A002"_s, u"A001"_s, u"A003"_s}, {u"A003"_s, {}, u"A004"_s}});

    CollectFrom(u"A001"_s);

    EXPECT_EQ(Table().last(), u"|A003|A001||A004|"_s);
}

TEST_F(LineageSectionsTest, WomanOfTheLine_GetsNoOffspring)
{
    GivenPeople({{u"A001"_s}, {u"A002"_s, {}, u"A001"_s}});

    CollectFrom(u"A001"_s);

    EXPECT_EQ(Table(), QStringList{u"|A001||    |    |"_s});
}

TEST_F(LineageSectionsTest, NoRecords_IsTheStartAlone)
{
    GivenPeople({{u"A001"_s}});
    Records(P.Form3).Delete();

    CollectFrom(u"A001"_s);

    EXPECT_EQ(Table(), QStringList{u"|A001||||"_s});
}

TEST_F(LineageSectionsTest, CursorIsNotPutBack)
{
    GivenPeople({{u"A001"_s}, {u"A002"_s, u"A001"_s}});
    Records(P.Form3).MoveLast();

    CollectFrom(u"A001"_s);

    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A002") << "the last one that was looked for";
    EXPECT_EQ(P.Record.sCurFile, u"A002");
}

// A click on the map leaves another number in an index of the walk.
TEST_F(LineageSectionsTest, SharedIndexes_AreTheWalksOwnAgainAfterAYield)
{
    GivenPeople({{u"A001"_s, u"A003"_s},
                 {u"A002"_s, u"A001"_s, u"A005"_s},
                 {u"A003"_s},
                 {u"A004"_s, u"A001"_s, u"A005"_s},
                 {u"A005"_s}});
    CollectFrom(u"A001"_s);
    const QStringList undisturbed = Table();
    for (int yield = 0; yield < 100; ++yield)
        Machine.Loop.AtNextYield([&] { P.Scratch.IdxA = P.Scratch.IdxB = P.Scratch.LenScratch = 100; });

    CollectFrom(u"A001"_s);

    EXPECT_EQ(Table(), undisturbed);
}

TEST_F(LineageSectionsTest, MovedCursor_DoesNotDisturbTheWalk)
{
    GivenPeople({{u"A001"_s, u"A003"_s}, {u"A002"_s, u"A001"_s, u"A003"_s}, {u"A003"_s}});
    CollectFrom(u"A001"_s);
    const QStringList undisturbed = Table();
    for (int yield = 0; yield < 100; ++yield)
        Machine.Loop.AtNextYield([&] { Records(P.Form3).MoveLast(); });

    CollectFrom(u"A001"_s);

    EXPECT_EQ(Table(), undisturbed);
}

} // namespace
} // namespace lineforge
