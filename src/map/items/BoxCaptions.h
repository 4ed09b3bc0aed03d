#pragma once

#include "map/items/MapSheet.h"
#include "map/items/MapWork.h"
#include "platform/store/Recordset.h"

#include <optional>

namespace lineforge
{

// The number and the forename that stand in a box, always in black.

// A forename as a box has room for it, without what would break the map file: fewer than 8 characters stay whole,
// blanks and all; a longer one is cut before its first blank; what still has 8 or more becomes its first five, an
// apostrophe and its last.
QString FittedForename(const QString& forename);

// `sForeName` from that row; Null gives empty text.
void FitForename(RecordState& record, const Recordset& row);

// Prints number and forename of that cursor's row in the box at `BoxX`, `BoxY`, and the year of birth where the sheet
// has a place for it; nothing at `Eof`. While a subject is being mapped or moved the box is looked for first.
void DrawRecordInBox(const BoxWork& work, const MapSheet& sheet, const Recordset& row);
void DrawRecordInBox(const BoxWork& work, const MapSheet& sheet);

// Prints the number that row `IdxA` of the boxes holds, at `BoxX`, `BoxY`; behind the filed rows there is none. While a
// subject is being mapped or moved it is the current record's, in its own box.
void DrawBoxNumber(const BoxWork& work, const MapSheet& sheet);

// Prints the number in each box that has one, and the forename too where the record is another branch's. A free row, or
// a box at an impossible place, is passed over, here and below.
void DrawBoxCaptions(const MapWork& work, const MapSheet& sheet);

// Walks the open branch's table once and prints each record in every box that holds it; ends at `Eof`.
void DrawOwnCaptions(const BoxWork& work, const MapSheet& sheet);

// Overprints in the background colour what stands in the box of that row. The row keeps its number.
void WipeCaption(MapState& map, forms::Form1& form, int row);

// Wipes what stands in the box of that row and gives it that record, number and forename. The caption is still to be
// printed.
void TieBox(MapState& map, forms::Form1& form, int row, const QString& file, const QString& forename);

// The one way in which a box gets another forename of its record: in its row, and on the picture in the place of what
// stands there. The list of boxes follows when it is rebuilt. The pen is black afterwards.
void RenameBox(MapState& map, forms::Form1& form, int row, const QString& forename);

// The row of the current record's box, for `EmptyBox`; nothing without a box, or where it is the last.
[[nodiscard]] std::optional<int> RowToErase(const BoxWork& work);

// Wipes the caption of that row's box and empties the box. The pen is black afterwards.
void EmptyBox(MapState& map, forms::Form1& form, int row);

// Wipes the caption of the current record's box and empties the box.
void EraseBoxCaption(const BoxWork& work);

// The same for that record of another branch, whose forename is `sAltName`: of several boxes the one that the mouse
// hit. A record without a box takes nobody else's.
void EraseSiblingsBox(const BoxWork& work, const QString& file);

} // namespace lineforge
