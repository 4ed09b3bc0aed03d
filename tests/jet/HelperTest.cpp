#include "jet/Fixtures.h"
#include "jet/Limits.h"
#include "platform/store/JetRows.h"
#include "support/ChildProcess.h"
#include "support/TemporaryHome.h"

#include <QProcess>

#include <fstream>
#include <sys/resource.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using jetstream::Outcome;

constexpr int patience = 60'000; // milliseconds

// The reading process, run to its end.
class HelperTest : public testing::Test
{
protected:
    int ExitCode(const QStringList& arguments)
    {
        process.start(QStringLiteral(LINEFORGE_JET), arguments);
        EXPECT_TRUE(process.waitForFinished(patience));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return process.exitCode();
    }

    QProcess process;
};

TEST_F(HelperTest, OldDatabase_ComesAsAWholeStream)
{
    EXPECT_EQ(ExitCode({FixturePath(u"jet4/rows999.mdb"_s)}), static_cast<int>(Outcome::Whole));

    const std::optional<JetRows> rows = JetRows::Parse(process.readAllStandardOutput());
    ASSERT_TRUE(rows);
    const Records25 expected = ExpectedRecords("jet4/rows999");
    ASSERT_EQ(rows->Count(), expected.size());
    for (std::size_t row = 0; row < expected.size(); ++row)
        for (std::size_t field = 0; field < jetstream::fields.size(); ++field) {
            const QByteArrayView cell = rows->At(row)[field];
            EXPECT_EQ(cell.isNull() ? std::nullopt : std::optional(QString::fromUtf8(cell)), expected[row][field]);
        }
}

TEST_F(HelperTest, EnvironmentOfItsLibrary_ChangesNothing)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"MDB_JET3_CHARSET"_s, u"CP1252"_s);
    environment.insert(u"MDBICONV"_s, u"ISO-8859-1"_s);
    environment.insert(u"MDBOPTS"_s, u"debug_all"_s);
    environment.insert(u"MDBPATH"_s, u"/"_s);
    ExitCode({FixturePath(u"jet3/cp1250.mdb"_s)});
    const QByteArray expected = process.readAllStandardOutput();
    process.setProcessEnvironment(environment);

    EXPECT_EQ(ExitCode({FixturePath(u"jet3/cp1250.mdb"_s)}), static_cast<int>(Outcome::Whole));

    EXPECT_EQ(process.readAllStandardOutput(), expected);
    EXPECT_TRUE(JetRows::Parse(expected));
}

TEST_F(HelperTest, RefusedFile_GivesNoStream)
{
    EXPECT_EQ(ExitCode({FixturePath(u"jet4/no_tree99.mdb"_s)}), static_cast<int>(Outcome::NoTable));
    EXPECT_EQ(process.readAllStandardOutput(), QByteArray());
}

TEST_F(HelperTest, FileOfALaterFormat_IsToldApart)
{
    TemporaryHome home;
    QByteArray bytes = FixtureBytes(u"jet4/empty.mdb"_s);
    bytes[0x14] = 2;

    EXPECT_EQ(ExitCode({home.WriteFile(u"later.mdb", bytes)}), static_cast<int>(Outcome::NewerFormat));
}

TEST_F(HelperTest, CallWithoutAFile_OrWithTwo_IsWrong)
{
    EXPECT_EQ(ExitCode({}), static_cast<int>(Outcome::WrongCall));
    EXPECT_EQ(ExitCode({u"a"_s, u"b"_s}), static_cast<int>(Outcome::WrongCall));
}

// What LimitProcess has left of a resource, in the child that it was called in.
template <class Check>
bool HoldsUnderLimits(Check&& check)
{
    return ExitCodeInChild([&] {
               jet::LimitProcess();
               return check() ? 1 : 0;
           }) == 1;
}

bool IsLimited(decltype(RLIMIT_AS) resource, rlim_t most)
{
    rlimit limit{};
    return getrlimit(resource, &limit) == 0 && limit.rlim_cur == most && limit.rlim_max == most;
}

TEST(LimitsTest, TimeMemoryAndFiles_AreBounded)
{
    EXPECT_TRUE(HoldsUnderLimits([] { return IsLimited(RLIMIT_CPU, 30); }));
    EXPECT_TRUE(HoldsUnderLimits([] { return IsLimited(RLIMIT_FSIZE, 0); }));
    EXPECT_TRUE(HoldsUnderLimits([] { return IsLimited(RLIMIT_CORE, 0); }));
#if !defined(__SANITIZE_ADDRESS__)
    EXPECT_TRUE(HoldsUnderLimits([] { return IsLimited(RLIMIT_AS, rlim_t{512} << 20); }));
#endif
}

TEST(LimitsTest, FileCanBeMade_ButNotWritten)
{
    const TemporaryHome home;
    const std::string path = home.Path(u"written").toStdString();

    ChildProcess writer([&] {
        jet::LimitProcess();
        std::ofstream(path) << "text";
        return 0;
    });

    EXPECT_EQ(writer.Wait(), -1);
    EXPECT_EQ(home.ReadFile(u"written"), QByteArray());
}

} // namespace
} // namespace lineforge
