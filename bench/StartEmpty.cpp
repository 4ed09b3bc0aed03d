#include "FirstPaint.h"
#include "Idle.h"

#include <QApplication>
#include <QMainWindow>
#include <QScreen>

// An empty main window: what the toolkit itself costs. Ends when the window has been painted, or, told "idle" as its
// second argument, when its idleness has been watched.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QMainWindow window;
    // As large as the program's, for larger windows cost the toolkit more.
    window.resize(QGuiApplication::primaryScreen()->availableSize());
    if (argc > 2)
        lineforge::bench::TellOfIdleness();
    else
        lineforge::bench::EndAtFirstPaint();
    window.show();
    return QApplication::exec();
}
