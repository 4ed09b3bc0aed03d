#include "check/LeftoverCheck.h"
#include "faults/Commands.h"
#include "faults/FailingDisk.h"
#include "support/HomeVerdict.h"
#include "support/SqliteFile.h"

#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <climits>
#include <gtest/gtest.h>
#include <map>
#include <tuple>

// Every command that writes, on a disk that refuses it anything once, or all from then on. No file is torn, and the
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
    Tree Files;            // without databases, and without what is left of work
    std::map<QString, Rows> Databases;
};

// A piece of work that was cut off, as the check knows it by its name; it may hold anything.
bool IsLeftBehind(const QString& path)
{
    return check::IsLeftover(path.section(u'/', -1));
}

Outcome OutcomeOf(World& world)
{
    Outcome outcome{world.Person.Told, world.Machine.Loop.ExitCode.value_or(0) != 0, {}, {}};
    // Each run has a home of its own.
    const QString home = world.Home.Path();
    outcome.Told.replaceInStrings(home, QStringLiteral("home"));
    const Tree files = world.Home.Snapshot();
    for (auto file = files.begin(); file != files.end(); ++file) {
        if (file.key().endsWith(u".mdb"))
            outcome.Databases[file.key()] =
                SqliteFile(world.Home.Path(file.key())).Query("SELECT * FROM Tree99 ORDER BY rowid");
        else if (!IsLeftBehind(file.key()))
            outcome.Files[file.key()] = QByteArray(file.value()).replace(QFile::encodeName(home), "home");
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

const char* NameOf(Refused refused)
{
    switch (refused) {
    case Refused::Content:
        return "Content";
    case Refused::Halves:
        return "Halves";
    case Refused::Names:
        return "Names";
    }
    return "";
}

class WriteFaultTest : public testing::TestWithParam<std::tuple<Command, Refused>>
{
protected:
    static const Command& Tested() { return std::get<Command>(GetParam()); }
    static Refused Refusal() { return std::get<Refused>(GetParam()); }

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
        Tested().Given(world);
        world.Person.Told.clear();
        run.Before = OutcomeOf(world);
        run.FaultsBefore = HomeFaults(world);
        {
            const FailingDisk failing(world.Home.Path(), number, fault, Refusal());
            Tested().Do(world);
            run.WasReached = failing.HasBegun();
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
        const QStringView ending = Tested().WrittenAsItGoes;
        return !ending.isEmpty() && file.endsWith(ending);
    }

    static bool Holds(const Outcome& outcome, const QString& name, const Rows& rows)
    {
        const auto found = outcome.Databases.find(name);
        return found != outcome.Databases.end() && found->second == rows;
    }

    static bool Passes(const QString& fault)
    {
        return !Tested().May.isEmpty() && QRegularExpression(Tested().May.toString()).match(fault).hasMatch();
    }

    static void ExpectTold(const Run& run, const Run& clean)
    {
        const bool isTold = run.After.HasEnded || std::ranges::any_of(run.After.Told, [&](const QString& box) {
                                return !clean.After.Told.contains(box);
                            });
        // What is taken in halves is no fault.
        EXPECT_FALSE(isTold && Refusal() == Refused::Halves) << qUtf8Printable(run.After.Told.join(u'\n'));
        EXPECT_TRUE(isTold || AreAsMeant(run.After, clean.After)) << qUtf8Printable(run.After.Told.join(u'\n'));
    }

    // But for what may be missing without a word.
    static bool AreAsMeant(const Outcome& outcome, const Outcome& clean)
    {
        const QRegularExpression silent(Tested().Silent.toString());
        const auto counts = [&](const QString& name) {
            return Tested().Silent.isEmpty() || !silent.match(name).hasMatch();
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
    const Run clean = RunWith(INT_MAX, Fault::OneTime);
    // Some write names only.
    ASSERT_TRUE(Refusal() == Refused::Halves || RunWith(1, Fault::OneTime).WasReached) << "the command writes nothing";
    for (const Fault fault : {Fault::OneTime, Fault::FromThatOn})
        for (int number = 1; !HasFailure(); ++number) {
            SCOPED_TRACE(testing::Message()
                         << "refusal " << number << (fault == Fault::OneTime ? "" : " and all after"));
            const Run run = RunWith(number, fault);
            if (!run.WasReached)
                break;
            ExpectWhole(run, clean);
            ExpectTold(run, clean);
        }
}

INSTANTIATE_TEST_SUITE_P(Commands, WriteFaultTest,
                         testing::Combine(testing::ValuesIn(AllCommands()),
                                          testing::Values(Refused::Content, Refused::Halves, Refused::Names)),
                         [](const auto& tested) {
                             return std::string(std::get<Command>(tested.param).Name) +
                                    NameOf(std::get<Refused>(tested.param));
                         });

} // namespace
} // namespace lineforge::faults
