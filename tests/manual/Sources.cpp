#include "manual/Sources.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace lineforge::manual
{

using namespace Qt::StringLiterals;

namespace
{
const QString root = QStringLiteral(LINEFORGE_SOURCES);

// Behind the text that begins there.
qsizetype EndOfText(const QString& source, qsizetype at)
{
    for (++at; at < source.size() && source[at] != u'"'; ++at)
        if (source[at] == u'\\')
            ++at;
    return at + 1;
}

// Of the call whose opening parenthesis ends before `at`.
QStringList ArgumentsAt(const QString& source, qsizetype at)
{
    QStringList arguments{QString()};
    for (int depth = 1; at < source.size();) {
        const QChar c = source[at];
        if (c == u'"') {
            const qsizetype end = EndOfText(source, at);
            arguments.last() += source.sliced(at, end - at);
            at = end;
            continue;
        }
        if (c == u'(' || c == u'{')
            ++depth;
        if ((c == u')' || c == u'}') && --depth == 0)
            break;
        if (c == u',' && depth == 1)
            arguments += QString();
        else
            arguments.last() += c;
        ++at;
    }
    for (QString& argument : arguments)
        argument = argument.trimmed();
    return arguments;
}

bool IsDeclared(const QStringList& arguments)
{
    static const QRegularExpression parameter(u"^(const )?\\w+& \\w+$"_s);
    return parameter.match(arguments.first()).hasMatch();
}
} // namespace

QString SourceText(const QString& file)
{
    QFile source(root + u'/' + file);
    if (!source.open(QIODevice::ReadOnly))
        ADD_FAILURE() << "no source " << file.toStdString();
    return QString::fromUtf8(source.readAll());
}

QList<Call> CallsOf(const QString& routine)
{
    QList<Call> calls;
    const QRegularExpression name(u"\\b"_s + routine + u"\\("_s);
    QDirIterator files(root, {u"*.cpp"_s, u"*.h"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString file = QDir(root).relativeFilePath(files.next());
        const QString source = SourceText(file);
        for (auto found = name.globalMatch(source); found.hasNext();) {
            const QStringList arguments = ArgumentsAt(source, found.next().capturedEnd());
            if (!IsDeclared(arguments))
                calls.append({file, arguments});
        }
    }
    return calls;
}

QStringList Literals(const QString& expression)
{
    static const QRegularExpression literal(u"\"((?:[^\"\\\\]|\\\\.)*)\""_s);
    QStringList texts;
    for (auto found = literal.globalMatch(expression); found.hasNext();)
        texts += found.next().captured(1);
    return texts;
}

} // namespace lineforge::manual
