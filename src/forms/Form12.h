#pragma once

#include "platform/Form.h"

namespace lineforge::forms
{

// What goes into a GEDCOM file.
struct Form12 : Form {
    Form12() : Form(u"Form12", u"Create GEDCOM file", {9000, 6000}) {}
};

} // namespace lineforge::forms
