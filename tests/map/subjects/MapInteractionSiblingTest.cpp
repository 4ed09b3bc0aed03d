#include "map/subjects/MapInteractionTest.h"
#include "program/branch/SiblingBranch.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// The map of a branch with A001 in row 0 and B002 in row 1; its record A002 is the current one.
class SiblingDoubleClickTest : public MapInteractionTest
{
protected:
    SiblingDoubleClickTest()
    {
        BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}, {u"Gender", u"Male"}})
            .Row({{u"File", u"A002"}, {u"Forename", u"Jane"}, {u"Gender", u"Female"}})
            .Picture(u"A001", Qt::red)
            .Picture(u"A002", Qt::blue);
        BranchB.Row({{u"File", u"B001"}, {u"Forename", u"Ann"}, {u"Gender", u"Female"}})
            .Row({{u"File", u"B002"}, {u"Forename", u"Tom"}, {u"Gender", u"Male"}})
            .Picture(u"B002", Qt::green);
    }

    void GivenMap()
    {
        GivenOpen(BranchA);
        GivenBox(0, {1000, 500}, u"A001");
        GivenBox(1, {2000, 500}, u"B002");
        P.Map.SBoxes = 1;
        Records(P.Form3).MoveLast();
    }

    void ExpectOn(QStringView directory, int usingAlternate)
    {
        EXPECT_EQ(P.Branch.WorkDir, Home.Path(directory));
        EXPECT_EQ(P.Branch.HomeDir, P.ExecutableDirectory);
        EXPECT_EQ(P.Branch.UsingAlternate, usingAlternate);
        EXPECT_EQ(P.Branch.sDbaseName.toLower(),
                  Home.Path(QString(directory + u"/lfgdat_" + directory.last(1) + u".mdb")).toLower());
    }

    bool TransportIs(bool enabled)
    {
        for (Button forms::Form3::*transport : forms::Form3::Transport)
            if (((*P.Form3).*transport).Enabled != enabled)
                return false;
        return true;
    }

    static constexpr int localBox = 0;
    static constexpr int siblingsBox = 1;
};

TEST_F(SiblingDoubleClickTest, TheWholeProgramGoesThere_AndShowsTheRecord)
{
    BranchB.Build();
    GivenMap();

    DoubleClickBox(siblingsBox);

    ExpectOn(u"LfgDat_B", 1);
    EXPECT_EQ(P.Branch.WorkDirSaved, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(P.Branch.HomeDirSaved, P.ExecutableDirectory);
    EXPECT_EQ(Current(), u"B002"_s);
    EXPECT_EQ(ShownNumber(), u"Ref  B002"_s);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"Tom"_s);
    const QImage shown = P.Form1->Image1.Picture;
    ASSERT_FALSE(shown.isNull());
    EXPECT_GT(qGreen(shown.pixel(5, 5)), 100);
    EXPECT_LT(qRed(shown.pixel(5, 5)), 20);
    EXPECT_TRUE(IsMarkerOnBox(siblingsBox));
    EXPECT_EQ(P.Map.Owner, Home.Path(u"LfgDat_A"));
}

TEST_F(SiblingDoubleClickTest, SmallLetterInTheBox_IsTheSameBranch)
{
    BranchB.Build();
    GivenMap();
    GivenBox(siblingsBox, {2000, 500}, u"b002");

    DoubleClickBox(siblingsBox);

    EXPECT_EQ(P.Branch.UsingAlternate, 1);
    EXPECT_EQ(ShownNumber(), u"Ref  B002"_s);
}

TEST_F(SiblingDoubleClickTest, SmallLetterOfTheOwnBranch_IsLocal)
{
    GivenMap();
    GivenBox(localBox, {1000, 500}, u"a001");

    DoubleClickBox(localBox);

    ExpectOn(u"LfgDat_A", 0);
    EXPECT_EQ(ShownNumber(), u"Ref  A001"_s);
}

