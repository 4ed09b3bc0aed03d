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

void TakeBoxPosition(Program& p, int row)
{
    p.Mouse.BoxX = p.Map.BoxArr[row][BoxColumn::X].Number();
    p.Mouse.BoxY = p.Map.BoxArr[row][BoxColumn::Y].Number();
}

void FindBoxOfRecord(Program& p)
{
    if (p.Branch.IsSiblingShown())
        return;
    p.Scratch.IdxA = RowOfRecord(p.Map, Records(p.Form3).Value(Field::File));
    if (p.Scratch.IdxA <= LastFiledBox)
        TakeBoxPosition(p, p.Scratch.IdxA);
}

void MarkCurrentBox(Program& p)
{
    forms::Form1& form = *p.Form1;
    form.Shape1.Visible = false;
    p.Gallery.FirstShow = 1;

    const Recordset& records = Records(p.Form3);
    if (!records.HasRow())
        return;
    const int row = RowOfRecord(p.Map, records.Value(Field::File));
    if (row > LastFiledBox)
        return;
    TakeBoxPosition(p, row);
    p.Mouse.BoxX += BoxCentreX - markerOffset;
    p.Mouse.BoxY += BoxCentreY - markerOffset;
    form.Shape1.Move({p.Mouse.BoxX, p.Mouse.BoxY});
    form.Shape1.BorderColor = MarkerColour(records.Text(Field::Gender));
    form.Shape1.Visible = true;
}

} // namespace lineforge
