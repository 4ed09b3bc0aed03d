#pragma once

#include "platform/base/Number.h"

#include <QString>

namespace lineforge
{

// What the mouse did on the map; twips on the picture.
struct MapMouseState {
    Integer16 DownX;
    Integer16 DownY;
    Integer16 BoxX; // position of the box at hand
    Integer16 BoxY;
    Integer16 BoxLeft;
    Integer16 BoxTop;
    Integer16 BoxIdx; // the box that a press hit
    Integer16 BoxMiss;
    QString sCoords;
};

} // namespace lineforge
