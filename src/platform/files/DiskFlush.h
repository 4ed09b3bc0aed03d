#pragma once

#include <QFileDevice>
#include <QString>

namespace lineforge
{

// From then on a power cut takes back neither what has been written to the file, nor that it stands under its name. The
// errors of `NumberOfFailure` when the disk refuses.
void FlushContent(QFileDevice& file);
void FlushName(const QString& path);

// The same of everything that has been written to the disk on which that directory stands: of many files at once, which
// one after the other would take many times as long.
void FlushDisk(const QString& directory);

} // namespace lineforge