TEST_F(SiblingDoubleClickTest, DatabaseMissing_IsToldWithItsPath_AndNothingIsSwitched)
{
    GivenMap();
    ExpectMissing(u"LfgDat_B/LfgDat_B.mdb");
    GivenMarkerElsewhere();

    DoubleClickBox(siblingsBox);

    ExpectOn(u"LfgDat_A", 0);
    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(P.Branch.WorkDirSaved, QString());
    EXPECT_TRUE(IsMarkerUntouched());
}

TEST_F(SiblingDoubleClickTest, EmptyBranch_IsTold_AndTheSwitchStays)
{
    BranchBuilder(Home, u'B').Build();
    GivenMap();
    Prompts.Expect(u"Database Empty", u"This Tree Branch has no records to access", Buttons::Information);

    DoubleClickBox(siblingsBox);

    ExpectOn(u"LfgDat_B", 1);
    EXPECT_TRUE(Records(P.Form3).IsEmpty());
}

TEST_F(SiblingDoubleClickTest, NoSuchRecord_IsTold_TheSwitchStays_AndTheCursorOnItsFirst)
{
    BranchB.Build();
    GivenMap();
    GivenBox(siblingsBox, {2000, 500}, u"B009");
    GivenMarkerElsewhere();
    Prompts.Expect(u"Database Searched", u"No File data found", Buttons::Information);

    DoubleClickBox(siblingsBox);

    ExpectOn(u"LfgDat_B", 1);
    EXPECT_EQ(Current(), u"B001"_s);
    EXPECT_TRUE(IsMarkerUntouched());
}

TEST_F(SiblingDoubleClickTest, ABrokenDatabase_IsTheErrorOfTheStore)
{
    GivenMap();
    Home.WriteFile(u"LfgDat_B/LfgDat_B.mdb", QByteArray(5000, 'x'));

    EXPECT_EQ(RefusalOf([&] { DoubleClickBox(siblingsBox); }), ErrorNumber::NotADatabase);

    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_EQ(Current(), u"A002"_s);
}

TEST_F(SiblingDoubleClickTest, NextDoubleClickOnALocalBox_ReturnsFirst)
{
    BranchB.Build();
    GivenMap();
    DoubleClickBox(siblingsBox);

    DoubleClickBox(localBox);

    ExpectOn(u"LfgDat_A", 0);
    EXPECT_EQ(ShownNumber(), u"Ref  A001"_s);
    EXPECT_TRUE(IsMarkerOnBox(localBox));
}

TEST_F(SiblingDoubleClickTest, NextDoubleClickBesideAllBoxes_ReturnsAllTheSame)
{
    BranchB.Build();
    GivenMap();
    DoubleClickBox(siblingsBox);

    DoubleClick(Nowhere);

    ExpectOn(u"LfgDat_A", 0);
    EXPECT_EQ(Current(), u"A001"_s); // opened afresh
    EXPECT_EQ(ShownNumber(), u"Ref  "_s);
}

TEST_F(SiblingDoubleClickTest, SameBoxAgain_ReturnsFirst_AndOpensTheOtherBranchAfresh)
{
    BranchB.Build();
    GivenMap();
    DoubleClickBox(siblingsBox);

    DoubleClickBox(siblingsBox);

    ExpectOn(u"LfgDat_B", 1);
    // Without the return these would be the other branch's.
    EXPECT_EQ(P.Branch.WorkDirSaved, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(ShownNumber(), u"Ref  B002"_s);
}

TEST_F(SiblingDoubleClickTest, SameBoxAgain_ReturnsToTheOwnBranchFirst_WhichMustBeThere)
{
    BranchB.Build();
    GivenMap();
    DoubleClickBox(siblingsBox);
    P.Files.Kill(Home.Path(u"LfgDat_A/LfgDat_A.mdb"));

    EXPECT_EQ(RefusalOf([&] { DoubleClickBox(siblingsBox); }), ErrorNumber::DatabaseNotFound);
}

TEST_F(SiblingDoubleClickTest, SameBoxAgain_TheRecordIsReadFromTheFileThatIsThereNow)
{
    BranchB.Build();
    GivenMap();
    DoubleClickBox(siblingsBox);
    ASSERT_EQ(P.Form1->Label9.Caption.value(), u"Tom"_s);
    P.Files.Kill(Home.Path(u"LfgDat_B/LfgDat_B.mdb"));
    BranchBuilder(Home, u'B')
        .Row({{u"File", u"B009"}})
        .Row({{u"File", u"B002"}, {u"Forename", u"Theo"}, {u"Gender", u"Male"}})
        .Picture(u"B002", Qt::green)
        .Build();

    DoubleClickBox(siblingsBox);

    ExpectOn(u"LfgDat_B", 1);
    EXPECT_EQ(Current(), u"B002"_s);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"Theo"_s);
    EXPECT_TRUE(IsMarkerOnBox(siblingsBox));
}

