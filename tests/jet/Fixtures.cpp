#include "jet/Fixtures.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cctype>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
const QString fixtures = QStringLiteral(JET_FIXTURES);

// Where a column stands in the file, -1 for nowhere.
qsizetype PlaceOf(std::string_view field, const QJsonArray& columns)
{
    const QString name = QString::fromUtf8(field.data(), static_cast<qsizetype>(field.size()));
    const auto found = std::ranges::find_if(
        columns, [&](const QJsonValue& column) { return column.toString().compare(name, Qt::CaseInsensitive) == 0; });
    return found == columns.end() ? -1 : found - columns.begin();
}
} // namespace

QString FixturePath(const QString& name)
{
    return fixtures + u'/' + name;
}

QByteArray FixtureBytes(const QString& name)
{
    QFile file(FixturePath(name));
    if (!file.open(QFile::ReadOnly))
        ADD_FAILURE() << "no fixture " << qUtf8Printable(name);
    return file.readAll();
}

std::vector<std::string> ReadableFixtures()
{
    std::vector<std::string> names;
    QDirIterator files(fixtures, {u"*.json"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        names.push_back(QDir(fixtures).relativeFilePath(files.next()).chopped(5).toStdString());
    std::ranges::sort(names);
    return names;
}

Records25 ExpectedRecords(const std::string& fixture)
{
    const QByteArray text = FixtureBytes(QString::fromStdString(fixture) + u".json");
    const QJsonObject expected = QJsonDocument::fromJson(text).object();
    const QJsonArray columns = expected[u"columns"].toArray();
    Records25 records;
    for (const QJsonValue& row : expected[u"rows"].toArray()) {
        std::vector<std::optional<QString>> record;
        for (const std::string_view field : jetstream::fields) {
            const qsizetype place = PlaceOf(field, columns);
            const QJsonValue value = place < 0 ? QJsonValue() : row.toArray()[place];
            record.push_back(value.isNull() ? std::nullopt : std::optional(value.toString()));
        }
        records.push_back(std::move(record));
    }
    return records;
}

std::string TestNameOf(const testing::TestParamInfo<std::string>& fixture)
{
    std::string name = fixture.param;
    std::ranges::replace_if(
        name, [](unsigned char c) { return !std::isalnum(c); }, '_');
    return name;
}

} // namespace lineforge
