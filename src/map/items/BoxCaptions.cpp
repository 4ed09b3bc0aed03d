#include "map/items/BoxCaptions.h"

#include "forms/Form1.h"
#include "map/items/CurrentBox.h"
#include "map/items/MapFile.h"
#include "map/items/MapItems.h"
#include "platform/base/Text.h"
#include "platform/store/Fields.h"
#include "platform/store/OtherPrograms.h"
#include "program/branch/BranchPaths.h"
#include "program/branch/OldDatabase.h"
#include "program/branch/SiblingBranch.h"
#include "program/branch/WorkDatabase.h"

#include <QHash>
#include <QScopeGuard>

#include <map>
#include <memory>
#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
bool IsPlacingSubject(const ToolState& tools)
{
    return tools.MapCursorMode >= MapCursor::Mapping && tools.MapCursorMode <= MapCursor::MovingSubject;
}

// Where a line of the caption of the box at hand begins.
Point LinePlace(const MapMouseState& mouse, const MapSheet& sheet, Point line)
{
    const Point corner = sheet.At({mouse.BoxX, mouse.BoxY});
    return {corner.X + line.X, corner.Y + line.Y};
}

void PrintCaption(const MapSheet& sheet, Point place, const QString& text)
{
    if (sheet.CaptionFont)
        sheet.On.Font = *sheet.CaptionFont;
    sheet.On.ForeColor = Black;
    PrintOnMap(sheet.On, place, text);
    if (!sheet.Printed || text.isEmpty())
        return;
    QStringList& there = (*sheet.Printed)[{place.X, place.Y}];
    if (!there.contains(text))
        there += text;
}

// Prints what stands at that place once more, in the colour of the paper. The pen is black afterwards.
void WipeTexts(MapState& map, forms::Form1& form, Point place)
{
    PictureBox& picture = form.Picture1;
    const auto there = map.Captions.extract({place.X, place.Y});
    if (there.empty())
        return;
    ResetMapFont(picture);
    picture.ForeColor = picture.BackColor;
    for (const QString& text : there.mapped())
        PrintOnMap(picture, place, text);
    picture.ForeColor = Black;
}

QString FiledNumber(const MapState& map, int row)
{
    return map.BoxArr[row][BoxColumn::File].Text();
}

Point PlaceIn(const MapState& map, int row, Point offset)
{
    const auto& box = map.BoxArr[row];
    return {box[BoxColumn::X].Number() + offset.X, box[BoxColumn::Y].Number() + offset.Y};
}

// The cursors on sibling branches of one pass over the boxes, so that each database is opened once.
class Siblings
{
public:
    explicit Siblings(const MapWork& work) : work_(work) {}

    // The cursor on the branch in `WorkDir`, standing on that record; null when there is no such record, or no
    // database that can be opened.
    Recordset* Find(const QString& file)
    {
        // A neighbour that is gone, spoilt or locked costs its forenames, not the drawing of this map, and no question.
        const OtherPrograms::Quiet quiet(work_.Databases.Others());
        try {
            const auto [records, isNew] = open_.try_emplace(work_.Branch.sDbaseName);
            if (isNew)
                records->second = Open(work_.Branch.sDbaseName);
            return records->second && records->second->Seek(Field::File, file) ? records->second.get() : nullptr;
        } catch (const RuntimeError&) {
            return nullptr;
        }
    }

private:
    std::unique_ptr<Recordset> Open(const QString& database)
    {
        ConvertIfOld(work_, database, OldDatabaseUse::Caption);
        return std::make_unique<Recordset>(work_.Databases.Open(work_.Files, database), u"Tree99"_s,
                                           Recordset::Use::Brief);
    }

    const MapWork& work_;
    std::map<QString, std::unique_ptr<Recordset>> open_; // nothing: it can't be opened
};

