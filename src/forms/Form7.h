#pragma once

#include "platform/Form.h"

namespace lineforge::forms
{

// How a box is tied to a record.
struct Form7 : Form {
    Form7() : Form(u"Form7", u"Subject  Mapping Options", {6000, 4500}) {}
};

} // namespace lineforge::forms
