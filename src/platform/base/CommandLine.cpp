#include "platform/base/CommandLine.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <getopt.h>

namespace lineforge
{

namespace
{
constexpr int failed = 2;

void PrintUsage(std::FILE* output, const CommandDescription& description)
{
    std::fprintf(output, "Usage: %s [--help] [--version] ", description.Name);
    if (description.Flag)
        std::fprintf(output, "[--%s] ", description.Flag);
    std::fprintf(output, "%s\n", description.Operands);
}

int Help(const CommandDescription& description)
{
    PrintUsage(stdout, description);
    std::fprintf(stdout, "\n%s", description.Purpose);
    return RequireWritten(description.Name, "the help") ? 0 : failed;
}

int Version(const CommandDescription& description)
{
    std::puts("Lineforge " LINEFORGE_VERSION);
    return RequireWritten(description.Name, "the version") ? 0 : failed;
}

int Refuse(const CommandDescription& description)
{
    PrintUsage(stderr, description);
    return failed;
}

std::vector<option> OptionsOf(const CommandDescription& description)
{
    std::vector<option> options{{"help", no_argument, nullptr, 'h'}, {"version", no_argument, nullptr, 'v'}};
    // A session that is begun again names itself, and the toolkit can be told what to show its windows on.
    if (description.HasWindows)
        for (const char* name : {"platform", "session"})
            options.push_back({name, required_argument, nullptr, 'w'});
    if (description.Flag)
        options.push_back({description.Flag, no_argument, nullptr, 'f'});
    options.push_back({});
    return options;
}

// What stands among the options: nothing, if they leave the program something to do.
std::optional<int> ReadOptions(int argc, char* argv[], const CommandDescription& description, bool& hasFlag)
{
    const std::vector<option> options = OptionsOf(description);
    optind = 0; // begin anew, whatever was read before
    for (;;) {
        switch (getopt_long_only(argc, argv, "", options.data(), nullptr)) {
        case 'h':
            return Help(description);
        case 'v':
            return Version(description);
        case 'f':
            hasFlag = true;
            break;
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
    line.ExitStatus = ReadOptions(argc, argv, description, line.HasFlag);
    if (line.ExitStatus)
        return line;
    line.Operands.assign(argv + optind, argv + argc);
    const int count = argc - optind;
    if (count < description.LeastOperands || count > description.MostOperands)
        line.ExitStatus = Refuse(description);
    return line;
}

bool RequireWritten(const char* program, const char* what)
{
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return true;
    std::fprintf(stderr, "%s: %s can't be written: %s\n", program, what, std::strerror(errno));
    return false;
}

} // namespace lineforge
