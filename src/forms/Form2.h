#pragma once

#include "platform/controls/Form.h"

namespace lineforge::forms
{

// A picture on its own.
struct Form2 : Form {
    Form2() : Form(u"Form2", {}, {7500, 6000}) { Image1.SpokenName = QStringLiteral("Enlarged subject picture"); }

    MenuItem mnuPrin{Menus, u"mnuPrin", u"&Print"};
    MenuItem mnuPrSetup{mnuPrin, u"mnuPrSetup", u"Printer &Setup"};
    MenuItem mnuPrint{mnuPrin, u"mnuPrint", u"&Print"};

    Image Image1{*this, u"Image1", {150, 150, 7200, 5700}}; // the picture
};

} // namespace lineforge::forms
