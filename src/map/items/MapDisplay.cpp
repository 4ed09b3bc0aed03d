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

void RedrawMap(Program& p, const MapSheet& sheet)
{
    PictureBox& picture = p.Form1->Picture1;
    for (int row = 0; row <= p.Map.SBoxes; ++row)
        p.Errors.Ignoring([&] { DrawBox(p.Map, sheet, row); });

    const Colour pen = picture.ForeColor;
    const TextFont font = picture.Font;
    for (int row = 0; row <= p.Map.STexts; ++row) {
        p.Errors.Ignoring([&] { DrawText(p, sheet, row); });
        picture.ForeColor = pen;
        picture.Font = font;
        if (!SameText(picture.Font.Name, u"Arial"))
            ResetMapFont(picture);
    }
    for (int row = 0; row <= p.Map.SLines; ++row)
        DrawLine(p.Map, sheet, row);

    // A backup that failed leaves the branch without its records.
    if (!IsBranchOpen(p.Branch, p.Form3))
        return;
    KeepPosition(p.Record, Records(p.Form3));
    DrawOwnCaptions(p, sheet);
    DrawBoxCaptions(p, sheet);
    ComeBack(p.Record, p.Form3);
}

void ShowCoordinates(Program& p, double x, double y)
{
    const Point pointer = PointerOnMap(x, y);
    p.Mouse.BoxX = pointer.X;
    p.Mouse.BoxY = pointer.Y;
    p.Mouse.BoxLeft = p.Mouse.BoxX - BoxCentreX;
    p.Mouse.BoxTop = p.Mouse.BoxY - BoxCentreY;
    p.Mouse.sCoords = QString::number(p.Mouse.BoxLeft) + u',' + QString::number(p.Mouse.BoxTop);

    forms::Form1& form = *p.Form1;
    form.Text9.Text = QString::number(p.Mouse.BoxX);
    form.Text10.Text = QString::number(p.Mouse.BoxY);
    form.Text8.Text = p.Mouse.sCoords;
}

} // namespace lineforge
