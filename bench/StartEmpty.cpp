#include "FirstPaint.h"
#include "Idle.h"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QScreen>

// A main window with a menu bar and a label, since fonts are everybody's cost: what the toolkit itself takes. Ends when
// the window has been painted, or, told "idle" as its second argument, when its idleness has been watched.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.menuBar()->addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("E&xit"));
    window.setCentralWidget(new QLabel(QStringLiteral("A label")));
    // As large as the program's, for larger windows cost the toolkit more.
    window.resize(QGuiApplication::primaryScreen()->availableSize());
    if (argc > 2)
        lineforge::bench::TellOfIdleness();
    else
        lineforge::bench::EndAtFirstPaint();
    window.show();
    return QApplication::exec();
}
