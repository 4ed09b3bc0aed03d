#include "FirstPaint.h"
#include "Idle.h"
#include "forms/Form1.h"
#include "forms/Form8.h"
#include "program/state/Program.h"
#include "qt/QtPlatform.h"
#include "shell/branches/OpenBranch.h"
#include "shell/handlers/InstallHandlers.h"
#include "shell/run/RunHandler.h"
#include "shell/run/StartUp.h"

#include <QApplication>

// The program itself, told where its home is; ends when the main window has been painted, or, told "idle" as its second
// argument, when its idleness with the first branch open has been watched.
int main(int argc, char* argv[])
{
    using namespace lineforge;

    QApplication application(argc, argv);
    QtPlatform machine(forms::MainWindowClient, [] { return QString(); });
    Platform bundle = machine.Bundle();
    bundle.ExecutableDirectory = QString::fromLocal8Bit(argv[1]);
    Program program(bundle);
    InstallHandlers(program);
    machine.Windows().RunHandler = [&program](const Event& handler) { RunHandler(program, handler); };
    if (argc == 2)
        bench::EndAtFirstPaint();
    machine.Windows().Run([&program] { StartProgram(program); });
    if (argc > 2) {
        machine.Windows().Run([&program] {
            program.Form8->List1.ListIndex = 0;
            OpenSelectedBranch(program);
        });
        bench::TellOfIdleness();
    }
    const int exitCode = QApplication::exec();
    machine.Windows().CloseAll();
    return exitCode;
}
