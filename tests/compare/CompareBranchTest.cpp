#include "compare/CompareBranch.h"

#include "compare/CompareTest.h"

namespace lineforge
{
namespace
{

class CompareBranchTest : public CompareTest
{
protected:
    void GivenOpenBranch()
    {
        GivenBranch(u'A', {{{u"File", u"A001"}, {u"Surname", u"Smith"}, {u"Forename", u"John"}},
                           {{u"File", u"A002"}, {u"Surname", u"Jones"}, {u"Forename", u"Mary"}}});
        GivenBranch(u'B', {{{u"File", u"B001"}, {u"Surname", u"Smythe"}, {u"Forename", u"Jon"}},
                           {{u"File", u"B002"}, {u"Surname", u"Brown"}, {u"Forename", u"Ann"}}});
        StartProgram(P);
        Choose(u"Smiths");
    }
    void Compare() { Click(P.Form1->mnuComp.Click); }
};

TEST_F(CompareBranchTest, Command_BeginsWithTheFirstRecord_WhereverTheFormStood)
{
    GivenOpenBranch();
    Records(P.Form3).MoveLast();
    P.Compare.ResetDone = 1;
    P.Compare.sCompField = u"Notes"_s;
    EXPECT_FALSE(P.Form1->Command5.Visible);
    Compare();
    EXPECT_EQ(NumberAt(Records(P.Form3)), u"A001"_s);
    EXPECT_EQ(P.Form6->Label4.Caption.value(), u"A001"_s);
    EXPECT_EQ(PersonOn(P.Form6->Image1), u"A001"_s);
    EXPECT_EQ(P.Form6->Text1.Text.value(), u"Smith"_s);
    EXPECT_EQ(P.Form6->Text2.Text.value(), u"Smith"_s);
    EXPECT_EQ(P.Form6->Text5.Text.value(), u"John"_s);
    EXPECT_EQ(P.Form6->Frame5.Caption.value(), u"Field: Surname"_s);
    EXPECT_EQ(P.Form6->Label2.Caption.value(), u"Smiths"_s);
    EXPECT_TRUE(P.Form6->Visible);
    EXPECT_TRUE(P.Form1->Command5.Visible);
    EXPECT_EQ(P.Compare.ResetDone, 0);
    EXPECT_EQ(P.Compare.sCompField, u"Notes"_s);
}

TEST_F(CompareBranchTest, Command_SelectsNoField_SoThatCutTakesTheFatalPath)
{
    GivenOpenBranch();
    Compare();
    P.Form6->Text2.Click();
    ExpectFatalBox(u"Run-time error '3265':\n\nItem not found in this collection.",
                   u"The records have no such field:\n\n"_s + Home.Path(u"LfgDat_A/LfgDat_A.mdb"));
    Click(P.Form6->mnuCut.Click);
    EXPECT_TRUE(ExitCode().has_value());
    EXPECT_EQ(Stored(u'A', "Surname", "A001"), u"Smith"_s);
}

// The surname is on show on both sides as it was before.
TEST_F(CompareBranchTest, CommandBeforeASearch_LeavesTheSurnameToBeCopiedAndCut)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Jones");
    Compare();
    ASSERT_EQ(Captions(), u"Field: Surname|Field: Surname"_s);
    Click(P.Form6->Command3.Click);
    EXPECT_EQ(Stored(u'B', "Surname", "B001"), u"Smith"_s);
    P.Form6->Text2.Click();
    Click(P.Form6->mnuCut.Click);
    EXPECT_EQ(Stored(u'A', "Surname", "A001"), QString());
    EXPECT_EQ(ExitCode(), std::nullopt);
}

// The left frame names the surname then, the right one still the field of the search.
TEST_F(CompareBranchTest, CommandAfterASearch_LeavesNoFieldToBeCopied_AndOnlyTheRightOneToBeCut)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Jones");
    SearchTimes(2);
    ASSERT_EQ(Captions(), u"Field: Forename|Field: Forename"_s);
    const auto ours = Rows(u'A');
    const auto theirs = Rows(u'B');
    Compare();
    ASSERT_EQ(Captions(), u"Field: Surname|Field: Forename"_s);
    for (const bool toCurrent : {false, true}) {
        P.Form6->Option1.Value = !toCurrent;
        P.Form6->Option2.Value = toCurrent;
        Tell(u"Copy Error", u"There is no record to copy across.");
        Click(P.Form6->Command3.Click);
    }
    P.Form6->Text2.Click();
    Click(P.Form6->mnuCut.Click);
    EXPECT_EQ(Texts(), u"|Jon"_s);
    EXPECT_EQ(Rows(u'A'), ours);
    EXPECT_EQ(Rows(u'B'), theirs);
    P.Form6->Text4.Click();
    Click(P.Form6->mnuCut.Click);
    EXPECT_EQ(Stored(u'B', "Forename", "B001"), QString());
    EXPECT_EQ(Rows(u'A'), ours);
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(CompareBranchTest, WindowOpenedAfresh_TheFieldOfAFormerSearchIsWrittenInNoRecord)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Jones");
    SearchTimes(2);
    Click(P.Form6->mnuClose.Click);
    const auto ours = Rows(u'A');
    Compare();
    P.Form6->Text2.Click();
    Click(P.Form6->mnuCut.Click);
    EXPECT_EQ(Texts(), u"|"_s);
    EXPECT_EQ(Rows(u'A'), ours);

