#include "map/items/MapItems.h"
#include "map/subjects/MapInteractionTest.h"
#include "support/SqliteFile.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// A subject moves to another box: the first double click chooses it, the second its new place. A001 stands in row 0,
// B002 in row 1; row 2 is empty.
class TransferTest : public MapInteractionTest
{
protected:
    TransferTest()
    {
        BranchB.Row({{u"File", u"B001"}, {u"Forename", u"Ann"}, {u"Gender", u"Female"}})
            .Row({{u"File", u"B002"}, {u"Forename", u"Tom"}, {u"Gender", u"Male"}})
            .Picture(u"B002", Qt::green)
            .Build();
        GivenOpen(BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}, {u"Gender", u"Male"}})
                      .Row({{u"File", u"A002"}, {u"Forename", u"Jane"}, {u"Gender", u"Female"}})
                      .Picture(u"A001", Qt::red));
        GivenBox(0, {1000, 500}, u"A001");
        GivenBox(1, {2000, 500}, u"B002");
        GivenBox(2, {3000, 500}, u"0");
        P.Map.SBoxes = 2;
        P.Tools.MapCursorMode = 2;
    }

    void GivenCrossFor(int row)
    {
        DoubleClickBox(row);
        ASSERT_EQ(P.Screen.Pointer, MousePointer::Cross);
    }

    // The boxes of the map file as they should stand there now.
    QByteArray MapWith(const QString& boxes) { return MapFileBytes(u"LfgDat_A", boxes, u"", u""); }

    void ExpectCursorGone()
    {
        EXPECT_EQ(P.Tools.MapCursorMode, 0);
        EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    }

    testing::AssertionResult OnlyCaptionIs(Point corner, const QString& number, const QString& forename)
    {
        PictureByHand hand;
        ResetMapFont(*hand);
        PrintOnMap(*hand, {corner.X + 100, corner.Y}, number);
        hand->PrintAt({corner.X + 50, corner.Y + 100}, forename);
        return SameDrawing(Picture, *hand);
    }
};

TEST_F(TransferTest, FirstDoubleClick_ShowsTheSubject_AndSetsTheCross)
{
    DoubleClickBox(0);

    EXPECT_EQ(ShownNumber(), u"Ref  A001"_s);
    EXPECT_TRUE(IsMarkerOnBox(0));
    EXPECT_EQ(P.Tools.MapCursorMode, 2);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Cross);
    EXPECT_EQ(FileOf(0), u"A001"_s);
}

TEST_F(TransferTest, FirstDoubleClickOnASubjectWithoutGender_SetsNoCross)
{
    Records(P.Form3).Edit();
    Records(P.Form3).Put(u"Gender", FieldValue());
    Records(P.Form3).Update();

    DoubleClickBox(0);

    EXPECT_EQ(ShownNumber(), u"Ref  A001"_s);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
}

TEST_F(TransferTest, LocalSubject_MovesToTheOtherBox)
{
    GivenCrossFor(0);

    DoubleClickBox(2);

    EXPECT_EQ(FileOf(0), u"0"_s);
    EXPECT_EQ(FileOf(2), u"A001"_s);
    EXPECT_TRUE(OnlyCaptionIs({3000, 500}, u"A001"_s, u"John"_s));
    EXPECT_TRUE(IsMarkerOnBox(2));
    EXPECT_EQ(Current(), u"A001"_s);
    ExpectCursorGone();
}

TEST_F(TransferTest, LocalSubject_IsWrittenAtOnce)
{
    GivenCrossFor(0);

    DoubleClickBox(2);

    EXPECT_EQ(Home.ReadFile(BranchA.MapFile()), MapWith(u"1000,500,0,0,,2000,500,0,B002,,3000,500,0,A001,John,"_s));
}

