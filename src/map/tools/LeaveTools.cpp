#include "map/tools/LeaveTools.h"

#include "forms/Form1.h"
#include "map/items/CurrentBox.h"
#include "map/items/MapFile.h"
#include "map/items/MapItems.h"
#include "map/items/MapParse.h"
#include "map/tools/MapMouse.h"
#include "map/tools/ToolImages.h"
#include "map/tools/ToolSelection.h"
#include "program/branch/SiblingBranch.h"
#include "program/branch/WorkDatabase.h"
#include "program/ui/BranchUi.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
void PutToolsDown(Program& p)
{
    p.Form1->Picture1.Mode = DrawMode::Copy;
    p.Tools.ToolSel = ToolSelection::None;
    p.Tools.ToolMode = 0;
    p.Tools.ToolStep = 0;
    p.Tools.IsPressed = false;
}

void SaveMap(Program& p)
{
    p.Map.sLinesText = ListOfLines(p.Map);
    p.Map.sBoxesText = ListOfBoxes(p.Map);
    p.Map.sTextsText = ListOfTexts(p.Map);
    WriteMapFile(p);
    RaiseAllTools(p);
}

void ReadBackFromLists(Program& p)
{
    ClearMapPicture(p);
    ResetMapFont(p.Form1->Picture1);
    EmptyMapArrays(p);
    ParseWhatIsThere(p);
}

void PutCursorDown(Program& p)
{
    p.Tools.MapCursorMode = MapCursor::Normal;
    p.Screen.Pointer = MousePointer::Default;
}

// Where that record has been deleted meanwhile, whoever is current stays so; is that nobody, the first becomes it.
void StandOnRecordOfOpening(Program& p)
{
    Recordset& records = Records(p.Form3);
    const Bookmark here = records.HasRow() ? records.GetBookmark() : Bookmark();
    records.SetBookmark(p.Tools.ToolBookmark);
    if (records.HasRow())
        return;
    if (here)
        records.SetBookmark(here);
    else
        records.MoveFirst();
}

void ReturnToRecord(Program& p)
{
    if (IsBranchOpen(p.Branch, p.Form3) && !Records(p.Form3).IsEmpty()) {
        p.Errors.Ignoring([&] { StandOnRecordOfOpening(p); });
        MarkCurrentBox(p);
        // KEPT(LeaveToolsAnswerTest.RecordWithoutABox_ShowsTheMarkerWhereItStood): even where no box holds the record
        // and the marker stands wherever it stood.
        // Mended, no marker would show for such a record.
        p.Form1->Shape1.Visible = true;
    }
    PutCursorDown(p);
}
} // namespace

void LeaveTools(Program& p)
{
    const bool isAlternate = p.Branch.IsSiblingShown();
    FinishGesture(p);
    // The branch has been left behind the tools for one that can't be opened: there is nothing left to be saved.
    const bool isBranchGone = p.Branch.sDbaseName.isEmpty() || (!isAlternate && p.Map.Owner != p.Branch.WorkDir);
    // The tools left to themselves, somebody may be looking at a subject of another branch: the map is the own one's.
    // Where the way back is refused they stay, for the next command to ask.
    if (isAlternate && !isBranchGone)
        ReturnFromSibling(p);
    p.Form1->Picture1.ForeColor = p.Tools.ToolColour;
    HideTools(p);
    if (isBranchGone) {
        PutToolsDown(p);
        PutCursorDown(p);
        return;
    }
    const Answer save =
        p.Prompts.MsgBox(u"Closing Graphics Tools"_s, u"Save the Tree Graphic changes ?"_s, Buttons::InformationYesNo);
    p.Screen.Pointer = MousePointer::Hourglass;
    if (save == Answer::Yes)
        SaveMap(p);
    PutToolsDown(p);
    ReadBackFromLists(p);
    ReturnToRecord(p);
}

void LeaveToolsIfOpen(Program& p)
{
    // Not by their mode: View and Clear take it from them, with what has been drawn still to be saved.
    if (AreToolsShown(p))
        LeaveTools(p);
}

void LeaveToolsAtDoor(Program& p)
{
    if (p.Tools.ToolMode == ToolsOpen)
        LeaveTools(p);
}

void ChooseExit(Program& p)
{
    p.Screen.Pointer = MousePointer::Hourglass;
    SinkTool(p, &forms::Form1::Image8);
    // So that the sunken button is seen before the question.
    p.Loop.DoEvents();
    // Unless a second press that was waiting has closed them meanwhile.
    if (AreToolsShown(p))
        LeaveTools(p);
}

void OpenEditingMenu(Program& p)
{
    if (p.Tools.ToolSel > ToolSelection::None) {
        // A home without the picture costs the look of the button, not the map.
        p.Errors.Ignoring(
            [&] { p.Form1->Image8.Picture = p.Pictures.Load(p.Files, p.Branch.HomeDir + u"Save-Dwn.bmp"); });
        LeaveTools(p);
    }
    ClearMapCursor(p.Tools, p.Screen);
}

} // namespace lineforge