    P.Form6->Text4.Click();
    ExpectFatalBox(u"Run-time error '91':\n\nObject variable not set",
                   u"No database is open for this:\nManual Compare Search"_s);
    Click(P.Form6->mnuCut.Click);
    EXPECT_TRUE(ExitCode().has_value());
}

TEST_F(CompareBranchTest, NullNames_AreShownEmpty)
{
    GivenBranch(u'A', {{{u"File", u"A001"}}});
    StartProgram(P);
    Choose(u"Smiths");
    Compare();
    EXPECT_EQ(P.Form6->Text1.Text.value() + P.Form6->Text2.Text.value() + P.Form6->Text5.Text.value(), QString());
    EXPECT_TRUE(P.Form6->Visible);
}

TEST_F(CompareBranchTest, RecordOfASibling_IsRefused_ByTheCommandAndTheButton)
{
    GivenOpenBranch();
    Compare();
    P.Branch.UsingAlternate = 1;
    P.Form6->Hide();
    for (const Event& entry : {P.Form1->mnuComp.Click, P.Form1->Command5.Click}) {
        Tell(u"Compare Record Data not available",
             u"Cannot compare this alternate Tree Branch Database record\n"
             u"unless you de select this subject or change and open it's Tree Branch Database.");
        Click(entry);
        EXPECT_FALSE(P.Form6->Visible);
    }
}

TEST_F(CompareBranchTest, NoBranch_IsTold)
{
    GivenRegistry();
    StartProgram(P);
    Tell(u"Data not available", u"Cannot View until database file is Opened");
    Compare();
    EXPECT_FALSE(P.Form6->Visible);
}

