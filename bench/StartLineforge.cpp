#include "FirstPaint.h"
#include "forms/Form1.h"
#include "platform/qt/QtPlatform.h"
#include "program/Program.h"
#include "shell/FatalPath.h"
#include "shell/StartUp.h"
#include "shell/handlers/Handlers.h"

#include <QApplication>

// The program itself, told where its home is; ends when the main window has been painted.
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
    bench::EndAtFirstPaint();
    machine.Windows().Run([&program] { StartProgram(program); });
    const int exitCode = QApplication::exec();
    machine.Windows().CloseAll();
    return exitCode;
}
