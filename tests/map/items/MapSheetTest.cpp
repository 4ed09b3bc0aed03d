#include "map/items/MapSheet.h"

#include "map/MapTest.h"

namespace lineforge
{
namespace
{

class MapSheetTest : public MapTest
{
};

TEST_F(MapSheetTest, OnScreen_ItIsThePicture_TwipForTwip)
{
    const MapSheet screen = MapOnScreen(P.Map, *P.Form1);

    EXPECT_EQ(&screen.On, &Picture);
    EXPECT_EQ(screen.At({1000, 500}), (Point{1000, 500}));
    EXPECT_EQ(screen.Down(217), 217);
}

TEST_F(MapSheetTest, OnPaper_ItIsThePage_FurtherRight_AndStretchedDownwards)
{
    const MapSheet paper = MapOnPaper(Page);

    EXPECT_EQ(&paper.On, &Page);
    EXPECT_EQ(paper.At({1000, 500}), (Point{2200, 900}));
    EXPECT_EQ(paper.Down(217), 390);
}

// On paper the lines of a caption lie lower, since the box is higher; below them there is room for the year of birth.
TEST_F(MapSheetTest, CaptionsOnPaper_LieLower_AndHaveAThirdLine)
{
    const MapSheet::CaptionLines screen = MapOnScreen(P.Map, *P.Form1).Caption;
    const MapSheet::CaptionLines paper = MapOnPaper(Page).Caption;

    EXPECT_EQ(screen.Number, (Point{100, 0}));
    EXPECT_EQ(paper.Number, (Point{100, 10}));
    EXPECT_EQ(screen.Forename, (Point{50, 100}));
    EXPECT_EQ(paper.Forename, (Point{50, 130}));
    EXPECT_EQ(screen.BirthYear, std::nullopt);
    EXPECT_EQ(paper.BirthYear, (Point{50, 260}));
}

TEST_F(MapSheetTest, PlaceFarOutside_DoesntOverflow)
{
    constexpr int far = std::numeric_limits<int>::max();

    EXPECT_GT(MapOnPaper(Page).At({far, far}).Y, 0);
    EXPECT_LT(MapOnPaper(Page).At({-far, -far}).Y, 0);
    EXPECT_GT(MapOnScreen(P.Map, *P.Form1).At({far, far}).X, 0);
}

} // namespace
} // namespace lineforge
