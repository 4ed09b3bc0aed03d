#pragma once

#include "platform/Form.h"

namespace lineforge::forms
{

// A text that grows, line by line.
struct Form11 : Form {
    Form11() : Form(u"Form11", {}, {9000, 6000}) {}
};

} // namespace lineforge::forms
