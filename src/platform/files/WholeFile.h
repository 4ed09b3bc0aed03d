#pragma once

#include <QByteArray>
#include <QString>

class QSaveFile;

namespace lineforge
{

// Puts `bytes` in the place of the file under that very name; what stood there stays whole until the new one is
// complete and on the disk. The errors of `FileSystem::Replace`.
void WriteWholeFile(const QString& file, const QByteArray& bytes);

// The last step of it: a file whose content the disk has taken takes its name.
void PutInPlace(QSaveFile& complete);

} // namespace lineforge
