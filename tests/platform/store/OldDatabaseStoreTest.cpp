#include "platform/store/OldDatabaseStore.h"

#include "platform/store/JetStreamBytes.h"
#include "support/ChildProcess.h"
#include "support/Refusal.h"
#include "support/SmallDisk.h"
#include "support/SqliteFile.h"
#include "support/TemporaryHome.h"

#include <QFile>
#include <QFileInfo>

#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// What an old database is made of is none of the store's concern.
const QByteArray oldBytes = QByteArray("the old database ").repeated(5000);

class OldDatabaseStoreTest : public testing::Test
{
protected:
    OldDatabaseStoreTest() { home.WriteFile(u"LfgDat_A.mdb", oldBytes); }

    static JetRows Rows(int count)
    {
        std::vector<std::vector<std::optional<QByteArray>>> rows;
        for (int row = 0; row < count; ++row)
            rows.push_back({"A" + QByteArray::number(row), std::nullopt, ""});
        return *JetRows::Parse(jetbytes::Stream(rows));
    }

    void Replace(
        const JetRows& rows, const std::function<void()>& meanwhile = [] {}) const
    {
        ReplaceOldDatabase(files, IdentityOf(path), rows, meanwhile);
    }

    QStringList Names() const { return home.Snapshot().keys(); }

    void ExpectRows(int count) const
    {
        SqliteFile file(path);
        const auto rows = file.Query("SELECT File, Surname, Forename, DeathCertificate FROM Tree99 ORDER BY rowid");
        ASSERT_EQ(rows.size(), static_cast<std::size_t>(count));
        for (int row = 0; row < count; ++row)
            EXPECT_EQ(rows[static_cast<std::size_t>(row)],
                      (SqliteFile::Row{u"A"_s + QString::number(row), std::nullopt, QString(), std::nullopt}));
        EXPECT_EQ(file.Value("PRAGMA integrity_check"), u"ok"_s);
    }

    TemporaryHome home;
    FileSystem files{home.Path()};
    const QString path = home.Path(u"LfgDat_A.mdb");
};

TEST_F(OldDatabaseStoreTest, RowsTakeTheName_AndTheOldFileStaysBeside)
{
    const auto time = QFileInfo(path).lastModified();

    Replace(Rows(3));

    ExpectRows(3);
    EXPECT_EQ(Names(), QStringList({u"LfgDat_A.jet"_s, u"LfgDat_A.mdb"_s}));
    EXPECT_EQ(home.ReadFile(u"LfgDat_A.jet"), oldBytes);
    EXPECT_EQ(QFileInfo(home.Path(u"LfgDat_A.jet")).lastModified(), time);
}

TEST_F(OldDatabaseStoreTest, TableIsThatOfANewBranch)
{
    Replace(Rows(1));

    SqliteFile schema(home.Path(u"schema.db"));
    QFile definition(QStringLiteral(LINEFORGE_SCHEMA));
    ASSERT_TRUE(definition.open(QFile::ReadOnly));
    schema.Execute(definition.readAll());
    const QByteArray columns = "SELECT cid, name, type, \"notnull\", dflt_value, pk FROM pragma_table_info('Tree99')";
    EXPECT_EQ(SqliteFile(path).Query(columns), schema.Query(columns));
}

TEST_F(OldDatabaseStoreTest, PermissionsAreThoseOfTheOldFile)
{
    const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
    ASSERT_TRUE(QFile::setPermissions(path, permissions));
    const auto shown = QFile::permissions(path);

    Replace(Rows(1));

    EXPECT_EQ(QFile::permissions(path), shown);
    EXPECT_EQ(QFile::permissions(home.Path(u"LfgDat_A.jet")), shown);
}

TEST_F(OldDatabaseStoreTest, AnotherFileOfTheKeptName_IsNotTouched)
{
    home.WriteFile(u"LfgDat_A.jet", "another one");
    home.WriteFile(u"LfgDat_A_2.jet", "and one more");
    EXPECT_EQ(NameOfKept(path), home.Path(u"LfgDat_A_3.jet"));

    Replace(Rows(1));

    EXPECT_EQ(home.ReadFile(u"LfgDat_A.jet"), "another one");
    EXPECT_EQ(home.ReadFile(u"LfgDat_A_2.jet"), "and one more");
    EXPECT_EQ(home.ReadFile(u"LfgDat_A_3.jet"), oldBytes);
}

TEST_F(OldDatabaseStoreTest, FileThatIsKeptAlready_IsNotKeptTwice)
{
    home.WriteFile(u"LfgDat_A.jet", oldBytes);

    Replace(Rows(1));

    EXPECT_EQ(Names(), QStringList({u"LfgDat_A.jet"_s, u"LfgDat_A.mdb"_s}));
}

