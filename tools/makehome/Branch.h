#pragma once

#include "Gallery.h"
#include "MapSource.h"
#include "Records.h"

#include <QList>
#include <QString>

namespace lineforge::makehome
{

struct Branch {
    QString letter;
    QString friendlyName;
    QString sourceDirectory;
    QList<Record> records;
    MapSource map;
    QList<GalleryItem> gallery;

    QString DirectoryName() const;
};

QList<Branch> ReadBranches(const QString& examplesDirectory);

// Links and maps reach across branches, so a record is looked for in all of them; null if there is none.
const Record* FindRecord(const QList<Branch>& branches, const QString& file);

} // namespace lineforge::makehome
