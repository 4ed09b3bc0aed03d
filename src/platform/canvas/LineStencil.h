#pragma once

#include <QImage>
#include <QLine>

#include <functional>

namespace lineforge
{

// Turns the bits of each pixel over that a line sets, of which all are within `reach` pixels of it, in an image of
// `QImage::Format_RGB32`. `draw` draws the line in white, and nothing else: the image itself serves as the stencil.
void TurnLine(QImage& image, const QLine& line, int reach, QRgb bits, const std::function<void()>& draw);

} // namespace lineforge
