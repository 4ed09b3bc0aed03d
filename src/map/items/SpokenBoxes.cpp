#include "map/items/SpokenBoxes.h"

#include "forms/Form3.h"
#include "map/items/CurrentBox.h"
#include "platform/base/Text.h"
#include "platform/store/Fields.h"
#include "platform/store/Recordset.h"
#include "program/branch/BranchPaths.h"

#include <QHash>

#include <map>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// By the folded numbers of their records. Of several records of one number the first counts, as everywhere.
using Forenames = QHash<QString, QString>;

Forenames ReadForenames(const DatabaseOpening& opening, const QString& database)
{
    Forenames forenames;
    try {
        Recordset records(opening.Databases.Open(opening.Files, database), u"Tree99"_s);
        for (; !records.Eof(); records.MoveNext())
            if (const QString number = Folded(records.Text(Field::File)); !forenames.contains(number))
                forenames.insert(number, records.Text(Field::Forename));
    } catch (const RuntimeError&) {
        // Whatever stands in the way is told by the command that needs the records.
    }
    return forenames;
}

// The people of the branch whose map is shown, and of its siblings. What the map's file says of a forename may be
// somebody's who stood in the box before.
class People
{
public:
    People(const MapState& map, const BranchAccess& access) : map_(map), access_(access) {}

    QString ForenameOf(const QString& number)
    {
        const QString& own = map_.Owner;
        if (own.isEmpty())
            return {};
        if (IsOnShow(number))
            return access_.Form3->Text3.Text;
        const Forenames& ours = Of(own);
        // The neighbours of an imported branch can't be reached.
        if (ours.contains(Folded(number)) || IsImported(own))
            return ours.value(Folded(number));
        return Of(SiblingDirectory(own, number.first(1))).value(Folded(number));
    }

private:
    // What is typed into the record form may stand in the box before it is stored.
    bool IsOnShow(const QString& number)
    {
        return access_.Form3.IsLoaded() && access_.Branch.UsingAlternate == 0 &&
               SameText(access_.Form3->Label25.Caption.value(), number);
    }

    const Forenames& Of(const QString& branch)
    {
        const auto known = branches_.find(branch);
        return known != branches_.end()
                   ? known->second
                   : branches_.emplace(branch, ReadForenames(access_, DatabasePath(branch))).first->second;
    }

    const MapState& map_;
    const BranchAccess& access_;
    std::map<QString, Forenames> branches_;
};

QString SpokenName(People& people, const QString& number)
{
    if (number.isEmpty() || number.startsWith(u'0'))
        return u"Empty box"_s;
    return QString(number + u' ' + people.ForenameOf(number)).trimmed();
}
} // namespace

std::vector<PicturePart> SpokenBoxes(const MapState& map, const BranchAccess& access)
{
    std::vector<PicturePart> boxes;
    People people(map, access);
    for (int row = 0; row <= LastMapRow; ++row) {
        const auto& box = map.BoxArr[row];
        if (!HasPlace(map, row))
            continue;
        const Rectangle place{box[BoxColumn::X].Number(), box[BoxColumn::Y].Number(), BoxWidth, BoxHeight};
        boxes.push_back(
            {row, place, SpokenName(people, box[BoxColumn::File].Text()), u"%1, %2"_s.arg(place.Left).arg(place.Top)});
    }
    return boxes;
}

} // namespace lineforge
