#include "compare/FieldDifference.h"

#include "compare/CompareTest.h"

namespace lineforge
{
namespace
{

class FieldDifferenceTest : public CompareTest
{
protected:
    static Fields Plain(QStringView file, QStringView forename = u"John")
    {
        return {{u"File", file}, {u"Surname", u"Smith"}, {u"Forename", forename}};
    }
};

struct Row {
    QStringView Field;
    QStringView Caption;
    QStringView CompField;
};
constexpr Row rows[] = {
    {u"Surname", u"Field: Surname", u"Surname"},
    {u"Forename", u"Field: Forename", u"Forename"},
    {u"Maiden", u"Field: Maiden Name", u"Maiden"},
    {u"Nationality", u"Field: Nationality", u"Nation"},
    {u"FatherRec", u"Field: Fathers Record", u"Father"},
    {u"MotherRec", u"Field: Mothers Record", u"Mother"},
    {u"BirthDate", u"Field: Birth Date", u"BirthDate"},
    {u"BirthPlace", u"Field: Birth Place", u"BirthPlace"},
    {u"Spouse", u"Field: Spouse", u"Spouse"},
    {u"Children", u"Field: Children", u"Children"},
    {u"Partner", u"Field: Partner", u"Partner"},
    {u"PrevChildren", u"Field: Previous Children", u"PrevChildren"},
    {u"Maiden", u"Field: Maiden Name", u"Maiden"},
    {u"Wedding", u"Field: Wedding", u"Wedding"},
    {u"BirthCertificate", u"Field: Birth Certificate", u"BirthCertificate"},
    {u"MarriageCertificate", u"Field: Marriage Certificate", u"MarriageCertificate"},
    {u"DeathCertificate", u"Field: Death Certificate", u"DeathCertificate"},
    {u"Education", u"Field: Education", u"Education"},
    {u"Profession", u"Field: Profession", u"Profession"},
    {u"Deceased", u"Field: Deceased", u"Deceased"},
    {u"Medical", u"Field: Notes(1)", u"Medical"},
    {u"Notes", u"Field: Notes(2)", u"Notes"},
};

TEST_F(FieldDifferenceTest, EachPress_ShowsTheNextDifferingField_InTheOrderOfTheTable)
{
    GivenComparison({PersonOf(u"A001", u"our")}, {PersonOf(u"B001", u"their")});
    int step = 2;
    for (const Row& row : rows) {
        Search();
        const QString caption = row.Caption.toString();
        EXPECT_EQ(Captions(), QString(caption + u'|' + caption));
        EXPECT_EQ(Texts(), u"our %1|their %1"_s.arg(row.Field));
        EXPECT_EQ(P.Compare.sCompField, row.CompField);
        EXPECT_EQ(P.Compare.FieldStep, step++);
        EXPECT_EQ(Forenames(), u"our Forename|their Forename"_s);
        EXPECT_EQ(Light(), Found);
        EXPECT_EQ(Pair(), u"A001 B001"_s);
        EXPECT_EQ(State(), ComparePair::None);
    }
    const QString last = Captions();
    Prompts.Expect(u"Database End of File", u"End of Database Records", Buttons::Information, Answer::Ok, [&] {
        EXPECT_EQ(Light(), Busy);
        EXPECT_EQ(Captions(), last);
    });
    Search();
    EXPECT_EQ(Captions(), u"End of Records Field search |End of Records Field search"_s);
    EXPECT_EQ(Texts(), u"|"_s);
    EXPECT_EQ(Light(), Ready);
    EXPECT_EQ(P.Compare.SearchEnded, 1);
}

TEST_F(FieldDifferenceTest, MaidenNameThatDiffers_StopsTwice)
{
    GivenComparison({{{u"File", u"A001"}, {u"Forename", u"Ann"}, {u"Maiden", u"Brown"}}},
                    {{{u"File", u"B001"}, {u"Forename", u"Ann"}, {u"Maiden", u"Braun"}}});
    Search();
    EXPECT_EQ(P.Compare.FieldStep, 4);
    Search();
    EXPECT_EQ(P.Compare.FieldStep, 14);
    EXPECT_EQ(Texts(), u"Brown|Braun"_s);
}

TEST_F(FieldDifferenceTest, CaseIsNoDifference_AndTwoEmptyFieldsAreEqual)
{
    GivenComparison({{{u"File", u"A001"}, {u"Surname", u"SMITH"}, {u"Forename", u"Éva"}, {u"Spouse", u""}}},
                    {{{u"File", u"B001"}, {u"Surname", u"smith"}, {u"Forename", u"éVA"}}});
    ExpectEndOfRecords();
    Search();
    EXPECT_EQ(P.Compare.SearchEnded, 1);
}

TEST_F(FieldDifferenceTest, GenderWeddingDateSpousesRecordAndNumber_AreNotCompared)
{
    GivenComparison({{{u"File", u"A001"},
                      {u"Forename", u"J"},
                      {u"Gender", u"Male"},
                      {u"WedDate", u"1901"},
                      {u"SpouseRec", u"A002"}}},
                    {{{u"File", u"B001"},
                      {u"Forename", u"J"},
                      {u"Gender", u"Female"},
                      {u"WedDate", u"1902"},
                      {u"SpouseRec", u"B002"}}});
    ExpectEndOfRecords();
    Search();
    EXPECT_EQ(P.Compare.SearchEnded, 1);
}

TEST_F(FieldDifferenceTest, EqualRecords_AreWalkedOverInOnePress_ToTheNextDifference)
{
    GivenComparison({Plain(u"A001")}, {Plain(u"B001"), Plain(u"B002"), Plain(u"B003", u"Jack")});
    P.Form6->Text1.Text = u"typed"_s;
    P.Form6->Text3.Text = u"typed"_s;
    Search();
    EXPECT_EQ(Pair(), u"A001 B003"_s);
    EXPECT_EQ(ShownPair(), u"A001 B003"_s);
    EXPECT_EQ(Texts(), u"John|Jack"_s);
    EXPECT_EQ(Surnames(), u"Smith|Smith"_s);
    EXPECT_EQ(Pictures(), u"A001 B003"_s);
}

// Numbers, pictures and names are of the pair that was walked last, also where none of its fields differs.
TEST_F(FieldDifferenceTest, EndOfAWalkedPair_ShowsThatPairWhole)
{
    GivenComparison({Plain(u"A001"), Plain(u"A002", u"Mary")},
                    {Plain(u"B001", u"Jack"), Plain(u"B002", u"Mary"), Plain(u"B003", u"Jim")});
    P.Form6->Check2.Value = true;
    NextCompare();
    NextCurrent();
    P.Form6->Text5.Text = u"typed"_s;
    P.Form6->Text6.Text = u"typed"_s;
    Search();
    EXPECT_EQ(State(), ComparePair::Walked);
    EXPECT_EQ(ShownPair(), u"A002 B002"_s);
    EXPECT_EQ(Pictures(), u"A002 B002"_s);
    EXPECT_EQ(Surnames(), u"Smith|Smith"_s);
    EXPECT_EQ(Forenames(), u"Mary|Mary"_s);
}

TEST_F(FieldDifferenceTest, EndOfAllPairs_ShowsTheLastPairWhole)
{
    GivenComparison({Plain(u"A001")}, {Plain(u"B001", u"Jack"), Plain(u"B002")});
    Search();
    ASSERT_EQ(Forenames(), u"John|Jack"_s);
    ExpectEndOfRecords();
    Search();
    EXPECT_EQ(ShownPair(), u"A001 B002"_s);
    EXPECT_EQ(Forenames(), u"John|John"_s);
}

TEST_F(FieldDifferenceTest, PairOnShowThatIsWalkedToItsEnd_IsNotShownAgain)
{
    GivenComparison({Plain(u"A001")}, {Plain(u"B001", u"Jack")});
    Search();
    Click(P.Form6->Command7.Click);
    ASSERT_EQ(Stored(u'B', "Forename", "B001"), u"John"_s);
    ExpectEndOfRecords();
    Search();
    EXPECT_EQ(ShownPair(), u"A001 B001"_s);
    EXPECT_EQ(Forenames(), u"John|Jack"_s);
}

TEST_F(FieldDifferenceTest, BehindTheLastCompareRecord_TheNextCurrentOneBeginsWithTheFirst)
{
    GivenComparison({Plain(u"A001"), Plain(u"A002", u"Mary")}, {Plain(u"B001"), Plain(u"B002")});
    Search();
    EXPECT_EQ(Pair(), u"A002 B001"_s);
    EXPECT_EQ(ShownPair(), u"A002 B001"_s);
    EXPECT_EQ(Forenames(), u"Mary|John"_s);
    EXPECT_EQ(P.Form6->Label7.Caption.value(), u"Jones"_s);
    EXPECT_EQ(Light(), Ready);
    Search();
    EXPECT_EQ(Captions(), u"Field: Forename|Field: Forename"_s);
    EXPECT_EQ(Texts(), u"Mary|John"_s);
    EXPECT_EQ(Light(), Found);
}

TEST_F(FieldDifferenceTest, NextRound_LeavesNothingOfThePairBefore)
{
    GivenComparison({Plain(u"A001"), Plain(u"A002", u"Mary")}, {Plain(u"B001", u"Jack"), Plain(u"B002")});
    Search();
    ASSERT_EQ(Texts(), u"John|Jack"_s);
    Search();
    EXPECT_EQ(ShownPair(), u"A002 B001"_s);
    EXPECT_EQ(Texts(), u"|"_s);
    EXPECT_EQ(Captions(), u"Field:|Field:"_s);
    EXPECT_EQ(Light(), Ready);
}

// The pair is another one although its numbers are the same.
TEST_F(FieldDifferenceTest, AnotherRecordOfTheSameNumber_IsShownBeforeTheWalkGoesOn)
{
    GivenComparison({Plain(u"Z001", u"John"), {{u"File", u"Z001"}, {u"Surname", u"Jones"}, {u"Forename", u"Ann"}}},
                    {{{u"File", u"Z001"}, {u"Surname", u"Brown"}, {u"Forename", u"Jack"}}});
    Search();
    ASSERT_EQ(Texts(), u"Smith|Brown"_s);
    Records(P.Form3).MoveNext();
    Search();
    EXPECT_EQ(Texts(), u"Ann|Jack"_s);
    EXPECT_EQ(Surnames(), u"Jones|Brown"_s);
}

TEST_F(FieldDifferenceTest, WalkedPair_MovesOnWithinThePress)
{
    GivenComparison({Plain(u"A001")}, {Plain(u"B001", u"Jack"), Plain(u"B002", u"Jim")});
    Search();
    EXPECT_EQ(Texts(), u"John|Jack"_s);
    Search();
    EXPECT_EQ(Pair(), u"A001 B002"_s);
    EXPECT_EQ(Texts(), u"John|Jim"_s);
}

TEST_F(FieldDifferenceTest, NullForename_IsShownEmptyAtADifference)
{
    GivenComparison({{{u"File", u"A001"}, {u"Surname", u"Smith"}, {u"Forename", u"John"}}},
                    {{{u"File", u"B001"}, {u"Surname", u"Smith"}, {u"Forename", u"John"}}});
    Recordset& compare = CompareRecords(P.Form6);
    compare.Edit();
    compare.Put(u"Forename", std::nullopt);
    compare.Put(u"Surname", u"Brown"_s);
    compare.Update();
    Search();
    EXPECT_EQ(Texts(), u"Smith|Brown"_s);
    EXPECT_EQ(Forenames(), u"John|"_s);
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(FieldDifferenceTest, NullForenameOfTheNextRound_EndsTheProgram_OverThePairBefore)
{
    GivenComparison({Plain(u"A001"), {{u"File", u"A002"}, {u"Surname", u"Smith"}}}, {Plain(u"B001"), Plain(u"B002")});
    const QString text = u"Run-time error '94':\n\nInvalid use of Null\n\n"
                         u"This field has never been filled in:\nForename\nRecord A002\n"_s +
                         Home.Path(u"LfgDat_A");
    Prompts.Expect(u"Lineforge", text, Buttons::Error, Answer::Ok, [&] {
        EXPECT_EQ(ShownPair(), u"A001 B002"_s);
        EXPECT_EQ(Forenames(), u"John|John"_s);
    });
    Search();
    EXPECT_TRUE(ExitCode().has_value());
}

TEST_F(FieldDifferenceTest, CursorBehindTheLastRecord_IsTold)
{
    GivenComparison({Plain(u"A001")}, {Plain(u"B001", u"Jack")});
    CompareRecords(P.Form6).MoveNext();
    ExpectEndOfCompare();
    Search();
    EXPECT_EQ(Captions(), u"End of Records Field search |End of Records Field search"_s);
    EXPECT_EQ(P.Compare.SearchEnded, 1);

    Reset();
    Records(P.Form3).MoveNext();
    ExpectEndOfCurrent();
    Search();
    EXPECT_EQ(Texts(), u"|"_s);
    EXPECT_EQ(Captions(), u"End of Records Field search |End of Records Field search"_s);
    EXPECT_EQ(P.Compare.SearchEnded, 1);
}

} // namespace
} // namespace lineforge
