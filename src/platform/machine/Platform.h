#pragma once

#include "platform/controls/Window.h"
#include "platform/drawing/Geometry.h"
#include "platform/machine/Clipboard.h"
#include "platform/machine/Printer.h"
#include "platform/machine/Processes.h"
#include "platform/machine/Prompts.h"

#include <QImage>
#include <QProperty>
#include <QSizeF>
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
    int TwipsPerPixel = 15;
    double DotsPerPixel = 1; // of the screen itself, which may be finer than what the toolkit counts

    Size Area() const { return {Width, Height}; }
    // How many of the screen's own dots an area takes.
    QSize DotsOf(Size twips) const
    {
        return (QSizeF(twips.Width, twips.Height) * DotsPerPixel / TwipsPerPixel).toSize().expandedTo({1, 1});
    }
    // The area that a picture takes when each of its dots is a pixel.
    lineforge::Size SizeOf(const QImage& picture) const
    {
        return {picture.width() * TwipsPerPixel, picture.height() * TwipsPerPixel};
    }
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
    lineforge::Processes& Processes;
    QString ExecutableDirectory; // with a trailing separator
};

} // namespace lineforge
