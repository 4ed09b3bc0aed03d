#pragma once

namespace lineforge
{

struct Program;

// Deletes the current record with its picture and gallery files, and empties its box; of a record of another branch
// only the box. After two questions, or one. Nothing without a current record. Ends on the first record of the open
// branch.
void DeleteRecord(Program& p);

} // namespace lineforge
