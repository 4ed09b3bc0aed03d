#pragma once

#include <QImage>

namespace lineforge::makehome
{

inline constexpr QSize drawingSize(400, 300);

QImage CastleDrawing();
QImage ShieldDrawing();
QImage IslandDrawing();
QImage CrownDrawing();
QImage RingsDrawing();

} // namespace lineforge::makehome
