#pragma once

#include "platform/base/FixedArray.h"
#include "platform/base/Number.h"
#include "platform/drawing/Surface.h"
#include "platform/store/Recordset.h"

#include <QString>

namespace lineforge
{

// The values of `MapCursorMode`: what the next double click on the map is for.
namespace MapCursor
{
inline constexpr int Normal = 0;
inline constexpr int Mapping = 1;
inline constexpr int Repositioning = 2;
inline constexpr int MovingSubject = 3; // in the drawing tools
} // namespace MapCursor

// `ToolMode` while the drawing tools are open.
inline constexpr int ToolsOpen = 3;

// The drawing tools of the map: which one is in hand, and the gesture that is going on. Twips on the picture.
struct ToolState {
    Integer16 ToolMode;      // 0 normal, 1 lineage view on, 3 graphics tools open
    Integer16 ToolSel;       // the tool in hand, see `ToolSelection`
    Integer16 ToolStep;      // -1 from a completed press to its release, else 0
    Integer16 MapCursorMode; // see `MapCursor`

    // A press has been met whose release is still to come: the second press of a double click isn't told as one.
    bool IsPressed = false;

    Integer16 MoveX; // pointer during a gesture; of a line its far end
    Integer16 MoveY;
    Integer16 LastX; // pointer at the step of the drag before
    Integer16 LastY;
    Integer16 DeltaX; // this step of the drag
    Integer16 DeltaY;

    Integer16 ZoneLeft;
    Integer16 ZoneTop;
    Integer16 ZoneWidth;
    Integer16 ZoneHeight;
    // The rows that the zone carries: what lay in it when it was first moved.
    FixedArray<bool, 0, 199> ZoneTexts;
    FixedArray<bool, 0, 199> ZoneBoxes;
    FixedArray<bool, 0, 199> ZoneLines;

    Integer16 TextIdx; // the text that a press hit
    Integer16 TextMiss;
    Integer16 LineMiss;
    Integer16 ChainTop; // index of the last entry of the map's `LineChain`

    int NewRow = 0;         // of the line or box that is being drawn
    int CountSave = 0;      // of the lines, kept during the drawing of one
    int LineRow = -1;       // of the line drawn last since the map was read; none when negative
    Colour PenSave = Black; // pen and font of the picture, kept during a gesture
    TextFont FontSave;

    Bookmark ToolBookmark;     // where the records stood when the tools were opened
    Colour ToolColour = Black; // of the pen when the tools are opened and closed; nothing ever changes it
};

// How the next double click on the map ties a box to a record.
struct MappingState {
    int MapOption = 0;       // 0 new blank record, 1 existing unmapped record, 2 record of another branch
    QString NewGender;       // "Male" or "Female"; empty until one was first chosen
    Integer16 PictureOption; // 6 select now, 7 leave until later
    QString NewFile;         // the record number of the last mapping
    QString sBranchLetter;
    QString PictureFile; // subject picture of the last mapping
};

} // namespace lineforge
