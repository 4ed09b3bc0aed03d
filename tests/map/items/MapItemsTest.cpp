#include "map/items/MapItems.h"

#include "map/MapTest.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

constexpr Colour red = Rgb(255, 0, 0);
constexpr Colour blue = Rgb(0, 0, 255);

class MapItemsTest : public MapTest
{
};

TEST_F(MapItemsTest, Box_IsAnOutlineInItsColour)
{
    GivenBox(0, {1000, 500}, u"0", red);

    DrawBox(P.Map, Sheet(), 0);

    for (const Point side : {Point{1000, 600}, {1615, 600}, {1300, 500}, {1300, 717}, {1000, 500}, {1615, 717}})
        EXPECT_EQ(ColourAt(Picture, side), red) << side.X << ", " << side.Y;
    EXPECT_EQ(CountPixels(Picture, red, {990, 490, 640, 240}), CountPixels(Picture, red));
}

TEST_F(MapItemsTest, Box_InsideIsNotFilled)
{
    Picture.ForeColor = blue;
    Picture.Line({1100, 600}, {1500, 600});
    GivenBox(0, {1000, 500}, u"0", red);

    DrawBox(P.Map, Sheet(), 0);

    EXPECT_EQ(CountPixels(Picture, red, {1010, 510, 595, 195}), 0);
    EXPECT_EQ(ColourAt(Picture, {1300, 600}), blue);
}

TEST_F(MapItemsTest, Box_LeavesThePenAsItWas)
{
    Picture.ForeColor = blue;
    GivenBox(0, {1000, 500}, u"0", red);

    DrawBox(P.Map, Sheet(), 0);

    EXPECT_EQ(Picture.ForeColor, blue);
    EXPECT_EQ(Picture.DrawWidth, 1);
}

