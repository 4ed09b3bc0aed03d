#pragma once

#include "qt/style/Scale.h"

#include <QSize>

class QScreen;
class QWidget;
class QWindow;

namespace lineforge
{

// Whether the desktop alone says where windows stand and which is before which, and tells nobody what is free.
bool DesktopArrangesWindows();

// How large the inside of a window is that takes all that such a desktop leaves free.
QSize GrantedRoom();

// The same, from what the desktop has answered to a window that nobody sees, and the size of the screen. Some desktops
// say how large it is only when there is something to be seen: there it is guessed.
QSize RoomFor(QSize answer, QSize screen);

// How large a window may be on a screen on which others and the desktop's panel have their place.
QSize RoomOn(const QScreen& screen);

// The scale at which a window with a client area of that size and its menu bar fit into such a room. The bare strip
// below the lowest control may be cut off: panels that are a little higher than others should make nothing smaller.
Scale ScaleForRoom(Size client, QSize room, double dots = 1);

// Brings a window that is on the screen before the others.
void BringToFront(QWindow& window);

// Puts a window on the screen, also one that is minimised there.
void ShowRestored(QWidget& window);

// The same, before the others.
void ShowInFront(QWidget& window);

} // namespace lineforge