TEST_F(TransferTest, LocalSubject_TheThirdDoubleClickIsOrdinary)
{
    GivenCrossFor(0);
    DoubleClickBox(2);
    const QByteArray written = Home.ReadFile(BranchA.MapFile());

    DoubleClickBox(2);

    EXPECT_EQ(FileOf(2), u"A001"_s);
    EXPECT_EQ(Home.ReadFile(BranchA.MapFile()), written);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
}

TEST_F(TransferTest, LocalSubjectWithoutGender_MovesAndLeavesTheMarker)
{
    GivenCrossFor(0);
    Records(P.Form3).Edit();
    Records(P.Form3).Put(u"Gender", u""_s);
    Records(P.Form3).Update();

    DoubleClickBox(2);

    EXPECT_EQ(FileOf(2), u"A001"_s);
    EXPECT_TRUE(IsMarkerOnBox(0));
}

TEST_F(TransferTest, WithoutTheCross_TheDoubleClickOnlyShows)
{
    GivenCrossFor(0);
    P.Screen.Pointer = MousePointer::Default;

    DoubleClickBox(0);

    EXPECT_EQ(FileOf(0), u"A001"_s);
    EXPECT_EQ(P.Tools.MapCursorMode, 2);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Cross);
}

TEST_F(TransferTest, WhileTheToolsAreOpen_NothingMoves)
{
    GivenCrossFor(0);
    P.Tools.ToolMode = 3;

    DoubleClickBox(2);

    EXPECT_EQ(FileOf(0), u"A001"_s);
    EXPECT_EQ(FileOf(2), u"0"_s);
}

TEST_F(TransferTest, NoRecords_IsTold_AndTheCrossGoes)
{
    GivenOpen(BranchBuilder(Home, u'C').InDirectory(u"LfgDat_C"));
    P.Screen.Pointer = MousePointer::Cross;
    Prompts.Expect(u"Database Empty", u"The Database has no records to access", Buttons::Information);

    DoubleClickBox(2);

    EXPECT_EQ(FileOf(2), u"0"_s);
    ExpectCursorGone();
}

TEST_F(TransferTest, SubjectOfASibling_ChoosingIt_SetsTheCross)
{
    DoubleClickBox(1);

    EXPECT_EQ(ShownNumber(), u"Ref  B002"_s);
    EXPECT_EQ(P.Branch.UsingAlternate, 1);
    EXPECT_EQ(P.Mouse.BoxIdx, 1);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Cross);
}

TEST_F(TransferTest, SubjectOfASibling_MovesToTheOtherBox)
{
    GivenCrossFor(1);

    Press(InsideOf(2));
    Release(InsideOf(2));
    Picture.DblClick();

    EXPECT_EQ(FileOf(1), u"0"_s);
    EXPECT_EQ(FileOf(2), u"B002"_s);
    EXPECT_EQ(P.Record.sAltName, u"Tom"_s);
    EXPECT_EQ(P.Mouse.BoxX, 3000 + 307 - 60);
    EXPECT_EQ(P.Mouse.BoxY, 500 + 108 - 60);
    EXPECT_TRUE(OnlyCaptionIs({3000, 500}, u"B002"_s, u"Tom"_s));
    ExpectCursorGone();
}

TEST_F(TransferTest, SubjectOfASibling_IsWrittenToTheMapsOwnBranch)
{
    const QByteArray siblingsMap = Home.ReadFile(BranchB.MapFile());
    GivenCrossFor(1);

    DoubleClickBox(2);

    EXPECT_EQ(Home.ReadFile(BranchA.MapFile()), MapWith(u"1000,500,0,A001,,2000,500,0,0,,3000,500,0,B002,Tom,"_s));
    EXPECT_EQ(Home.ReadFile(BranchB.MapFile()), siblingsMap);
}

