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
Point NewCorner(const MapMouseState& mouse)
{
    return {mouse.DownX - BoxCentreX, mouse.DownY - BoxCentreY};
}

void DrawNewOutline(PictureBox& picture, const MapMouseState& mouse)
{
    const Point corner = NewCorner(mouse);
    picture.Box({corner.X, corner.Y, BoxWidth, BoxHeight});
}

QString NumberInHitBox(const MapState& map, const MapMouseState& mouse)
{
    return map.BoxArr[mouse.BoxIdx][BoxColumn::File].Text();
}

// What is to become of the cursor where the box has a record; without one it stays where it is.
enum class Cursor { GoesThere, Stays };

bool HasRecord(Recordset& records, const QString& file, Cursor cursor)
{
    if (records.IsEmpty())
        return false;
    const Bookmark before = records.HasRow() ? records.GetBookmark() : Bookmark();
    const bool isFound = records.Seek(Field::File, file);
    if (before && (!isFound || cursor == Cursor::Stays))
        records.SetBookmark(before);
    return isFound;
}

Pressed TakeHitBox(const ToolWork& work, const Pointing& pointing)
{
    PictureBox& picture = work.Form1->Picture1;
    work.Tools.PenSave = picture.ForeColor;
    WipeCaption(work.Map, *work.Form1, work.Mouse.BoxIdx);
    picture.ForeColor = work.Tools.PenSave;
    KeepLast(work.Tools, pointing.At);
    return Pressed::Yes;
}

void PutSubjectDown(const ToolWork& work)
{
    Records(work.Form3).Edit();
    Records(work.Form3).Update();
    Records(work.Form3).SetBookmark(work.Record.SavedBookmark);
    work.Form1->Picture1.ForeColor = Black;
    if (HasPlace(work.Map, work.Mouse.BoxIdx)) {
        TakeBoxPosition(work.Mouse, work.Map, work.Mouse.BoxIdx);
        DrawRecordInBox(work, MapOnScreen(work.Map, *work.Form1));
    }
}
} // namespace

Pressed BeginBox(const ToolWork& work, const Pointing& pointing)
{
    PictureBox& picture = work.Form1->Picture1;
    work.Tools.NewRow = TakeRow(work.Map.BoxArr, work.Map.SBoxes, LastFiledBox);
    work.Tools.PenSave = picture.ForeColor;
    picture.ForeColor = work.Form1->CommonDialog1.Color;
    DrawNewOutline(picture, work.Mouse);
    KeepLast(work.Tools, pointing.At);
    return Pressed::Yes;
}

Released EndBox(const ToolWork& work)
{
    PictureBox& picture = work.Form1->Picture1;
    DrawNewOutline(picture, work.Mouse);
    auto& box = work.Map.BoxArr[work.Tools.NewRow];
    box[BoxColumn::X] = NewCorner(work.Mouse).X;
    box[BoxColumn::Y] = NewCorner(work.Mouse).Y;
    box[BoxColumn::Colour] = static_cast<int>(picture.ForeColor);
    box[BoxColumn::File] = 0;
    // The row may have been another box's.
    box[BoxColumn::Forename] = QString();
    picture.ForeColor = work.Tools.PenSave;
    return Released::Repaint;
}

Pressed TakeBox(const ToolWork& work, const Pointing& pointing)
{
    if (!FindsBox(work.Map, work.Mouse))
        return Pressed::No;
    if (HasRecord(Records(work.Form3), NumberInHitBox(work.Map, work.Mouse), Cursor::GoesThere)) {
        work.Record.sCurFile = NumberInHitBox(work.Map, work.Mouse);
        work.Record.SavedBookmark = Records(work.Form3).GetBookmark();
        work.Tools.MapCursorMode = MapCursor::MovingSubject;
    }
    return TakeHitBox(work, pointing);
}

Pressed TakeBoxToDelete(const ToolWork& work, const Pointing& pointing)
{
    // An empty box has no caption to be wiped; the release deletes it.
    if (!FindsBox(work.Map, work.Mouse) || NumberInHitBox(work.Map, work.Mouse) == u"0")
        return Pressed::No;
    if (HasRecord(Records(work.Form3), NumberInHitBox(work.Map, work.Mouse), Cursor::Stays)) {
        work.Prompts.MsgBox(u"Tree Box deletion"_s,
                            u"You must delete or transfer the Record for this subject \n"
                            u"before deleting the subject box."_s,
                            Buttons::Information);
        work.Mouse.BoxMiss = 1;
        return Pressed::No;
    }
    return TakeHitBox(work, pointing);
}

void DragBox(const ToolWork& work, const Pointing& pointing)
{
    KeepPointer(work, pointing);
    if (work.Mouse.BoxMiss != 0)
        return;
    PictureBox& picture = work.Form1->Picture1;
    const int row = work.Mouse.BoxIdx;
    TakeDelta(work.Tools, pointing.At);
    // The rubber pen takes off what it has drawn; before its first stroke the box is wiped.
    DrawBoxIn(work.Map, MapOnScreen(work.Map, *work.Form1), row,
              picture.Mode == DrawMode::NotXor ? ColourOfBox(work.Map, row) : picture.BackColor);
    CarryBox(work.Map, work.Tools, row);
    picture.Mode = DrawMode::NotXor;
    DrawBoxIn(work.Map, MapOnScreen(work.Map, *work.Form1), row, ColourOfBox(work.Map, row));
    KeepLast(work.Tools, pointing.At);
}

Released DropBox(const ToolWork& work)
{
    if (work.Mouse.BoxMiss != 0)
        return Released::Repaint;
    PictureBox& picture = work.Form1->Picture1;
    picture.Mode = DrawMode::Copy;
    DrawBoxIn(work.Map, MapOnScreen(work.Map, *work.Form1), work.Mouse.BoxIdx,
              ColourOfBox(work.Map, work.Mouse.BoxIdx));
    if (work.Tools.MapCursorMode == MapCursor::MovingSubject) {
        // A backup that has failed meanwhile has left the branch without its records.
        if (IsBranchOpen(work.Branch, work.Form3))
            PutSubjectDown(work);
        work.Tools.MapCursorMode = MapCursor::Normal;
    }
    return Released::Repaint;
}

Released DeleteBox(const ToolWork& work)
{
    if (work.Mouse.BoxMiss != 0)
        return Released::Repaint;
    DrawBoxIn(work.Map, MapOnScreen(work.Map, *work.Form1), work.Mouse.BoxIdx, work.Form1->Picture1.BackColor);
    // The forename stays in the free row.
    auto& box = work.Map.BoxArr[work.Mouse.BoxIdx];
    for (const int column : {BoxColumn::X, BoxColumn::Y, BoxColumn::Colour, BoxColumn::File})
        box[column] = 0;
    // The rows behind keep their places: the highest of them is out of the count until the tools are closed.
    work.Map.SBoxes -= 1;
    return Released::Repaint;
}

} // namespace lineforge
