#pragma once

#include "faults/World.h"

#include <ostream>
#include <vector>

namespace lineforge::faults
{

// A command that writes.
struct Command {
    const char* Name;
    void (*Given)(World& world);
    void (*Do)(World& world);
    // A file of this ending is written where it stands, line by line as the work goes on.
    QStringView WrittenAsItGoes = {};
    // Files that may be missing, or stay as they were, without a word, which is meant to be; a pattern.
    QStringView Silent = {};
    // What the check of the home may find for the same reason; a pattern.
    QStringView May = {};
};

inline void PrintTo(const Command& command, std::ostream* out)
{
    *out << command.Name;
}

// All there are, but those of the text editor, which is a program of its own, and those that print.
std::vector<Command> AllCommands();

} // namespace lineforge::faults
