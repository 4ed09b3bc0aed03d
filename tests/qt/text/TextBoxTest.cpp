#include "qt/WindowTest.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct TextForm : Form {
    TextForm() : Form(u"TextForm", u"Texts", {6000, 3000}) {}
    Label Label1{*this, u"Label1", {150, 150, 900, 255}, u"Surname"};
    TextBox Text1{*this, u"Text1", {1200, 150, 3000, 315}, 5};
    TextBox Text2{*this, u"Text2", {1200, 600, 3000, 315}};
    TextBox Text3{*this, u"Text3", {1200, 1050, 3000, 900}, 8};
};

// A source that counts what it is told.
struct CountingSource : TextSource {
    void Settle() override {}
    void Edited(const ControlText&) override { ++Edits; }
    void Forget(const ControlText&) override {}
    int Edits = 0;
};

struct TextBoxTest : WindowTest {
    CountingSource Source;
    Window<TextForm> Texts{System()};
    void SetUp() override
    {
        Texts->Text1.Text.Attach(&Source);
        Texts->Text3.Text.Attach(&Source);
        Texts->Visible = true;
    }
    QLineEdit& Line(const QString& name) { return Find<QLineEdit>(*Texts, name); }
    QPlainTextEdit& Lines() { return Find<QPlainTextEdit>(*Texts, u"Text3"_s); }
};

TEST_F(TextBoxTest, CtrlAndTheSpaceBar_AreAClick_ThatLeavesTheSelection)
{
    for (TextBox* box : {&Texts->Text2, &Texts->Text3}) {
        QString selected;
        box->Text = u"Smith"_s;
        box->Click = [&selected, box] { selected += box->SelText + u'|'; };
        auto& field = Find<QWidget>(*Texts, box->Name);
        field.setFocus();
        QTest::keyClick(ViewOf(*Texts).windowHandle(), Qt::Key_Home, Qt::ControlModifier);
        for (int step = 0; step < 2; ++step)
            QTest::keyClick(ViewOf(*Texts).windowHandle(), Qt::Key_Right, Qt::ShiftModifier);
        QTest::keyClick(ViewOf(*Texts).windowHandle(), Qt::Key_Space, Qt::ControlModifier);
        EXPECT_EQ(selected, u"Sm|"_s);
        EXPECT_EQ(box->Text.value(), u"Smith"_s);
    }
}

TEST_F(TextBoxTest, ShowsWhatTheProgramSets)
{
    Texts->Text1.Text = u"Smith"_s;
    EXPECT_EQ(Line(u"Text1"_s).text(), u"Smith"_s);
}

TEST_F(TextBoxTest, TypingSetsTheText_AndIsAnEditEachTime)
{
    QTest::keyClicks(&Line(u"Text1"_s), u"abc"_s);
    EXPECT_EQ(Texts->Text1.Text.value(), u"abc"_s);
    EXPECT_EQ(Source.Edits, 3);
}

TEST_F(TextBoxTest, WhatTheSourceShowsIsNoEdit)
{
    Texts->Text1.Text.Show(u"row"_s);
    Texts->Text3.Text.Show(u"note"_s);
    ServeEvents();
    EXPECT_EQ(Line(u"Text1"_s).text(), u"row"_s);
    EXPECT_EQ(Lines().toPlainText(), u"note"_s);
    EXPECT_EQ(Source.Edits, 0);
}

TEST_F(TextBoxTest, TypingInTheMiddleLeavesTheCursorThere)
{
    Texts->Text1.Text = u"ad"_s;
    Activate(*Texts);
    Line(u"Text1"_s).setFocus();
    Line(u"Text1"_s).setCursorPosition(1);
    QTest::keyClicks(&Line(u"Text1"_s), u"bc"_s);
    EXPECT_EQ(Texts->Text1.Text.value(), u"abcd"_s);
    EXPECT_EQ(Line(u"Text1"_s).cursorPosition(), 3);
}

TEST_F(TextBoxTest, MaxLengthStopsTyping_AndZeroIsNoLimit)
{
    QTest::keyClicks(&Line(u"Text1"_s), u"abcdefgh"_s);
    QTest::keyClicks(&Line(u"Text2"_s), u"abcdefgh"_s);
    EXPECT_EQ(Texts->Text1.Text.value(), u"abcde"_s);
    EXPECT_EQ(Texts->Text2.Text.value(), u"abcdefgh"_s);
}

TEST_F(TextBoxTest, MarkedStretch_StandsOutInAHighBox_AlsoWhenTheTextChanges)
{
    const auto marked = [this] {
        const QList<QTextEdit::ExtraSelection> marks = Lines().extraSelections();
        return marks.isEmpty() ? QString() : marks.first().cursor.selectedText();
    };
    Texts->Text3.Text = u"York"_s;
    Texts->Text3.Marked = TextRange{1, 2};
    EXPECT_EQ(marked(), u"or"_s);
    Texts->Text3.Text = u"Leeds"_s;
    EXPECT_EQ(marked(), u"ee"_s);
    Texts->Text3.Text = u"a\r\nbcd"_s;
    Texts->Text3.Marked = TextRange{3, 2};
    EXPECT_EQ(marked(), u"bc"_s);
    Texts->Text3.Marked = TextRange{90, 2};
    EXPECT_EQ(marked(), QString());
    Texts->Text3.Marked = TextRange{};
    EXPECT_TRUE(Lines().extraSelections().isEmpty());
}