// A record of another branch: the program points there for the time of the drawing.
void DrawForeignCaption(const MapWork& work, const MapSheet& sheet, Siblings& siblings, int row)
{
    const QString file = FiledNumber(work.Map, row);
    KeepOwnDirectories(work.Branch);
    const auto pointBack = qScopeGuard([&work, before = work.Branch] { work.Branch = before; });
    work.Branch.WorkDir = SiblingDirectory(work.Branch.WorkDir, file.first(1));
    work.Branch.sDbaseName = DatabasePath(work.Branch.WorkDir);
    work.Branch.UsingAlternate = 1;

    TakeBoxPosition(work.Mouse, work.Map, row);
    if (const Recordset* record = siblings.Find(file))
        DrawRecordInBox(work, sheet, *record);
    else
        DrawBoxNumber(work, sheet);
}

// The caption of a box by its number alone: without a walk through the own branch's table.
void DrawCaption(const MapWork& work, const MapSheet& sheet, Siblings& siblings, int row)
{
    work.Scratch.IdxA = row;
    const QString letter = FiledNumber(work.Map, row).left(1);
    if (letter.isEmpty() || letter == u"0" || !HasPlace(work.Map, row))
        return;
    const bool isOwn = SameText(letter, BranchLetter(work.Branch.WorkDir));
    // A caption that can't be told costs none of those behind it.
    work.Errors.Ignoring([&] {
        // The neighbours of an imported branch can't be reached. Their numbers, too, stand in their own boxes.
        if (isOwn || IsImported(work.Branch.WorkDir)) {
            TakeBoxPosition(work.Mouse, work.Map, row);
            DrawBoxNumber(work, sheet);
        } else {
            DrawForeignCaption(work, sheet, siblings, row);
        }
    });
}

// The mouse hit the box of a record from which the record bar may have gone on since.
std::optional<int> RowOfSibling(const MapState& map, const MapMouseState& mouse, const QString& file)
{
    const int hit = mouse.BoxIdx;
    if (hit <= LastMapRow && !file.isEmpty() && SameText(FiledNumber(map, hit), file))
        return hit;
    const int row = RowOfRecord(map, file);
    return row <= LastFiledBox ? std::optional(row) : std::nullopt;
}

// The boxes that stand anywhere by the records that they hold.
QMultiHash<QString, int> BoxesByRecord(const MapState& map)
{
    QMultiHash<QString, int> boxes;
    for (int row = LastFiledBox; row >= 0; --row)
        if (const QString file = map.BoxArr[row][BoxColumn::File].Text(); !file.isEmpty() && HasPlace(map, row))
            boxes.insert(file.toCaseFolded(), row);
    return boxes;
}
} // namespace

QString FittedForename(const QString& forename)
{
    constexpr qsizetype room = 8;
    const QString filed = FiledForename(forename);
    if (filed.size() < room)
        return filed;
    const qsizetype blank = filed.indexOf(u' ');
    const QString first = blank < 0 ? filed : filed.first(blank);
    return first.size() < room ? first : first.first(5) + u'\'' + first.back();
}

void FitForename(RecordState& record, const Recordset& row)
{
    record.sForeName = FittedForename(row.Text(Field::Forename));
}

void DrawRecordInBox(const BoxWork& work, const MapSheet& sheet, const Recordset& row)
{
    if (row.Eof())
        return;
    FitForename(work.Record, row);
    if (IsPlacingSubject(work.Tools))
        FindBoxOfRecord(work);
    const MapSheet::CaptionLines& lines = sheet.Caption;
    PrintCaption(sheet, LinePlace(work.Mouse, sheet, lines.Number), row.Text(Field::File));
    PrintCaption(sheet, LinePlace(work.Mouse, sheet, lines.Forename), work.Record.sForeName);
    if (lines.BirthYear)
        PrintCaption(sheet, LinePlace(work.Mouse, sheet, *lines.BirthYear),
                     u"B :"_s + row.Text(Field::BirthDate).right(4));
}

