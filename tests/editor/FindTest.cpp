#include "editor/EditorTest.h"
#include "editor/FindBar.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QTest>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct FindTest : EditorTest {
    void Seek(const QString& text, const QString& sought)
    {
        Area().SetText(text);
        Choose(u"Find"_s);
        Find<QLineEdit>(u"Sought"_s).setText(sought);
    }
    // The place of what is marked, from its first character; -1 when nothing is.
    int Marked()
    {
        const QTextCursor cursor = Area().textCursor();
        return cursor.hasSelection() ? cursor.selectionStart() : -1;
    }
    QString Message() { return Shown(u"FindMessage"_s); }
    FindBar& Bar() { return *dynamic_cast<FindBar*>(&Find<QWidget>(u"FindBar"_s)); }
};

TEST_F(FindTest, Bar_IsHiddenUntilItIsAskedFor)
{
    EXPECT_FALSE(Bar().isVisible());
    Choose(u"Find"_s);
    EXPECT_TRUE(Bar().isVisible());
    EXPECT_TRUE(Find<QLineEdit>(u"Sought"_s).hasFocus());
    EXPECT_FALSE(Find<QLineEdit>(u"Replacement"_s).isVisible());
}

TEST_F(FindTest, Next_GoesFromPlaceToPlace_AndRoundTheEnd)
{
    Seek(u"one two one\none"_s, u"one"_s);
    Choose(u"FindNext"_s);
    EXPECT_EQ(Marked(), 0);
    Choose(u"FindNext"_s);
    EXPECT_EQ(Marked(), 8);
    Choose(u"FindNext"_s);
    EXPECT_EQ(Marked(), 12);
    EXPECT_EQ(Message(), QString());
    Choose(u"FindNext"_s);
    EXPECT_EQ(Marked(), 0);
    EXPECT_EQ(Message(), u"The search went on from the beginning of the text."_s);
}

TEST_F(FindTest, Previous_GoesBack_AndRoundTheBeginning)
{
    Seek(u"one two one\none"_s, u"one"_s);
    Choose(u"FindPrevious"_s);
    EXPECT_EQ(Marked(), 12);
    EXPECT_EQ(Message(), u"The search went on from the end of the text."_s);
    Choose(u"FindPrevious"_s);
    EXPECT_EQ(Marked(), 8);
    EXPECT_EQ(Message(), QString());
}

TEST_F(FindTest, WhatIsNotThere_IsTold_AndTheCaretStays)
{
    Seek(u"one two"_s, u"three"_s);
    Area().moveCursor(QTextCursor::End);
    Choose(u"FindNext"_s);
    EXPECT_EQ(Message(), u"Not found: \u201Cthree\u201D"_s);
    EXPECT_EQ(Area().textCursor().position(), 7);
    Find<QLineEdit>(u"Sought"_s).setText(u"two"_s);
    EXPECT_EQ(Message(), QString());
}

TEST_F(FindTest, WhatIsNotThere_IsToldEvenAfterTheBarWasClosed)
{
    Seek(u"one two"_s, u"three"_s);
    ClickButton(u"CloseFindBar"_s);
    EXPECT_FALSE(Bar().isVisible());
    EXPECT_TRUE(Area().hasFocus());
    Choose(u"FindNext"_s);
    EXPECT_TRUE(Bar().isVisible());
    EXPECT_EQ(Message(), u"Not found: \u201Cthree\u201D"_s);
}

TEST_F(FindTest, Case_CountsOnlyWhenItIsAskedFor)
{
    Seek(u"ONE One one"_s, u"one"_s);
    Choose(u"FindNext"_s);
    EXPECT_EQ(Marked(), 0);
    Find<QCheckBox>(u"MatchCase"_s).setChecked(true);
    Choose(u"FindNext"_s);
    EXPECT_EQ(Marked(), 8);
    Choose(u"FindNext"_s);
    EXPECT_EQ(Marked(), 8);
}

TEST_F(FindTest, Accents_AreFoundWithoutRegardToCase)
{
    Seek(u"caf\u00C9"_s, u"\u00E9"_s);
    Choose(u"FindNext"_s);
    EXPECT_EQ(Marked(), 3);
}

TEST_F(FindTest, Sought_IsPlainText)
{
    Seek(u"abc a.c"_s, u"a.c"_s);
    Choose(u"FindNext"_s);
    EXPECT_EQ(Marked(), 4);
}

TEST_F(FindTest, NoBreakBlank_IsFoundByItselfAndByAPlainOne)
{
    Seek(u"no\u00A0break"_s, u"o\u00A0b"_s);
    Choose(u"FindNext"_s);
    EXPECT_EQ(Marked(), 1);
    Find<QLineEdit>(u"Sought"_s).setText(u"o b"_s);
    Choose(u"FindNext"_s);
    EXPECT_EQ(Marked(), 1);
}

TEST_F(FindTest, WhatIsMarkedInOneLine_IsProposed)
{
    Area().SetText(u"one two"_s);
    Area().moveCursor(QTextCursor::EndOfWord, QTextCursor::KeepAnchor);
    Choose(u"Find"_s);
    EXPECT_EQ(Find<QLineEdit>(u"Sought"_s).text(), u"one"_s);
}

TEST_F(FindTest, SeveralMarkedLines_AreNotProposed)
{
    Area().SetText(u"one\ntwo"_s);
    Area().selectAll();
    Choose(u"Find"_s);
    EXPECT_EQ(Find<QLineEdit>(u"Sought"_s).text(), QString());
}

TEST_F(FindTest, NextWithNothingToLookFor_AsksForIt)
{
    Choose(u"FindNext"_s);
    EXPECT_TRUE(Bar().isVisible());
    EXPECT_TRUE(Find<QLineEdit>(u"Sought"_s).hasFocus());
}

TEST_F(FindTest, EnterAndEscape_WorkInTheField)
{
    Seek(u"one two one"_s, u"one"_s);
    auto& field = Find<QLineEdit>(u"Sought"_s);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(Marked(), 0);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(Marked(), 8);
    QTest::keyClick(&field, Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(Marked(), 0);
    QTest::keyClick(&field, Qt::Key_Escape);
    EXPECT_FALSE(Bar().isVisible());
    EXPECT_TRUE(Area().hasFocus());
}

TEST_F(FindTest, Buttons_SearchBothWays)
{
    Seek(u"one two one"_s, u"one"_s);
    ClickButton(u"NextButton"_s);
    ClickButton(u"NextButton"_s);
    EXPECT_EQ(Marked(), 8);
    ClickButton(u"PreviousButton"_s);
    EXPECT_EQ(Marked(), 0);
}

TEST_F(FindTest, Searching_ChangesNothing)
{
    Seek(u"one two"_s, u"two"_s);
    Choose(u"FindNext"_s);
    EXPECT_FALSE(IsModified());
    EXPECT_EQ(Shown(u"Position"_s), u"Line 1, Column 8"_s);
}
} // namespace

} // namespace lineforge
