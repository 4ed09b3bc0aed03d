#include "map/tools/ToolButtons.h"

#include "forms/Form1.h"
#include "forms/Form3.h"
#include "map/tools/MapMouse.h"
#include "map/tools/ToolImages.h"
#include "map/tools/ToolSelection.h"
#include "program/branch/SiblingBranch.h"
#include "program/ui/BranchUi.h"

#include <algorithm>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
using forms::Form1;
namespace Tool = ToolSelection;

// The tools for one kind of item, and what stands in `ToolSel` for each of the three things to be done with it.
struct ItemTool {
    Image Form1::*Button;
    int Draw;
    int Move;
    int Delete;

    bool IsInHand(int sel) const { return sel == Draw || sel == Move || sel == Delete; }
};

constexpr ItemTool lineTool{&Form1::Image6, Tool::LineDraw, Tool::LineMove, Tool::LineDelete};
constexpr ItemTool boxTool{&Form1::Image7, Tool::BoxDraw, Tool::BoxMove, Tool::BoxDelete};
constexpr ItemTool textTool{&Form1::Image9, Tool::TextDraw, Tool::TextMove, Tool::TextDelete};
constexpr ItemTool itemTools[] = {lineTool, boxTool, textTool};

const ItemTool* ItemToolInHand(const Program& p)
{
    const auto* tool = std::ranges::find_if(itemTools, [&](const ItemTool& t) { return t.IsInHand(p.Tools.ToolSel); });
    return tool == std::end(itemTools) ? nullptr : tool;
}

void RaiseTools(Program& p, std::initializer_list<Image Form1::*> buttons)
{
    for (Image Form1::*button : buttons)
        RaiseTool(p, button);
}

void RaiseOtherItemTools(Program& p, const ItemTool& tool)
{
    for (const ItemTool& other : itemTools)
        if (other.Button != tool.Button)
            RaiseTool(p, other.Button);
}

void ChooseItemTool(Program& p, const ItemTool& tool)
{
    FinishGesture(p);
    const bool goesOn = !tool.IsInHand(p.Tools.ToolSel);
    p.Tools.ToolSel = goesOn ? tool.Draw : Tool::None;
    p.Tools.ToolStep = 0;
    p.Form1->Shape3.Visible = false;
    if (goesOn)
        SinkTool(p, tool.Button);
    else
        RaiseTool(p, tool.Button);
    p.Screen.Pointer = goesOn ? MousePointer::Cross : MousePointer::Default;
    RaiseTools(p, {&Form1::Image2, &Form1::Image3, &Form1::Image4, &Form1::Image5});
    RaiseOtherItemTools(p, tool);
}

void LeaveZone(Program& p)
{
    p.Tools.ToolSel = Tool::None;
    p.Form1->Shape3.Visible = false;
    RaiseTool(p, &Form1::Image2);
}
} // namespace

void OpenTools(Program& p)
{
    if (TellIfAlternate(p.Branch, p.Prompts, u"Using Alternate Tree Branch."_s,
                        u"Cannot Change Tree Map until local Tree Branch\nRecord is Selected."_s))
        return;
    // Neither can the map of no branch: after a New that was given up none is in memory, though one is open.
    if (!IsBranchOpen(p.Branch, p.Form3) || p.Map.Owner != p.Branch.WorkDir) {
        p.Prompts.MsgBox(u"DataBase not Opened"_s,
                         u"Cannot Change Tree Map until database\nfile is Opened or begins from New"_s,
                         Buttons::Information);
        return;
    }
    p.Tools.ToolMode = ToolsOpen;
    p.Form1->Picture1.ForeColor = p.Tools.ToolColour;
    ShowTools(p);
    p.Form1->Shape1.Visible = false;
    p.Errors.Ignoring([&] { p.Tools.ToolBookmark = p.Form3->Data1.Records().GetBookmark(); });
}

void ChooseLineTool(Program& p)
{
    ChooseItemTool(p, lineTool);
}

void ChooseBoxTool(Program& p)
{
    ChooseItemTool(p, boxTool);
}

void ChooseTextTool(Program& p)
{
    ChooseItemTool(p, textTool);
}

void ChooseMove(Program& p)
{
    FinishGesture(p);
    SinkTool(p, &Form1::Image2);
    p.Screen.Pointer = MousePointer::Default;
    const int sel = p.Tools.ToolSel;
    if (sel == Tool::None) {
        p.Tools.ToolSel = Tool::ZoneDraw;
        p.Screen.Pointer = MousePointer::Cross;
    } else if (sel == Tool::ZoneDraw || sel == Tool::ZoneFixed) {
        LeaveZone(p);
    } else if (const ItemTool* tool = ItemToolInHand(p); tool && sel != tool->Move) {
        p.Tools.ToolSel = tool->Move;
        RaiseTools(p, {&Form1::Image3, &Form1::Image4, &Form1::Image5});
    }
}

void ChooseDelete(Program& p)
{
    FinishGesture(p);
    SinkTool(p, &Form1::Image5);
    const ItemTool* tool = ItemToolInHand(p);
    if (!tool || p.Tools.ToolSel == tool->Delete)
        return;
    p.Tools.ToolSel = tool->Delete;
    p.Screen.Pointer = MousePointer::Default;
    RaiseTools(p, {&Form1::Image2, &Form1::Image3, &Form1::Image4});
    RaiseOtherItemTools(p, *tool);
}

void ChooseColour(Program& p)
{
    FinishGesture(p);
    SinkTool(p, &Form1::Image3);
    forms::CommonDialog& dialog = p.Form1->CommonDialog1;
    if (const std::optional<Colour> chosen = p.Prompts.PickColour(dialog.Color))
        dialog.Color = *chosen;
    RaiseTool(p, &Form1::Image3);
}

// Whether the dialog's font is bold counts for nothing: no text is ever drawn so.
void ChooseFont(Program& p)
{
    FinishGesture(p);
    SinkTool(p, &Form1::Image4);
    forms::CommonDialog& dialog = p.Form1->CommonDialog1;
    if (const std::optional<TextFont> chosen = p.Prompts.PickFont({dialog.FontName, dialog.FontSize})) {
        dialog.FontName = chosen->Name;
        dialog.FontSize = chosen->Size;
        p.Form1->Picture1.Font = {dialog.FontName, dialog.FontSize};
    }
    RaiseTool(p, &Form1::Image4);
}

} // namespace lineforge
