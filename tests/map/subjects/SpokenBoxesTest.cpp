#include "map/items/SpokenBoxes.h"

#include "map/MapTest.h"
#include "program/branch/SiblingBranch.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class SpokenBoxesTest : public MapTest
{
protected:
    SpokenBoxesTest()
    {
        BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}})
            .Row({{u"File", u"A002"}, {u"Forename", u"Mary Louise"}})
            .Row({{u"File", u"A003"}});
        BranchB.Row({{u"File", u"B001"}, {u"Forename", u"Beatrice"}});
    }

    QStringList Names()
    {
        QStringList names;
        for (const PicturePart& part : SpokenBoxes(P.Map, P))
            names += part.SpokenName;
        return names;
    }
};

TEST_F(SpokenBoxesTest, ABox_HasNumberAndWholeForename_AndItsPlace)
{
    GivenOpen(BranchA);
    GivenBox(0, {1200, 600}, u"A001");
    GivenBox(2, {2400, 900}, u"a002");

    const std::vector<PicturePart> boxes = SpokenBoxes(P.Map, P);

    ASSERT_EQ(boxes.size(), 2u);
    EXPECT_EQ(boxes[0].Number, 0);
    EXPECT_EQ(boxes[0].Place, (Rectangle{1200, 600, BoxWidth, BoxHeight}));
    EXPECT_EQ(boxes[0].SpokenName, u"A001 John"_s);
    EXPECT_EQ(boxes[0].SpokenPlace, u"1200, 600"_s);
    EXPECT_EQ(boxes[1].Number, 2);
    EXPECT_EQ(boxes[1].SpokenName, u"a002 Mary Louise"_s);
}

TEST_F(SpokenBoxesTest, ABoxWithoutARecord_IsEmpty)
{
    GivenOpen(BranchA);
    GivenBox(0, {1200, 600}, u"0");
    GivenBox(1, {2400, 600}, u"");
    EXPECT_EQ(Names(), QStringList({u"Empty box"_s, u"Empty box"_s}));
}

TEST_F(SpokenBoxesTest, ANumberOfNobody_AndARecordWithoutAForename_AreNumbersAlone)
{
    GivenOpen(BranchA);
    GivenBox(0, {1200, 600}, u"A099");
    GivenBox(1, {2400, 600}, u"A003");
    EXPECT_EQ(Names(), QStringList({u"A099"_s, u"A003"_s}));
}

TEST_F(SpokenBoxesTest, TheForename_IsTheRecordsOwn_WhateverTheMapRemembers)
{
    GivenOpen(BranchA);
    GivenBox(0, {1200, 600}, u"A001");
    P.Map.BoxArr[0][BoxColumn::Forename] = u"Somebody"_s;
    EXPECT_EQ(Names(), QStringList{u"A001 John"_s});
}

TEST_F(SpokenBoxesTest, ABoxAtNoPossiblePlace_IsPassedOver)
{
    GivenOpen(BranchA);
    GivenBox(0, {1200, 600}, u"A001");
    P.Map.BoxArr[0][BoxColumn::Y] = u"nowhere"_s;
    GivenBox(1, {2400, 600}, u"A002");
    EXPECT_EQ(Names(), QStringList{u"A002 Mary Louise"_s});
}

TEST_F(SpokenBoxesTest, ASiblingsRecord_HasItsForename_AsLongAsTheSiblingCanBeRead)
{
    GivenOpen(BranchA);
    GivenBox(0, {1200, 600}, u"B001");
    EXPECT_EQ(Names(), QStringList{u"B001"_s});
    BranchB.Build();
    EXPECT_EQ(Names(), QStringList{u"B001 Beatrice"_s});
    Home.WriteFile(BranchB.DatabaseFile(), "no database");
    EXPECT_EQ(Names(), QStringList{u"B001"_s});
}

TEST_F(SpokenBoxesTest, AnImportedBranch_KnowsItsOwnPeopleAlone)
{
    BranchB.InDirectory(u"Import_B").Build();
    GivenOpen(BranchA.InDirectory(u"Import_A"));
    GivenBox(0, {1200, 600}, u"A001");
    GivenBox(1, {2400, 600}, u"B001");
    EXPECT_EQ(Names(), QStringList({u"A001 John"_s, u"B001"_s}));
}

TEST_F(SpokenBoxesTest, WhileASiblingsRecordIsShown_TheMapIsStillThatOfItsOwnBranch)
{
    BranchB.Build();
    GivenOpen(BranchA);
    GivenBox(0, {1200, 600}, u"A001");
    GivenBox(1, {2400, 600}, u"B001");
    SwitchToSibling(P, u"B");
    EXPECT_EQ(Names(), QStringList({u"A001 John"_s, u"B001 Beatrice"_s}));
}

TEST_F(SpokenBoxesTest, NeitherTheCursor_NorTheDisk_IsTouched)
{
    BranchB.Build();
    GivenOpen(BranchA);
    GivenBox(0, {1200, 600}, u"A001");
    GivenBox(1, {2400, 600}, u"B001");
    Records(P.Form3).MoveNext();
    const Tree before = Home.Snapshot();

    SpokenBoxes(P.Map, P);

    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A002"_s);
    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(SpokenBoxesTest, WithoutABranch_TheBoxesOfTheToolsAreEmpty)
{
    EXPECT_TRUE(SpokenBoxes(P.Map, P).empty());
    GivenBox(0, {1200, 600});
    GivenBox(1, {2400, 600}, u"A001");
    EXPECT_EQ(Names(), QStringList({u"Empty box"_s, u"A001"_s}));
}

} // namespace
} // namespace lineforge
