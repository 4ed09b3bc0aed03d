#include "platform/base/VisibleText.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{

using testing::TestWithParam;
using testing::Values;

class UnseenTextTest : public TestWithParam<QStringView>
{
};

TEST_P(UnseenTextTest, ShowsNothing_AlsoAmongOthers_ButNotBesideALetter)
{
    const QString text = GetParam().toString();
    EXPECT_TRUE(ShowsNothing(text));
    EXPECT_TRUE(ShowsNothing(QString(text + u" \u200B" + text)));
    EXPECT_FALSE(ShowsNothing(QString(text + u'a')));
    EXPECT_FALSE(ShowsNothing(QString(u'a' + text)));
}

INSTANTIATE_TEST_SUITE_P(Empty, UnseenTextTest, Values(QStringView(), u""));
INSTANTIATE_TEST_SUITE_P(Blanks, UnseenTextTest,
                         Values(u" ", u"\t", u"\n", u"\u0085", u"\u00A0", u"\u1680", u"\u2000", u"\u200A", u"\u2028",
                                u"\u2029", u"\u202F", u"\u205F", u"\u3000", u"\u2800"));
INSTANTIATE_TEST_SUITE_P(Controls, UnseenTextTest, Values(QStringView(u"\0", 1), u"\u0001", u"\u007F", u"\u009F"));
INSTANTIATE_TEST_SUITE_P(Ignorable, UnseenTextTest,
                         Values(u"\u00AD", u"\u034F", u"\u061C", u"\u115F", u"\u1160", u"\u17B4", u"\u180B", u"\u180E",
                                u"\u200B", u"\u200D", u"\u200E", u"\u202E", u"\u2060", u"\u2064", u"\u2065", u"\u206F",
                                u"\u3164", u"\uFE00", u"\uFE0F", u"\uFEFF", u"\uFFA0", u"\uFFF0", u"\uFFF8",
                                u"\U0001D173", u"\U000E0000", u"\U000E0001", u"\U000E007F", u"\U000E0100",
                                u"\U000E0FFF"));
INSTANTIATE_TEST_SUITE_P(MarksAlone, UnseenTextTest, Values(u"\u0301", u"\u0903", u"\u20DD", u"\U0001D165"));

class SeenTextTest : public TestWithParam<QStringView>
{
};

TEST_P(SeenTextTest, ShowsSomething)
{
    EXPECT_FALSE(ShowsNothing(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Texts, SeenTextTest,
                         Values(u"a", u" a ", u".", u"-", u"e\u0301", u"\u0416", u"\uAC00", u"\u1100", u"\u2801",
                                u"\uFFFD", u"\U0001F600", u"\U0001F600\uFE0F", u"\U00010400", u"\u200Ba"));

} // namespace
} // namespace lineforge
