#include "map/items/MapItems.h"
#include "map/subjects/SubjectMappingTest.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using forms::Form7;
using testing::Values;
using testing::WithParamInterface;

// The box in row 0 is tied to a record of branch B.
class AlternateMappingTest : public SubjectMappingTest
{
protected:
    AlternateMappingTest()
    {
        BranchA.Picture(u"A001", Qt::red);
        GivenRecords({u"A001"_s});
    }

    void Map(QStringView number)
    {
        Choose(&Form7::Option3, number);
        DoubleClickBox(0);
    }
    void ExpectOnSibling()
    {
        EXPECT_EQ(P.Branch.UsingAlternate, 1);
        EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_B"));
        EXPECT_EQ(P.Branch.WorkDirSaved, Home.Path(u"LfgDat_A"));
        EXPECT_EQ(P.Branch.HomeDir, P.ExecutableDirectory);
        EXPECT_EQ(P.Branch.HomeDirSaved, P.ExecutableDirectory);
        EXPECT_EQ(P.Branch.sDbaseName.toLower(), Home.Path(u"LfgDat_B/lfgdat_b.mdb").toLower());
        EXPECT_TRUE(TransportIs(false));
    }
    static constexpr QStringView BoxesWithB002 = u"1000,500,0,B002,,2000,500,0,A001,,3000,500,0,0,,";
};

TEST_F(AlternateMappingTest, BoxHoldsTheNumber_InTheMapOfTheOwnBranch)
{
    GivenSibling();
    const QByteArray siblingsMap = Home.ReadFile(BranchB.MapFile());

    Map(u"B002");

    EXPECT_EQ(FileOf(0), u"B002"_s);
    EXPECT_EQ(MapBytes(), MapWith(BoxesWithB002));
    EXPECT_EQ(Home.ReadFile(BranchB.MapFile()), siblingsMap);
    EXPECT_EQ(FilesOf(BranchA), QStringList{u"A001"_s});
    EXPECT_EQ(FilesOf(BranchB), QStringList({u"B001"_s, u"B002"_s}));
}

TEST_F(AlternateMappingTest, TheProgramGoesThere_AndShowsTheRecord)
{
    GivenSibling();

    Map(u"B002");

    ExpectOnSibling();
    EXPECT_EQ(Current(), u"B002"_s);
    EXPECT_TRUE(P.Form3->Visible);
    EXPECT_EQ(P.Form3->Label25.Caption.value(), u"B002"_s);
    EXPECT_TRUE(BothShow(Qt::green));
    EXPECT_EQ(P.Map.Owner, Home.Path(u"LfgDat_A"));
}

TEST_F(AlternateMappingTest, TheMappingIsOver_AndTheNextIsANewRecord)
{
    GivenSibling();

    Map(u"B002");

    ExpectNothingPending();
    EXPECT_EQ(P.Mapping.MapOption, 0);
    EXPECT_EQ(P.Mapping.NewFile, u"B002"_s);
    EXPECT_EQ(P.Mapping.PictureOption, 7);
    EXPECT_TRUE(P.Form1->Image1.Visible);
    EXPECT_TRUE(IsMarkerOnBox(0));
}

TEST_F(AlternateMappingTest, NoPictureIsAskedFor_AndNoneCopied)
{
    GivenSibling();
    const QByteArray green = Home.ReadFile(u"LfgDat_B/B002Sub.jpg");
    Choose(&Form7::Option3, u"B002", &Form7::Option7);

    DoubleClickBox(0);

    EXPECT_EQ(Home.ReadFile(u"LfgDat_B/B002Sub.jpg"), green);
    EXPECT_FALSE(HasPicture(u"B002"));
    EXPECT_EQ(P.Mapping.PictureOption, 7);
}

TEST_F(AlternateMappingTest, BoxShowsNumberAndForename)
{
    GivenSibling();

    Map(u"B002");

    EXPECT_EQ(CountPixels(Picture, Black, {1000, 500, BoxWidth, BoxHeight}), [] {
        PictureByHand hand;
        ResetMapFont(*hand);
        PrintOnMap(*hand, {1100, 500}, u"B002"_s);
        PrintOnMap(*hand, {1050, 600}, u"Tom"_s);
        return CountPixels(*hand, Black, {1000, 500, BoxWidth, BoxHeight});
    }());
}

TEST_F(AlternateMappingTest, BoxThatKnewAnotherForename_ForgetsItWithTheNumber)
{
    GivenSibling();
    P.Map.BoxArr[0][BoxColumn::Forename] = u"Gone"_s;

    Map(u"B002");

    EXPECT_EQ(MapBytes(), MapWith(BoxesWithB002));
}

