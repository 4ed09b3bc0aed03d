#include "platform/base/Like.h"

#include "support/Printing.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>
#include <random>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::TestWithParam;
using testing::Values;

struct Comparison {
    QString Pattern;
    QString Text;
    bool Fits;
};

void PrintTo(const Comparison& row, std::ostream* out)
{
    PrintTo(row.Text, out);
    *out << (row.Fits ? " like " : " not like ");
    PrintTo(row.Pattern, out);
}

class LikeTest : public TestWithParam<Comparison>
{
};

TEST_P(LikeTest, Text_FitsThePatternOrDoesNot_EitherWay)
{
    const LikePattern pattern(GetParam().Pattern);
    EXPECT_EQ(pattern.Matches(GetParam().Text), GetParam().Fits);
    EXPECT_EQ(pattern.Matches(QByteArrayView(GetParam().Text.toUtf8())), GetParam().Fits);
}

INSTANTIATE_TEST_SUITE_P(Plain, LikeTest,
                         Values(Comparison{u"Leeds"_s, u"Leeds"_s, true}, Comparison{u"Leeds"_s, u"Leed"_s, false},
                                Comparison{u"Leeds"_s, u"Leeds "_s, false}, Comparison{u"Leeds"_s, u" Leeds"_s, false},
                                Comparison{u"a.b\\c"_s, u"a.b\\c"_s, true}, Comparison{u"a.b"_s, u"axb"_s, false},
                                Comparison{u"a%_"_s, u"abc"_s, false}));
INSTANTIATE_TEST_SUITE_P(Empty, LikeTest,
                         Values(Comparison{u""_s, u""_s, true}, Comparison{u""_s, u"a"_s, false},
                                Comparison{u"*"_s, u""_s, true}, Comparison{u"**"_s, u""_s, true},
                                Comparison{u"?"_s, u""_s, false}, Comparison{u"#"_s, u""_s, false},
                                Comparison{u"*a*"_s, u""_s, false}, Comparison{u"[!a]"_s, u""_s, false},
                                Comparison{u"a"_s, u""_s, false}, Comparison{u"[]"_s, u""_s, true}));
INSTANTIATE_TEST_SUITE_P(Run, LikeTest,
                         Values(Comparison{u"*"_s, u"anything"_s, true}, Comparison{u"Le*"_s, u"Le"_s, true},
                                Comparison{u"Le*"_s, u"Leeds"_s, true}, Comparison{u"Le*"_s, u"Ale"_s, false},
                                Comparison{u"*ds"_s, u"Leeds"_s, true}, Comparison{u"*ds"_s, u"Leeds."_s, false},
                                Comparison{u"L*d*s"_s, u"Leeds"_s, true}, Comparison{u"L*x*s"_s, u"Leeds"_s, false},
                                Comparison{u"*eed*"_s, u"Leeds"_s, true}, Comparison{u"*Leeds*"_s, u"Leeds"_s, true},
                                Comparison{u"*Leedsx*"_s, u"Leeds"_s, false},
                                Comparison{u"*edx*"_s, u"edexedx"_s, true}, Comparison{u"*aab*"_s, u"aaaab"_s, true},
                                Comparison{u"**a***b**"_s, u"xaxbx"_s, true},
                                Comparison{u"*\r\nb*"_s, u"a\r\nb"_s, true}));
INSTANTIATE_TEST_SUITE_P(AnyOne, LikeTest,
                         Values(Comparison{u"?"_s, u"a"_s, true}, Comparison{u"?"_s, u"ab"_s, false},
                                Comparison{u"?"_s, u"\u00eb"_s, true}, Comparison{u"Sm?th"_s, u"Smyth"_s, true},
                                Comparison{u"Sm?th"_s, u"Smth"_s, false}, Comparison{u"*?"_s, u"a"_s, true},
                                Comparison{u"??*"_s, u"a"_s, false}, Comparison{u"?"_s, u"*"_s, true}));
INSTANTIATE_TEST_SUITE_P(Digit, LikeTest,
                         Values(Comparison{u"A###"_s, u"A001"_s, true}, Comparison{u"A###"_s, u"A00"_s, false},
                                Comparison{u"A###"_s, u"A00x"_s, false}, Comparison{u"#"_s, u"9"_s, true},
                                Comparison{u"#"_s, u"#"_s, false}, Comparison{u"#"_s, u"\u0663"_s, false},
                                Comparison{u"*####*"_s, u"in 1901, perhaps"_s, true}));
