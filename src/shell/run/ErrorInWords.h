#pragma once

#include "platform/base/RuntimeError.h"

#include <QString>

namespace lineforge
{

// The box for an error that nothing has met: the platform's own text, and beneath it, where the error knows what it
// was refused for, the same in plain words with that file, record or value.
QString FatalText(const RuntimeError& error);

} // namespace lineforge
