#include "qt/text/TextPanelTest.h"

#include "qt/Frames.h"
#include "qt/PaintCounter.h"

#include <QAccessible>
#include <QImage>
#include <QTest>
#include <QWheelEvent>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// How many rows of pixels between two heights hold anything but the ground.
int InkedRows(const QImage& picture, int from, int to)
{
    const QRgb ground = picture.pixel(2, 1);
    int rows = 0;
    for (int y = std::max(2, from); y < std::min(to, picture.height() - 2); ++y)
        for (int x = 3; x < picture.width() - 3; ++x)
            if (picture.pixel(x, y) != ground) {
                ++rows;
                break;
            }
    return rows;
}

TEST_F(TextPanelTest, View_CoversWhatCanBeSeenOfThePanel)
{
    const int client = View().parentWidget()->height();
    EXPECT_EQ(View().geometry(), QRect(PixelScale().ToPixels(1200), 0, PixelScale().ToPixels(4200), client));
    Texts->Picture1.Height = 50'000'000;
    EXPECT_EQ(View().height(), client);
    Texts->Picture1.Top = -40'000'000;
    EXPECT_EQ(View().geometry().top(), 0);
    EXPECT_EQ(View().height(), client);
}

TEST_F(TextPanelTest, PanelScrolledBehindItsEnd_StillFillsItsPlace)
{
    Texts->VScroll1.Value = 8000;
    EXPECT_EQ(View().height(), View().parentWidget()->height());
}

TEST_F(TextPanelTest, LowerParent_HasLessToSee)
{
    QWidget& client = *View().parentWidget();
    client.resize(client.width(), 50);
    EXPECT_EQ(View().height(), 50);
}

TEST_F(TextPanelTest, Lines_StandWhereThePanelHasThem)
{
    Print(3);
    const int height = PixelScale().ToPixels(3 * TextPanel::LineHeight);
    EXPECT_EQ(View().PlaceOf({0, 0}).top(), 0);
    EXPECT_EQ(View().PlaceOf({2, 0}).bottom() + 1, height);
    const QImage picture = View().grab().toImage();
    EXPECT_GT(InkedRows(picture, 0, height), 10);
    EXPECT_EQ(InkedRows(picture, height + 2, picture.height()), 0);
}

TEST_F(TextPanelTest, MovedPanel_ShowsTheLinesThatStandThere)
{
    GrowTo(100);
    const QImage first = View().grab().toImage();
    Texts->Picture1.Top = -50 * TextPanel::LineHeight;
    EXPECT_EQ(View().PlaceOf({50, 0}).top(), 0);
    EXPECT_EQ(View().PositionAt({5, 2}).Line, 50);
    EXPECT_NE(View().grab().toImage(), first);
}

