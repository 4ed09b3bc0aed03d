#include "platform/store/JetRows.h"

#include "platform/store/JetStreamBytes.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace jetbytes;

const QByteArray aRow = Row({"A001", "Smith"});

TEST(JetRowsTest, CellsComeAsTheyWereTold_NullApartFromEmpty)
{
    const auto rows = JetRows::Parse(Stream({{"A001", std::nullopt, ""}, {QByteArray("a\0b", 3), "\xC3\xA9"}}));

    ASSERT_TRUE(rows);
    ASSERT_EQ(rows->Count(), 2U);
    const JetRows::Row first = rows->At(0);
    EXPECT_EQ(first[0].toByteArray(), "A001");
    EXPECT_TRUE(first[1].isNull());
    EXPECT_TRUE(first[2].isEmpty());
    EXPECT_FALSE(first[2].isNull());
    EXPECT_TRUE(first[24].isNull());
    EXPECT_EQ(rows->At(1)[0].toByteArray(), QByteArray("a\0b", 3));
    EXPECT_EQ(rows->At(1)[1].toByteArray(), "\xC3\xA9");
}

TEST(JetRowsTest, RowsOutliveTheBytesThatTheyCameIn)
{
    std::optional<JetRows> rows;
    {
        QByteArray stream = Stream({{"A001"}});
        rows = JetRows::Parse(stream);
        stream.fill('x');
    }

    ASSERT_TRUE(rows);
    EXPECT_EQ(rows->At(0)[0].toByteArray(), "A001");
}

TEST(JetRowsTest, NoRows_AreRowsToo)
{
    const auto rows = JetRows::Parse(Stream({}));

    ASSERT_TRUE(rows);
    EXPECT_EQ(rows->Count(), 0U);
    EXPECT_FALSE(rows->HasLosses());
}

struct Told {
    jetstream::Tally Tally;
    bool HasLosses;
};

class JetRowsLossTest : public testing::TestWithParam<Told>
{
};

TEST_P(JetRowsLossTest, LossesShow)
{
    const auto rows = JetRows::Parse(Beginning() + aRow + End(GetParam().Tally));

    ASSERT_TRUE(rows);
    EXPECT_EQ(rows->HasLosses(), GetParam().HasLosses);
    EXPECT_EQ(rows->Tally().Stated, GetParam().Tally.Stated);
}

INSTANTIATE_TEST_SUITE_P(Tallies, JetRowsLossTest,
                         testing::Values(Told{{1, 1, 0, 0}, false}, Told{{1, 2, 0, 0}, true}, Told{{1, 1, 1, 0}, true},
                                         Told{{1, 1, 0, 1}, true},
                                         // Never closed: it states nothing.
                                         Told{{1, 0, 0, 0}, false}));

class JetRowsRefusalTest : public testing::TestWithParam<QByteArray>
{
};

TEST_P(JetRowsRefusalTest, AnythingElse_IsNoStream)
{
    EXPECT_FALSE(JetRows::Parse(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(
    Streams, JetRowsRefusalTest,
    testing::Values(QByteArray(), Beginning(), Beginning() + aRow, aRow + End({1, 1, 0, 0}),
                    "tree99 rows 1\n" + aRow + End({1, 1, 0, 0}),
                    // Fewer rows than told, and more.
                    Beginning() + End({1, 1, 0, 0}), Beginning() + aRow + aRow + End({1, 1, 0, 0}),
                    // Something behind the end, an end that isn't one, an unknown mark.
                    Stream({{"A001"}}) + 'x', Stream({{"A001"}}).chopped(1) + 'x',
                    Beginning() + 'X' + End({0, 0, 0, 0}),
                    // Not UTF-8.
                    Stream({{"\xE9"}}), Stream({{"\xED\xA0\x80"}}),
                    // A cell that is longer than all that follows.
                    Beginning() + jetstream::rowMark + NumberBytes(jetstream::CellLength{0xFFFFFFFE}) + "A001",
                    Beginning() + jetstream::rowMark + NumberBytes(jetstream::CellLength{5}) + "A001"));

TEST(JetRowsTest, StreamThatIsCutAnywhere_IsNone)
{
    const QByteArray whole = Stream({{"A001", "Smith"}, {std::nullopt, ""}});
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(JetRows::Parse(whole.first(length))) << length;
    EXPECT_TRUE(JetRows::Parse(whole));
}

} // namespace
} // namespace lineforge
