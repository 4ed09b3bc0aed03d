#pragma once

#include "platform/controls/Form.h"
#include "platform/controls/TextPanel.h"

namespace lineforge::forms
{

// The report of a converted GEDCOM file as it comes. The panel grows below the window's lower edge.
struct Form11 : Form {
    Form11() : Form(u"Form11", {}, {9000, 6400}) {}

    TextPanel Picture1{*this, u"Picture1", {0, 0, 8700, 6400}};                 // the report
    ScrollBar VScroll1{*this, u"VScroll1", {8730, 0, 255, 6400}, 0, 100, 1500}; // moves it
};

} // namespace lineforge::forms
