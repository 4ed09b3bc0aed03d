#include "jet/JetText.h"

#include "jet/Refused.h"

#include <gtest/gtest.h>

namespace lineforge::jet
{
namespace
{
using namespace std::string_view_literals;

struct Stored {
    std::string_view Bytes;
    std::string_view Text;
    bool IsWhole = true;
};

std::string Decoded(JetText text, const Stored& stored)
{
    std::string utf8 = "<";
    EXPECT_EQ(text.Append(stored.Bytes, utf8), stored.IsWhole);
    return utf8;
}

class UnicodeTextTest : public testing::TestWithParam<Stored>
{
};

TEST_P(UnicodeTextTest, IsAppendedAsUtf8)
{
    EXPECT_EQ(Decoded(JetText::InUnicode(), GetParam()), "<" + std::string(GetParam().Text));
}

INSTANTIATE_TEST_SUITE_P(Plain, UnicodeTextTest,
                         testing::Values(Stored{""sv, ""sv}, Stored{"A\0b\0"sv, "Ab"sv},
                                         Stored{"\xE9\0\x42\x01"sv, "\u00E9\u0142"sv}, Stored{"A\0\0\0b\0"sv, "A\0b"sv},
                                         Stored{"\x34\xD8\x1E\xDD"sv, "\U0001D11E"sv},
                                         // Half a pair, at the end, before a letter and the wrong half.
                                         Stored{"A\0\x34\xD8"sv, "A\uFFFD"sv, false},
                                         Stored{"\x34\xD8\x41\0"sv, "\uFFFDA"sv, false},
                                         Stored{"\x1E\xDD\x41\0"sv, "\uFFFDA"sv, false},
                                         // Half a character.
                                         Stored{"A\0b"sv, "A\uFFFD"sv, false}));

INSTANTIATE_TEST_SUITE_P(Compressed, UnicodeTextTest,
                         testing::Values(Stored{"\xFF\xFE"sv, ""sv}, Stored{"\xFF\xFE\x41\x62"sv, "Ab"sv},
                                         Stored{"\xFF\xFE\x41\xE9"sv, "A\u00E9"sv},
                                         Stored{"\xFF\xFE\x41\0\x42\x01\x43\x01\0\x62"sv, "A\u0142\u0143b"sv},
                                         Stored{"\xFF\xFE\x41\0\x42"sv, "A\uFFFD"sv, false}));

struct StoredInPage : Stored {
    unsigned CodePage;
};

class CodePageTextTest : public testing::TestWithParam<StoredInPage>
{
};

TEST_P(CodePageTextTest, IsAppendedAsUtf8)
{
    EXPECT_EQ(Decoded(JetText::InCodePage(GetParam().CodePage), GetParam()), "<" + std::string(GetParam().Text));
}

INSTANTIATE_TEST_SUITE_P(Pages, CodePageTextTest,
                         testing::Values(StoredInPage{{"Ab\\~"sv, "Ab\\~"sv}, 1252},
                                         StoredInPage{{"\xE9\x80\x96"sv, "\u00E9\u20AC\u2013"sv}, 1252},
                                         StoredInPage{{"\xE9\x80\x96"sv, "\u00E9\u20AC\u2013"sv}, 0},
                                         StoredInPage{{"\xF8\xB3"sv, "\u0159\u0142"sv}, 1250},
                                         StoredInPage{{"\xC4\xE0"sv, "\u0414\u0430"sv}, 1251},
                                         StoredInPage{{"\x93\xFA\x41"sv, "\u65E5A"sv}, 932},
                                         // Not in this page, and cut in the middle.
                                         StoredInPage{{"A\x81z"sv, "A\uFFFDz"sv, false}, 1252},
                                         StoredInPage{{"A\x93"sv, "A\uFFFD"sv, false}, 932}));

TEST(CodePageTest, UnknownOne_IsRefused)
{
    EXPECT_THROW(JetText::InCodePage(4711), Refused);
}

// Letters that a mark may follow are held back by the converters of these pages.
TEST(CodePageTextTest, ALastLetter_BelongsToItsOwnText)
{
    JetText vietnamese = JetText::InCodePage(1258);
    std::string first;
    std::string second;
    EXPECT_TRUE(vietnamese.Append("Nguy\xEA"sv, first));
    EXPECT_TRUE(vietnamese.Append("Ho\xE0"sv, second));
    EXPECT_EQ(first, "Nguy\u00EA");
    EXPECT_EQ(second, "Ho\u00E0");

    JetText hebrew = JetText::InCodePage(1255);
    std::string name;
    EXPECT_TRUE(hebrew.Append("\xF9\xF8\xE4"sv, name));
    EXPECT_EQ(name, "\u05E9\u05E8\u05D4");
}

} // namespace
} // namespace lineforge::jet