TEST_F(TextPanelTest, TextMillionsOfTwipsDown_IsShown)
{
    GrowTo(400'000);
    const int down = 399'980 * TextPanel::LineHeight;
    Texts->Picture1.Top = -down;
    EXPECT_EQ(View().PositionAt({5, 2}).Line, 399'980);
    EXPECT_EQ(View().PlaceOf({399'980, 0}).top(), 0);
    EXPECT_GT(InkedRows(View().grab().toImage(), 0, PixelScale().ToPixels(10 * TextPanel::LineHeight)), 30);
}

TEST_F(TextPanelTest, Cls_EmptiesTheView_AndForgetsTheSelection)
{
    const QImage empty = View().grab().toImage();
    Print(5);
    View().SelectAll();
    Texts->Picture1.Cls();
    EXPECT_TRUE(View().Selection().IsEmpty());
    EXPECT_EQ(View().grab().toImage(), empty);
    Print(1);
    EXPECT_EQ(View().SelectedText(), QString());
}

TEST_F(TextPanelTest, LinesThatComeFast_AreShownTogether_TheLastOneToo)
{
    HeldClocks clocks;
    PassAFrame(clocks);
    const PaintCounter counter(View());
    for (int line = 0; line < 2000; ++line) {
        Print(1);
        ServeEvents();
    }
    PassAFrame(clocks);
    EXPECT_EQ(counter.Paints, 1);
    Print(1);
    PassAFrame(clocks);
    EXPECT_EQ(counter.Paints, 2);
}

TEST_F(TextPanelTest, WheelOverThePanel_MovesTheBar)
{
    GrowTo(100);
    const int before = Texts->VScroll1.Value;
    QWheelEvent turn(QPointF(50, 50), View().mapToGlobal(QPointF(50, 50)), {}, {0, 120}, Qt::NoButton, {},
                     Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&turn);
    qApp->notify(&View(), &turn);
    EXPECT_LT(Texts->VScroll1.Value.value(), before);
}

struct ScrollKey {
    Qt::Key Key;
    int Bar; // after it, from 2000
};

class ScrollKeyTest : public TextPanelTest, public testing::WithParamInterface<ScrollKey>
{
};

TEST_P(ScrollKeyTest, MovesTheBar)
{
    GrowTo(100);
    Texts->VScroll1.Value = 2000;
    QTest::keyClick(&View(), GetParam().Key);
    EXPECT_EQ(Texts->VScroll1.Value.value(), GetParam().Bar);
    EXPECT_EQ(Texts->Picture1.Top.value(), -2 * GetParam().Bar);
    EXPECT_TRUE(View().Selection().IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Keys, ScrollKeyTest,
                         testing::Values(ScrollKey{Qt::Key_Up, 1900}, ScrollKey{Qt::Key_Down, 2100},
                                         ScrollKey{Qt::Key_PageUp, 1000}, ScrollKey{Qt::Key_PageDown, 3000},
                                         ScrollKey{Qt::Key_Home, 0}));

TEST_F(TextPanelTest, EndKey_GoesToTheLastLine_NotToTheBarsEnd)
{
    GrowTo(100);
    Texts->VScroll1.Value = 0;
    QTest::keyClick(&View(), Qt::Key_End);
    EXPECT_LE(View().PlaceOf({99, 0}).bottom(), View().height());
    EXPECT_GE(View().PlaceOf({99, 0}).top(), View().height() / 2);
}

TEST_F(TextPanelTest, LongLine_IsReachedSidewards)
{
    Texts->Picture1.Print(QString(400, u'x'));
    View().grab();
    const int before = View().PlaceOf({0, 0}).left();
    QTest::keyClick(&View(), Qt::Key_Right);
    EXPECT_LT(View().PlaceOf({0, 0}).left(), before);
    for (int press = 0; press < 200; ++press)
        QTest::keyClick(&View(), Qt::Key_Right);
    EXPECT_TRUE(View().rect().contains(At(0, 399))) << "no further than its end";
    for (int press = 0; press < 200; ++press)
        QTest::keyClick(&View(), Qt::Key_Left);
    EXPECT_EQ(View().PlaceOf({0, 0}).left(), before);
}

TEST_F(TextPanelTest, VeryLongLine_IsSurvived_AndCopiedWhole)
{
    const QString endless(2'000'000, u'x');
    Texts->Picture1.Print(endless);
    View().grab();
    View().SelectAll();
    View().grab();
    EXPECT_EQ(View().SelectedText().size(), endless.size());
}

TEST_F(TextPanelTest, Readers_FindATextThatCanNotBeEdited)
{
    Print(2);
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&View());
    ASSERT_TRUE(reader);
    EXPECT_EQ(reader->role(), QAccessible::EditableText);
    EXPECT_TRUE(reader->state().readOnly);
    EXPECT_TRUE(reader->state().multiLine);
    EXPECT_TRUE(reader->state().focusable);
    EXPECT_EQ(reader->text(QAccessible::Name), u"Progress");
    EXPECT_EQ(reader->text(QAccessible::Value), u"line 0 of the text\nline 1 of the text");
    QAccessibleTextInterface* text = reader->textInterface();
    ASSERT_TRUE(text);
    EXPECT_EQ(text->characterCount(), 37);
    EXPECT_EQ(text->text(0, 37), u"line 0 of the text\nline 1 of the text");
    EXPECT_EQ(text->text(19, 25), u"line 1");
    int start = -1;
    int end = -1;
    EXPECT_EQ(text->textAtOffset(20, QAccessible::LineBoundary, &start, &end), u"line 1 of the text");
    EXPECT_EQ(text->offsetAtPoint(text->characterRect(21).center()), 21);
    EXPECT_EQ(View().toolTip(), QString()) << "nothing stands before the text";
}

TEST_F(TextPanelTest, Readers_SelectAndScroll)
{
    GrowTo(100);
    QAccessibleTextInterface* text = QAccessible::queryAccessibleInterface(&View())->textInterface();
    text->setSelection(0, 0, 6);
    EXPECT_EQ(text->selectionCount(), 1);
    int start = -1;
    int end = -1;
    text->selection(0, &start, &end);
    EXPECT_EQ(start, 0);
    EXPECT_EQ(end, 6);
    EXPECT_EQ(View().SelectedText(), u"line 0");
    EXPECT_EQ(View().PlaceOf({0, 0}).top(), 0) << "what is selected is in view";
    text->removeSelection(0);
    EXPECT_EQ(text->selectionCount(), 0);
    text->scrollToSubstring(text->characterCount(), text->characterCount());
    EXPECT_LE(View().PlaceOf({99, 0}).bottom(), View().height());
}

TEST_F(TextPanelTest, UnloadedWindow_TakesNoMoreLines)
{
    TextPanel& panel = Texts->Picture1;
    Texts.Unload();
    panel.Print(u"late");
    PassEventLoop();
}

} // namespace
} // namespace lineforge
