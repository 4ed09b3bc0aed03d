#include "check/CheckTest.h"
#include "support/ChildProcess.h"

#include <QFile>

#include <array>
#include <unistd.h>

namespace lineforge::check
{
namespace
{

using namespace Qt::StringLiterals;

constexpr QStringView change =
    u"left by a change that was cut off, or that is just being made; the branch's next change sees to it";

class UntouchedDatabaseTest : public CheckTest
{
protected:
    // A writer dies in the middle of a change, most of which stands in the file already.
    void CutAChangeShort() const
    {
        std::array<int, 2> pipe{};
        ASSERT_EQ(::pipe(pipe.data()), 0);
        ChildProcess child([&] {
            SqliteFile file(home.Path(database));
            // So small a cache that the half-done work is in the file already.
            file.Execute("PRAGMA cache_size = 1; BEGIN; UPDATE Tree99 SET FatherRec = 'A999'");
            for (int row = 0; row < 2000; ++row)
                file.Execute("INSERT INTO Tree99 (File, Notes) VALUES ('half', hex(zeroblob(500)))");
            const bool told = write(pipe[1], "x", 1) == 1;
            pause();
            return told ? 0 : 1;
        });
        char told = 0;
        ASSERT_EQ(read(pipe[0], &told, 1), 1);
        child.KillNow();
        child.Wait();
        close(pipe[0]);
        close(pipe[1]);
        ASSERT_TRUE(home.Exists(u"LfgDat_A/LfgDat_A.mdb-journal"));
    }

    // A second look finds the same, so that the first has put nothing right either.
    void ExpectFindings(const Found& expected) const
    {
        EXPECT_EQ(Findings(), expected);
        EXPECT_EQ(Findings(), expected);
    }
};

TEST_F(UntouchedDatabaseTest, HalfAChange_IsLookedAtAsIfTakenBack_AndLeftAsItIs)
{
    CutAChangeShort();
    ExpectFindings({Of(Kind::Leftover, u"LfgDat_A/LfgDat_A.mdb-journal", u"", change)});
}

TEST_F(UntouchedDatabaseTest, HalfAChangeInAHomeThatCantBeWritten_IsLookedAtAllTheSame)
{
    CutAChangeShort();
    home.MakeReadOnly(database);
    home.MakeReadOnly(u"LfgDat_A");
    ExpectFindings({Of(Kind::Leftover, u"LfgDat_A/LfgDat_A.mdb-journal", u"", change)});
}

TEST_F(UntouchedDatabaseTest, ChangeThatIsJustBeingMade_IsNotSeen)
{
    SqliteFile other(home.Path(database));
    other.Execute("BEGIN IMMEDIATE; UPDATE Tree99 SET FatherRec = 'A999'");
    EXPECT_EQ(Findings(), Found{Of(Kind::Leftover, u"LfgDat_A/LfgDat_A.mdb-journal", u"", change)});
    other.Execute("ROLLBACK");
}

TEST_F(UntouchedDatabaseTest, LockedDatabase_IsToldAsNotLookedAt)
{
    SqliteFile other(home.Path(database));
    other.Execute("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE");

    const Report report = CheckHome(home.Path(), std::chrono::milliseconds(0));

    EXPECT_EQ(report.Findings, Found{Of(Kind::Unread, database, u"", u"another program is writing to this database")});
    EXPECT_EQ(VerdictOf(report), Verdict::NotWhole);
}

// Databases that some other tool has given the engine's other way to write.
TEST_F(UntouchedDatabaseTest, DatabaseThatKeepsItsChangesBeside_IsReadWithoutMakingAFile)
{
    Sql("PRAGMA journal_mode = WAL; UPDATE Tree99 SET FatherRec = 'A999' WHERE File = 'A003'");
    ASSERT_FALSE(home.Exists(u"LfgDat_A/LfgDat_A.mdb-wal"));
    ExpectFindings({Of(Kind::Link, database, u"A003", u"FatherRec leads to A999, which isn't there")});
}

TEST_F(UntouchedDatabaseTest, ChangesBesideADatabase_AreSeen_AndLeftThere)
{
    SqliteFile other(home.Path(database));
    other.Execute("PRAGMA journal_mode = WAL; UPDATE Tree99 SET FatherRec = 'A999' WHERE File = 'A003'");
    ASSERT_TRUE(home.Exists(u"LfgDat_A/LfgDat_A.mdb-wal"));
    ExpectFindings({Of(Kind::Link, database, u"A003", u"FatherRec leads to A999, which isn't there"),
                    Of(Kind::Leftover, u"LfgDat_A/LfgDat_A.mdb-shm", u"", change),
                    Of(Kind::Leftover, u"LfgDat_A/LfgDat_A.mdb-wal", u"", change)});
}

TEST_F(UntouchedDatabaseTest, HomeWithSignsOfAnAddressInItsName_IsRead)
{
    const QString directory = home.Path(u"50% off? #1 & more");
    ASSERT_TRUE(QFile::rename(home.Path(u"LfgDat_A"), home.MakeDirectory(u"50% off? #1 & more") + u"/LfgDat_A"));
    ASSERT_TRUE(QFile::rename(home.Path(u"AliasList.cfg"), directory + u"/AliasList.cfg"));
    const Report report = CheckHome(directory);
    EXPECT_EQ(report.Findings, Found());
    EXPECT_EQ(report.Seen.Records, 3);
}

} // namespace
} // namespace lineforge::check
