#include "qt/text/TextPanelTest.h"
#include "support/Clocks.h"

#include <QClipboard>
#include <QMenu>
#include <QTest>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// Selecting with mouse and keyboard, and copying.
class TextPanelSelectTest : public TextPanelTest
{
protected:
    ~TextPanelSelectTest() override { QGuiApplication::clipboard()->clear(); }

    static QString Copied() { return QGuiApplication::clipboard()->text(); }
    void Drag(QPoint from, QPoint to)
    {
        QTest::mousePress(&View(), Qt::LeftButton, {}, from);
        MoveHeld(to);
        QTest::mouseRelease(&View(), Qt::LeftButton, {}, to);
    }
    void MoveHeld(QPoint to)
    {
        QMouseEvent move(QEvent::MouseMove, to, View().mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&View(), &move);
    }
};

TEST_F(TextPanelSelectTest, DraggedOver_IsSelected_AndCopied)
{
    Print(5);
    Drag(LeftOf(1, 5), LeftOf(3, 6));
    EXPECT_EQ(View().SelectedText(), u"1 of the text\nline 2 of the text\nline 3");
    QTest::keyClick(&View(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Copied(), u"1 of the text\nline 2 of the text\nline 3");
}

TEST_F(TextPanelSelectTest, DraggedBackwards_IsTheSame)
{
    Print(5);
    Drag(LeftOf(3, 6), LeftOf(1, 5));
    EXPECT_EQ(View().SelectedText(), u"1 of the text\nline 2 of the text\nline 3");
}

TEST_F(TextPanelSelectTest, Selection_IsSeen)
{
    Print(5);
    const QImage before = View().grab().toImage();
    Drag(LeftOf(1, 0), LeftOf(2, 4));
    const QImage after = View().grab().toImage();
    const QColor mark = View().palette().color(QPalette::Highlight);
    const auto hasMark = [&](qsizetype line) {
        const QRect place = View().PlaceOf({line, 1});
        for (int y = place.top() + 2; y <= place.bottom(); ++y)
            for (int x = place.left(); x <= place.right(); ++x)
                if (after.pixelColor(x, y) == mark)
                    return true;
        return false;
    };
    EXPECT_NE(after, before);
    EXPECT_FALSE(hasMark(0));
    EXPECT_TRUE(hasMark(1));
    EXPECT_TRUE(hasMark(2));
    EXPECT_FALSE(hasMark(3));
}

TEST_F(TextPanelSelectTest, Click_SelectsNothing_WithShiftAllFromTheLastClick)
{
    Print(5);
    QTest::mouseClick(&View(), Qt::LeftButton, {}, LeftOf(0, 5));
    EXPECT_TRUE(View().Selection().IsEmpty());
    QTest::mouseClick(&View(), Qt::LeftButton, Qt::ShiftModifier, LeftOf(1, 4));
    EXPECT_EQ(View().SelectedText(), u"0 of the text\nline");
}

TEST_F(TextPanelSelectTest, DoubleClick_SelectsTheWord)
{
    Print(2);
    QTest::mouseDClick(&View(), Qt::LeftButton, {}, At(1, 2));
    EXPECT_EQ(View().SelectedText(), u"line");
}

TEST_F(TextPanelSelectTest, HeldBeyondTheEdge_ScrollsOn)
{
    GrowTo(100);
    Texts->VScroll1.Value = 0;
    HeldClocks clocks;
    const auto pass = [&clocks](std::chrono::milliseconds time) {
        clocks.LetPass(time);
        ServeEvents();
    };
    QTest::mousePress(&View(), Qt::LeftButton, {}, LeftOf(1, 0));
    MoveHeld({20, View().height() + 20});
    for (int turn = 0; turn < 100 && Texts->VScroll1.Value <= 300; ++turn)
        pass(50ms);
    EXPECT_GT(Texts->VScroll1.Value, 300);
    EXPECT_GT(View().Selection().Caret.Line, 20);
    QTest::mouseRelease(&View(), Qt::LeftButton, {}, {20, View().height() + 20});
    const int reached = Texts->VScroll1.Value;
    pass(1s);
    EXPECT_EQ(Texts->VScroll1.Value.value(), reached);
}

TEST_F(TextPanelSelectTest, SelectAll_TakesLinesOutOfSight_AndStaysWhereItIs)
{
    GrowTo(100);
    Texts->VScroll1.Value = 1000;
    QTest::keyClick(&View(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&View(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Copied(), Texts->Picture1.Lines.join(u'\n'));
    EXPECT_EQ(Texts->VScroll1.Value.value(), 1000);
}

TEST_F(TextPanelSelectTest, NothingSelected_CopiesNothing)
{
    Print(2);
    QGuiApplication::clipboard()->setText(u"mine"_s);
    QTest::keyClick(&View(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(Copied(), u"mine");
}

struct ShiftKeys {
    std::vector<Qt::Key> Keys;
    Qt::KeyboardModifiers Modifiers;
    QStringView Selected; // beginning before the "1" of line 1
};

void PrintTo(const ShiftKeys& keys, std::ostream* out)
{
    *out << keys.Selected.toString().toStdString();
}

class ShiftKeyTest : public TextPanelSelectTest, public testing::WithParamInterface<ShiftKeys>
{
};

TEST_P(ShiftKeyTest, DrawsTheSelectionOn)
{
    Print(4);
    QTest::mouseClick(&View(), Qt::LeftButton, {}, LeftOf(1, 5));
    for (const Qt::Key key : GetParam().Keys)
        QTest::keyClick(&View(), key, Qt::ShiftModifier | GetParam().Modifiers);
    EXPECT_EQ(View().SelectedText(), GetParam().Selected);
}

INSTANTIATE_TEST_SUITE_P(
    Keys, ShiftKeyTest,
    testing::Values(
        ShiftKeys{{Qt::Key_Right}, {}, u"1"}, ShiftKeys{{Qt::Key_Left, Qt::Key_Left}, {}, u"e "},
        ShiftKeys{{Qt::Key_End}, {}, u"1 of the text"}, ShiftKeys{{Qt::Key_End, Qt::Key_Right}, {}, u"1 of the text\n"},
        ShiftKeys{{Qt::Key_Home}, {}, u"line "}, ShiftKeys{{Qt::Key_Down}, {}, u"1 of the text\nline "},
        ShiftKeys{{Qt::Key_Up}, {}, u"0 of the text\nline "}, ShiftKeys{{Qt::Key_PageUp}, {}, u"0 of the text\nline "},
        ShiftKeys{{Qt::Key_Home}, Qt::ControlModifier, u"line 0 of the text\nline "},
        ShiftKeys{{Qt::Key_End}, Qt::ControlModifier, u"1 of the text\nline 2 of the text\nline 3 of the text"}));

TEST_F(TextPanelSelectTest, KeysFarDown_BringTheirLineIntoView_AndBack)
{
    GrowTo(5000);
    Texts->VScroll1.Value = 0;
    QTest::mouseClick(&View(), Qt::LeftButton, {}, LeftOf(2, 0));
    QTest::keyClick(&View(), Qt::Key_End, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(View().Selection().Last().Line, 4999);
    EXPECT_LE(View().PlaceOf({4999, 0}).bottom(), View().height());
    EXPECT_GT(View().PlaceOf({4999, 0}).top(), 0);
    QTest::keyClick(&View(), Qt::Key_Home, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(View().PlaceOf({0, 0}).top(), 0);
    EXPECT_EQ(View().SelectedText(), u"line 0 of the text\nline 1 of the text\n");
}

TEST_F(TextPanelSelectTest, KeysWithoutAClick_BeginAtTheFirstLineInView)
{
    GrowTo(100);
    Texts->Picture1.Top = -40 * TextPanel::LineHeight;
    QTest::keyClick(&View(), Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(View().SelectedText(), u"line 40 of the text\n");
}

TEST_F(TextPanelSelectTest, EmptyPanel_SurvivesMouseAndKeys)
{
    QTest::mouseDClick(&View(), Qt::LeftButton, {}, {20, 20});
    Drag({5, 5}, {50, 50});
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Left, Qt::Key_Right, Qt::Key_Home, Qt::Key_End,
                              Qt::Key_PageUp, Qt::Key_PageDown})
        for (const Qt::KeyboardModifiers modifiers :
             {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::ShiftModifier)})
            QTest::keyClick(&View(), key, modifiers);
    QTest::keyClick(&View(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(View().SelectedText(), QString());
}

TEST_F(TextPanelSelectTest, ContextMenu_CopiesAndSelectsAll)
{
    Print(2);
    const auto menuAction = [&](const QString& text) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, View().mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(&View(), &event);
        for (QAction* action : View().findChild<QMenu*>()->actions())
            if (action->text() == text)
                return action;
        return static_cast<QAction*>(nullptr);
    };
    QAction* copy = menuAction(u"&Copy"_s);
    ASSERT_TRUE(copy);
    EXPECT_FALSE(copy->isEnabled());
    delete View().findChild<QMenu*>();
    menuAction(u"Select &All"_s)->trigger();
    delete View().findChild<QMenu*>();
    menuAction(u"&Copy"_s)->trigger();
    EXPECT_EQ(Copied(), u"line 0 of the text\nline 1 of the text");
}

TEST_F(TextPanelSelectTest, Tab_GoesOnToTheBar)
{
    Activate(*Texts);
    View().setFocus();
    QTest::keyClick(&View(), Qt::Key_Tab);
    EXPECT_TRUE(Bar().hasFocus());
}

TEST_F(TextPanelSelectTest, NewLines_LeaveTheSelection)
{
    Print(3);
    Drag(LeftOf(0, 0), LeftOf(1, 4));
    Print(100);
    EXPECT_EQ(View().SelectedText(), u"line 0 of the text\nline");
}

} // namespace
} // namespace lineforge
