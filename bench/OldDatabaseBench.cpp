#include "Machine.h"
#include "Runs.h"
#include "program/branch/OldDatabase.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtEndian>

#include <benchmark/benchmark.h>

namespace lineforge::bench
{
namespace
{

using namespace Qt::StringLiterals;

constexpr int rowsOfSource = 999;
constexpr int copies = 51;

// A database of Access 2000 with the rows of a smaller one over and over: its pages of rows, appended, and a map that
// has them.
class LargeDatabase
{
public:
    explicit LargeDatabase(const QByteArray& source) : bytes_(source)
    {
        const int pages = static_cast<int>(source.size() / pageBytes);
        const quint32 table = OwnerOfMostPages(pages);
        std::vector<int> own;
        for (int page = 0; page < pages; ++page)
            if (IsPageOf(page, table))
                own.push_back(page);
        std::vector<quint32> all(own.begin(), own.end());
        for (int copy = 1; copy < copies; ++copy)
            for (const int page : own) {
                all.push_back(PageCount());
                bytes_ += source.sliced(page * pageBytes, pageBytes);
            }
        PutMap(table, all);
        Put32(static_cast<qsizetype>(table) * pageBytes + rowCountPlace, rowsOfSource * copies);
    }

    const QByteArray& Bytes() const { return bytes_; }

private:
    static constexpr qsizetype pageBytes = 4096;
    static constexpr qsizetype rowCountPlace = 16;
    static constexpr qsizetype mapPointerPlace = 55;
    static constexpr qsizetype slotsPlace = 14;
    static constexpr char dataPage = 1;
    static constexpr char mapPage = 5;
    static constexpr char mapOfMaps = 1;

    quint32 PageCount() const { return static_cast<quint32>(bytes_.size() / pageBytes); }
    quint32 Get32(qsizetype at) const { return qFromLittleEndian<quint32>(bytes_.constData() + at); }
    void Put32(qsizetype at, quint32 number) { qToLittleEndian(number, bytes_.data() + at); }

    bool IsPageOf(int page, quint32 table) const
    {
        return bytes_[page * pageBytes] == dataPage && Get32(page * pageBytes + 4) == table;
    }

    // The catalogue and its like are small.
    quint32 OwnerOfMostPages(int pages) const
    {
        QMap<quint32, int> counts;
        for (int page = 0; page < pages; ++page)
            if (bytes_[page * pageBytes] == dataPage)
                ++counts[Get32(page * pageBytes + 4)];
        return std::ranges::max_element(counts).key();
    }

    // In the place of the small map, which has all pages in itself, one that names a page of its own for them.
    void PutMap(quint32 table, const std::vector<quint32>& pages)
    {
        const quint32 pointer = Get32(static_cast<qsizetype>(table) * pageBytes + mapPointerPlace);
        const qsizetype holder = static_cast<qsizetype>(pointer >> 8) * pageBytes;
        const auto start = qFromLittleEndian<quint16>(bytes_.constData() + holder + slotsPlace + 2 * (pointer & 0xFF));
        bytes_[holder + start] = mapOfMaps;
        Put32(holder + start + 1, PageCount());
        QByteArray map(pageBytes, '\0');
        map[0] = mapPage;
        map[1] = 1;
        for (const quint32 page : pages)
            map[4 + page / 8] = static_cast<char>(map[4 + page / 8] | 1 << page % 8);
        bytes_ += map;
    }

    QByteArray bytes_;
};

const QByteArray& OldBytes()
{
    static const QByteArray bytes = [] {
        QFile source(QStringLiteral(OLD_DATABASE));
        if (!source.open(QFile::ReadOnly))
            qFatal("can't read the database of the benchmark");
        return LargeDatabase(source.readAll()).Bytes();
    }();
    return bytes;
}

void Write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QFile::WriteOnly | QFile::Truncate) || file.write(bytes) != bytes.size())
        qFatal("can't write a file of the benchmark");
}

qint64 RowsOf(const QString& database)
{
    Databases databases;
    const auto rows = databases.Open(FileSystem(u"/"_s), database)->Prepare("SELECT count(*) FROM Tree99");
    rows->Step();
    return rows->Integer(0);
}

// With all that belongs to it: the reading process, the new file, the look at what it holds, the copy of the old one.
void ConvertOldDatabase(benchmark::State& state)
{
    const QTemporaryDir directory;
    const QString home = directory.path() + u'/';
    QFile::link(QStringLiteral(LINEFORGE_JET), home + u"lineforge-jet");
    QDir(home).mkdir(u"LfgDat_A"_s);
    const QString path = home + u"LfgDat_A/LfgDat_A.mdb";
    Write(home + u"AliasList.cfg", "[Alias]\r\n[]\r\n[CFG]\r\n[1,]\r\n");
    Machine machine(home);
    machine.P.Branch.HomeDir = home;
    for (auto _ : state) {
        state.PauseTiming();
        Write(path, OldBytes());
        QFile::remove(home + u"LfgDat_A/LfgDat_A.jet");
        state.ResumeTiming();
        ConvertIfOld(machine.P, path, OldDatabaseUse::Command);
    }
    if (RowsOf(path) != rowsOfSource * copies)
        state.SkipWithError("not all rows were converted");
}

void ExportOldDatabase(benchmark::State& state)
{
    const QTemporaryDir directory;
    const QString path = directory.filePath(u"LfgDat_A.mdb"_s);
    Write(path, OldBytes());
    for (auto _ : state) {
        QProcess exporting;
        exporting.setStandardOutputFile(QProcess::nullDevice());
        exporting.start(QStringLiteral(MDB_EXPORT), {path, u"Tree99"_s});
        if (!exporting.waitForFinished() || exporting.exitCode() != 0)
            state.SkipWithError("no export");
    }
}

BENCHMARK(ConvertOldDatabase)->Apply(ShortRuns<20>)->UseRealTime();
BENCHMARK(ExportOldDatabase)->Apply(ShortRuns<20>)->UseRealTime();

} // namespace
} // namespace lineforge::bench
