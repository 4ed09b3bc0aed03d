#include "platform/controls/Controls.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::TestWithParam;
using testing::Values;

struct Replacement {
    QString Text;
    int SelStart;
    QString SelText;
    QString Taken;
    QString Result;
    int Caret;
    int MaxLength = 0;
};

void PrintTo(const Replacement& row, std::ostream* out)
{
    PrintTo(row.Taken, out);
    *out << " at " << row.SelStart << " over ";
    PrintTo(row.SelText, out);
    *out << " in ";
    PrintTo(row.Text, out);
}

class ReplaceSelectionTest : public TestWithParam<Replacement>
{
};

TEST_P(ReplaceSelectionTest, Text_TakesThePlaceOfTheSelection_AndTheCaretStandsBehindIt)
{
    Container window;
    TextBox box(window, u"Text1", {}, GetParam().MaxLength);
    box.Text = GetParam().Text;
    box.SelStart = GetParam().SelStart;
    box.SelText = GetParam().SelText;

    box.ReplaceSelection(GetParam().Taken);

    EXPECT_EQ(box.Text.value(), GetParam().Result);
    EXPECT_EQ(box.SelStart, GetParam().Caret);
    EXPECT_EQ(box.SelText, QString());
}

INSTANTIATE_TEST_SUITE_P(Selection, ReplaceSelectionTest,
                         Values(Replacement{u"abcdef"_s, 2, u"cd"_s, u"X"_s, u"abXef"_s, 3},
                                Replacement{u"abcdef"_s, 0, u"ab"_s, u"XYZ"_s, u"XYZcdef"_s, 3},
                                Replacement{u"abcdef"_s, 4, u"ef"_s, u"X"_s, u"abcdX"_s, 5},
                                Replacement{u"abcdef"_s, 0, u"abcdef"_s, u"X"_s, u"X"_s, 1},
                                Replacement{u"abcdef"_s, 2, u"cd"_s, u""_s, u"abef"_s, 2},
                                Replacement{u"a\r\nb"_s, 1, u"\r\n"_s, u" "_s, u"a b"_s, 2}));
INSTANTIATE_TEST_SUITE_P(Caret, ReplaceSelectionTest,
                         Values(Replacement{u"abc"_s, 0, u""_s, u"X"_s, u"Xabc"_s, 1},
                                Replacement{u"abc"_s, 1, u""_s, u"XY"_s, u"aXYbc"_s, 3},
                                Replacement{u"abc"_s, 3, u""_s, u"X"_s, u"abcX"_s, 4},
                                Replacement{u"abc"_s, 1, u""_s, u""_s, u"abc"_s, 1},
                                Replacement{u""_s, 0, u""_s, u"one\r\ntwo"_s, u"one\r\ntwo"_s, 8}));
INSTANTIATE_TEST_SUITE_P(Limit, ReplaceSelectionTest,
                         Values(Replacement{u"abc"_s, 1, u""_s, u"XYZ"_s, u"aXYbc"_s, 3, 5},
                                Replacement{u"abcde"_s, 1, u"bc"_s, u"XYZ"_s, u"aXYde"_s, 3, 5},
                                Replacement{u"abcde"_s, 5, u""_s, u"X"_s, u"abcde"_s, 5, 5},
                                Replacement{u"abcde"_s, 0, u"abcde"_s, u"1234567"_s, u"12345"_s, 5, 5},
                                Replacement{u"abc"_s, 3, u""_s, u"XY"_s, u"abcXY"_s, 5, 5}));
// A letter that is stored as two goes whole or not at all.
INSTANTIATE_TEST_SUITE_P(LimitWithinALetter, ReplaceSelectionTest,
                         Values(Replacement{u"abc"_s, 3, u""_s, u"X\U0001F600"_s, u"abcX"_s, 4, 5},
                                Replacement{u"abc"_s, 3, u""_s, u"\U0001F600Y"_s, u"abc\U0001F600"_s, 5, 5}));
// The row held more than the box would have taken.
INSTANTIATE_TEST_SUITE_P(TextBeyondTheLimit, ReplaceSelectionTest,
                         Values(Replacement{u"abcdefgh"_s, 2, u""_s, u"X"_s, u"abcdefgh"_s, 2, 5},
                                Replacement{u"abcdefgh"_s, 2, u"c"_s, u"X"_s, u"abXdefgh"_s, 3, 5},
                                Replacement{u"abcdefgh"_s, 2, u"c"_s, u"XY"_s, u"abXdefgh"_s, 3, 5},
                                Replacement{u"abcdefgh"_s, 2, u"cdef"_s, u"XYZ"_s, u"abXYZgh"_s, 5, 5}));
// The text has become another since the box told of its selection.
INSTANTIATE_TEST_SUITE_P(StaleSelection, ReplaceSelectionTest,
                         Values(Replacement{u"abc"_s, 2, u"cdefgh"_s, u"X"_s, u"abX"_s, 3},
                                Replacement{u"abc"_s, 9, u"xyz"_s, u"X"_s, u"abcX"_s, 4},
                                Replacement{u""_s, 9, u"xyz"_s, u"X"_s, u"X"_s, 1},
                                Replacement{u""_s, 9, u"xyz"_s, u""_s, u""_s, 0},
                                Replacement{u"abc"_s, -1, u""_s, u"X"_s, u"Xabc"_s, 1}));

// Feeds a text, and counts what is done to it.
struct CountingSource : TextSource {
    void Settle() override {}
    void Edited(const ControlText&) override { ++Edits; }
    void Forget(const ControlText&) override {}
    int Edits = 0;
};

TEST(ReplaceSelectionInBoundBoxTest, LockedItTakesNothing_AndTheSelectionStays)
{
    Container window;
    TextBox box(window, u"Text1", {});
    box.Text = u"abc"_s;
    box.SelText = u"b"_s;
    box.SelStart = 1;
    box.Locked = true;

    box.ReplaceSelection(u"X"_s);

    EXPECT_EQ(box.Text.value(), u"abc"_s);
    EXPECT_EQ(box.SelText, u"b"_s);
}

TEST(ReplaceSelectionInBoundBoxTest, ItIsAnEdit)
{
    CountingSource source;
    Container window;
    TextBox box(window, u"Text1", {});
    box.Text.Attach(&source);

    box.ReplaceSelection(u"x"_s);

    EXPECT_EQ(source.Edits, 1);
}

TEST(ReplaceSelectionInBoundBoxTest, WhoeverShowsTheBox_IsToldOfTheCaretOnce_WhenAllElseStands)
{
    Container window;
    TextBox box(window, u"Text1", {});
    box.Text = u"abc"_s;
    box.SelStart = 1;
    QStringList told;
    box.CaretMoved = [&] { told += u"%1 in %2"_s.arg(QString::number(box.SelStart), box.Text.value()); };

    box.ReplaceSelection(u"XY"_s);

    EXPECT_EQ(told, QStringList{u"3 in aXYbc"_s});
}

} // namespace
} // namespace lineforge
