#include "map/subjects/SubjectMappingTest.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using forms::Form7;
using testing::Values;
using testing::WithParamInterface;

class SubjectMappingFormTest : public SubjectMappingTest
{
protected:
    SubjectMappingFormTest() { GivenRecords({u"A001"_s}); }

    void Open() { P.Form1->mnuMapSubject.Click(); }

    bool OnlyOn(Option option)
    {
        for (Option other : {&Form7::Option1, &Form7::Option2, &Form7::Option3})
            if (((*P.Form7).*other).Value != (other == option))
                return false;
        return true;
    }
    // A number can be entered, or a gender and a picture be chosen.
    void ExpectNumberAsked(bool isAsked)
    {
        EXPECT_EQ(P.Form7->Label1.Enabled, isAsked);
        EXPECT_EQ(P.Form7->Text1.Enabled, isAsked);
        EXPECT_EQ(P.Form7->Frame2.Enabled, !isAsked);
        EXPECT_EQ(P.Form7->Frame3.Enabled, !isAsked);
    }

    Form7& Options = *P.Form7;
};

TEST_F(SubjectMappingTest, Menu_NoBranchOpen_IsTold)
{
    Prompts.Expect(u"Data not available", u"Cannot Map until database file is Opened", Buttons::Information);

    P.Form1->mnuMapSubject.Click();

    EXPECT_FALSE(P.Form7->Visible);
}

TEST_F(SubjectMappingTest, Repositioning_NoBranchOpen_IsTold)
{
    Prompts.Expect(u"Data not available", u"Cannot Map until database file is Opened", Buttons::Information);

    P.Form1->mnuRemap.Click();

    EXPECT_EQ(P.Tools.MapCursorMode, 0);
}

TEST_F(SubjectMappingFormTest, Menu_ShowsTheWindow_BeforeTheOthers)
{
    int times = 0;
    Options.ToFront = [&] { ++times; };
    ASSERT_FALSE(Options.Visible);

    Open();
    Open();

    EXPECT_TRUE(Options.Visible);
    EXPECT_EQ(times, 2);
    EXPECT_EQ(P.Tools.MapCursorMode, 0);
}

TEST_F(SubjectMappingFormTest, Words)
{
    EXPECT_EQ(Options.Caption.value(), u"Subject  Mapping Options"_s);
    EXPECT_EQ(Options.Frame1.Caption.value(), u"Mapped Record Details"_s);
    EXPECT_EQ(Options.Option1.Caption.value(), u"Map and create new Blank Record"_s);
    EXPECT_EQ(Options.Option2.Caption.value(), u"Map existing Unmapped Record"_s);
    EXPECT_EQ(Options.Option3.Caption.value(), u"Map existing Alternate Tree Branch Record"_s);
    EXPECT_EQ(Options.Label1.Caption.value(), u"Enter existing Record Number :"_s);
    EXPECT_EQ(Options.Frame2.Caption.value(), u"Subject Gender"_s);
    EXPECT_EQ(Options.Option4.Caption.value(), u"Male"_s);
    EXPECT_EQ(Options.Option5.Caption.value(), u"Female"_s);
    EXPECT_EQ(Options.Frame3.Caption.value(), u"Subject Picture"_s);
    EXPECT_EQ(Options.Option6.Caption.value(), u"Leave until later"_s);
    EXPECT_EQ(Options.Option7.Caption.value(), u"Select now"_s);
    EXPECT_EQ(Options.Command1.Caption.value(), u"OK"_s);
    EXPECT_EQ(Options.Command2.Caption.value(), u"Cancel"_s);
    EXPECT_EQ(Options.Text1.MaxLength, 4);
}

TEST_F(SubjectMappingFormTest, AtTheStart_ABlankRecordIsChosen)
{
    EXPECT_TRUE(OnlyOn(&Form7::Option1));
    ExpectNumberAsked(false);
    EXPECT_EQ(Options.Text1.Text.value(), QString());
}

TEST_F(SubjectMappingFormTest, AtTheStart_NoGenderIsChosen_AndThePictureIsLeftUntilLater)
{
    EXPECT_FALSE(Options.Option4.Value);
    EXPECT_FALSE(Options.Option5.Value);
    EXPECT_TRUE(Options.Option6.Value);
    EXPECT_FALSE(Options.Option7.Value);
}

class ExistingRecordOptionTest : public SubjectMappingFormTest, public WithParamInterface<OptionButton Form7::*>
{
protected:
    void ChooseIt() { (Options.*GetParam()).Click(); }
};

TEST_P(ExistingRecordOptionTest, AsksForANumber_InsteadOfGenderAndPicture)
{
    ChooseIt();

    EXPECT_TRUE(OnlyOn(GetParam()));
    ExpectNumberAsked(true);
}

TEST_P(ExistingRecordOptionTest, KeepsTheNumber)
{
    ChooseIt();
    Options.Text1.Text = u"A001"_s;

    Options.Option2.Click();
    Options.Option3.Click();
    ChooseIt();

    EXPECT_EQ(Options.Text1.Text.value(), u"A001"_s);
}

TEST_P(ExistingRecordOptionTest, BackToABlankRecord_EmptiesTheNumber)
{
    ChooseIt();
    Options.Text1.Text = u"A001"_s;

    Options.Option1.Click();

    EXPECT_TRUE(OnlyOn(&Form7::Option1));
    ExpectNumberAsked(false);
    EXPECT_EQ(Options.Text1.Text.value(), QString());
}

INSTANTIATE_TEST_SUITE_P(Options, ExistingRecordOptionTest, Values(&Form7::Option2, &Form7::Option3));

