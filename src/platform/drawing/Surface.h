#pragma once

#include "platform/drawing/Geometry.h"

#include <QColor>
#include <QString>

#include <cstdint>

namespace lineforge
{

// A colour with red in the low byte, then green, then blue.
using Colour = std::uint32_t;

constexpr Colour Rgb(unsigned red, unsigned green, unsigned blue)
{
    return red | green << 8 | blue << 16;
}

inline constexpr Colour Black = Rgb(0, 0, 0);
inline constexpr Colour White = Rgb(255, 255, 255);

// Colour 0 to 15 of the classic console; error 5 for any other number.
Colour QbColor(int number);

// For the toolkit's painters.
QColor ToQColor(Colour colour);

struct TextFont {
    QString Name = QStringLiteral("Arial");
    double Size = 8; // points
    bool Bold = false;
    bool Italic = false;
    friend bool operator==(const TextFont&, const TextFont&) = default;
};

// How a pen meets what is drawn already; the numbers are the platform's.
enum class DrawMode { Xor = 7, NotXor = 10, Copy = 13 };

// What can be drawn on: the map's picture and the printer's page. All lengths in twips.
class Surface
{
public:
    virtual ~Surface() = default;

    virtual void Line(Point from, Point to) = 0;
    // The outline of a rectangle; the inside stays as it is.
    virtual void Box(Rectangle place) = 0;
    // The text with its top left at the current position, which then goes to the start of the next line.
    virtual void Print(const QString& text) = 0;

    virtual int TextWidth(const QString& text) const = 0;
    virtual int TextHeight(const QString& text) const = 0;

    void PrintAt(Point place, const QString& text)
    {
        CurrentX = place.X;
        CurrentY = place.Y;
        Print(text);
    }

    int CurrentX = 0;
    int CurrentY = 0;
    Colour ForeColor = Black;
    TextFont Font;
    DrawMode Mode = DrawMode::Copy;
    int DrawWidth = 1;
};

} // namespace lineforge
