#pragma once

#include "Fields.h"

#include <QList>
#include <QString>

namespace lineforge::makehome
{

struct Record {
    std::array<QString, fieldCount> values;
    QString sourcePath;
    qsizetype sourceLine = 0;

    const QString& Value(Field field) const;

    // The map has room for one name only, and people write the one a person went by first.
    QString FirstForename() const;
    QString BirthYear() const;
    QString DeathYear() const;
};

QList<Record> ReadRecords(const QString& path);

} // namespace lineforge::makehome