TEST_F(AlternateMappingTest, NumberUnknownThere_IsTold_TheBoxKeepsIt_AndTheSwitchStays)
{
    GivenSibling();
    Choose(&Form7::Option3, u"B009");
    ExpectNotPresent(u"Record not Found: B009");

    DoubleClickBox(0);

    ExpectOnSibling();
    ExpectNothingPending();
    EXPECT_TRUE(Records(P.Form3).Eof());
    EXPECT_EQ(FileOf(0), u"B009"_s);
    EXPECT_EQ(MapBytes(), MapWith(u"1000,500,0,B009,,2000,500,0,A001,,3000,500,0,0,,"));
    EXPECT_TRUE(P.Form3->Image1.Picture.value().isNull());
}

TEST_F(AlternateMappingTest, DatabaseMissing_IsTheErrorOfTheStore_TheBoxIsWrittenBefore)
{
    Choose(&Form7::Option3, u"B002");

    EXPECT_EQ(RefusalOf([&] { DoubleClickBox(0); }), ErrorNumber::DatabaseNotFound);

    EXPECT_EQ(MapBytes(), MapWith(BoxesWithB002));
}

TEST_F(AlternateMappingTest, DatabaseBroken_IsTheErrorOfTheStore)
{
    Home.WriteFile(u"LfgDat_B/LfgDat_B.mdb", QByteArray(5000, 'x'));
    Choose(&Form7::Option3, u"B002");

    EXPECT_EQ(RefusalOf([&] { DoubleClickBox(0); }), ErrorNumber::NotADatabase);
}

TEST_F(AlternateMappingTest, NextDoubleClick_ReturnsToTheOwnBranch)
{
    GivenSibling();
    Map(u"B002");

    DoubleClickBox(1);

    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(ShownNumber(), u"Ref  A001"_s);
    EXPECT_TRUE(TransportIs(true));
}

TEST_F(AlternateMappingTest, OptionsKeepTheChoice_AndTheNextOkTakesItAgain)
{
    GivenSibling();
    Map(u"B002");

    P.Form7->Command1.Click();

    EXPECT_EQ(P.Mapping.MapOption, 2);
}

// Which window is brought before the others last.
class MappingInFrontTest : public AlternateMappingTest
{
protected:
    MappingInFrontTest()
    {
        P.Form1->ToFront = [&] { InFront = u"Form1"_s; };
        P.Form3->ToFront = [&] { InFront = u"Form3"_s; };
    }

    QString InFront;
};

TEST_F(MappingInFrontTest, RecordOfAnotherBranch_TheMapIs)
{
    GivenSibling();

    Map(u"B002");

    EXPECT_EQ(InFront, u"Form1"_s);
    EXPECT_TRUE(P.Form3->Visible);
}

TEST_F(MappingInFrontTest, RecordOfAnotherBranch_TheMapTellsItsNumberBesideItsName)
{
    GivenSibling();

    Map(u"B002");

    EXPECT_EQ(ShownNumber(), u"Ref  B002"_s);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), P.Form3->Text3.Text.value());
}

TEST_F(MappingInFrontTest, RecordOfAnotherBranchWithoutPicture_TheMapIs)
{
    GivenSibling();

    Map(u"B001");

    EXPECT_EQ(InFront, u"Form1"_s);
}

TEST_F(MappingInFrontTest, RecordOfAnotherBranchWithoutPicture_TheMapShowsNobodyElses)
{
    GivenSibling();
    DoubleClickBox(1);
    ASSERT_FALSE(P.Form1->Image1.Picture.value().isNull());

    Map(u"B001");

    EXPECT_EQ(ShownNumber(), u"Ref  B001"_s);
    EXPECT_TRUE(P.Form1->Image1.Picture.value().isNull());
    EXPECT_TRUE(IsMarkerOnBox(0));
}

TEST_F(MappingInFrontTest, RecordUnknownInTheOtherBranch_TheRecordFormIs)
{
    GivenSibling();
    Choose(&Form7::Option3, u"B009");
    ExpectNotPresent(u"Record not Found: B009");

    DoubleClickBox(0);

    EXPECT_EQ(InFront, u"Form3"_s);
}

TEST_F(MappingInFrontTest, NewRecord_TheRecordFormIs)
{
    ChooseNewRecord();

    DoubleClickBox(0);

    EXPECT_EQ(InFront, u"Form3"_s);
}

TEST_F(MappingInFrontTest, UnmappedRecord_TheRecordFormIs)
{
    Choose(&Form7::Option2, u"A001");

    DoubleClickBox(0);

    EXPECT_EQ(InFront, u"Form3"_s);
}

TEST_F(MappingInFrontTest, FirstRecordWithTheOtherBranchChosen_TheRecordFormIs)
{
    SqliteFile(Home.Path(BranchA.DatabaseFile())).Execute("DELETE FROM Tree99");
    OpenWorkDatabase(P);
    P.Form3->ToFront = [&] { InFront = u"Form3"_s; };

    Map(u"B002");

    EXPECT_EQ(FileOf(0), u"A001"_s);
    EXPECT_EQ(InFront, u"Form3"_s);
}

