#include "BenchHome.h"
#include "Runs.h"
#include "platform/store/Database.h"
#include "platform/store/Recordset.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace lineforge::bench
{
namespace
{

using namespace Qt::StringLiterals;

const QString& LargeDatabase()
{
    static const QTemporaryDir directory;
    static const QString path = []() -> QString {
        QString file = directory.path() + u"/LfgDat_A.mdb";
        MakeDatabase(file, u'A', 100'000);
        return file;
    }();
    return path;
}

// A record that isn't there: every row is compared.
void WalkRecordset(benchmark::State& state)
{
    static const FileSystem files(u"/"_s);
    static Databases databases;
    static Recordset records(databases.Open(files, LargeDatabase()), u"Tree99"_s);
    const QString sought = u"Z999"_s;
    for (auto _ : state) {
        records.MoveFirst();
        while (!records.Eof() && !records.FieldIs(u"File", sought))
            records.MoveNext();
        benchmark::DoNotOptimize(records.Eof());
    }
}

void WalkBare(benchmark::State& state)
{
    sqlite3* database = nullptr;
    sqlite3_open_v2(LargeDatabase().toUtf8().constData(), &database, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_stmt* rows = nullptr;
    sqlite3_prepare_v2(database, "SELECT rowid, File FROM Tree99", -1, &rows, nullptr);
    for (auto _ : state) {
        bool found = false;
        while (!found && sqlite3_step(rows) == SQLITE_ROW)
            found = sqlite3_stricmp(reinterpret_cast<const char*>(sqlite3_column_text(rows, 1)), "Z999") == 0;
        benchmark::DoNotOptimize(found);
        sqlite3_reset(rows);
    }
    sqlite3_finalize(rows);
    sqlite3_close(database);
}

BENCHMARK(WalkRecordset)->Apply(ShortRuns<50>);
BENCHMARK(WalkBare)->Apply(ShortRuns<50>);

} // namespace
} // namespace lineforge::bench
