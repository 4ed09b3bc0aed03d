#pragma once

#include <QPoint>

namespace lineforge
{

// Where an arrow key points, one pixel far; null for any other key.
QPoint DirectionOf(int key);

// Whether a key presses what has the focus: Space, Enter or Return.
bool IsPressKey(int key);

} // namespace lineforge
