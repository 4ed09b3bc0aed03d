#pragma once

#include <QStringList>

namespace lineforge
{

// The toolkit's filters for a run of "description|pattern|" pairs; several patterns are parted by semicolons.
QStringList ToFileFilters(const QString& filter);

} // namespace lineforge
