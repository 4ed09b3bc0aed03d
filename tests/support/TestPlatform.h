#pragma once

#include "platform/files/FileSystem.h"
#include "platform/machine/Platform.h"
#include "support/FakeClipboard.h"
#include "support/FakeEventLoop.h"
#include "support/FakeProcesses.h"
#include "support/FakeWindows.h"
#include "support/PdfPrinter.h"
#include "support/Printing.h"
#include "support/Refusal.h"
#include "support/ScriptedPrompts.h"
#include "support/TemporaryHome.h"

namespace lineforge
{

// A whole machine for one test: every seam a double, the disk real. Declare it before the program that runs on it.
struct TestPlatform {
    TemporaryHome Home;
    FakeWindows Windows;
    ScriptedPrompts Prompts;
    FakeEventLoop Loop;
    lineforge::Screen Screen{12000, 9000};
    FakeClipboard Clipboard;
    PdfPrinter Printer;
    FakeProcesses Processes;
    lineforge::Platform Platform{Windows,   Prompts, Loop,      Screen,
                                 Clipboard, Printer, Processes, Home.Path() + PathSeparator};
};

} // namespace lineforge
