#include "editor/TextFormat.h"

#include "platform/files/TextFile.h"

#include <QHash>

#include <algorithm>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
const QByteArray byteOrderMark = "\xEF\xBB\xBF"_ba;

// Codes for a program's own use. The text area needs them itself, so that a file's could not be kept apart.
bool IsNoCharacter(QChar character)
{
    return character.isNull() || (character >= QChar(0xFDD0) && character <= QChar(0xFDEF));
}

QString DecodeAll(const QByteArray& bytes)
{
    // The decoder drops a mark at the very beginning; behind another character it is kept.
    return DecodeText(' ' + bytes).sliced(1);
}

LineEnds FirstEnds(const QString& text)
{
    const auto* const end = std::ranges::find_if(text, [](QChar c) { return c == u'\r' || c == u'\n'; });
    if (end == text.cend())
        return TextForm().Ends;
    if (*end == u'\n')
        return LineEnds::Lf;
    return end + 1 != text.cend() && end[1] == u'\n' ? LineEnds::CrLf : LineEnds::Cr;
}

QString WithLineFeeds(QString text)
{
    return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
}

QString WithEnds(QString text, LineEnds ends)
{
    if (ends == LineEnds::CrLf)
        text.replace(u"\n"_s, u"\r\n"_s);
    else if (ends == LineEnds::Cr)
        text.replace(u'\n', u'\r');
    return text;
}

FormedText WithForm(const QString& text, TextEncoding encoding)
{
    const LineEnds ends = FirstEnds(text);
    const QString lines = WithLineFeeds(text);
    return {lines, {encoding, ends, WithEnds(lines, ends) != text}};
}

// The decoder's table turned round. A single byte above the ASCII is never UTF-8.
QHash<QChar, char> MakeWindows1252()
{
    QHash<QChar, char> codes;
    for (int code = 0; code < 256; ++code) {
        const QByteArray byte(1, static_cast<char>(code));
        codes.insert(DecodeText(byte).front(), byte.front());
    }
    return codes;
}

std::optional<QByteArray> ToWindows1252(const QString& text)
{
    static const QHash<QChar, char> codes = MakeWindows1252();
    QByteArray bytes;
    bytes.reserve(text.size());
    for (const QChar character : text) {
        const auto code = codes.constFind(character);
        if (code == codes.cend())
            return std::nullopt;
        bytes += *code;
    }
    // Some accents side by side look like UTF-8 and would be read as something else.
    if (DecodeText(bytes) != text)
        return std::nullopt;
    return bytes;
}
} // namespace

QString NameOf(TextEncoding encoding)
{
    switch (encoding) {
    case TextEncoding::Utf8WithMark:
        return u"UTF-8 with mark"_s;
    case TextEncoding::Windows1252:
        return u"Windows-1252"_s;
    case TextEncoding::Utf8:
        break;
    }
    return u"UTF-8"_s;
}

QString NameOfEnds(const TextForm& form)
{
    const QString name = form.Ends == LineEnds::CrLf ? u"CR LF"_s : form.Ends == LineEnds::Lf ? u"LF"_s : u"CR"_s;
    return form.HasMixedEnds ? QString(name + u" (mixed)") : name;
}

std::optional<FormedText> ReadForm(const QByteArray& bytes)
{
    const bool hasMark = bytes.startsWith(byteOrderMark);
    const QByteArray body = hasMark ? bytes.sliced(byteOrderMark.size()) : bytes;
    QString text = DecodeAll(body);
    TextEncoding encoding = hasMark ? TextEncoding::Utf8WithMark : TextEncoding::Utf8;
    if (text.toUtf8() != body) {
        text = DecodeAll(bytes);
        encoding = TextEncoding::Windows1252;
    }
    if (std::ranges::any_of(text, IsNoCharacter))
        return std::nullopt;
    return WithForm(text, encoding);
}

FormedBytes WriteForm(const FormedText& formed)
{
    const QString text = WithEnds(formed.Text, formed.Form.Ends);
    TextForm form = formed.Form;
    form.HasMixedEnds = false;
    if (form.Encoding == TextEncoding::Windows1252) {
        if (const auto bytes = ToWindows1252(text))
            return {*bytes, form};
        form.Encoding = TextEncoding::Utf8;
    }
    const QByteArray body = text.toUtf8();
    // Without one, its first character would be read as the mark, and be lost.
    if (body.startsWith(byteOrderMark))
        form.Encoding = TextEncoding::Utf8WithMark;
    const QByteArray mark = form.Encoding == TextEncoding::Utf8WithMark ? byteOrderMark : QByteArray();
    return {mark + body, form};
}

} // namespace lineforge
