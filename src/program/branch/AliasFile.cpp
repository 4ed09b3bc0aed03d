#include "program/branch/AliasFile.h"

#include "platform/base/RuntimeError.h"
#include "platform/files/TextFile.h"

#include <utility>

namespace lineforge
{

// Brackets and line ends between values don't count, so that the bracket which opens the section's line is passed over,
// and with it any that stands in a value.
bool ReadAliasSection(const FileSystem& files, const QString& path, QStringView section,
                      const std::function<void(const QString& value)>& take)
{
    TextReader reader(files, path);
    if (!reader.SkipPast(section))
        return false;
    QString value;
    for (QChar character = reader.Next(); character != u']'; character = reader.Next()) {
        if (character == u',')
            Concerning(reader.Path(), [&] { take(std::exchange(value, QString())); });
        else if (character != u'[' && character != u'\n' && character != u'\r')
            value += character;
    }
    return true;
}

} // namespace lineforge
