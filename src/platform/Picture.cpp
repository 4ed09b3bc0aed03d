#include "platform/Picture.h"

#include "platform/RuntimeError.h"

#include <QFile>
#include <QImageReader>

#include <algorithm>
#include <sys/stat.h>

namespace lineforge
{

namespace
{
QImage ReadPicture(const FileSystem& files, const QString& path, int longestSide)
{
    if (files.Dir(path).isEmpty())
        throw RuntimeError(ErrorNumber::FileNotFound);
    QImageReader reader(files.Resolve(path));
    reader.setAutoTransform(true);
    // A picture is what its content says, whatever its name ends in.
    reader.setDecideFormatFromContent(true);
    // Told beforehand, the size saves the decoder most of its work.
    const QSize size = reader.size();
    if (longestSide > 0 && std::max(size.width(), size.height()) > longestSide)
        reader.setScaledSize(size.scaled(longestSide, longestSide, Qt::KeepAspectRatio).expandedTo({1, 1}));
    const QImage picture = reader.read();
    if (picture.isNull())
        throw RuntimeError(ErrorNumber::InvalidPicture);
    return picture;
}
} // namespace

QImage LoadPicture(const FileSystem& files, const QString& path)
{
    return ReadPicture(files, path, 0);
}

PictureCache::Identity PictureCache::IdentityOf(const QString& path)
{
    constexpr qint64 nanosecondsASecond = 1'000'000'000;
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return {path};
    return {path, status.st_dev, status.st_ino, status.st_mtim.tv_sec * nanosecondsASecond + status.st_mtim.tv_nsec,
            status.st_size};
}

QImage PictureCache::Load(const FileSystem& files, const QString& path)
{
    const Identity file = IdentityOf(files.Resolve(path));
    const auto known = std::ranges::find(kept_, file, &Kept::File);
    if (known != kept_.end() && file.File != 0) {
        std::rotate(kept_.begin(), known, known + 1);
        return kept_.front().Picture;
    }
    const QImage picture = ReadPicture(files, path, LongestSide);
    kept_.push_front({file, picture});
    if (kept_.size() > room)
        kept_.pop_back();
    return picture;
}

} // namespace lineforge
