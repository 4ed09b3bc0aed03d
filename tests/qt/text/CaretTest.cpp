#include "qt/WindowTest.h"
#include "qt/text/TextView.h"

#include <QLineEdit>
#include <QTest>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct CaretForm : Form {
    CaretForm() : Form(u"CaretForm", u"Texts", {6000, 3000}) {}
    TextBox Text1{*this, u"Text1", {1200, 150, 3000, 315}, 20};
    TextBox Text2{*this, u"Text2", {1200, 1050, 3000, 900}, 20};
};

// The caret and the selection of the widgets are kept in the model, counted in the model's own text.
struct CaretTest : WindowTest {
    Window<CaretForm> Texts{System()};
    void SetUp() override
    {
        Texts->Visible = true;
        Activate(*Texts);
    }
    TextBox& Low() { return Texts->Text1; }
    TextBox& High() { return Texts->Text2; }
    QLineEdit& Line() { return Find<QLineEdit>(*Texts, u"Text1"_s); }
    TextView& Lines() { return Find<TextView>(*Texts, u"Text2"_s); }

    void ShowInBoth(const QString& text)
    {
        Low().Text = text;
        High().Text = text;
    }
    void Select(int from, int to)
    {
        QTextCursor cursor = Lines().textCursor();
        cursor.setPosition(from);
        cursor.setPosition(to, QTextCursor::KeepAnchor);
        Lines().setTextCursor(cursor);
    }
};

TEST_F(CaretTest, InALine_CaretAndSelectionAreKept)
{
    Low().Text = u"abcdef"_s;
    Line().setCursorPosition(3);
    EXPECT_EQ(Low().SelStart, 3);
    EXPECT_EQ(Low().SelText, QString());
    Line().setSelection(1, 4);
    EXPECT_EQ(Low().SelStart, 1);
    EXPECT_EQ(Low().SelText, u"bcde"_s);
    Line().deselect();
    EXPECT_EQ(Low().SelStart, 5);
    EXPECT_EQ(Low().SelText, QString());
}

