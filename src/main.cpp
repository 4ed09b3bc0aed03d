#include "forms/Form1.h"
#include "platform/base/CommandLine.h"
#include "program/state/Program.h"
#include "qt/QtPlatform.h"
#include "shell/handlers/InstallHandlers.h"
#include "shell/run/RunHandler.h"
#include "shell/run/StartUp.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QIcon>

#include <cstdio>

namespace
{
using namespace lineforge;

int Run(int argc, char* argv[], const QString& home)
{
    QApplication application(argc, argv);
    QApplication::setDesktopFileName(QStringLiteral("lineforge"));
    QApplication::setWindowIcon(QIcon(QApplication::applicationDirPath() + QStringLiteral("/lineforge.png")));
    Program* running = nullptr;
    QtPlatform machine(forms::MainWindowClient, [&running] { return running->Files.CurDir(); });
    Program program(machine.Bundle());
    running = &program;
    InstallHandlers(program);
    machine.Windows().RunHandler = [&program](const Event& handler) { RunHandler(program, handler); };

    machine.Windows().Run([&program, &home] { StartProgram(program, home); });
    if (!machine.Loop().HasEnded())
        QApplication::exec();
    machine.Windows().CloseAll();
    return machine.Loop().ExitCode();
}
} // namespace

int main(int argc, char* argv[])
{
    constexpr int wrongCall = 2;
    const CommandLine line = ReadCommandLine(
        argc, argv,
        {.Name = "lineforge",
         .Operands = "[directory]",
         .Purpose = "Draws your family tree and keeps its records: those of the home in that directory, or, where\n"
                    "none is named, of the home in which the program itself stands.\n"});
    if (line.ExitStatus)
        return *line.ExitStatus;
    if (line.Operands.empty())
        return Run(argc, argv, {});

    const QFileInfo home(QFile::decodeName(line.Operands.front().c_str()));
    if (!home.isDir()) {
        std::fprintf(stderr, "lineforge: %s is no directory\n", line.Operands.front().c_str());
        return wrongCall;
    }
    return Run(argc, argv, home.canonicalFilePath() + u'/');
}
