#pragma once

#include <QStringView>

namespace lineforge
{

// Whether a reader sees nothing where this text stands: it is empty, or has nothing but blanks of all kinds, characters
// that steer others or are ignored, and marks without a letter to stand on.
bool ShowsNothing(QStringView text);

} // namespace lineforge
