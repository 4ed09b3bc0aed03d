#pragma once

#include "platform/files/FileIdentity.h"
#include "platform/files/FileSystem.h"

#include <QImage>

#include <deque>
#include <functional>

namespace lineforge
{

// The dots of the largest picture: more than the finest cameras have. What is larger would take more memory to decode
// than a picture is worth, even where little of it is kept.
inline constexpr qint64 MostDots = 128'000'000;

// The size in dots to which a picture of that size is to be decoded; both upright.
using DecodedSize = std::function<QSize(QSize size)>;

// Decodes a picture file under its absolute path, upright as its camera says, at the size asked for. Error 481 when it
// is none that is photographed, scanned or painted, or larger than one in memory may be. May be called in any thread.
QImage DecodePicture(const QString& file, const DecodedSize& sizeFor);

// A picture file, upright as its camera says. Error 53 when it isn't there, 481 when it is no picture or one larger
// than a picture in memory may be.
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
        FileIdentity File;
        QImage Picture;
    };
    static constexpr std::size_t room = 8;

    std::deque<Kept> kept_; // the last used first
};

} // namespace lineforge
