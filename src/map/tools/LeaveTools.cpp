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
void PutToolsDown(ToolState& tools, PictureBox& picture)
{
    picture.Mode = DrawMode::Copy;
    tools.ToolSel = ToolSelection::None;
    tools.ToolMode = 0;
    tools.ToolStep = 0;
    tools.IsPressed = false;
}

void SaveMap(const ToolWork& work)
{
    work.Map.sLinesText = ListOfLines(work.Map);
    work.Map.sBoxesText = ListOfBoxes(work.Map);
    work.Map.sTextsText = ListOfTexts(work.Map);
    WriteMapFile(work.Map, work.Branch, work.Files);
    RaiseAllTools(*work.Form1);
}

void ReadBackFromLists(const ToolWork& work)
{
    ClearMapPicture(work.Map, *work.Form1);
    ResetMapFont(work.Form1->Picture1);
    EmptyMapArrays(work.Map, work.Mouse, work.Tools);
    ParseWhatIsThere(work);
}

void PutCursorDown(ToolState& tools, Screen& screen)
{
    tools.MapCursorMode = MapCursor::Normal;
    screen.Pointer = MousePointer::Default;
}

// Where that record has been deleted meanwhile, whoever is current stays so; is that nobody, the first becomes it.
void StandOnRecordOfOpening(Recordset& records, const Bookmark& opening)
{
    const Bookmark here = records.HasRow() ? records.GetBookmark() : Bookmark();
    records.SetBookmark(opening);
    if (records.HasRow())
        return;
    if (here)
        records.SetBookmark(here);
    else
        records.MoveFirst();
}

void ReturnToRecord(const ToolWork& work)
{
    if (IsBranchOpen(work.Branch, work.Form3) && !Records(work.Form3).IsEmpty()) {
        work.Errors.Ignoring([&] { StandOnRecordOfOpening(Records(work.Form3), work.Tools.ToolBookmark); });
        MarkCurrentBox(work);
        // KEPT(LeaveToolsAnswerTest.RecordWithoutABox_ShowsTheMarkerWhereItStood): even where no box holds the record
        // and the marker stands wherever it stood.
        // Mended, no marker would show for such a record.
        work.Form1->Shape1.Visible = true;
    }
    PutCursorDown(work.Tools, work.Screen);
}
} // namespace

void LeaveTools(const ToolWork& work)
{
    const bool isAlternate = work.Branch.IsSiblingShown();
    FinishGesture(work);
    // The branch has been left behind the tools for one that can't be opened: there is nothing left to be saved.
    const bool isBranchGone =
        work.Branch.sDbaseName.isEmpty() || (!isAlternate && work.Map.Owner != work.Branch.WorkDir);
    // The tools left to themselves, somebody may be looking at a subject of another branch: the map is the own one's.
    // Where the way back is refused they stay, for the next command to ask.
    if (isAlternate && !isBranchGone)
        ReturnFromSibling(work);
    work.Form1->Picture1.ForeColor = work.Tools.ToolColour;
    HideTools(*work.Form1);
    if (isBranchGone) {
        PutToolsDown(work.Tools, work.Form1->Picture1);
        PutCursorDown(work.Tools, work.Screen);
        return;
    }
    const Answer save = work.Prompts.MsgBox(u"Closing Graphics Tools"_s, u"Save the Tree Graphic changes ?"_s,
                                            Buttons::InformationYesNo);
    work.Screen.Pointer = MousePointer::Hourglass;
    if (save == Answer::Yes)
        SaveMap(work);
    PutToolsDown(work.Tools, work.Form1->Picture1);
    ReadBackFromLists(work);
    ReturnToRecord(work);
}

void LeaveToolsIfOpen(const ToolWork& work)
{
    // Not by their mode: View and Clear take it from them, with what has been drawn still to be saved.
    if (AreToolsShown(*work.Form1))
        LeaveTools(work);
}

void LeaveToolsAtDoor(const ToolWork& work)
{
    if (work.Tools.ToolMode == ToolsOpen)
        LeaveTools(work);
}

void ChooseExit(const ToolWork& work)
{
    work.Screen.Pointer = MousePointer::Hourglass;
    SinkTool(*work.Form1, &forms::Form1::Image8);
    // So that the sunken button is seen before the question.
    work.Loop.DoEvents();
    // Unless a second press that was waiting has closed them meanwhile.
    if (AreToolsShown(*work.Form1))
        LeaveTools(work);
}

void OpenEditingMenu(const ToolWork& work, PictureCache& pictures)
{
    if (work.Tools.ToolSel > ToolSelection::None) {
        // A home without the picture costs the look of the button, not the map.
        work.Errors.Ignoring(
            [&] { work.Form1->Image8.Picture = pictures.Load(work.Files, work.Branch.HomeDir + u"Save-Dwn.bmp"); });
        LeaveTools(work);
    }
    ClearMapCursor(work.Tools, work.Screen);
}

} // namespace lineforge
