#include "map/items/CurrentBox.h"
#include "map/subjects/SubjectMappingTest.h"
#include "map/subjects/SubjectPanel.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using forms::Form7;

// A new record is mapped to the box in row 0.
class MappedPictureTest : public SubjectMappingTest
{
protected:
    MappedPictureTest()
    {
        BranchA.Picture(u"A001", Qt::red);
        GivenRecords({u"A001"_s});
    }

    void MapBlank()
    {
        ChooseNewRecord();
        DoubleClickBox(0);
    }
    void MapChoosing(std::optional<QString> answer)
    {
        ChooseNewRecord(&Form7::Option7);
        ExpectPictureDialog(std::move(answer));
        DoubleClickBox(0);
    }
    // The record is there, and no picture is shown.
    void ExpectRecordWithoutPicture()
    {
        EXPECT_EQ(FilesOf(BranchA), QStringList({u"A001"_s, u"A002"_s}));
        EXPECT_EQ(FileOf(0), u"A002"_s);
        EXPECT_TRUE(P.Form3->Image1.Picture.value().isNull());
        EXPECT_TRUE(P.Form1->Image1.Picture.value().isNull());
        EXPECT_TRUE(IsMarkerOnBox(0));
        ExpectStillPending();
    }

    const QByteArray BluePicture = PictureBytes(Qt::blue);
    const QString Chosen = Home.WriteFile(u"Album/me.jpg", BluePicture);
};

TEST_F(MappedPictureTest, Later_TheBlankPortraitIsCopied_AndShown)
{
    MapBlank();

    EXPECT_EQ(PictureOf(u"A002"), Portrait);
    EXPECT_TRUE(BothShow(Qt::yellow));
    EXPECT_EQ(P.Files.CurDir(), P.Branch.WorkDir);
}

TEST_F(MappedPictureTest, Later_CopiesOverWhateverTheNameHeld)
{
    Home.WriteFile(PathOfPicture(u"A002"), BluePicture);

    MapBlank();

    EXPECT_EQ(PictureOf(u"A002"), Portrait);
    EXPECT_TRUE(BothShow(Qt::yellow));
}

TEST_F(MappedPictureTest, Later_ShowsImageAndMarker)
{
    P.Form1->Image1.Visible = false;
    Marker.Visible = false;

    MapBlank();

    EXPECT_TRUE(P.Form1->Image1.Visible);
    EXPECT_TRUE(Marker.Visible);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
}

TEST_F(MappedPictureTest, Later_NumberAndMarkerAreTheNewSubjects)
{
    DoubleClickBox(1);
    ASSERT_TRUE(IsMarkerOnBox(1));
    ASSERT_EQ(ShownNumber(), u"Ref  A001"_s);

    MapBlank();

    EXPECT_TRUE(IsMarkerOnBox(0));
    EXPECT_EQ(ShownNumber(), u"Ref  A002"_s);
}

TEST_F(MappedPictureTest, Later_FirstRecordBesideAllBoxes_HasNoMarker)
{
    GivenOpen(BranchBuilder(Home, u'C').InDirectory(u"LfgDat_C"));
    GivenMarkerElsewhere();
    ChooseNewRecord();

    DoubleClick(Nowhere);

    EXPECT_EQ(Current(), u"C001"_s);
    EXPECT_FALSE(Marker.Visible);
}

TEST_F(MappedPictureTest, Later_NoBlankPortrait_TheRecordStandsWithoutPicture_AndWithNobodyElses)
{
    DoubleClickBox(1);
    ASSERT_FALSE(P.Form1->Image1.Picture.value().isNull());
    P.Files.Kill(Home.Path(u"Tree99.jpg"));

    MapBlank();

    ExpectRecordWithoutPicture();
    EXPECT_FALSE(HasPicture(u"A002"));
}

TEST_F(MappedPictureTest, Later_AnExistingRecordGetsTheBlankPortraitOverItsOwnPicture)
{
    Choose(&Form7::Option2, u"A001");

    DoubleClickBox(0);

    EXPECT_EQ(PictureOf(u"A001"), Portrait);
    EXPECT_TRUE(BothShow(Qt::yellow));
}

TEST_F(MappedPictureTest, SelectNow_TheChosenFileIsCopied_AndShown)
{
    MapChoosing(Chosen);

    EXPECT_EQ(PictureOf(u"A002"), BluePicture);
    EXPECT_TRUE(BothShow(Qt::blue));
    EXPECT_TRUE(P.Form1->Image1.Visible);
    EXPECT_TRUE(Marker.Visible);
    EXPECT_EQ(P.Tools.MapCursorMode, 1);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
}

