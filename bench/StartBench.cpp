#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace lineforge::bench
{
namespace
{

using namespace Qt::StringLiterals;

// A home whose registry is empty and whose splash is off.
const QString& EmptyHome()
{
    static const QTemporaryDir directory;
    static const QString path = []() -> QString {
        QFile registry(directory.filePath(u"AliasList.cfg"_s));
        if (!registry.open(QFile::WriteOnly))
            qFatal("can't write the registry");
        registry.write("[Alias]\r\n[]\r\n[CFG]\r\n[1,]\r\n");
        return directory.path() + u'/';
    }();
    return path;
}

// On a real screen, not on the one of memory that the rest of the benchmarks draw on: there the windows of others cost
// next to nothing, and a start consists of reading fonts.
void Start(benchmark::State& state, const QString& program)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"QT_QPA_PLATFORM"_s);
    for (auto _ : state) {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(program, {EmptyHome()});
        if (!process.waitForFinished() || process.exitCode() != 0)
            state.SkipWithError("the program failed");
    }
}

void StartLineforge(benchmark::State& state)
{
    Start(state, QString::fromUtf8(START_LINEFORGE));
}

void StartEmpty(benchmark::State& state)
{
    Start(state, QString::fromUtf8(START_EMPTY));
}

BENCHMARK(StartLineforge)->Unit(benchmark::kMillisecond)->Iterations(5)->Repetitions(15)->UseRealTime();
BENCHMARK(StartEmpty)->Unit(benchmark::kMillisecond)->Iterations(5)->Repetitions(15)->UseRealTime();

} // namespace
} // namespace lineforge::bench
