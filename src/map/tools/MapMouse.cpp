#include "map/tools/MapMouse.h"

#include "forms/Form1.h"
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
Pressed PressNothing(const ToolWork&, const Pointing&)
{
    return Pressed::Yes;
}

void MoveNothing(const ToolWork&, const Pointing&) {}

Released ReleaseNothing(const ToolWork&)
{
    return Released::Repaint;
}

// The tools as one machine: what each state makes of the three events of the mouse. `ToolSel` itself is changed by the
// buttons (ToolButtons), and by the zone, which goes from drawn to fixed to dragged to none.
struct ToolBehaviour {
    int Sel;
    Pressed (*Press)(const ToolWork&, const Pointing&);
    void (*Move)(const ToolWork&, const Pointing&);
    Released (*Release)(const ToolWork&);
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

const ToolBehaviour& InHand(const ToolState& tools)
{
    const auto* tool = std::ranges::find(behaviours, static_cast<int>(tools.ToolSel), &ToolBehaviour::Sel);
    Q_ASSERT(tool != std::end(behaviours));
    return *tool;
}

bool AreToolsOpen(const ToolState& tools)
{
    return tools.ToolMode == ToolsOpen;
}

void PressTool(const ToolWork& work, const Pointing& pointing)
{
    if (InHand(work.Tools).Press(work, pointing) == Pressed::Yes)
        work.Tools.ToolStep = -1;
}

void ReleaseTool(const ToolWork& work)
{
    if (InHand(work.Tools).Release(work) == Released::Repaint)
        RedrawMap(work, MapOnScreen(work.Map, *work.Form1));
    work.Tools.ToolStep = 0;
}
} // namespace

void FinishGesture(const ToolWork& work)
{
    if (!std::exchange(work.Tools.IsPressed, false))
        return;
    if (AreToolsOpen(work.Tools) || work.Tools.ToolSel == Tool::ZoneDraw || work.Tools.ToolSel == Tool::ZoneDrag)
        ReleaseTool(work);
}

void PressMap(const ToolWork& work, int shift, double x, double y)
{
    FinishGesture(work);
    // Where the records have gone behind the tools, these can only be closed.
    if (AreToolsOpen(work.Tools) && TellIfNoBranch(work.Branch, work.Form3, work.Prompts))
        return;
    work.Tools.IsPressed = true;
    const Pointing pointing{PointerOnMap(x, y), shift};
    work.Mouse.DownX = pointing.At.X;
    work.Mouse.DownY = pointing.At.Y;
    if (AreToolsOpen(work.Tools))
        PressTool(work, pointing);
    else
        AnswerPress(work.Map, work.Mouse, work.Form1, work.Loop);
}

void MoveOverMap(const ToolWork& work, int buttons, int shift, double x, double y)
{
    if (buttons == 0) {
        FinishGesture(work);
        return;
    }
    const ToolBehaviour& tool = InHand(work.Tools);
    if (work.Tools.ToolStep != 0 && (AreToolsOpen(work.Tools) || tool.WithoutTools))
        tool.Move(work, {PointerOnMap(x, y), shift});
}

// The second release of a double click comes without a press of its own and ends no gesture.
void ReleaseMap(const ToolWork& work, double x, double y)
{
    if (work.Tools.MapCursorMode != MapCursor::MovingSubject)
        ShowCoordinates(work.Mouse, *work.Form1, x, y);
    FinishGesture(work);
}

} // namespace lineforge
