#include "qt/style/Desktop.h"

#include "forms/Form1.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{

struct RoomRow {
    QSize Answer;
    QSize Screen;
    QSize Room;
};

struct GrantedRoomTest : testing::TestWithParam<RoomRow> {
};

TEST_P(GrantedRoomTest, IsWhatTheDesktopAnswers_AndElseTheScreenWithoutPanelAndTitle)
{
    EXPECT_EQ(RoomFor(GetParam().Answer, GetParam().Screen), GetParam().Room);
}

INSTANTIATE_TEST_SUITE_P(Answers, GrantedRoomTest,
                         testing::Values(RoomRow{{1920, 1047}, {1920, 1080}, {1920, 1047}},
                                         RoomRow{{160, 160}, {1920, 1080}, {1920, 1000}},
                                         RoomRow{{0, 0}, {1366, 768}, {1366, 688}}));

TEST(ScaleForRoomTest, WhereTheDesktopAnswersNothing_TheToolsAreAboveAPanelAndATitleOfUsualHeight)
{
    constexpr int usualPanelAndTitle = 69; // pixels
    constexpr int menuBar = 31;
    const forms::Form1 form;
    for (const QSize screen : {QSize(1366, 768), QSize(1920, 1080), QSize(2560, 1440)}) {
        const Scale scale = ScaleForRoom(forms::MainWindowClient, RoomFor({}, screen));
        const int toolsEnd = menuBar + scale.ToPixels(Size{0, form.Frame4.Top + form.Frame4.Height}).height();
        EXPECT_LE(toolsEnd, screen.height() - usualPanelAndTitle) << screen.height();
    }
}

} // namespace
} // namespace lineforge
