#include "platform/store/DatabaseFormat.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace std::string_view_literals;

struct Beginning {
    std::string_view Bytes;
    DatabaseFormat Format;
};

class DatabaseFormatTest : public testing::TestWithParam<Beginning>
{
};

TEST_P(DatabaseFormatTest, IsToldByTheFirstBytes)
{
    EXPECT_EQ(FormatOf(GetParam().Bytes), GetParam().Format);
}

INSTANTIATE_TEST_SUITE_P(Files, DatabaseFormatTest,
                         testing::Values(Beginning{"SQLite format 3\0\x10\0\1\1\0\x40\x20\x20"sv, DatabaseFormat::Ours},
                                         Beginning{"\0\1\0\0Standard Jet DB\0\0\0\0\0"sv, DatabaseFormat::Jet3},
                                         Beginning{"\0\1\0\0Standard Jet DB\0\1\0\0\0"sv, DatabaseFormat::Jet4},
                                         Beginning{"\0\1\0\0Standard Jet DB\0\2\0\0\0"sv, DatabaseFormat::Newer},
                                         Beginning{"\0\1\0\0Standard Jet DB\0\xFF\0\0\0"sv, DatabaseFormat::Newer},
                                         Beginning{"\0\1\0\0Standard ACE DB\0\2\0\0\0"sv, DatabaseFormat::Newer},
                                         // Cut before it tells which of them it is.
                                         Beginning{"\0\1\0\0Standard Jet DB\0"sv, DatabaseFormat::Unknown},
                                         Beginning{"\0\1\0\0Standard Jet"sv, DatabaseFormat::Unknown},
                                         Beginning{"Standard Jet DB\0\0\0\0\0\0\0\0\0"sv, DatabaseFormat::Unknown},
                                         Beginning{"SQLite format 2\0\0\0\0\0\0\0\0\0"sv, DatabaseFormat::Unknown},
                                         Beginning{""sv, DatabaseFormat::Unknown},
                                         Beginning{"This is a text, and no database."sv, DatabaseFormat::Unknown}));

} // namespace
} // namespace lineforge
