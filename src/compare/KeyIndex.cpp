#include "compare/KeyIndex.h"

#include "platform/base/Text.h"
#include "platform/store/Fields.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// What no field holds.
constexpr QChar separator = u'\0';
} // namespace

KeyFields KeysOf(int mask)
{
    KeyFields keys;
    if (mask & CompareKey::File)
        keys << Field::File.toString();
    if (mask & CompareKey::Surname)
        keys << Field::Surname.toString();
    if (mask & CompareKey::BirthDate)
        keys << Field::BirthDate.toString();
    return keys;
}

QString KeyOf(const Recordset& record, const KeyFields& keys)
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

QHash<QString, Bookmark> FirstOfEachKey(Recordset& records, const KeyFields& keys, Meanwhile& meanwhile)
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
