#include "platform/Picture.h"

#include "platform/RuntimeError.h"

#include <QFileInfo>
#include <QImageReader>

#include <algorithm>

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

QImage PictureCache::Load(const FileSystem& files, const QString& path)
{
    const QFileInfo file(files.Resolve(path));
    const auto known = std::ranges::find_if(kept_, [&](const Kept& kept) {
        return kept.Path == file.filePath() && kept.Modified == file.lastModified() && kept.Bytes == file.size();
    });
    if (known != kept_.end()) {
        std::rotate(kept_.begin(), known, known + 1);
        return kept_.front().Picture;
    }
    const QImage picture = ReadPicture(files, path, LongestSide);
    kept_.push_front({file.filePath(), file.lastModified(), file.size(), picture});
    if (kept_.size() > room)
        kept_.pop_back();
    return picture;
}

} // namespace lineforge
