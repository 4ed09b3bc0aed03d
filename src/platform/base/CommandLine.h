#pragma once

#include <optional>
#include <string>
#include <vector>

namespace lineforge
{

// What a program of ours tells of itself on the command line.
struct CommandDescription {
    const char* Name;     // by which it is started
    const char* Operands; // as the usage shows them
    const char* Purpose;  // whole lines
    int LeastOperands = 0;
    int MostOperands = 1;
    bool HasWindows = true;     // and so takes the two options that desktops and toolkits give such a program
    const char* Flag = nullptr; // the name of an option of its own
};

struct CommandLine {
    std::vector<std::string> Operands; // in the bytes in which they were given
    bool HasFlag = false;              // its own option is among them
    std::optional<int> ExitStatus;     // set when there is nothing more to do
};

// Answers --help and --version on the output; an option that isn't known, the wrong number of operands, or an output
// that doesn't take the answer, is told on the error output and ends with 2. Needs no display. Options are moved before
// the operands in `argv`.
CommandLine ReadCommandLine(int argc, char* argv[], const CommandDescription& description);

// Whether the output has taken all that was written to it; if not, that is told on the error output, by the name of the
// program and that of what was written.
[[nodiscard]] bool RequireWritten(const char* program, const char* what);

} // namespace lineforge
