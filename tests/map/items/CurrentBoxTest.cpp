#include "map/items/CurrentBox.h"

#include "map/MapTest.h"

#include <gmock/gmock.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::Values;
using testing::WithParamInterface;

constexpr Colour lightBlue = Rgb(0, 0, 255);
constexpr Colour lightRed = Rgb(255, 0, 0);
constexpr Colour lightMagenta = Rgb(255, 0, 255);

class CurrentBoxTest : public MapTest
{
protected:
    void GivenRecord(QStringView gender = u"M") { GivenOpen(BranchA.Row({{u"File", u"A001"}, {u"Gender", gender}})); }

    void GivenPosition(Point corner)
    {
        P.Mouse.BoxX = corner.X;
        P.Mouse.BoxY = corner.Y;
    }

    Point Position() const { return {P.Mouse.BoxX, P.Mouse.BoxY}; }

    Shape& Marker = P.Form1->Shape1;
};

TEST_F(CurrentBoxTest, Find_FirstBoxOfTheRecord_GivesItsPositionAndRow)
{
    GivenRecord();
    GivenBox(3, {1000, 500}, u"A002");
    GivenBox(4, {2000, 700}, u"a001");
    GivenBox(5, {3000, 900}, u"A001");

    FindBoxOfRecord(P);

    EXPECT_EQ(Position(), (Point{2000, 700}));
    EXPECT_EQ(P.Scratch.IdxA, 4);
}

TEST_F(CurrentBoxTest, Find_LastFiledBox_IsFound)
{
    GivenRecord();
    GivenBox(99, {2000, 700}, u"A001");

    FindBoxOfRecord(P);

    EXPECT_EQ(Position(), (Point{2000, 700}));
    EXPECT_EQ(P.Scratch.IdxA, 99);
}

TEST_F(CurrentBoxTest, Find_NoBox_LeavesPositionAndRow100)
{
    GivenRecord();
    GivenBox(0, {2000, 700}, u"A0012");
    GivenBox(100, {2000, 700}, u"A001");
    GivenPosition({11, 12});

    FindBoxOfRecord(P);

    EXPECT_EQ(Position(), (Point{11, 12}));
    EXPECT_EQ(P.Scratch.IdxA, 100);
}

TEST_F(CurrentBoxTest, Find_RecordWithoutANumber_MatchesNoEmptyBox)
{
    GivenOpen(BranchA.Row({{u"Forename", u"John"}}));
    GivenBox(0, {2000, 700}, u"");
    GivenPosition({11, 12});

    FindBoxOfRecord(P);

    EXPECT_EQ(Position(), (Point{11, 12}));
    EXPECT_EQ(P.Scratch.IdxA, 100);
}

TEST_F(CurrentBoxTest, Find_RecordOfSiblingShown_DoesNothing)
{
    GivenRecord();
    GivenBox(4, {2000, 700}, u"A001");
    GivenPosition({11, 12});
    P.Scratch.IdxA = 77;
    P.Branch.UsingAlternate = 1;

    FindBoxOfRecord(P);

    EXPECT_EQ(Position(), (Point{11, 12}));
    EXPECT_EQ(P.Scratch.IdxA, 77);
}

TEST_F(CurrentBoxTest, Take_PositionOutsideSixteenBits_IsOverflow)
{
    GivenBox(0, {32767, -32768});
    TakeBoxPosition(P.Mouse, P.Map, 0);
    EXPECT_EQ(Position(), (Point{32767, -32768}));

    GivenBox(0, {32768, 0});
    EXPECT_EQ(RefusalOf([&] { TakeBoxPosition(P.Mouse, P.Map, 0); }), ErrorNumber::Overflow);
}

TEST_F(CurrentBoxTest, BoxWhoseMarkerWouldStandOutsideSixteenBits_IsNoBoxOfTheRecord)
{
    GivenRecord();
    for (const Point corner : {Point{32521, 500}, Point{500, 32720}}) {
        GivenBox(0, corner, u"A001");

        MarkCurrentBox(P);

        EXPECT_FALSE(Marker.Visible);
    }
    GivenBox(0, {32520, 32719}, u"A001");
    MarkCurrentBox(P);
    EXPECT_TRUE(Marker.Visible);
    EXPECT_EQ(Marker.Left, 32767);
    EXPECT_EQ(Marker.Top, 32767);
}

TEST_F(CurrentBoxTest, BoxAtNoPossiblePlace_IsNoBoxOfTheRecord)
{
    GivenRecord();
    for (const QString& place : {u"abc"_s, u""_s, u"99999"_s}) {
        SCOPED_TRACE(place.toStdString());
        for (const int column : {BoxColumn::X, BoxColumn::Y}) {
            GivenBox(0, {1000, 500}, u"A001");
            P.Map.BoxArr[0][column] = place;
            GivenPosition({11, 12});
            Marker.Visible = true;

            FindBoxOfRecord(P);
            EXPECT_EQ(P.Scratch.IdxA, 100);
            MarkCurrentBox(P);

            EXPECT_EQ(Position(), (Point{11, 12}));
            EXPECT_FALSE(Marker.Visible);
        }
    }
}

