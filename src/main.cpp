#include "forms/Form1.h"
#include "platform/qt/QtPlatform.h"
#include "program/Program.h"
#include "shell/FatalPath.h"
#include "shell/StartUp.h"
#include "shell/handlers/Handlers.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char* argv[])
{
    using namespace lineforge;

    QApplication application(argc, argv);
    QApplication::setDesktopFileName(QStringLiteral("lineforge"));
    QApplication::setWindowIcon(QIcon(QApplication::applicationDirPath() + QStringLiteral("/lineforge.png")));
    Program* running = nullptr;
    QtPlatform machine(forms::MainWindowClient, [&running] { return running->Files.CurDir(); });
    Program program(machine.Bundle());
    running = &program;
    InstallHandlers(program);
    machine.Windows().RunHandler = [&program](const Event& handler) { RunHandler(program, handler); };

    machine.Windows().Run([&program] { StartProgram(program); });
    if (!machine.Loop().HasEnded())
        QApplication::exec();
    machine.Windows().CloseAll();
    return machine.Loop().ExitCode();
}
