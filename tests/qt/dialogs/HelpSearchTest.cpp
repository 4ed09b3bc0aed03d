#include "qt/dialogs/HelpWindowTest.h"

#include <algorithm>

namespace lineforge
{

using testing::ElementsAre;

namespace
{
using HelpSearchTest = HelpWindowTest;

TEST_F(HelpSearchTest, Search_FindsSectionsWithAllTheWords_TitlesFirst)
{
    OpenHelp(SmallManual);
    Seek(u"oak"_s);
    EXPECT_TRUE(Hits().isVisible());
    EXPECT_FALSE(Contents().isVisible());
    EXPECT_THAT(Found(), ElementsAre(u"Trees: The oak"_s, u"Boxes: Colours"_s, u"Trees"_s));
    Seek(u"oak gro"_s);
    EXPECT_THAT(Found(), ElementsAre(u"Trees"_s));
    Seek(u"  SAW "_s);
    EXPECT_THAT(Found(), ElementsAre(u"Trees: Pruning"_s));
}

TEST_F(HelpSearchTest, SearchInVain_SaysSo_AndGoesNowhere)
{
    OpenHelp(SmallManual);
    Seek(u"elephant"_s);
    EXPECT_THAT(Found(), ElementsAre(u"Nothing found"_s));
    QTest::keyClick(&Search(), Qt::Key_Return);
    EXPECT_EQ(Place(), u"index.html#"_s);
}

TEST_F(HelpSearchTest, SearchForBlanks_LeavesTheContents)
{
    OpenHelp(SmallManual);
    Seek(u"  "_s);
    EXPECT_TRUE(Contents().isVisible());
}

TEST_F(HelpSearchTest, Hit_IsGoneTo_AndItsWordsAreMarked)
{
    OpenHelp(SmallManual);
    Seek(u"oak"_s);
    QTest::mouseClick(Hits().viewport(), Qt::LeftButton, {}, Hits().visualItemRect(Hits().item(1)).center());
    EXPECT_EQ(Place(), u"boxes.html#colours"_s);
    EXPECT_THAT(Marked(), ElementsAre(u"oak"_s));
}

TEST_F(HelpSearchTest, EnterInTheSearch_GoesToTheFirstHit)
{
    OpenHelp(SmallManual);
    QTest::keyClick(&Page(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(Search().hasFocus());
    Seek(u"oak"_s);
    QTest::keyClick(&Search(), Qt::Key_Return);
    EXPECT_EQ(Place(), u"trees.html#oak"_s);
    EXPECT_TRUE(Hits().hasFocus());
    QTest::keyClick(&Hits(), Qt::Key_Down);
    QTest::keyClick(&Hits(), Qt::Key_Return);
    EXPECT_EQ(Place(), u"boxes.html#colours"_s);
}

TEST_F(HelpSearchTest, DownInTheSearch_GoesToTheHits)
{
    OpenHelp(SmallManual);
    Search().setFocus();
    Seek(u"oak"_s);
    QTest::keyClick(&Search(), Qt::Key_Down);
    EXPECT_TRUE(Hits().hasFocus());
    EXPECT_EQ(Place(), u"trees.html#oak"_s);
}

TEST_F(HelpSearchTest, F3_GoesFromMarkToMark_AndRound)
{
    OpenHelp(SmallManual);
    Seek(u"box"_s);
    ClickLink(u"Boxes"_s);
    // The title, three in the text, one in the note.
    ASSERT_EQ(Marked().size(), 5);
    std::vector<int> starts;
    for (int press = 0; press < 6; ++press) {
        QTest::keyClick(&Page(), Qt::Key_F3);
        starts.push_back(Page().textCursor().selectionStart());
    }
    EXPECT_TRUE(std::is_sorted(starts.begin(), starts.begin() + 5));
    EXPECT_NE(starts[3], starts[4]);
    EXPECT_EQ(starts[5], starts[0]);
    QTest::keyClick(&Page(), Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(Page().textCursor().selectionStart(), starts[4]);
    EXPECT_EQ(Page().textCursor().selectedText().toLower(), u"box"_s);
}

TEST_F(HelpSearchTest, F3_WithoutASearch_DoesNothing)
{
    OpenHelp(SmallManual);
    QTest::keyClick(&Page(), Qt::Key_F3);
    QTest::keyClick(&Page(), Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_FALSE(Page().textCursor().hasSelection());
}

TEST_F(HelpSearchTest, Escape_EndsTheSearch_ThenClosesTheWindow)
{
    OpenHelp(SmallManual);
    Seek(u"manual"_s);
    EXPECT_FALSE(Marked().isEmpty());
    QTest::keyClick(&Search(), Qt::Key_Escape);
    EXPECT_TRUE(Search().text().isEmpty());
    EXPECT_TRUE(Contents().isVisible());
    EXPECT_TRUE(Marked().isEmpty());
    EXPECT_EQ(HelpWindows().size(), 1);
    QTest::keyClick(&Contents(), Qt::Key_Escape);
    EXPECT_TRUE(HelpWindows().isEmpty());
}

TEST_F(HelpSearchTest, OpenedAgain_TheSearchIsOver)
{
    OpenHelp(SmallManual);
    Seek(u"oak"_s);
    OpenHelp(SmallManual);
    EXPECT_TRUE(Search().text().isEmpty());
    EXPECT_TRUE(Contents().isVisible());
}
} // namespace

} // namespace lineforge
