#include "map/tools/BoxTool.h"

#include "forms/Form1.h"
#include "map/items/BoxCaptions.h"
#include "map/items/CurrentBox.h"
#include "map/items/HitBox.h"
#include "map/items/MapItems.h"
#include "platform/store/Fields.h"
#include "program/branch/WorkDatabase.h"
#include "program/ui/BranchUi.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
Point NewCorner(const Program& p)
{
    return {p.Mouse.DownX - BoxCentreX, p.Mouse.DownY - BoxCentreY};
}

void DrawNewOutline(Program& p)
{
    const Point corner = NewCorner(p);
    p.Form1->Picture1.Box({corner.X, corner.Y, BoxWidth, BoxHeight});
}

QString NumberInHitBox(const Program& p)
{
    return p.Map.BoxArr[p.Mouse.BoxIdx][BoxColumn::File].Text();
}

// What is to become of the cursor where the box has a record; without one it stays where it is.
enum class Cursor { GoesThere, Stays };

bool HasRecord(Program& p, Cursor cursor)
{
    Recordset& records = Records(p.Form3);
    if (records.IsEmpty())
        return false;
    const Bookmark before = records.HasRow() ? records.GetBookmark() : Bookmark();
    const bool isFound = records.Seek(Field::File, NumberInHitBox(p));
    if (before && (!isFound || cursor == Cursor::Stays))
        records.SetBookmark(before);
    return isFound;
}

Pressed TakeHitBox(Program& p, const Pointing& pointing)
{
    PictureBox& picture = p.Form1->Picture1;
    p.Tools.PenSave = picture.ForeColor;
    WipeCaption(p, p.Mouse.BoxIdx);
    picture.ForeColor = p.Tools.PenSave;
    KeepLast(p, pointing.At);
    return Pressed::Yes;
}

void PutSubjectDown(Program& p)
{
    Records(p.Form3).Edit();
    Records(p.Form3).Update();
    Records(p.Form3).SetBookmark(p.Record.SavedBookmark);
    p.Form1->Picture1.ForeColor = Black;
    if (HasPlace(p.Map, p.Mouse.BoxIdx)) {
        TakeBoxPosition(p, p.Mouse.BoxIdx);
        DrawRecordInBox(p, MapOnScreen(p));
    }
}
} // namespace

Pressed BeginBox(Program& p, const Pointing& pointing)
{
    PictureBox& picture = p.Form1->Picture1;
    p.Tools.NewRow = TakeRow(p.Map.BoxArr, p.Map.SBoxes, LastFiledBox);
    p.Tools.PenSave = picture.ForeColor;
    picture.ForeColor = p.Form1->CommonDialog1.Color;
    DrawNewOutline(p);
    KeepLast(p, pointing.At);
    return Pressed::Yes;
}

Released EndBox(Program& p)
{
    PictureBox& picture = p.Form1->Picture1;
    DrawNewOutline(p);
    auto& box = p.Map.BoxArr[p.Tools.NewRow];
    box[BoxColumn::X] = NewCorner(p).X;
    box[BoxColumn::Y] = NewCorner(p).Y;
    box[BoxColumn::Colour] = static_cast<int>(picture.ForeColor);
    box[BoxColumn::File] = 0;
    // The row may have been another box's.
    box[BoxColumn::Forename] = QString();
    picture.ForeColor = p.Tools.PenSave;
    return Released::Repaint;
}

Pressed TakeBox(Program& p, const Pointing& pointing)
{
    if (!FindsBox(p))
        return Pressed::No;
    if (HasRecord(p, Cursor::GoesThere)) {
        p.Record.sCurFile = NumberInHitBox(p);
        p.Record.SavedBookmark = Records(p.Form3).GetBookmark();
        p.Tools.MapCursorMode = MapCursor::MovingSubject;
    }
    return TakeHitBox(p, pointing);
}

Pressed TakeBoxToDelete(Program& p, const Pointing& pointing)
{
    // An empty box has no caption to be wiped; the release deletes it.
    if (!FindsBox(p) || NumberInHitBox(p) == u"0")
        return Pressed::No;
    if (HasRecord(p, Cursor::Stays)) {
        p.Prompts.MsgBox(u"Tree Box deletion"_s,
                         u"You must delete or transfer the Record for this subject \n"
                         u"before deleting the subject box."_s,
                         Buttons::Information);
        p.Mouse.BoxMiss = 1;
        return Pressed::No;
    }
    return TakeHitBox(p, pointing);
}

void DragBox(Program& p, const Pointing& pointing)
{
    KeepPointer(p, pointing);
    if (p.Mouse.BoxMiss != 0)
        return;
    PictureBox& picture = p.Form1->Picture1;
    const int row = p.Mouse.BoxIdx;
    TakeDelta(p, pointing.At);
    // The rubber pen takes off what it has drawn; before its first stroke the box is wiped.
    DrawBoxIn(p.Map, MapOnScreen(p), row,
              picture.Mode == DrawMode::NotXor ? ColourOfBox(p.Map, row) : picture.BackColor);
    CarryBox(p, row);
    picture.Mode = DrawMode::NotXor;
    DrawBoxIn(p.Map, MapOnScreen(p), row, ColourOfBox(p.Map, row));
    KeepLast(p, pointing.At);
}

Released DropBox(Program& p)
{
    if (p.Mouse.BoxMiss != 0)
        return Released::Repaint;
    PictureBox& picture = p.Form1->Picture1;
    picture.Mode = DrawMode::Copy;
    DrawBoxIn(p.Map, MapOnScreen(p), p.Mouse.BoxIdx, ColourOfBox(p.Map, p.Mouse.BoxIdx));
    if (p.Tools.MapCursorMode == MapCursor::MovingSubject) {
        // A backup that has failed meanwhile has left the branch without its records.
        if (IsBranchOpen(p.Branch, p.Form3))
            PutSubjectDown(p);
        p.Tools.MapCursorMode = MapCursor::Normal;
    }
    return Released::Repaint;
}

Released DeleteBox(Program& p)
{
    if (p.Mouse.BoxMiss != 0)
        return Released::Repaint;
    DrawBoxIn(p.Map, MapOnScreen(p), p.Mouse.BoxIdx, p.Form1->Picture1.BackColor);
    // The forename stays in the free row.
    auto& box = p.Map.BoxArr[p.Mouse.BoxIdx];
    for (const int column : {BoxColumn::X, BoxColumn::Y, BoxColumn::Colour, BoxColumn::File})
        box[column] = 0;
    // The rows behind keep their places: the highest of them is out of the count until the tools are closed.
    p.Map.SBoxes -= 1;
    return Released::Repaint;
}

} // namespace lineforge
