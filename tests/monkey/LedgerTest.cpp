#include "monkey/Ledger.h"

#include "monkey/Journal.h"
#include "support/BranchBuilder.h"
#include "support/Printing.h"
#include "support/SqliteFile.h"

#include <QDir>

#include <gtest/gtest.h>

namespace lineforge::monkey
{
namespace
{
using namespace Qt::StringLiterals;

const QStringList john{u"A001"_s, u"A001"_s, u"John"_s};
const QStringList johnny{u"A001"_s, u"A001"_s, u"Johnny"_s};
const QStringList nobody{u"A001"_s, u"A001"_s, QString()};
const QStringList mary{u"A002"_s, u"A002"_s, u"Mary"_s};
const QStringList paul{u"A003"_s, u"A003"_s, u"Paul"_s};

struct Commit {
    const char* Name;
    Rows Before;
    Rows After;
    bool IsFault;
};

class CommitTest : public testing::TestWithParam<Commit>
{
};

TEST_P(CommitTest, MayChangeOneRecord_AndTakeNoneAwayUnasked)
{
    EXPECT_EQ(!FaultOfCommit(GetParam().Before, GetParam().After, {u"A003"_s}).isEmpty(), GetParam().IsFault);
}

INSTANTIATE_TEST_SUITE_P(Commits, CommitTest,
                         testing::Values(Commit{"Nothing", {john, mary}, {john, mary}, false},
                                         Commit{"OneAdded", {john}, {john, mary}, false},
                                         Commit{"OneChanged", {john, mary}, {johnny, mary}, false},
                                         Commit{"ConfirmedOneGone", {john, paul}, {john}, false},
                                         Commit{"OneGone", {john, mary}, {john}, true},
                                         Commit{"TwoAdded", {john}, {john, mary, paul}, true},
                                         Commit{"TwoChanged", {john, mary}, {johnny, paul}, true},
                                         Commit{"NumberChanged", {john, mary}, {john, paul}, true},
                                         Commit{"TwoGone", {john, mary, paul}, {john}, true}),
                         [](const auto& commit) { return commit.param.Name; });

class LedgerTest : public testing::Test
{
protected:
    LedgerTest()
    {
        BranchBuilder(home_, u'A')
            .Row({{u"File", u"A001"}, {u"Forename", u"John"}})
            .Row({{u"File", u"A002"}, {u"Forename", u"Mary"}})
            .Build();
    }

    QString Database() const { return home_.Path(u"LfgDat_A/LfgDat_A.mdb"); }
    QString File() const { return home_.Path(u"ledger"); }
    void Execute(const QByteArray& sql) const { SqliteFile(Database()).Execute(sql); }
    QStringList Findings() const { return Story(home_.Path(u"journal")).Findings; }

    // As the session keeps it.
    std::unique_ptr<Ledger> Kept() { return std::make_unique<Ledger>(QStringList{home_.Path()}, File(), journal_); }

