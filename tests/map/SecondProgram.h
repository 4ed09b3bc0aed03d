#pragma once

#include "map/items/MapDisplay.h"
#include "map/items/MapFile.h"
#include "map/items/MapParse.h"
#include "program/branch/WorkDatabase.h"
#include "shell/handlers/InstallHandlers.h"
#include "support/BranchBuilder.h"
#include "support/Pixels.h"
#include "support/TestPlatform.h"

namespace lineforge
{

// Another run of the program, on the branch of the first: what it paints owes nothing to what the first has drawn.
class SecondProgram
{
public:
    SecondProgram()
    {
        WriteAliasList(Machine.Home, {});
        InstallHandlers(P);
        P.Form1->Picture1.Font = {};
    }

    void Open(const QString& workDir)
    {
        P.Branch.HomeDir = P.ExecutableDirectory;
        P.Branch.WorkDir = workDir;
        OpenWorkDatabase(P);
    }

    // These arrays painted on blank paper.
    QImage Painted(const MapState& map)
    {
        P.Map = map;
        P.Form1->Picture1.Cls();
        RedrawMap(P, MapOnScreen(P.Map, *P.Form1));
        return ShownBy(P.Form1->Picture1).copy();
    }

    // The lists of these arrays drawn on blank paper as a branch is opened: captions lie beneath lines and texts then.
    QImage Opened(const MapState& map)
    {
        P.Map = map;
        EmptyMapArrays(P.Map, P.Mouse, P.Tools);
        P.Form1->Picture1.Cls();
        P.Form1->Picture1.Font = {};
        ParseWhatIsThere(P);
        return ShownBy(P.Form1->Picture1).copy();
    }

    TestPlatform Machine;
    Program P{Machine.Platform};
};

} // namespace lineforge
