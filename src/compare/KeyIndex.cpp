#include "compare/KeyIndex.h"

#include "compare/CompareKeys.h"
#include "platform/base/Text.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// What no field holds.
constexpr QChar separator = u'\0';
} // namespace

CompareKeys KeysOf(int mask)
{
    CompareKeys keys;
    if (mask & CompareKey::File)
        keys << u"File"_s;
    if (mask & CompareKey::Surname)
        keys << u"Surname"_s;
    if (mask & CompareKey::BirthDate)
        keys << u"BirthDate"_s;
    return keys;
}

QString KeyOf(const Recordset& record, const CompareKeys& keys)
{
    QString key;
    for (const QString& field : keys) {
        const QString text = record.Text(field);
        if (text.isEmpty())
            return {};
        key += Folded(text);
        key += separator;
    }
    return key;
}

QHash<QString, Bookmark> FirstOfEachKey(Recordset& records, const CompareKeys& keys, Meanwhile& meanwhile)
{
    QHash<QString, Bookmark> index;
    for (records.MoveFirst(); !records.Eof(); records.MoveNext()) {
        const QString key = KeyOf(records, keys);
        if (!key.isEmpty() && !index.contains(key))
            index.insert(key, records.GetBookmark());
        meanwhile.KeepPainted();
    }
    return index;
}

} // namespace lineforge