INSTANTIATE_TEST_SUITE_P(Class, LikeTest,
                         Values(Comparison{u"[abc]"_s, u"b"_s, true}, Comparison{u"[abc]"_s, u"d"_s, false},
                                Comparison{u"[abc]"_s, u"ab"_s, false}, Comparison{u"[!abc]"_s, u"d"_s, true},
                                Comparison{u"[!abc]"_s, u"b"_s, false}, Comparison{u"Sm[iy]th"_s, u"Smyth"_s, true},
                                Comparison{u"[?]"_s, u"?"_s, true}, Comparison{u"[?]"_s, u"a"_s, false},
                                Comparison{u"[*]"_s, u"*"_s, true}, Comparison{u"[*]"_s, u"ab"_s, false},
                                Comparison{u"[#]"_s, u"#"_s, true}, Comparison{u"[#]"_s, u"1"_s, false},
                                Comparison{u"[[]"_s, u"["_s, true}, Comparison{u"[!]"_s, u"!"_s, true},
                                Comparison{u"[!]"_s, u"a"_s, false}, Comparison{u"[!!]"_s, u"!"_s, false},
                                Comparison{u"[!!]"_s, u"a"_s, true}, Comparison{u"[a!]"_s, u"!"_s, true},
                                Comparison{u"*[0-9][!0-9]"_s, u"A001b"_s, true},
                                Comparison{u"*[0-9][!0-9]"_s, u"A0012"_s, false}));
INSTANTIATE_TEST_SUITE_P(Range, LikeTest,
                         Values(Comparison{u"[a-c]"_s, u"a"_s, true}, Comparison{u"[a-c]"_s, u"c"_s, true},
                                Comparison{u"[a-c]"_s, u"d"_s, false}, Comparison{u"[a-c]"_s, u"-"_s, false},
                                Comparison{u"[!a-c]"_s, u"b"_s, false}, Comparison{u"[!a-c]"_s, u"-"_s, true},
                                Comparison{u"[a-cx]"_s, u"x"_s, true}, Comparison{u"[xa-c]"_s, u"b"_s, true},
                                Comparison{u"[a-c0-3]"_s, u"2"_s, true}, Comparison{u"[a-c0-3]"_s, u"4"_s, false},
                                Comparison{u"[a-a]"_s, u"a"_s, true},
                                Comparison{u"[\u00e0-\u00ef]"_s, u"\u00eb"_s, true}));
INSTANTIATE_TEST_SUITE_P(FallingRange, LikeTest,
                         Values(Comparison{u"[c-a]"_s, u"b"_s, false}, Comparison{u"[c-a]"_s, u"c"_s, false},
                                Comparison{u"[c-ax]"_s, u"x"_s, true}, Comparison{u"[!c-a]"_s, u"b"_s, true}));
INSTANTIATE_TEST_SUITE_P(Hyphen, LikeTest,
                         Values(Comparison{u"[-a]"_s, u"-"_s, true}, Comparison{u"[-a]"_s, u"a"_s, true},
                                Comparison{u"[a-]"_s, u"-"_s, true}, Comparison{u"[a-]"_s, u"b"_s, false},
                                Comparison{u"[!-a]"_s, u"-"_s, false}, Comparison{u"[!a-]"_s, u"b"_s, true},
                                Comparison{u"[-]"_s, u"-"_s, true}, Comparison{u"[a-c-e]"_s, u"d"_s, false},
                                Comparison{u"[a-c-e]"_s, u"-"_s, true}, Comparison{u"[a-c-e]"_s, u"e"_s, true}));
INSTANTIATE_TEST_SUITE_P(Brackets, LikeTest,
                         Values(Comparison{u"a[]b"_s, u"ab"_s, true}, Comparison{u"a[]b"_s, u"a[]b"_s, false},
                                Comparison{u"[]]"_s, u"]"_s, true}, Comparison{u"a["_s, u"a["_s, true},
                                Comparison{u"[abc"_s, u"[abc"_s, true}, Comparison{u"[abc"_s, u"a"_s, false},
                                Comparison{u"[a*"_s, u"[abc"_s, true}, Comparison{u"a]"_s, u"a]"_s, true},
                                Comparison{u"[[a]"_s, u"a"_s, true}, Comparison{u"*[*"_s, u"a[b"_s, true}));
INSTANTIATE_TEST_SUITE_P(CaseIgnored, LikeTest,
                         Values(Comparison{u"leeds"_s, u"LEEDS"_s, true}, Comparison{u"LEEDS"_s, u"leeds"_s, true},
                                Comparison{u"*EED*"_s, u"Leeds"_s, true}, Comparison{u"*eed*"_s, u"LEEDS"_s, true},
                                Comparison{u"zo\u00cb"_s, u"Zo\u00eb"_s, true},
                                Comparison{u"*\u00e9t\u00e9*"_s, u"un \u00c9T\u00c9"_s, true},
                                Comparison{u"*ann*"_s, u"Zo\u00eb ANN"_s, true}, Comparison{u"[A-C]"_s, u"b"_s, true},
                                Comparison{u"[a-c]"_s, u"B"_s, true}, Comparison{u"[!A]"_s, u"a"_s, false},
                                Comparison{u"[\u00c9]"_s, u"\u00e9"_s, true}, Comparison{u"e"_s, u"\u00e9"_s, false},
                                Comparison{u"*@[`{*"_s, u"`[@{"_s, false}));

