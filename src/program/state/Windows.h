#pragma once

#include "platform/controls/Window.h"

namespace lineforge
{

// A routine that is handed a window works with it from its first touch on, which loads it. Whoever works with one
// includes its header.
namespace forms
{
struct Form1;
struct Form2;
struct Form3;
struct Form4;
struct Form5;
struct Form6;
struct Form7;
struct Form8;
struct form9;
struct Form11;
struct Form12;
} // namespace forms

} // namespace lineforge
