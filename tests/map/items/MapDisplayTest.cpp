#include "map/items/MapDisplay.h"

#include "map/MapTest.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::Values;
using testing::WithParamInterface;

constexpr Colour red = Rgb(255, 0, 0);
constexpr Colour green = Rgb(0, 255, 0);
constexpr Colour blue = Rgb(0, 0, 255);

class RedrawMapTest : public MapTest
{
protected:
    RedrawMapTest()
    {
        P.Map.SBoxes = -1;
        P.Map.SLines = -1;
        P.Map.STexts = -1;
    }

    void GivenTwoRecords()
    {
        GivenOpen(BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}})
                      .Row({{u"File", u"A002"}, {u"Forename", u"Anne"}}));
    }

    PictureByHand Expected;
};

TEST_F(RedrawMapTest, EverythingUpToTheCounts_IsPainted)
{
    GivenTwoRecords();
    GivenBox(0, {1000, 500}, u"0", red);
    GivenBox(1, {2000, 500}, u"0", red);
    GivenBox(2, {3000, 500}, u"0", red);
    GivenLine(0, {1000, 2000}, {2000, 2000}, green);
    GivenLine(1, {1000, 3000}, {2000, 3000}, green);
    GivenText(0, {1000, 4000}, u"First", {}, blue);
    GivenText(1, {1000, 5000}, u"Second", {}, blue);
    P.Map.SBoxes = 1;
    P.Map.SLines = 0;
    P.Map.STexts = 0;

    RedrawMap(P, Sheet());

    Expected->ForeColor = red;
    Expected->Box({1000, 500, 615, 217});
    Expected->Box({2000, 500, 615, 217});
    Expected->ForeColor = green;
    Expected->Line({1000, 2000}, {2000, 2000});
    Expected->ForeColor = blue;
    Expected->PrintAt({1000, 4000}, u"First"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
}

TEST_F(RedrawMapTest, LinesLieAboveTexts_AndTextsAboveBoxes)
{
    GivenTwoRecords();
    GivenBox(0, {1000, 500}, u"0", red);
    GivenText(0, {1050, 400}, u"||||||||||", {}, blue);
    GivenLine(0, {1000, 500}, {1300, 500}, green);
    P.Map.SBoxes = P.Map.SLines = P.Map.STexts = 0;

    RedrawMap(P, Sheet());

    Expected->ForeColor = red;
    Expected->Box({1000, 500, 615, 217});
    Expected->ForeColor = blue;
    Expected->PrintAt({1050, 400}, u"||||||||||"_s);
    Expected->ForeColor = green;
    Expected->Line({1000, 500}, {1300, 500});
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
    EXPECT_EQ(ColourAt(Picture, {1200, 500}), green);
}

TEST_F(RedrawMapTest, CaptionsLieAboveEverything)
{
    GivenTwoRecords();
    GivenBox(0, {1000, 500}, u"A001", red);
    GivenLine(0, {1000, 650}, {1600, 650}, green);
    P.Map.SBoxes = P.Map.SLines = 0;

    RedrawMap(P, Sheet());

    Expected->ForeColor = red;
    Expected->Box({1000, 500, 615, 217});
    Expected->ForeColor = green;
    Expected->Line({1000, 650}, {1600, 650});
    Expected->ForeColor = Black;
    Expected->PrintAt({1100, 500}, u"A001"_s);
    Expected->PrintAt({1050, 600}, u"John"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
}

TEST_F(RedrawMapTest, BoxesOfSiblings_GetTheirCaptions)
{
    GivenTwoRecords();
    BranchB.Row({{u"File", u"B001"}, {u"Forename", u"Bob"}}).Build();
    GivenBox(0, {1000, 500}, u"B001", red);
    P.Map.SBoxes = 0;

    RedrawMap(P, Sheet());

    Expected->ForeColor = red;
    Expected->Box({1000, 500, 615, 217});
    Expected->ForeColor = Black;
    Expected->PrintAt({1100, 500}, u"B001"_s);
    Expected->PrintAt({1050, 600}, u"Bob"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
}

TEST_F(RedrawMapTest, EmptyTable_BoxesShowTheirNumbers)
{
    GivenOpen(BranchA);
    GivenBox(0, {1000, 500}, u"A001", red);
    P.Map.SBoxes = 0;

    RedrawMap(P, Sheet());

    Expected->ForeColor = red;
    Expected->Box({1000, 500, 615, 217});
    Expected->ForeColor = Black;
    Expected->PrintAt({1100, 500}, u"A001"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
    EXPECT_TRUE(Records(P.Form3).IsEmpty());
}

TEST_F(RedrawMapTest, CurrentRecord_IsTheSameAfterwards)
{
    GivenTwoRecords();
    Records(P.Form3).MoveNext();

    RedrawMap(P, Sheet());

    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A002"_s);
}

TEST_F(RedrawMapTest, CurrentRecord_PositionSavedForAnotherWalkLongAgo_DoesNotComeBack)
{
    GivenTwoRecords();
    P.Record.SavedBookmark = Records(P.Form3).GetBookmark();
    Records(P.Form3).MoveNext();

    RedrawMap(P, Sheet());

    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A002"_s);
}

TEST_F(RedrawMapTest, BehindTheLastRecord_GoesBackToThePositionSavedBefore)
{
    GivenTwoRecords();
    Records(P.Form3).MoveNext();
    P.Record.SavedBookmark = Records(P.Form3).GetBookmark();
    Records(P.Form3).MoveNext();

    RedrawMap(P, Sheet());

    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A002"_s);
}

TEST_F(RedrawMapTest, BehindTheLastRecord_NoPositionSavedInThisDatabase_StaysThere)
{
    GivenTwoRecords();
    P.Record.SavedBookmark = Records(P.Form3).GetBookmark();
    OpenWorkDatabase(P);
    Records(P.Form3).MoveLast();
    Records(P.Form3).MoveNext();

    RedrawMap(P, Sheet());

    EXPECT_TRUE(Records(P.Form3).Eof());
}

TEST_F(RedrawMapTest, FreeRows_AreNotPainted)
{
    GivenTwoRecords();
    P.Map.SBoxes = P.Map.SLines = P.Map.STexts = 200;

    RedrawMap(P, Sheet());

    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(RedrawMapTest, ItemsWhosePositionIsNoNumber_AreNotPainted_AndCostNoOther)
{
    GivenTwoRecords();
    GivenBox(0, {1000, 500}, u"A001", red);
    P.Map.BoxArr[0][BoxColumn::X] = u"here"_s;
    GivenBox(1, {2000, 500}, u"0", red);
    GivenText(0, {1000, 4000}, u"First", {}, blue);
    P.Map.TextArr[0][TextColumn::Y] = u"there"_s;
    GivenText(1, {1000, 5000}, u"Second", {}, blue);
    P.Map.SBoxes = P.Map.STexts = 1;

    RedrawMap(P, Sheet());

    Expected->ForeColor = red;
    Expected->Box({2000, 500, 615, 217});
    Expected->ForeColor = blue;
    Expected->PrintAt({1000, 5000}, u"Second"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
}

TEST_F(RedrawMapTest, NoItemsAtAll_IsQuiet)
{
    GivenTwoRecords();

    RedrawMap(P, Sheet());

    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(RedrawMapTest, AfterEachText_PenAndFontAreThoseInHandBefore)
{
    GivenTwoRecords();
    Picture.ForeColor = red;
    Picture.Font = {u"Arial"_s, 10, true};
    GivenText(0, {1000, 4000}, u"First", {u"Courier New"_s, 20}, blue);
    GivenText(1, {1000, 5000}, u"Second", {u"Courier New"_s, 20}, blue);
    P.Map.STexts = 1;

    RedrawMap(P, Sheet());

    EXPECT_EQ(Picture.ForeColor, red);
    EXPECT_EQ(Picture.Font, (TextFont{u"Arial"_s, 10, true}));
    Expected->ForeColor = blue;
    Expected->Font = {u"Courier New"_s, 20, true};
    Expected->PrintAt({1000, 4000}, u"First"_s);
    Expected->PrintAt({1000, 5000}, u"Second"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
}

TEST_F(RedrawMapTest, AfterATextAnotherFontInHand_BecomesArial8NotBold)
{
    GivenTwoRecords();
    Picture.Font = {u"Courier New"_s, 20, true};
    GivenText(0, {1000, 4000}, u"First");
    P.Map.STexts = 0;

    RedrawMap(P, Sheet());

    EXPECT_EQ(Picture.Font, TextFont{});
}

TEST_F(RedrawMapTest, DrawnMap_LooksLikeTheOpenedOne)
{
    BranchB.Row({{u"File", u"B001"}, {u"Forename", u"Bob"}}).Build();
    GivenOpen(BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}})
                  .Boxes(u"1000,500,255,A001,,2000,500,255,B001,,3000,500,255,0,,")
                  .Lines(u"1615,608,2000,608,32768,")
                  .Texts(u"1000,3000,The Smiths,Arial,14,16711680,"));
    OpenMap();
    const QImage opened = ShownBy(Picture);
    Picture.Cls();

    RedrawMap(P, Sheet());

    EXPECT_TRUE(ShownBy(Picture) == opened);
}

class MapPictureTest : public MapTest
{
};

TEST_F(MapPictureTest, FreshPicture_HasThePlaceFontAndColourOfTheMap)
{
    const forms::Form1 form;

    EXPECT_EQ(form.Picture1.Left, 0);
    EXPECT_EQ(form.Picture1.Top, 0);
    EXPECT_EQ(form.Picture1.Width, 8415);
    EXPECT_EQ(form.Picture1.Height, 12750);
    EXPECT_EQ(form.Picture1.BackColor, White);
    EXPECT_EQ(form.Picture1.Font, (TextFont{u"Arial"_s, 8.25}));
    EXPECT_EQ(form.VScroll1.Max.value(), 8000);
    EXPECT_EQ(form.VScroll1.SmallChange, 100);
    EXPECT_EQ(form.VScroll1.LargeChange, 1500);
}

TEST_F(MapPictureTest, Scrolling_MovesThePicture_NotTheMap)
{
    GivenBox(0, {1000, 500});
    Picture.Line({1000, 500}, {2000, 500});

    P.Form1->VScroll1.Value = 700;
    Fire(P.Form1->VScroll1.Change);

    EXPECT_EQ(Picture.Top, -700);
    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::Y].Number(), 500);
    EXPECT_EQ(ColourAt(Picture, {1500, 500}), Black);
}

struct Release {
    double X;
    double Y;
    QString ShownX;
    QString ShownY;
    QString Corner;
};

void PrintTo(const Release& release, std::ostream* out)
{
    *out << release.X << ", " << release.Y;
}

class ShowCoordinatesTest : public MapTest, public WithParamInterface<Release>
{
};

TEST_P(ShowCoordinatesTest, MouseUp_ShowsThePointAndTheCornerOfABoxCentredOnIt)
{
    const auto& [x, y, shownX, shownY, corner] = GetParam();

    Picture.MouseUp(1, 0, x, y);

    EXPECT_EQ(P.Form1->Text9.Text, shownX);
    EXPECT_EQ(P.Form1->Text10.Text, shownY);
    EXPECT_EQ(P.Form1->Text8.Text, corner);
    EXPECT_EQ(P.Mouse.sCoords, corner);
    EXPECT_EQ(QString::number(P.Mouse.BoxX), shownX);
    EXPECT_EQ(QString::number(P.Mouse.BoxY), shownY);
    EXPECT_EQ(QString::number(P.Mouse.BoxLeft) + u',' + QString::number(P.Mouse.BoxTop), corner);
}

INSTANTIATE_TEST_SUITE_P(Places, ShowCoordinatesTest,
                         Values(Release{1507, 708, u"1507"_s, u"708"_s, u"1200,600"_s},
                                Release{0, 0, u"0"_s, u"0"_s, u"-307,-108"_s},
                                Release{1507.9, 708.5, u"1507"_s, u"708"_s, u"1200,600"_s}, // the fraction is dropped
                                Release{-1.9, -0.9, u"-1"_s, u"0"_s, u"-308,-108"_s},       // also beside the picture
                                Release{8414, 12749, u"8414"_s, u"12749"_s, u"8107,12641"_s}));

TEST_F(MapPictureTest, MouseUp_ShowsCoordinatesInEveryModeButThree)
{
    for (const int mode : {0, 1, 2, 3}) {
        SCOPED_TRACE(mode);
        for (TextBox* box : {&P.Form1->Text8, &P.Form1->Text9, &P.Form1->Text10})
            box->Text = u"before"_s;
        P.Mouse.sCoords = u"before"_s;
        P.Mouse.BoxX = P.Mouse.BoxLeft = 7;
        P.Tools.MapCursorMode = mode;

        Picture.MouseUp(1, 0, 1507, 708);

        const bool shows = mode != 3;
        EXPECT_EQ(P.Form1->Text9.Text, shows ? u"1507"_s : u"before"_s);
        EXPECT_EQ(P.Form1->Text10.Text, shows ? u"708"_s : u"before"_s);
        EXPECT_EQ(P.Form1->Text8.Text, shows ? u"1200,600"_s : u"before"_s);
        EXPECT_EQ(P.Mouse.sCoords, shows ? u"1200,600"_s : u"before"_s);
        EXPECT_EQ(P.Mouse.BoxX, shows ? 1507 : 7);
        EXPECT_EQ(P.Mouse.BoxLeft, shows ? 1200 : 7);
    }
}

} // namespace
} // namespace lineforge