TEST_F(SiblingDoubleClickTest, SameBoxAgain_TheOtherBranchGoneMeanwhile_EndsOnTheLocalOne)
{
    BranchB.Build();
    GivenMap();
    DoubleClickBox(siblingsBox);
    P.Files.Kill(Home.Path(u"LfgDat_B/LfgDat_B.mdb"));
    ExpectMissing(u"LfgDat_B/LfgDat_B.mdb");

    DoubleClickBox(siblingsBox);

    ExpectOn(u"LfgDat_A", 0);
}

TEST_F(SiblingDoubleClickTest, Records_DisablesTheTransport_AndTheReturnEnablesIt)
{
    BranchB.Build();
    GivenMap();
    DoubleClickBox(siblingsBox);
    P.Form1->Command1.Click();
    ASSERT_TRUE(TransportIs(false));

    DoubleClick(Nowhere);

    EXPECT_TRUE(TransportIs(true));
}

TEST_F(SiblingDoubleClickTest, Records_OfALocalRecord_LeavesTheTransportEnabled)
{
    GivenMap();
    DoubleClickBox(localBox);

    P.Form1->Command1.Click();

    EXPECT_TRUE(TransportIs(true));
}

TEST_F(SiblingDoubleClickTest, NoBranchOpenAnyMore_IsTold)
{
    BranchB.Build();
    GivenMap();
    DoubleClickBox(siblingsBox);
    P.Form1->mnuCloseDB.Click();
    Prompts.Expect(u"Data not available", u"Cannot View until database file is Opened", Buttons::Information);

    DoubleClickBox(siblingsBox);

    EXPECT_EQ(P.Branch.UsingAlternate, 0);
}

// The same boxes in a branch that was imported: its neighbours are imported ones.
class ImportedDoubleClickTest : public SiblingDoubleClickTest
{
protected:
    ImportedDoubleClickTest()
    {
        BranchA.InDirectory(u"Import_A");
        BranchB.InDirectory(u"Import_B");
    }
};

TEST_F(ImportedDoubleClickTest, GoesToTheImportedNeighbour)
{
    BranchB.Build();
    GivenMap();

    DoubleClickBox(siblingsBox);

    ExpectOn(u"Import_B", 1);
    EXPECT_EQ(P.Branch.WorkDirSaved, Home.Path(u"Import_A"));
    EXPECT_EQ(ShownNumber(), u"Ref  B002"_s);
}

TEST_F(ImportedDoubleClickTest, NeighbourMissing_IsToldWithoutAPath_ThoughAnOrdinaryOneIsThere)
{
    BranchBuilder(Home, u'B').Row({{u"File", u"B002"}}).Build();
    GivenMap();
    Prompts.Expect(u"External Import Record not present.", u"Cannot Access External Imported Database subject.",
                   Buttons::Information);

    DoubleClickBox(siblingsBox);

    ExpectOn(u"Import_A", 0);
}

TEST_F(ImportedDoubleClickTest, OwnRecord_IsLocal)
{
    GivenMap();

    DoubleClickBox(localBox);

    ExpectOn(u"Import_A", 0);
    EXPECT_EQ(ShownNumber(), u"Ref  A001"_s);
}

} // namespace
} // namespace lineforge
