#pragma once

#include <QImage>

namespace lineforge::forms
{

enum class ToolSymbol { Move, Colour, Font, Delete, Line, Box, Text, Exit };

// The face of a drawing tool's button, 96 by 96 pixels, raised or sunken.
QImage DrawToolFace(ToolSymbol symbol, bool sunken);

} // namespace lineforge::forms
