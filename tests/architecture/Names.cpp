#include "Names.h"

#include <QRegularExpression>
#include <QSet>

namespace lineforge::architecture
{

using namespace Qt::StringLiterals;

namespace
{

QSet<QString> TestsIn(const Sources& tests)
{
    static const QRegularExpression test(u"\\bTEST(?:_F|_P)?\\(\\s*(\\w+)\\s*,\\s*(\\w+)\\s*\\)"_s);
    QSet<QString> names;
    for (const QString& text : tests)
        for (const auto& match : test.globalMatch(text))
            names.insert(match.captured(1) + u'.' + match.captured(2));
    return names;
}

} // namespace

QStringList OdditiesWithoutATest(const Sources& sources, const Sources& tests)
{
    static const QRegularExpression kept(u"\\bKEPT\\b(?:\\(([^)]*)\\))?"_s);
    const QSet<QString> names = TestsIn(tests);
    QStringList findings;
    for (auto source = sources.begin(); source != sources.end(); ++source)
        for (const auto& match : kept.globalMatch(source.value()))
            if (!names.contains(match.captured(1)))
                findings.push_back(source.key() + u" is held by no test: "_s + match.captured());
    return findings;
}

QStringList OdditiesWithoutAReason(const Sources& sources)
{
    // Up to the end of the comment, or to the next one of these in it.
    static const QRegularExpression kept(u"\\bKEPT\\([^)]*\\)(?:(?!KEPT\\().|\\n *//)*"_s);
    static const QRegularExpression mended(u"\\bMended, "_s);
    QStringList findings;
    for (auto source = sources.begin(); source != sources.end(); ++source)
        for (const auto& match : kept.globalMatch(source.value()))
            if (!mended.match(match.captured()).hasMatch())
                findings.push_back(source.key() + u" doesn't tell what mending would change: "_s +
                                   match.captured().section(u':', 0, 0));
    return findings;
}

QStringList WindowsOf(const Sources& sources)
{
    static const QRegularExpression window(u"^forms/([Ff]orm\\d+)\\.h$"_s);
    QStringList windows;
    for (const QString& file : sources.keys())
        if (const auto match = window.match(file); match.hasMatch())
            windows.push_back(match.captured(1));
    return windows;
}

QStringList UnknownWindows(const Sources& sources)
{
    static const QRegularExpression word(u"(?<![A-Za-z0-9_])[Ff]orm\\d+(?![a-z0-9_])"_s);
    const QStringList windows = WindowsOf(sources);
    QStringList findings;
    for (auto source = sources.begin(); source != sources.end(); ++source)
        for (const auto& match : word.globalMatch(source.value()))
            if (!windows.contains(match.captured()))
                findings.push_back(source.key() + u" speaks of "_s + match.captured());
    return findings;
}

QStringList FirstCellsBelow(const QString& heading, const QString& document)
{
    static const QRegularExpression cell(u"^\\| `([^`]+)` \\|"_s, QRegularExpression::MultilineOption);
    const qsizetype begin = document.indexOf(u"\n## "_s + heading + u'\n');
    if (begin < 0)
        return {};
    const qsizetype end = document.indexOf(u"\n## "_s, begin + 1);
    QStringList cells;
    for (const auto& match : cell.globalMatch(document.sliced(begin, end < 0 ? document.size() - begin : end - begin)))
        cells.push_back(match.captured(1));
    return cells;
}

} // namespace lineforge::architecture
