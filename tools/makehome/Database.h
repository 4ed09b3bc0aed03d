#pragma once

#include "Records.h"

#include <QList>
#include <QString>

namespace lineforge::makehome
{

// Both replace a database that stands at the path already.
void CreateDatabase(const QString& schemaPath, const QString& path);
void CreateDatabase(const QString& schemaPath, const QString& path, const QList<Record>& records);

} // namespace lineforge::makehome