TEST_F(TransferTest, SubjectOfASibling_TheProgramStaysOnItsBranch_AtTheSubject)
{
    GivenCrossFor(1);

    DoubleClickBox(2);

    EXPECT_EQ(P.Branch.UsingAlternate, 1);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_B"));
    EXPECT_EQ(P.Branch.WorkDirSaved, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(P.Branch.HomeDir, P.ExecutableDirectory);
    EXPECT_EQ(Current(), u"B002"_s);
    EXPECT_EQ(ShownNumber(), u"Ref  B002"_s);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"Tom"_s);
    EXPECT_TRUE(IsMarkerOnBox(2));
}

TEST_F(TransferTest, TheForename_GoesFromBoxToBoxWithTheNumber)
{
    P.Map.BoxArr[0][BoxColumn::Forename] = u"John"_s;
    P.Map.BoxArr[1][BoxColumn::Forename] = u"Tom"_s;
    P.Map.BoxArr[2][BoxColumn::Forename] = u"Gone"_s;
    GivenCrossFor(0);

    DoubleClickBox(2);

    EXPECT_EQ(Home.ReadFile(BranchA.MapFile()), MapWith(u"1000,500,0,0,,2000,500,0,B002,Tom,3000,500,0,A001,John,"_s));
}

TEST_F(TransferTest, TheForename_GoesWithTheNumberOfASibling_AsTheFileCanHoldIt)
{
    SqliteFile(Home.Path(BranchB.DatabaseFile())).Execute("UPDATE Tree99 SET Forename = 'T, [om' WHERE File = 'B002'");
    P.Map.BoxArr[1][BoxColumn::Forename] = u"Tom"_s;
    P.Map.BoxArr[2][BoxColumn::Forename] = u"Gone"_s;
    GivenCrossFor(1);

    DoubleClickBox(2);

    EXPECT_EQ(Home.ReadFile(BranchA.MapFile()), MapWith(u"1000,500,0,A001,,2000,500,0,0,,3000,500,0,B002,T om,"_s));
    EXPECT_EQ(P.Map.BoxArr[2][BoxColumn::Forename].Text(), u"T om"_s);
}

TEST_F(TransferTest, SubjectOfASibling_NoRecords_IsTold_AndTheProgramStaysThere)
{
    GivenCrossFor(1);
    P.Branch.WorkDir = BranchBuilder(Home, u'C').Build();
    OpenWorkDatabase(P);
    Prompts.Expect(u"Database Empty", u"The Database has no records to access", Buttons::Information);

    DoubleClickBox(2);

    EXPECT_EQ(FileOf(1), u"B002"_s);
    EXPECT_EQ(FileOf(2), u"0"_s);
    EXPECT_EQ(P.Branch.UsingAlternate, 1);
    ExpectCursorGone();
}

TEST_F(TransferTest, SubjectOfASibling_ThirdDoubleClick_ReturnsToTheOwnBranch)
{
    GivenCrossFor(1);
    DoubleClickBox(2);

    DoubleClickBox(0);

    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(ShownNumber(), u"Ref  A001"_s);
}

TEST_F(TransferTest, LocalSubject_BesideAllBoxes_NothingMoves_AndTheTransferStaysPending)
{
    GivenCrossFor(0);
    const Tree before = Home.Snapshot();

    DoubleClick(Nowhere);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_EQ(FileOf(0), u"A001"_s);
    EXPECT_EQ(FileOf(3), QString());
    EXPECT_EQ(P.Tools.MapCursorMode, 2);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Cross);

    DoubleClickBox(2);
    EXPECT_EQ(FileOf(0), u"0"_s);
    EXPECT_EQ(FileOf(2), u"A001"_s);
    ExpectCursorGone();
}

TEST_F(TransferTest, SubjectOfASibling_BesideAllBoxes_NothingMoves_AndTheTransferStaysPending)
{
    GivenCrossFor(1);
    const Tree before = Home.Snapshot();

    DoubleClick(Nowhere);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_EQ(FileOf(1), u"B002"_s);
    EXPECT_EQ(Current(), u"B002"_s);
    EXPECT_EQ(P.Branch.UsingAlternate, 1);
    EXPECT_EQ(P.Tools.MapCursorMode, 2);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Cross);

    DoubleClickBox(2);
    EXPECT_EQ(FileOf(1), u"0"_s);
    EXPECT_EQ(FileOf(2), u"B002"_s);
    ExpectCursorGone();
}

