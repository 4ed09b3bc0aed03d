#include "Files.h"

#include "Failure.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QStringDecoder>

namespace lineforge::makehome
{

using namespace Qt::StringLiterals;

namespace
{

constexpr int jpegQuality = 92;

QByteArray Encoded(const QImage& picture, const char* format, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!picture.save(&buffer, format, quality)) {
        throw Failure(u"this Qt cannot write %1 pictures"_s.arg(QLatin1StringView(format)));
    }
    return bytes;
}

} // namespace

QString WarningLine()
{
    return u"This File Contains Graphic Data crucial to your program. Warning: DO NOT MODIFY."_s;
}

QStringList ReadLines(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw Failure(u"cannot read %1: %2"_s.arg(path, file.errorString()));
    }
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder(file.readAll());
    if (decoder.hasError()) {
        throw Failure(u"%1 is not UTF-8"_s.arg(path));
    }
    // A checkout on another system may have turned the line ends; the sources mean the same with either.
    text.remove(u'\r');
    return text.split(u'\n');
}

void MakeDirectory(const QString& path)
{
    if (!QDir().mkpath(path)) {
        throw Failure(u"cannot make the directory %1"_s.arg(path));
    }
}

void CopyOver(const QString& from, const QString& to)
{
    QFile file(from);
    if (!file.open(QIODevice::ReadOnly)) {
        throw Failure(u"cannot read %1: %2"_s.arg(from, file.errorString()));
    }
    WriteBytes(to, file.readAll());
}

void WriteBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(bytes) != bytes.size() || !file.flush()) {
        throw Failure(u"cannot write %1: %2"_s.arg(path, file.errorString()));
    }
}

void WriteCrLfLines(const QString& path, const QStringList& lines)
{
    QString text;
    for (const QString& line : lines) {
        text += line + "\r\n"_L1;
    }
    WriteBytes(path, text.toUtf8());
}

QByteArray JpegBytes(const QImage& picture)
{
    return Encoded(picture.convertToFormat(QImage::Format_RGB888), "jpg", jpegQuality);
}

void WriteJpeg(const QString& path, const QImage& picture)
{
    WriteBytes(path, JpegBytes(picture));
}

void WriteBmp(const QString& path, const QImage& picture)
{
    WriteBytes(path, Encoded(picture.convertToFormat(QImage::Format_RGB888), "bmp", -1));
}

void WritePng(const QString& path, const QImage& picture)
{
    WriteBytes(path, Encoded(picture, "png", -1));
}

} // namespace lineforge::makehome
