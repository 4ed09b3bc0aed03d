#include "platform/drawing/PictureFile.h"

#include "platform/base/RuntimeError.h"
#include "platform/drawing/DotColours.h"

#include <QFileInfo>
#include <QImageReader>

#include <algorithm>

namespace lineforge
{

namespace
{
constexpr int bytesADot = 4;
constexpr qint64 mostBytes = 1 << 30; // of a file

// Drawings in a script, a few lines of which may keep the toolkit's readers busy for ever.
constexpr QByteArrayView scripts[] = {"svg", "svgz", "pdf", "ps", "eps", "epsf", "epsi"};

// The toolkit's own limit is lower, and holds for some formats only.
void AllowLargestPicture()
{
    constexpr int megabyte = 1 << 20;
    [[maybe_unused]] static const bool isAllowed =
        (QImageReader::setAllocationLimit(static_cast<int>(MostDots * bytesADot / megabyte) + 1), true);
}

QSize WholeSize(QSize size)
{
    return size;
}

QSize FittedSize(QSize size)
{
    constexpr int longest = PictureCache::LongestSide;
    if (std::max(size.width(), size.height()) <= longest)
        return size;
    return size.scaled(longest, longest, Qt::KeepAspectRatio).expandedTo({1, 1});
}

QString Require(const FileSystem& files, const QString& path)
{
    if (files.Dir(path).isEmpty())
        throw RuntimeError(ErrorNumber::FileNotFound, files.Resolve(path));
    return files.Resolve(path);
}
} // namespace

QImage DecodePicture(const QString& file, const DecodedSize& sizeFor)
{
    AllowLargestPicture();
    if (QFileInfo(file).size() > mostBytes)
        throw RuntimeError(ErrorNumber::InvalidPicture, file);
    QImageReader reader(file);
    reader.setAutoTransform(true);
    // A picture is what its content says, whatever its name ends in.
    reader.setDecideFormatFromContent(true);
    // Before anything else is asked, which a reader may answer by reading all of it.
    if (std::ranges::find(scripts, QByteArrayView(reader.format())) != std::end(scripts))
        throw RuntimeError(ErrorNumber::InvalidPicture, file);
    const QSize stored = reader.size();
    if (qint64{stored.width()} * stored.height() > MostDots)
        throw RuntimeError(ErrorNumber::InvalidPicture, file);
    // Told beforehand, the size saves the decoder most of its work. It is that of the picture as it is stored.
    const bool liesOnItsSide = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    const auto turned = [liesOnItsSide](QSize size) { return liesOnItsSide ? size.transposed() : size; };
    if (const QSize wanted = turned(sizeFor(turned(stored))); stored.isValid() && wanted != stored)
        reader.setScaledSize(wanted);
    const QImage picture = reader.read();
    if (picture.isNull())
        throw RuntimeError(ErrorNumber::InvalidPicture, file);
    return WithDotColours(picture);
}

QImage LoadPicture(const FileSystem& files, const QString& path)
{
    return DecodePicture(Require(files, path), WholeSize);
}

QImage PictureCache::Load(const FileSystem& files, const QString& path)
{
    const FileIdentity file = IdentityOf(files.Resolve(path));
    const auto known = std::ranges::find(kept_, file, &Kept::File);
    if (known != kept_.end() && file.File != 0) {
        std::rotate(kept_.begin(), known, known + 1);
        return kept_.front().Picture;
    }
    const QImage picture = DecodePicture(Require(files, path), FittedSize);
    kept_.push_front({file, picture});
    if (kept_.size() > room)
        kept_.pop_back();
    return picture;
}

} // namespace lineforge
