#include "BenchHome.h"
#include "Machine.h"
#include "Runs.h"
#include "compare/CompareBranch.h"
#include "compare/CompareSearch.h"
#include "compare/Sides.h"
#include "forms/Form6.h"
#include "forms/Form8.h"
#include "platform/base/Text.h"
#include "program/branch/WorkDatabase.h"
#include "shell/branches/OpenBranch.h"

#include <QDir>
#include <QFile>
#include <QSet>
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
        OpenComparison(P, P.Form1);
        OpenCompareBranch(P, P, u"Theirs"_s, u"Theirs=LfgDat_B"_s);
    }

private:
    Answering user_;
    Machine machine_;

public:
    Program& P = machine_.P;
};

// Kept open.
Program& ComparisonOf(int people, bool isAlike = false)
{
    static std::map<std::pair<int, bool>, Comparison*> comparisons;
    Comparison*& comparison = comparisons[{people, isAlike}];
    if (!comparison)
        comparison = new Comparison(HomeOf(people, isAlike));
    return comparison->P;
}

void WhereSameWithoutMatch(benchmark::State& state, int people)
{
    Program& p = ComparisonOf(people);
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
    Program& p = ComparisonOf(2'500);
    Recordset& current = Records(p.Form3);
    Recordset& compare = CompareRecords(p.Form6);
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
    Program& p = ComparisonOf(10'000, true);
    for (auto _ : state) {
        state.PauseTiming();
        ResetCompare(p);
        state.ResumeTiming();
        SearchCompare(p);
        if (p.Compare.SearchEnded != 1)
            state.SkipWithError("a difference was found");
    }
}

// The rows of one side's database, by the engine alone.
class BareRows
{
public:
    BareRows(const CompareHome& home, QChar letter, const char* sql)
    {
        const QString path = home.Path() + u"LfgDat_" + letter + u"/LfgDat_" + letter + u".mdb";
        sqlite3_open_v2(path.toUtf8().constData(), &database_, SQLITE_OPEN_READONLY, nullptr);
        if (sqlite3_prepare_v2(database_, sql, -1, &rows_, nullptr) != SQLITE_OK)
            qFatal("%s", sqlite3_errmsg(database_));
    }
    ~BareRows()
    {
        sqlite3_finalize(rows_);
        sqlite3_close(database_);
    }
    BareRows(const BareRows&) = delete;
    BareRows& operator=(const BareRows&) = delete;

    bool Step() { return sqlite3_step(rows_) == SQLITE_ROW; }
    const char* Text(int column) { return reinterpret_cast<const char*>(sqlite3_column_text(rows_, column)); }

private:
    sqlite3* database_ = nullptr;
    sqlite3_stmt* rows_ = nullptr;
};

// The surnames of the one side in a set, in which those of the other are looked up.
void JoinSurnamesBare(benchmark::State& state)
{
    const CompareHome& home = HomeOf(10'000);
    for (auto _ : state) {
        BareRows ours(home, u'A', "SELECT Surname FROM Tree99");
        BareRows theirs(home, u'B', "SELECT Surname FROM Tree99");
        QSet<QString> known;
        while (theirs.Step())
            known.insert(QString::fromUtf8(theirs.Text(0)).toCaseFolded());
        while (ours.Step())
            if (known.contains(QString::fromUtf8(ours.Text(0)).toCaseFolded()))
                state.SkipWithError("a pair was found");
    }
}

// All fields of the one side's record against those of the other's.
void CompareFieldsBare(benchmark::State& state)
{
    constexpr auto fields = "SELECT Surname, Forename, FatherRec, MotherRec, Maiden, Nationality, BirthDate, "
                            "BirthPlace, Spouse, Children, Partner, PrevChildren, Wedding, BirthCertificate, "
                            "MarriageCertificate, DeathCertificate, Education, Profession, Deceased, Medical, Notes "
                            "FROM Tree99";
    constexpr int count = 21;
    const CompareHome& home = HomeOf(10'000, true);
    for (auto _ : state) {
        BareRows ours(home, u'A', fields);
        BareRows theirs(home, u'B', fields);
        int differences = ours.Step() ? 0 : 1;
        while (theirs.Step())
            for (int column = 0; column < count; ++column)
                differences += sqlite3_stricmp(ours.Text(column), theirs.Text(column)) != 0;
        if (differences != 0)
            state.SkipWithError("a difference was found");
    }
}

BENCHMARK(WhereSame2500)->Apply(ShortRuns<20>);
BENCHMARK(WhereSame5000)->Apply(ShortRuns<20>);
BENCHMARK(WhereSame10000)->Apply(ShortRuns<20>);
BENCHMARK(DoubleLoop2500)->Apply(ShortRuns<3>);
BENCHMARK(JoinSurnamesBare)->Apply(ShortRuns<20>);
BENCHMARK(EqualPairs10000)->Apply(ShortRuns<20>);
BENCHMARK(CompareFieldsBare)->Apply(ShortRuns<20>);

} // namespace
} // namespace lineforge::bench
