#include "qt/text/TextSelection.h"

#include <gtest/gtest.h>

namespace lineforge
{
using namespace Qt::StringLiterals;

void PrintTo(const TextPosition& position, std::ostream* out)
{
    *out << position.Line << ',' << position.Column;
}

namespace
{
const QStringList poem{u"0 HEAD"_s, u""_s, u"1 NAME Zo\u00eb"_s, u"\U0001F600!"_s};

TEST(TextSelectionTest, TextBetweenTwoPlaces_HasALineFeedBetweenItsLines)
{
    EXPECT_EQ(TextBetween(poem, {0, 2}, {0, 4}), u"HE");
    EXPECT_EQ(TextBetween(poem, {0, 2}, {2, 1}), u"HEAD\n\n1");
    EXPECT_EQ(TextBetween(poem, {0, 0}, EndOf(poem)), poem.join(u'\n'));
    EXPECT_EQ(TextBetween(poem, {1, 0}, {1, 0}), u"");
    EXPECT_EQ(TextBetween({}, {}, {}), u"");
}

TEST(TextSelectionTest, EveryOffset_IsAPlace_AndBack)
{
    const qsizetype count = poem.join(u'\n').size();
    for (qsizetype offset = 0; offset <= count; ++offset)
        EXPECT_EQ(OffsetOf(poem, PositionOf(poem, offset)), offset);
    EXPECT_EQ(PositionOf(poem, count + 5), EndOf(poem));
    EXPECT_EQ(PositionOf(poem, -5), TextPosition());
    EXPECT_EQ(PositionOf({}, 3), TextPosition());
}

TEST(TextSelectionTest, Word_IsLettersAndDigits_ElseOneCharacter)
{
    EXPECT_EQ(WordAt(poem, {2, 4}), (TextSelection{{2, 2}, {2, 6}}));
    EXPECT_EQ(WordAt(poem, {2, 10}), (TextSelection{{2, 7}, {2, 10}}));
    EXPECT_EQ(WordAt(poem, {3, 2}), (TextSelection{{3, 2}, {3, 3}}));
    EXPECT_TRUE(WordAt(poem, {1, 0}).IsEmpty());
    EXPECT_TRUE(WordAt({}, {}).IsEmpty());
}

TEST(TextSelectionTest, OneCharacterOnAndBack_OverTheEndsOfLines_AndNeverIntoOne)
{
    EXPECT_EQ(After(poem, {0, 6}), (TextPosition{1, 0}));
    EXPECT_EQ(After(poem, {3, 0}), (TextPosition{3, 2}));
    EXPECT_EQ(After(poem, EndOf(poem)), EndOf(poem));
    EXPECT_EQ(Before(poem, {1, 0}), (TextPosition{0, 6}));
    EXPECT_EQ(Before(poem, {3, 2}), (TextPosition{3, 0}));
    EXPECT_EQ(Before(poem, {0, 0}), (TextPosition{0, 0}));
    EXPECT_EQ(After({}, {}), TextPosition());
    EXPECT_EQ(Before({}, {}), TextPosition());
}

TEST(TextSelectionTest, SelectionDrawnBackwards_HasItsEndsInOrder)
{
    const TextSelection selection{{2, 3}, {0, 5}};
    EXPECT_EQ(selection.First(), (TextPosition{0, 5}));
    EXPECT_EQ(selection.Last(), (TextPosition{2, 3}));
    EXPECT_FALSE(selection.IsEmpty());
}

} // namespace
} // namespace lineforge
