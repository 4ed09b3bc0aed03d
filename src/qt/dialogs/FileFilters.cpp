#include "qt/dialogs/FileFilters.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// "All files" means those without an extension as well.
QString ToPattern(const QString& pattern)
{
    const QString trimmed = pattern.trimmed();
    return trimmed == u"*.*" ? u"*"_s : trimmed;
}

QString ToFilter(const QString& description, const QString& patterns)
{
    QStringList converted;
    for (const QString& pattern : patterns.split(u';', Qt::SkipEmptyParts))
        converted += ToPattern(pattern);
    return description.trimmed() + u" ("_s + converted.join(u' ') + u')';
}
} // namespace

QStringList ToFileFilters(const QString& filter)
{
    const QStringList parts = filter.split(u'|');
    QStringList filters;
    for (qsizetype at = 0; at + 1 < parts.size(); at += 2)
        if (!parts[at + 1].trimmed().isEmpty())
            filters += ToFilter(parts[at], parts[at + 1]);
    return filters;
}

QString FirstEnding(const QString& filter)
{
    const QString pattern = filter.section(u'|', 1, 1).section(u';', 0, 0).trimmed();
    const QString ending = pattern.section(u'.', -1);
    return pattern.startsWith(u"*.") && !ending.contains(u'*') ? ending : QString();
}

} // namespace lineforge
