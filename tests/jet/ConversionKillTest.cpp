#include "jet/OldBranchTest.h"
#include "support/ChildProcess.h"
#include "support/HomeVerdict.h"

#include <QElapsedTimer>

#include <algorithm>
#include <chrono>
#include <thread>

namespace lineforge
{
namespace
{

constexpr int moments = 50;

// A process that opens an old branch, with all that belongs to it.
class ConversionKillTest : public OldBranchTest
{
protected:
    static constexpr auto fixture = "jet4/rows999";

    int Convert()
    {
        return RefusalOf([&] { PointAtDatabase(P, Home.Path(u"LfgDat_A/LfgDat_A.mdb")); }) == 0 ? 0 : 1;
    }

    // In a process that is let go on to its end; gives back how long it took.
    std::chrono::nanoseconds ConvertUndisturbed()
    {
        QElapsedTimer running;
        running.start();
        EXPECT_EQ(ExitCodeInChild([this] { return Convert(); }), 0);
        return std::chrono::nanoseconds(running.nsecsElapsed());
    }
};

TEST_F(ConversionKillTest, KilledAtMomentsAllOverTheConversion_TheBranchOpens)
{
    const QByteArray old = FixtureBytes(u"jet4/rows999.mdb"_s);
    const Records25 expected = ExpectedRecords(fixture);
    GivenOldBranch(u'A', u"jet4/rows999.mdb"_s);
    auto fastest = ConvertUndisturbed();
    const QStringList names = Home.Snapshot().keys();
    const QStringList faults = FaultsOf(Home.Path());
    int cutShort = 0;
    for (int moment = 0; moment < moments; ++moment) {
        SCOPED_TRACE(moment);
        QFile::remove(Home.Path(u"LfgDat_A/LfgDat_A.jet"));
        const QString path = Home.WriteFile(u"LfgDat_A/LfgDat_A.mdb", old);
        ChildProcess converter([this] { return Convert(); });
        std::this_thread::sleep_for(fastest * moment / moments);
        converter.KillNow();
        cutShort += converter.Wait() == -1 ? 1 : 0;
        const bool isOld = Home.ReadFile(u"LfgDat_A/LfgDat_A.mdb") == old;
        EXPECT_TRUE(isOld || StoredRecords(path) == expected);
        if (!isOld) {
            EXPECT_EQ(FaultsOf(Home.Path(), Leftovers::Pass), faults);
        }

        const auto time = ConvertUndisturbed();

        // The machine may have been busy with other things before.
        if (isOld)
            fastest = std::min(fastest, time);
        EXPECT_EQ(StoredRecords(path), expected);
        EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgDat_A.jet"), old);
        EXPECT_EQ(Home.Snapshot().keys(), names);
        EXPECT_EQ(FaultsOf(Home.Path()), faults);
    }
    EXPECT_GT(cutShort, moments / 2);
}

} // namespace
} // namespace lineforge
