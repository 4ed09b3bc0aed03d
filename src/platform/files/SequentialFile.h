#pragma once

#include "platform/files/FileSystem.h"

#include <QByteArrayView>
#include <QFile>
#include <QString>
#include <QStringEncoder>

namespace lineforge
{

// A file that is written as it goes: what stood there is gone at once, and what has been written stays, whatever comes
// after it. Going unclosed it closes itself.
// Errors: 76 no such directory, 75 not to be opened or replaced, 61 disk full, 70 permission denied, 57 the disk fails.
// A refusal to write may be told by a later call, `Close` at the latest.
class SequentialFile
{
public:
    // Opens for output; a relative path is taken from the present current directory.
    SequentialFile(const FileSystem& files, const QString& path);

    // UTF-8, with carriage return and line feed behind it.
    void Line(QStringView text);
    // The same of bytes as they are.
    void ByteLine(QByteArrayView bytes);
    void Write(QByteArrayView bytes);
    void Close();

private:
    QFile file_;
    QStringEncoder utf8_{QStringEncoder::Utf8, QStringEncoder::Flag::Stateless};
};

} // namespace lineforge
