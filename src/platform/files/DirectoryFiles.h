#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

namespace lineforge
{

// All files of one directory, by their names as they stand on the disk, whatever bytes those are made of. Directories
// in it are left alone. Paths are absolute ones.

// Copies them into another directory, with their content and time; each appears whole or not at all, nothing is
// overwritten, and a file that can't be copied is left out, as are those of the names in `without`. `step` is called at
// least once a megabyte. Whoever needs the copies to be on the disk flushes that (`DiskFlush`).
void CopyFiles(const QString& from, const QString& to, const std::function<void()>& step,
               const QStringList& without = {});

// The same of one file, the bytes of which have been read already.
void CopyReadFile(const QString& from, const QByteArray& bytes, const QString& to);

// Removes them, and the directory when nothing is left in it. A link goes, what it leads to stays, and so does a
// read-only file. Does nothing where any part of the path from `home` down to the directory is a link, or where it
// doesn't lead down from there at all.
void RemoveWithFiles(const QString& directory, const QString& home);

} // namespace lineforge
