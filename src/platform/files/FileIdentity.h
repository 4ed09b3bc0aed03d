#pragma once

#include <QString>

#include <sys/types.h>

namespace lineforge
{

// What tells a file from the one that stood under its name before. A copy keeps the time of what it was copied from,
// but is never the same file.
struct FileIdentity {
    QString Path;
    dev_t Device = 0;
    ino_t File = 0; // 0: there is no such file
    qint64 ModifiedNanoseconds = 0;
    qint64 Bytes = 0;
    friend bool operator==(const FileIdentity&, const FileIdentity&) = default;
};

FileIdentity IdentityOf(const QString& path);

size_t qHash(const FileIdentity& file, size_t seed = 0);

} // namespace lineforge
