#include "BenchHome.h"
#include "program/Program.h"
#include "shell/OpenBranch.h"
#include "shell/handlers/Handlers.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

namespace lineforge::bench
{
namespace
{

using namespace Qt::StringLiterals;

class NoScreen : public WindowSystem
{
public:
    void Made(Form&) override {}
    void Retire(std::unique_ptr<Form> form) override { retired_.push_back(std::move(form)); }

private:
    std::vector<std::unique_ptr<Form>> retired_;
};

// Nothing may be asked while a sound branch is opened.
class NoUser : public Prompts
{
public:
    Answer MsgBox(const QString& title, const QString& text, Buttons) override
    {
        qFatal("unexpected box: %s / %s", qUtf8Printable(title), qUtf8Printable(text));
    }
    QString InputBox(const QString&, const QString&) override { return {}; }
    std::optional<QString> OpenFile(const FileQuestion&) override { return {}; }
    void ShowHelp(const QString&) override {}
};

class NoEvents : public EventLoop
{
public:
    void DoEvents() override {}
    void End(int) override { throw ProgramEnded(); }
};

const BenchHome& Home()
{
    static const BenchHome home;
    return home;
}

void OpenBranch(benchmark::State& state)
{
    NoScreen windows;
    NoUser user;
    NoEvents loop;
    Screen screen{12000, 9000};
    Program p(Platform{windows, user, loop, screen, Home().Path()});
    InstallHandlers(p);
    p.Branch.HomeDir = Home().Path();
    p.Form1.Load();
    for (auto _ : state) {
        p.Form8->List1.ListIndex = 0;
        OpenSelectedBranch(p);
        benchmark::DoNotOptimize(p.Form1->Picture1.Drawing());
    }
    if (p.Map.SBoxes != 99 || p.Record.sCurFile != u"A001")
        state.SkipWithError("the branch was not opened");
}

void ReadFilesBare(benchmark::State& state)
{
    Home();
    for (auto _ : state) {
        for (char16_t letter = u'A'; letter <= u'K'; ++letter) {
            sqlite3* database = nullptr;
            sqlite3_open_v2(Home().Database(letter).toUtf8().constData(), &database, SQLITE_OPEN_READONLY, nullptr);
            sqlite3_stmt* rows = nullptr;
            sqlite3_prepare_v2(database, "SELECT * FROM Tree99", -1, &rows, nullptr);
            while (sqlite3_step(rows) == SQLITE_ROW)
                for (int column = 0; column < 25; ++column)
                    benchmark::DoNotOptimize(sqlite3_column_text(rows, column));
            sqlite3_finalize(rows);
            sqlite3_close(database);
        }
    }
}

BENCHMARK(OpenBranch)->Unit(benchmark::kMillisecond)->Repetitions(15)->UseRealTime();
BENCHMARK(ReadFilesBare)->Unit(benchmark::kMillisecond)->Repetitions(15)->UseRealTime();

} // namespace
} // namespace lineforge::bench
