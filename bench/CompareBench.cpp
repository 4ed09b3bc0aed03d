#include "BenchHome.h"
#include "Machine.h"
#include "compare/CompareBranch.h"
#include "compare/CompareSearch.h"
#include "compare/Sides.h"
#include "platform/Text.h"
#include "program/WorkDatabase.h"
#include "shell/OpenBranch.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <map>
#include <sqlite3.h>

namespace lineforge::bench
{
namespace
{

using namespace Qt::StringLiterals;

// Every search ends in a box that is answered at once.
class Answering : public NoUser
{
public:
    Answer MsgBox(const QString&, const QString&, Buttons) override { return Answer::Ok; }
};

void Write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QFile::WriteOnly))
        qFatal("can't write a file of the benchmark");
    file.write(bytes);
}

void Execute(const QString& path, const char* sql)
{
    sqlite3* database = nullptr;
    if (sqlite3_open(path.toUtf8().constData(), &database) != SQLITE_OK ||
        sqlite3_exec(database, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        qFatal("can't prepare a database of the benchmark");
    sqlite3_close(database);
}

// Two branches of that many people: no surname of the one is one of the other; or all of the second are alike, and like
// the first of the first.
class CompareHome
{
public:
    CompareHome(int people, bool isAlike)
    {
        for (const QChar letter : {u'A', u'B'}) {
            const QString directory = directory_.path() + u"/LfgDat_" + letter;
            QDir().mkpath(directory);
            const QString database = directory + u"/LfgDat_" + letter + u".mdb";
            MakeDatabase(database, letter, letter == u'A' && isAlike ? 1 : people);
            if (isAlike)
                Execute(database,
                        "UPDATE Tree99 SET Surname = 'Smith', Forename = 'John', FatherRec = NULL, MotherRec = NULL,"
                        " Maiden = '', Nationality = 'British', BirthDate = '1901', BirthPlace = 'Leeds',"
                        " Spouse = 'Mary', Children = 'Ann, Bob', Partner = '', PrevChildren = '', Wedding = '',"
                        " BirthCertificate = '', MarriageCertificate = '', DeathCertificate = '', Education = 'x',"
                        " Profession = 'Baker', Deceased = '1950', Medical = 'None', Notes = 'Liked cats'");
            else
                Execute(database, letter == u'A' ? "UPDATE Tree99 SET Surname = 'Ours ' || rowid"
                                                 : "UPDATE Tree99 SET Surname = 'Theirs ' || rowid");
            Write(directory + u"/LfgDat_" + letter + u".cfg",
                  "[Boxes]\r\n0,0,0,0,,\r\n[Lines]\r\n0,0,0,\r\n[Text]\r\n0,0,0,\r\n");
        }
        Write(Path() + u"AliasList.cfg", "[Alias]\r\n[Ours=LfgDat_A,Theirs=LfgDat_B,]\r\n[CFG]\r\n[1,]\r\n");
    }

    QString Path() const { return directory_.path() + u'/'; }

private:
    QTemporaryDir directory_;
};

const CompareHome& HomeOf(int people, bool isAlike = false)
{
    static std::map<std::pair<int, bool>, std::unique_ptr<CompareHome>> homes;
    std::unique_ptr<CompareHome>& home = homes[{people, isAlike}];
    if (!home)
        home = std::make_unique<CompareHome>(people, isAlike);
    return *home;
}

class Comparison
{
public:
    explicit Comparison(const CompareHome& home) : machine_(home.Path(), user_)
    {
        P.Form8->List1.ListIndex = 0;
        OpenSelectedBranch(P);
        OpenComparison(P);
        OpenCompareBranch(P, u"Theirs"_s, u"Theirs=LfgDat_B"_s);
    }

private:
    Answering user_;
    Machine machine_;

public:
    Program& P = machine_.P;
};

void WhereSameWithoutMatch(benchmark::State& state, int people)
{
    Comparison comparison(HomeOf(people));
    Program& p = comparison.P;
    p.Form6->Check2.Value = true;
    for (auto _ : state) {
        state.PauseTiming();
        ResetCompare(p);
        state.ResumeTiming();
        SearchCompare(p);
        if (p.Scratch.ScanState != 3)
            state.SkipWithError("a pair was found");
    }
}

void WhereSame2500(benchmark::State& state)
{
    WhereSameWithoutMatch(state, 2'500);
}
void WhereSame5000(benchmark::State& state)
{
    WhereSameWithoutMatch(state, 5'000);
}
void WhereSame10000(benchmark::State& state)
{
    WhereSameWithoutMatch(state, 10'000);
}

// Step by step, as the search is told.
void DoubleLoop2500(benchmark::State& state)
{
    Comparison comparison(HomeOf(2'500));
    Recordset& current = Records(comparison.P);
    Recordset& compare = CompareRecords(comparison.P);
    for (auto _ : state) {
        int found = 0;
        for (current.MoveFirst(); !current.Eof(); current.MoveNext())
            for (compare.MoveFirst(); !compare.Eof(); compare.MoveNext())
                found += SameText(current.Text(u"Surname"), compare.Text(u"Surname"));
        benchmark::DoNotOptimize(found);
    }
}

void EqualPairs10000(benchmark::State& state)
{
    Comparison comparison(HomeOf(10'000, true));
    Program& p = comparison.P;
    for (auto _ : state) {
        state.PauseTiming();
        ResetCompare(p);
        state.ResumeTiming();
        SearchCompare(p);
        if (p.Compare.SearchEnded != 1)
            state.SkipWithError("a difference was found");
    }
}

BENCHMARK(WhereSame2500)->Unit(benchmark::kMillisecond)->Repetitions(7)->UseRealTime();
BENCHMARK(WhereSame5000)->Unit(benchmark::kMillisecond)->Repetitions(7)->UseRealTime();
BENCHMARK(WhereSame10000)->Unit(benchmark::kMillisecond)->Repetitions(7)->UseRealTime();
BENCHMARK(DoubleLoop2500)->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(3)->UseRealTime();
BENCHMARK(EqualPairs10000)->Unit(benchmark::kMillisecond)->Repetitions(7)->UseRealTime();

} // namespace
} // namespace lineforge::bench
