#pragma once

namespace lineforge
{

struct Program;

// A branch directory from elsewhere comes into the home under a friendly name of its own, and is opened. It keeps its
// letter, which every record's number holds: where a branch of that letter is listed it goes into "Import_X". The
// branch that was open before isn't saved, and tools that are open stay so. From the confirmation on all errors are
// passed over, but for a directory that is there already or can't be made and a database that can't be opened, which
// have boxes. A user who doesn't wait for another program that works on the database has imported nothing. The copies
// are on the disk before the list names them.
void ImportBranch(Program& p);

} // namespace lineforge
