#include "map/items/MapSheet.h"

#include "forms/Form1.h"

#include <algorithm>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// A spoilt file may tell any place. What lies this far out, in twips, can't be seen anyway, and doesn't overflow.
constexpr int farOutside = 100'000'000;

int Within(int twips)
{
    return std::clamp(twips, -farOutside, farOutside);
}
} // namespace

Point MapSheet::At(Point place) const
{
    return {Within(place.X) + ToTheRight, Down(Within(place.Y))};
}

MapSheet MapOnScreen(MapState& map, forms::Form1& form)
{
    return {.On = form.Picture1,
            .Caption = {.Number = NumberInBox, .Forename = ForenameInBox, .NumberAlone = NumberInBox, .BirthYear = {}},
            .CaptionFont = TextFont(),
            .Printed = &map.Captions};
}

MapSheet MapOnPaper(Surface& page)
{
    const TextFont small{u"Courier"_s, 7};
    return {.On = page,
            .Caption = {.Number = {NumberInBox.X, 10},
                        .Forename = {ForenameInBox.X, 130},
                        .NumberAlone = {NumberInBox.X, 40},
                        .BirthYear = Point{ForenameInBox.X, 260}},
            .ToTheRight = 1200,
            .Stretch = {.Times = 9, .By = 5},
            .Pen = 2,
            .InsteadOfArial = small,
            .PictureFont = small};
}

} // namespace lineforge
