#pragma once

#include "platform/drawing/Surface.h"

#include <QFont>
#include <QStringList>

namespace lineforge
{

// In dots, of which a point has so many: one at least, and for sizes beyond all measure as many as can be painted with.
int LetterHeight(const TextFont& font, double dotsAPoint);

// The font for a painter that counts in twips.
QFont FontInTwips(const TextFont& font);

// The text as lines no wider than so many pixels of the font: cut at its line breaks, and wherever it would stick out,
// behind a blank if there is one. An empty text is one empty line. Nothing is left out but the breaks.
QStringList LinesOfWidth(const QString& text, const QFont& font, int width);

} // namespace lineforge