TEST_F(SubjectMappingFormTest, Ok_TheCrossWaits_AndTheWindowGoes)
{
    Open();

    Options.Command1.Click();

    EXPECT_FALSE(Options.Visible);
    ExpectStillPending();
}

TEST_F(SubjectMappingFormTest, Ok_TakesThePlaceOfAPendingRepositioning)
{
    P.Tools.MapCursorMode = 2;
    Open();

    Options.Command1.Click();

    EXPECT_EQ(P.Tools.MapCursorMode, 1);
}

TEST_F(SubjectMappingFormTest, Ok_TakesWhatIsMapped)
{
    const OptionButton Form7::*options[] = {&Form7::Option1, &Form7::Option2, &Form7::Option3};
    for (const int expected : {2, 1, 0}) {
        (Options.*options[expected]).Click();

        Options.Command1.Click();

        EXPECT_EQ(P.Mapping.MapOption, expected);
    }
}

TEST_F(SubjectMappingFormTest, Ok_TakesTheGender)
{
    Options.Option5.Value = true;
    Options.Command1.Click();
    EXPECT_EQ(P.Mapping.NewGender, u"Female"_s);

    Options.Option5.Value = false;
    Options.Option4.Value = true;
    Options.Command1.Click();
    EXPECT_EQ(P.Mapping.NewGender, u"Male"_s);
}

TEST_F(SubjectMappingFormTest, Ok_NoGenderChosen_ItStaysAsItWas)
{
    P.Mapping.NewGender = u"Female"_s;

    Options.Command1.Click();

    EXPECT_EQ(P.Mapping.NewGender, u"Female"_s);
}

TEST_F(SubjectMappingFormTest, Ok_TakesWhenThePictureIsChosen)
{
    Options.Command1.Click();
    EXPECT_EQ(P.Mapping.PictureOption, 7);

    Options.Option6.Value = false;
    Options.Option7.Value = true;
    Options.Command1.Click();
    EXPECT_EQ(P.Mapping.PictureOption, 6);
}

TEST_F(SubjectMappingFormTest, Ok_TakesGenderAndPicture_AlsoForAnExistingRecord)
{
    Options.Option5.Value = true;
    Options.Option6.Value = false;
    Options.Option7.Value = true;
    Options.Option2.Click();

    Options.Command1.Click();

    EXPECT_EQ(P.Mapping.NewGender, u"Female"_s);
    EXPECT_EQ(P.Mapping.PictureOption, 6);
}

TEST_F(SubjectMappingFormTest, Ok_ShowsNoRecordForm_AndWritesNothing)
{
    const Tree before = Home.Snapshot();

    Options.Command1.Click();

    EXPECT_FALSE(P.Form3->Visible);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(SubjectMappingFormTest, Cancel_HidesTheWindow_AndLeavesAllElse)
{
    P.Mapping.MapOption = 2;
    P.Mapping.PictureOption = 6;
    P.Tools.MapCursorMode = 2;
    P.Screen.Pointer = MousePointer::Cross;
    Open();
    Options.Option2.Click();

    Options.Command2.Click();

    EXPECT_FALSE(Options.Visible);
    EXPECT_EQ(P.Tools.MapCursorMode, 2);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Cross);
    EXPECT_EQ(P.Mapping.MapOption, 2);
    EXPECT_EQ(P.Mapping.PictureOption, 6);
}

class KeptChoicesTest : public SubjectMappingFormTest, public WithParamInterface<Button Form7::*>
{
};

TEST_P(KeptChoicesTest, PersistFromOneMappingToTheNext)
{
    Open();
    Options.Option3.Click();
    Options.Text1.Text = u"B001"_s;
    Options.Option5.Value = true;
    Options.Option6.Value = false;
    Options.Option7.Value = true;
    (Options.*GetParam()).Click();

    Open();

    EXPECT_TRUE(OnlyOn(&Form7::Option3));
    ExpectNumberAsked(true);
    EXPECT_EQ(Options.Text1.Text.value(), u"B001"_s);
    EXPECT_TRUE(Options.Option5.Value);
    EXPECT_TRUE(Options.Option7.Value);
}

INSTANTIATE_TEST_SUITE_P(Buttons, KeptChoicesTest, Values(&Form7::Command1, &Form7::Command2));

class PendingMappingTest : public SubjectMappingFormTest, public WithParamInterface<MenuItem forms::Form1::*>
{
};

TEST_P(PendingMappingTest, OpeningTheMenu_CancelsIt)
{
    ChooseNewRecord();

    ((*P.Form1).*GetParam()).Click();

    ExpectNothingPending();
    DoubleClickBox(0);
    EXPECT_EQ(FileOf(0), u"0"_s);
}

INSTANTIATE_TEST_SUITE_P(Menus, PendingMappingTest,
                         Values(&forms::Form1::mnuFile, &forms::Form1::mnuHelp, &forms::Form1::mnuEdit,
                                &forms::Form1::mnuTreeGraphics));

TEST_F(SubjectMappingFormTest, Records_CancelsAPendingMapping)
{
    ChooseNewRecord();

    P.Form1->Command1.Click();

    ExpectNothingPending();
}

TEST_F(SubjectMappingFormTest, WhileAMappingIsPending_TheReleaseGoesOnShowingTheCoordinates)
{
    ChooseNewRecord();

    Press({1307, 608});
    Release({1307, 608});

    EXPECT_EQ(P.Form1->Text8.Text.value(), u"1000,500"_s);
}

} // namespace
} // namespace lineforge
