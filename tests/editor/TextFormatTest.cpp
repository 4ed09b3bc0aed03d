#include "editor/TextFormat.h"

#include "support/Printing.h"

#include <gmock/gmock.h>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
QByteArray AllOfWindows1252()
{
    QByteArray bytes;
    for (int code = 1; code < 256; ++code)
        bytes += static_cast<char>(code);
    return bytes.replace('\r', "");
}

class SameBytesTest : public testing::TestWithParam<QByteArray>
{
};

TEST_P(SameBytesTest, File_ReadAndWritten_IsTheSameByteForByte)
{
    const auto formed = ReadForm(GetParam());

    ASSERT_TRUE(formed);
    EXPECT_EQ(WriteForm(*formed).Bytes, GetParam());
    EXPECT_EQ(WriteForm(*formed).Form, formed->Form);
}

INSTANTIATE_TEST_SUITE_P(Files, SameBytesTest,
                         testing::Values(""_ba, "\n"_ba, "\r\n"_ba, "\r"_ba, "no end"_ba, "a\r\nb\r\n"_ba, "a\nb"_ba,
                                         "a\rb\r"_ba, "\r\n\r\n"_ba, "caf\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x8C\xB3\n"_ba,
                                         "\xEF\xBB\xBFwith mark\r\n"_ba, "\xEF\xBB\xBF"_ba,
                                         "\xEF\xBB\xBF\xEF\xBB\xBFtwo marks"_ba, "inside \xEF\xBB\xBF it"_ba,
                                         "caf\xE9\r\n"_ba, "\xEF\xBB\xBF caf\xE9 no UTF-8"_ba, "\x80\x81\x8D\xFF"_ba,
                                         "cut off \xE2\x82"_ba, "\xC2\xA0 \xE2\x80\xA8 \xE2\x80\xA9 \xEF\xBF\xBC"_ba,
                                         "\x0C\x0B\x1B\t\x7F"_ba, AllOfWindows1252()));

TextForm FormOf(const QByteArray& bytes)
{
    const auto formed = ReadForm(bytes);
    return formed ? formed->Form : TextForm();
}

TEST(TextFormatTest, Encoding_IsTheOneThatFits)
{
    EXPECT_EQ(FormOf("plain").Encoding, TextEncoding::Utf8);
    EXPECT_EQ(FormOf("caf\xC3\xA9").Encoding, TextEncoding::Utf8);
    EXPECT_EQ(FormOf("\xEF\xBB\xBFplain").Encoding, TextEncoding::Utf8WithMark);
    EXPECT_EQ(FormOf("caf\xE9").Encoding, TextEncoding::Windows1252);
}

TEST(TextFormatTest, Mark_IsNoPartOfTheText)
{
    EXPECT_EQ(ReadForm("\xEF\xBB\xBFplain")->Text, u"plain"_s);
}

TEST(TextFormatTest, Windows1252_IsReadWithItsOwnCharacters)
{
    EXPECT_EQ(ReadForm("\x80 caf\xE9")->Text, u"\u20AC caf\u00E9"_s);
}

TEST(TextFormatTest, LineEnds_AreThoseThatComeFirst)
{
    EXPECT_EQ(FormOf("a\r\nb\nc").Ends, LineEnds::CrLf);
    EXPECT_EQ(FormOf("a\nb\r\nc").Ends, LineEnds::Lf);
    EXPECT_EQ(FormOf("a\rb\nc").Ends, LineEnds::Cr);
    EXPECT_EQ(FormOf("none").Ends, LineEnds::CrLf);
}

TEST(TextFormatTest, MixedLineEnds_AreTold_AndBecomeAlike)
{
    const auto mixed = ReadForm("a\nb\r\nc\rd");
    ASSERT_TRUE(mixed);
    EXPECT_EQ(mixed->Text, u"a\nb\nc\nd"_s);
    EXPECT_TRUE(mixed->Form.HasMixedEnds);
    EXPECT_EQ(NameOfEnds(mixed->Form), u"LF (mixed)"_s);

    const FormedBytes written = WriteForm(*mixed);
    EXPECT_EQ(written.Bytes, "a\nb\nc\nd"_ba);
    EXPECT_FALSE(written.Form.HasMixedEnds);

    EXPECT_FALSE(FormOf("a\r\nb\r\n").HasMixedEnds);
    EXPECT_TRUE(FormOf("a\r\nb\n").HasMixedEnds);
}

TEST(TextFormatTest, ZeroByte_IsNoText)
{
    EXPECT_FALSE(ReadForm("a\0b"_ba));
    EXPECT_FALSE(ReadForm("\0"_ba));
    EXPECT_FALSE(ReadForm("caf\xE9\0"_ba));
}

TEST(TextFormatTest, CodeThatIsNoCharacter_IsNoText)
{
    EXPECT_FALSE(ReadForm("a\xEF\xB7\x90"_ba)); // U+FDD0
    EXPECT_FALSE(ReadForm("a\xEF\xB7\xAF"_ba)); // U+FDEF
    EXPECT_TRUE(ReadForm("a\xEF\xB7\x8F"_ba));
    EXPECT_TRUE(ReadForm("a\xEF\xB7\xB0"_ba));
}

TEST(TextFormatTest, NewText_IsUtf8WithCrLf)
{
    EXPECT_EQ(WriteForm({u"a\n\u00E9\n"_s, {}}).Bytes, "a\r\n\xC3\xA9\r\n"_ba);
}

TEST(TextFormatTest, TextThatBeginsWithTheMarksCharacter_GetsAMarkBeforeIt)
{
    for (const TextEncoding encoding : {TextEncoding::Utf8, TextEncoding::Utf8WithMark, TextEncoding::Windows1252}) {
        const FormedBytes written = WriteForm({u"\uFEFFa"_s, {encoding}});
        EXPECT_EQ(written.Bytes, "\xEF\xBB\xBF\xEF\xBB\xBF"
                                 "a"_ba);
        EXPECT_EQ(written.Form.Encoding, TextEncoding::Utf8WithMark);
        EXPECT_EQ(ReadForm(written.Bytes)->Text, u"\uFEFFa"_s);
    }
}

TEST(TextFormatTest, Windows1252_StaysWhereAllCharactersFit)
{
    const FormedBytes written = WriteForm({u"\u20AC \u00E9\n"_s, {TextEncoding::Windows1252, LineEnds::Lf}});
    EXPECT_EQ(written.Bytes, "\x80 \xE9\n"_ba);
    EXPECT_EQ(written.Form.Encoding, TextEncoding::Windows1252);
}

TEST(TextFormatTest, Windows1252_BecomesUtf8WhereACharacterDoesNotFit)
{
    const FormedBytes written = WriteForm({u"\u00E9 \u4E2D"_s, {TextEncoding::Windows1252, LineEnds::Lf}});
    EXPECT_EQ(written.Bytes, "\xC3\xA9 \xE4\xB8\xAD"_ba);
    EXPECT_EQ(written.Form.Encoding, TextEncoding::Utf8);
}

TEST(TextFormatTest, Windows1252_BecomesUtf8WhereItWouldBeReadAsSomethingElse)
{
    // The two accents alone would be the bytes of another one in UTF-8.
    const FormedText text{u"\u00C3\u00A9"_s, {TextEncoding::Windows1252, LineEnds::Lf}};
    const FormedBytes written = WriteForm(text);
    EXPECT_EQ(written.Form.Encoding, TextEncoding::Utf8);
    EXPECT_EQ(ReadForm(written.Bytes)->Text, text.Text);
}
} // namespace

} // namespace lineforge
