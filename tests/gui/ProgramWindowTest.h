#pragma once

#include "program/state/Program.h"
#include "qt/WindowTest.h"
#include "shell/handlers/InstallHandlers.h"
#include "shell/run/StartUp.h"
#include "support/BranchBuilder.h"
#include "support/PdfPrinter.h"
#include "support/ScriptedPrompts.h"
#include "support/TemporaryHome.h"
#include "support/Windows.h"

namespace lineforge
{

// Who answers the program's boxes: a script that takes their place, or whoever works the real ones.
enum class BoxesGoTo { Script, Screen };

// The whole program on real windows, in a home of the test's own, with a scripted user for its boxes.
class ProgramWindowTest : public WindowTest
{
protected:
    explicit ProgramWindowTest(BoxesGoTo boxes = BoxesGoTo::Script) : Bundle(BundleHere(boxes)) {}
    ~ProgramWindowTest() override { System().CloseAll(); }

    // Starts it and chooses the branch of that name from its list.
    void OpenBranch(const QString& name)
    {
        InstallHandlers(P);
        StartProgram(P);
        P.Form1->Open.Click();
        Choose(name);
    }
    // The same without the list on the screen. Where the screen is real, a window that is gone before it has come would
    // leave it open to chance who the toolkit believes to have the keyboard.
    void OpenBranchUnseen(const QString& name)
    {
        InstallHandlers(P);
        StartProgram(P);
        Choose(name);
    }

    TemporaryHome Home;
    ScriptedPrompts Prompts;
    PdfPrinter Printer;
    Platform Bundle;
    Program P{Bundle};

private:
    void Choose(const QString& name)
    {
        P.Form8->List1.SetText(name);
        P.Form8->Command1.Click();
        ServeEvents();
    }
    Platform BundleHere(BoxesGoTo boxes)
    {
        const Platform real = Machine().Bundle();
        lineforge::Prompts& asked = boxes == BoxesGoTo::Script ? Prompts : real.Prompts;
        return {real.Windows,   asked,   real.Loop,      real.Screen,
                real.Clipboard, Printer, real.Processes, Home.Path() + PathSeparator};
    }
};

} // namespace lineforge