TEST_F(OldDatabaseStoreTest, FileOfTheSameSizeUnderTheKeptName_IsAnotherOne)
{
    home.WriteFile(u"LfgDat_A.jet", oldBytes.chopped(1) + 'x');

    EXPECT_EQ(NameOfKept(path), home.Path(u"LfgDat_A_2.jet"));
}

TEST_F(OldDatabaseStoreTest, WhatAnEndedProcessHasLeft_IsCleared)
{
    home.WriteFile(u"LfgDat_A.mdb.new", "half");
    home.WriteFile(u"LfgDat_A.jet.new", "half");

    Replace(Rows(2));

    ExpectRows(2);
    EXPECT_EQ(Names(), QStringList({u"LfgDat_A.jet"_s, u"LfgDat_A.mdb"_s}));
}

// An error that `meanwhile` throws stands for any refusal at that moment.
TEST_F(OldDatabaseStoreTest, RefusalAtAnyMoment_ChangesNothing)
{
    const JetRows rows = Rows(4);
    const Tree before = home.Snapshot();
    int moments = 0;
    for (bool isRefused = true; isRefused; ++moments) {
        isRefused = RefusalOf([&] {
                        Replace(rows, [left = moments]() mutable {
                            if (left-- == 0)
                                throw RuntimeError(ErrorNumber::DeviceIo);
                        });
                    }) == ErrorNumber::DeviceIo;
        if (isRefused) {
            EXPECT_EQ(Differences(before, home.Snapshot()), QStringList()) << moments;
        }
    }
    EXPECT_GT(moments, 2 * 4 + 1);
    ExpectRows(4);
}

TEST_F(OldDatabaseStoreTest, ProcessKilledAtAnyMoment_LeavesTheOldFileOrTheNewOne)
{
    constexpr int count = 25;
    const JetRows rows = Rows(count);
    int moment = 0;
    int leftOld = 0;
    for (bool isKilled = true; isKilled; ++moment) {
        home.WriteFile(u"LfgDat_A.mdb", oldBytes);
        ChildProcess converter([&, left = moment]() mutable {
            Replace(rows, [&left] {
                if (left-- == 0)
                    raise(SIGKILL);
            });
            return 0;
        });
        isKilled = converter.Wait() != 0;

        const bool isOld = home.ReadFile(u"LfgDat_A.mdb") == oldBytes;
        leftOld += isOld ? 1 : 0;
        if (isOld)
            Replace(rows);
        ExpectRows(count);
        EXPECT_EQ(home.ReadFile(u"LfgDat_A.jet"), oldBytes) << moment;
        EXPECT_EQ(Names(), QStringList({u"LfgDat_A.jet"_s, u"LfgDat_A.mdb"_s})) << moment;
        QFile::remove(home.Path(u"LfgDat_A.jet"));
    }
    EXPECT_GE(moment, 50);
    EXPECT_GE(leftOld, 2 * count);
}

TEST_F(OldDatabaseStoreTest, DiskThatIsFull_ChangesNothing)
{
    const JetRows rows = Rows(5000);
    const Tree before = home.Snapshot();
    // Too little for the records, and enough for them but not for the file that is kept.
    for (const rlim_t limit : {rlim_t{16 * 1024}, rlim_t{80 * 1024}}) {
        const int refusal = ExitCodeInChild([&] {
            LimitFileSize(limit);
            return RefusalOf([&] { Replace(limit > 20 * 1024 ? Rows(1) : rows); });
        });
        EXPECT_TRUE(refusal == ErrorNumber::DeviceIo || refusal == ErrorNumber::DiskFull) << refusal;
        EXPECT_EQ(Differences(before, home.Snapshot()), QStringList());
    }
}

TEST_F(OldDatabaseStoreTest, FileInTheHandsOfAnotherConversion_IsRefused)
{
    const int other = open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(flock(other, LOCK_EX), 0);
    const Tree before = home.Snapshot();

    EXPECT_EQ(RefusalOf([&] { Replace(Rows(1)); }), ErrorNumber::DatabaseBusy);

    EXPECT_EQ(Differences(before, home.Snapshot()), QStringList());
    close(other);
}

