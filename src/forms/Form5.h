#pragma once

#include "platform/Form.h"

namespace lineforge::forms
{

// The gallery of a record.
struct Form5 : Form {
    Form5() : Form(u"Form5", {}, {11880, 8190}) {}

    Button Command1{*this, u"Command1", {240, 120, 975, 375}, u"Tree"};
    Button Command2{*this, u"Command2", {1320, 120, 975, 375}, u"Records"};

    MultimediaControl MMControl1{*this, u"MMControl1"};
    MultimediaControl MMControl2{*this, u"MMControl2"};
};

} // namespace lineforge::forms
