#include "map/items/MapItems.h"
#include "map/tools/ToolsTest.h"
#include "support/SqliteFile.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// The forename in a box: the same on the picture, in the array, and in the file. The picture is always what it would be
// if it were painted afresh.
class BoxNameTest : public ToolsTest
{
protected:
    BoxNameTest() { Home.WriteFile(u"Tree99.jpg", PictureBytes(Qt::yellow)); }

    // A001 of that name in the box of row 0, which the file gives that other name; row 1 is empty.
    void GivenPerson(QStringView forename, QStringView filed)
    {
        GivenOpen(BranchA.Row({{u"File", u"A001"}, {u"Forename", forename}, {u"Gender", u"Male"}})
                      .Row({{u"File", u"A002"}, {u"Forename", u"Kim"}, {u"Gender", u"Female"}})
                      .Picture(u"A001", Qt::red)
                      .Picture(u"A002", Qt::blue)
                      .Boxes(QString(u"1000,500,0,A001," + filed + u",3000,500,0,0,,")));
        OpenMap();
    }
    // In the record form, and back to the map.
    void Rename(QStringView forename)
    {
        P.Form1->Command1.Click();
        P.Form3->Text3.Text = forename.toString();
        P.Form3->Command2.Click();
    }
    void ReopenMap()
    {
        SaveBoxes(P.Map, P.Branch, P.Files);
        Picture.Cls();
        ForgetMap(P.Map, P.Mouse, P.Tools);
        OpenMap();
    }
    void DoubleClick(Point at)
    {
        PressAndRelease(at);
        Picture.DblClick();
        Release(at);
    }
    QString Name(int row) const { return Box(row)[BoxColumn::Forename]; }

    // What has been printed into the boxes by hand, and wiped from them again: a wiped name takes something of the
    // number with it, and of the box.
    void HandPrints(int row, QStringView number, QStringView forename, Colour pen = Black)
    {
        const int x = row == 0 ? 1000 : 3000;
        Hand->ForeColor = pen;
        Hand->PrintAt({x + 100, 500}, number.toString());
        Hand->PrintAt({x + 50, 600}, forename.toString());
        Hand->ForeColor = Black;
    }
    void HandWipes(int row, QStringView number, QStringView forename) { HandPrints(row, number, forename, White); }

    PictureByHand Hand;

private:
    void SetUp() override
    {
        for (const int x : {1000, 3000})
            Hand->Box({x, 500, 615, 217});
    }
};

TEST_F(BoxNameTest, NameWithWhatBreaksTheFile_IsPrintedAsTheFileHasIt)
{
    GivenPerson(u"Jo, An", u"Jo An");

    HandPrints(0, u"A001", u"Jo An");
    EXPECT_TRUE(SameDrawing(Picture, *Hand));
}

TEST_F(BoxNameTest, NameWithWhatBreaksTheFile_LeavesNoTrace_WhenItIsChangedAfterAReopening)
{
    GivenPerson(u"Jo, An", u"Jo An");

    Rename(u"Mary");

    HandPrints(0, u"A001", u"Jo An");
    HandWipes(0, u"", u"Jo An");
    HandPrints(0, u"", u"Mary");
    EXPECT_TRUE(SameDrawing(Picture, *Hand));
    EXPECT_EQ(Name(0), u"Mary"_s);
}

TEST_F(BoxNameTest, NameTypedWithWhatBreaksTheFile_IsTheSameOnThePictureInTheArrayAndInTheFile)
{
    GivenPerson(u"John", u"John");

    Rename(u"Jo[,\r\n An");

    EXPECT_EQ(Name(0), u"Jo An"_s);
    EXPECT_EQ(P.Map.sBoxesText, u"1000,500,0,A001,Jo An,3000,500,0,0,,"_s);
    ReopenMap();
    HandPrints(0, u"A001", u"Jo An");
    EXPECT_TRUE(SameDrawing(Picture, *Hand));
    Rename(u"Mary");
    HandWipes(0, u"", u"Jo An");
    HandPrints(0, u"", u"Mary");
    EXPECT_TRUE(SameDrawing(Picture, *Hand));
}

TEST_F(BoxNameTest, UnmappedRecord_ItsNameGoesIntoTheArrayAsItIsPrinted)
{
    GivenPerson(u"John", u"John");
    SqliteFile(Home.Path(BranchA.DatabaseFile())).Execute("UPDATE Tree99 SET Forename = 'K, im' WHERE File = 'A002'");
    P.Form1->mnuMapSubject.Click();
    P.Form7->Option2.Click();
    P.Form7->Text1.Text = u"A002"_s;
    P.Form7->Command1.Click();

    DoubleClick({3300, 600});
    P.Form3->Command2.Click();

    EXPECT_EQ(Name(1), u"K im"_s);
    EXPECT_TRUE(IsAsPaintedAfresh());
}

