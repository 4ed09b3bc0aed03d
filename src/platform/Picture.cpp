#include "platform/Picture.h"

#include "platform/RuntimeError.h"

#include <QImageReader>

namespace lineforge
{

QImage LoadPicture(const FileSystem& files, const QString& path)
{
    if (files.Dir(path).isEmpty())
        throw RuntimeError(ErrorNumber::FileNotFound);
    QImageReader reader(files.Resolve(path));
    reader.setAutoTransform(true);
    // A picture is what its content says, whatever its name ends in.
    reader.setDecideFormatFromContent(true);
    const QImage picture = reader.read();
    if (picture.isNull())
        throw RuntimeError(ErrorNumber::InvalidPicture);
    return picture;
}

} // namespace lineforge
