#include "Machine.h"
#include "Runs.h"
#include "interchange/BranchExport.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace lineforge::bench
{
namespace
{

using namespace Qt::StringLiterals;

constexpr int files = 2000;
constexpr qsizetype megabyte = 1 << 20;

// Says OK to the one question of an export.
class Exporter : public NoUser
{
public:
    Answer MsgBox(const QString&, const QString&, Buttons) override { return Answer::Ok; }
};

// A branch with 2,000 pictures of 1 MB in its gallery.
class LargeBranch
{
public:
    LargeBranch()
    {
        QDir(directory_.path()).mkpath(u"LfgDat_A/LfgGal_A"_s);
        Write(u"AliasList.cfg"_s, "[Alias]\r\n[Large=LfgDat_A,]\r\n[CFG]\r\n[1,]\r\n");
        Write(u"LfgDat_A/LfgDat_A.mdb"_s, "records");
        QByteArray picture(megabyte, '\0');
        for (int number = 0; number < files; ++number) {
            picture[0] = static_cast<char>(number);
            Write(u"LfgDat_A/LfgGal_A/%1.jpg"_s.arg(number), picture);
        }
    }

    QString Path() const { return directory_.path() + u'/'; }
    QString Branch() const { return Path() + u"LfgDat_A"; }

private:
    void Write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(Path() + name);
        if (!file.open(QFile::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("can't write a file of the benchmark");
    }

    QTemporaryDir directory_;
};

const LargeBranch& Large()
{
    static const LargeBranch large;
    return large;
}

// Where the copies go: they are taken away outside of the time that counts.
template <class Copy>
void CopyAgainAndAgain(benchmark::State& state, Copy copy)
{
    Large();
    for (auto _ : state) {
        state.PauseTiming();
        auto place = std::make_unique<QTemporaryDir>();
        state.ResumeTiming();
        copy(place->path());
        state.PauseTiming();
        if (QDir(place->filePath(u"LfgDat_A/LfgGal_A"_s)).entryList(QDir::Files).size() != files)
            state.SkipWithError("not all files were copied");
        place.reset();
        state.ResumeTiming();
    }
}

void ExportLargeBranch(benchmark::State& state)
{
    Exporter user;
    Machine machine(Large().Path(), user);
    machine.P.Export.sExportSource = Large().Branch() + u"/LfgDat_A.mdb";
    CopyAgainAndAgain(state, [&machine](const QString& place) {
        machine.P.Scratch.sPath = place;
        ExportBranch(machine.P);
    });
}

void CopyLargeBranch(benchmark::State& state)
{
    CopyAgainAndAgain(state, [](const QString& place) {
        QProcess::execute(u"cp"_s, {u"-r"_s, Large().Branch(), place});
        QProcess::execute(u"sync"_s, {u"-f"_s, place});
    });
}

BENCHMARK(CopyLargeBranch)->Apply(ShortRuns<7>)->UseRealTime();
BENCHMARK(ExportLargeBranch)->Apply(ShortRuns<7>)->UseRealTime();

} // namespace
} // namespace lineforge::bench
