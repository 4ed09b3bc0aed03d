#include "jet/RowFields.h"

#include <gtest/gtest.h>
#include <string>

namespace lineforge::jet
{
namespace
{
using namespace std::string_view_literals;

// A number of two bytes, and two texts.
const std::vector<FieldPlace> places{{0, true, 0, 2}, {1, false, 0, 0}, {2, false, 1, 0}};
constexpr auto jet3Row = "\x03"
                         "\x34\x12"
                         "abc"
                         "\x06\x05\x03"
                         "\x02"
                         "\x07"sv;
constexpr auto jet4Row = "\x03\0"
                         "\x34\x12"
                         "abc"
                         "\x07\0\x06\0\x04\0"
                         "\x02\0"
                         "\x07"sv;

struct Layout {
    std::string_view Row;
    RowLayout Layout;
};

class RowFieldsTest : public testing::TestWithParam<Layout>
{
protected:
    bool Split(std::string_view row, const std::vector<FieldPlace>& columns = places)
    {
        return SplitRow(row, GetParam().Layout, columns, fields);
    }

    // The row with other bits of the columns that aren't Null; the fields go on pointing at it.
    std::string_view WithBits(char bits)
    {
        changed_ = GetParam().Row;
        changed_.back() = bits;
        return changed_;
    }

    Fields fields;

private:
    std::string changed_;
};

TEST_P(RowFieldsTest, FieldsStandWhereTheRowTells)
{
    ASSERT_TRUE(Split(GetParam().Row));
    EXPECT_EQ(fields, (Fields{"\x34\x12"sv, "ab"sv, "c"sv}));
}

TEST_P(RowFieldsTest, ClearedBit_IsNull)
{
    ASSERT_TRUE(Split(WithBits(5)));
    EXPECT_EQ(fields, (Fields{"\x34\x12"sv, std::nullopt, "c"sv}));
}

TEST_P(RowFieldsTest, ColumnsThatCameAfterTheRow_AreNull)
{
    std::vector<FieldPlace> more = places;
    more.push_back({3, false, 2, 0});
    more.push_back({200, true, 90, 4});

    ASSERT_TRUE(Split(WithBits('\xFF'), more));
    EXPECT_EQ(fields, (Fields{"\x34\x12"sv, "ab"sv, "c"sv, std::nullopt, std::nullopt}));
}

TEST_P(RowFieldsTest, FixedFieldBeyondTheRow_IsRefused)
{
    EXPECT_FALSE(Split(GetParam().Row, {{0, true, 14, 2}}));
}

// Behind a row that is cut lies something else, which must not be looked at.
TEST_P(RowFieldsTest, RowThatIsCut_NeverLeadsOutOfItself)
{
    for (std::size_t length = 0; length < GetParam().Row.size(); ++length) {
        const std::string cut(GetParam().Row.substr(0, length));
        if (!Split(cut))
            continue;
        for (const auto& field : fields)
            if (field && !field->empty()) {
                EXPECT_GE(field->data(), cut.data());
                EXPECT_LE(field->data() + field->size(), cut.data() + cut.size());
            }
    }
    EXPECT_FALSE(Split(""));
    EXPECT_FALSE(Split(GetParam().Row.substr(0, 1)));
}

TEST_P(RowFieldsTest, PlacesThatLeadBackOrOut_AreRefused)
{
    for (std::size_t at = GetParam().Row.size() - 2; at > 6; --at)
        for (const char wrong : {'\xFF', '\x7F'}) {
            std::string row(GetParam().Row);
            row[at] = wrong;
            EXPECT_FALSE(Split(row)) << at;
        }
}

INSTANTIATE_TEST_SUITE_P(Layouts, RowFieldsTest,
                         testing::Values(Layout{jet3Row, RowLayout::Jet3}, Layout{jet4Row, RowLayout::Jet4}),
                         [](const auto& row) { return row.param.Layout == RowLayout::Jet3 ? "Jet3" : "Jet4"; });

// One byte can't tell a place beyond 255: a jump does, and names the first place that lies behind it.
TEST(LongRowTest, JumpsLeadOn)
{
    const std::string first(250, 'a');
    const std::string second(100, 'b');
    const std::string row = "\x02" + first + second + "\x5F\xFB\x01" + "\x02" + "\x02" + "\x03";
    Fields fields;

    ASSERT_TRUE(SplitRow(row, RowLayout::Jet3, std::vector<FieldPlace>{{0, false, 0, 0}, {1, false, 1, 0}}, fields));

    EXPECT_EQ(fields, (Fields{std::string_view(first), std::string_view(second)}));
}

} // namespace
} // namespace lineforge::jet
