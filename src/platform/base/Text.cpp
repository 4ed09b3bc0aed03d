#include "platform/base/Text.h"

#include <QList>

#include <algorithm>

namespace lineforge
{

namespace
{
constexpr int LowerAscii(int letter)
{
    return letter >= 'A' && letter <= 'Z' ? letter + ('a' - 'A') : letter;
}

constexpr int CodeAt(QByteArrayView text, qsizetype at)
{
    return static_cast<unsigned char>(text[at]);
}

constexpr bool IsAscii(int code)
{
    return code < 0x80;
}
} // namespace

bool SameText(QStringView a, QStringView b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

QString FromUtf8(QByteArrayView utf8)
{
    QString text = QString::fromUtf8(utf8);
    if (utf8.startsWith("\xEF\xBB\xBF"))
        text.prepend(QChar(QChar::ByteOrderMark));
    return text;
}

// Letter by letter, as the comparison does it.
QString Folded(QStringView text)
{
    QString folded;
    folded.reserve(text.size());
    for (const uint letter : text.toUcs4())
        folded += QChar::fromUcs4(QChar::toCaseFolded(char32_t{letter}));
    return folded;
}

bool SameText(QByteArrayView utf8, QStringView text)
{
    const qsizetype common = std::min(utf8.size(), text.size());
    for (qsizetype at = 0; at < common; ++at) {
        const int a = CodeAt(utf8, at);
        const int b = text[at].unicode();
        // Letters outside ASCII can fold to ASCII ones, so that from here on only the whole texts tell.
        if (!IsAscii(a) || !IsAscii(b))
            return SameText(FromUtf8(utf8), text);
        if (LowerAscii(a) != LowerAscii(b))
            return false;
    }
    return utf8.size() == text.size();
}

int CompareText(QByteArrayView a, QByteArrayView b)
{
    const qsizetype common = std::min(a.size(), b.size());
    for (qsizetype at = 0; at < common; ++at) {
        const int codeA = CodeAt(a, at);
        const int codeB = CodeAt(b, at);
        if (!IsAscii(codeA) || !IsAscii(codeB))
            return FromUtf8(a).compare(FromUtf8(b), Qt::CaseInsensitive);
        if (const int difference = LowerAscii(codeA) - LowerAscii(codeB))
            return difference;
    }
    return a.size() < b.size() ? -1 : a.size() > b.size() ? 1 : 0;
}

} // namespace lineforge