TEST_F(BoxNameTest, FileWithoutTheName_WhatTheRecordShowsIsWiped)
{
    GivenPerson(u"John", u"");

    Rename(u"Mary");

    HandPrints(0, u"A001", u"John");
    HandWipes(0, u"", u"John");
    HandPrints(0, u"", u"Mary");
    EXPECT_TRUE(SameDrawing(Picture, *Hand));
}

TEST_F(BoxNameTest, FileWithAnOlderName_WhatTheRecordShowsIsWiped)
{
    GivenPerson(u"John", u"Jack");

    Rename(u"Mary");

    HandPrints(0, u"A001", u"John");
    HandWipes(0, u"", u"John");
    HandPrints(0, u"", u"Mary");
    EXPECT_TRUE(SameDrawing(Picture, *Hand));
}

TEST_F(BoxNameTest, SubjectMovedToAnotherBox_ItsNameThereIsWipedByTheNext)
{
    GivenPerson(u"John", u"John");
    P.Tools.MapCursorMode = 2;
    DoubleClick({1300, 600});
    DoubleClick({3300, 600});
    ASSERT_EQ(Box(1)[BoxColumn::File], u"A001"_s);

    Rename(u"Mary");

    HandPrints(0, u"A001", u"John");
    HandWipes(0, u"A001", u"John");
    HandPrints(1, u"A001", u"John");
    HandWipes(1, u"", u"John");
    HandPrints(1, u"", u"Mary");
    EXPECT_TRUE(SameDrawing(Picture, *Hand));
}

TEST_F(BoxNameTest, SubjectMovedToABoxThatIsTaken_WhatStoodThereIsWiped)
{
    GivenPerson(u"John", u"John");
    P.Map.BoxArr[1][BoxColumn::File] = u"A009"_s;
    Afresh();
    P.Tools.MapCursorMode = 2;
    DoubleClick({1300, 600});

    DoubleClick({3300, 600});

    HandPrints(0, u"A001", u"John");
    HandWipes(0, u"A001", u"John");
    HandPrints(1, u"A009", u"");
    HandWipes(1, u"A009", u"");
    HandPrints(1, u"A001", u"John");
    EXPECT_TRUE(SameDrawing(Picture, *Hand));
}

TEST_F(BoxNameTest, BoxWhoseRecordHasGone_MappedAnew_ShowsTheNewNumberAlone)
{
    GivenPerson(u"John", u"John");
    P.Map.BoxArr[1][BoxColumn::File] = u"A009"_s;
    Afresh();
    P.Form1->mnuMapSubject.Click();
    P.Form7->Command1.Click();

    DoubleClick({3300, 600});
    P.Form3->Command2.Click();

    ASSERT_EQ(Box(1)[BoxColumn::File], u"A003"_s);
    EXPECT_TRUE(IsAsPaintedAfresh());
}

TEST_F(BoxNameTest, SubjectOfAnotherBranch_Renamed_LeavesNoTrace)
{
    BranchB.Row({{u"File", u"B001"}, {u"Forename", u"Tom"}, {u"Gender", u"Male"}}).Picture(u"B001", Qt::green).Build();
    GivenPerson(u"John", u"John");
    P.Map.BoxArr[1][BoxColumn::File] = u"B001"_s;
    Afresh();
    DoubleClick({3300, 600});
    ASSERT_EQ(P.Branch.UsingAlternate, 1);

    Rename(u"Theo");

    HandPrints(0, u"A001", u"John");
    HandPrints(1, u"B001", u"Tom");
    HandWipes(1, u"", u"Tom");
    HandPrints(1, u"", u"Theo");
    EXPECT_TRUE(SameDrawing(Picture, *Hand));
    EXPECT_EQ(Name(1), u"Theo"_s);
}

TEST_F(BoxNameTest, NewSubjectOfTheNameThatWasShownLast_StandsInTheArrayToo)
{
    GivenPerson(u"John", u"John");
    Rename(u"John");
    P.Form1->mnuMapSubject.Click();
    P.Form7->Command1.Click();
    DoubleClick({3300, 600});
    P.Form3->Text3.Text = u"John"_s;

    P.Form3->Command2.Click();

    EXPECT_EQ(Name(1), u"John"_s);
    EXPECT_TRUE(IsAsPaintedAfresh());
}

TEST_F(BoxNameTest, RecordChangedBehindTheMap_BoxMoved_LeavesNoTrace)
{
    GivenPerson(u"John", u"John");
    Records(P.Form3).MoveFirst();
    Records(P.Form3).Edit();
    Records(P.Form3).Put(u"Forename", u"Maximilian"_s);
    Records(P.Form3).Update();
    P.Form1->mnuTreeTools.Click();
    Choose(ToolSelection::BoxMove);

    Drag({{1300, 600}, {1300, 1600}});

    EXPECT_TRUE(IsAsPaintedAfresh());
}

