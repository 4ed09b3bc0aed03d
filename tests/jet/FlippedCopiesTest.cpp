#include "jet/OldBranchTest.h"
#include "platform/store/JetRows.h"

#include <QDir>
#include <QProcess>

#include <array>
#include <random>

namespace lineforge
{
namespace
{

using jetstream::Outcome;

constexpr int copies = 2000;
constexpr int shards = 10;

constexpr std::array sources{
    u"jet3/royals12.mdb", u"jet4/royals12.mdb", u"jet3/royals12_memo.mdb", u"jet4/royals12_memo.mdb",
    u"jet3/moved.mdb",    u"jet4/moved.mdb",    u"jet3/deleted.mdb",       u"jet4/royals12_compressed.mdb",
    u"jet3/extra.mdb",    u"jet4/rows999.mdb"};

// Copies of old databases in which bytes have been made others, the same ones in each run.
class FlippedCopiesTest : public OldBranchTest, public testing::WithParamInterface<int>
{
protected:
    static QByteArray FlippedCopy(int number)
    {
        std::mt19937 random(20'000 + static_cast<unsigned>(number));
        QByteArray bytes = FixtureBytes(QString::fromUtf16(sources[static_cast<std::size_t>(number) % sources.size()]));
        const auto upTo = [&](qsizetype most) {
            return static_cast<qsizetype>(random() % static_cast<unsigned>(most));
        };
        for (auto flips = upTo(64) + 1; flips > 0; --flips)
            bytes[upTo(bytes.size())] = static_cast<char>(random());
        return bytes;
    }

    // Runs the reader by itself: it must come to an end of its own, and tell a whole stream or why there is none.
    void ExpectOrderlyReading(const QString& path)
    {
        QProcess reader;
        reader.setStandardErrorFile(QProcess::nullDevice());
        reader.start(QStringLiteral(LINEFORGE_JET), {path});
        ASSERT_TRUE(reader.waitForFinished(60'000));
        ASSERT_EQ(reader.exitStatus(), QProcess::NormalExit);
        const auto outcome = static_cast<Outcome>(reader.exitCode());
        if (outcome == Outcome::Whole)
            EXPECT_TRUE(JetRows::Parse(reader.readAllStandardOutput()));
        else
            EXPECT_TRUE(outcome == Outcome::NotReadable || outcome == Outcome::NoTable ||
                        outcome == Outcome::NewerFormat)
                << reader.exitCode();
    }
};

// Takes nothing that has losses.
class CautiousUser : public ScriptedPrompts
{
public:
    Answer MsgBox(const QString& title, const QString&, Buttons buttons) override
    {
        EXPECT_EQ(title, u"Old Database is damaged"_s);
        EXPECT_EQ(buttons, Buttons::QuestionYesNoDefaultNo);
        return Answer::No;
    }
};

TEST_P(FlippedCopiesTest, EndInOrder_AndChangeNothingUnlessTheyAreTakenWhole)
{
    CautiousUser user;
    Program p(Platform{Machine.Windows, user, Machine.Loop, Machine.Screen, Machine.Clipboard, Machine.Printer,
                       Machine.Processes, P.ExecutableDirectory});
    p.Branch.HomeDir = P.Branch.HomeDir;
    const QString kept = Home.Path(u"LfgDat_A/LfgDat_A.jet");
    for (int copy = GetParam(); copy < copies; copy += shards) {
        SCOPED_TRACE(copy);
        const QByteArray bytes = FlippedCopy(copy);
        const QString path = Home.WriteFile(u"LfgDat_A/LfgDat_A.mdb", bytes);
        ExpectOrderlyReading(path);
        EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgDat_A.mdb"), bytes);

        const int refusal = RefusalOf([&] { PointAtDatabase(p, path); });

        EXPECT_EQ(Home.ReadFile(refusal != 0 ? u"LfgDat_A/LfgDat_A.mdb" : u"LfgDat_A/LfgDat_A.jet"), bytes);
        EXPECT_EQ(QFile::remove(kept), refusal == 0);
        EXPECT_EQ(QDir(Home.Path(u"LfgDat_A")).entryList(QDir::Files), QStringList({u"LfgDat_A.mdb"_s}));
    }
}

INSTANTIATE_TEST_SUITE_P(Shards, FlippedCopiesTest, testing::Range(0, shards));

} // namespace
} // namespace lineforge
