#include "platform/files/TextFile.h"

#include "platform/base/RuntimeError.h"
#include "platform/base/Text.h"

#include <QStringDecoder>

#include <array>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// The characters of Windows-1252 for the bytes 80 to 9F hexadecimal; all others stand for themselves.
constexpr std::array<char16_t, 32> windows1252{
    u'\u20AC', u'\u0081', u'\u201A', u'\u0192', u'\u201E', u'\u2026', u'\u2020', u'\u2021',
    u'\u02C6', u'\u2030', u'\u0160', u'\u2039', u'\u0152', u'\u008D', u'\u017D', u'\u008F',
    u'\u0090', u'\u2018', u'\u2019', u'\u201C', u'\u201D', u'\u2022', u'\u2013', u'\u2014',
    u'\u02DC', u'\u2122', u'\u0161', u'\u203A', u'\u0153', u'\u009D', u'\u017E', u'\u0178'};

QString DecodeWindows1252(const QByteArray& bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (QChar& character : text)
        if (const int code = character.unicode(); code >= 0x80 && code < 0xA0)
            character = windows1252[static_cast<std::size_t>(code - 0x80)];
    return text;
}
} // namespace

QString DecodeText(const QByteArray& bytes)
{
    // Stateless: a character cut off at the end of the file is no valid UTF-8 either.
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = utf8.decode(bytes);
    return utf8.hasError() ? DecodeWindows1252(bytes) : text;
}

TextReader::TextReader(const FileSystem& files, const QString& path)
    : path_(files.Resolve(path)), text_(DecodeText(files.Read(path)))
{
}

QChar TextReader::Next()
{
    if (AtEnd())
        throw RuntimeError(ErrorNumber::InputPastEnd, path_);
    return text_[at_++];
}

bool TextReader::SkipPast(QStringView name)
{
    qsizetype matched = 0;
    while (matched < name.size() && !AtEnd())
        matched = Next().toCaseFolded() == name[matched].toCaseFolded() ? matched + 1 : 0;
    return matched == name.size();
}

TextWriter::TextWriter(const FileSystem& files, const QString& path) : files_(files), path_(files.Resolve(path)) {}

void TextWriter::Line(QStringView label, QStringView text)
{
    Append(label);
    Append(text);
    bytes_ += "\r\n";
}

// Encoded where it goes to: a report of a large branch is millions of lines.
void TextWriter::Append(QStringView text)
{
    const qsizetype before = bytes_.size();
    bytes_.resize(before + utf8_.requiredSpace(text.size()));
    const char* end = utf8_.appendToBuffer(bytes_.data() + before, text);
    bytes_.truncate(end - bytes_.constData());
}

void TextWriter::Close()
{
    files_.Replace(path_, bytes_);
}

void WriteTextLines(const FileSystem& files, const QString& path, const QStringList& lines)
{
    TextWriter file(files, path);
    for (const QString& line : lines)
        file.Line(line);
    file.Close();
}

} // namespace lineforge
