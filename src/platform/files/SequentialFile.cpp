#include "platform/files/SequentialFile.h"

#include "platform/base/RuntimeError.h"
#include "platform/files/DiskFlush.h"
#include "platform/files/FileRefusal.h"

#include <QFileInfo>

namespace lineforge
{

namespace
{
// Unlike a replacement this leaves the directory as it is where the file stands already.
void RequireOpenable(const QString& path)
{
    const QFileInfo standing(path);
    if (!standing.exists())
        RequireWritableParent(path);
    else if (standing.isDir() || !OwnerCanWrite(path))
        Refuse(ErrorNumber::PathFileAccess, path);
}
} // namespace

SequentialFile::SequentialFile(const FileSystem& files, const QString& path) : file_(files.Resolve(path))
{
    RequireOpenable(file_.fileName());
    if (!file_.open(QFile::WriteOnly | QFile::Truncate))
        Refuse(file_);
}

void SequentialFile::Line(QStringView text)
{
    const QByteArray bytes = utf8_.encode(text);
    ByteLine(bytes);
}

void SequentialFile::ByteLine(QByteArrayView bytes)
{
    Write(bytes);
    Write("\r\n");
}

void SequentialFile::Write(QByteArrayView bytes)
{
    if (file_.write(bytes.data(), bytes.size()) != bytes.size())
        Refuse(file_);
}

void SequentialFile::Close()
{
    FlushContent(file_);
    FlushName(file_.fileName());
    file_.close();
}

} // namespace lineforge
