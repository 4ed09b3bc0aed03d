#include "monkey/ChosenFiles.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

namespace lineforge::monkey
{

namespace
{
// As a line; nothing of what is no file.
QByteArray PrintOf(const QString& path)
{
    QFile file(path);
    QCryptographicHash print(QCryptographicHash::Sha256);
    if (!QFileInfo(path).isFile() || !file.open(QFile::ReadOnly) || !print.addData(&file))
        return {};
    return print.result().toHex() + '\n';
}
} // namespace

void ChosenFiles::Note(const QString& path) const
{
    const QByteArray print = PrintOf(path);
    QFile chosen(file_);
    if (!chosen.open(QFile::Append) || chosen.write(print) != print.size())
        qFatal("can't write %s", qUtf8Printable(file_));
}

bool ChosenFiles::Hold(const QString& path) const
{
    const QByteArray print = PrintOf(path);
    QFile chosen(file_);
    return !print.isEmpty() && chosen.open(QFile::ReadOnly) && chosen.readAll().contains(print);
}

} // namespace lineforge::monkey
