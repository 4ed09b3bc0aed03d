#include "Machine.h"
#include "gedcom/GedcomConversion.h"
#include "shell/handlers/Handlers.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
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

    void Run(benchmark::State& state, int error, int heads)
    {
        machine_.P.Scratch.ScanState = 0;
        ConvertGedcom(machine_.P);
        const QStringList& lines = machine_.P.Form11->Picture1.Lines;
        if (machine_.P.Errors.Last->Number != error || lines.filter(u"HEAD OF FAMILY"_s).size() != heads)
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
    Conversion conversion(LargeSource());
    for (auto _ : state)
        conversion.Run(state, ErrorNumber::InputPastEnd, families);
}

void ConvertWithoutEnd(benchmark::State& state)
{
    Conversion conversion(SourceWithoutEnd());
    for (auto _ : state)
        conversion.Run(state, ErrorNumber::Overflow, 2);
}

// A megabyte of what is still held at the end, which is where most is, stands for a millisecond.
void MemoryWithoutEnd(benchmark::State& state)
{
    for (auto _ : state) {
        Conversion conversion(SourceWithoutEnd());
        const auto before = mallinfo2().uordblks;
        conversion.Run(state, ErrorNumber::Overflow, 2);
        state.SetIterationTime(static_cast<double>(mallinfo2().uordblks - before) * 1e-9);
    }
}

BENCHMARK(ConvertLargeFile)->Unit(benchmark::kMillisecond)->Repetitions(5)->UseRealTime();
BENCHMARK(ConvertWithoutEnd)->Unit(benchmark::kMillisecond)->Repetitions(3)->UseRealTime();
BENCHMARK(MemoryWithoutEnd)->Unit(benchmark::kMillisecond)->Iterations(1)->UseManualTime();

} // namespace
} // namespace lineforge::bench
