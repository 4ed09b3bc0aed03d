#include "platform/canvas/RunPen.h"

namespace lineforge
{

QRgb PenBits(DrawMode mode, Colour colour)
{
    const QRgb stored = ToQColor(colour).rgb();
    switch (mode) {
    case DrawMode::Xor:
        return stored & RGB_MASK;
    case DrawMode::NotXor:
        return ~stored & RGB_MASK;
    case DrawMode::Copy:
        break;
    }
    return stored;
}

} // namespace lineforge
