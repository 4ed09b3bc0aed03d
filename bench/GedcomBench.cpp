#include "Machine.h"
#include "Runs.h"
#include "forms/Form11.h"
#include "gedcom/report/GedcomConversion.h"
#include "shell/handlers/InstallHandlers.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <limits>
#include <malloc.h>

namespace lineforge::bench
{
namespace
{

using namespace Qt::StringLiterals;

constexpr int families = 15;
constexpr int childrenOfEach = 4;

QByteArray Individual(int number)
{
    return "0 @I" + QByteArray::number(number) +
           "@ INDI\n1 NAME John /Smith/\n2 GIVN John\n2 SURN Smith\n1 SEX M\n1 BIRT\n2 DATE 10 May 1901\n2 PLAC "
           "Leeds\n1 CHR\n2 DATE 20 May 1901\n2 PLAC Leeds\n";
}

QByteArray Family(int number)
{
    const int first = number * (childrenOfEach + 2) + 1;
    QByteArray lines = "0 @F" + QByteArray::number(number + 1) + "@ FAM\n1 HUSB @I" + QByteArray::number(first) +
                       "@\n1 WIFE @I" + QByteArray::number(first + 1) + "@\n1 MARR\n2 DATE 20 May 1925\n2 PLAC York\n";
    for (int child = 0; child < childrenOfEach; ++child)
        lines += "1 CHIL @I" + QByteArray::number(first + 2 + child) + "@\n";
    return lines + "1 NOTE x0\n";
}

// Notes make up most of it, half of them before the people and half before the families.
QByteArray LargeSource()
{
    constexpr int size = 1'400'000;
    QByteArray notes;
    while (notes.size() < size / 2)
        notes += "2 CONT and so it went on, as he told it, for many a year\n";
    QByteArray source = "0 HEAD\n0 @N1@ NOTE x\n" + notes;
    for (int number = 1; number <= families * (childrenOfEach + 2); ++number)
        source += Individual(number);
    source += "0 @N2@ NOTE x\n" + notes;
    for (int number = 0; number < families; ++number)
        source += Family(number);
    return QByteArray(source + "0 TRLR\n").replace("\n", "\r\n");
}

QByteArray SourceWithoutEnd()
{
    constexpr int size = 20'000;
    QByteArray source = "0 HEAD\n" + Individual(1) + Individual(2) + Family(0);
    while (source.size() < size)
        source += "2 CONT and so it went on, as he told it, for many a year\n";
    return source + "0 TRLR\n";
}

// Chooses the file, and confirms.
class User : public NoUser
{
public:
    explicit User(QString path) : path_(std::move(path)) {}
    Answer MsgBox(const QString&, const QString&, Buttons) override { return Answer::Ok; }
    std::optional<QString> OpenFile(const FileQuestion&) override { return path_; }

private:
    QString path_;
};

class Conversion
{
public:
    explicit Conversion(const QByteArray& source)
    {
        QFile file(path_);
        if (!file.open(QFile::WriteOnly))
            qFatal("can't write a file of the benchmark");
        file.write(source);
    }

    const QStringList& Report() { return machine_.P.Form11->Picture1.Lines; }

    void Run(benchmark::State& state, int error, int heads)
    {
        machine_.P.Scratch.ScanState = 0;
        ConvertGedcom(machine_.P);
        if (machine_.P.Errors.Last->Number != error || Report().filter(u"HEAD OF FAMILY"_s).size() != heads)
            state.SkipWithError("the run didn't come to its end");
    }

private:
    QTemporaryDir directory_;
    QString path_ = directory_.filePath(u"family.ged"_s);
    User user_{path_};
    Machine machine_{directory_.path() + u'/', user_};
};

void ConvertLargeFile(benchmark::State& state)
{
    static auto& conversion = *new Conversion(LargeSource());
    for (auto _ : state)
        conversion.Run(state, ErrorNumber::InputPastEnd, families);
}

void ConvertWithoutEnd(benchmark::State& state)
{
    static auto& conversion = *new Conversion(SourceWithoutEnd());
    for (auto _ : state)
        conversion.Run(state, ErrorNumber::Overflow, 2);
}

// Looks for a line that isn't there, so many times over.
void PassLines(benchmark::State& state, const QByteArray& source, int passes)
{
    for (auto _ : state) {
        int found = 0;
        for (int pass = 0; pass < passes; ++pass)
            for (qsizetype at = 0, end = 0; (end = source.indexOf('\n', at)) >= 0; at = end + 1)
                found += QByteArrayView(source).sliced(at, end - at).startsWith("0 @Z");
        if (found != 0)
            state.SkipWithError("the line was found");
    }
}

// Once for each reference that a family makes to one of its people.
void PassLargeSource(benchmark::State& state)
{
    static const QByteArray source = LargeSource();
    PassLines(state, source, families * (childrenOfEach + 2));
}

// Once for each child, until there are too many.
void PassSourceWithoutEnd(benchmark::State& state)
{
    static const QByteArray source = SourceWithoutEnd();
    PassLines(state, source, std::numeric_limits<qint16>::max());
}

double HeldMegabytes()
{
    return static_cast<double>(mallinfo2().uordblks) * 1e-6;
}

// What is still held at the end, which is where most is. The reporter takes megabytes for seconds.
void MemoryWithoutEnd(benchmark::State& state)
{
    for (auto _ : state) {
        Conversion conversion(SourceWithoutEnd());
        const double before = HeldMegabytes();
        conversion.Run(state, ErrorNumber::Overflow, 2);
        state.SetIterationTime(HeldMegabytes() - before);
    }
}

// The lines that the run shows, and nothing else.
void MemoryOfReport(benchmark::State& state)
{
    for (auto _ : state) {
        Conversion conversion(SourceWithoutEnd());
        conversion.Run(state, ErrorNumber::Overflow, 2);
        const double before = HeldMegabytes();
        QStringList lines;
        for (const QString& line : conversion.Report())
            lines += QString(line.constData(), line.size());
        state.SetIterationTime(HeldMegabytes() - before);
    }
}

BENCHMARK(ConvertLargeFile)->Apply(ShortRuns<20>);
BENCHMARK(PassLargeSource)->Apply(ShortRuns<20>);
BENCHMARK(ConvertWithoutEnd)->Apply(ShortRuns<7>);
BENCHMARK(PassSourceWithoutEnd)->Apply(ShortRuns<7>);
BENCHMARK(MemoryWithoutEnd)->Iterations(1)->UseManualTime();
BENCHMARK(MemoryOfReport)->Iterations(1)->UseManualTime();

} // namespace
} // namespace lineforge::bench
