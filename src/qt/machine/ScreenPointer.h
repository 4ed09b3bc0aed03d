#pragma once

#include "platform/machine/Platform.h"

#include <QCursor>

namespace lineforge
{

// Shows the pointer that the program has chosen, above all windows.
class ScreenPointer
{
public:
    explicit ScreenPointer(Screen& screen);
    ~ScreenPointer();
    ScreenPointer(const ScreenPointer&) = delete;
    ScreenPointer& operator=(const ScreenPointer&) = delete;

private:
    void Show(MousePointer pointer);

    bool overrides_ = false;
    QPropertyNotifier notifier_;
};

// The plain arrow as long as this lives: a box that wants an answer can be pointed at, even in the middle of a command
// that shows the hourglass.
class ArrowMeanwhile
{
public:
    ArrowMeanwhile();
    ~ArrowMeanwhile();
    ArrowMeanwhile(const ArrowMeanwhile&) = delete;
    ArrowMeanwhile& operator=(const ArrowMeanwhile&) = delete;

private:
    QCursor before_;
    bool replaced_ = false;
};

} // namespace lineforge
