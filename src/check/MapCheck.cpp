#include "check/MapCheck.h"

#include "map/items/MapFile.h"
#include "map/items/MapValues.h"
#include "platform/base/RuntimeError.h"
#include "platform/base/Text.h"
#include "platform/files/TextFile.h"
#include "program/branch/BranchPaths.h"

#include <algorithm>
#include <limits>

namespace lineforge::check
{

using namespace Qt::StringLiterals;

namespace
{
// What a value of an item must be.
enum class Form { Any, Number, WholeNumber, Place };

struct Column {
    QStringView Name;
    check::Form Form;
};

struct ItemKind {
    QStringView Name;
    QString MapState::*List;
    std::vector<Column> Columns;
    int MostFiled; // those behind it don't outlive the next saving
};

const std::vector<ItemKind>& ItemKinds()
{
    using enum Form;
    static const std::vector<ItemKind> kinds{
        {u"box",
         &MapState::sBoxesText,
         {{u"X", Place}, {u"Y", Place}, {u"colour", WholeNumber}, {u"record", Any}, {u"forename", Any}},
         LastFiledBox + 1},
        {u"line",
         &MapState::sLinesText,
         {{u"X", WholeNumber},
          {u"Y", WholeNumber},
          {u"end X", WholeNumber},
          {u"end Y", WholeNumber},
          {u"colour", WholeNumber}},
         LastFiledLine + 1},
        {u"text",
         &MapState::sTextsText,
         {{u"X", WholeNumber},
          {u"Y", WholeNumber},
          {u"text", Any},
          {u"font", Any},
          {u"size", Number},
          {u"colour", WholeNumber}},
         LastMapRow + 1},
    };
    return kinds;
}

bool Has(Form form, const Cell& value)
{
    using Places = std::numeric_limits<std::int16_t>;
    switch (form) {
    case Form::Number:
        return NumberIn(value.Text()).has_value();
    case Form::WholeNumber:
        return value.IsNumber();
    case Form::Place:
        return value.IsNumber() && value.Number() >= Places::min() && value.Number() <= Places::max();
    case Form::Any:
        break;
    }
    return true;
}

QString Shown(const QString& value)
{
    constexpr qsizetype most = 40;
    return u'\'' + value.left(most) + (value.size() > most ? u"...'" : u"'");
}

std::vector<std::vector<Cell>> ItemsOf(const QString& list, std::size_t columns)
{
    std::vector<std::vector<Cell>> items;
    if (CountsAsEmpty(list))
        return items;
    const int whole = ForEachValue(list, static_cast<int>(columns), [&](int, int column, const QString& value) {
        if (column == 0)
            items.emplace_back();
        items.back().emplace_back(value);
    });
    items.resize(static_cast<std::size_t>(whole));
    return items;
}

void CheckItem(Home& home, const QString& path, const ItemKind& kind, const std::vector<Cell>& item, int number)
{
    const QString name = kind.Name + u' ' + QString::number(number);
    if (IsFreeRow(item)) {
        home.Add(Kind::MapItem, path,
                 name + u" stands at X = 0, so that it isn't shown and is gone at the next saving");
        return;
    }
    for (std::size_t column = 0; column < kind.Columns.size(); ++column)
        if (!Has(kind.Columns[column].Form, item[column])) {
            home.Add(Kind::MapItem, path,
                     name + u": the map can do nothing with the " + kind.Columns[column].Name + u' ' +
                         Shown(item[column].Text()));
            return;
        }
}

void CheckItems(Home& home, const QString& path, const ItemKind& kind, const QString& list)
{
    const auto items = ItemsOf(list, kind.Columns.size());
    for (int number = 1; const std::vector<Cell>& item : items)
        CheckItem(home, path, kind, item, number++);
    const auto values = static_cast<std::size_t>(list.count(u','));
    if (!CountsAsEmpty(list) && (values != items.size() * kind.Columns.size() || !list.endsWith(u',')))
        home.Add(Kind::MapItem, path, u"the last "_s + kind.Name + u" isn't whole");
    if (items.size() > static_cast<std::size_t>(kind.MostFiled))
        home.Add(
            Kind::MapItem, path,
            u"there are %1 items of the kind %2; those behind number %3 are gone at the next saving"_s.arg(items.size())
                .arg(kind.Name)
                .arg(kind.MostFiled));
}

// Who is in the boxes that a map file can hold.
QStringList PeopleOf(const MapState& map)
{
    QStringList people;
    for (const std::vector<Cell>& box : ItemsOf(map.sBoxesText, BoxColumn::Count))
        if (people.size() <= LastFiledBox)
            people += IsFreeRow(box) ? QString() : box[BoxColumn::File].Text();
    return people;
}

void CheckBoxes(Home& home, const Branch& branch, const QString& path, const QStringList& people)
{
    for (int number = 1; const QString& person : people) {
        if (IsLink(person) && !home.Leads(branch, person))
            home.Add(Kind::Box, path, u"box %1 stands for this record, "_s.arg(number) + home.WhyNot(branch, person),
                     person);
        ++number;
    }
}

// The lines as a map is written: a title and a list four times. The first title is for whoever opens the file.
void CheckLines(Home& home, const QString& path)
{
    constexpr qsizetype lines = 8;
    QString text = DecodeText(home.Files.Read(path));
    if (text.endsWith(u'\n'))
        text.chop(1);
    if (const qsizetype count = text.count(u'\n') + 1; count != lines)
        home.Add(Kind::MapFile, path, u"the file has %1 lines instead of %2"_s.arg(count).arg(lines));
}

// Empty where the file can't be read as a map.
MapState ReadMap(Home& home, const QString& path)
{
    MapState map;
    try {
        CheckLines(home, path);
        if (!ReadMapLists(home.Files, path, map))
            home.Add(Kind::MapFile, path, u"the boxes, lines and texts don't stand in it one behind the other"_s);
    } catch (const RuntimeError& refusal) {
        if (refusal.Number == ErrorNumber::InputPastEnd)
            home.Add(Kind::MapFile, path, u"the file is cut off"_s);
        else
            home.Add(Kind::Unread, path, u"this map can't be read: "_s + refusal.Text);
    }
    return map;
}

QStringList CheckMap(Home& home, const Branch& branch, const QString& path)
{
    if (!home.RequireReadable(path))
        return {};
    const MapState map = ReadMap(home, path);
    for (const ItemKind& kind : ItemKinds())
        CheckItems(home, path, kind, map.*kind.List);
    const QStringList people = PeopleOf(map);
    CheckBoxes(home, branch, path, people);
    return people;
}
} // namespace

void CheckMaps(Home& home, Branch& branch)
{
    const QString read = home.Files.Resolve(MapFileToRead(branch.Path));
    if (!Home::Stands(read)) {
        home.Add(Kind::MapFile, read, u"the map isn't there"_s);
    } else {
        const QStringList people = CheckMap(home, branch, read);
        for (const QString& person : people)
            branch.Boxed.insert(Folded(person));
        home.Report.Seen.Boxes += static_cast<int>(people.size());
    }
    // An imported branch's map is written beside the one that is read.
    const QString written = home.Files.Resolve(MapFileToWrite(branch.Path, home.Path, u".cfg"));
    if (written != read && Home::Stands(written))
        CheckMap(home, branch, written);
}

void TellWithoutBox(Home& home, const Branch& branch)
{
    if (!branch.Records)
        return;
    const auto hasBox = [&](const QString& number) {
        return std::ranges::any_of(home.Branches, [&](const Branch& other) {
            return IsImported(other.Name) == IsImported(branch.Name) && other.Boxed.contains(Folded(number));
        });
    };
    QStringList without;
    for (const Record& record : *branch.Records)
        if (!record.Number.isEmpty() && !hasBox(record.Number))
            without += record.Number;
    if (!without.isEmpty())
        home.Add(Kind::WithoutBox, home.Files.Resolve(MapFileToRead(branch.Path)),
                 u"records without a box: "_s + without.join(u' '));
}

} // namespace lineforge::check
