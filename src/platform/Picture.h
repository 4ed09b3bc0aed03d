#pragma once

#include "platform/FileSystem.h"

#include <QDateTime>
#include <QImage>

#include <deque>

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
    struct Kept {
        QString Path;
        QDateTime Modified;
        qint64 Bytes;
        QImage Picture;
    };
    static constexpr std::size_t room = 8;

    std::deque<Kept> kept_; // the last used first
};

} // namespace lineforge
