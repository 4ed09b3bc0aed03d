#include "platform/base/FixedArray.h"

#include "support/Printing.h"
#include "support/Refusal.h"

#include <gtest/gtest.h>
#include <limits>

namespace lineforge
{
namespace
{

using Letters = FixedArray<QString, 1, 26>;

TEST(FixedArrayTest, FreshTable_HoldsDefaults)
{
    const FixedArray<int, 0, 9> numbers;
    for (int index = numbers.First(); index <= numbers.Last(); ++index)
        EXPECT_EQ(numbers[index], 0);
}

TEST(FixedArrayTest, Bounds_AreBothUsable)
{
    Letters letters;
    letters[1] = QStringLiteral("A");
    letters[26] = QStringLiteral("Z");

    EXPECT_EQ(Letters::First(), 1);
    EXPECT_EQ(Letters::Last(), 26);
    EXPECT_EQ(letters[1], u"A");
    EXPECT_EQ(letters[26], u"Z");
}

TEST(FixedArrayTest, NegativeLowerBound_CountsFromThere)
{
    FixedArray<int, -2, 2> numbers;
    numbers[-2] = 7;

    EXPECT_EQ(numbers[-2], 7);
    EXPECT_EQ(numbers[-1], 0);
    EXPECT_EQ(RefusalOf([&] { numbers[-3] = 1; }), ErrorNumber::Subscript);
}

TEST(FixedArrayTest, IndexOutsideTheBounds_IsSubscriptError_ForReadingAndWriting)
{
    Letters letters;
    const Letters& readOnly = letters;

    for (const int index : {0, 27, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_EQ(RefusalOf([&] { letters[index] = QStringLiteral("x"); }), ErrorNumber::Subscript) << index;
        EXPECT_EQ(RefusalOf([&] { static_cast<void>(readOnly[index]); }), ErrorNumber::Subscript) << index;
    }
    EXPECT_EQ(letters, Letters());
}

TEST(FixedArrayTest, Erase_ForgetsEverything)
{
    Letters letters;
    letters[1] = QStringLiteral("A");
    letters[26] = QStringLiteral("Z");

    letters.Erase();

    EXPECT_EQ(letters, Letters());
    EXPECT_EQ(letters[26], QString());
}

TEST(FixedArrayTest, CopyOfATable_IsItsOwn)
{
    Letters letters;
    Letters copy = letters;
    copy[3] = QStringLiteral("C");

    EXPECT_EQ(letters[3], QString());
    EXPECT_NE(letters, copy);
}

} // namespace
} // namespace lineforge