TEST_F(OldDatabaseStoreTest, ReadOnlyDirectoryOrFile_IsRefused)
{
    home.WriteFile(u"LfgDat_B/LfgDat_B.mdb", oldBytes);
    home.MakeReadOnly(u"LfgDat_B");
    const FileIdentity inReadOnly = IdentityOf(home.Path(u"LfgDat_B/LfgDat_B.mdb"));
    EXPECT_EQ(RefusalOf([&] { ReplaceOldDatabase(files, inReadOnly, Rows(1), [] {}); }), ErrorNumber::PathFileAccess);
    home.MakeWritable(u"LfgDat_B");
    home.MakeReadOnly(u"LfgDat_A.mdb");
    EXPECT_EQ(RefusalOf([&] { Replace(Rows(1)); }), ErrorNumber::PathFileAccess);
    home.MakeWritable(u"LfgDat_A.mdb");

    EXPECT_EQ(Names(), QStringList({u"LfgDat_A.mdb"_s, u"LfgDat_B"_s, u"LfgDat_B/LfgDat_B.mdb"_s}));
}

TEST_F(OldDatabaseStoreTest, JournalOfAFileThatHadTheName_NeverReachesTheNewOne)
{
    // A transaction that was cut off in a database of ours which then gave way to the old one.
    const int cutOff = ExitCodeInChild([this]() -> int {
        QFile::remove(path);
        SqliteFile file(path);
        file.Execute("CREATE TABLE Tree99 (File TEXT); INSERT INTO Tree99 VALUES ('stale')");
        file.Execute("PRAGMA cache_size = 1; BEGIN");
        for (int row = 0; row < 2000; ++row)
            file.Execute("INSERT INTO Tree99 VALUES (hex(randomblob(500)))");
        _exit(7);
    });
    ASSERT_EQ(cutOff, 7);
    ASSERT_TRUE(QFileInfo::exists(path + u"-journal"));
    home.WriteFile(u"LfgDat_A.mdb", oldBytes);

    Replace(Rows(3));

    EXPECT_FALSE(QFileInfo::exists(path + u"-journal"));
    ExpectRows(3);
}

TEST_F(OldDatabaseStoreTest, FileThatIsNoLongerTheOneRead_IsLeftAlone)
{
    const FileIdentity read = IdentityOf(path);
    home.WriteFile(u"LfgDat_A.mdb", oldBytes + "more");
    const Tree before = home.Snapshot();

    EXPECT_EQ(RefusalOf([&] { ReplaceOldDatabase(files, read, Rows(3), [] {}); }), ErrorNumber::DatabaseBusy);

    EXPECT_EQ(Differences(before, home.Snapshot()), QStringList());
}

TEST_F(OldDatabaseStoreTest, FileThatIsWrittenToMeanwhile_KeepsWhatWasWritten)
{
    bool isWritten = false;
    const auto write = [&] {
        if (!std::exchange(isWritten, true))
            home.WriteFile(u"LfgDat_A.mdb", oldBytes + "more");
    };

    EXPECT_EQ(RefusalOf([&] { Replace(Rows(3), write); }), ErrorNumber::DatabaseBusy);

    EXPECT_EQ(home.Snapshot(), (Tree{{u"LfgDat_A.mdb"_s, oldBytes + "more"}}));
}

TEST_F(OldDatabaseStoreTest, FileThatTakesTheKeptOnesNameMeanwhile_Stays)
{
    const auto take = [this] {
        if (QFileInfo::exists(home.Path(u"LfgDat_A.jet.new")) && !home.Exists(u"LfgDat_A.jet"))
            home.WriteFile(u"LfgDat_A.jet", "mine");
    };

    EXPECT_EQ(RefusalOf([&] { Replace(Rows(3), take); }), ErrorNumber::FileAlreadyExists);

    EXPECT_EQ(home.Snapshot(), (Tree{{u"LfgDat_A.jet"_s, "mine"}, {u"LfgDat_A.mdb"_s, oldBytes}}));
}

TEST_F(OldDatabaseStoreTest, LinksUnderTheKeptOnesName_KeepNothing)
{
    ASSERT_TRUE(QFile::link(path, home.Path(u"LfgDat_A.jet")));
    ASSERT_TRUE(QFile::link(home.Path(u"nowhere"), home.Path(u"LfgDat_A_2.jet")));

    Replace(Rows(3));

    EXPECT_EQ(home.ReadFile(u"LfgDat_A_3.jet"), oldBytes);
    ExpectRows(3);
}

TEST_F(OldDatabaseStoreTest, WhatIsNoFileUnderTheKeptOnesName_IsPassedOver)
{
    ASSERT_EQ(mkfifo(home.Path(u"LfgDat_A.jet").toLocal8Bit().constData(), 0600), 0);

    Replace(Rows(3));

    EXPECT_EQ(home.ReadFile(u"LfgDat_A_2.jet"), oldBytes);
    ExpectRows(3);
}

} // namespace
} // namespace lineforge
