#pragma once

#include "platform/Clipboard.h"
#include "platform/Geometry.h"
#include "platform/Printer.h"
#include "platform/Prompts.h"
#include "platform/Window.h"

#include <QProperty>
#include <QString>

#include <functional>

namespace lineforge
{

// Mouse pointer shapes, by the platform's numbers.
enum class MousePointer { Default = 0, Arrow = 1, Cross = 2, SizeAll = 5, Hourglass = 11 };

struct Screen {
    int Width = 0; // twips
    int Height = 0;
    QProperty<MousePointer> Pointer{MousePointer::Default};

    Size Area() const { return {Width, Height}; }
};

// Thrown through all handlers that are still running once the program has been told to end.
struct ProgramEnded {
};

// The loop that events come from.
class EventLoop
{
public:
    virtual ~EventLoop() = default;
    // Serves the events that wait, and returns; ProgramEnded when one of them ended the program.
    virtual void DoEvents() = 0;
    // Lets the windows paint themselves, and serves nothing else: no user, no timer.
    virtual void PaintWindows() = 0;
    // Ends the program with that exit code: leaves by ProgramEnded.
    [[noreturn]] virtual void End(int exitCode) = 0;
};

// What the program asks of the machine.
struct Platform {
    lineforge::WindowSystem& Windows;
    lineforge::Prompts& Prompts;
    lineforge::EventLoop& Loop;
    lineforge::Screen& Screen;
    lineforge::Clipboard& Clipboard;
    lineforge::PrintSystem& PrintSystem;
    QString ExecutableDirectory; // with a trailing separator
};

} // namespace lineforge
