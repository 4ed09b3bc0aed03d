#pragma once

#include <QImage>

namespace lineforge::forms
{

enum class TransportSymbol { FastForward, Forward, Stop, Back, FastBack };

// The face of a button of the record scanner, 96 by 96 pixels, up or pressed down.
QImage DrawTransportFace(TransportSymbol symbol, bool pressed);

} // namespace lineforge::forms
