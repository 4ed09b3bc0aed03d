#include "BenchHome.h"
#include "Machine.h"
#include "Runs.h"
#include "forms/Form5.h"
#include "forms/Form8.h"
#include "gallery/GalleryPage.h"
#include "shell/branches/OpenBranch.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QThreadPool>

#include <algorithm>
#include <atomic>
#include <benchmark/benchmark.h>
#include <random>

namespace lineforge::bench
{
namespace
{

using namespace Qt::StringLiterals;

constexpr int tiles = 98;
constexpr double aMillisecond = 1e-3; // in seconds

// What a camera of 12 megapixels takes: soft light, and a grain that no coder can leave out.
QImage Photograph()
{
    QImage photograph(4000, 3000, QImage::Format_RGB32);
    std::minstd_rand grain(1901);
    for (int y = 0; y < photograph.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(photograph.scanLine(y));
        for (int x = 0; x < photograph.width(); ++x) {
            const int noise = static_cast<int>(grain() % 24);
            line[x] = qRgb(x / 20 + noise, y / 15 + noise, (x + y) / 40 + noise);
        }
    }
    return photograph;
}

// A branch of one record, with a full gallery of photographs.
class GalleryHome
{
public:
    GalleryHome()
    {
        QDir(directory_.path()).mkpath(u"LfgDat_A/LfgGal_A"_s);
        MakeDatabase(Branch() + u"LfgDat_A.mdb", u'A', 1);
        Write(Branch() + u"LfgDat_A.cfg", "[Boxes]\r\n0,0,0,0,,\r\n[Lines]\r\n0,0,0,\r\n[Text]\r\n0,0,0,\r\n");
        Write(Path() + u"AliasList.cfg", "[Alias]\r\n[Photographs=LfgDat_A,]\r\n[CFG]\r\n[1,]\r\n");
        const QString first = Branch() + u"A001Sub.jpg";
        Photograph().save(first, "jpg", 85);
        for (int subscript = 1; subscript <= tiles; ++subscript)
            QFile::copy(first, Branch() + u"LfgGal_A/A001_%1.jpg"_s.arg(subscript, 2, 10, QChar(u'0')));
    }

    QString Path() const { return directory_.path() + u'/'; }

private:
    QString Branch() const { return Path() + u"LfgDat_A/"; }
    static void Write(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        if (!file.open(QFile::WriteOnly))
            qFatal("can't write a file of the benchmark");
        file.write(bytes);
    }

    QTemporaryDir directory_;
};

const GalleryHome& Home()
{
    static const GalleryHome home;
    return home;
}

// Notes when the user would be served.
class WatchedYields : public EventLoop
{
public:
    void DoEvents() override { Milliseconds.push_back(static_cast<double>(watch_.nsecsElapsed()) * 1e-6); }
    void PaintWindows() override {}
    [[noreturn]] void End(int) override { throw ProgramEnded(); }

    void Start()
    {
        Milliseconds.clear();
        watch_.start();
    }
    double LongestPause() const
    {
        double longest = 0;
        for (std::size_t yield = 1; yield < Milliseconds.size(); ++yield)
            longest = std::max(longest, Milliseconds[yield] - Milliseconds[yield - 1]);
        return longest;
    }

    std::vector<double> Milliseconds; // of each yield, from the start

private:
    QElapsedTimer watch_;
};

QSize TileSize()
{
    static const QSize size = [] {
        Machine machine(Home().Path());
        machine.P.Form8->List1.ListIndex = 0;
        OpenSelectedBranch(machine.P);
        BuildGalleryPage(machine.P);
        return machine.P.Form5->Image1[0].Picture.value().size();
    }();
    return size;
}

// By the toolkit alone, at the size of a tile.
bool Decode(int subscript)
{
    QImageReader reader(Home().Path() + u"LfgDat_A/LfgGal_A/A001_%1.jpg"_s.arg(subscript, 2, 10, QChar(u'0')));
    reader.setScaledSize(TileSize());
    return !reader.read().isNull();
}

void DecodeFirst(benchmark::State& state)
{
    TileSize();
    for (auto _ : state)
        if (!Decode(1))
            state.SkipWithError("no picture");
}

void DecodeAll(benchmark::State& state)
{
    TileSize();
    for (auto _ : state) {
        QThreadPool pool;
        std::atomic<int> decoded = 0;
        for (int subscript = 1; subscript <= tiles; ++subscript)
            pool.start([&decoded, subscript] { decoded += Decode(subscript); });
        pool.waitForDone();
        if (decoded != tiles)
            state.SkipWithError("no picture");
    }
}

// A page built by a program that has just started, or built again.
class Page
{
public:
    Page()
    {
        machine_.P.Form8->List1.ListIndex = 0;
        OpenSelectedBranch(machine_.P);
    }

    const WatchedYields& Build(benchmark::State& state)
    {
        yields_.Start();
        BuildGalleryPage(machine_.P);
        // One before the first tile, one behind each, one behind the empty tile.
        if (yields_.Milliseconds.size() != tiles + 2)
            state.SkipWithError("not all tiles were shown");
        return yields_;
    }

private:
    WatchedYields yields_;
    Machine machine_{Home().Path(), yields_};
};

void GalleryFirstPicture(benchmark::State& state)
{
    for (auto _ : state)
        state.SetIterationTime(Page().Build(state).Milliseconds.at(1) * aMillisecond);
}

void GalleryPage(benchmark::State& state)
{
    for (auto _ : state)
        state.SetIterationTime(Page().Build(state).Milliseconds.back() * aMillisecond);
}

void GalleryLongestPause(benchmark::State& state)
{
    for (auto _ : state)
        state.SetIterationTime(Page().Build(state).LongestPause() * aMillisecond);
}

void GalleryPageAgain(benchmark::State& state)
{
    static auto& page = *new Page;
    page.Build(state);
    for (auto _ : state)
        state.SetIterationTime(page.Build(state).Milliseconds.back() * aMillisecond);
}

BENCHMARK(GalleryFirstPicture)->Iterations(1)->Repetitions(20)->UseManualTime();
BENCHMARK(GalleryPage)->Iterations(1)->Repetitions(5)->UseManualTime();
BENCHMARK(GalleryLongestPause)->Iterations(1)->Repetitions(20)->UseManualTime();
BENCHMARK(GalleryPageAgain)->Iterations(1)->Repetitions(20)->UseManualTime();
BENCHMARK(DecodeFirst)->Apply(ShortRuns<20>)->UseRealTime();
BENCHMARK(DecodeAll)->Apply(ShortRuns<5>)->UseRealTime();

} // namespace
} // namespace lineforge::bench