TEST_F(CompareBranchTest, BranchWithoutRecords_IsTold)
{
    GivenOpenBranch();
    ExpectEmptyBox();
    Choose(u"Nobody");
    Tell(u"Database Empty", u"The Database has no records to access");
    Compare();
    EXPECT_FALSE(P.Form6->Visible);
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(CompareBranchTest, FirstRecordWithoutAPicture_IsShownWithoutOne)
{
    GivenOpenBranch();
    P.Files.Kill(Home.Path(u"LfgDat_A/A001Sub.jpg"));
    Compare();
    EXPECT_EQ(PersonOn(P.Form6->Image1), u"none"_s);
    EXPECT_TRUE(P.Form6->Visible);
}

TEST_F(CompareBranchTest, Window_TakesTheScreen)
{
    GivenOpenBranch();
    P.Scratch.ScanState = ComparePair::InHand;
    P.Form6.Unload();
    EXPECT_EQ(P.Form6->Width, 12000);
    EXPECT_EQ(P.Form6->Height, 8600);
    EXPECT_EQ(P.Form6->Left, (12000 - P.Form3->Width) / 2);
    EXPECT_EQ(P.Form6->Top, (9000 - P.Form3->Height) / 2 - 200);
    EXPECT_EQ(State(), ComparePair::None);
    EXPECT_TRUE(P.Form6->Option1.Value);
    EXPECT_FALSE(P.Form6->Option2.Value);
}

TEST_F(CompareBranchTest, OpenCompare_AsksByTheListOfBranches)
{
    GivenOpenBranch();
    Compare();
    Click(P.Form6->mnuOpen.Click);
    EXPECT_TRUE(P.Compare.IsChoosing);
    EXPECT_TRUE(P.Form8->Visible);
}

TEST_F(CompareBranchTest, ChosenBranch_IsOpenedBesideTheOpenOne_AndTheFirstPairShown)
{
    GivenOpenBranch();
    Compare();
    Records(P.Form3).MoveLast();
    P.Compare.ResetDone = 1;
    P.Compare.FieldStep = 9;
    P.Scratch.ScanState = ComparePair::InHand;
    ChooseCompare(u"Jones");
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(P.Branch.sBranchName, u"Smiths"_s);
    EXPECT_EQ(P.Compare.sCompDbFile, u"LfgDat_B.mdb"_s);
    EXPECT_EQ(P.Compare.sCompDir, QString(Home.Path(u"LfgDat_B") + u'/'));
    EXPECT_EQ(P.Compare.sCompName, u"Jones"_s);
    EXPECT_EQ(P.Form6->Label7.Caption.value(), u"Jones"_s);
    EXPECT_EQ(Pair(), u"A001 B001"_s);
    EXPECT_EQ(ShownPair(), u"A001 B001"_s);
    EXPECT_EQ(Pictures(), u"A001 B001"_s);
    EXPECT_EQ(Captions(), u"Field: Surname|Field: Surname"_s);
    EXPECT_EQ(Texts(), u"Smith|Smythe"_s);
    EXPECT_EQ(Surnames(), u"Smith|Smythe"_s);
    EXPECT_EQ(Forenames(), u"John|Jon"_s);
    EXPECT_EQ(P.Compare.sCompField, u"Surname"_s);
    EXPECT_EQ(P.Compare.SearchMask, 0);
    EXPECT_EQ(P.Compare.FieldStep, 1);
    EXPECT_EQ(P.Compare.ResetDone, 0);
    EXPECT_EQ(State(), ComparePair::None);
    EXPECT_EQ(Light(), Found);
    EXPECT_FALSE(P.Form8.IsLoaded());
}

TEST_F(CompareBranchTest, WhatDiffers_IsMarked)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Jones");
    EXPECT_EQ(P.Form6->Text2.Marked.value(), (TextRange{2, 3}));
    EXPECT_EQ(P.Form6->Text4.Marked.value(), (TextRange{2, 4}));
}

TEST_F(CompareBranchTest, BranchWithoutRecords_ForComparison_IsTold_AndTheSideIsEmpty)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Jones");
    Tell(u"No Database records", u"No Records in this Database");
    ChooseCompare(u"Nobody");
    EXPECT_EQ(ShownPair(), u"A001 "_s);
    EXPECT_EQ(PersonOn(P.Form6->Image2), u"none"_s);
    EXPECT_EQ(Surnames(), u"Smith|"_s);
    EXPECT_EQ(P.Form6->Label7.Caption.value(), QString());
    EXPECT_EQ(P.Compare.SearchMask, 0);

    Tell(u"Database Empty", u"The Database has no records to access");
    Reset();
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(CompareBranchTest, CurrentBranchWithoutRecords_BehindTheWindow_IsTold_BeforeTheComparedOneIsLeft)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Jones");
    ExpectEmptyBox();
    Choose(u"Nobody");
    Tell(u"Database Empty", u"The Database has no records to access");
    ChooseCompare(u"Smiths");
    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(P.Compare.sCompDir, QString(Home.Path(u"LfgDat_B") + u'/'));
    EXPECT_EQ(P.Form6->Data1.DatabaseName, DatabaseOf(u'B'));
    EXPECT_EQ(P.Form6->Label7.Caption.value(), u"Jones"_s);
    EXPECT_EQ(P.Form6->Label9.Caption.value(), u"B001"_s);
}

TEST_F(CompareBranchTest, BothWithoutRecords_TheOpenOneIsTold)
{
    GivenOpenBranch();
    Compare();
    ExpectEmptyBox();
    Choose(u"Nobody");
    Tell(u"Database Empty", u"The Database has no records to access");
    ChooseCompare(u"Nobody");
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(CompareBranchTest, ComparedRecordWithoutAPicture_IsShownWithoutOne)
{
    GivenOpenBranch();
    P.Files.Kill(Home.Path(u"LfgDat_B/B002Sub.jpg"));
    Compare();
    ChooseCompare(u"Jones");
    ASSERT_EQ(Pictures(), u"A001 B001"_s);
    NextCompare();
    EXPECT_EQ(Pictures(), u"A001 none"_s);
}

TEST_F(CompareBranchTest, NullForenameOfTheFirstPair_EndsTheProgram_OverThePairThatWasShown)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Jones");
    Records(P.Form3).Edit();
    Records(P.Form3).Put(u"Forename", std::nullopt);
    Records(P.Form3).Update();
    const QString text = u"Run-time error '94':\n\nInvalid use of Null\n\n"
                         u"This field has never been filled in:\nForename\nRecord A001\n"_s +
                         Home.Path(u"LfgDat_A");
    Prompts.Expect(u"Lineforge", text, Buttons::Error, Answer::Ok, [&] {
        EXPECT_EQ(ShownPair(), u"A001 B001"_s);
        EXPECT_EQ(Surnames(), u"Smith|Smythe"_s);
        EXPECT_EQ(P.Form6->Label7.Caption.value(), u"Jones"_s);
    });
    ChooseCompare(u"Smiths");
    EXPECT_TRUE(ExitCode().has_value());
}

