#include "check/HomeCheck.h"
#include "check/ReportText.h"
#include "platform/base/CommandLine.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cstdio>

namespace
{
constexpr const char* purpose =
    "Looks through a whole home, the directory in which AliasList.cfg stands: the list of branches,\n"
    "and of every branch the database, the map, the pictures and the gallery. Changes nothing.\n"
    "\n"
    "Tells a line a finding: the file, the record if it is about one, and what is wrong. A line with\n"
    "\"note\" behind the file tells of what is legal and yet worth knowing. With --json all of it is\n"
    "one object for scripts.\n"
    "\n"
    "Ends with 0 when nothing is wrong, with 1 when something is, and with 2 when the home or a part\n"
    "of it couldn't be looked at, or when the report can't be written.\n";
} // namespace

int main(int argc, char* argv[])
{
    using namespace lineforge;

    const CommandLine line = ReadCommandLine(argc, argv,
                                             {.Name = "lineforge-check",
                                              .Operands = "home",
                                              .Purpose = purpose,
                                              .LeastOperands = 1,
                                              .HasWindows = false,
                                              .Flag = "json"});
    if (line.ExitStatus)
        return *line.ExitStatus;

    // Knows where the readers of picture files are; no display is asked for.
    const QCoreApplication application(argc, argv);
    const QString home = QDir::cleanPath(QDir().absoluteFilePath(QFile::decodeName(line.Operands.front().c_str())));
    const check::Report report = check::CheckHome(home);
    const QByteArray told = line.HasFlag ? check::ReportJson(report, home) : check::ReportText(report, home);
    std::fwrite(told.constData(), 1, static_cast<std::size_t>(told.size()), stdout);
    const bool isTold = RequireWritten("lineforge-check", "the report");
    return static_cast<int>(isTold ? check::VerdictOf(report) : check::Verdict::NotWhole);
}
