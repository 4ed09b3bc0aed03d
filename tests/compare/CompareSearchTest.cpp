#include "compare/CompareSearch.h"

#include "compare/CompareTest.h"

namespace lineforge
{
namespace
{

class CompareSearchTest : public CompareTest
{
protected:
    CompareSearchTest()
    {
        GivenComparison({Person(u"A001", u"Smith", u"John"), Person(u"A002", u"Jones", u"Mary")},
                        {Person(u"B001", u"Smith", u"Jon"), Person(u"B002", u"Brown", u"Ann")});
    }

    static Fields Person(QStringView file, QStringView surname, QStringView forename)
    {
        return {{u"File", file}, {u"Surname", surname}, {u"Forename", forename}};
    }
};

TEST_F(CompareSearchTest, FirstPress_ShowsTheFirstDifference)
{
    Search();
    EXPECT_EQ(Captions(), u"Field: Forename|Field: Forename"_s);
    EXPECT_EQ(Texts(), u"John|Jon"_s);
    EXPECT_EQ(P.Form6->Text2.Marked.value(), (TextRange{2, 1}));
    EXPECT_EQ(P.Form6->Text4.Marked.value(), TextRange(2, 0));
    EXPECT_EQ(Light(), Found);
}

TEST_F(CompareSearchTest, Reset_BeginsWithBothFirstRecords)
{
    Search();
    Records(P.Form3).MoveLast();
    CompareRecords(P.Form6).MoveLast();
    P.Compare.SearchEnded = 1;
    Reset();
    EXPECT_EQ(Pair(), u"A001 B001"_s);
    EXPECT_EQ(ShownPair(), u"A001 B001"_s);
    EXPECT_EQ(Pictures(), u"A001 B001"_s);
    EXPECT_EQ(Surnames(), u"Smith|Smith"_s);
    EXPECT_EQ(Forenames(), u"John|Jon"_s);
    EXPECT_EQ(Captions(), u"Field|Field"_s);
    EXPECT_EQ(Texts(), u"|"_s);
    EXPECT_EQ(P.Form6->Label7.Caption.value(), u"Jones"_s);
    EXPECT_EQ(P.Compare.SearchEnded, 0);
    EXPECT_EQ(P.Compare.ResetDone, 1);
    EXPECT_EQ(P.Compare.SearchMask, 0);
    EXPECT_EQ(P.Compare.FieldStep, 0);
    EXPECT_EQ(State(), ComparePair::None);
    EXPECT_EQ(Light(), Ready);
}

TEST_F(CompareSearchTest, FirstSearchAfterReset_SaysThatItSearches)
{
    Reset();
    CompareRecords(P.Form6).MoveLast();
    CompareRecords(P.Form6).MoveNext();
    Prompts.Expect(u"Compare Database End of File", u"End of Compare Database Records", Buttons::Information,
                   Answer::Ok, [&] { EXPECT_EQ(Captions(), u"Searching Record Fields|Searching Record Fields"_s); });
    Search();
    EXPECT_EQ(P.Compare.ResetDone, 0);
}

TEST_F(CompareSearchTest, EndedSearch_DoesNothing_UntilReset)
{
    P.Compare.SearchEnded = 1;
    P.Form6->Command1.BackColor = Rgb(1, 2, 3);
    Search();
    NextCompare();
    NextCurrent();
    EXPECT_EQ(Light(), u"1,2,3"_s);
    EXPECT_EQ(Pair(), u"A001 B001"_s);
}

TEST_F(CompareSearchTest, NextCompare_ShowsThatSideAlone)
{
    Search();
    NextCompare();
    EXPECT_EQ(Pair(), u"A001 B002"_s);
    EXPECT_EQ(ShownPair(), u"A001 B002"_s);
    EXPECT_EQ(Surnames(), u"Smith|Brown"_s);
    EXPECT_EQ(Forenames(), u"John|Ann"_s);
    EXPECT_EQ(Captions(), u"Field: Forename|Field:"_s);
    EXPECT_EQ(Texts(), u"John|"_s);
    EXPECT_EQ(Light(), Ready);
}

TEST_F(CompareSearchTest, NextCurrent_ShowsThatSideAlone)
{
    Search();
    NextCurrent();
    EXPECT_EQ(Pair(), u"A002 B001"_s);
    EXPECT_EQ(ShownPair(), u"A002 B001"_s);
    EXPECT_EQ(Surnames(), u"Jones|Smith"_s);
    EXPECT_EQ(Forenames(), u"Mary|Jon"_s);
    EXPECT_EQ(Captions(), u"Field:|Field: Forename"_s);
    EXPECT_EQ(Texts(), u"|Jon"_s);
}

TEST_F(CompareSearchTest, NextAtTheEnd_IsTold_AndEndsTheSearch)
{
    NextCompare();
    ExpectEndOfCompare();
    NextCompare();
    EXPECT_EQ(Light(), Busy);
    EXPECT_EQ(Texts(), u"|"_s);
    EXPECT_EQ(P.Compare.SearchEnded, 1);

    Reset();
    NextCurrent();
    ExpectEndOfCurrent();
    NextCurrent();
    EXPECT_EQ(P.Compare.SearchEnded, 1);
}

TEST_F(CompareSearchTest, NextBehindTheEnd_IsToldToo)
{
    CompareRecords(P.Form6).MoveLast();
    CompareRecords(P.Form6).MoveNext();
    ExpectEndOfCompare();
    NextCompare();
    EXPECT_EQ(ExitCode(), std::nullopt);
}

struct Step {
    int Before;
    int After;
};
class FieldStepTest : public CompareSearchTest, public testing::WithParamInterface<Step>
{
};

TEST_P(FieldStepTest, Next_ForgetsThePlaceUpToTheDeathCertificate)
{
    P.Compare.FieldStep = GetParam().Before;
    P.Scratch.ScanState = ComparePair::InHand;
    NextCompare();
    EXPECT_EQ(P.Compare.FieldStep, GetParam().After);
    EXPECT_EQ(State(), ComparePair::None);
}

INSTANTIATE_TEST_SUITE_P(Steps, FieldStepTest,
                         testing::Values(Step{0, 0}, Step{1, 1}, Step{2, 0}, Step{18, 0}, Step{19, 19}, Step{23, 23}));

TEST_F(CompareSearchTest, NullForenameOnAStep_EndsTheProgram)
{
    ChangeOutside(u'B', "UPDATE Tree99 SET Forename = NULL WHERE File = 'B002'");
    ExpectFatalBox(u"Run-time error '94':\n\nInvalid use of Null",
                   u"This field has never been filled in:\n"_s + u"Forename\nRecord B002\n" + Home.Path(u"LfgDat_B"));
    NextCompare();
    EXPECT_TRUE(ExitCode().has_value());
    EXPECT_EQ(Light(), ByHand);
}

// Nothing of a record that can't be shown whole.
TEST_F(CompareSearchTest, NullForenameOnAStep_LeavesTheRecordBeforeInTheWindow)
{
    ChangeOutside(u'B', "UPDATE Tree99 SET Forename = NULL WHERE File = 'B002'");
    const QString text = u"Run-time error '94':\n\nInvalid use of Null\n\n"
                         u"This field has never been filled in:\nForename\nRecord B002\n"_s +
                         Home.Path(u"LfgDat_B");
    Prompts.Expect(u"Lineforge", text, Buttons::Error, Answer::Ok, [&] {
        EXPECT_EQ(ShownPair(), u"A001 B001"_s);
        EXPECT_EQ(Pictures(), u"A001 B001"_s);
        EXPECT_EQ(Surnames(), u"Smith|Smith"_s);
        EXPECT_EQ(Forenames(), u"John|Jon"_s);
    });
    NextCompare();
}

TEST_F(CompareSearchTest, NullForenameAtReset_LeavesTheSidesAsTheyWere)
{
    CompareRecords(P.Form6).Edit();
    CompareRecords(P.Form6).Put(u"Forename", std::nullopt);
    CompareRecords(P.Form6).Update();
    NextCurrent();
    NextCompare();
    const QString text = u"Run-time error '94':\n\nInvalid use of Null\n\n"
                         u"This field has never been filled in:\nForename\nRecord B001\n"_s +
                         Home.Path(u"LfgDat_B");
    Prompts.Expect(u"Lineforge", text, Buttons::Error, Answer::Ok, [&] {
        EXPECT_EQ(ShownPair(), u"A002 B002"_s);
        EXPECT_EQ(Forenames(), u"Mary|Ann"_s);
    });
    Reset();
}

// The record form is a window beside this one.
TEST_F(CompareSearchTest, CursorThatTheRecordFormHasMoved_IsShownWithTheFieldThatDiffers)
{
    Search();
    Records(P.Form3).MoveLast();
    P.Compare.FieldStep = 1;
    Search();
    EXPECT_EQ(ShownPair(), u"A002 B001"_s);
    EXPECT_EQ(Pictures(), u"A002 B001"_s);
    EXPECT_EQ(Surnames(), u"Jones|Smith"_s);
    EXPECT_EQ(Forenames(), u"Mary|Jon"_s);
    EXPECT_EQ(Texts(), u"Jones|Smith"_s);
}

TEST_F(CompareSearchTest, RecordForm_FollowsEveryMove)
{
    NextCurrent();
    EXPECT_EQ(P.Form3->Label25.Caption.value(), u"A002"_s);
}

// The record form beside the window follows every move of the left cursor, and its picture with it.
struct MoveOfCurrent {
    const char* Name;
    void (*Make)(Program& p);
    QStringView Person;
};

void PrintTo(const MoveOfCurrent& move, std::ostream* out)
{
    *out << move.Name;
}

class RecordFormBesideTest : public CompareTest, public testing::WithParamInterface<MoveOfCurrent>
{
protected:
    RecordFormBesideTest()
    {
        GivenComparison({{{u"File", u"A001"}, {u"Surname", u"Smith"}, {u"Forename", u"John"}},
                         {{u"File", u"A002"}, {u"Surname", u"Jones"}, {u"Forename", u"Mary"}},
                         {{u"File", u"A003"}, {u"Surname", u"Brown"}, {u"Forename", u"Ann"}}},
                        {{{u"File", u"B001"}, {u"Surname", u"Jones"}, {u"Forename", u"Jon"}}});
        Records(P.Form3).MoveLast();
        Click(P.Form1->Command1.Click);
    }
};

TEST_P(RecordFormBesideTest, ShowsThePictureWithTheRecord)
{
    ASSERT_EQ(PersonOn(P.Form3->Image1), u"A003"_s);
    Click([&] { GetParam().Make(P); });
    Click([&] { P.Form3->Data1.Settle(); });
    EXPECT_EQ(P.Form3->Label25.Caption.value(), GetParam().Person);
    EXPECT_EQ(PersonOn(P.Form3->Image1), GetParam().Person);
}

TEST_P(RecordFormBesideTest, HiddenItKeepsItsPicture)
{
    P.Form3->Hide();
    Click([&] { GetParam().Make(P); });
    EXPECT_EQ(PersonOn(P.Form3->Image1), u"A003"_s);
}

INSTANTIATE_TEST_SUITE_P(
    Moves, RecordFormBesideTest,
    testing::Values(MoveOfCurrent{"Reset", [](Program& p) { Fire(p.Form6->Command2.Click); }, u"A001"},
                    MoveOfCurrent{"NextCurrent",
                                  [](Program& p) {
                                      Records(p.Form3).MoveFirst();
                                      Fire(p.Form6->Command6.Click);
                                  },
                                  u"A002"},
                    MoveOfCurrent{"Search",
                                  [](Program& p) {
                                      Records(p.Form3).MoveFirst();
                                      p.Form6->Check2.Value = true;
                                      Fire(p.Form6->Command1.Click);
                                  },
                                  u"A002"},
                    MoveOfCurrent{"CompareRecords", [](Program& p) { Fire(p.Form1->mnuComp.Click); }, u"A001"},
                    MoveOfCurrent{"OpenCompare",
                                  [](Program& p) {
                                      Fire(p.Form6->mnuOpen.Click);
                                      p.Form8->List1.SetText(u"Jones"_s);
                                      Fire(p.Form8->Command1.Click);
                                  },
                                  u"A001"}));

class AppendBesideTest : public CompareTest
{
};

TEST_F(AppendBesideTest, RecordFormShowsThePictureOfTheRowThatTheCursorStaysOn)
{
    GivenComparison({{{u"File", u"A001"}, {u"Forename", u"John"}}, {{u"File", u"A002"}, {u"Forename", u"Mary"}}},
                    {{{u"File", u"B001"}, {u"Forename", u"Jon"}}});
    Click(P.Form1->Command1.Click);
    P.Form6->Option1.Value = false;
    P.Form6->Option2.Value = true;
    Tell(u"Append Compare Record to Current Database.",
         u"This Record will be Appended to the Current\nDatabase as Z001 but will not be mapped into\n"
         u"the Ancestral Tree Display.");
    Click(P.Form6->Command8.Click);
    Click([&] { P.Form3->Data1.Settle(); });
    EXPECT_EQ(P.Form3->Label25.Caption.value(), u"A002"_s);
    EXPECT_EQ(PersonOn(P.Form3->Image1), u"A002"_s);
}

} // namespace
} // namespace lineforge
