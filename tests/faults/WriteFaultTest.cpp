#include "faults/Commands.h"
#include "faults/FailingWrites.h"
#include "support/HomeVerdict.h"
#include "support/SqliteFile.h"

#include <QRegularExpression>

#include <algorithm>
#include <climits>
#include <gtest/gtest.h>
#include <map>

// Every command that writes, on a disk that refuses any one of its writes, or all from one on. No file is torn, and the
// user is told, unless nothing is amiss.
namespace lineforge::faults
{
namespace
{

using Rows = std::vector<SqliteFile::Row>;

// How a command has left things.
struct Outcome {
    QStringList Told;
    bool HasEnded = false; // by an error
    Tree Files;            // without databases and what the engine works with
    std::map<QString, Rows> Databases;
};

bool IsOfTheEngine(const QString& name)
{
    return name.endsWith(u".mdb") || name.endsWith(u"-journal");
}

Outcome OutcomeOf(World& world)
{
    Outcome outcome{world.Person.Told, world.Machine.Loop.ExitCode.value_or(0) != 0, {}, {}};
    const Tree files = world.Home.Snapshot();
    for (auto file = files.begin(); file != files.end(); ++file) {
        if (file.key().endsWith(u".mdb"))
            outcome.Databases[file.key()] =
                SqliteFile(world.Home.Path(file.key())).Query("SELECT * FROM Tree99 ORDER BY rowid");
        if (!IsOfTheEngine(file.key()))
            outcome.Files[file.key()] = file.value();
    }
    return outcome;
}

// Without those of a branch that isn't in the list: whatever makes one tells the list last.
QStringList HomeFaults(World& world)
{
    QStringList faults = FaultsOf(world.Home.Path(), Leftovers::Pass);
    QStringList unlisted;
    for (const QString& fault : faults)
        if (fault.endsWith(u"isn't in the list of branches"))
            unlisted += fault.section(u':', 0, 0);
    faults.removeIf(
        [&](const QString& fault) { return unlisted.contains(fault.section(u':', 0, 0).section(u'/', 0, 0)); });
    return faults;
}

class WriteFaultTest : public testing::TestWithParam<Command>
{
protected:
    struct Run {
        bool WasReached = false;
        Outcome Before;
        Outcome After;
        QStringList FaultsBefore;
        QStringList Faults;
    };

    static Run RunWith(int number, Fault fault)
    {
        Run run;
        World world;
        GetParam().Given(world);
        world.Person.Told.clear();
        run.Before = OutcomeOf(world);
        run.FaultsBefore = HomeFaults(world);
        {
            const FailingWrites failing(world.Home.Path(), number, fault);
            GetParam().Do(world);
            run.WasReached = failing.HaveBegun();
        }
        world.LetGo();
        run.After = OutcomeOf(world);
        run.Faults = HomeFaults(world);
        return run;
    }

    // A file has a content that some file had before, or that the command gives to one.
    static void ExpectWhole(const Run& run, const Run& clean)
    {
        for (const QString& fault : run.Faults)
            EXPECT_TRUE(run.FaultsBefore.contains(fault) || clean.Faults.contains(fault) || Passes(fault))
                << qUtf8Printable(fault);
        const QByteArrayList whole = run.Before.Files.values() + clean.After.Files.values();
        const Tree& files = run.After.Files;
        for (auto file = files.begin(); file != files.end(); ++file)
            EXPECT_TRUE(whole.contains(*file) || IsWrittenAsItGoes(file.key()))
                << qUtf8Printable(file.key()) << ": " << file->constData();
        for (const auto& [name, rows] : run.After.Databases)
            EXPECT_TRUE(Holds(run.Before, name, rows) || Holds(clean.After, name, rows)) << qUtf8Printable(name);
    }

    static bool IsWrittenAsItGoes(const QString& file)
    {
        const QStringView ending = GetParam().WrittenAsItGoes;
        return !ending.isEmpty() && file.endsWith(ending);
    }

    static bool Holds(const Outcome& outcome, const QString& name, const Rows& rows)
    {
        const auto found = outcome.Databases.find(name);
        return found != outcome.Databases.end() && found->second == rows;
    }

    static bool Passes(const QString& fault)
    {
        return !GetParam().May.isEmpty() && QRegularExpression(GetParam().May.toString()).match(fault).hasMatch();
    }

    static void ExpectTold(const Run& run, const Run& clean)
    {
        const bool isTold = run.After.HasEnded || std::ranges::any_of(run.After.Told, [&](const QString& box) {
                                return !clean.After.Told.contains(box);
                            });
        EXPECT_TRUE(isTold || AreAsMeant(run.After, clean.After)) << qUtf8Printable(run.After.Told.join(u'\n'));
    }

    // But for what may be missing without a word.
    static bool AreAsMeant(const Outcome& outcome, const Outcome& clean)
    {
        const QRegularExpression silent(GetParam().Silent.toString());
        const auto counts = [&](const QString& name) {
            return GetParam().Silent.isEmpty() || !silent.match(name).hasMatch();
        };
        Tree files = outcome.Files;
        Tree meant = clean.Files;
        for (Tree* tree : {&files, &meant})
            tree->removeIf([&](const auto& file) { return !counts(file.key()); });
        return files == meant && std::ranges::all_of(clean.Databases, [&](const auto& database) {
                   return !counts(database.first) || Holds(outcome, database.first, database.second);
               });
    }
};

TEST_P(WriteFaultTest, LeavesNothingTorn_AndIsTold)
{
    const Run clean = RunWith(INT_MAX, Fault::OneWrite);
    ASSERT_TRUE(RunWith(1, Fault::OneWrite).WasReached) << "the command writes nothing";
    for (const Fault fault : {Fault::OneWrite, Fault::FromThatOn})
        for (int number = 1; !HasFailure(); ++number) {
            SCOPED_TRACE(testing::Message()
                         << "write " << number << (fault == Fault::OneWrite ? "" : " and all after"));
            const Run run = RunWith(number, fault);
            if (!run.WasReached)
                break;
            ExpectWhole(run, clean);
            ExpectTold(run, clean);
        }
}

INSTANTIATE_TEST_SUITE_P(Commands, WriteFaultTest, testing::ValuesIn(AllCommands()),
                         [](const auto& tested) { return std::string(tested.param.Name); });

} // namespace
} // namespace lineforge::faults
