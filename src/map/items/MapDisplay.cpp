#include "map/items/MapDisplay.h"

#include "forms/Form1.h"
#include "map/items/BoxCaptions.h"
#include "map/items/MapItems.h"
#include "map/items/PointerOnMap.h"
#include "platform/base/Text.h"
#include "program/branch/ComeBackAfterwards.h"
#include "program/ui/BranchUi.h"

namespace lineforge
{

void RedrawMap(const MapWork& work, const MapSheet& sheet)
{
    PictureBox& picture = work.Form1->Picture1;
    for (int row = 0; row <= work.Map.SBoxes; ++row)
        work.Errors.Ignoring([&] { DrawBox(work.Map, sheet, row); });

    const Colour pen = picture.ForeColor;
    const TextFont font = picture.Font;
    for (int row = 0; row <= work.Map.STexts; ++row) {
        work.Errors.Ignoring([&] { DrawText(work, sheet, row); });
        picture.ForeColor = pen;
        picture.Font = font;
        if (!SameText(picture.Font.Name, u"Arial"))
            ResetMapFont(picture);
    }
    for (int row = 0; row <= work.Map.SLines; ++row)
        DrawLine(work.Map, sheet, row);

    // A backup that failed leaves the branch without its records.
    if (!IsBranchOpen(work.Branch, work.Form3))
        return;
    KeepPosition(work.Record, Records(work.Form3));
    DrawOwnCaptions(work, sheet);
    DrawBoxCaptions(work, sheet);
    ComeBack(work.Record, work.Form3);
}

void ShowCoordinates(MapMouseState& mouse, forms::Form1& form, double x, double y)
{
    const Point pointer = PointerOnMap(x, y);
    mouse.BoxX = pointer.X;
    mouse.BoxY = pointer.Y;
    mouse.BoxLeft = mouse.BoxX - BoxCentreX;
    mouse.BoxTop = mouse.BoxY - BoxCentreY;
    mouse.sCoords = QString::number(mouse.BoxLeft) + u',' + QString::number(mouse.BoxTop);

    form.Text9.Text = QString::number(mouse.BoxX);
    form.Text10.Text = QString::number(mouse.BoxY);
    form.Text8.Text = mouse.sCoords;
}

} // namespace lineforge
