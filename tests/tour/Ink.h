#pragma once

#include <QColor>
#include <QImage>
#include <QRect>

#include <vector>

// What can be said about drawings and texts by their pixels alone.
namespace lineforge::tour
{

// A stretch of rows or columns that something stands on.
struct Stretch {
    int First = 0;
    int Last = 0;
    int Length() const { return Last - First + 1; }
    int Middle() const { return (First + Last) / 2; }
};

// The rows, or columns, on which anything differs from the commonest colour; gaps of up to `gap` belong to a stretch.
std::vector<Stretch> InkedRows(const QImage& picture, int gap);
std::vector<Stretch> InkedColumns(const QImage& picture, int gap);

bool IsOneColour(const QImage& picture);
int CountColours(const QImage& picture);
int DarkestGrey(const QImage& picture);

// Whether the pixel is that colour, or a drawing of it thinned out over white paper by scaling down.
bool IsTintOf(QRgb pixel, QColor colour);

// How many of the columns hold a tint of the colour, as a share of 1.
double ShareOfTintedColumns(const QImage& picture, QColor colour);

// Whether some letters stand there: enough of nearly black.
bool HoldsBlackLetters(const QImage& picture);

} // namespace lineforge::tour
