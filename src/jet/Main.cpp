#include "jet/JetStream.h"
#include "jet/Limits.h"
#include "platform/base/CommandLine.h"

#include <iostream>

int main(int argc, char* argv[])
{
    using namespace lineforge;

    const CommandLine line = ReadCommandLine(
        argc, argv,
        {.Name = "lineforge-jet",
         .Operands = "database",
         .Purpose = "Reads the records of an older installation's database for Lineforge, which takes them from\n"
                    "the output. The database stays as it is.\n",
         .LeastOperands = 1,
         .HasWindows = false});
    if (line.ExitStatus)
        return *line.ExitStatus;
    jet::LimitProcess();
    std::ios::sync_with_stdio(false);
    return static_cast<int>(jet::WriteRecords(line.Operands.front().c_str(), std::cout));
}
