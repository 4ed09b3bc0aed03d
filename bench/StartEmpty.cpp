#include "FirstPaint.h"

#include <QApplication>
#include <QMainWindow>

// An empty main window: what the toolkit itself costs. Ends when the window has been painted.
int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1000, 700);
    lineforge::bench::EndAtFirstPaint();
    window.show();
    return QApplication::exec();
}
