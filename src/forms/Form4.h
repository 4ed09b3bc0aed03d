#pragma once

#include "platform/Form.h"

namespace lineforge::forms
{

// Where a branch is exported to.
struct Form4 : Form {
    Form4() : Form(u"Form4", u"Select  Export Drive & Directory", {5400, 4800}) {}
};

} // namespace lineforge::forms
