#include "faults/FailingDisk.h"
#include "faults/World.h"
#include "qt/machine/QtPrintSystem.h"

#include <climits>
#include <gtest/gtest.h>

// What is printed to a file on a disk that refuses any one of its writes, or all from one on: the file is the older one
// or the whole paper, and the user is told.
namespace lineforge::faults
{
namespace
{

using namespace Qt::StringLiterals;

struct Print {
    const char* Name;
    Event& (*Command)(Program& p);
};

void PrintTo(const Print& print, std::ostream* out)
{
    *out << print.Name;
}

class PrintFaultTest : public testing::TestWithParam<Print>
{
protected:
    struct Run {
        bool WasReached = false;
        QStringList Told;
        QByteArray Paper;
        qsizetype Files = 0;
    };

    static Run RunWith(int number, Fault fault)
    {
        QtPrintSystem printers;
        World world(&printers);
        printers.SetChosen(PrinterTo(world.Home.WriteFile(u"paper.pdf", older)));
        world.Click(world.P.Form1->mnuAddBkMark.Click);
        world.Person.Told.clear();
        const FailingDisk failing(world.Home.Path(), number, fault);
        world.Click(GetParam().Command(world.P));
        return {failing.HasBegun(), world.Person.Told, world.Home.ReadFile(u"paper.pdf"), world.Home.Snapshot().size()};
    }

    static std::unique_ptr<QPrinter> PrinterTo(const QString& file)
    {
        auto printer = std::make_unique<QPrinter>();
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setOutputFileName(file);
        return printer;
    }

    // A paper bears the time at which it was printed.
    static bool IsWhole(const QByteArray& paper, const QByteArray& meant)
    {
        return paper.startsWith("%PDF-") && paper.trimmed().endsWith("%%EOF") && paper.size() == meant.size();
    }

    static constexpr const char* older = "an older paper";
};

TEST_P(PrintFaultTest, LeavesNothingTorn_AndIsTold)
{
    const Run clean = RunWith(INT_MAX, Fault::OneTime);
    ASSERT_TRUE(IsWhole(clean.Paper, clean.Paper));
    ASSERT_TRUE(RunWith(1, Fault::OneTime).WasReached) << "nothing is written";
    for (const Fault fault : {Fault::OneTime, Fault::FromThatOn})
        for (int number = 1; !HasFailure(); ++number) {
            SCOPED_TRACE(testing::Message() << "write " << number << (fault == Fault::OneTime ? "" : " and all after"));
            const Run run = RunWith(number, fault);
            if (!run.WasReached)
                break;
            EXPECT_TRUE(run.Paper == older || IsWhole(run.Paper, clean.Paper)) << run.Paper.constData();
            EXPECT_EQ(run.Files, clean.Files);
            const bool isDone = IsWhole(run.Paper, clean.Paper) && run.Told == clean.Told;
            EXPECT_TRUE(isDone || run.Told.size() == clean.Told.size() + 1) << qUtf8Printable(run.Told.join(u'\n'));
        }
}

INSTANTIATE_TEST_SUITE_P(
    Commands, PrintFaultTest,
    testing::Values(Print{"Map", [](Program& p) -> Event& { return p.Form1->mnuPrint.Click; }},
                    Print{"Record", [](Program& p) -> Event& { return p.Form1->mnuPrintRecord.Click; }},
                    Print{"Bookmarks", [](Program& p) -> Event& { return p.Form1->mnuPrinList.Click; }},
                    Print{"Database", [](Program& p) -> Event& { return p.Form3->mnuPrinDatabase.Click; }}),
    [](const auto& tested) { return std::string(tested.param.Name); });

} // namespace
} // namespace lineforge::faults