TEST_F(CompareBranchTest, NewBranch_IsNamedAsTheOpenOne)
{
    GivenOpenBranch();
    Compare();
    AnswerName(u"Browns");
    Confirm(u"Browns", u"LfgDat_D");
    ExpectEmptyBox();
    Click(P.Form1->New.Click);
    EXPECT_EQ(P.Form6->Label2.Caption.value(), u"Browns"_s);
}

TEST_F(CompareBranchTest, NewBranch_OpensNoComparison)
{
    GivenOpenBranch();
    P.Form6.Unload();
    P.Scratch.ScanState = ComparePair::Walked;
    AnswerName(u"Browns");
    Confirm(u"Browns", u"LfgDat_D");
    ExpectEmptyBox();
    Click(P.Form1->New.Click);
    EXPECT_FALSE(P.Form6.IsLoaded());
    EXPECT_EQ(State(), ComparePair::Walked);
}

TEST_F(CompareBranchTest, SearchWhileTheListIsOpen_DoesntTurnTheChoiceIntoAnOpening)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Smiths");
    Click(P.Form6->mnuOpen.Click);
    Search();
    P.Form8->List1.SetText(u"Jones"_s);
    Click(P.Form8->Command1.Click);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(P.Form6->Label7.Caption.value(), u"Jones"_s);
}

TEST_F(CompareBranchTest, SearchByDateOfBirth_DoesntTurnAnOpeningIntoAComparison)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Smiths");
    Click(P.Form1->Open.Click);
    P.Form6->Check3.Value = true;
    ExpectEndOfRecords();
    Search();
    P.Form8->List1.SetText(u"Jones"_s);
    Click(P.Form8->Command1.Click);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_B"));
}

TEST_F(CompareBranchTest, WindowClosedWhileTheListIsOpen_LeavesAnOrdinaryChoice)
{
    GivenOpenBranch();
    Compare();
    Click(P.Form6->mnuOpen.Click);
    Click(P.Form6->mnuClose.Click);
    P.Form8->List1.SetText(u"Jones"_s);
    Click(P.Form8->Command1.Click);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_B"));
}

TEST_F(CompareBranchTest, RecordOfASiblingBehindTheWindow_IsNotTouched)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Jones");
    const auto before = Rows(u'A');
    P.Branch.UsingAlternate = 1;
    P.Form6->Text1.Click();
    for (const Event& entry :
         {P.Form6->mnuOpen.Click, P.Form6->mnuCut.Click, P.Form6->mnuPaste.Click, P.Form6->Command1.Click,
          P.Form6->Command2.Click, P.Form6->Command3.Click, P.Form6->Command5.Click, P.Form6->Command6.Click,
          P.Form6->Command7.Click, P.Form6->Command8.Click}) {
        Tell(u"Compare Record Data not available",
             u"Cannot compare this alternate Tree Branch Database record\n"
             u"unless you de select this subject or change and open it's Tree Branch Database.");
        Click(entry);
    }
    EXPECT_EQ(Rows(u'A'), before);
    EXPECT_EQ(Pair(), u"A001 B001"_s);
}

TEST_F(CompareBranchTest, SameBranch_IsAccepted_AndAnEditOnOneSideIsSeenOnTheOther)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Smiths");
    EXPECT_EQ(ShownPair(), u"A001 A001"_s);
    Records(P.Form3).Edit();
    Records(P.Form3).Put(u"Surname", u"Changed"_s);
    Records(P.Form3).Update();
    EXPECT_EQ(CompareRecords(P.Form6).Text(u"Surname"), u"Changed"_s);
}

TEST_F(CompareBranchTest, AnotherCompareBranch_ReplacesTheFirst)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Jones");
    ChooseCompare(u"Smiths");
    EXPECT_EQ(P.Form6->Label7.Caption.value(), u"Smiths"_s);
    EXPECT_EQ(Pair(), u"A001 A001"_s);
}

