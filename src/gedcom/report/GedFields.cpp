#include "gedcom/report/GedFields.h"

#include <algorithm>

namespace lineforge
{

bool SameBytes(QByteArrayView a, QByteArrayView b)
{
    return a.size() == b.size() && a.compare(b, Qt::CaseInsensitive) == 0;
}

GedFields FieldsOf(QByteArrayView line)
{
    constexpr char blank = ' ';
    GedFields fields{line.first(std::min<qsizetype>(line.size(), 1)), {}, {}, {}};
    const QByteArrayView text = line.sliced(std::min<qsizetype>(line.size(), 2));
    const qsizetype tagEnd = text.indexOf(blank);
    fields.Tag = tagEnd < 0 ? text : text.first(tagEnd);
    if (tagEnd < 0)
        return fields;
    const QByteArrayView behind = text.sliced(tagEnd + 1);
    const qsizetype valueEnd = behind.indexOf(blank);
    fields.Value = valueEnd < 0 ? behind : behind.first(valueEnd + 1);
    fields.Rest = behind.sliced(fields.Value.size());
    return fields;
}

} // namespace lineforge
