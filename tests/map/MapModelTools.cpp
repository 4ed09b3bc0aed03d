#include "map/MapModelCells.h"

#include <algorithm>

// The drawing tools of the model.
namespace lineforge
{

using namespace Qt::StringLiterals;

void MapModel::Raise(const std::vector<int>& images)
{
    for (const int image : images)
        Sunken[image] = false;
}

void MapModel::OpenTools()
{
    if (UsingAlternate) {
        Tell(u"Using Alternate Tree Branch."_s,
             u"Cannot Change Tree Map until local Tree Branch\nRecord is Selected."_s);
        return;
    }
    ToolMode = 3;
    Pen = 0;
    Raise({2, 3, 4, 5, 6, 7, 8, 9});
    AreImagesShown = true;
    IsMarkerShown = false;
    if (HasRow())
        AtOpening = Cursor;
}

// The tools of one kind of item lie 10 apart: to draw, to move, to delete.
void MapModel::ChooseItem(int image, int draw)
{
    const bool goesOff = ToolSel == draw || ToolSel == draw + 10 || ToolSel == draw + 20;
    ToolSel = goesOff ? 0 : draw;
    ToolStep = 0;
    Pointer = goesOff ? 0 : 2;
    Raise({2, 3, 4, 5, 6, 7, 9});
    Sunken[image] = !goesOff;
    IsZoneShown = false;
}

void MapModel::ChooseMove()
{
    Sunken[2] = true;
    Pointer = 0;
    if (ToolSel == 0) {
        ToolSel = 1;
        Pointer = 2;
    } else if (ToolSel == 1 || ToolSel == 3) {
        ToolSel = 0;
        IsZoneShown = false;
        Sunken[2] = false;
    } else if (ToolSel / 10 == 0 && ToolSel >= 7) {
        ToolSel += 10;
        Raise({3, 4, 5});
    } else if (ToolSel / 10 == 2) {
        ToolSel -= 10;
        Raise({3, 4, 5});
    }
}

void MapModel::ChooseDelete()
{
    Sunken[5] = true;
    const bool isItem = ToolSel >= 7 && ToolSel / 10 <= 1;
    if (!isItem)
        return;
    const int kind = ToolSel % 10;
    ToolSel = 20 + kind;
    Pointer = 0;
    Raise({2, 3, 4});
    for (const auto& [image, ofKind] : {std::pair{6, 7}, std::pair{7, 8}, std::pair{9, 9}})
        if (ofKind != kind)
            Sunken[image] = false;
}

void MapModel::PressImage(int image)
{
    if (image == 8) {
        Pointer = 11;
        Sunken[8] = true;
        LeaveTools();
        return;
    }
    FinishGesture();
    switch (image) {
    case 2:
        ChooseMove();
        break;
    case 3:
        Sunken[3] = false;
        DialogColour = Next.ChosenColour.value_or(DialogColour);
        break;
    case 4:
        Sunken[4] = false;
        PenFont = Next.ChosenFont.value_or(PenFont);
        break;
    case 5:
        ChooseDelete();
        break;
    default:
        ChooseItem(image, image == 6 ? 7 : image == 7 ? 8 : 9);
    }
}

void MapModel::OpenTreeMenu()
{
    if (ToolSel > 0)
        LeaveTools();
    ClearCursor();
}

void MapModel::PressView()
{
    ToolMode = 1;
    if (Table().empty()) {
        Tell(u"Database Empty"_s, u"The Database has no records to access"_s);
        return;
    }
    KeepPosition();
    Cursor = static_cast<int>(Table().size());
    ComeBack();
}

void MapModel::PressClear()
{
    ToolMode = 0;
}

void MapModel::LeaveTools()
{
    FinishGesture();
    AreImagesShown = false;
    IsZoneShown = false;
    if (UsingAlternate)
        ReturnToOwnBranch();
    Tell(u"Closing Graphics Tools"_s, u"Save the Tree Graphic changes ?"_s);
    if (Next.Saves) {
        LinesList = ListOfLines();
        BoxesList = ListOfBoxes();
        TextsList = ListOfTexts();
        WriteFile();
        Raise({2, 3, 4, 5, 6, 7, 8, 9});
    }
    ToolSel = 0;
    ToolMode = 0;
    ToolStep = 0;
    Mode = 13;
    EraseItems();
    PenFont = {};
    ParseBoxes();
    ParseLines();
    ParseTexts();
    PaintOnBlankPaper(Promise::Opened);
    if (!Table().empty()) {
        if (AtOpening)
            Cursor = *AtOpening;
        MarkCurrentBox();
        IsMarkerShown = true;
    }
    CursorMode = 0;
    Pointer = 0;
}

void MapModel::ClearCursor()
{
    if (CursorMode != 1 && CursorMode != 2)
        return;
    Pointer = 0;
    CursorMode = 0;
}

} // namespace lineforge
