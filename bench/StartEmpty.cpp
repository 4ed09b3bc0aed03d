#include "FirstPaint.h"

#include <QApplication>
#include <QMainWindow>
#include <QScreen>

// An empty main window: what the toolkit itself costs. Ends when the window has been painted.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QMainWindow window;
    // As large as the program's, for larger windows cost the toolkit more.
    window.resize(QGuiApplication::primaryScreen()->availableSize());
    lineforge::bench::EndAtFirstPaint();
    window.show();
    return QApplication::exec();
}
