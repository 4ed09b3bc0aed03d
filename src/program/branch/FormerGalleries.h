#pragma once

#include "platform/files/FileSystem.h"

#include <QSet>

namespace lineforge
{

// For whom files stand in the gallery of a branch when this is made. Those of a record that has been deleted mostly
// stay, and whoever got its number would have them for his own.
class FormerGalleries
{
public:
    FormerGalleries(const FileSystem& files, const QString& workDir);

    bool Has(const QString& record) const { return records_.contains(record.toLower()); }

private:
    QSet<QString> records_;
};

} // namespace lineforge
