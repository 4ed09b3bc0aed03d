#pragma once

#include <QString>

namespace lineforge
{

enum class Fault { OneWrite, FromThatOn };

// As long as it lives the disk refuses this process the write of that number, counted from 1, or that one and all that
// follow, to files below one directory: content that is written or copied, and what is to be flushed. One at a time.
class FailingWrites
{
public:
    FailingWrites(const QString& directory, int number, Fault fault);
    ~FailingWrites();
    FailingWrites(const FailingWrites&) = delete;
    FailingWrites& operator=(const FailingWrites&) = delete;

    // Whether there have been so many writes.
    bool HaveBegun() const;
};

} // namespace lineforge