// It would be gone with the branch: its box isn't saved.
TEST_F(TransferTest, LocalSubject_ToABoxBehindTheSavedOnes_NothingMoves_AndTheTransferStaysPending)
{
    GivenBox(100, {5000, 500});
    P.Map.SBoxes = 100;
    GivenCrossFor(0);
    const Tree before = Home.Snapshot();

    DoubleClickBox(100);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_EQ(FileOf(0), u"A001"_s);
    EXPECT_EQ(FileOf(100), u"0"_s);
    EXPECT_EQ(P.Tools.MapCursorMode, 2);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Cross);
}

TEST_F(TransferTest, SubjectOfASibling_ToABoxBehindTheSavedOnes_NothingMoves_AndTheTransferStaysPending)
{
    GivenBox(100, {5000, 500});
    P.Map.SBoxes = 100;
    GivenCrossFor(1);
    const Tree before = Home.Snapshot();

    DoubleClickBox(100);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_EQ(FileOf(1), u"B002"_s);
    EXPECT_EQ(FileOf(100), u"0"_s);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Cross);
}

TEST_F(TransferTest, AllRowsInUse_BesideAllBoxes_IsNoError)
{
    GivenCrossFor(0);
    P.Map.SBoxes = LastMapRow;

    DoubleClick(Nowhere);

    EXPECT_EQ(FileOf(0), u"A001"_s);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Cross);
}

// The record bar can go on from the record that was chosen on the map.
TEST_F(TransferTest, AnotherRecordOfTheSibling_MovesWithoutItsBox_AndTheChosenOneKeepsHis)
{
    GivenCrossFor(1);
    Records(P.Form3).MoveFirst();

    DoubleClickBox(2);

    EXPECT_EQ(FileOf(1), u"B002"_s);
    EXPECT_EQ(FileOf(2), u"B001"_s);
}

TEST_F(TransferTest, AnotherRecordOfTheSibling_LeavesItsOwnBox)
{
    GivenBox(3, {4000, 500}, u"b001");
    P.Map.SBoxes = 3;
    GivenCrossFor(1);
    Records(P.Form3).MoveFirst();

    DoubleClickBox(2);

    EXPECT_EQ(FileOf(1), u"B002"_s);
    EXPECT_EQ(FileOf(2), u"B001"_s);
    EXPECT_EQ(FileOf(3), u"0"_s);
}

TEST_F(TransferTest, SubjectOfASiblingInTwoBoxes_LeavesTheOneThatWasChosen)
{
    GivenBox(3, {4000, 500}, u"B002");
    P.Map.SBoxes = 3;
    GivenCrossFor(3);

    DoubleClickBox(2);

    EXPECT_EQ(FileOf(1), u"B002"_s);
    EXPECT_EQ(FileOf(2), u"B002"_s);
    EXPECT_EQ(FileOf(3), u"0"_s);
}

TEST_F(TransferTest, CursorBehindTheLastRecord_NothingMoves_AndTheCrossGoes)
{
    for (const int chosen : {0, 1}) {
        P.Tools.MapCursorMode = MapCursor::Repositioning;
        GivenCrossFor(chosen);
        Records(P.Form3).MoveLast();
        Records(P.Form3).MoveNext();

        DoubleClickBox(2);

        EXPECT_EQ(FileOf(0), u"A001"_s);
        EXPECT_EQ(FileOf(1), u"B002"_s);
        EXPECT_EQ(FileOf(2), u"0"_s);
        ExpectCursorGone();
    }
}

} // namespace
} // namespace lineforge
