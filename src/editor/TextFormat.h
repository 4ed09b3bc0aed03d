#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace lineforge
{

enum class TextEncoding { Utf8, Utf8WithMark, Windows1252 };
enum class LineEnds { CrLf, Lf, Cr };

// How a text stands in its file; by default as in a new one.
struct TextForm {
    TextEncoding Encoding = TextEncoding::Utf8;
    LineEnds Ends = LineEnds::CrLf;
    bool HasMixedEnds = false; // other ends as well as these; the next saving makes all of them alike

    bool operator==(const TextForm&) const = default;
};

// In words, for the status line.
QString NameOf(TextEncoding encoding);
QString NameOfEnds(const TextForm& form);

// A text whose lines end with a line feed, whatever the file has.
struct FormedText {
    QString Text;
    TextForm Form;
};

// What the bytes of a file stand for, by the project's one rule of decoding. Nothing when they are no text: a zero byte
// or a code that stands for no character in any text.
std::optional<FormedText> ReadForm(const QByteArray& bytes);

struct FormedBytes {
    QByteArray Bytes;
    TextForm Form; // what it came to
};

// The bytes that read back as that text. A text that Windows-1252 can't hold, or not so that it is read back the same,
// becomes UTF-8; one that begins with the mark's own character gets a mark before it.
FormedBytes WriteForm(const FormedText& formed);

} // namespace lineforge
