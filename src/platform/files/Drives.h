#pragma once

#include <QStringList>

namespace lineforge
{

// The places from which a user looks for a directory: the root, the user's own directory, and the volumes that are
// mounted for users, in this order and each once.
QStringList Drives();

// The one of them that a path stands on.
QString DriveOf(const QString& path, const QStringList& drives);

} // namespace lineforge
