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
bool IsPlacingSubject(const Program& p)
{
    return p.Tools.MapCursorMode >= MapCursor::Mapping && p.Tools.MapCursorMode <= MapCursor::MovingSubject;
}

// Where a line of the caption of the box at hand begins.
Point LinePlace(const Program& p, const MapSheet& sheet, Point line)
{
    const Point corner = sheet.At({p.Mouse.BoxX, p.Mouse.BoxY});
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
void WipeTexts(Program& p, Point place)
{
    PictureBox& picture = p.Form1->Picture1;
    const auto there = p.Map.Captions.extract({place.X, place.Y});
    if (there.empty())
        return;
    ResetMapFont(picture);
    picture.ForeColor = picture.BackColor;
    for (const QString& text : there.mapped())
        PrintOnMap(picture, place, text);
    picture.ForeColor = Black;
}

QString FiledNumber(const Program& p, int row)
{
    return p.Map.BoxArr[row][BoxColumn::File].Text();
}

Point PlaceIn(const Program& p, int row, Point offset)
{
    const auto& box = p.Map.BoxArr[row];
    return {box[BoxColumn::X].Number() + offset.X, box[BoxColumn::Y].Number() + offset.Y};
}

// The cursors on sibling branches of one pass over the boxes, so that each database is opened once.
class Siblings
{
public:
    explicit Siblings(Program& p) : p_(p) {}

    // The cursor on the branch in `WorkDir`, standing on that record; null when there is no such record, or no
    // database that can be opened.
    Recordset* Find(const QString& file)
    {
        // A neighbour that is gone, spoilt or locked costs its forenames, not the drawing of this map, and no question.
        const OtherPrograms::Quiet quiet(p_.Databases.Others());
        try {
            const auto [records, isNew] = open_.try_emplace(p_.Branch.sDbaseName);
            if (isNew)
                records->second = Open(p_.Branch.sDbaseName);
            return records->second && records->second->Seek(Field::File, file) ? records->second.get() : nullptr;
        } catch (const RuntimeError&) {
            return nullptr;
        }
    }

private:
    std::unique_ptr<Recordset> Open(const QString& database)
    {
        ConvertIfOld(p_, database, OldDatabaseUse::Caption);
        return std::make_unique<Recordset>(p_.Databases.Open(p_.Files, database), u"Tree99"_s, Recordset::Use::Brief);
    }

    Program& p_;
    std::map<QString, std::unique_ptr<Recordset>> open_; // nothing: it can't be opened
};

// A record of another branch: the program points there for the time of the drawing.
void DrawForeignCaption(Program& p, const MapSheet& sheet, Siblings& siblings, int row)
{
    const QString file = FiledNumber(p, row);
    KeepOwnDirectories(p.Branch);
    const auto pointBack = qScopeGuard([&p, before = p.Branch] { p.Branch = before; });
    p.Branch.WorkDir = SiblingDirectory(p.Branch.WorkDir, file.first(1));
    p.Branch.sDbaseName = DatabasePath(p.Branch.WorkDir);
    p.Branch.UsingAlternate = 1;

    TakeBoxPosition(p, row);
    if (const Recordset* record = siblings.Find(file))
        DrawRecordInBox(p, sheet, *record);
    else
        DrawBoxNumber(p, sheet);
}

// The caption of a box by its number alone: without a walk through the own branch's table.
void DrawCaption(Program& p, const MapSheet& sheet, Siblings& siblings, int row)
{
    p.Scratch.IdxA = row;
    const QString letter = FiledNumber(p, row).left(1);
    if (letter.isEmpty() || letter == u"0" || !HasPlace(p.Map, row))
        return;
    const bool isOwn = SameText(letter, BranchLetter(p.Branch.WorkDir));
    // A caption that can't be told costs none of those behind it.
    p.Errors.Ignoring([&] {
        // The neighbours of an imported branch can't be reached. Their numbers, too, stand in their own boxes.
        if (isOwn || IsImported(p.Branch.WorkDir)) {
            TakeBoxPosition(p, row);
            DrawBoxNumber(p, sheet);
        } else {
            DrawForeignCaption(p, sheet, siblings, row);
        }
    });
}

// The mouse hit the box of a record from which the record bar may have gone on since.
std::optional<int> RowOfSibling(const Program& p, const QString& file)
{
    const int hit = p.Mouse.BoxIdx;
    if (hit <= LastMapRow && !file.isEmpty() && SameText(FiledNumber(p, hit), file))
        return hit;
    const int row = RowOfRecord(p.Map, file);
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

void FitForename(Program& p, const Recordset& row)
{
    p.Record.sForeName = FittedForename(row.Text(Field::Forename));
}

void FitForename(Program& p)
{
    FitForename(p, Records(p.Form3));
}

void DrawRecordInBox(Program& p, const MapSheet& sheet, const Recordset& row)
{
    if (row.Eof())
        return;
    FitForename(p, row);
    if (IsPlacingSubject(p))
        FindBoxOfRecord(p);
    const MapSheet::CaptionLines& lines = sheet.Caption;
    PrintCaption(sheet, LinePlace(p, sheet, lines.Number), row.Text(Field::File));
    PrintCaption(sheet, LinePlace(p, sheet, lines.Forename), p.Record.sForeName);
    if (lines.BirthYear)
        PrintCaption(sheet, LinePlace(p, sheet, *lines.BirthYear), u"B :"_s + row.Text(Field::BirthDate).right(4));
}

void DrawRecordInBox(Program& p, const MapSheet& sheet)
{
    DrawRecordInBox(p, sheet, Records(p.Form3));
}

void DrawBoxNumber(Program& p, const MapSheet& sheet)
{
    if (IsPlacingSubject(p))
        FindBoxOfRecord(p);
    // A record without a box has no place for its number, and the place in hand is another's.
    if (p.Scratch.IdxA <= LastFiledBox)
        PrintCaption(sheet, LinePlace(p, sheet, sheet.Caption.NumberAlone), FiledNumber(p, p.Scratch.IdxA));
}

void DrawBoxCaptions(Program& p, const MapSheet& sheet)
{
    Siblings siblings(p);
    for (int row = 0; row <= LastFiledBox; ++row)
        DrawCaption(p, sheet, siblings, row);
}

void DrawOwnCaptions(Program& p, const MapSheet& sheet)
{
    Recordset& records = Records(p.Form3);
    if (records.IsEmpty())
        return;
    const QMultiHash<QString, int> boxes = BoxesByRecord(p.Map);
    for (records.MoveFirst(); !records.Eof(); records.MoveNext()) {
        const QString file = records.Text(Field::File);
        const auto [first, last] = boxes.equal_range(file.toCaseFolded());
        for (auto box = first; box != last; ++box) {
            if (!SameText(FiledNumber(p, *box), file))
                continue;
            p.Errors.Ignoring([&] {
                TakeBoxPosition(p, *box);
                DrawRecordInBox(p, sheet);
            });
        }
    }
}

void WipeCaption(Program& p, int row)
{
    WipeTexts(p, PlaceIn(p, row, NumberInBox));
    WipeTexts(p, PlaceIn(p, row, ForenameInBox));
}

void TieBox(Program& p, int row, const QString& file, const QString& forename)
{
    WipeCaption(p, row);
    p.Map.BoxArr[row][BoxColumn::File] = file;
    p.Map.BoxArr[row][BoxColumn::Forename] = FiledForename(forename);
}

void RenameBox(Program& p, int row, const QString& forename)
{
    const Point place = PlaceIn(p, row, ForenameInBox);
    p.Form1->Picture1.Font = {};
    WipeTexts(p, place);
    p.Map.BoxArr[row][BoxColumn::Forename] = FiledForename(forename);
    PrintCaption(MapOnScreen(p), place, FittedForename(forename));
}

std::optional<int> RowToErase(Program& p)
{
    FindBoxOfRecord(p);
    // A record without a box has no caption.
    // KEPT(EraseBoxCaptionTest.LastBoxRow_IsLeftAlone): the last box can't be erased this way either.
    // Mended, it would be emptied when its record is deleted or moves to another box.
    if (p.Scratch.IdxA >= LastFiledBox)
        return std::nullopt;
    FitForename(p);
    return p.Scratch.IdxA;
}

void EmptyBox(Program& p, int row)
{
    TieBox(p, row, u"0"_s, {});
    ResetMapFont(p.Form1->Picture1);
    p.Form1->Picture1.ForeColor = Black;
}

void EraseBoxCaption(Program& p)
{
    if (const std::optional<int> row = RowToErase(p))
        EmptyBox(p, *row);
}

void EraseSiblingsBox(Program& p, const QString& file)
{
    p.Record.sForeName = FittedForename(p.Record.sAltName);
    const std::optional<int> row = RowOfSibling(p, file);
    if (!row)
        return;
    p.Scratch.IdxA = *row;
    TakeBoxPosition(p, *row);
    EmptyBox(p, *row);
}

} // namespace lineforge
