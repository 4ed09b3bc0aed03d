#pragma once

#include <QString>

#include <sys/resource.h>

namespace lineforge
{

// Faults of the disk that can't be taken back. They are for child processes.

// From here on no file of this process grows beyond the limit; the write is refused, not the process killed.
void LimitFileSize(rlim_t bytes);

// A disk of its own in place of a directory, for this process alone; false where the system doesn't let it.
bool MountSmallDisk(const QString& directory, int bytes);

// All temporary directories of this process are made on a disk of 4 MB from here on, until it is filled. Where no disk
// can be had files are refused to grow instead, with another error and the same outcome.
class SmallDisk
{
public:
    // In place of that directory.
    explicit SmallDisk(const QString& directory);

    // Takes all room that is left.
    void Fill();

    // What the platform says of a write that is refused then.
    QString Refusal(const QString& subject) const;

private:
    QString directory_;
    bool isMounted_;
};

} // namespace lineforge
