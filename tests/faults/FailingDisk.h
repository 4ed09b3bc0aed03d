#pragma once

#include <QString>

namespace lineforge
{

enum class Fault { OneTime, FromThatOn };

// What the disk refuses.
enum class Refused {
    Content, // what is written or copied, and what is to be flushed: it is full, or fails
    Halves,  // the second half of what is written or copied, which is no fault: whoever writes goes on with the rest
    Names,   // to open a file for writing or to make it, to cut, to rename or to remove one, to make or remove a
             // directory: it can only be read
};

// As long as it lives the disk refuses this process that for the time of that number, counted from 1, or for that and
// all that follow, below one directory. One at a time.
class FailingDisk
{
public:
    FailingDisk(const QString& directory, int number, Fault fault, Refused refused = Refused::Content);
    ~FailingDisk();
    FailingDisk(const FailingDisk&) = delete;
    FailingDisk& operator=(const FailingDisk&) = delete;

    // Whether there have been so many times.
    bool HasBegun() const;
};

} // namespace lineforge
