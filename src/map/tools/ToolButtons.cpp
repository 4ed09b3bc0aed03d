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

const ItemTool* ItemToolInHand(const ToolState& tools)
{
    const auto* tool = std::ranges::find_if(itemTools, [&](const ItemTool& t) { return t.IsInHand(tools.ToolSel); });
    return tool == std::end(itemTools) ? nullptr : tool;
}

void RaiseTools(Form1& form, std::initializer_list<Image Form1::*> buttons)
{
    for (Image Form1::*button : buttons)
        RaiseTool(form, button);
}

void RaiseOtherItemTools(Form1& form, const ItemTool& tool)
{
    for (const ItemTool& other : itemTools)
        if (other.Button != tool.Button)
            RaiseTool(form, other.Button);
}

void ChooseItemTool(const ToolWork& work, const ItemTool& tool)
{
    FinishGesture(work);
    const bool goesOn = !tool.IsInHand(work.Tools.ToolSel);
    work.Tools.ToolSel = goesOn ? tool.Draw : Tool::None;
    work.Tools.ToolStep = 0;
    work.Form1->Shape3.Visible = false;
    if (goesOn)
        SinkTool(*work.Form1, tool.Button);
    else
        RaiseTool(*work.Form1, tool.Button);
    work.Screen.Pointer = goesOn ? MousePointer::Cross : MousePointer::Default;
    RaiseTools(*work.Form1, {&Form1::Image2, &Form1::Image3, &Form1::Image4, &Form1::Image5});
    RaiseOtherItemTools(*work.Form1, tool);
}

void LeaveZone(ToolState& tools, Form1& form)
{
    tools.ToolSel = Tool::None;
    form.Shape3.Visible = false;
    RaiseTool(form, &Form1::Image2);
}
} // namespace

void OpenTools(const ToolWork& work)
{
    if (TellIfAlternate(work.Branch, work.Prompts, u"Using Alternate Tree Branch."_s,
                        u"Cannot Change Tree Map until local Tree Branch\nRecord is Selected."_s))
        return;
    // Neither can the map of no branch: after a New that was given up none is in memory, though one is open.
    if (!IsBranchOpen(work.Branch, work.Form3) || work.Map.Owner != work.Branch.WorkDir) {
        work.Prompts.MsgBox(u"DataBase not Opened"_s,
                            u"Cannot Change Tree Map until database\nfile is Opened or begins from New"_s,
                            Buttons::Information);
        return;
    }
    work.Tools.ToolMode = ToolsOpen;
    work.Form1->Picture1.ForeColor = work.Tools.ToolColour;
    ShowTools(*work.Form1);
    work.Form1->Shape1.Visible = false;
    work.Errors.Ignoring([&] { work.Tools.ToolBookmark = work.Form3->Data1.Records().GetBookmark(); });
}

void ChooseLineTool(const ToolWork& work)
{
    ChooseItemTool(work, lineTool);
}

void ChooseBoxTool(const ToolWork& work)
{
    ChooseItemTool(work, boxTool);
}

void ChooseTextTool(const ToolWork& work)
{
    ChooseItemTool(work, textTool);
}

void ChooseMove(const ToolWork& work)
{
    FinishGesture(work);
    SinkTool(*work.Form1, &Form1::Image2);
    work.Screen.Pointer = MousePointer::Default;
    const int sel = work.Tools.ToolSel;
    if (sel == Tool::None) {
        work.Tools.ToolSel = Tool::ZoneDraw;
        work.Screen.Pointer = MousePointer::Cross;
    } else if (sel == Tool::ZoneDraw || sel == Tool::ZoneFixed) {
        LeaveZone(work.Tools, *work.Form1);
    } else if (const ItemTool* tool = ItemToolInHand(work.Tools); tool && sel != tool->Move) {
        work.Tools.ToolSel = tool->Move;
        RaiseTools(*work.Form1, {&Form1::Image3, &Form1::Image4, &Form1::Image5});
    }
}

void ChooseDelete(const ToolWork& work)
{
    FinishGesture(work);
    SinkTool(*work.Form1, &Form1::Image5);
    const ItemTool* tool = ItemToolInHand(work.Tools);
    if (!tool || work.Tools.ToolSel == tool->Delete)
        return;
    work.Tools.ToolSel = tool->Delete;
    work.Screen.Pointer = MousePointer::Default;
    RaiseTools(*work.Form1, {&Form1::Image2, &Form1::Image3, &Form1::Image4});
    RaiseOtherItemTools(*work.Form1, *tool);
}

void ChooseColour(const ToolWork& work)
{
    FinishGesture(work);
    SinkTool(*work.Form1, &Form1::Image3);
    forms::CommonDialog& dialog = work.Form1->CommonDialog1;
    if (const std::optional<Colour> chosen = work.Prompts.PickColour(dialog.Color))
        dialog.Color = *chosen;
    RaiseTool(*work.Form1, &Form1::Image3);
}

// Whether the dialog's font is bold counts for nothing: no text is ever drawn so.
void ChooseFont(const ToolWork& work)
{
    FinishGesture(work);
    SinkTool(*work.Form1, &Form1::Image4);
    forms::CommonDialog& dialog = work.Form1->CommonDialog1;
    if (const std::optional<TextFont> chosen = work.Prompts.PickFont({dialog.FontName, dialog.FontSize})) {
        dialog.FontName = chosen->Name;
        dialog.FontSize = chosen->Size;
        work.Form1->Picture1.Font = {dialog.FontName, dialog.FontSize};
    }
    RaiseTool(*work.Form1, &Form1::Image4);
}

} // namespace lineforge
