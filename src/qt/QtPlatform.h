#pragma once

#include "platform/machine/Platform.h"
#include "qt/dialogs/QtPrompts.h"
#include "qt/machine/QtClipboard.h"
#include "qt/machine/QtEventLoop.h"
#include "qt/machine/QtPrintSystem.h"
#include "qt/machine/QtProcesses.h"
#include "qt/machine/ScreenPointer.h"
#include "qt/media/QtMedia.h"
#include "qt/windows/QtWindows.h"

#include <functional>

namespace lineforge
{

// The real machine, for the program and for the tests that drive real windows. Made after the application object; sets
// its font and lets the program alone decide when it ends.
class QtPlatform
{
public:
    // The size of the client area of the program's main window decides how large everything is shown.
    QtPlatform(Size mainWindow, std::function<QString()> currentDirectory);
    QtPlatform(const QtPlatform&) = delete;
    QtPlatform& operator=(const QtPlatform&) = delete;

    // Refers to this object.
    Platform Bundle();

    QtWindows& Windows() { return windows_; }
    QtEventLoop& Loop() { return loop_; }
    QtPrintSystem& Printers() { return printers_; }
    const Scale& PixelScale() const { return scale_; }

private:
    Scale scale_;
    Screen screen_;
    ScreenPointer pointer_;
    QtMedia media_;
    QtEventLoop loop_;
    QtClipboard clipboard_;
    QtPrintSystem printers_;
    QtProcesses processes_;
    QtPrompts prompts_;
    QtWindows windows_;
};

} // namespace lineforge
