#include "platform/CommandLine.h"

#include <cstdio>
#include <getopt.h>

namespace lineforge
{

namespace
{
constexpr int wrongCall = 2;

void PrintUsage(std::FILE* output, const CommandDescription& description)
{
    std::fprintf(output, "Usage: %s [--help] [--version] %s\n", description.Name, description.Operands);
}

int Help(const CommandDescription& description)
{
    PrintUsage(stdout, description);
    std::fprintf(stdout, "\n%s", description.Purpose);
    return 0;
}

int Version()
{
    std::puts("Lineforge " LINEFORGE_VERSION);
    return 0;
}

int Refuse(const CommandDescription& description)
{
    PrintUsage(stderr, description);
    return wrongCall;
}

// What stands among the options: nothing, if they leave the program something to do.
std::optional<int> ReadOptions(int argc, char* argv[], const CommandDescription& description)
{
    const option shared[] = {{"help", no_argument, nullptr, 'h'}, {"version", no_argument, nullptr, 'v'}, {}};
    // A session that is begun again names itself, and the toolkit can be told what to show its windows on.
    const option windows[] = {{"help", no_argument, nullptr, 'h'},
                              {"version", no_argument, nullptr, 'v'},
                              {"platform", required_argument, nullptr, 'w'},
                              {"session", required_argument, nullptr, 'w'},
                              {}};
    optind = 0; // begin anew, whatever was read before
    for (;;) {
        switch (getopt_long_only(argc, argv, "", description.HasWindows ? windows : shared, nullptr)) {
        case 'h':
            return Help(description);
        case 'v':
            return Version();
        case 'w':
            break;
        case -1:
            return {};
        default:
            return Refuse(description);
        }
    }
}
} // namespace

CommandLine ReadCommandLine(int argc, char* argv[], const CommandDescription& description)
{
    CommandLine line;
    line.ExitStatus = ReadOptions(argc, argv, description);
    if (line.ExitStatus)
        return line;
    line.Operands.assign(argv + optind, argv + argc);
    const int count = argc - optind;
    if (count < description.LeastOperands || count > description.MostOperands)
        line.ExitStatus = Refuse(description);
    return line;
}

} // namespace lineforge
