#include "compare/FieldCopy.h"

#include "compare/CompareTest.h"

namespace lineforge
{
namespace
{

class FieldCopyTest : public CompareTest
{
protected:
    void GivenPair() { GivenComparison({PersonOf(u"A001", u"our")}, {PersonOf(u"B001", u"their")}); }

    void ToCurrent()
    {
        P.Form6->Option1.Value = false;
        P.Form6->Option2.Value = true;
    }
    // Beyond what a command leaves: else the missing name would be told, not what the test is about.
    void Name(QStringView field)
    {
        for (Frame* frame : {&P.Form6->Frame5, &P.Form6->Frame6})
            frame->Caption = field.toString();
    }
    void NameTheSurname() { Name(u"Field: Surname"); }
    void CopyOne() { Click(P.Form6->Command3.Click); }
    void CopyAll() { Click(P.Form6->Command7.Click); }
    void Append() { Click(P.Form6->Command8.Click); }
    void RefuseChanges(QChar branch)
    {
        ChangeOutside(branch,
                      "CREATE TRIGGER Refusal BEFORE UPDATE ON Tree99 BEGIN SELECT RAISE(ABORT, 'refused'); END");
    }
    void ExpectCopyError() { Tell(u"Copy Error", u"There is no record to copy across."); }
    void ExpectAppended(QStringView number, ScriptedPrompts::WhileOpen whileOpen = {})
    {
        ExpectAppendBox(u"Append Record to Database.", u"Compare", number, std::move(whileOpen));
    }
    void ExpectAppendedToCurrent(QStringView number, ScriptedPrompts::WhileOpen whileOpen = {})
    {
        ExpectAppendBox(u"Append Compare Record to Current Database.", u"Current", number, std::move(whileOpen));
    }
    QStringList NumbersIn(QChar branch)
    {
        QStringList numbers;
        for (const SqliteFile::Row& row : Rows(branch, "File"))
            numbers << row.front().value_or(u"Null"_s);
        return numbers;
    }

private:
    void ExpectAppendBox(QStringView title, QStringView branch, QStringView number,
                         ScriptedPrompts::WhileOpen whileOpen)
    {
        const QString text = u"This Record will be Appended to the "_s + branch + u"\nDatabase as " + number +
                             u" but will not be mapped into\nthe Ancestral Tree Display.";
        Prompts.Expect(title, text, Buttons::Information, Answer::Ok, std::move(whileOpen));
    }
};

TEST_F(FieldCopyTest, BeforeAnySearch_TheSurnameIsCopied)
{
    GivenPair();
    CopyOne();
    EXPECT_EQ(Stored(u'B', "Surname", "B001"), u"our Surname"_s);
    EXPECT_EQ(Texts(), u"our Surname|our Surname"_s);
    EXPECT_EQ(P.Form6->Text4.Marked.value(), TextRange(11, 0));
}

TEST_F(FieldCopyTest, FieldOnShow_GoesTheWayThatIsChosen)
{
    GivenPair();
    SearchTimes(2);
    ASSERT_EQ(P.Compare.sCompField, u"Forename"_s);
    ToCurrent();
    CopyOne();
    EXPECT_EQ(Stored(u'A', "Forename", "A001"), u"their Forename"_s);
    EXPECT_EQ(Stored(u'B', "Forename", "B001"), u"their Forename"_s);
    EXPECT_EQ(Texts(), u"their Forename|their Forename"_s);
}

// The record form is a window beside this one, and its texts are stored when the record is.
TEST_F(FieldCopyTest, TextTypedOnTheRecordFormBefore_GivesWayToTheCopy)
{
    GivenPair();
    P.Form3->Text2.Text = u"typed Surname"_s;
    P.Form3->Text11.Text = u"typed Notes"_s;
    ToCurrent();
    CopyOne();
    EXPECT_EQ(Stored(u'A', "Surname", "A001"), u"their Surname"_s);
    EXPECT_EQ(Stored(u'A', "Notes", "A001"), u"typed Notes"_s);
    EXPECT_EQ(P.Form3->Text2.Text.value(), u"their Surname"_s);
    P.Form3->Text11.Text = u"typed again"_s;
    CopyAll();
    EXPECT_EQ(Stored(u'A', "Notes", "A001"), u"their Notes"_s);
}

TEST_F(FieldCopyTest, ThreeNamesAreNoFields_AndCantBeCopied)
{
    GivenPair();
    const auto before = Rows(u'B');
    SearchTimes(3);
    for (const QString& name : {u"Nation"_s, u"Father"_s, u"Mother"_s}) {
        Search();
        ASSERT_EQ(P.Compare.sCompField, name);
        ExpectCopyError();
        CopyOne();
        EXPECT_EQ(ExitCode(), std::nullopt);
    }
    EXPECT_EQ(Rows(u'B'), before);
}

TEST_F(FieldCopyTest, Null_StaysNull_AndTheBoxIsEmpty)
{
    GivenComparison({{{u"File", u"A001"}, {u"Forename", u"J"}}},
                    {{{u"File", u"B001"}, {u"Forename", u"J"}, {u"Surname", u"Smith"}}});
    CopyOne();
    EXPECT_EQ(Stored(u'B', "Surname", "B001"), std::nullopt);
    EXPECT_EQ(P.Form6->Text4.Text.value(), QString());
}

TEST_F(FieldCopyTest, WithoutARecordOrABranch_IsTold)
{
    GivenPair();
    CompareRecords(P.Form6).MoveNext();
    ExpectCopyError();
    CopyOne();
    Reset();
    Records(P.Form3).MoveNext();
    NameTheSurname();
    ExpectCopyError();
    CopyOne();
    P.Form6.Unload();
    Click(P.Form1->mnuComp.Click);
    NameTheSurname();
    ExpectCopyError();
    CopyOne();
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(FieldCopyTest, AllFields_AreCopiedButNumberAndSpousesRecord)
{
    GivenPair();
    CopyAll();
    for (const QString& field : RecordFields()) {
        const bool stays = field == u"File" || field == u"SpouseRec";
        const QString own = field == u"File" ? u"B001"_s : u"their "_s + field;
        EXPECT_EQ(Stored(u'B', field.toUtf8().constData(), "B001"), stays ? own : u"our "_s + field)
            << field.toStdString();
    }
    EXPECT_EQ(Texts(), u"our Surname|their Surname"_s);
}

TEST_F(FieldCopyTest, AllFieldsToCurrent_NullIncluded)
{
    GivenComparison({PersonOf(u"A001", u"our")}, {{{u"File", u"B001"}, {u"Forename", u"Jon"}}});
    ToCurrent();
    CopyAll();
    EXPECT_EQ(Stored(u'A', "Forename", "A001"), u"Jon"_s);
    EXPECT_EQ(Stored(u'A', "Notes", "A001"), std::nullopt);
    EXPECT_EQ(Stored(u'A', "SpouseRec", "A001"), u"our SpouseRec"_s);
}

TEST_F(FieldCopyTest, AllFieldsWithoutARecord_TakesTheFatalPath)
{
    GivenPair();
    CompareRecords(P.Form6).MoveNext();
    ExpectFatalBox(u"Run-time error '3021':\n\nNo current record.",
                   u"No record is on show of this database:\n"_s + Home.Path(u"LfgDat_B/LfgDat_B.mdb"));
    CopyAll();
    EXPECT_TRUE(ExitCode().has_value());
}

TEST_F(FieldCopyTest, FirstAppend_IsZ001_WithAllThatIsCopied)
{
    GivenPair();
    ExpectAppended(u"Z001");
    Append();
    EXPECT_EQ(NumbersIn(u'B'), QStringList({u"B001"_s, u"Z001"_s}));
    EXPECT_EQ(Stored(u'B', "Notes", "Z001"), u"our Notes"_s);
    EXPECT_EQ(Stored(u'B', "SpouseRec", "Z001"), std::nullopt);
    EXPECT_EQ(P.Form6->Label9.Caption.value(), u"Z001"_s);
    EXPECT_EQ(NumbersIn(u'A'), QStringList{u"A001"_s});
    EXPECT_EQ(Pair(), u"A001 B001"_s);
}

TEST_F(FieldCopyTest, AppendedRecord_IsShownWhole_AndTheCursorsOwnBeforeItIsWrittenTo)
{
    GivenPair();
    ExpectAppended(u"Z001");
    Append();
    EXPECT_EQ(Pair(), u"A001 B001"_s);
    EXPECT_EQ(ShownPair(), u"A001 Z001"_s);
    EXPECT_EQ(Pictures(), u"A001 none"_s);
    EXPECT_EQ(Surnames(), u"our Surname|our Surname"_s);
    EXPECT_EQ(Forenames(), u"our Forename|our Forename"_s);
    EXPECT_EQ(Captions(), u"Field: Surname|Field:"_s);
    EXPECT_EQ(Texts(), u"our Surname|"_s);

    const auto theirs = Rows(u'B');
    CopyOne();
    EXPECT_EQ(Rows(u'B'), theirs);
    EXPECT_EQ(ShownPair(), u"A001 B001"_s);
    EXPECT_EQ(Pictures(), u"A001 B001"_s);
    // No field is on show of him yet.
    ExpectCopyError();
    CopyOne();
    EXPECT_EQ(Rows(u'B'), theirs);
    CopyAll();
    EXPECT_EQ(Stored(u'B', "Surname", "B001"), u"our Surname"_s);
}

// Both have to name it: what is copied, and over what.
TEST_F(FieldCopyTest, SteppedOnOneSide_IsTold_InBothDirections)
{
    GivenComparison({PersonOf(u"A001", u"our"), PersonOf(u"A002", u"our")},
                    {PersonOf(u"B001", u"their"), PersonOf(u"B002", u"their")});
    const auto ours = Rows(u'A');
    const auto theirs = Rows(u'B');
    for (const Event& step : {P.Form6->Command5.Click, P.Form6->Command6.Click}) {
        Reset();
        SearchTimes(2);
        ASSERT_EQ(Captions(), u"Field: Forename|Field: Forename"_s);
        Click(step);
        ExpectCopyError();
        CopyOne();
        ToCurrent();
        ExpectCopyError();
        CopyOne();
        P.Form6->Option1.Value = true;
        P.Form6->Option2.Value = false;
    }
    EXPECT_EQ(Rows(u'A'), ours);
    EXPECT_EQ(Rows(u'B'), theirs);
}

TEST_F(FieldCopyTest, RecordAppendedToCurrent_IsShownWhole)
{
    GivenPair();
    ToCurrent();
    ExpectAppendedToCurrent(u"Z001");
    Append();
    EXPECT_EQ(ShownPair(), u"Z001 B001"_s);
    EXPECT_EQ(Pictures(), u"none B001"_s);
    EXPECT_EQ(Surnames(), u"their Surname|their Surname"_s);
    EXPECT_EQ(Texts(), u"|their Surname"_s);
    CopyAll();
    EXPECT_EQ(Stored(u'A', "Notes", "A001"), u"our Notes"_s);
    EXPECT_EQ(ShownPair(), u"A001 B001"_s);
}

TEST_F(FieldCopyTest, LowestFreeZNumber_IsTaken)
{
    GivenComparison({PersonOf(u"A001", u"our")},
                    {PersonOf(u"B001", u"x"), PersonOf(u"z001", u"x"), PersonOf(u"Z003", u"x")});
    ExpectAppended(u"Z002");
    Append();
    EXPECT_EQ(NumbersIn(u'B').last(), u"Z002"_s);
}

TEST_F(FieldCopyTest, ZNumberOnceSeen_StaysTakenWhileTheWindowLives)
{
    GivenPair();
    for (const QStringView number : {u"Z001", u"Z002"}) {
        ExpectAppended(number);
        Append();
    }
    ChangeOutside(u'B', "DELETE FROM Tree99 WHERE File = 'Z001'");
    ExpectAppended(u"Z003");
    Append();
    EXPECT_EQ(NumbersIn(u'B'), QStringList({u"B001"_s, u"Z002"_s, u"Z003"_s}));

    P.Form6.Unload();
    Click(P.Form1->mnuComp.Click);
    ChooseCompare(u"Jones");
    ExpectAppended(u"Z001");
    Append();
}

TEST_F(FieldCopyTest, AllZNumbersTaken_AppendsWithoutANumber)
{
    std::vector<Fields> compare{PersonOf(u"B001", u"x")};
    for (int number = 1; number <= 99; ++number)
        compare.push_back(PersonOf(QString(u"Z%1"_s.arg(number, 3, 10, QChar(u'0'))), u"x"));
    GivenComparison({PersonOf(u"A001", u"our")}, compare);
    ExpectAppended(u"");
    Append();
    EXPECT_EQ(Rows(u'B').size(), 101U);
    EXPECT_EQ(NumbersIn(u'B').last(), QString());
}

TEST_F(FieldCopyTest, ScannerThatRunsOnBehindTheBox_DoesntChangeWhatIsAppended)
{
    GivenComparison({PersonOf(u"A001", u"first"), PersonOf(u"A002", u"second")}, {PersonOf(u"B001", u"x")});
    Prompts.Expect(u"Append Record to Database.",
                   u"This Record will be Appended to the Compare\nDatabase as Z001 but will not be mapped into\n"
                   u"the Ancestral Tree Display.",
                   Buttons::Information, Answer::Ok, [&] { Records(P.Form3).MoveNext(); });
    Append();
    EXPECT_EQ(Stored(u'B', "Notes", "Z001"), u"first Notes"_s);
}

TEST_F(FieldCopyTest, NumberThatAnotherProgramHasGivenBehindTheBox_IsNotGivenAgain)
{
    GivenPair();
    ExpectAppended(u"Z001",
                   [&] { ChangeOutside(u'B', "INSERT INTO Tree99 (File, Notes) VALUES ('Z001', 'of another')"); });
    ExpectAppended(u"Z002");
    Append();
    EXPECT_EQ(NumbersIn(u'B'), QStringList({u"B001"_s, u"Z001"_s, u"Z002"_s}));
    EXPECT_EQ(Stored(u'B', "Notes", "Z001"), u"of another"_s);
    EXPECT_EQ(Stored(u'B', "Notes", "Z002"), u"our Notes"_s);
    EXPECT_EQ(ShownPair(), u"A001 Z002"_s);
}

TEST_F(FieldCopyTest, NumberThatAnotherProgramHasGivenBehindTheBox_IsNotGivenAgainInTheCurrentBranchEither)
{
    GivenPair();
    ToCurrent();
    ExpectAppendedToCurrent(u"Z001", [&] { ChangeOutside(u'A', "INSERT INTO Tree99 (File) VALUES ('Z001')"); });
    ExpectAppendedToCurrent(u"Z002");
    Append();
    EXPECT_EQ(NumbersIn(u'A'), QStringList({u"A001"_s, u"Z001"_s, u"Z002"_s}));
}

TEST_F(FieldCopyTest, CopyThatTheDatabaseRefuses_LeavesNothingForTheNextSaving)
{
    GivenPair();
    RefuseChanges(u'B');
    ExpectCopyError();
    CopyOne();
    EXPECT_EQ(Texts(), u"our Surname|their Surname"_s);
    CompareRecords(P.Form6).Rest();
    ChangeOutside(u'B', "DROP TRIGGER Refusal");
    EXPECT_EQ(RefusalOf([&] { CompareRecords(P.Form6).Update(); }), ErrorNumber::UpdateWithoutEdit);
    EXPECT_EQ(Stored(u'B', "Surname", "B001"), u"their Surname"_s);
}

TEST_F(FieldCopyTest, CopyThatIsRefused_ShowsTheOldValueAgain_BeforeItIsTold)
{
    GivenPair();
    RefuseChanges(u'B');
    QStringList shown;
    const auto watch = P.Form6->Text4.Text.OnChange([&] { shown += P.Form6->Text4.Text.value(); });
    Prompts.Expect(u"Copy Error", u"There is no record to copy across.", Buttons::Information, Answer::Ok,
                   [&] { EXPECT_EQ(Texts(), u"our Surname|their Surname"_s); });
    CopyOne();
    EXPECT_EQ(shown, QStringList({u"our Surname"_s, u"their Surname"_s}));
    EXPECT_EQ(P.Form6->Text4.Marked.value(), TextRange(0, 4));
}

TEST_F(FieldCopyTest, RefusedCopyOverARecordWithTypedTexts_LeavesThoseAlone)
{
    GivenPair();
    ToCurrent();
    P.Form3->Text11.Text = u"typed Notes"_s;
    RefuseChanges(u'A');
    ExpectCopyError();
    CopyOne();
    EXPECT_EQ(Texts(), u"our Surname|their Surname"_s);
    EXPECT_EQ(P.Form3->Text11.Text.value(), u"typed Notes"_s);
    ChangeOutside(u'A', "DROP TRIGGER Refusal");
    Records(P.Form3).MoveFirst();
    EXPECT_EQ(Stored(u'A', "Surname", "A001"), u"our Surname"_s);
    EXPECT_EQ(Stored(u'A', "Notes", "A001"), u"typed Notes"_s);
}

TEST_F(FieldCopyTest, CopyThatFindsNothing_StoresNothingElse)
{
    GivenPair();
    P.Form3->Text11.Text = u"typed Notes"_s;
    ToCurrent();
    P.Compare.sCompField = u"Nation"_s;
    Name(u"Field: Nationality");
    ExpectCopyError();
    CopyOne();
    EXPECT_EQ(Stored(u'A', "Notes", "A001"), u"our Notes"_s);
    EXPECT_EQ(P.Form3->Text11.Text.value(), u"typed Notes"_s);
}

// Somebody else has moved one of the cursors: the record form, its scanner, the map.
struct UnseenCopy {
    const char* Name;
    Button forms::Form6::*Command;
    bool IsCurrentMoved;
};

void PrintTo(const UnseenCopy& copy, std::ostream* out)
{
    *out << copy.Name;
}

class UnseenCopyTest : public FieldCopyTest, public testing::WithParamInterface<UnseenCopy>
{
protected:
    UnseenCopyTest()
    {
        GivenComparison({PersonOf(u"A001", u"our first"), PersonOf(u"A002", u"our second")},
                        {PersonOf(u"B001", u"their first"), PersonOf(u"B002", u"their second")});
        Search();
        P.Scratch.ScanState = ComparePair::InHand;
        GetParam().IsCurrentMoved ? Records(P.Form3).MoveNext() : CompareRecords(P.Form6).MoveNext();
        moved_ = Pair();
    }
    void Press() { Click(((*P.Form6).*GetParam().Command).Click); }
    // By then no field is on show.
    void PressAgain()
    {
        if (IsOneField())
            ExpectCopyError();
        Press();
    }
    bool IsOneField() { return GetParam().Command == &forms::Form6::Command3; }
    void ExpectShownAnew()
    {
        EXPECT_EQ(Pair(), moved_);
        EXPECT_EQ(ShownPair(), moved_);
        EXPECT_EQ(Pictures(), moved_);
        const QString current = GetParam().IsCurrentMoved ? u"our second"_s : u"our first"_s;
        const QString compare = GetParam().IsCurrentMoved ? u"their first"_s : u"their second"_s;
        EXPECT_EQ(Surnames(), QString(current + u" Surname|" + compare + u" Surname"));
        EXPECT_EQ(Forenames(), QString(current + u" Forename|" + compare + u" Forename"));
        EXPECT_EQ(Captions(), u"Field:|Field:"_s);
        EXPECT_EQ(Texts(), u"|"_s);
        EXPECT_EQ(P.Compare.FieldStep, 0);
        EXPECT_EQ(State(), ComparePair::None);
    }

private:
    QString moved_;
};

TEST_P(UnseenCopyTest, FirstPressShowsTheRecords_AndTheSecondCopiesThemWhole)
{
    const auto ours = Rows(u'A');
    const auto theirs = Rows(u'B');
    Press();
    ExpectShownAnew();
    EXPECT_EQ(Rows(u'A'), ours);
    EXPECT_EQ(Rows(u'B'), theirs);
    PressAgain();
    EXPECT_EQ(Rows(u'A'), ours);
    EXPECT_EQ(Rows(u'B') == theirs, IsOneField());
}

TEST_P(UnseenCopyTest, TheOtherWay_ToTheSame)
{
    ToCurrent();
    const auto ours = Rows(u'A');
    const auto theirs = Rows(u'B');
    Press();
    ExpectShownAnew();
    EXPECT_EQ(Rows(u'A'), ours);
    PressAgain();
    EXPECT_EQ(Rows(u'A') == ours, IsOneField());
    EXPECT_EQ(Rows(u'B'), theirs);
}

INSTANTIATE_TEST_SUITE_P(Commands, UnseenCopyTest,
                         testing::Values(UnseenCopy{"OneFieldOfAnotherCurrentRecord", &forms::Form6::Command3, true},
                                         UnseenCopy{"OneFieldOfAnotherCompareRecord", &forms::Form6::Command3, false},
                                         UnseenCopy{"AllFieldsOfAnotherCurrentRecord", &forms::Form6::Command7, true},
                                         UnseenCopy{"AllFieldsOfAnotherCompareRecord", &forms::Form6::Command7,
                                                    false}));

TEST_F(FieldCopyTest, RecordThatIsNotOnShow_IsNotAppendedBeforeItIs)
{
    GivenComparison({PersonOf(u"A001", u"first"), PersonOf(u"A002", u"second")}, {PersonOf(u"B001", u"x")});
    Records(P.Form3).MoveNext();
    Append();
    EXPECT_EQ(NumbersIn(u'B'), QStringList{u"B001"_s});
    EXPECT_EQ(ShownPair(), u"A002 B001"_s);
    ExpectAppended(u"Z001");
    Append();
    EXPECT_EQ(Stored(u'B', "Notes", "Z001"), u"second Notes"_s);
}

// Equal numbers don't make one person of two.
TEST_F(FieldCopyTest, AnotherRecordOfTheSameNumber_IsNotOnShow)
{
    GivenComparison({PersonOf(u"A001", u"first"), PersonOf(u"A001", u"second")}, {PersonOf(u"B001", u"their")});
    Records(P.Form3).MoveNext();
    const auto theirs = Rows(u'B');
    CopyAll();
    EXPECT_EQ(Rows(u'B'), theirs);
    EXPECT_EQ(Surnames(), u"second Surname|their Surname"_s);
}

TEST_F(FieldCopyTest, RecordOfTheSameNumberInABranchOpenedMeanwhile_IsNotOnShow)
{
    GivenComparison({PersonOf(u"Z001", u"our")}, {PersonOf(u"Z001", u"their")});
    Choose(u"Jones");
    ToCurrent();
    CopyOne();
    EXPECT_EQ(Surnames(), u"their Surname|their Surname"_s);
    EXPECT_EQ(Texts(), u"|"_s);
}

// What a side shows stays where its cursor has run out: there is nothing to copy, and that is told.
TEST_F(FieldCopyTest, WithoutACurrentRecord_WhateverIsOnShow_IsTold)
{
    GivenPair();
    SearchTimes(22);
    ExpectEndOfRecords();
    Search();
    CompareRecords(P.Form6).MoveLast();
    P.Compare.sCompField = u"Surname"_s;
    NameTheSurname();
    ExpectCopyError();
    CopyOne();
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(FieldCopyTest, SecondAppend_IsNotRecognised)
{
    GivenPair();
    ExpectAppended(u"Z001");
    Append();
    ExpectAppended(u"Z002");
    Append();
    EXPECT_EQ(Rows(u'B').size(), 3U);
}

TEST_F(FieldCopyTest, ZNumberOf100_EndsTheProgram)
{
    GivenComparison({PersonOf(u"A001", u"our")}, {PersonOf(u"Z100", u"x")});
    ExpectFatalBox(u"Run-time error '9':\n\nSubscript out of range",
                   u"The list or table that is needed has no place of this number:\n100\nRecord Z100"_s);
    Append();
    EXPECT_EQ(Rows(u'B').size(), 1U);
}

TEST_F(FieldCopyTest, ZThatIsNoNumber_EndsTheProgram)
{
    GivenComparison({PersonOf(u"A001", u"our")}, {PersonOf(u"Zoe", u"x")});
    ExpectFatalBox(u"Run-time error '13':\n\nType mismatch",
                   u"A number should stand where this stands:\n'Zoe'\nRecord Zoe"_s);
    Append();
    EXPECT_EQ(Rows(u'B').size(), 1U);
}

TEST_F(FieldCopyTest, NumberThatTheBranchHas_IsRefused_AndTheCursorComesBack)
{
    GivenComparison({PersonOf(u"A001", u"our")},
                    {PersonOf(u"B001", u"x"), PersonOf(u"a001", u"x"), PersonOf(u"B003", u"x")});
    CompareRecords(P.Form6).MoveLast();
    Tell(u"Append Error", u"Record already exists in Compare Database.\n"
                          u"Delete the record before appending or else copy \n"
                          u"the details to the existing record.");
    Append();
    EXPECT_EQ(Rows(u'B').size(), 3U);
    EXPECT_EQ(Pair(), u"A001 B003"_s);
}

// The map comes back to it when a box's record isn't there.
TEST_F(FieldCopyTest, PositionKeptInTheOpenBranch_IsNotMixedWithOneOfTheOther)
{
    GivenComparison({PersonOf(u"A001", u"our")}, {PersonOf(u"B001", u"x"), PersonOf(u"B002", u"x")});
    const Bookmark kept = P.Record.SavedBookmark = Records(P.Form3).GetBookmark();
    NextCompare();
    ExpectAppended(u"Z001");
    Append();
    EXPECT_TRUE(P.Record.SavedBookmark == kept);
}

TEST_F(FieldCopyTest, AppendToCurrent_TakesTheFirstCompareRecord_NotTheOneOnShow)
{
    GivenComparison({PersonOf(u"A001", u"our")}, {PersonOf(u"B001", u"first"), PersonOf(u"B002", u"second")});
    ToCurrent();
    NextCompare();
    ExpectAppendedToCurrent(u"Z001");
    Append();
    EXPECT_EQ(NumbersIn(u'A'), QStringList({u"A001"_s, u"Z001"_s}));
    EXPECT_EQ(Stored(u'A', "Notes", "Z001"), u"first Notes"_s);
    EXPECT_EQ(P.Form6->Label4.Caption.value(), u"Z001"_s);
}

TEST_F(FieldCopyTest, AppendToCurrent_LooksForTheNumberFromWhereTheCurrentBranchStands)
{
    GivenComparison({PersonOf(u"B001", u"our"), PersonOf(u"A002", u"our")}, {PersonOf(u"B001", u"their")});
    ToCurrent();
    Tell(u"Append Error", u"Record already exists in Current Database."
                          u"Delete the record before appending or else copy "
                          u"the details to the existing record.");
    Append();
    EXPECT_EQ(Pair(), u"B001 B001"_s);
    EXPECT_EQ(Rows(u'A').size(), 2U);

    Records(P.Form3).MoveNext();
    ExpectAppendedToCurrent(u"Z001");
    Append();
    EXPECT_EQ(Rows(u'A').size(), 3U);
}

TEST_F(FieldCopyTest, AppendToCurrent_LooksAtTheFirstCompareRecordForAZ)
{
    GivenComparison({PersonOf(u"A001", u"our"), PersonOf(u"Z001", u"our")}, {PersonOf(u"Z005", u"their")});
    ToCurrent();
    ExpectAppendedToCurrent(u"Z001");
    Append();
    EXPECT_EQ(P.Compare.ZNumberTable[5], u"Z005"_s);
    EXPECT_EQ(NumbersIn(u'A'), QStringList({u"A001"_s, u"Z001"_s, u"Z001"_s}));
}

} // namespace
} // namespace lineforge
