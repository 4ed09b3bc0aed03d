#include "platform/files/TextFile.h"

#include "platform/base/RuntimeError.h"
#include "support/Refusal.h"
#include "support/TemporaryHome.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class TextReaderTest : public testing::Test
{
protected:
    TextReader Reading(const QByteArray& bytes)
    {
        home.WriteFile(u"file.txt", bytes);
        return TextReader(files, u"file.txt"_s);
    }

    static QString Rest(TextReader& reader)
    {
        QString rest;
        while (!reader.AtEnd())
            rest += reader.Next();
        return rest;
    }

    TemporaryHome home;
    FileSystem files{home.Path()};
};

TEST_F(TextReaderTest, Characters_ComeOneByOne_LineEndsIncluded)
{
    TextReader reader = Reading("a\r\nb");

    EXPECT_EQ(reader.Next(), u'a');
    EXPECT_EQ(reader.Next(), u'\r');
    EXPECT_EQ(reader.Next(), u'\n');
    EXPECT_FALSE(reader.AtEnd());
    EXPECT_EQ(reader.Next(), u'b');
    EXPECT_TRUE(reader.AtEnd());
}

TEST_F(TextReaderTest, ReadingPastTheEnd_IsInputPastEnd)
{
    TextReader empty = Reading({});
    EXPECT_TRUE(empty.AtEnd());
    EXPECT_EQ(RefusalOf([&] { empty.Next(); }), ErrorNumber::InputPastEnd);

    TextReader reader = Reading("a");
    reader.Next();
    EXPECT_EQ(RefusalOf([&] { reader.Next(); }), ErrorNumber::InputPastEnd);
}

TEST_F(TextReaderTest, MissingFile_IsFileNotFound)
{
    EXPECT_EQ(RefusalOf([&] { TextReader(files, u"missing.txt"_s); }), ErrorNumber::FileNotFound);
}

struct Skip {
    const char* Text;
    QStringView Name;
    bool IsFound;
    QStringView Rest;
};

void PrintTo(const Skip& skip, std::ostream* out)
{
    PrintTo(skip.Name, out);
    *out << " in \"" << skip.Text << '"';
}

class SkipPastTest : public TextReaderTest, public testing::WithParamInterface<Skip>
{
};

TEST_P(SkipPastTest, Name_IsPassedOrNot_AndReadingGoesOnBehind)
{
    TextReader reader = Reading(GetParam().Text);

    EXPECT_EQ(reader.SkipPast(GetParam().Name), GetParam().IsFound);
    EXPECT_EQ(Rest(reader), GetParam().Rest);
}

INSTANTIATE_TEST_SUITE_P(
    Found, SkipPastTest,
    testing::Values(Skip{"[Boxes]1,2", u"[Boxes]", true, u"1,2"}, Skip{"x\r\n[Boxes]\r\n1", u"[Boxes]", true, u"\r\n1"},
                    Skip{"[bOXES]1", u"[Boxes]", true, u"1"}, Skip{"[Boxes]", u"[Boxes]", true, u""},
                    Skip{"[Box [Boxes]1", u"[Boxes]", true, u"1"}, Skip{"abc", u"", true, u"abc"}));
INSTANTIATE_TEST_SUITE_P(NotFound, SkipPastTest,
                         testing::Values(Skip{"", u"[Boxes]", false, u""}, Skip{"[Boxes", u"[Boxes]", false, u""},
                                         Skip{"nothing here", u"[Boxes]", false, u""}));
// The character that breaks a match isn't looked at again, so that a name right behind it is passed over.
INSTANTIATE_TEST_SUITE_P(MatchBroken, SkipPastTest,
                         testing::Values(Skip{"[[Boxes]1", u"[Boxes]", false, u""},
                                         Skip{"[[[Boxes]1", u"[Boxes]", true, u"1"},
                                         Skip{"[Bo[Boxes]1", u"[Boxes]", false, u""},
                                         Skip{"[Box][Boxes]1", u"[Boxes]", true, u"1"}, Skip{"aab", u"ab", false, u""},
                                         Skip{"aaab", u"ab", true, u""}));

