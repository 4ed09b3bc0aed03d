#include "qt/text/TextSelection.h"

#include <QTextBoundaryFinder>

namespace lineforge
{

namespace
{
bool IsWord(QChar character)
{
    return character.isLetterOrNumber() || character == u'_' || character == u'@';
}
} // namespace

TextPosition EndOf(const QStringList& lines)
{
    return lines.isEmpty() ? TextPosition() : TextPosition{lines.size() - 1, lines.last().size()};
}

QString TextBetween(const QStringList& lines, TextPosition first, TextPosition last)
{
    if (lines.isEmpty())
        return {};
    if (first.Line == last.Line)
        return lines[first.Line].sliced(first.Column, last.Column - first.Column);
    QString text = lines[first.Line].sliced(first.Column) + u'\n';
    for (qsizetype line = first.Line + 1; line < last.Line; ++line)
        text += lines[line] + u'\n';
    return text + lines[last.Line].first(last.Column);
}

qsizetype OffsetOf(const QStringList& lines, TextPosition position)
{
    qsizetype offset = position.Column;
    for (qsizetype line = 0; line < position.Line; ++line)
        offset += lines[line].size() + 1;
    return offset;
}

TextPosition PositionOf(const QStringList& lines, qsizetype offset)
{
    qsizetype left = std::max<qsizetype>(0, offset);
    for (qsizetype line = 0; line < lines.size(); ++line) {
        if (left <= lines[line].size())
            return {line, left};
        left -= lines[line].size() + 1;
    }
    return EndOf(lines);
}

TextSelection WordAt(const QStringList& lines, TextPosition position)
{
    if (lines.isEmpty())
        return {};
    const QString& line = lines[position.Line];
    qsizetype first = position.Column;
    qsizetype last = position.Column;
    while (first > 0 && IsWord(line[first - 1]))
        --first;
    while (last < line.size() && IsWord(line[last]))
        ++last;
    if (first == last && last < line.size())
        ++last;
    return {{position.Line, first}, {position.Line, last}};
}

TextPosition After(const QStringList& lines, TextPosition position)
{
    if (lines.isEmpty())
        return {};
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, lines[position.Line]);
    finder.setPosition(position.Column);
    if (const qsizetype next = finder.toNextBoundary(); next >= 0)
        return {position.Line, next};
    return position.Line + 1 < lines.size() ? TextPosition{position.Line + 1, 0} : position;
}

TextPosition Before(const QStringList& lines, TextPosition position)
{
    if (lines.isEmpty())
        return {};
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, lines[position.Line]);
    finder.setPosition(position.Column);
    if (const qsizetype previous = finder.toPreviousBoundary(); previous >= 0)
        return {position.Line, previous};
    return position.Line > 0 ? TextPosition{position.Line - 1, lines[position.Line - 1].size()} : position;
}

} // namespace lineforge
