#pragma once

#include "Tour.h"

namespace lineforge::tour
{

// The window that lists the branches of a home.

// Waits until it shows that many; the window and the places of their names.
ScreenWindow AwaitBranchList(Tour& tour, qsizetype branches);
QRect PlaceOfBranch(const Tour& tour, const ScreenWindow& list, qsizetype index);
QPoint PlaceOfButton(const Tour& tour, const ScreenWindow& list, const Button& button);

// File > Open, by mouse.
ScreenWindow OpenBranchList(Tour& tour);

QString TitleOfBranch(const QString& name);

} // namespace lineforge::tour
