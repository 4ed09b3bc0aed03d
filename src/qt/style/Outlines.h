#pragma once

#include <QColor>

class QPalette;
class QWidget;

namespace lineforge
{

// So much of the first colour, 0 to 1, the rest of the second.
QColor Mixed(const QColor& first, const QColor& second, float share);

// For a line around things: it stands back behind the text, and can be seen on light and on dark desktops alike.
QColor OutlineColour(const QPalette& palette);

// Shows on a widget that it has the keyboard, where its style shows nothing. To be called at the end of its painting.
void PaintFocusMark(QWidget& widget);

} // namespace lineforge
