#include "BenchHome.h"
#include "Machine.h"
#include "Runs.h"
#include "forms/Form3.h"
#include "forms/Form8.h"
#include "map/subjects/MapInteraction.h"
#include "platform/drawing/PictureFile.h"
#include "records/RecordScanner.h"
#include "shell/branches/OpenBranch.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QImageReader>

#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace lineforge::bench
{
namespace
{

using namespace Qt::StringLiterals;

constexpr int people = 100'000;
const QString last = u"A100000"_s;

void WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QFile::WriteOnly))
        qFatal("can't write a file of the benchmark");
    file.write(bytes);
}

// One branch of 100,000 people; the last of them has a box, and the first three and the last a 12-megapixel portrait.
class LargeHome
{
public:
    LargeHome()
    {
        QDir(directory_.path()).mkdir(u"LfgDat_A"_s);
        MakeDatabase(Branch() + u"LfgDat_A.mdb", u'A', people);
        WriteFile(Branch() + u"LfgDat_A.cfg", "[Boxes]\r\n500,500,0,0,,1000,1000,0,A100000,,\r\n[Lines]\r\n0,0,0,\r\n"
                                              "[Text]\r\n0,0,0,\r\n");
        WriteFile(Path() + u"AliasList.cfg", "[Alias]\r\n[Large=LfgDat_A,]\r\n[CFG]\r\n[1,]\r\n");
        QImage portrait(4000, 3000, QImage::Format_RGB32);
        portrait.fill(Qt::lightGray);
        for (const QString& file : {u"A001"_s, u"A002"_s, u"A003"_s, last})
            portrait.save(Branch() + file + u"Sub.jpg", "jpg");
    }

    QString Path() const { return directory_.path() + u'/'; }
    QString Branch() const { return Path() + u"LfgDat_A/"; }

private:
    QTemporaryDir directory_;
};

const LargeHome& Home()
{
    static const LargeHome home;
    return home;
}

class OpenProgram : public Machine
{
public:
    OpenProgram() : Machine(Home().Path())
    {
        P.Form8->List1.ListIndex = 0;
        OpenSelectedBranch(P);
    }
};

Program& LargeProgram()
{
    static auto* program = new OpenProgram;
    return program->P;
}

void DoubleClickLast(benchmark::State& state)
{
    Program& p = LargeProgram();
    for (auto _ : state) {
        p.Mouse.DownX = 1100;
        p.Mouse.DownY = 1050;
        DoubleClickOnMap(p, p);
        if (p.Record.sCurFile != last)
            state.SkipWithError("the record was not found");
    }
}

void WalkBareToLast(benchmark::State& state)
{
    sqlite3* database = nullptr;
    sqlite3_open_v2((Home().Branch() + u"LfgDat_A.mdb").toUtf8().constData(), &database, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_stmt* rows = nullptr;
    sqlite3_prepare_v2(database, "SELECT rowid, File FROM Tree99", -1, &rows, nullptr);
    for (auto _ : state) {
        bool found = false;
        while (!found && sqlite3_step(rows) == SQLITE_ROW)
            found = sqlite3_stricmp(reinterpret_cast<const char*>(sqlite3_column_text(rows, 1)), "A100000") == 0;
        if (!found)
            state.SkipWithError("the record was not found");
        sqlite3_reset(rows);
    }
    sqlite3_finalize(rows);
    sqlite3_close(database);
}

// To and fro over three records, as one leafs through them.
void ScannerStep(benchmark::State& state)
{
    static Program& p = (new OpenProgram)->P;
    const auto step = [&](ScanMode mode) {
        p.Record.RecordScanMode = static_cast<int>(mode);
        TickScan(p, p, p.Databases.Others());
        if (p.Form3->Image1.Picture.value().isNull())
            state.SkipWithError("no picture is shown");
    };
    const ScanMode round[] = {ScanMode::Forward, ScanMode::Forward, ScanMode::Back, ScanMode::Back};
    for (const ScanMode mode : round)
        step(mode);
    std::size_t at = 0;
    for (auto _ : state)
        step(round[at++ % std::size(round)]);
}

// A picture of theirs at the size at which it is kept.
void DecodePortrait(benchmark::State& state)
{
    constexpr int longest = PictureCache::LongestSide;
    for (auto _ : state) {
        QImageReader reader(Home().Branch() + u"A001Sub.jpg");
        reader.setScaledSize(reader.size().scaled(longest, longest, Qt::KeepAspectRatio));
        if (reader.read().isNull())
            state.SkipWithError("no picture");
    }
}

BENCHMARK(DoubleClickLast)->Apply(ShortRuns<50>);
BENCHMARK(WalkBareToLast)->Apply(ShortRuns<50>);
BENCHMARK(ScannerStep)->Apply(ShortRuns<50, 8>);
BENCHMARK(DecodePortrait)->Apply(ShortRuns<20>);

} // namespace
} // namespace lineforge::bench
