#include "map/subjects/SubjectPanel.h"
#include "program/branch/SiblingBranch.h"
#include "program/branch/WorkDatabase.h"
#include "shell/branches/NewBranchTest.h"
#include "support/Pixels.h"

namespace lineforge
{
namespace
{

enum class WayOut { Name, Confirmation, FullTable };

const char* NameOf(WayOut way)
{
    switch (way) {
    case WayOut::Name:
        return "AtTheName";
    case WayOut::Confirmation:
        return "AtTheConfirmation";
    case WayOut::FullTable:
        break;
    }
    return "AtTheFullTable";
}

class CancelledNewTest : public MadeBranchTest, public testing::WithParamInterface<WayOut>
{
protected:
    CancelledNewTest()
    {
        Choose(u"Smiths");
        MoveFirstBoxTo(1300);
        Saved = QByteArray(MapOf(u'A')).replace("1200,600,255,A001", "1300,600,255,A001");
    }

    void CancelNew()
    {
        switch (GetParam()) {
        case WayOut::Name:
            AnswerName({});
            break;
        case WayOut::Confirmation:
            AnswerName(u"Browns");
            Confirm(u"Browns", u"LfgDat_C", Answer::Cancel);
            break;
        case WayOut::FullTable:
            Home.MakeDirectory(u"LfgDat_Z");
            ExpectFullBox();
        }
        P.Form1->New.Click();
    }

    // Her picture is blue; that of the first record is red.
    void GivenSecondRecordOfJones()
    {
        SwitchToSibling(P, u"B");
        Records(P.Form3).MoveLast();
        ShowRecordOnMap(P);
        ASSERT_EQ(P.Form1->Frame1.Caption.value(), u"Ref  B002"_s);
    }

    QByteArray Saved;
};

TEST_P(CancelledNewTest, Map_IsSavedAndCleared)
{
    CancelNew();

    EXPECT_EQ(MapOf(u'A'), Saved);
    EXPECT_TRUE(IsBlank(P.Form1->Picture1));
    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::X].Text(), QString());
    EXPECT_EQ(P.Map.sBoxesText + P.Map.sLinesText + P.Map.sTextsText, QString());
    EXPECT_EQ(P.Form1->Picture1.Font, (TextFont{u"Arial"_s, 8}));
}

TEST_P(CancelledNewTest, OldBranch_IsStillOpenInTheVariables)
{
    CancelNew();

    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(P.Branch.sBranchName, u"Smiths"_s);
    EXPECT_EQ(P.Branch.sDbaseName, u"LfgDat_A.mdb"_s);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"John"_s);
    EXPECT_EQ(Registry(), registryOfTwo);
    EXPECT_FALSE(Home.Exists(u"LfgDat_C"));
}

TEST_P(CancelledNewTest, MapOfTheOldBranch_IsNeverOverwrittenWithAnEmptyOne)
{
    CancelNew();

    CancelNew();
    EXPECT_EQ(MapOf(u'A'), Saved);
    P.Form1->mnuCloseDB.Click();
    EXPECT_EQ(MapOf(u'A'), Saved);
}

TEST_P(CancelledNewTest, ExitAfterIt_LeavesTheMapAsItWas)
{
    CancelNew();

    Click(P.Form1->mnuExit.Click);

    EXPECT_EQ(MapOf(u'A'), Saved);
}

TEST_P(CancelledNewTest, OpeningTheBranchAgain_BringsItsMapBack)
{
    CancelNew();

    Choose(u"Smiths");

    EXPECT_EQ(MapOf(u'A'), Saved);
    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::X].Number(), 1300);
}

TEST_P(CancelledNewTest, OnARecordOfAnotherBranch_NeitherMapIsTouched)
{
    const QByteArray other = MapOf(u'B');
    SwitchToSibling(P, u"B");
    CancelNew();
    EXPECT_EQ(P.Branch.UsingAlternate, 0);

    Click(P.Form1->mnuExit.Click);

    EXPECT_EQ(MapOf(u'A'), Saved);
    EXPECT_EQ(MapOf(u'B'), other);
}

TEST_P(CancelledNewTest, OnARecordOfAnotherBranch_TheMapsOwnIsOpenAgain_WithItsFirstSubject)
{
    GivenSecondRecordOfJones();

    CancelNew();

    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_TRUE(P.Branch.sDbaseName.endsWith(u"Lfgdat_A.mdb"_s));
    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A001"_s);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"John"_s);
    EXPECT_EQ(P.Form1->Frame1.Caption.value(), u"Ref  A001"_s);
    EXPECT_GT(P.Form1->Image1.Picture.value().pixelColor(10, 10).red(), 200);
}

TEST_P(CancelledNewTest, OnARecordOfAnotherBranch_ADeleteAfterItTakesTheMapsOwn)
{
    Home.WriteFile(u"LfgDat_B/LfgGal_B/B002_01.jpg", "picture");
    GivenSecondRecordOfJones();
    CancelNew();

    DeleteForGood();

    EXPECT_FALSE(Home.Exists(u"LfgDat_A"));
    EXPECT_TRUE(Home.Exists(u"LfgDat_B/LfgDat_B.mdb"));
    EXPECT_TRUE(Home.Exists(u"LfgDat_B/LfgGal_B/B002_01.jpg"));
    EXPECT_TRUE(Registry().contains("[Jones=LfgDat_B,]"));
}

TEST_P(CancelledNewTest, OnARecordOfAnotherBranch_WithoutPictures_ShowsNobodyElses)
{
    GivenSecondRecordOfJones();
    QFile::remove(Home.Path(u"LfgDat_A/A001Sub.jpg"));

    CancelNew();

    EXPECT_TRUE(P.Form1->Image1.Picture.value().isNull());
    EXPECT_EQ(P.Form1->Frame1.Caption.value(), u"Ref  A001"_s);
}

INSTANTIATE_TEST_SUITE_P(WaysOut, CancelledNewTest,
                         testing::Values(WayOut::Name, WayOut::Confirmation, WayOut::FullTable),
                         [](const auto& turn) { return NameOf(turn.param); });

} // namespace
} // namespace lineforge
