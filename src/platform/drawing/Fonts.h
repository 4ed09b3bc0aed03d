#pragma once

#include "platform/drawing/Surface.h"

#include <QFont>
#include <QStringList>

namespace lineforge
{

// The font for a painter that counts in twips.
QFont FontInTwips(const TextFont& font);

// The text as lines no wider than so many pixels of the font: cut at its line breaks, and wherever it would stick out,
// behind a blank if there is one. An empty text is one empty line. Nothing is left out but the breaks.
QStringList LinesOfWidth(const QString& text, const QFont& font, int width);

} // namespace lineforge
