#include "map/items/CurrentBox.h"

#include "forms/Form1.h"
#include "platform/base/Text.h"
#include "platform/store/Fields.h"
#include "program/branch/WorkDatabase.h"

#include <cstdint>
#include <limits>

namespace lineforge
{

namespace
{
constexpr int markerOffset = 60; // from the middle of the box, left and up

Colour MarkerColour(const QString& gender)
{
    if (SameText(gender.left(1), u"F"))
        return QbColor(12);
    if (SameText(gender.left(1), u"M"))
        return QbColor(9);
    return QbColor(13);
}

// With the marker, which stands that much further in.
bool FitsPlace(const Cell& cell, int marker)
{
    using Places = std::numeric_limits<std::int16_t>;
    return cell.IsNumber() && cell.Number() >= Places::min() && cell.Number() <= Places::max() - marker;
}
} // namespace

int RowOfRecord(const MapState& map, const FieldValue& file)
{
    // An empty number is no number: it would be found in the first box that holds nobody.
    if (!file || file->isEmpty())
        return LastFiledBox + 1;
    int row = 0;
    while (row <= LastFiledBox && !(SameText(map.BoxArr[row][BoxColumn::File].Text(), *file) && HasPlace(map, row)))
        ++row;
    return row;
}

bool HasPlace(const MapState& map, int row)
{
    const auto& box = map.BoxArr[row];
    return !IsFreeRow(box) && FitsPlace(box[BoxColumn::X], BoxCentreX - markerOffset) &&
           FitsPlace(box[BoxColumn::Y], BoxCentreY - markerOffset);
}

void TakeBoxPosition(MapMouseState& mouse, const MapState& map, int row)
{
    mouse.BoxX = map.BoxArr[row][BoxColumn::X].Number();
    mouse.BoxY = map.BoxArr[row][BoxColumn::Y].Number();
}

void FindBoxOfRecord(const BoxWork& work)
{
    if (work.Branch.IsSiblingShown())
        return;
    work.Scratch.IdxA = RowOfRecord(work.Map, Records(work.Form3).Value(Field::File));
    if (work.Scratch.IdxA <= LastFiledBox)
        TakeBoxPosition(work.Mouse, work.Map, work.Scratch.IdxA);
}

void MarkCurrentBox(const BoxWork& work)
{
    forms::Form1& form = *work.Form1;
    form.Shape1.Visible = false;
    work.Gallery.FirstShow = 1;

    const Recordset& records = Records(work.Form3);
    if (!records.HasRow())
        return;
    const int row = RowOfRecord(work.Map, records.Value(Field::File));
    if (row > LastFiledBox)
        return;
    TakeBoxPosition(work.Mouse, work.Map, row);
    work.Mouse.BoxX += BoxCentreX - markerOffset;
    work.Mouse.BoxY += BoxCentreY - markerOffset;
    form.Shape1.Move({work.Mouse.BoxX, work.Mouse.BoxY});
    form.Shape1.BorderColor = MarkerColour(records.Text(Field::Gender));
    form.Shape1.Visible = true;
}

} // namespace lineforge
