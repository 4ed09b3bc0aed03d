#include "qt/machine/QtEventLoop.h"

#include <QApplication>
#include <QDialog>

namespace lineforge
{

namespace
{
void CloseDialogs()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
        if (auto* dialog = qobject_cast<QDialog*>(window); dialog && dialog->isVisible())
            dialog->done(QDialog::Rejected);
}
} // namespace

void QtEventLoop::DoEvents()
{
    ThrowIfEnded();
    QCoreApplication::processEvents();
    ThrowIfEnded();
}

// What a window has shown before it paints again, whatever has covered it meanwhile; no event of the user or of a timer
// is taken from its queue.
void QtEventLoop::PaintWindows()
{
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible())
            window->repaint();
}

void QtEventLoop::End(int exitCode)
{
    ended_ = true;
    exitCode_ = exitCode;
    CloseDialogs();
    QCoreApplication::exit(exitCode);
    throw ProgramEnded{};
}

void QtEventLoop::ThrowIfEnded() const
{
    if (ended_)
        throw ProgramEnded{};
}

} // namespace lineforge