// `ReMapSubject`: A001 stands in row 1, the rows 0 and 2 are empty.
class RemapTest : public SubjectMappingTest
{
protected:
    RemapTest()
    {
        BranchA.Picture(u"A001", Qt::red);
        GivenSibling();
        GivenRecords({u"A001"_s, u"A002"_s});
    }

    void ExpectBegin(Answer answer)
    {
        Prompts.Expect(u"Subject re Position",
                       u"You are about to move the position of a subject. \n"
                       u"Please ensure that an empty subject box position is \n"
                       u"available for substitution.",
                       Buttons::InformationOkCancel, answer, [this] { EXPECT_EQ(P.Tools.MapCursorMode, ModeBefore); });
    }
    void ExpectSelect(Answer answer)
    {
        Prompts.Expect(u"Data link Transfer",
                       u"Select subject old map position then select \n"
                       u"subject new map position to transfer data link",
                       Buttons::InformationOkCancel, answer, [this] { EXPECT_EQ(P.Tools.MapCursorMode, 2); });
    }
    void Remap()
    {
        ExpectBegin(Answer::Ok);
        ExpectSelect(Answer::Ok);
        P.Form1->mnuRemap.Click();
    }

    int ModeBefore = 0;
};

TEST_F(RemapTest, BothAnsweredOk_TheModeIsOn_WithoutTheCross)
{
    Remap();

    EXPECT_EQ(P.Tools.MapCursorMode, 2);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
}

TEST_F(RemapTest, LocalSubject_MovesByTwoDoubleClicks)
{
    Remap();
    DoubleClickBox(1);
    ASSERT_EQ(P.Screen.Pointer, MousePointer::Cross);

    DoubleClickBox(2);

    EXPECT_EQ(MapBytes(), MapWith(u"1000,500,0,0,,2000,500,0,0,,3000,500,0,A001,NA001,"));
    EXPECT_EQ(FilesOf(BranchA), QStringList({u"A001"_s, u"A002"_s}));
    EXPECT_TRUE(IsMarkerOnBox(2));
    ExpectNothingPending();
}

TEST_F(RemapTest, TargetThatHoldsARecord_IsOverwritten)
{
    GivenBox(2, {3000, 500}, u"A002");
    Remap();
    DoubleClickBox(1);

    DoubleClickBox(2);

    EXPECT_EQ(MapBytes(), MapWith(u"1000,500,0,0,,2000,500,0,0,,3000,500,0,A001,NA001,"));
}

TEST_F(RemapTest, SubjectInRow99_EndsInTwoBoxes)
{
    GivenBox(1, {2000, 500});
    GivenBox(99, {5000, 5000}, u"A001");
    P.Map.SBoxes = 99;
    Remap();
    DoubleClickBox(99);

    DoubleClickBox(2);

    EXPECT_EQ(MapBytes(), MapWith(u"1000,500,0,0,,2000,500,0,0,,3000,500,0,A001,NA001,5000,5000,0,A001,,"));
}

TEST_F(RemapTest, SubjectWithoutGender_TheSecondDoubleClickIsAPlainViewAgain)
{
    Records(P.Form3).Edit();
    Records(P.Form3).Put(u"Gender", FieldValue());
    Records(P.Form3).Update();
    GivenBox(2, {3000, 500}, u"A001");
    Remap();
    DoubleClickBox(1);

    DoubleClickBox(2);

    EXPECT_EQ(FileOf(1), u"A001"_s);
    EXPECT_EQ(P.Tools.MapCursorMode, 2);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
}

TEST_F(RemapTest, SubjectOfASibling_MovesByTwoDoubleClicks)
{
    GivenBox(0, {1000, 500}, u"B002");
    Remap();
    DoubleClickBox(0);
    ASSERT_EQ(P.Screen.Pointer, MousePointer::Cross);

    DoubleClickBox(2);

    EXPECT_EQ(MapBytes(), MapWith(u"1000,500,0,0,,2000,500,0,A001,,3000,500,0,B002,Tom,"));
    EXPECT_EQ(P.Branch.UsingAlternate, 1);
    ExpectNothingPending();
}

TEST_F(RemapTest, CancelAtTheSecondQuestion_ClearsTheMode)
{
    P.Screen.Pointer = MousePointer::Cross;
    ExpectBegin(Answer::Ok);
    ExpectSelect(Answer::Cancel);

    P.Form1->mnuRemap.Click();

    ExpectNothingPending();
}

class RemapCancelledTest : public RemapTest, public WithParamInterface<int>
{
};

TEST_P(RemapCancelledTest, CancelAtTheFirstQuestion_LeavesWhateverModeStood)
{
    ModeBefore = GetParam();
    P.Tools.MapCursorMode = ModeBefore;
    P.Screen.Pointer = MousePointer::Cross;
    ExpectBegin(Answer::Cancel);

    P.Form1->mnuRemap.Click();

    EXPECT_EQ(P.Tools.MapCursorMode, ModeBefore);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Cross);
}

INSTANTIATE_TEST_SUITE_P(Modes, RemapCancelledTest, Values(0, 1, 2));

} // namespace
} // namespace lineforge
