#include "map/tools/MapMouse.h"

#include "map/items/MapDisplay.h"
#include "map/items/PointerOnMap.h"
#include "map/subjects/MapInteraction.h"
#include "map/tools/BoxTool.h"
#include "map/tools/LineTool.h"
#include "map/tools/TextTool.h"
#include "map/tools/ToolSelection.h"
#include "map/tools/ZoneTool.h"
#include "program/ui/BranchUi.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace lineforge
{

namespace
{
Pressed PressNothing(Program&, const Pointing&)
{
    return Pressed::Yes;
}

void MoveNothing(Program&, const Pointing&) {}

Released ReleaseNothing(Program&)
{
    return Released::Repaint;
}

// The tools as one machine: what each state makes of the three events of the mouse. `ToolSel` itself is changed by the
// buttons (ToolButtons), and by the zone, which goes from drawn to fixed to dragged to none.
struct ToolBehaviour {
    int Sel;
    Pressed (*Press)(Program&, const Pointing&);
    void (*Move)(Program&, const Pointing&);
    Released (*Release)(Program&);
    // A zone that has been begun goes on even when the tools have been switched off in the middle of it.
    bool WithoutTools = false;
};

namespace Tool = ToolSelection;

constexpr ToolBehaviour behaviours[] = {
    {Tool::None, PressNothing, MoveNothing, ReleaseNothing},
    {Tool::ZoneDraw, BeginZone, StretchZone, FixZone, true},
    {Tool::ZoneFixed, TakeZone, DragZone, ReleaseNothing, true},
    {Tool::ZoneDrag, PressNothing, DragZone, DropZone, true},
    {Tool::LineDraw, BeginLine, StretchLine, EndLine},
    {Tool::BoxDraw, BeginBox, KeepPointer, EndBox},
    {Tool::TextDraw, PlaceText, KeepPointer, ReleaseNothing},
    {Tool::LineMove, TakeChain, DragChain, DropChain},
    {Tool::BoxMove, TakeBox, DragBox, DropBox},
    {Tool::TextMove, TakeText, DragText, DropText},
    {Tool::LineDelete, TakeChain, KeepPointer, DeleteChain},
    {Tool::BoxDelete, TakeBoxToDelete, KeepPointer, DeleteBox},
    {Tool::TextDelete, TakeText, KeepPointer, DeleteText},
};

const ToolBehaviour& InHand(const Program& p)
{
    const auto* tool = std::ranges::find(behaviours, static_cast<int>(p.Tools.ToolSel), &ToolBehaviour::Sel);
    Q_ASSERT(tool != std::end(behaviours));
    return *tool;
}

bool AreToolsOpen(const Program& p)
{
    return p.Tools.ToolMode == ToolsOpen;
}

void PressTool(Program& p, const Pointing& pointing)
{
    if (InHand(p).Press(p, pointing) == Pressed::Yes)
        p.Tools.ToolStep = -1;
}

void ReleaseTool(Program& p)
{
    if (InHand(p).Release(p) == Released::Repaint)
        RedrawMap(p, MapOnScreen(p));
    p.Tools.ToolStep = 0;
}
} // namespace

void FinishGesture(Program& p)
{
    if (!std::exchange(p.Tools.IsPressed, false))
        return;
    if (AreToolsOpen(p) || p.Tools.ToolSel == Tool::ZoneDraw || p.Tools.ToolSel == Tool::ZoneDrag)
        ReleaseTool(p);
}

void PressMap(Program& p, int shift, double x, double y)
{
    FinishGesture(p);
    // Where the records have gone behind the tools, these can only be closed.
    if (AreToolsOpen(p) && TellIfNoBranch(p.Branch, p.Form3, p.Prompts))
        return;
    p.Tools.IsPressed = true;
    const Pointing pointing{PointerOnMap(x, y), shift};
    p.Mouse.DownX = pointing.At.X;
    p.Mouse.DownY = pointing.At.Y;
    if (AreToolsOpen(p))
        PressTool(p, pointing);
    else
        AnswerPress(p);
}

void MoveOverMap(Program& p, int buttons, int shift, double x, double y)
{
    if (buttons == 0) {
        FinishGesture(p);
        return;
    }
    const ToolBehaviour& tool = InHand(p);
    if (p.Tools.ToolStep != 0 && (AreToolsOpen(p) || tool.WithoutTools))
        tool.Move(p, {PointerOnMap(x, y), shift});
}

// The second release of a double click comes without a press of its own and ends no gesture.
void ReleaseMap(Program& p, double x, double y)
{
    if (p.Tools.MapCursorMode != MapCursor::MovingSubject)
        ShowCoordinates(p, x, y);
    FinishGesture(p);
}

} // namespace lineforge
