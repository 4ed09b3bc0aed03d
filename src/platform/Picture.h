#pragma once

#include "platform/FileSystem.h"

#include <QImage>

#include <deque>
#include <sys/types.h>

namespace lineforge
{

// A picture file, upright as its camera says. Error 53 when it isn't there, 481 when it is no picture or one larger
// than the toolkit's limit for a picture in memory.
QImage LoadPicture(const FileSystem& files, const QString& path);

// The same, no larger than `LongestSide` pixels either way, and the last few kept, so that leafing through pictures
// from a camera costs no more than the first showing of each. A file that has changed is read again.
class PictureCache
{
public:
    static constexpr int LongestSide = 1280;

    QImage Load(const FileSystem& files, const QString& path);

private:
    // What tells a file from the one that stood under its name before. A copy keeps the time of what it was copied
    // from, but is never the same file.
    struct Identity {
        QString Path;
        dev_t Device = 0;
        ino_t File = 0;
        qint64 ModifiedNanoseconds = 0;
        qint64 Bytes = 0;
        friend bool operator==(const Identity&, const Identity&) = default;
    };
    struct Kept {
        Identity File;
        QImage Picture;
    };
    static Identity IdentityOf(const QString& path);
    static constexpr std::size_t room = 8;

    std::deque<Kept> kept_; // the last used first
};

} // namespace lineforge
