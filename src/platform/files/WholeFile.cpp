#include "platform/files/WholeFile.h"

#include "platform/files/DiskFlush.h"
#include "platform/files/FileRefusal.h"

#include <QSaveFile>

namespace lineforge
{

void WriteWholeFile(const QString& file, const QByteArray& bytes, const QDateTime& time)
{
    RequireReplaceable(file);
    QSaveFile output(file);
    if (!output.open(QFile::WriteOnly) || output.write(bytes) != bytes.size())
        Refuse(output);
    FlushContent(output);
    if (time.isValid())
        output.setFileTime(time, QFileDevice::FileModificationTime);
    PutInPlace(output);
}

void PutInPlace(QSaveFile& complete)
{
    if (!complete.commit())
        Refuse(complete);
    FlushName(complete.fileName());
}

} // namespace lineforge