// The scanner goes on behind the dialog, to its end.
TEST_F(MappedPictureTest, SelectNow_CursorGoneOnMeanwhile_NewRecordAndPictureStandTogether)
{
    for (const std::optional<QString>& answer : {std::optional(Chosen), std::optional<QString>()}) {
        ChooseNewRecord(&Form7::Option7);
        Prompts.ExpectOpenFile(u"Select Picture Source File", u"DataBase|*.jpg|All Files|*.*|", answer, [this] {
            Records(P.Form3).MoveFirst();
            ShowRecordOnMap(P);
            MarkCurrentBox(P);
        });
        DoubleClickBox(answer ? 0 : 2);

        const QString made = answer ? u"A002"_s : u"A003"_s;
        EXPECT_EQ(Current(), made);
        EXPECT_EQ(ShownNumber(), QString(u"Ref  " + made));
        EXPECT_EQ(P.Form3->Label25.Caption.value(), made);
        if (answer)
            EXPECT_TRUE(BothShow(Qt::blue));
        else
            EXPECT_TRUE(P.Form1->Image1.Picture.value().isNull() && P.Form3->Image1.Picture.value().isNull());
        EXPECT_TRUE(IsMarkerOnBox(answer ? 0 : 2));
    }
}

TEST_F(MappedPictureTest, ExistingRecord_CursorGoneOnMeanwhile_ItIsTheOneThatIsAskedFor)
{
    MapBlank();
    ChooseNewRecord(&Form7::Option7);
    const auto goOn = [this] { Records(P.Form3).MoveLast(); };
    Prompts.Expect(u"New Subject Mapping",
                   u"This Subject has already been Logged into the Database.\n"
                   u"Do you want to change the Subject Picture ? ",
                   Buttons::QuestionYesNo, Answer::Yes, goOn);
    Prompts.ExpectOpenFile(u"Select Picture Source File", u"DataBase|*.jpg|All Files|*.*|", Chosen, goOn);
    DoubleClickBox(1);

    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_EQ(P.Record.sCurFile, u"A001"_s);
    EXPECT_TRUE(IsMarkerOnBox(1));
}

TEST_F(MappedPictureTest, SelectNow_ForTheFirstRecordOfABranch)
{
    GivenOpen(BranchBuilder(Home, u'C').InDirectory(u"LfgDat_C"));

    MapChoosing(Chosen);

    EXPECT_EQ(Home.ReadFile(u"LfgDat_C/C001Sub.jpg"), BluePicture);
    EXPECT_TRUE(BothShow(Qt::blue));
}

TEST_F(MappedPictureTest, SelectNow_Cancelled_TheRecordStandsWithoutPicture_AndWithNobodyElses)
{
    DoubleClickBox(1);
    ASSERT_FALSE(P.Form1->Image1.Picture.value().isNull());

    MapChoosing({});

    ExpectRecordWithoutPicture();
    EXPECT_FALSE(HasPicture(u"A002"));
}

TEST_F(MappedPictureTest, SelectNow_TheRecordIsWrittenBeforeTheDialogOpens)
{
    ChooseNewRecord(&Form7::Option7);
    Prompts.ExpectOpenFile(u"Select Picture Source File", u"DataBase|*.jpg|All Files|*.*|", {}, [&] {
        EXPECT_EQ(FilesOf(BranchA), QStringList({u"A001"_s, u"A002"_s}));
        EXPECT_EQ(MapBytes(), MapWith(u"1000,500,0,A002,,2000,500,0,A001,,3000,500,0,0,,"));
        EXPECT_TRUE(P.Form3->Visible);
    });

    DoubleClickBox(0);
}

TEST_F(MappedPictureTest, SelectNow_FileGoneMeanwhile_TheRecordStandsWithoutPicture)
{
    MapChoosing(Home.Path(u"Album/gone.jpg"));

    ExpectRecordWithoutPicture();
    EXPECT_FALSE(HasPicture(u"A002"));
}

TEST_F(MappedPictureTest, SelectNow_CopyRefused_TheOldFileStays)
{
    Home.WriteFile(PathOfPicture(u"A002"), Portrait);
    Home.MakeReadOnly(PathOfPicture(u"A002"));

    MapChoosing(Chosen);

    ExpectRecordWithoutPicture();
    EXPECT_EQ(PictureOf(u"A002"), Portrait);
}

TEST_F(MappedPictureTest, SelectNow_NotAPicture_IsCopied_AndNothingIsShown)
{
    MapChoosing(Home.WriteFile(u"Album/letter.txt", "Dear all"));

    ExpectRecordWithoutPicture();
    EXPECT_EQ(PictureOf(u"A002"), QByteArray("Dear all"));
}

// A double click on A001's box while a mapping is pending.
class AskSubjectPictureTest : public MappedPictureTest
{
protected:
    void GivenMappedA002()
    {
        MapBlank();
        P.Form3->Command2.Click();
        ASSERT_EQ(P.Tools.MapCursorMode, 0);
    }
    void ExpectNoRecordAdded() { EXPECT_EQ(FilesOf(BranchA), FilesBefore); }

    QStringList FilesBefore = FilesOf(BranchA);
    const QByteArray RedPicture = PictureOf(u"A001");
};

TEST_F(AskSubjectPictureTest, No_EndsTheMapping_AndChangesNothing)
{
    const Tree before = Home.Snapshot();
    ChooseNewRecord();
    ExpectPictureQuestion(Answer::No);

    DoubleClickBox(1);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_FALSE(P.Form3->Visible);
    EXPECT_TRUE(P.Form1->Image1.Picture.value().isNull());
    ExpectNothingPending();
}

