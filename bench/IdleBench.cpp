#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

// The program with the example branch open, and an empty window, while nobody works with them.
namespace lineforge::bench
{
namespace
{

using namespace Qt::StringLiterals;

// What the reporter takes for seconds are megabytes, and wakings.

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

void IdleMemory(benchmark::State& state)
{
    for (auto _ : state)
        state.SetIterationTime(IdlenessOf(state, START_LINEFORGE).Megabytes);
}

void IdleMemoryEmpty(benchmark::State& state)
{
    for (auto _ : state)
        state.SetIterationTime(IdlenessOf(state, START_EMPTY).Megabytes);
}

void IdleWakings(benchmark::State& state)
{
    for (auto _ : state)
        state.SetIterationTime(IdlenessOf(state, START_LINEFORGE).Wakings);
}

void IdleWakingsEmpty(benchmark::State& state)
{
    for (auto _ : state)
        state.SetIterationTime(IdlenessOf(state, START_EMPTY).Wakings);
}

BENCHMARK(IdleMemory)->Iterations(1)->Repetitions(3)->UseManualTime();
BENCHMARK(IdleMemoryEmpty)->Iterations(1)->Repetitions(3)->UseManualTime();
BENCHMARK(IdleWakings)->Iterations(1)->Repetitions(3)->UseManualTime();
BENCHMARK(IdleWakingsEmpty)->Iterations(1)->Repetitions(3)->UseManualTime();

} // namespace
} // namespace lineforge::bench