TEST_F(TextBoxTest, AHighBoxHoldsSeveralLines)
{
    QTest::keyClicks(&Lines(), u"ab"_s);
    QTest::keyClick(&Lines(), Qt::Key_Return);
    QTest::keyClicks(&Lines(), u"cd"_s);
    EXPECT_EQ(Texts->Text3.Text.value(), u"ab\ncd"_s);
    Texts->Text3.Text = u"x\ny"_s;
    EXPECT_EQ(Lines().toPlainText(), u"x\ny"_s);
}

TEST_F(TextBoxTest, AHighBoxStopsAtMaxLength_AndDropsWhatWasTypedLast)
{
    Texts->Text3.Text = u"12345678"_s;
    Lines().moveCursor(QTextCursor::Start);
    QTest::keyClicks(&Lines(), u"abc"_s);
    EXPECT_EQ(Texts->Text3.Text.value(), u"12345678"_s);
    Texts->Text3.Text = u"123456"_s;
    Lines().moveCursor(QTextCursor::Start);
    Lines().insertPlainText(u"abcd"_s);
    EXPECT_EQ(Texts->Text3.Text.value(), u"ab123456"_s);
}

// One that is stored as two, pasted where just one has room.
TEST_F(TextBoxTest, MaxLength_TakesNoLetterApart)
{
    Texts->Text1.Text = u"abcd"_s;
    Line(u"Text1"_s).setCursorPosition(1);
    Line(u"Text1"_s).insert(u"\U0001F600"_s);
    EXPECT_EQ(Texts->Text1.Text.value(), u"abcd"_s);
    EXPECT_EQ(Line(u"Text1"_s).text(), u"abcd"_s);
    EXPECT_EQ(Line(u"Text1"_s).cursorPosition(), 1);
    Line(u"Text1"_s).setText(u"abc\U0001F600"_s);
    EXPECT_EQ(Texts->Text1.Text.value(), u"abc\U0001F600"_s);

    Texts->Text3.Text = u"123456"_s;
    Lines().moveCursor(QTextCursor::Start);
    Lines().insertPlainText(u"a\U0001F600b"_s);
    EXPECT_EQ(Texts->Text3.Text.value(), u"a123456"_s);
    EXPECT_EQ(Lines().toPlainText(), u"a123456"_s);
}

TEST_F(TextBoxTest, AHighBoxKeepsTheLineEndsOfItsText)
{
    Texts->Text3.Text = u"a\r\nb"_s;
    Lines().moveCursor(QTextCursor::End);
    QTest::keyClicks(&Lines(), u"c"_s);
    EXPECT_EQ(Texts->Text3.Text.value(), u"a\r\nbc"_s);
}

TEST_F(TextBoxTest, TabGoesOnInTheOrderOfTheControls_OutOfAHighBoxToo)
{
    QWidget& window = ViewOf(*Texts);
    Activate(*Texts);
    Line(u"Text1"_s).setFocus();
    QStringList visited;
    for (int step = 0; step < 3; ++step) {
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        visited += window.focusWidget()->objectName();
    }
    EXPECT_EQ(visited, QStringList({u"Text2"_s, u"Text3"_s, u"Text1"_s}));
}

TEST_F(TextBoxTest, AClickReachesItsHandler_OfBothKinds)
{
    int clicks = 0;
    Texts->Text1.Click = Texts->Text3.Click = [&clicks] { ++clicks; };
    QTest::mouseClick(&Line(u"Text1"_s), Qt::LeftButton);
    QTest::mouseClick(Lines().viewport(), Qt::LeftButton);
    EXPECT_EQ(clicks, 2);
    QTest::mouseClick(&Line(u"Text1"_s), Qt::RightButton);
    EXPECT_EQ(clicks, 2);
}

TEST_F(TextBoxTest, DisabledItTakesNoClickAndNoText)
{
    int clicks = 0;
    Texts->Text1.Click = [&clicks] { ++clicks; };
    Texts->Text1.Enabled = false;
    QTest::mouseClick(&Line(u"Text1"_s), Qt::LeftButton);
    QTest::keyClicks(&Line(u"Text1"_s), u"abc"_s);
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(Texts->Text1.Text.value(), QString());
}

TEST_F(TextBoxTest, ALongTextBeginsWithItsBeginning)
{
    Texts->Text2.Text = QString(300, u'x');
    EXPECT_EQ(Line(u"Text2"_s).cursorPosition(), 0);
}
} // namespace

} // namespace lineforge
