#include "NewBranchTest.h"
#include "program/AlternateBranch.h"
#include "support/Pixels.h"

namespace lineforge
{
namespace
{

enum class Question { Name, Confirmation };

class CancelledNewTest : public MadeBranchTest, public testing::WithParamInterface<Question>
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
        if (GetParam() == Question::Name) {
            AnswerName({});
        } else {
            AnswerName(u"Browns");
            Confirm(u"Browns", u"LfgDat_C", Answer::Cancel);
        }
        P.Form1->New.Click();
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

INSTANTIATE_TEST_SUITE_P(Questions, CancelledNewTest, testing::Values(Question::Name, Question::Confirmation),
                         [](const auto& question) {
                             return question.param == Question::Name ? "AtTheName" : "AtTheConfirmation";
                         });

} // namespace
} // namespace lineforge
