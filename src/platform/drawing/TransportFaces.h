#pragma once

#include <QImage>

namespace lineforge
{

enum class TransportSymbol { FastForward, Forward, Stop, Back, FastBack, ToStart, Pause, Step };

// The face of a button of the record scanner or of a player, 96 by 96 pixels, up or pressed down.
QImage DrawTransportFace(TransportSymbol symbol, bool pressed);

} // namespace lineforge