TEST_F(CompareBranchTest, CancelledChoice_NeverTurnsTheNextOpenIntoAComparison)
{
    GivenOpenBranch();
    Compare();
    Click(P.Form6->mnuOpen.Click);
    Click(P.Form8->Command2.Click);
    EXPECT_EQ(P.Compare.SearchMask, 0);
    Choose(u"Jones");
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_B"));
}

TEST_F(CompareBranchTest, ChoiceLeftOpen_IsAnOrdinaryOneAfterTheMenuEntryOpen)
{
    GivenOpenBranch();
    Compare();
    Click(P.Form6->mnuOpen.Click);
    Choose(u"Jones");
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_B"));
}

TEST_F(CompareBranchTest, Tree_ShowsTheMap_AndTheButtonBringsTheWindowBack_AtTheRecordOfTheCursor)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Jones");
    Click(P.Form6->Command4.Click);
    EXPECT_TRUE(P.Form1->Visible);
    EXPECT_TRUE(P.Form6->Visible);
    Click(P.Form1->Command5.Click);
    EXPECT_EQ(ShownPair(), u"A001 B001"_s);
    EXPECT_EQ(Texts(), u"Smith|Smythe"_s);

    Records(P.Form3).MoveLast();
    Click(P.Form1->Command5.Click);
    EXPECT_EQ(ShownPair(), u"A002 B001"_s);
    EXPECT_EQ(Texts(), u"|Smythe"_s);
}

TEST_F(CompareBranchTest, ButtonOnAnotherRecord_ForgetsThePair_AsAStepByHandDoes)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Jones");
    Search();
    P.Scratch.ScanState = ComparePair::InHand;
    ASSERT_EQ(P.Compare.FieldStep, 2);
    Records(P.Form3).MoveLast();
    Click(P.Form1->Command5.Click);
    EXPECT_EQ(P.Compare.FieldStep, 0);
    EXPECT_EQ(State(), ComparePair::None);
    Search();
    EXPECT_EQ(ShownPair(), u"A002 B001"_s);
    EXPECT_EQ(Texts(), u"Jones|Smythe"_s);
}

TEST_F(CompareBranchTest, ButtonOnTheSameRecord_KeepsThePair)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Jones");
    Search();
    Click(P.Form6->Command4.Click);
    Click(P.Form1->Command5.Click);
    EXPECT_EQ(P.Compare.FieldStep, 2);
    EXPECT_EQ(Texts(), u"Smith|Smythe"_s);
    Search();
    EXPECT_EQ(Texts(), u"John|Jon"_s);
}

TEST_F(CompareBranchTest, ButtonOnAnotherRecordOfTheSameNumber_ForgetsThePair)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Jones");
    Search();
    ChangeOutside(u'A', "UPDATE Tree99 SET File = 'A001'");
    Records(P.Form3).MoveLast();
    Click(P.Form1->Command5.Click);
    EXPECT_EQ(P.Compare.FieldStep, 0);
    EXPECT_EQ(Surnames(), u"Jones|Smythe"_s);
    EXPECT_EQ(Texts(), u"|Smythe"_s);
}

TEST_F(CompareBranchTest, ButtonOnTheSameRecord_ShowsWhatHasBecomeOfIt)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Jones");
    Search();
    Click(P.Form6->Command4.Click);
    Click(P.Form1->Command1.Click);
    P.Form3->Text2.Text = u"Brown"_s;
    P.Form3->Text3.Text = u"Jim"_s;
    Click(P.Form3->Command2.Click);
    P.Files.Kill(Home.Path(u"LfgDat_A/A001Sub.jpg"));
    Tell(u"Image not Present", u"Searched Image File for A001Sub.Jpg");
    Click(P.Form3->Command2.Click);
    Click(P.Form1->Command5.Click);
    EXPECT_EQ(Surnames(), u"Brown|Smythe"_s);
    EXPECT_EQ(Forenames(), u"Jim|Jon"_s);
    EXPECT_EQ(Pictures(), u"none B001"_s);
    EXPECT_EQ(P.Compare.FieldStep, 2);
    EXPECT_EQ(Stored(u'A', "Surname", "A001"), u"Brown"_s);
    Search();
    EXPECT_EQ(Texts(), u"Jim|Jon"_s);
}

