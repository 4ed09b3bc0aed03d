#pragma once

namespace lineforge
{

struct Program;

// Copies all fields of the current record but its number and its spouse's, and its subject picture, over another record
// that has a box, of this branch or of another one. The program then stays in the destination's branch, with its map.
// Errors of the record store while the destination is written; those of reading are passed over.
void TransferRecord(Program& p);

} // namespace lineforge
