#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>
#include <QStringList>

namespace lineforge::makehome
{

// The first line of every map file and of the registry.
QString WarningLine();

QStringList ReadLines(const QString& path);
void MakeDirectory(const QString& path);
void CopyOver(const QString& from, const QString& to);
void WriteBytes(const QString& path, const QByteArray& bytes);
void WriteCrLfLines(const QString& path, const QStringList& lines);

QByteArray JpegBytes(const QImage& picture);
void WriteJpeg(const QString& path, const QImage& picture);
void WriteBmp(const QString& path, const QImage& picture);
void WritePng(const QString& path, const QImage& picture);

} // namespace lineforge::makehome
