#include "compare/TextDifference.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{

struct Texts {
    QStringView A;
    QStringView B;
    QStringView DiffersInA;
    QStringView DiffersInB;
};

class DifferenceTest : public testing::TestWithParam<Texts>
{
};

TEST_P(DifferenceTest, IsWhatIsLeftBetweenWhatIsAlike)
{
    const QStringView a = GetParam().A;
    const QStringView b = GetParam().B;
    const auto [inA, inB] = DifferenceOf(a, b);
    EXPECT_EQ(a.mid(inA.Start, inA.Length), GetParam().DiffersInA);
    EXPECT_EQ(b.mid(inB.Start, inB.Length), GetParam().DiffersInB);
}

INSTANTIATE_TEST_SUITE_P(
    Pairs, DifferenceTest,
    testing::Values(Texts{u"", u"", u"", u""}, Texts{u"Smith", u"Smith", u"", u""}, Texts{u"SMITH", u"smith", u"", u""},
                    Texts{u"Smith", u"", u"Smith", u""}, Texts{u"1 May 1901", u"2 May 1901", u"1", u"2"},
                    Texts{u"York", u"New York", u"", u"New "}, Texts{u"aaa", u"aa", u"a", u""},
                    Texts{u"abab", u"ab", u"ab", u""}, Texts{u"Ann Mary", u"Ann Rose Mary", u"", u"Rose "},
                    Texts{u"Éva", u"éva B", u"", u" B"}, Texts{u"John", u"Mary", u"John", u"Mary"}));

} // namespace
} // namespace lineforge
