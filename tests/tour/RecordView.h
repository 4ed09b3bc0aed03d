#pragma once

#include "Tour.h"

namespace lineforge::tour
{

// The record form of the branch with the example's first map.

// By the button of the main window.
ScreenWindow OpenRecords(Tour& tour);
ScreenWindow AwaitRecords(Tour& tour);
ScreenWindow AwaitPaintedRecords(Tour& tour);
// By the button of the record form.
void ReturnToMap(Tour& tour);

QRect OnRecords(Tour& tour, const Control& control);
QImage PictureOnRecords(Tour& tour, const Control& control);

} // namespace lineforge::tour
