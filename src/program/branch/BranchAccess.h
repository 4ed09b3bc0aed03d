#pragma once

#include "platform/files/FileIdentity.h"
#include "platform/files/FileSystem.h"
#include "platform/machine/Platform.h"
#include "platform/store/Database.h"
#include "program/state/BranchState.h"
#include "program/state/RecordState.h"
#include "program/state/Windows.h"

#include <QSet>

namespace lineforge
{

struct Program;

// What the opening of any database works with: one of an older installation is taken over before, and whoever waits is
// told why.
struct DatabaseOpening {
    DatabaseOpening(Program& p);

    lineforge::Databases& Databases;
    QSet<FileIdentity>& RefusedDatabases;
    FileSystem& Files;
    const QString& HomeDir;
    const QString& ExecutableDirectory;
    lineforge::Prompts& Prompts;
    EventLoop& Loop;
};

// The branch that the program is pointed at, and the one cursor on its records with the place that is kept there.
struct BranchRecords {
    BranchRecords(Program& p);

    BranchState& Branch;
    RecordState& Record;
    Window<forms::Form3>& Form3;
};

// What pointing the program at a branch works with.
struct BranchAccess : DatabaseOpening, BranchRecords {
    BranchAccess(Program& p);
    BranchAccess(const DatabaseOpening& opening, const BranchRecords& records);
};

} // namespace lineforge
