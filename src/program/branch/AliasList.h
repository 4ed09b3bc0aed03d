#pragma once

#include "platform/base/RuntimeError.h"
#include "platform/files/FileSystem.h"
#include "platform/machine/Prompts.h"
#include "program/state/BranchState.h"
#include "program/state/ScratchState.h"
#include "program/state/Windows.h"

namespace lineforge
{

struct Program;

// What is done to the registry works with. The splash doesn't stand over a box, and the branch list shows the registry.
struct BranchRegistry {
    BranchRegistry(Program& p);

    AliasState& Alias;
    const BranchState& Branch;
    FileSystem& Files;
    lineforge::Prompts& Prompts;
    ErrorState& Errors;
    ScratchState& Scratch;
    Window<forms::form9>& form9;
    Window<forms::Form8>& Form8;
};

// The registry of tree branches, `AliasList.cfg` in `HomeDir`: five lines with the list of friendly names and
// directories and the one setting. The readers show a box and leave everything as it was when the file is missing or
// read-only; a file that ends inside a section is error 62, an entry beyond the hundredth error 9.

// Reads `NoSplash`. Error 13 for a setting that is no number.
void ReadAliasConfig(const BranchRegistry& registry);

// Rebuilds `AliasTable` and `sAliasList`.
void ReadAliasList(const BranchRegistry& registry);

// Writes the file anew from `sAliasList` and `NoSplash`; the old one becomes `AliasList.bak`. Errors of the disk.
void WriteAliasList(const BranchRegistry& registry);

// Whether a branch has that friendly name, or that directory; case ignored.
bool IsNameListed(const AliasState& alias, const QString& name);
bool IsDirectoryListed(const AliasState& alias, const QString& directory);

// The friendly name of the branch in that directory: the open one's if that is an entry of it, else the first that is.
// A branch that isn't listed has the open one's.
QString ListedName(const AliasState& alias, const BranchState& branch, const QString& directory);

// A friendly name that no branch has, and that the branch list gives back as it was typed; others are refused and asked
// for again. Empty for a cancelled question.
[[nodiscard]] QString AskBranchName(const AliasState& alias, Prompts& prompts, const QString& title,
                                    const QString& prompt);

// What a refusal of the disk does to the steps of bringing the registry up to date.
enum class Refusals {
    EndIt,         // errors as above
    CostTheirStep, // none: in the end memory and branch list agree with what the file says
};

// Brings a branch into the registry and the branch list.
void AddAlias(const BranchRegistry& registry, const QString& name, const QString& directory, Refusals refusals);
// Takes one out of both, whatever the registry calls its directory; a refusal costs its step.
void RemoveAlias(const BranchRegistry& registry, const QString& name, const QString& directory);

// Puts the friendly names into the branch list, in the table's order, and selects the open branch. Does nothing while
// `sAliasList` is empty.
void FillBranchList(const BranchRegistry& registry);

} // namespace lineforge