    TemporaryHome home_;
    Journal journal_{home_.Path(u"journal"), {{home_.Path(), u"~"_s}}};
};

TEST_F(LedgerTest, CommitsOfOneRecord_AreNoFindings)
{
    const auto ledger = Kept();
    Execute("UPDATE Tree99 SET Forename = 'Johnny' WHERE File = 'A001'");
    Execute("INSERT INTO Tree99 (File) VALUES ('A003')");
    ledger->Audit();
    EXPECT_EQ(Findings(), QStringList());
}

TEST_F(LedgerTest, RecordThatGoesUnasked_IsFound)
{
    const auto ledger = Kept();
    Execute("DELETE FROM Tree99 WHERE File = 'A002'");
    EXPECT_EQ(Findings(), QStringList(u"~/LfgDat_A/LfgDat_A.mdb: record A002 has gone, and nobody confirmed that"_s));
}

TEST_F(LedgerTest, ConfirmedDeletion_IsNone_AndCountsOnce)
{
    const auto ledger = Kept();
    ledger->ConfirmRecord(Database(), u"A002"_s);
    Execute("DELETE FROM Tree99 WHERE File = 'A002'");
    EXPECT_EQ(Findings(), QStringList());
    Execute("INSERT INTO Tree99 (File) VALUES ('A002')");
    Execute("DELETE FROM Tree99 WHERE File = 'A002'");
    EXPECT_EQ(Findings().size(), 1);
}

TEST_F(LedgerTest, EditThatLandsInTwoRecords_IsFound)
{
    const auto ledger = Kept();
    Execute("UPDATE Tree99 SET Forename = 'Johnny'");
    EXPECT_EQ(Findings(), QStringList(u"~/LfgDat_A/LfgDat_A.mdb: one commit has changed 2 records into 2"_s));
}

TEST_F(LedgerTest, DatabaseThatGoesUnasked_IsFound_AConfirmedOneIsNot)
{
    const auto ledger = Kept();
    QFile::remove(Database());
    ledger->Audit();
    EXPECT_EQ(Findings(),
              QStringList(u"~/LfgDat_A/LfgDat_A.mdb has gone or can't be read, and nobody confirmed that"_s));
}

TEST_F(LedgerTest, ConfirmedBranch_MayGo)
{
    const auto ledger = Kept();
    ledger->ConfirmBranch(home_.Path(u"LfgDat_A"));
    QFile::remove(Database());
    ledger->Audit();
    EXPECT_EQ(Findings(), QStringList());
}

TEST_F(LedgerTest, ConfirmedBranch_MayGo_WhateverIsStoredInItBefore)
{
    const auto ledger = Kept();
    ledger->ConfirmBranch(home_.Path(u"LfgDat_A"));
    Execute("UPDATE Tree99 SET Forename = 'Johnny' WHERE File = 'A001'");
    QFile::remove(Database());
    ledger->Audit();
    EXPECT_EQ(Findings(), QStringList());
}

TEST_F(LedgerTest, BranchThatTakesTheNameOfAConfirmedOne_MayNotGo)
{
    const auto ledger = Kept();
    ledger->ConfirmBranch(home_.Path(u"LfgDat_A"));
    QDir(home_.Path(u"LfgDat_A")).rename(home_.Path(u"LfgDat_A"), home_.Path(u"gone"));
    BranchBuilder(home_, u'A').Row({{u"File", u"A001"}}).Build();
    Execute("UPDATE Tree99 SET Forename = 'Johnny' WHERE File = 'A001'");
    QFile::remove(Database());
    ledger->Audit();
    EXPECT_EQ(Findings().size(), 1);
}

// A process that is killed leaves the file as it stands.
TEST_F(LedgerTest, AfterDeath_WhatWasCommittedLastIsAsked)
{
    {
        const auto ledger = Kept();
        Execute("UPDATE Tree99 SET Forename = 'Johnny' WHERE File = 'A001'");
    }
    EXPECT_EQ(FaultsAfterDeath(File()), QStringList());

    Execute("UPDATE Tree99 SET Forename = 'John' WHERE File = 'A001'");

    EXPECT_EQ(FaultsAfterDeath(File()), QStringList(Database() + u": a committed change is lost"));
}

TEST_F(LedgerTest, AfterDeath_TheCommitUnderWayMayBeThereOrNot)
{
    QByteArray before;
    {
        const auto ledger = Kept();
        before = home_.ReadFile(u"ledger");
        Execute("UPDATE Tree99 SET Forename = 'Johnny' WHERE File = 'A001'");
    }
    const QByteArray begun = "begun\t" + Database().toUtf8() + '\n';
    ASSERT_TRUE(home_.ReadFile(u"ledger").startsWith(QByteArray(before + begun)));

    home_.WriteFile(u"ledger", before + begun + "rows\tcut sho");
    EXPECT_EQ(FaultsAfterDeath(File()), QStringList());
    home_.WriteFile(u"ledger", before);
    EXPECT_EQ(FaultsAfterDeath(File()).size(), 1);
    home_.WriteFile(u"ledger", before + begun);
    Execute("DELETE FROM Tree99");
    EXPECT_EQ(FaultsAfterDeath(File()).size(), 1);
}

TEST_F(LedgerTest, NullAndEmpty_AreTwoThings)
{
    {
        const auto ledger = Kept();
    }
    Execute("UPDATE Tree99 SET Surname = '' WHERE File = 'A001'");
    EXPECT_EQ(FaultsAfterDeath(File()).size(), 1);
}

} // namespace
} // namespace lineforge::monkey
