#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

class QSaveFile;

namespace lineforge
{

// Puts `bytes` in the place of the file under that very name; what stood there stays whole until the new one is
// complete and on the disk. A copy has the time of its source. The errors of `FileSystem::Replace`.
void WriteWholeFile(const QString& file, const QByteArray& bytes, const QDateTime& time = {});

// The last step of it: a file whose content the disk has taken takes its name.
void PutInPlace(QSaveFile& complete);

} // namespace lineforge