TEST_F(CompareBranchTest, ButtonOnTheSameRecordWhoseTextIsRefused_ShowsItAsTheRecordFormDoes)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Jones");
    P.Form3->Text2.Text = u"Brown"_s;
    ChangeOutside(u'A', "CREATE TRIGGER Refusal BEFORE UPDATE ON Tree99 BEGIN SELECT RAISE(ABORT, 'refused'); END");
    Click(P.Form1->Command5.Click);
    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(Surnames(), u"Brown|Smythe"_s);
    EXPECT_EQ(P.Form3->Text2.Text.value(), u"Brown"_s);
    EXPECT_EQ(Stored(u'A', "Surname", "A001"), u"Smith"_s);
}

TEST_F(CompareBranchTest, ButtonOnTheFirstRecordOfANewWindow_LeavesItsFieldOnShow)
{
    GivenOpenBranch();
    Compare();
    Click(P.Form1->Command5.Click);
    EXPECT_EQ(P.Form6->Frame5.Caption.value(), u"Field: Surname"_s);
    EXPECT_EQ(P.Form6->Text2.Text.value(), u"Smith"_s);
}

TEST_F(CompareBranchTest, ButtonOnARecordWithANullForename_ShowsItWhole)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Jones");
    ChangeOutside(u'A', "UPDATE Tree99 SET Forename = NULL WHERE File = 'A002'");
    Records(P.Form3).MoveLast();
    Click(P.Form1->Command5.Click);
    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(ShownPair(), u"A002 B001"_s);
    EXPECT_EQ(PersonOn(P.Form6->Image1), u"A002"_s);
    EXPECT_EQ(Surnames(), u"Jones|Smythe"_s);
    EXPECT_EQ(Forenames(), u"|Jon"_s);
    EXPECT_EQ(Texts(), u"|Smythe"_s);
}

TEST_F(CompareBranchTest, Exit_ClosesTheComparedBranch_AndHidesTheButton)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Jones");
    P.Files.ChDir(Home.Path());
    Click(P.Form6->mnuClose.Click);
    EXPECT_FALSE(P.Form6.IsLoaded());
    EXPECT_FALSE(P.Form1->Command5.Visible);
    EXPECT_TRUE(P.Form1->Visible);
    EXPECT_EQ(P.Files.CurDir(), Home.Path(u"LfgDat_A"));
}

TEST_F(CompareBranchTest, ButtonAfterTheBranchWasClosed_BeginsAnew)
{
    GivenOpenBranch();
    Compare();
    Click(P.Form1->mnuCloseDB.Click);
    Choose(u"Jones");
    Click(P.Form1->Command5.Click);
    EXPECT_EQ(P.Form6->Label4.Caption.value(), u"B001"_s);
    EXPECT_EQ(P.Form6->Label2.Caption.value(), u"Jones"_s);
    EXPECT_TRUE(P.Form6->Visible);
}

TEST_F(CompareBranchTest, Help_OpensTheContents)
{
    GivenOpenBranch();
    Prompts.ExpectHelp(Home.Path(u"LfgHelp.hlp"));
    Click(P.Form6->mnuHelp.Click);
}

TEST_F(CompareBranchTest, RecordBar_ShowsTheRecordThatItGoesTo)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Jones");
    CompareRecords(P.Form6).MoveNext();
    P.Scratch.ScanState = ComparePair::InHand;
    P.Compare.FieldStep = 5;
    Click(P.Form6->Data1.Stepped);
    EXPECT_EQ(State(), ComparePair::None);
    EXPECT_EQ(P.Compare.FieldStep, 0);
    EXPECT_EQ(ShownPair(), u"A001 B002"_s);
    EXPECT_EQ(Forenames(), u"John|Ann"_s);
    EXPECT_EQ(P.Form6->Frame6.Caption.value(), u"Field:"_s);
    EXPECT_EQ(Texts(), u"Smith|"_s);
}

TEST_F(CompareBranchTest, RecordBar_OnARecordWithANullForename_ShowsItWithout)
{
    GivenOpenBranch();
    Compare();
    ChooseCompare(u"Jones");
    ChangeOutside(u'B', "UPDATE Tree99 SET Forename = NULL WHERE File = 'B002'");
    CompareRecords(P.Form6).MoveNext();
    Click(P.Form6->Data1.Stepped);
    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(ShownPair(), u"A001 B002"_s);
    EXPECT_EQ(Surnames(), u"Smith|Brown"_s);
    EXPECT_EQ(Forenames(), u"John|"_s);
}

} // namespace
} // namespace lineforge