void DrawRecordInBox(const BoxWork& work, const MapSheet& sheet)
{
    DrawRecordInBox(work, sheet, Records(work.Form3));
}

void DrawBoxNumber(const BoxWork& work, const MapSheet& sheet)
{
    if (IsPlacingSubject(work.Tools))
        FindBoxOfRecord(work);
    // A record without a box has no place for its number, and the place in hand is another's.
    if (work.Scratch.IdxA <= LastFiledBox)
        PrintCaption(sheet, LinePlace(work.Mouse, sheet, sheet.Caption.NumberAlone),
                     FiledNumber(work.Map, work.Scratch.IdxA));
}

void DrawBoxCaptions(const MapWork& work, const MapSheet& sheet)
{
    Siblings siblings(work);
    for (int row = 0; row <= LastFiledBox; ++row)
        DrawCaption(work, sheet, siblings, row);
}

void DrawOwnCaptions(const BoxWork& work, const MapSheet& sheet)
{
    Recordset& records = Records(work.Form3);
    if (records.IsEmpty())
        return;
    const QMultiHash<QString, int> boxes = BoxesByRecord(work.Map);
    for (records.MoveFirst(); !records.Eof(); records.MoveNext()) {
        const QString file = records.Text(Field::File);
        const auto [first, last] = boxes.equal_range(file.toCaseFolded());
        for (auto box = first; box != last; ++box) {
            if (!SameText(FiledNumber(work.Map, *box), file))
                continue;
            work.Errors.Ignoring([&] {
                TakeBoxPosition(work.Mouse, work.Map, *box);
                DrawRecordInBox(work, sheet);
            });
        }
    }
}

void WipeCaption(MapState& map, forms::Form1& form, int row)
{
    WipeTexts(map, form, PlaceIn(map, row, NumberInBox));
    WipeTexts(map, form, PlaceIn(map, row, ForenameInBox));
}

void TieBox(MapState& map, forms::Form1& form, int row, const QString& file, const QString& forename)
{
    WipeCaption(map, form, row);
    map.BoxArr[row][BoxColumn::File] = file;
    map.BoxArr[row][BoxColumn::Forename] = FiledForename(forename);
}

void RenameBox(MapState& map, forms::Form1& form, int row, const QString& forename)
{
    const Point place = PlaceIn(map, row, ForenameInBox);
    form.Picture1.Font = {};
    WipeTexts(map, form, place);
    map.BoxArr[row][BoxColumn::Forename] = FiledForename(forename);
    PrintCaption(MapOnScreen(map, form), place, FittedForename(forename));
}

std::optional<int> RowToErase(const BoxWork& work)
{
    FindBoxOfRecord(work);
    // A record without a box has no caption.
    // KEPT(EraseBoxCaptionTest.LastBoxRow_IsLeftAlone): the last box can't be erased this way either.
    // Mended, it would be emptied when its record is deleted or moves to another box.
    if (work.Scratch.IdxA >= LastFiledBox)
        return std::nullopt;
    FitForename(work.Record, Records(work.Form3));
    return work.Scratch.IdxA;
}

void EmptyBox(MapState& map, forms::Form1& form, int row)
{
    TieBox(map, form, row, u"0"_s, {});
    ResetMapFont(form.Picture1);
    form.Picture1.ForeColor = Black;
}

void EraseBoxCaption(const BoxWork& work)
{
    if (const std::optional<int> row = RowToErase(work))
        EmptyBox(work.Map, *work.Form1, *row);
}

void EraseSiblingsBox(const BoxWork& work, const QString& file)
{
    work.Record.sForeName = FittedForename(work.Record.sAltName);
    const std::optional<int> row = RowOfSibling(work.Map, work.Mouse, file);
    if (!row)
        return;
    work.Scratch.IdxA = *row;
    TakeBoxPosition(work.Mouse, work.Map, *row);
    EmptyBox(work.Map, *work.Form1, *row);
}

} // namespace lineforge
