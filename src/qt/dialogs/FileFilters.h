#pragma once

#include <QStringList>

namespace lineforge
{

// The toolkit's filters for a run of "description|pattern|" pairs; several patterns are parted by semicolons.
QStringList ToFileFilters(const QString& filter);

// "mdb" of a run that begins with "DataBase *.mdb|*.mdb|"; empty where the first pattern has no plain ending.
QString FirstEnding(const QString& filter);

} // namespace lineforge
