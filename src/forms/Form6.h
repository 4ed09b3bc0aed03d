#pragma once

#include "platform/Form.h"

namespace lineforge::forms
{

// The comparison of two branches: the current one on the left, the other on the right.
struct Form6 : Form {
    Form6() : Form(u"Form6", u"Comparison of Databases", {11880, 8190}) {}

    Label Label1{*this, u"Label1", {240, 240, 1980, 285}, u"Current Tree Branch:"};
    Label Label2{*this, u"Label2", {2280, 240, 3480, 285}};
};

} // namespace lineforge::forms
