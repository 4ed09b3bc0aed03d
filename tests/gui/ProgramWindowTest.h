#pragma once

#include "gui/qt/WindowTest.h"
#include "program/Program.h"
#include "shell/StartUp.h"
#include "shell/handlers/Handlers.h"
#include "support/BranchBuilder.h"
#include "support/ScriptedPrompts.h"
#include "support/TemporaryHome.h"

namespace lineforge
{

// The whole program on real windows, in a home of the test's own, with a scripted user for its boxes.
class ProgramWindowTest : public WindowTest
{
protected:
    ~ProgramWindowTest() override { System().CloseAll(); }

    // Starts it and chooses the branch of that name from its list.
    void OpenBranch(const QString& name)
    {
        InstallHandlers(P);
        StartProgram(P);
        P.Form1->Open.Click();
        P.Form8->List1.SetText(name);
        P.Form8->Command1.Click();
        ServeEvents();
    }

    TemporaryHome Home;
    ScriptedPrompts Prompts;
    Platform Bundle = BundleHere();
    Program P{Bundle};

private:
    Platform BundleHere()
    {
        const Platform real = Machine().Bundle();
        return {real.Windows,   Prompts,          real.Loop,      real.Screen,
                real.Clipboard, real.PrintSystem, real.Processes, Home.Path() + PathSeparator};
    }
};

} // namespace lineforge
