#include "qt/machine/ScreenPointer.h"

#include <QGuiApplication>

namespace lineforge
{

namespace
{
Qt::CursorShape ShapeOf(MousePointer pointer)
{
    switch (pointer) {
    case MousePointer::Cross:
        return Qt::CrossCursor;
    case MousePointer::SizeAll:
        return Qt::SizeAllCursor;
    case MousePointer::Hourglass:
        return Qt::WaitCursor;
    case MousePointer::Default:
    case MousePointer::Arrow:
        break;
    }
    return Qt::ArrowCursor;
}
} // namespace

ScreenPointer::ScreenPointer(Screen& screen)
    : notifier_(screen.Pointer.addNotifier([this, &screen] { Show(screen.Pointer); }))
{
    Show(screen.Pointer);
}

ScreenPointer::~ScreenPointer()
{
    Show(MousePointer::Default);
}

void ScreenPointer::Show(MousePointer pointer)
{
    const bool wanted = pointer != MousePointer::Default && pointer != MousePointer::Arrow;
    if (wanted && overrides_)
        QGuiApplication::changeOverrideCursor(ShapeOf(pointer));
    else if (wanted)
        QGuiApplication::setOverrideCursor(ShapeOf(pointer));
    else if (overrides_)
        QGuiApplication::restoreOverrideCursor();
    overrides_ = wanted;
}

ArrowMeanwhile::ArrowMeanwhile()
{
    if (const QCursor* current = QGuiApplication::overrideCursor()) {
        before_ = *current;
        replaced_ = true;
        QGuiApplication::changeOverrideCursor(Qt::ArrowCursor);
    }
}

ArrowMeanwhile::~ArrowMeanwhile()
{
    if (replaced_ && QGuiApplication::overrideCursor())
        QGuiApplication::changeOverrideCursor(before_);
}

} // namespace lineforge
