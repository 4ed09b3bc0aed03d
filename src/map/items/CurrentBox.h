#pragma once

#include "map/items/MapWork.h"
#include "platform/store/Recordset.h"

namespace lineforge
{

// `BoxX`, `BoxY` become the position of the first box that holds the current record, `IdxA` its row. Without one
// `IdxA` is left at 100 and the position stays. Does nothing while a record of another branch is shown.
void FindBoxOfRecord(const BoxWork& work);

// Puts the marker on the box of the current record, coloured by the gender; hidden when no box shows it, or there is no
// record. Asks for a new gallery page. Leaves `BoxX`, `BoxY` at the marker's place, not the box's: mapping reads them
// there.
void MarkCurrentBox(const BoxWork& work);

// The first filed row whose box holds that record, or the row behind the last. A free row, or a box at no possible
// place, holds nobody: there is nothing to be marked or printed in.
int RowOfRecord(const MapState& map, const FieldValue& file);

// Whether the box of that row stands somewhere: the row isn't free, and its position two whole numbers of 16 bits.
bool HasPlace(const MapState& map, int row);

// `BoxX`, `BoxY` from a row of the boxes. Error 13 or 6 for a position that is no whole number of 16 bits.
void TakeBoxPosition(MapMouseState& mouse, const MapState& map, int row);

} // namespace lineforge