TEST_F(BoxNameTest, NumberInSmallLetters_IsWipedAsItWasPrinted)
{
    GivenPerson(u"John", u"John");
    P.Map.BoxArr[0][BoxColumn::File] = u"a001"_s;
    Afresh();
    P.Form1->mnuTreeTools.Click();
    Choose(ToolSelection::BoxMove);

    Drag({{1300, 600}, {1300, 1600}});

    EXPECT_TRUE(IsAsPaintedAfresh());
}

TEST_F(BoxNameTest, BoxWithoutTheFiledName_CarriedByAZone_LeavesNoTraceOnItsWay)
{
    GivenPerson(u"John", u"");
    P.Form1->mnuTreeTools.Click();
    Choose(ToolSelection::ZoneDraw);
    Drag({{500, 300}, {2500, 2500}});
    Press({1000, 1000});

    Move({1000, 4000});

    EXPECT_EQ(CountPixels(Picture, Black, {900, 400, 900, 500}), 0);
}

TEST_F(BoxNameTest, MappingEndedWithoutABox_NothingIsPrintedInAnybodyElses)
{
    GivenPerson(u"John", u"John");
    Records(P.Form3).MoveLast();
    P.Form1->mnuMapSubject.Click();
    P.Form7->Command1.Click();
    const QImage before = Shown();

    P.Form3->Command2.Click();

    EXPECT_EQ(P.Tools.MapCursorMode, 0);
    EXPECT_TRUE(SameImage(Shown(), before));
    EXPECT_EQ(Name(0), u"John"_s);
}

TEST_F(BoxNameTest, NewSubjectOfAnotherBranch_IsPrintedInItsBox)
{
    BranchB.Row({{u"File", u"B001"}, {u"Forename", u"Tom"}, {u"Gender", u"Male"}}).Picture(u"B001", Qt::green).Build();
    GivenPerson(u"John", u"John");
    P.Map.BoxArr[1][BoxColumn::File] = u"B009"_s;
    Afresh();
    P.Form1->mnuMapSubject.Click();
    P.Form7->Command1.Click();
    DoubleClick({3300, 600});
    ASSERT_EQ(P.Branch.UsingAlternate, 1);
    P.Form3->Text3.Text = u"Eve"_s;

    P.Form3->Command2.Click();

    HandPrints(0, u"A001", u"John");
    HandPrints(1, u"B009", u"");
    HandWipes(1, u"B009", u"");
    HandPrints(1, u"", u"Eve");
    HandPrints(1, u"B002", u"Eve");
    EXPECT_EQ(Box(1)[BoxColumn::File], u"B002"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Hand));
}

TEST_F(BoxNameTest, MapCopiedAndPasted_TheOldNameIsStillWiped)
{
    GivenPerson(u"John", u"John");
    P.Form1->mnuCopy.Click();
    P.Form1->mnuPaste.Click();

    Rename(u"Mary");

    HandPrints(0, u"A001", u"John");
    HandWipes(0, u"", u"John");
    HandPrints(0, u"", u"Mary");
    EXPECT_TRUE(SameDrawing(Picture, *Hand));
}

TEST_F(BoxNameTest, MapPastedAsItWasBefore_TheNameThatItShowsIsWiped)
{
    GivenPerson(u"John", u"John");
    P.Form1->mnuCopy.Click();
    Rename(u"Mary");
    P.Form1->mnuPaste.Click();

    Rename(u"Eve");

    HandPrints(0, u"A001", u"John");
    HandWipes(0, u"", u"John");
    HandPrints(0, u"", u"Eve");
    EXPECT_TRUE(SameDrawing(Picture, *Hand));
}

// What is drawn isn't saved by it: the tools still ask.
TEST_F(BoxNameTest, NameChangedWithTheToolsOpen_NoBringsTheBoxesBack_WithTheNewName)
{
    GivenPerson(u"John", u"John");
    P.Form1->Command1.Click();
    P.Form1->mnuTreeTools.Click();
    Choose(ToolSelection::BoxMove);
    Drag({{3300, 600}, {3400, 1600}});
    Choose(ToolSelection::BoxDelete);
    PressAndRelease({3400, 1600});
    P.Form3->Text3.Text = u"Ma,ry"_s;
    P.Form3->Command2.Click();

    Leave(Answer::No);

    EXPECT_EQ(Box(0), (RowTexts{u"1000"_s, u"500"_s, u"0"_s, u"A001"_s, u"Mary"_s}));
    EXPECT_EQ(Box(1), (RowTexts{u"3000"_s, u"500"_s, u"0"_s, u"0"_s, u""_s}));
}

} // namespace
} // namespace lineforge