TEST_F(TextReaderTest, SecondName_IsSoughtBehindTheFirst)
{
    TextReader reader = Reading("[A]1[B]2[A]3");

    EXPECT_TRUE(reader.SkipPast(u"[B]"));
    EXPECT_TRUE(reader.SkipPast(u"[A]"));
    EXPECT_EQ(Rest(reader), u"3");
}

TEST_F(TextReaderTest, NameWithAccent_IsPassedInOtherCase)
{
    TextReader reader = Reading(u"[\u00c9t\u00e9]1"_s.toUtf8());

    EXPECT_TRUE(reader.SkipPast(u"[\u00e9T\u00c9]"));
    EXPECT_EQ(Rest(reader), u"1");
}

struct Encoded {
    QByteArray Bytes;
    QString Text;
};

void PrintTo(const Encoded& encoded, std::ostream* out)
{
    PrintTo(encoded.Bytes, out);
}

class DecodeTextTest : public testing::TestWithParam<Encoded>
{
};

TEST_P(DecodeTextTest, Bytes_AreReadByTheirEncoding)
{
    EXPECT_EQ(DecodeText(GetParam().Bytes), GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(
    Utf8, DecodeTextTest,
    testing::Values(Encoded{"", u""_s}, Encoded{"plain", u"plain"_s}, Encoded{"Z\xC3\xBCrich", u"Z\u00fcrich"_s},
                    Encoded{"\xE2\x82\xAC", u"\u20ac"_s}, Encoded{"\xF0\x9F\x98\x80", u"\U0001F600"_s},
                    Encoded{"\xEF\xBB\xBFmark", u"mark"_s}, Encoded{QByteArray("a\0b", 3), u"a\0b"_s}));
INSTANTIATE_TEST_SUITE_P(Windows1252, DecodeTextTest,
                         testing::Values(Encoded{"Z\xFCrich", u"Z\u00fcrich"_s}, Encoded{"\x80 5", u"\u20ac 5"_s},
                                         Encoded{"\x93quoted\x94", u"\u201cquoted\u201d"_s},
                                         Encoded{"\x9F\xFF", u"\u0178\u00ff"_s}, Encoded{"\x81", u"\u0081"_s},
                                         Encoded{"\xA0\xBF", u"\u00a0\u00bf"_s}));
// One byte that is no UTF-8 makes the whole file an old one.
INSTANTIATE_TEST_SUITE_P(NearlyUtf8, DecodeTextTest,
                         testing::Values(Encoded{"\xC3\xBC and \xFC", u"\u00c3\u00bc and \u00fc"_s},
                                         Encoded{"cut off \xC3", u"cut off \u00c3"_s},
                                         Encoded{"cut off \xE2\x82", u"cut off \u00e2\u201a"_s},
                                         Encoded{"\xC0\x80", u"\u00c0\u20ac"_s}));

TEST_F(TextReaderTest, OldFile_KeepsItsAccents)
{
    TextReader reader = Reading("[Boxes]\r\n1,2,Zo\xEB,");

    EXPECT_TRUE(reader.SkipPast(u"[boxes]"));
    EXPECT_EQ(Rest(reader), u"\r\n1,2,Zo\u00eb,");
}

class WriteTextLinesTest : public TextReaderTest
{
};

TEST_F(WriteTextLinesTest, EveryLine_EndsWithCarriageReturnAndLineFeed)
{
    WriteTextLines(files, u"out.txt"_s, {u"one"_s, QString(), u"Zo\u00eb"_s});

    EXPECT_EQ(home.ReadFile(u"out.txt"), "one\r\n\r\nZo\xC3\xAB\r\n");
}

TEST_F(WriteTextLinesTest, NoLines_MakeAnEmptyFile)
{
    home.WriteFile(u"out.txt", "old");

    WriteTextLines(files, u"out.txt"_s, {});

    EXPECT_EQ(home.ReadFile(u"out.txt"), QByteArray());
}

TEST_F(WriteTextLinesTest, WrittenText_ReadsBackTheSame)
{
    WriteTextLines(files, u"out.txt"_s, {u"\u00c9t\u00e9 \u20ac \U0001F600"_s});

    TextReader reader(files, u"out.txt"_s);
    EXPECT_EQ(Rest(reader), u"\u00c9t\u00e9 \u20ac \U0001F600\r\n");
}

} // namespace
} // namespace lineforge