// A plain reading of the same rules: tries everything, which takes as long as it takes.
class PlainMatcher
{
public:
    static bool Fits(QStringView pattern, QStringView text)
    {
        if (pattern.isEmpty())
            return text.isEmpty();
        const QChar first = pattern.front();
        if (first == u'*')
            return Fits(pattern.sliced(1), text) || (!text.isEmpty() && Fits(pattern, text.sliced(1)));
        const qsizetype closing = first == u'[' ? pattern.indexOf(u']') : -1;
        if (closing == 1)
            return Fits(pattern.sliced(2), text);
        if (text.isEmpty())
            return false;
        if (closing > 1)
            return IsInClass(pattern.sliced(1, closing - 1), text.front()) &&
                   Fits(pattern.sliced(closing + 1), text.sliced(1));
        const bool fits =
            first == u'?' || (first == u'#' ? text.front() >= u'0' && text.front() <= u'9' : Same(first, text.front()));
        return fits && Fits(pattern.sliced(1), text.sliced(1));
    }

private:
    static bool Same(QChar one, QChar other) { return one.toLower() == other.toLower(); }

    static bool IsInClass(QStringView members, QChar character)
    {
        if (members.size() > 1 && members.front() == u'!')
            return !IsMember(members.sliced(1), character);
        return IsMember(members, character);
    }

    static bool IsMember(QStringView members, QChar character)
    {
        if (members.isEmpty())
            return false;
        if (members.size() >= 3 && members[1] == u'-')
            return (members[0].toLower() <= character.toLower() && character.toLower() <= members[2].toLower()) ||
                   IsMember(members.sliced(3), character);
        return Same(members.front(), character) || IsMember(members.sliced(1), character);
    }
};

class RandomLikeTest : public testing::Test
{
protected:
    QString Some(QStringView characters, int upTo)
    {
        QString text;
        for (int length = Below(upTo + 1); length > 0; --length)
            text += characters[Below(static_cast<int>(characters.size()))];
        return text;
    }

    int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

    // Fails once for each way that comes to another answer than the plain matcher; false when one does.
    static bool Compare(const QString& pattern, const QString& text)
    {
        const bool expected = PlainMatcher::Fits(pattern, text);
        const LikePattern like(pattern);
        const bool agree = like.Matches(text) == expected && like.Matches(QByteArrayView(text.toUtf8())) == expected;
        EXPECT_TRUE(agree) << '"' << text.toStdString() << "\" and \"" << pattern.toStdString() << '"';
        return expected;
    }

private:
    std::mt19937 random_{19};
};

TEST_F(RandomLikeTest, ShortTextsAndPatterns_AgreeWithThePlainMatcher)
{
    int fitting = 0;
    for (int round = 0; round < 30'000; ++round)
        fitting += Compare(Some(u"**??#[[]]!-aAbB\u00e9\u00c93", 7), Some(u"aAbB\u00e9\u00c93-[]!", 6));
    EXPECT_GT(fitting, 1000);
}

TEST_F(RandomLikeTest, SoughtTexts_AgreeWithThePlainMatcher)
{
    int fitting = 0;
    for (int round = 0; round < 10'000; ++round) {
        const QString pattern = u'*' + Some(u"aAbB1 ", 4) + u'*';
        fitting += Compare(pattern, Some(round % 2 ? u"aAbB1 " : u"aAbB1 \u00e9\u00df", 12));
    }
    EXPECT_GT(fitting, 1000);
}

TEST(LongLikeTest, LongRunsUnderManyStars_TakeBoundedTime)
{
    constexpr qint64 enough = 5000;
    QElapsedTimer clock;
    clock.start();
    const QString longRun(20'000, u'a');

    EXPECT_FALSE(LikePattern(u"*a*a*a*b").Matches(longRun));
    EXPECT_TRUE(LikePattern(u"*a*a*a*b").Matches(QString(longRun + u'b')));
    EXPECT_FALSE(LikePattern(QString(u"*a"_s.repeated(50) + u"*b")).Matches(longRun));
    EXPECT_FALSE(LikePattern(u"*[a]*?a*[!b]*b").Matches(QByteArrayView(longRun.toUtf8())));
    EXPECT_FALSE(LikePattern(u"*ab*").Matches(QByteArrayView(longRun.toUtf8())));
    EXPECT_FALSE(LikePattern(u"*ab*").Matches(QByteArrayView(longRun.toUpper().toUtf8())));

    EXPECT_LT(clock.elapsed(), enough);
}

TEST(LongLikeTest, PatternMayBeAskedAgainAndAgain)
{
    const LikePattern pattern(u"*[A-C]##");
    for (int round = 0; round < 3; ++round) {
        EXPECT_TRUE(pattern.Matches(u"xb01"));
        EXPECT_FALSE(pattern.Matches(u"xd01"));
    }
}

} // namespace
} // namespace lineforge