TEST_F(CaretTest, InALine_SelectionMadeBackwards_StartsAtItsFront)
{
    Low().Text = u"abcdef"_s;
    Line().setFocus();
    Line().setCursorPosition(4);
    for (int step = 0; step < 3; ++step)
        QTest::keyClick(&Line(), Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(Low().SelStart, 1);
    EXPECT_EQ(Low().SelText, u"bcd"_s);
}

TEST_F(CaretTest, Typing_MovesTheCaretOfBothKinds)
{
    Line().setFocus();
    QTest::keyClicks(&Line(), u"abc"_s);
    EXPECT_EQ(Low().SelStart, 3);
    QTest::keyClick(&Line(), Qt::Key_Left);
    EXPECT_EQ(Low().SelStart, 2);

    Lines().setFocus();
    QTest::keyClicks(&Lines(), u"ab"_s);
    QTest::keyClick(&Lines(), Qt::Key_Return);
    QTest::keyClicks(&Lines(), u"c"_s);
    EXPECT_EQ(High().SelStart, 4);
    EXPECT_EQ(High().SelText, QString());
}

TEST_F(CaretTest, InLines_CaretAndSelectionAreKept)
{
    High().Text = u"ab\ncd"_s;
    Select(4, 4);
    EXPECT_EQ(High().SelStart, 4);
    EXPECT_EQ(High().SelText, QString());
    Select(4, 1);
    EXPECT_EQ(High().SelStart, 1);
    EXPECT_EQ(High().SelText, u"b\nc"_s);
}

TEST_F(CaretTest, InLinesWithCarriageReturns_TheyCount)
{
    High().Text = u"ab\r\ncd\r\nef"_s;
    Select(3, 3);
    EXPECT_EQ(High().SelStart, 4);
    Select(7, 7);
    EXPECT_EQ(High().SelStart, 9);
    Select(1, 7);
    EXPECT_EQ(High().SelStart, 1);
    EXPECT_EQ(High().SelText, u"b\r\ncd\r\ne"_s);
    EXPECT_EQ(High().Text.value().mid(High().SelStart, High().SelText.size()), High().SelText);
}

TEST_F(CaretTest, LineBreakByShiftAndEnter_CountsAsOne)
{
    Lines().setFocus();
    QTest::keyClicks(&Lines(), u"a"_s);
    QTest::keyClick(&Lines(), Qt::Key_Return, Qt::ShiftModifier);
    QTest::keyClicks(&Lines(), u"b"_s);
    Lines().selectAll();
    EXPECT_EQ(High().Text.value(), u"a\nb"_s);
    EXPECT_EQ(High().SelText, u"a\nb"_s);
}

TEST_F(CaretTest, TextSetByTheProgram_DropsTheSelectionOfTheOneBefore)
{
    ShowInBoth(u"abcdef"_s);
    Line().setSelection(2, 3);
    Select(2, 5);
    ASSERT_EQ(High().SelText, u"cde"_s);

    ShowInBoth(u"another"_s);

    EXPECT_EQ(Low().SelStart, Line().cursorPosition());
    EXPECT_EQ(Low().SelText, QString());
    EXPECT_EQ(High().SelStart, Lines().textCursor().position());
    EXPECT_EQ(High().SelText, QString());
}

TEST_F(CaretTest, ReplaceSelection_ShowsInTheLine_WithTheCaretBehindIt)
{
    Low().Text = u"abcdef"_s;
    Line().setFocus();
    Line().setSelection(1, 4);
    Low().ReplaceSelection(u"XY"_s);
    EXPECT_EQ(Line().text(), u"aXYf"_s);
    EXPECT_EQ(Line().cursorPosition(), 3);
    EXPECT_FALSE(Line().hasSelectedText());
    EXPECT_EQ(Low().SelStart, 3);

    Low().ReplaceSelection(u"Z"_s);
    EXPECT_EQ(Line().text(), u"aXYZf"_s);
    QTest::keyClicks(&Line(), u"!"_s);
    EXPECT_EQ(Low().Text.value(), u"aXYZ!f"_s);
}

TEST_F(CaretTest, ReplaceSelection_InALineThatHasLostTheFocus_IsAtItsCaret)
{
    Low().Text = u"abcdef"_s;
    Line().setFocus();
    Line().setSelection(1, 4);
    Lines().setFocus();
    EXPECT_EQ(Low().SelText, QString()) << "a line that is left drops its selection";
    Low().ReplaceSelection(u"XY"_s);
    EXPECT_EQ(Line().text(), u"abcdeXYf"_s);
    EXPECT_EQ(Line().cursorPosition(), 7);
}

TEST_F(CaretTest, ReplaceSelection_ShowsInTheLines_WithTheCaretBehindIt)
{
    High().Text = u"ab\ncd"_s;
    Select(1, 4);
    High().ReplaceSelection(u"1\n2"_s);
    EXPECT_EQ(Lines().toPlainText(), u"a1\n2d"_s);
    EXPECT_EQ(Lines().textCursor().position(), 4);
    EXPECT_FALSE(Lines().textCursor().hasSelection());
    EXPECT_EQ(High().SelStart, 4);
    QTest::keyClicks(&Lines(), u"!"_s);
    EXPECT_EQ(High().Text.value(), u"a1\n2!d"_s);
}

TEST_F(CaretTest, ReplaceSelection_InLinesWithCarriageReturns_FindsTheirPlaces)
{
    High().Text = u"ab\r\ncd\r\nef"_s;
    Select(4, 7);
    High().ReplaceSelection(u"1\r\n2"_s);
    EXPECT_EQ(High().Text.value(), u"ab\r\nc1\r\n2f"_s);
    EXPECT_EQ(Lines().toPlainText(), u"ab\nc1\n2f"_s);
    EXPECT_EQ(Lines().textCursor().position(), 7);
    EXPECT_EQ(High().SelStart, 9);
    QTest::keyClicks(&Lines(), u"!"_s);
    EXPECT_EQ(High().Text.value(), u"ab\r\nc1\r\n2!f"_s);
}

TEST_F(CaretTest, ReplaceSelection_StopsAtTheLimitOfBothKinds)
{
    ShowInBoth(QString(18, u'x'));
    Line().setCursorPosition(0);
    Select(0, 0);
    Low().ReplaceSelection(u"abcd"_s);
    High().ReplaceSelection(u"abcd"_s);
    for (const QString& shown : {Line().text(), Lines().toPlainText()})
        EXPECT_EQ(shown, QString(u"ab" + QString(18, u'x')));
    EXPECT_EQ(Line().cursorPosition(), 2);
    EXPECT_EQ(Lines().textCursor().position(), 2);
}

TEST_F(CaretTest, CutAway_LeavesTheCaretWhereTheTextWas)
{
    ShowInBoth(u"abcdef"_s);
    Line().setSelection(0, 3);
    Select(0, 3);
    Low().ReplaceSelection({});
    High().ReplaceSelection({});
    EXPECT_EQ(Line().text(), u"def"_s);
    EXPECT_EQ(Line().cursorPosition(), 0);
    EXPECT_EQ(Lines().toPlainText(), u"def"_s);
    EXPECT_EQ(Lines().textCursor().position(), 0);
}

TEST_F(CaretTest, AWindowThatIsGone_IsTouchedByNothing)
{
    Low().Text = u"abc"_s;
    QLineEdit& line = Line();
    Texts.Unload();
    line.setSelection(0, 2);
    EXPECT_FALSE(Texts.IsLoaded());
    EXPECT_TRUE(Refusals().empty());
}
} // namespace

} // namespace lineforge
