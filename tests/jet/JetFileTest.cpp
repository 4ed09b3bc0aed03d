#include "jet/JetFile.h"

#include "jet/Fixtures.h"

#include <QFile>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using jetstream::Outcome;
using jetstream::Tally;

std::string NativePath(const QString& fixture)
{
    return QFile::encodeName(FixturePath(fixture)).toStdString();
}

struct Reading {
    Records25 Records;
    jetstream::Tally Tally;
};

Reading Read(const QString& fixture)
{
    Reading reading;
    jet::JetFile file(NativePath(fixture));
    reading.Tally = file.ReadRows([&](const jet::Row& row) {
        auto& record = reading.Records.emplace_back();
        for (const jet::Cell& cell : row)
            record.push_back(cell.IsNull ? std::nullopt : std::optional(QString::fromStdString(cell.Text)));
    });
    return reading;
}

Outcome OutcomeOf(const QString& fixture)
{
    try {
        jet::JetFile file(NativePath(fixture));
    } catch (const jet::Refused& refused) {
        return refused.Why;
    }
    return Outcome::Whole;
}

TEST(FixturesTest, AreAllThere)
{
    EXPECT_EQ(ReadableFixtures().size(), 26U);
}

class JetFileTest : public testing::TestWithParam<std::string>
{
};

TEST_P(JetFileTest, GivesExactlyItsRecords_InTheirOrder)
{
    const Records25 expected = ExpectedRecords(GetParam());

    const Reading reading = Read(QString::fromStdString(GetParam()) + u".mdb");

    EXPECT_EQ(reading.Records, expected);
    EXPECT_EQ(reading.Tally.Rows, expected.size());
    EXPECT_EQ(reading.Tally.Stated, expected.size());
    EXPECT_EQ(reading.Tally.BadRows, 0U);
    EXPECT_EQ(reading.Tally.BadCells, 0U);
}

INSTANTIATE_TEST_SUITE_P(Fixtures, JetFileTest, testing::ValuesIn(ReadableFixtures()), TestNameOf);

struct DamagedFile {
    QStringView Name;
    std::uint64_t Rows;
    std::uint64_t BadRows;
    std::uint64_t BadCells;
    std::uint64_t Stated;
};

void PrintTo(const DamagedFile& file, std::ostream* out)
{
    PrintTo(file.Name, out);
}

class DamagedFileTest : public testing::TestWithParam<DamagedFile>
{
};

TEST_P(DamagedFileTest, TellsWhatIsLost)
{
    const Reading reading = Read(GetParam().Name.toString());

    EXPECT_EQ(reading.Records.size(), GetParam().Rows);
    EXPECT_EQ(reading.Tally.Rows, GetParam().Rows);
    EXPECT_EQ(reading.Tally.Stated, GetParam().Stated);
    EXPECT_EQ(reading.Tally.BadRows, GetParam().BadRows);
    EXPECT_EQ(reading.Tally.BadCells, GetParam().BadCells);
}

INSTANTIATE_TEST_SUITE_P(Broken, DamagedFileTest,
                         testing::Values(DamagedFile{u"jet3/broken/truncated.mdb", 356, 0, 0, 999},
                                         DamagedFile{u"jet4/broken/truncated.mdb", 406, 0, 0, 999},
                                         DamagedFile{u"jet3/broken/row_table_scrambled.mdb", 974, 6, 0, 999},
                                         DamagedFile{u"jet4/broken/row_table_scrambled.mdb", 974, 6, 0, 999},
                                         DamagedFile{u"jet3/broken/memo_loop.mdb", 12, 0, 1, 12},
                                         DamagedFile{u"jet4/broken/memo_loop.mdb", 12, 0, 1, 12}));

// A description that never ends isn't looked at.
TEST(PropertyLoopTest, LosesNothing)
{
    for (const std::string format : {"jet3", "jet4"}) {
        const Reading reading = Read(QString::fromStdString(format + "/broken/property_loop.mdb"));
        EXPECT_EQ(reading.Records, ExpectedRecords(format + "/property"));
        EXPECT_EQ(reading.Tally.BadCells, 0U);
    }
}

struct RefusedFile {
    QStringView Name;
    Outcome Why;
};

void PrintTo(const RefusedFile& file, std::ostream* out)
{
    PrintTo(file.Name, out);
}

class RefusedFileTest : public testing::TestWithParam<RefusedFile>
{
};

TEST_P(RefusedFileTest, TellsWhy)
{
    EXPECT_EQ(OutcomeOf(GetParam().Name.toString()), GetParam().Why);
}

INSTANTIATE_TEST_SUITE_P(Files, RefusedFileTest,
                         testing::Values(RefusedFile{u"jet3/broken/truncated_header.mdb", Outcome::NotReadable},
                                         RefusedFile{u"jet4/broken/truncated_header.mdb", Outcome::NotReadable},
                                         RefusedFile{u"jet3/broken/catalog_zeroed.mdb", Outcome::NotReadable},
                                         RefusedFile{u"jet4/broken/catalog_zeroed.mdb", Outcome::NotReadable},
                                         RefusedFile{u"jet3/broken/tdef_ff.mdb", Outcome::NotReadable},
                                         RefusedFile{u"jet4/broken/tdef_ff.mdb", Outcome::NotReadable},
                                         RefusedFile{u"jet3/no_tree99.mdb", Outcome::NoTable},
                                         RefusedFile{u"jet4/no_tree99.mdb", Outcome::NoTable},
                                         RefusedFile{u"not_jet/zero_length.mdb", Outcome::NotReadable},
                                         RefusedFile{u"not_jet/not_jet.mdb", Outcome::NotReadable},
                                         RefusedFile{u"not_jet/missing.mdb", Outcome::NotReadable}));

} // namespace
} // namespace lineforge
