#pragma once

#include "platform/Controls.h"

namespace lineforge
{

// A caption as it is read aloud: without the mark of its access key.
QString SpokenCaption(const QString& caption);

// What a control without a caption is called: by its tool tip, else by the nearest label left of it, else by the label
// right above it, else by its name.
QString BorrowedName(const Control& control, const Container& container);

} // namespace lineforge