TEST_F(MapItemsTest, Box_WordForAPosition_IsTypeMismatch)
{
    P.Map.BoxArr[0][BoxColumn::X] = u"abc"_s;

    EXPECT_EQ(RefusalOf([&] { DrawBox(P.Map, Sheet(), 0); }), ErrorNumber::TypeMismatch);
    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(MapItemsTest, Line_RunsStraightFromStartToEndInItsColour)
{
    GivenLine(0, {1000, 500}, {2000, 1500}, red);

    DrawLine(P.Map, Sheet(), 0);

    for (const Point place : {Point{1000, 500}, {1500, 1000}, {2000, 1500}})
        EXPECT_EQ(ColourAt(Picture, place), red) << place.X << ", " << place.Y;
    EXPECT_EQ(ColourAt(Picture, {1500, 600}), White);
    EXPECT_EQ(CountPixels(Picture, red, {990, 490, 1025, 1025}), CountPixels(Picture, red));
}

TEST_F(MapItemsTest, Line_LeavesThePenAsItWas)
{
    Picture.ForeColor = blue;
    GivenLine(0, {1000, 500}, {2000, 1500}, red);

    DrawLine(P.Map, Sheet(), 0);

    EXPECT_EQ(Picture.ForeColor, blue);
}

TEST_F(MapItemsTest, Text_StandsAtItsPlaceInItsFontAndColour)
{
    GivenText(0, {1000, 500}, u"The Smiths", {u"Courier New"_s, 20}, red);

    DrawText(P, Sheet(), 0);

    PictureByHand expected;
    expected->Font = {u"Courier New"_s, 20};
    expected->ForeColor = red;
    expected->PrintAt({1000, 500}, u"The Smiths"_s);
    EXPECT_TRUE(SameDrawing(Picture, *expected));
    // A small letter of that size is taller than a whole line of the map's own font.
    EXPECT_GT(CountPixels(Picture, red, {1000, 500 + 160, 2400, 240}), 0);
    EXPECT_EQ(CountPixels(Picture, red, {0, 0, 8415, 495}), 0);
    EXPECT_EQ(CountPixels(Picture, red, {0, 0, 985, 12750}), 0);
}

TEST_F(MapItemsTest, Text_NotInArial_FontGoesBackToArial8NotBold)
{
    Picture.Font.Bold = true;
    GivenText(0, {1000, 500}, u"A", {u"Courier New"_s, 20});

    DrawText(P, Sheet(), 0);

    EXPECT_EQ(Picture.Font, TextFont{});
}

TEST_F(MapItemsTest, Text_InArialOfAnotherSize_KeepsItsFontInHand)
{
    GivenText(0, {1000, 500}, u"A", {u"ARIAL"_s, 14});

    DrawText(P, Sheet(), 0);

    EXPECT_EQ(Picture.Font, (TextFont{u"ARIAL"_s, 14}));
}

TEST_F(MapItemsTest, FreeRows_AreNeverPainted)
{
    GivenBox(0, {0, 500}, u"A001", red);
    GivenLine(0, {0, 500}, {2000, 1500}, red);
    GivenText(0, {0, 500}, u"A", {}, red);

    DrawBox(P.Map, Sheet(), 0);
    DrawLine(P.Map, Sheet(), 0);
    DrawText(P, Sheet(), 0);
    // Rows in which nothing has ever been stored.
    DrawBox(P.Map, Sheet(), 200);
    DrawLine(P.Map, Sheet(), 200);
    DrawText(P, Sheet(), 200);

    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(MapItemsTest, FreeRows_AreNeverPrinted)
{
    GivenPrinting();
    GivenBox(0, {0, 500}, u"A001", red);
    GivenLine(0, {0, 500}, {2000, 1500}, red);
    GivenText(0, {0, 500}, u"A", {}, red);

    DrawBox(P.Map, Sheet(), 0);
    DrawLine(P.Map, Sheet(), 0);
    DrawText(P, Sheet(), 0);

    EXPECT_EQ(Page.Calls, QStringList());
}

TEST_F(MapItemsTest, MapFont_IsArial8NotBold)
{
    Picture.Font = {u"Courier New"_s, 20, true};

    ResetMapFont(Picture);

    EXPECT_EQ(Picture.Font, TextFont{});
}

TEST_F(MapItemsTest, BoxOnPaper_IsShiftedAndStretched_WithABroadPen)
{
    GivenPrinting();
    GivenBox(0, {1000, 500}, u"0", red);

    DrawBox(P.Map, Sheet(), 0);

    EXPECT_EQ(Page.Take(), QStringList(u"Box 2200,900 615x390 pen 2 colour 255 mode 13"_s));
    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(MapItemsTest, LineOnPaper_IsShiftedAndStretchedAtBothEnds_WithABroadPen)
{
    GivenPrinting();
    GivenLine(0, {1000, 500}, {2000, 1500}, red);

    DrawLine(P.Map, Sheet(), 0);

    EXPECT_EQ(Page.Take(), QStringList(u"Line 2200,900 3200,2700 pen 2 colour 255 mode 13"_s));
    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(MapItemsTest, ArialTextOnPaper_IsPrintedInCourier7NotBold)
{
    GivenPrinting();
    Page.Font.Bold = true;
    GivenText(0, {1000, 500}, u"The Smiths", {u"arial"_s, 14}, red);

    DrawText(P, Sheet(), 0);

    EXPECT_EQ(Page.Take(), QStringList(u"Print 2200,900 \"The Smiths\" Courier 7 colour 255"_s));
    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(MapItemsTest, OtherTextOnPaper_KeepsItsFont)
{
    GivenPrinting();
    GivenText(0, {1000, 500}, u"The Smiths", {u"Times New Roman"_s, 14}, red);

    DrawText(P, Sheet(), 0);

    EXPECT_EQ(Page.Take(), QStringList(u"Print 2200,900 \"The Smiths\" Times New Roman 14 colour 255"_s));
}

TEST_F(MapItemsTest, AfterATextOnPaper_PictureFontThatIsntArial_BecomesCourier7)
{
    GivenPrinting();
    GivenText(0, {1000, 500}, u"A", {u"Times New Roman"_s, 14});
    DrawText(P, Sheet(), 0);
    EXPECT_EQ(Picture.Font, TextFont{});

    Picture.Font = {u"Times New Roman"_s, 14};
    DrawText(P, Sheet(), 0);
    EXPECT_EQ(Picture.Font, (TextFont{u"Courier"_s, 7}));
}

} // namespace
} // namespace lineforge
