#include "platform/store/OldDatabaseReader.h"

#include "platform/store/JetStreamBytes.h"
#include "support/Clocks.h"
#include "support/TemporaryHome.h"

#include <QFile>

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

// Readers of all kinds, written as scripts.
class OldDatabaseReaderTest : public testing::Test
{
protected:
    // It does these commands; its standard output is what ReadOldDatabase sees.
    void GivenReader(const QByteArray& commands)
    {
        home.WriteFile(u"lineforge-jet", "#!/bin/sh\n" + commands + "\n");
        QFile::setPermissions(home.Path(u"lineforge-jet"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    std::optional<JetRows> Read(std::chrono::milliseconds patience = 60s)
    {
        return ReadOldDatabase(OldDatabaseReader(home.Path() + u'/'), stream, patience, [this] {
            ++Turns;
            AtEachTurn();
        });
    }

    TemporaryHome home;
    const QString stream = home.WriteFile(u"a stream, not a file", jetbytes::Stream({{"A001"}}));
    HeldClocks Clocks;
    std::function<void()> AtEachTurn = [] {};
    int Turns = 0;
};

TEST_F(OldDatabaseReaderTest, WholeStream_IsGivenBack)
{
    GivenReader("cat \"$1\"");

    const auto rows = Read();

    ASSERT_TRUE(rows);
    EXPECT_EQ(rows->At(0)[0].toByteArray(), "A001");
}

TEST_F(OldDatabaseReaderTest, WhatItSaysBesides_IsIgnored)
{
    GivenReader("echo warning >&2; cat \"$1\"");

    EXPECT_TRUE(Read());
}

TEST_F(OldDatabaseReaderTest, MissingReader_GivesNothing)
{
    EXPECT_FALSE(Read());
}

TEST_F(OldDatabaseReaderTest, ReaderThatRefuses_GivesNothing)
{
    GivenReader("cat \"$1\"; exit 3");

    EXPECT_FALSE(Read());
}

TEST_F(OldDatabaseReaderTest, ReaderThatDies_GivesNothing)
{
    GivenReader("cat \"$1\"; kill -SEGV $$");

    EXPECT_FALSE(Read());
}

TEST_F(OldDatabaseReaderTest, HalfAStream_GivesNothing)
{
    GivenReader("head -c 40 \"$1\"");

    EXPECT_FALSE(Read());
}

TEST_F(OldDatabaseReaderTest, ReaderThatHangs_IsEndedInTime_AndTheWindowsLive)
{
    GivenReader("exec sleep 1000");
    AtEachTurn = [this] { Clocks.LetPass(101ms); };

    EXPECT_FALSE(Read(400ms));

    EXPECT_EQ(Turns, 4);
}

TEST_F(OldDatabaseReaderTest, ReaderThatTalksWithoutEnd_IsEndedInTime)
{
    GivenReader("exec cat /dev/zero");
    AtEachTurn = [this] { Clocks.LetPass(101ms); };

    EXPECT_FALSE(Read(300ms));

    EXPECT_EQ(Turns, 3);
}

TEST_F(OldDatabaseReaderTest, ReaderThatTellsMoreThanAnyBranchHolds_IsEndedBeforeItsTime)
{
    GivenReader("exec cat /dev/zero");

    EXPECT_FALSE(Read(100s)) << "and no time has passed";
}

} // namespace
} // namespace lineforge
