#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <sys/resource.h>

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

// What the programs that have ended have taken of the processor.
double SecondsOfChildren()
{
    constexpr double aMicrosecond = 1e-6;
    rusage used{};
    getrusage(RUSAGE_CHILDREN, &used);
    const auto seconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * aMicrosecond;
    };
    return seconds(used.ru_utime) + seconds(used.ru_stime);
}

// On a real screen, not on the one of memory that the rest of the benchmarks draw on: there the windows of others cost
// next to nothing, and a start consists of reading fonts.
void Start(benchmark::State& state, const QString& program)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"QT_QPA_PLATFORM"_s);
    for (auto _ : state) {
        const double before = SecondsOfChildren();
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(program, {EmptyHome()});
        if (!process.waitForFinished() || process.exitCode() != 0)
            state.SkipWithError("the program failed");
        state.SetIterationTime(SecondsOfChildren() - before);
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

BENCHMARK(StartLineforge)->Iterations(1)->Repetitions(40)->UseManualTime();
BENCHMARK(StartEmpty)->Iterations(1)->Repetitions(40)->UseManualTime();

} // namespace
} // namespace lineforge::bench
