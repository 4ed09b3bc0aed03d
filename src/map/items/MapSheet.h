#pragma once

#include "platform/drawing/Surface.h"
#include "program/state/MapState.h"
#include "program/state/Windows.h"

#include <optional>

namespace lineforge
{

// Where number and forename stand on the picture, from the corner of their box.
inline constexpr Point NumberInBox{100, 0};
inline constexpr Point ForenameInBox{50, 100};

// What the map is drawn on, and how it lies there. The draw routines are given it and ask nobody else.
struct MapSheet {
    // Where the lines of a caption begin, from the corner of their box on the sheet.
    struct CaptionLines {
        Point Number;
        Point Forename;
        Point NumberAlone;              // where no forename follows
        std::optional<Point> BirthYear; // only where it has a place
    };

    // Downwards, without a detour over fractions.
    struct Ratio {
        int Times = 1;
        int By = 1;
    };

    // Where a place of the map lies.
    Point At(Point place) const;
    // How far something reaches down that does so on the map.
    int Down(int twips) const { return twips * Stretch.Times / Stretch.By; }

    Surface& On;
    CaptionLines Caption;
    int ToTheRight = 0; // twips
    Ratio Stretch = {};
    std::optional<int> Pen = std::nullopt;                 // the width of boxes and lines; else the surface's own
    std::optional<TextFont> InsteadOfArial = std::nullopt; // for texts in Arial; else their own
    std::optional<TextFont> CaptionFont = std::nullopt;    // else the surface's own
    TextFont PictureFont = {};                             // the picture gets it behind a text, if its own isn't Arial
    MapState::CaptionTexts* Printed = nullptr;             // keeps what is printed into boxes, to be wiped some day
};

// The picture of the main window, twip for twip.
MapSheet MapOnScreen(MapState& map, forms::Form1& form);

// The printer's page: 1200 twips to the right, and 1.8 times as far down, with a broad pen, an Arial text in the
// printer's own small Courier, and years of birth in the boxes.
MapSheet MapOnPaper(Surface& page);

} // namespace lineforge
