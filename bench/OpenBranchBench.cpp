#include "BenchHome.h"
#include "Machine.h"
#include "Runs.h"
#include "forms/Form1.h"
#include "forms/Form8.h"
#include "shell/branches/OpenBranch.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace lineforge::bench
{
namespace
{

using namespace Qt::StringLiterals;

const BenchHome& Home()
{
    static const BenchHome home;
    return home;
}

void OpenBranch(benchmark::State& state)
{
    static Program& p = (new Machine(Home().Path()))->P;
    for (auto _ : state) {
        p.Form8->List1.ListIndex = 0;
        OpenSelectedBranch(p);
        benchmark::DoNotOptimize(p.Form1->Picture1.Drawing());
    }
    if (p.Map.SBoxes != 99 || p.Record.sCurFile != u"A001")
        state.SkipWithError("the branch was not opened");
}

void ReadFilesBare(benchmark::State& state)
{
    Home();
    for (auto _ : state) {
        for (char16_t letter = u'A'; letter <= u'K'; ++letter) {
            sqlite3* database = nullptr;
            sqlite3_open_v2(Home().Database(letter).toUtf8().constData(), &database, SQLITE_OPEN_READONLY, nullptr);
            sqlite3_stmt* rows = nullptr;
            sqlite3_prepare_v2(database, "SELECT * FROM Tree99", -1, &rows, nullptr);
            while (sqlite3_step(rows) == SQLITE_ROW)
                for (int column = 0; column < 25; ++column)
                    benchmark::DoNotOptimize(sqlite3_column_text(rows, column));
            sqlite3_finalize(rows);
            sqlite3_close(database);
        }
    }
}

BENCHMARK(OpenBranch)->Apply(ShortRuns<50>);
BENCHMARK(ReadFilesBare)->Apply(ShortRuns<50>);

} // namespace
} // namespace lineforge::bench