TEST_F(CurrentBoxTest, FreeRow_IsNoBoxOfTheRecord)
{
    GivenRecord();
    GivenBox(0, {0, 500}, u"A001");
    GivenPosition({11, 12});
    Marker.Visible = true;

    FindBoxOfRecord(P);
    EXPECT_EQ(P.Scratch.IdxA, 100);
    MarkCurrentBox(P);

    EXPECT_EQ(Position(), (Point{11, 12}));
    EXPECT_FALSE(Marker.Visible);
}

TEST_F(CurrentBoxTest, BoxAtTheVeryTop_IsOne)
{
    GivenRecord();
    GivenBox(0, {1000, 0}, u"A001");

    FindBoxOfRecord(P);

    EXPECT_EQ(Position(), (Point{1000, 0}));
}

TEST_F(CurrentBoxTest, BoxAtNoPossiblePlace_AnotherBoxOfTheRecordIsFound)
{
    GivenRecord();
    GivenBox(0, {1000, 500}, u"A001");
    P.Map.BoxArr[0][BoxColumn::X] = u"abc"_s;
    GivenBox(1, {2000, 700}, u"A001");

    MarkCurrentBox(P);

    EXPECT_TRUE(Marker.Visible);
    EXPECT_EQ(Marker.Left, 2000 + 307 - 60);
}

TEST_F(CurrentBoxTest, Marker_StandsInTheMiddleOfTheBox_AndShows)
{
    GivenRecord();
    GivenBox(4, {2000, 700}, u"a001");

    MarkCurrentBox(P);

    EXPECT_TRUE(Marker.Visible);
    EXPECT_EQ(Marker.Left, 2000 + 307 - 60);
    EXPECT_EQ(Marker.Top, 700 + 108 - 60);
    EXPECT_EQ(Marker.Width, 135);
    EXPECT_EQ(Marker.Height, 255);
}

TEST_F(CurrentBoxTest, Marker_LiesAboveTheMap_NotInIt)
{
    GivenRecord();
    GivenBox(4, {2000, 700}, u"A001");

    MarkCurrentBox(P);

    EXPECT_TRUE(IsBlank(Picture));
    EXPECT_THAT(Picture.Controls(), testing::Contains(&Marker));
}

TEST_F(CurrentBoxTest, Marker_LeavesItsOwnPlaceAsThePosition)
{
    GivenRecord();
    GivenBox(4, {2000, 700}, u"A001");

    MarkCurrentBox(P);

    EXPECT_EQ(Position(), (Point{2247, 748}));
}

TEST_F(CurrentBoxTest, Marker_RecordWithoutBox_IsHidden_AndThePositionStays)
{
    GivenRecord();
    GivenBox(100, {2000, 700}, u"A001");
    GivenPosition({11, 12});
    Marker.Visible = true;

    MarkCurrentBox(P);

    EXPECT_FALSE(Marker.Visible);
    EXPECT_EQ(Position(), (Point{11, 12}));
}

TEST_F(CurrentBoxTest, Marker_AsksForANewGalleryPage_BoxOrNot)
{
    GivenRecord();
    P.Gallery.FirstShow = 0;
    MarkCurrentBox(P);
    EXPECT_EQ(P.Gallery.FirstShow, 1);

    P.Gallery.FirstShow = 0;
    GivenBox(0, {2000, 700}, u"A001");
    MarkCurrentBox(P);
    EXPECT_EQ(P.Gallery.FirstShow, 1);
}

TEST_F(CurrentBoxTest, Marker_RecordInTwoBoxes_StandsInTheFirst)
{
    GivenRecord();
    GivenBox(5, {3000, 900}, u"A001");
    GivenBox(4, {2000, 700}, u"A001");

    MarkCurrentBox(P);

    EXPECT_EQ(Marker.Left, 2247);
}

TEST_F(CurrentBoxTest, Marker_NullGender_IsMagenta)
{
    GivenOpen(BranchA.Row({{u"File", u"A001"}}));
    GivenBox(0, {2000, 700}, u"A001");

    MarkCurrentBox(P);

    EXPECT_EQ(Marker.BorderColor, lightMagenta);
}

struct GenderColour {
    QString Gender;
    Colour Expected;
};

void PrintTo(const GenderColour& colour, std::ostream* out)
{
    *out << '"' << qUtf8Printable(colour.Gender) << '"';
}

class MarkerColourTest : public CurrentBoxTest, public WithParamInterface<GenderColour>
{
};

TEST_P(MarkerColourTest, FirstLetterOfTheGender_Decides)
{
    GivenRecord(GetParam().Gender);
    GivenBox(0, {2000, 700}, u"A001");

    MarkCurrentBox(P);

    EXPECT_EQ(Marker.BorderColor, GetParam().Expected);
}

INSTANTIATE_TEST_SUITE_P(Genders, MarkerColourTest,
                         Values(GenderColour{u"F"_s, lightRed}, GenderColour{u"female"_s, lightRed},
                                GenderColour{u"M"_s, lightBlue}, GenderColour{u"male"_s, lightBlue},
                                GenderColour{u""_s, lightMagenta}, GenderColour{u" M"_s, lightMagenta},
                                GenderColour{u"Unknown"_s, lightMagenta}));

} // namespace
} // namespace lineforge
