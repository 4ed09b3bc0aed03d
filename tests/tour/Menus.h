#pragma once

#include "Tour.h"

namespace lineforge::tour
{

// The main window's menus, by mouse: a menu in the bar, and an entry in a menu that lies open. Their places are seen on
// the screen; nothing but their order is known beforehand.
QRect PlaceInMenuBar(Tour& tour, const MenuItem& menu);
ScreenWindow OpenMenu(Tour& tour, const MenuItem& menu);
QRect PlaceInMenu(Tour& tour, const ScreenWindow& popup, const MenuItem& menu, const MenuItem& entry);

// Opens the menu and clicks the entry; the menu is gone afterwards.
void Choose(Tour& tour, const MenuItem& menu, const MenuItem& entry);

// The same for an entry of a menu that opens out of an entry.
void Choose(Tour& tour, const MenuItem& menu, const MenuItem& submenu, const MenuItem& entry);

// Opens a menu by Alt and its key, and from there, each by its key, the menus that it leads to.
void OpenMenusByKeys(Tour& tour, const QString& keys);

// Waits for a menu that something else has opened.
ScreenWindow AwaitMenu(Tour& tour, const MenuItem& menu);

} // namespace lineforge::tour
