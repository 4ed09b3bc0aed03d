#include "platform/base/Text.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using testing::TestWithParam;
using testing::Values;

struct Pair {
    QStringView A;
    QStringView B;
    bool AreSame;
};

void PrintTo(const Pair& pair, std::ostream* out)
{
    PrintTo(pair.A, out);
    *out << " and ";
    PrintTo(pair.B, out);
}

int Sign(int number)
{
    return (number > 0) - (number < 0);
}

class SameTextTest : public TestWithParam<Pair>
{
};

TEST_P(SameTextTest, BothForms_AgreeEitherWayRound)
{
    const auto [a, b, areSame] = GetParam();

    EXPECT_EQ(SameText(a, b), areSame);
    EXPECT_EQ(SameText(b, a), areSame);
    EXPECT_EQ(SameText(QByteArrayView(a.toUtf8()), b), areSame);
    EXPECT_EQ(SameText(QByteArrayView(b.toUtf8()), a), areSame);
}

TEST_P(SameTextTest, Order_IsEqualExactlyForTheSameText_AndTurnsAround)
{
    const QByteArray a = GetParam().A.toUtf8();
    const QByteArray b = GetParam().B.toUtf8();

    EXPECT_EQ(CompareText(a, b) == 0, GetParam().AreSame);
    EXPECT_EQ(Sign(CompareText(a, b)), -Sign(CompareText(b, a)));
}

INSTANTIATE_TEST_SUITE_P(Ascii, SameTextTest,
                         Values(Pair{u"", u"", true}, Pair{u"", u"a", false}, Pair{u"A001", u"a001", true},
                                Pair{u"A001", u"A002", false}, Pair{u"A001", u"A0011", false},
                                Pair{u"Smith", u"sMITH", true}, Pair{u"a", u" a", false}, Pair{u"a", u"a ", false},
                                Pair{u"[", u"{", false}, Pair{u"@", u"`", false}, Pair{u"_", u"Z", false}));
INSTANTIATE_TEST_SUITE_P(Accents, SameTextTest,
                         Values(Pair{u"M\u00fcller", u"M\u00dcLLER", true}, Pair{u"\u00e9", u"\u00c9", true},
                                Pair{u"\u00e9", u"e", false}, Pair{u"e\u0301", u"\u00e9", false},
                                Pair{u"\u0416\u0435\u043d\u044f", u"\u0436\u0435\u043d\u044f", true},
                                Pair{u"\u00df", u"ss", false}, Pair{u"\u00df", u"\u00df", true},
                                Pair{u"aa\u00e9", u"aa", false}, Pair{u"aa", u"aa\u00e9", false},
                                Pair{u"\u00e9a", u"\u00c9b", false}));
// The Kelvin sign and the long s fold to ASCII letters.
INSTANTIATE_TEST_SUITE_P(LettersThatFoldToAscii, SameTextTest,
                         Values(Pair{u"\u212A", u"k", true}, Pair{u"\u212A", u"K", true}, Pair{u"\u212A1", u"k1", true},
                                Pair{u"\u212A1", u"k2", false}, Pair{u"a\u212A", u"AK", true},
                                Pair{u"\u017f", u"s", true}, Pair{u"\u212B", u"\u00e5", true},
                                Pair{u"k\u212A", u"\u212Ak", true}));
INSTANTIATE_TEST_SUITE_P(BeyondTheBasicPlane, SameTextTest,
                         Values(Pair{u"\U00010400", u"\U00010428", true}, Pair{u"\U0001F600", u"\U0001F600", true},
                                Pair{u"\U0001F600", u"\U0001F601", false}));

INSTANTIATE_TEST_SUITE_P(ByteOrderMarks, SameTextTest,
                         Values(Pair{u"\uFEFFa", u"\uFEFFA", true}, Pair{u"\uFEFFa", u"a", false},
                                Pair{u"\uFEFF", u"", false}, Pair{u"\uFEFF\uFEFFa", u"\uFEFFa", false}));

TEST(CompareTextTest, Order_IgnoresCase)
{
    EXPECT_LT(CompareText("apple", "Banana"), 0);
    EXPECT_GT(CompareText("cherry", "Banana"), 0);
    EXPECT_LT(CompareText("Ann", "anna"), 0);
    EXPECT_LT(CompareText("", "a"), 0);
}

TEST(SameTextEdgeTest, NullText_IsTheEmptyText)
{
    EXPECT_TRUE(SameText(QStringView(), QStringView(u"")));
    EXPECT_TRUE(SameText(QByteArrayView(), QStringView()));
    EXPECT_FALSE(SameText(QByteArrayView(), QStringView(u"a")));
    EXPECT_EQ(CompareText(QByteArrayView(), QByteArrayView("")), 0);
}

TEST(SameTextEdgeTest, TextWithZeroCharacter_IsComparedToItsEnd)
{
    EXPECT_FALSE(SameText(QByteArrayView("a\0b", 3), QStringView(u"a\0c", 3)));
    EXPECT_TRUE(SameText(QByteArrayView("a\0b", 3), QStringView(u"A\0B", 3)));
}

} // namespace
} // namespace lineforge
