#include "platform/files/DirectoryRows.h"

#include <QDir>

namespace lineforge
{

using namespace Qt::StringLiterals;

std::vector<DirectoryRow> DirectoryRows(const QString& path)
{
    QDir directory = QDir::root();
    std::vector<DirectoryRow> rows{{directory.path(), directory.path(), 0, true}};
    int depth = 0;
    for (const QString& name : QDir::cleanPath(path).split(u'/', Qt::SkipEmptyParts)) {
        directory.setPath(directory.filePath(name));
        rows.push_back({directory.path(), name, ++depth, true});
    }
    for (const QString& name : directory.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase))
        rows.push_back({directory.filePath(name), name, depth + 1, false});
    return rows;
}

} // namespace lineforge
