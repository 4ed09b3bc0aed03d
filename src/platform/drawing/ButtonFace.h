#pragma once

#include <QImage>

#include <functional>

class QColor;
class QPainter;

namespace lineforge
{

inline constexpr int ButtonFaceSide = 96; // pixels

// Paints the symbol of a button in that ink, on a square of `ButtonFaceSide`.
using SymbolPainter = std::function<void(QPainter& painter, const QColor& ink)>;

// A button's face with rounded corners, transparent around them; up or pressed down.
QImage DrawButtonFace(bool pressed, const SymbolPainter& paintSymbol);

} // namespace lineforge
