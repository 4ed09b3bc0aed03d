#include "map/tools/ToolsTest.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// A person who is in the branch's table but in no box of its map: A003, the father of A001.
class RecordWithoutBoxTest : public ToolsTest
{
protected:
    RecordWithoutBoxTest()
    {
        GivenOpen(
            BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}, {u"Gender", u"Male"}, {u"FatherRec", u"A003"}})
                .Row({{u"File", u"A002"}, {u"Forename", u"Jane"}, {u"Gender", u"Female"}})
                .Row({{u"File", u"A003"}, {u"Forename", u"Kim"}, {u"Surname", u"Smith"}, {u"Gender", u"Male"}})
                .Picture(u"A001", Qt::red)
                .Picture(u"A002", Qt::blue)
                .Picture(u"A003", Qt::green)
                .Boxes(u"1000,500,0,A001,John,2000,500,0,A002,Jane,3000,500,0,0,,"));
        OpenMap();
        P.Form3.Load();
        Press({1300, 600});
        Release({1300, 600});
        Picture.DblClick();
        Release({1300, 600});
        Before = Shown();
    }

    void SearchAndGoToTheMap(QStringView number)
    {
        P.Form1->Command1.Click();
        P.Form3->mnuSearch.Click();
        Prompts.ExpectInput(u"Search Database", u"Enter the Data Reference number", number);
        P.Form3->mnuSearchDataRef.Click();
        P.Form3->Command2.Click();
    }
    void ExpectKimShownWithoutAMarker()
    {
        EXPECT_EQ(P.Form1->Frame1.Caption.value(), u"Ref  A003"_s);
        EXPECT_EQ(P.Form1->Label9.Caption.value(), u"Kim"_s);
        EXPECT_EQ(P.Form1->Label10.Caption.value(), u"Smith"_s);
        EXPECT_FALSE(Marker.Visible);
        EXPECT_TRUE(SameImage(Shown(), Before));
        EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A003"_s);
    }

    Shape& Marker = P.Form1->Shape1;
    QImage Before;
};

TEST_F(RecordWithoutBoxTest, ReachedBySearch_IsShownBesideTheMap_WhichHasNoMarkerForIt)
{
    ASSERT_TRUE(Marker.Visible);

    SearchAndGoToTheMap(u"a003");

    ExpectKimShownWithoutAMarker();
}

TEST_F(RecordWithoutBoxTest, ReachedByTheLinkOfItsChild_IsShownBesideTheMap_WhichHasNoMarkerForIt)
{
    ASSERT_EQ(Records(P.Form3).Text(u"File"), u"A001"_s);

    SearchAndGoToTheMap(P.Form3->Text21.Text.value());

    ExpectKimShownWithoutAMarker();
}

TEST_F(RecordWithoutBoxTest, Renamed_NoBoxIsTouched)
{
    SearchAndGoToTheMap(u"A003");
    P.Form1->Command1.Click();
    P.Form3->Text3.Text = u"Kimberley"_s;

    P.Form3->Command2.Click();

    EXPECT_EQ(P.Map.sBoxesText, u"1000,500,0,A001,John,2000,500,0,A002,Jane,3000,500,0,0,,"_s);
    EXPECT_TRUE(SameImage(Shown(), Before));
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"Kimberley"_s);
}

TEST_F(RecordWithoutBoxTest, ToolsOpenedAndClosed_ItStaysCurrent)
{
    SearchAndGoToTheMap(u"A003");
    P.Form1->mnuTreeTools.Click();
    Choose(ToolSelection::BoxMove);
    Drag({{2300, 600}, {2300, 1600}});

    Leave(Answer::Yes);

    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A003"_s);
}

TEST_F(RecordWithoutBoxTest, GetsABoxByItsNumber_AndTheMarkerFindsIt)
{
    SearchAndGoToTheMap(u"A003");
    Home.WriteFile(u"Tree99.jpg", PictureBytes(Qt::yellow));
    P.Form1->mnuMapSubject.Click();
    P.Form7->Option2.Click();
    P.Form7->Text1.Text = u"A003"_s;
    P.Form7->Command1.Click();

    Press({3300, 600});
    Release({3300, 600});
    Picture.DblClick();
    Release({3300, 600});
    P.Form3->Command2.Click();

    EXPECT_EQ(Box(2), (RowTexts{u"3000"_s, u"500"_s, u"0"_s, u"A003"_s, u"Kim"_s}));
    EXPECT_TRUE(Marker.Visible);
    EXPECT_EQ(Marker.Left, 3000 + 307 - 60);
}

} // namespace
} // namespace lineforge
