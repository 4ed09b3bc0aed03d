#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

// The program with the example branch open, and an empty window, while nobody works with them: the differences.
namespace lineforge::bench
{
namespace
{

using namespace Qt::StringLiterals;

constexpr double aMegabyte = 1e-3; // in seconds, which is what the reporter counts by
constexpr double aWaking = 1e-3;

// A copy, for the program writes into its home.
const QString& ExampleHome()
{
    static const QTemporaryDir directory;
    static const QString path = []() -> QString {
        const QString copy = directory.filePath(u"home"_s);
        QProcess::execute(u"cp"_s, {u"-r"_s, QString::fromUtf8(EXAMPLE_HOME), copy});
        // The splash and its sound are part of no work.
        QFile registry(copy + u"/AliasList.cfg");
        if (!registry.open(QFile::ReadWrite))
            qFatal("can't open the registry");
        const QByteArray list = registry.readAll().replace("[0,]", "[1,]");
        registry.seek(0);
        registry.write(list);
        return copy + u'/';
    }();
    return path;
}

struct Idleness {
    double Megabytes;
    double Wakings; // in two seconds
};

Idleness IdlenessOf(benchmark::State& state, const char* program)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"QT_QPA_PLATFORM"_s);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QString::fromUtf8(program), {ExampleHome(), u"idle"_s});
    const bool ended = process.waitForFinished() && process.exitCode() == 0;
    const QByteArrayList told = process.readAllStandardOutput().simplified().split(' ');
    if (!ended || told.size() != 2) {
        state.SkipWithError("the program failed");
        return {};
    }
    constexpr double kilobytes = 1024;
    return {told[0].toDouble() / kilobytes, told[1].toDouble()};
}

void IdleMemoryAboveEmpty(benchmark::State& state)
{
    for (auto _ : state)
        state.SetIterationTime(
            (IdlenessOf(state, START_LINEFORGE).Megabytes - IdlenessOf(state, START_EMPTY).Megabytes) * aMegabyte);
}

void IdleWakingsAboveEmpty(benchmark::State& state)
{
    for (auto _ : state)
        state.SetIterationTime((IdlenessOf(state, START_LINEFORGE).Wakings - IdlenessOf(state, START_EMPTY).Wakings) *
                               aWaking);
}

BENCHMARK(IdleMemoryAboveEmpty)->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(3)->UseManualTime();
BENCHMARK(IdleWakingsAboveEmpty)->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(3)->UseManualTime();

} // namespace
} // namespace lineforge::bench