TEST_F(AskSubjectPictureTest, WhateverIsToBeMapped_TheQuestionIsTheSame)
{
    Choose(&Form7::Option2, u"no");
    ExpectPictureQuestion(Answer::No);

    DoubleClickBox(1);

    ExpectNoRecordAdded();
    ExpectNothingPending();
}

TEST_F(AskSubjectPictureTest, Yes_SelectNow_StoresThePictureUnderTheLastMappedNumber)
{
    GivenMappedA002();
    ChooseNewRecord(&Form7::Option7);
    ExpectPictureQuestion(Answer::Yes);
    ExpectPictureDialog(Chosen);

    DoubleClickBox(1);

    EXPECT_EQ(PictureOf(u"A002"), BluePicture);
    EXPECT_EQ(PictureOf(u"A001"), RedPicture);
    EXPECT_TRUE(BothShow(Qt::blue));
    EXPECT_EQ(P.Record.sCurFile, u"A001"_s);
    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    EXPECT_EQ(P.Tools.MapCursorMode, 1);
}

TEST_F(AskSubjectPictureTest, Yes_SelectNow_NothingMappedSoFar_StoresThePictureUnderNoNumber)
{
    ChooseNewRecord(&Form7::Option7);
    ExpectPictureQuestion(Answer::Yes);
    ExpectPictureDialog(Chosen);

    DoubleClickBox(1);

    EXPECT_EQ(PictureOf(u""), BluePicture);
    EXPECT_EQ(PictureOf(u"A001"), RedPicture);
    EXPECT_TRUE(BothShow(Qt::blue));
    ExpectNoRecordAdded();
}

TEST_F(AskSubjectPictureTest, Yes_SelectNow_Cancelled_LeavesPointerAndPictures)
{
    GivenMappedA002();
    const Tree before = Home.Snapshot();
    ChooseNewRecord(&Form7::Option7);
    ExpectPictureQuestion(Answer::Yes);
    ExpectPictureDialog({});

    DoubleClickBox(1);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    ExpectStillPending();
}

TEST_F(AskSubjectPictureTest, Yes_SelectNow_CopyRefused_LeavesPointerAndPictures)
{
    GivenMappedA002();
    Home.MakeReadOnly(PathOfPicture(u"A002"));
    ChooseNewRecord(&Form7::Option7);
    ExpectPictureQuestion(Answer::Yes);
    ExpectPictureDialog(Chosen);

    DoubleClickBox(1);

    EXPECT_EQ(PictureOf(u"A002"), Portrait);
    ExpectStillPending();
}

TEST_F(AskSubjectPictureTest, Yes_SelectNow_RecordOfAnotherBranch_StoresThePictureThere)
{
    GivenSibling();
    GivenMappedA002();
    GivenBox(2, {3000, 500}, u"B002");
    ChooseNewRecord(&Form7::Option7);
    ExpectPictureQuestion(Answer::Yes);
    ExpectPictureDialog(Chosen);

    DoubleClickBox(2);

    EXPECT_EQ(Home.ReadFile(u"LfgDat_B/A002Sub.jpg"), BluePicture);
    EXPECT_EQ(PictureOf(u"A002"), Portrait);
    EXPECT_EQ(P.Record.sCurFile, u"B002"_s);
    EXPECT_EQ(P.Branch.UsingAlternate, 1);
}

TEST_F(AskSubjectPictureTest, Yes_Later_ShowsThePictureOfTheLastMapping)
{
    GivenMappedA002();
    const Tree before = Home.Snapshot();
    ChooseNewRecord();
    ExpectPictureQuestion(Answer::Yes);

    DoubleClickBox(1);

    EXPECT_TRUE(BothShow(Qt::yellow));
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_EQ(P.Record.sCurFile, u"A001"_s);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
}

TEST_F(AskSubjectPictureTest, Yes_Later_ThePictureOfTheLastMappingHasGone_ShowsNone)
{
    GivenMappedA002();
    DoubleClickBox(0);
    ASSERT_FALSE(P.Form1->Image1.Picture.value().isNull());
    P.Files.Kill(Home.Path(PathOfPicture(u"A002")));
    ChooseNewRecord();
    ExpectPictureQuestion(Answer::Yes);

    DoubleClickBox(1);

    EXPECT_TRUE(P.Form1->Image1.Picture.value().isNull());
    EXPECT_TRUE(P.Form3->Image1.Picture.value().isNull());
    EXPECT_TRUE(IsMarkerOnBox(1));
}

TEST_F(AskSubjectPictureTest, Yes_Later_NothingMappedSoFar_ShowsNone)
{
    ChooseNewRecord();
    ExpectPictureQuestion(Answer::Yes);

    DoubleClickBox(1);

    EXPECT_TRUE(P.Form1->Image1.Picture.value().isNull());
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    ExpectNoRecordAdded();
}

} // namespace
} // namespace lineforge
