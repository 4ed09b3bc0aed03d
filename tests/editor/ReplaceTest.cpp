#include "editor/EditorTest.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QTest>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct ReplaceTest : EditorTest {
    void Prepare(const QString& text, const QString& sought, const QString& replacement)
    {
        Area().SetText(text);
        Choose(u"Replace"_s);
        Find<QLineEdit>(u"Sought"_s).setText(sought);
        Find<QLineEdit>(u"Replacement"_s).setText(replacement);
    }
    QString Message() { return Shown(u"FindMessage"_s); }
};

TEST_F(ReplaceTest, Bar_HasARowForIt)
{
    Choose(u"Replace"_s);
    EXPECT_TRUE(Find<QLineEdit>(u"Replacement"_s).isVisible());
    Choose(u"Find"_s);
    EXPECT_FALSE(Find<QLineEdit>(u"Replacement"_s).isVisible());
}

TEST_F(ReplaceTest, Replace_FirstFinds_ThenReplacesAndGoesOn)
{
    Prepare(u"one two one"_s, u"one"_s, u"1"_s);
    ClickButton(u"ReplaceButton"_s);
    EXPECT_EQ(Area().Text(), u"one two one"_s);
    ClickButton(u"ReplaceButton"_s);
    EXPECT_EQ(Area().Text(), u"1 two one"_s);
    ClickButton(u"ReplaceButton"_s);
    EXPECT_EQ(Area().Text(), u"1 two 1"_s);
    EXPECT_EQ(Message(), u"Not found: \u201Cone\u201D"_s);
}

TEST_F(ReplaceTest, Enter_InTheReplacement_Replaces)
{
    Prepare(u"one"_s, u"one"_s, u"1"_s);
    auto& field = Find<QLineEdit>(u"Replacement"_s);
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_Return);
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_EQ(Area().Text(), u"1"_s);
}

TEST_F(ReplaceTest, MarkedWordThatIsNotSought_StaysAsItIs)
{
    Prepare(u"one two"_s, u"two"_s, u"2"_s);
    Area().moveCursor(QTextCursor::Start);
    Area().moveCursor(QTextCursor::EndOfWord, QTextCursor::KeepAnchor);
    ClickButton(u"ReplaceButton"_s);
    EXPECT_EQ(Area().Text(), u"one two"_s);
}

TEST_F(ReplaceTest, ReplaceAll_ReplacesAll_TellsHowMany_AndIsOneStepBack)
{
    Prepare(u"one two ONE\none"_s, u"one"_s, u"one one"_s);
    ClickButton(u"ReplaceAllButton"_s);
    EXPECT_EQ(Area().Text(), u"one one two one one\none one"_s);
    EXPECT_EQ(Message(), u"3 replaced."_s);
    EXPECT_TRUE(IsModified());
    Choose(u"Undo"_s);
    EXPECT_EQ(Area().Text(), u"one two ONE\none"_s);
    EXPECT_FALSE(IsModified());
}

TEST_F(ReplaceTest, ReplaceAll_StartsAtTheBeginning_WhereverTheCaretIs)
{
    Prepare(u"a b a"_s, u"a"_s, u"c"_s);
    Area().moveCursor(QTextCursor::End);
    ClickButton(u"ReplaceAllButton"_s);
    EXPECT_EQ(Area().Text(), u"c b c"_s);
}

TEST_F(ReplaceTest, ReplaceAll_WithMatchedCase_LeavesTheOthers)
{
    Prepare(u"one ONE"_s, u"ONE"_s, u"1"_s);
    Find<QCheckBox>(u"MatchCase"_s).setChecked(true);
    ClickButton(u"ReplaceAllButton"_s);
    EXPECT_EQ(Area().Text(), u"one 1"_s);
}

TEST_F(ReplaceTest, ReplaceAll_ByNothing_TakesAway)
{
    Prepare(u"a, b, c"_s, u", "_s, u""_s);
    ClickButton(u"ReplaceAllButton"_s);
    EXPECT_EQ(Area().Text(), u"abc"_s);
}

TEST_F(ReplaceTest, ReplaceAll_OfWhatIsNotThere_TellsIt_AndChangesNothing)
{
    Prepare(u"one"_s, u"two"_s, u"2"_s);
    ClickButton(u"ReplaceAllButton"_s);
    EXPECT_EQ(Message(), u"Not found: \u201Ctwo\u201D"_s);
    EXPECT_FALSE(IsModified());
}

TEST_F(ReplaceTest, ReplaceAll_OfNothing_DoesNothing)
{
    Prepare(u"one"_s, u""_s, u"2"_s);
    ClickButton(u"ReplaceAllButton"_s);
    EXPECT_EQ(Area().Text(), u"one"_s);
}
} // namespace

} // namespace lineforge
