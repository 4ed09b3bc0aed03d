#include "platform/store/PeopleTable.h"
#include "platform/store/Recordset.h"
#include "support/ChildProcess.h"
#include "support/CutOffChange.h"

#include <unistd.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

class CrashSafetyTest : public PeopleTable, public testing::WithParamInterface<int>
{
protected:
    // Numbers the rows again and again, a row an update, and tells of each update when it is done.
    int UpdateForEver(const Pipe& done)
    {
        Recordset people = Open();
        for (int count = 1;; ++count) {
            people.Edit();
            people.Put(u"Name", QString::number(count).rightJustified(2000, u'0'));
            people.Update();
            done.Tell(count);
            people.MoveNext();
            if (people.Eof())
                people.MoveFirst();
        }
    }
};

TEST_P(CrashSafetyTest, ProcessKilledInTheMiddleOfUpdates_LosesNoneThatWasDone)
{
    constexpr int rows = 10;
    GivenPeople(QList<std::optional<QString>>(rows, u"0"_s));
    Pipe pipe;
    ChildProcess child([&] { return UpdateForEver(pipe); });
    pipe.Listen();

    int done = 0;
    while (done < GetParam()) {
        const auto told = pipe.Hear();
        ASSERT_TRUE(told) << "it has come to its end by itself";
        done = *told;
    }
    child.KillNow();
    EXPECT_EQ(child.Wait(), -1);

    Recordset people = Open();
    const QStringList names = Walk(people);
    ASSERT_EQ(names.size(), rows);
    for (int row = 0; row < rows; ++row) {
        // The row's last update that was told of; at most the one under way when the end came is further.
        const int told = done - (done - 1 - row + rows) % rows;
        EXPECT_GE(names[row].toInt(), told > 0 ? told : 0) << "row " << row;
    }
    EXPECT_EQ(SqliteFile(FilePath()).Value("PRAGMA integrity_check"), u"ok"_s);
}

INSTANTIATE_TEST_SUITE_P(Killed, CrashSafetyTest, testing::Values(1, 2, 13, 40, 75));

class CutShortTest : public PeopleTable
{
};

TEST_F(CutShortTest, TransactionCutShortByAKill_IsUndoneAtTheNextOpening)
{
    GivenPeople({u"Ann"_s, u"Bob"_s});
    CutOffChange(FilePath(), "UPDATE People SET Name = 'half done'",
                 "INSERT INTO People VALUES ('x', hex(zeroblob(500)))");
    ASSERT_TRUE(home.Exists(u"people.db-journal"));

    Recordset people = Open();

    EXPECT_EQ(Walk(people), QStringList({u"Ann"_s, u"Bob"_s}));
}

} // namespace
} // namespace lineforge
