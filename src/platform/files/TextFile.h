#pragma once

#include "platform/files/FileSystem.h"

#include <QByteArray>
#include <QString>
#include <QStringEncoder>
#include <QStringList>

namespace lineforge
{

// A text file read one character at a time. UTF-8 when all of it is valid UTF-8, else Windows-1252, so that files of
// older installations keep their accents.
class TextReader
{
public:
    // RuntimeError 53 when there is no such file, 70 when it can't be read.
    TextReader(const FileSystem& files, const QString& path);

    const QString& Path() const { return path_; }
    bool AtEnd() const { return at_ == text_.size(); }

    // The next character; RuntimeError 62 when there is none.
    QChar Next();

    // Reads on until `name` has been passed, case ignored; false when the file ends first. On a mismatch the match
    // starts again at the character after the one that failed, which isn't looked at twice.
    [[nodiscard]] bool SkipPast(QStringView name);

private:
    QString path_;
    QString text_;
    qsizetype at_ = 0;
};

// The text that bytes of a file stand for, by the rule of TextReader.
QString DecodeText(const QByteArray& bytes);

// A text file that is written line by line, UTF-8, with carriage return and line feed after each. It takes its place
// when it is closed, whole; without that there is no file.
class TextWriter
{
public:
    TextWriter(const FileSystem& files, const QString& path);

    // One line of both texts, the first before the second.
    void Line(QStringView label, QStringView text = {});
    // Errors of the disk; what stood there then stays.
    void Close();

private:
    void Append(QStringView text);

    const FileSystem& files_;
    QString path_;
    QStringEncoder utf8_{QStringEncoder::Utf8, QStringEncoder::Flag::Stateless};
    QByteArray bytes_;
};

// Writes the lines with carriage return and line feed after each, UTF-8, in place of the file.
void WriteTextLines(const FileSystem& files, const QString& path, const QStringList& lines);

} // namespace lineforge
