#pragma once

#include <QByteArray>
#include <QString>

namespace lineforge
{

// What another program has begun, and the system has cut off in the middle of the file, whose journal stays: the
// change, and the insertion a great many times.
void CutOffChange(const QString& database, const QByteArray& change, const QByteArray& insertion);

} // namespace lineforge
