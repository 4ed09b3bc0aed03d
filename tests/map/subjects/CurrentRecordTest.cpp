#include "map/tools/ToolsTest.h"

#include <ostream>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::ValuesIn;
using testing::WithParamInterface;

// What is done on the map with a box, and which record is current meanwhile and afterwards. A001 and A002 have boxes,
// row 2 is empty, row 3 names a record that has gone; A002 is current at first.
class CurrentRecordTest : public ToolsTest
{
protected:
    CurrentRecordTest()
    {
        BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}, {u"Gender", u"Male"}})
            .Row({{u"File", u"A002"}, {u"Forename", u"Jane"}, {u"Gender", u"Female"}})
            .Row({{u"File", u"A003"}, {u"Forename", u"Kim"}})
            .Picture(u"A001", Qt::red)
            .Picture(u"A002", Qt::blue)
            .Boxes(u"1000,500,0,A001,John,2000,500,0,A002,Jane,3000,500,255,0,,4000,500,0,A009,Gone,");
        GivenMap();
        P.Form3.Load();
        Records(P.Form3).Seek(u"File", u"A002"_s);
    }

    void OpenTools() { P.Form1->mnuTreeTools.Click(); }
    void GoBehindTheLastRow() { Records(P.Form3).Seek(u"File", u"nobody"_s); }
    // Empty behind the last row.
    QString Current() { return Records(P.Form3).HasRow() ? Records(P.Form3).Text(u"File") : QString(); }
    QString ShownForename() { return P.Form1->Label9.Caption.value(); }
    void DoubleClick(Point at)
    {
        PressAndRelease(at);
        Picture.DblClick();
        Release(at);
    }
    void ExpectDeletionRefused()
    {
        Prompts.Expect(u"Tree Box deletion",
                       u"You must delete or transfer the Record for this subject \nbefore deleting the subject box.",
                       Buttons::Information);
    }
    void ExpectUnknown(QStringView file)
    {
        Prompts.Expect(u"Record not Present", QString(u"Record not Found: " + file), Buttons::Information);
    }

    static constexpr Point EmptyBox{3300, 600};
    static constexpr Point BoxOfNobody{4300, 600};
};

struct Taken {
    const char* Name;
    int Sel;
    Point Box;
};

void PrintTo(const Taken& taken, std::ostream* out)
{
    *out << taken.Name;
}

const Taken takenBoxes[] = {
    {"an empty box moved", 18, {3300, 600}},
    {"an empty box deleted", 28, {3300, 600}},
    {"a box whose record has gone moved", 18, {4300, 600}},
    {"a box whose record has gone deleted", 28, {4300, 600}},
    {"no box moved", 18, {7000, 7000}},
    {"no box deleted", 28, {7000, 7000}},
};

class BoxWithoutRecordTest : public CurrentRecordTest, public WithParamInterface<Taken>
{
};

TEST_P(BoxWithoutRecordTest, TheCurrentRecordStays)
{
    const auto& [name, sel, box] = GetParam();
    OpenTools();
    Choose(sel);

    Press(box);
    EXPECT_EQ(Current(), u"A002"_s);
    Move({box.X + 50, box.Y + 500});
    EXPECT_EQ(Current(), u"A002"_s);
    Release({box.X + 50, box.Y + 500});

    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(ShownForename(), u"Jane"_s);
}

INSTANTIATE_TEST_SUITE_P(Boxes, BoxWithoutRecordTest, ValuesIn(takenBoxes));

TEST_F(CurrentRecordTest, DeletionThatIsRefused_ChangesNothing)
{
    OpenTools();
    Choose(ToolSelection::BoxDelete);
    ExpectDeletionRefused();

    PressAndRelease({1300, 600});

    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(ShownForename(), u"Jane"_s);
}

TEST_F(CurrentRecordTest, BoxWithARecordMoved_ItsRecordIsCurrent)
{
    OpenTools();
    Choose(ToolSelection::BoxMove);

    Drag({{1300, 600}, {1300, 1600}});

    EXPECT_EQ(Current(), u"A001"_s);
}

TEST_F(CurrentRecordTest, BehindTheLastRow_AGestureGoesBackToThePositionSavedBefore)
{
    GoBehindTheLastRow();
    OpenTools();
    Choose(ToolSelection::BoxMove);

    Drag({EmptyBox, {3300, 1600}});

    EXPECT_EQ(Current(), u"A001"_s); // as of the map's reading
}

TEST_F(CurrentRecordTest, BehindTheLastRow_ToolsOpenedAndClosed_TheRecordOfTheOpeningBeforeIsCurrent)
{
    OpenTools();
    Leave(Answer::No);
    GoBehindTheLastRow();

    OpenTools();
    Leave(Answer::No);

    EXPECT_EQ(Current(), u"A002"_s);
}

TEST_F(CurrentRecordTest, UnknownNumberMapped_ThenToolsOpenedAndClosed_TheFirstRecordIsCurrent_WithItsMarker)
{
    Records(P.Form3).MoveFirst();
    OpenTools();
    Leave(Answer::No);
    P.Form1->mnuMapSubject.Click();
    P.Form7->Option2.Click();
    P.Form7->Text1.Text = u"A009"_s;
    P.Form7->Command1.Click();
    ExpectUnknown(u"A009");
    DoubleClick(EmptyBox);
    ASSERT_EQ(Current(), QString());

    OpenTools();
    Leave(Answer::No);

    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_EQ(ShownForename(), u"John"_s);
    const Shape& marker = P.Form1->Shape1;
    EXPECT_TRUE(marker.Visible);
    EXPECT_EQ(marker.Left, 1000 + 307 - 60);
    EXPECT_EQ(marker.Top, 500 + 108 - 60);
}

TEST_F(CurrentRecordTest, AnotherBranchEntered_ItsToolsKnowNoRecordOfTheOneBefore)
{
    OpenTools();
    Leave(Answer::No);
    BranchB.Row({{u"File", u"B001"}}).Row({{u"File", u"B002"}}).Row({{u"File", u"B003"}}).Boxes(u"1000,500,0,B003,,");
    ForgetMap(P.Map, P.Mouse, P.Tools);
    GivenOpen(BranchB);
    OpenMap();
    GoBehindTheLastRow();

    OpenTools();
    Leave(Answer::No);

    EXPECT_EQ(Current(), u"B001"_s);
}

// Whoever asks for a record that isn't there from behind the last row comes back to where he stood last.
TEST_F(CurrentRecordTest, BehindTheLastRow_DoubleClickOnTheBoxOfNobody_GoesBackToThePositionSavedBefore)
{
    GoBehindTheLastRow();
    Prompts.Expect(u"Database Searched", u"No File data found", Buttons::Information);

    DoubleClick(BoxOfNobody);

    EXPECT_EQ(Current(), u"A001"_s);
}

TEST_F(CurrentRecordTest, BehindTheLastRow_ViewOfALine_GoesBackToThePositionSavedBefore)
{
    GoBehindTheLastRow();
    P.Form1->Text1.Text = u"Nobody"_s;

    P.Form1->Command3.Click();

    EXPECT_EQ(Current(), u"A001"_s);
}

} // namespace
} // namespace lineforge
