#include "Files.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <gtest/gtest.h>

namespace lineforge::packaging
{

namespace
{
QStringList Below(const QString& directory, QDir::Filters kind)
{
    const QDir top(directory);
    QDirIterator entries(directory, kind | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    QStringList found;
    while (entries.hasNext())
        found += top.relativeFilePath(entries.next());
    found.sort();
    return found;
}
} // namespace

QStringList FilesBelow(const QString& directory)
{
    return Below(directory, QDir::Files);
}

QStringList DirectoriesBelow(const QString& directory)
{
    return Below(directory, QDir::Dirs);
}

QByteArray Contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("(missing)");
}

void Write(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qUtf8Printable(path);
    ASSERT_EQ(file.write(bytes), bytes.size()) << qUtf8Printable(path);
}

} // namespace lineforge::packaging
