#include "output/Wrap.h"

namespace lineforge
{

namespace
{
constexpr qsizetype width = 80;

// How much of the text goes into its first line. There is a blank at least at its end.
qsizetype FirstLine(QStringView text)
{
    if (text.size() < width)
        return text.size();
    const qsizetype blank = text.first(width).lastIndexOf(u' ');
    return (blank >= 0 ? blank : text.indexOf(u' ', width)) + 1;
}
} // namespace

QStringList Wrapped(const QString& value)
{
    const QString text = value + u' ';
    QStringList lines;
    qsizetype start = 0;
    // A text that has been cut at its very end leaves an empty line behind; so it is meant to be.
    bool isCut = true;
    while (isCut) {
        const QStringView rest = QStringView(text).sliced(start);
        const qsizetype length = FirstLine(rest);
        isCut = rest.size() >= width;
        lines.push_back(rest.first(length).toString());
        start += length;
    }
    return lines;
}

} // namespace lineforge
