#include "support/ProgramTest.h"

#include "shell/handlers/InstallHandlers.h"

namespace lineforge
{

ProgramTest::ProgramTest()
{
    InstallHandlers(P);
    P.Branch.HomeDir = P.ExecutableDirectory;
}

} // namespace lineforge
