#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace lineforge::packaging
{

// All files below a directory, hidden ones too, by their way from it; sorted.
QStringList FilesBelow(const QString& directory);
// The same for the directories.
QStringList DirectoriesBelow(const QString& directory);

// All bytes of a file; "(missing)" when it can't be read.
QByteArray Contents(const QString& path);
// Makes or replaces a file, and its directory where there is none.
void Write(const QString& path, const QByteArray& bytes);

} // namespace lineforge::packaging
