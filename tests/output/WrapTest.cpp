#include "output/Wrap.h"

#include "support/Printing.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::Values;
using testing::WithParamInterface;

QString RunOf(int length, QChar letter = u'x')
{
    return QString(length, letter);
}

struct Cut {
    const char* Name;
    QString Value;
    QStringList Lines;
};

void PrintTo(const Cut& cut, std::ostream* out)
{
    *out << cut.Name;
}

class WrapTest : public testing::Test, public WithParamInterface<Cut>
{
};

TEST_P(WrapTest, Value_BecomesTheseLines)
{
    ScratchState scratch;

    EXPECT_EQ(Wrapped(scratch, GetParam().Value), GetParam().Lines);

    EXPECT_EQ(scratch.IdxA, GetParam().Lines.last().size());
    EXPECT_EQ(scratch.LenScratch, 80);
}

INSTANTIATE_TEST_SUITE_P(
    Short, WrapTest,
    Values(Cut{"Empty_IsOneLineOfTheAddedBlank", QString(), {u" "_s}}, Cut{"OneWord", u"Word"_s, {u"Word "_s}},
           Cut{"78Characters_AreOneLine", RunOf(78), {RunOf(78) + u' '}},
           // 80 with the added blank, which is where it is cut; nothing is left for the second line.
           Cut{"79Characters_AreTwoLines", RunOf(79), {RunOf(79) + u' ', QString()}},
           Cut{"79CharactersOfTwoWords_AreTwoLines",
               RunOf(40) + u' ' + RunOf(38, u'y'),
               {RunOf(40) + u' ' + RunOf(38, u'y') + u' ', QString()}}));

INSTANTIATE_TEST_SUITE_P(Long, WrapTest,
                         Values(Cut{"CutBehindTheLastBlankOfTheFirst80",
                                    RunOf(30) + u' ' + RunOf(40, u'y') + u' ' + RunOf(30, u'z'),
                                    {RunOf(30) + u' ' + RunOf(40, u'y') + u' ', RunOf(30, u'z') + u' '}},
                                Cut{"BlankInPlace80_StaysOnItsLine",
                                    RunOf(79) + u' ' + RunOf(10, u'y'),
                                    {RunOf(79) + u' ', RunOf(10, u'y') + u' '}},
                                Cut{"BlankInPlace81_IsTooLate",
                                    RunOf(40) + u' ' + RunOf(39, u'y') + u' ' + RunOf(5, u'z'),
                                    {RunOf(40) + u' ', RunOf(39, u'y') + u' ' + RunOf(5, u'z') + u' '}},
                                Cut{"AgainAndAgain",
                                    RunOf(70) + u' ' + RunOf(70, u'y') + u' ' + RunOf(70, u'z'),
                                    {RunOf(70) + u' ', RunOf(70, u'y') + u' ', RunOf(70, u'z') + u' '}},
                                Cut{"RestOf80_LeavesAnEmptyLine",
                                    RunOf(10) + u' ' + RunOf(79, u'y'),
                                    {RunOf(10) + u' ', RunOf(79, u'y') + u' ', QString()}},
                                Cut{"BlankInFront_IsALineWhenNothingElseFits",
                                    u' ' + RunOf(79, u'y') + u' ' + RunOf(3, u'z'),
                                    {u" "_s, RunOf(79, u'y') + u' ', RunOf(3, u'z') + u' '}},
                                Cut{"SeveralBlanks_AreKept",
                                    RunOf(70) + u"   "_s + RunOf(20, u'y'),
                                    {RunOf(70) + u"   "_s, RunOf(20, u'y') + u' '}}));

// Only blanks count.
INSTANTIATE_TEST_SUITE_P(LineBreaks, WrapTest,
                         Values(Cut{"Short_StaysOnePiece", u"first\r\nsecond\nthird"_s, {u"first\r\nsecond\nthird "_s}},
                                Cut{"Long_IsCutAtBlanksAlone",
                                    RunOf(50) + u' ' + RunOf(20, u'y') + u"\r\n"_s + RunOf(20, u'z'),
                                    {RunOf(50) + u' ', RunOf(20, u'y') + u"\r\n"_s + RunOf(20, u'z') + u' '}},
                                Cut{"Tab_IsNoBlankEither",
                                    RunOf(50) + u' ' + RunOf(20, u'y') + u'\t' + RunOf(20, u'z'),
                                    {RunOf(50) + u' ', RunOf(20, u'y') + u'\t' + RunOf(20, u'z') + u' '}}));

class WrapLongRunTest : public testing::Test, public WithParamInterface<int>
{
};

TEST_P(WrapLongRunTest, AloneWithoutABlank_IsPutOutWhole_AndNothingIsLost)
{
    ScratchState scratch;

    const QStringList lines = Wrapped(scratch, RunOf(GetParam()));

    EXPECT_EQ(lines.first(), RunOf(GetParam()) + u' ');
    EXPECT_EQ(lines.join(QString()), RunOf(GetParam()) + u' ');
}

TEST_P(WrapLongRunTest, AmongWords_StandsOnALineOfItsOwn_AndNothingIsLost)
{
    const QString value = u"before it "_s + RunOf(GetParam()) + u" behind it"_s;

    ScratchState scratch;

    const QStringList lines = Wrapped(scratch, value);

    EXPECT_EQ(lines, QStringList({u"before it "_s, RunOf(GetParam()) + u' ', u"behind it "_s}));
    EXPECT_EQ(lines.join(QString()), value + u' ');
}

INSTANTIATE_TEST_SUITE_P(Lengths, WrapLongRunTest, Values(80, 81, 159, 160, 161, 5000));

// As a recursion or a rescan of the rest at every cut would.
TEST(WrapLongValueTest, MillionCharacters_TakeNoTime)
{
    const QString value = QString(u"word "_s).repeated(200'000);

    ScratchState scratch;

    EXPECT_EQ(Wrapped(scratch, value).join(QString()), value + u' ');
}

} // namespace
} // namespace lineforge
