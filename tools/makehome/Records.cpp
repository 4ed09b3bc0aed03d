#include "Records.h"

#include "Failure.h"
#include "Files.h"

#include <QRegularExpression>

#include <algorithm>

namespace lineforge::makehome
{

using namespace Qt::StringLiterals;

namespace
{

std::size_t FieldIndex(const QString& name, const QString& path, qsizetype line)
{
    const auto found = std::find_if(fieldSpecs.begin(), fieldSpecs.end(),
                                    [&name](const FieldSpec& spec) { return spec.name == name; });
    if (found == fieldSpecs.end()) {
        throw FailureAt(path, line, u"there is no field \"%1\""_s.arg(name));
    }
    return static_cast<std::size_t>(found - fieldSpecs.begin());
}

void ReadField(Record& record, const QString& text, qsizetype line)
{
    const qsizetype colon = text.indexOf(u':');
    if (colon < 0) {
        throw FailureAt(record.sourcePath, line, u"expected \"Field: value\""_s);
    }
    const std::size_t index = FieldIndex(text.left(colon).trimmed(), record.sourcePath, line);
    if (!record.values[index].isNull()) {
        throw FailureAt(record.sourcePath, line, u"the field is given twice"_s);
    }
    const QString value = text.mid(colon + 1).trimmed();
    if (value.isEmpty()) {
        throw FailureAt(record.sourcePath, line, u"leave a field out if nothing is known for it"_s);
    }
    if (value.size() > fieldSpecs[index].limit) {
        throw FailureAt(record.sourcePath, line,
                        u"%1 characters, but %2 holds only %3"_s.arg(value.size())
                            .arg(fieldSpecs[index].name)
                            .arg(fieldSpecs[index].limit));
    }
    record.values[index] = value;
}

} // namespace

const QString& Record::Value(Field field) const
{
    return values[static_cast<std::size_t>(field)];
}

QString Record::FirstForename() const
{
    return Value(Field::Forename).section(u' ', 0, 0);
}

QString Record::BirthYear() const
{
    return Value(Field::BirthDate).right(4);
}

QString Record::DeathYear() const
{
    static const QRegularExpression year(u"\\b\\d{4}\\b"_s);
    return year.match(Value(Field::Deceased)).captured();
}

QList<Record> ReadRecords(const QString& path)
{
    QList<Record> records;
    bool between = true;
    qsizetype number = 0;
    for (const QString& rawLine : ReadLines(path)) {
        ++number;
        const QString line = rawLine.trimmed();
        if (line.isEmpty()) {
            between = true;
            continue;
        }
        if (line.startsWith(u'#')) {
            continue;
        }
        if (between) {
            Record fresh;
            fresh.sourcePath = path;
            fresh.sourceLine = number;
            records.append(fresh);
            between = false;
        }
        ReadField(records.last(), line, number);
    }
    return records;
}

} // namespace lineforge::makehome
