#pragma once

#include <compare>

namespace lineforge
{

// Lengths on windows, pictures and paper are twips, 1440 to the inch, as whole numbers.
struct Point {
    int X = 0;
    int Y = 0;
    friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
    int Width = 0;
    int Height = 0;
    friend bool operator==(const Size&, const Size&) = default;
};

struct Rectangle {
    int Left = 0;
    int Top = 0;
    int Width = 0;
    int Height = 0;
    friend bool operator==(const Rectangle&, const Rectangle&) = default;
};

} // namespace lineforge
