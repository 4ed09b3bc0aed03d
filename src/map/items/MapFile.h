#pragma once

#include "platform/files/FileSystem.h"
#include "platform/machine/Prompts.h"
#include "program/state/BranchState.h"
#include "program/state/MapMouseState.h"
#include "program/state/MapState.h"
#include "program/state/ToolState.h"

namespace lineforge
{

// The map file: eight lines, the last of each pair a list of values with a comma after every one.

// Empties the three arrays, with all that a gesture has found in them: a hit may not outlive what it points at. The
// counts keep their values.
void EmptyMapArrays(MapState& map, MapMouseState& mouse, ToolState& tools);

// Empties the whole map before another branch's is read. Where the records stood when tools were opened is forgotten.
void ForgetMap(MapState& map, MapMouseState& mouse, ToolState& tools);

// A forename without what would break the file: a comma ends a value too early and shifts all that follow, a bracket
// or the end of a line breaks the whole list. It stands so in the array and in its box, too.
QString FiledForename(QString forename);

// Whether a value can stand in a list of the map: without a comma, a "[" and a line break.
bool FitsList(QStringView value);

// Fills the three lists of the branch in `WorkDir`, and says which of them came out empty. A file that isn't there
// leaves the lists as they were. Error 62 when it ends inside the boxes or the lines.
void ReadMapFile(MapState& map, const BranchState& branch, const FileSystem& files, Prompts& prompts);

// Tells of the first list that is empty, if there is one.
void WarnOfFirstEmptyList(const MapState& map, Prompts& prompts);

// Fills the three lists from that file; false when it lacks one of them. Error 53 or 70 when it can't be read, 62 as
// above; the lists then hold what was read.
[[nodiscard]] bool ReadMapLists(const FileSystem& files, const QString& path, MapState& map);

// Writes the three lists, the old file becoming the previous generation, unless it was torn, or has been written from
// a part of a map, and there is an earlier generation to be kept. The file goes to the branch whose map is in
// memory, also while a record of another branch is shown; lists of no branch, or of another one, are not written.
// Errors of the disk; the old file then stays.
void WriteMapFile(MapState& map, BranchState& branch, FileSystem& files);

// Rebuilds the list of boxes from rows 0 to 99 and writes the file. The lists of lines and texts go out as they were
// last read or saved.
void SaveBoxes(MapState& map, BranchState& branch, FileSystem& files);

// The list with another forename in the first box of that record; for the time that the arrays are being edited.
QString ListWithForename(const QString& boxes, const QString& file, const QString& forename);

// The three lists from the arrays, free rows left out.
QString ListOfBoxes(const MapState& map);
QString ListOfLines(const MapState& map); // rows 0 to 199
QString ListOfTexts(const MapState& map); // rows 0 to `STexts`

} // namespace lineforge
