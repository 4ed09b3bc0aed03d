#include "map/BoxCaptions.h"

#include "map/CurrentBox.h"
#include "map/MapItems.h"
#include "platform/Text.h"
#include "program/AlternateBranch.h"
#include "program/BranchPaths.h"
#include "program/OldDatabase.h"
#include "program/WorkDatabase.h"

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

Point InBox(const Program& p, Point offset)
{
    return {p.Mouse.BoxX + offset.X, p.Mouse.BoxY + offset.Y};
}

// On paper the lines of a caption lie `below` the stretched top of the box.
Point CaptionPlace(const Program& p, Point offset, int below)
{
    return OnPaper(p) ? OnMapSurface(p, InBox(p, {offset.X, 0}), below) : InBox(p, offset);
}

Surface& CaptionSurface(Program& p, Colour pen)
{
    Surface& surface = MapSurface(p);
    if (!OnPaper(p))
        ResetMapFont(surface);
    surface.ForeColor = pen;
    return surface;
}

// Whether the box of the record is looked for while a subject is being mapped or moved.
enum class Search { WhilePlacing, Never };

void DrawRecord(Program& p, const Recordset& row, Colour pen, Search search = Search::WhilePlacing)
{
    if (row.Eof())
        return;
    FitForename(p, row);
    if (search == Search::WhilePlacing && IsPlacingSubject(p))
        FindBoxOfRecord(p);
    Surface& surface = CaptionSurface(p, pen);
    PrintOnMap(surface, CaptionPlace(p, NumberInBox, 10), row.Text(u"File"));
    surface.PrintAt(CaptionPlace(p, ForenameInBox, 130), p.Record.sForeName);
    if (OnPaper(p))
        surface.PrintAt(CaptionPlace(p, ForenameInBox, 260), u"B :"_s + row.Text(u"BirthDate").right(4));
}

void DrawNumber(Program& p, Colour pen)
{
    if (IsPlacingSubject(p))
        FindBoxOfRecord(p);
    PrintOnMap(CaptionSurface(p, pen), CaptionPlace(p, NumberInBox, 40),
               p.Map.BoxArr[p.Scratch.IdxA][BoxColumn::File].Text());
}

QString FiledNumber(const Program& p, int row)
{
    return p.Map.BoxArr[row][BoxColumn::File].Text();
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
        try {
            std::unique_ptr<Recordset>& records = open_[p_.Branch.sDbaseName];
            if (!records) {
                ConvertIfOld(p_, p_.Branch.sDbaseName, OldDatabaseUse::Caption);
                records = std::make_unique<Recordset>(p_.Databases.Open(p_.Files, p_.Branch.sDbaseName), u"Tree99"_s);
            }
            return records->Seek(u"File", file) ? records.get() : nullptr;
        } catch (const RuntimeError&) {
            // A neighbour that is gone or spoilt costs its forename, not the drawing of this map.
            return nullptr;
        }
    }

private:
    Program& p_;
    std::map<QString, std::unique_ptr<Recordset>> open_;
};

// A record of another branch: the program points there for the time of the drawing.
void DrawForeignCaption(Program& p, Siblings& siblings, int row, Colour pen)
{
    const QString file = FiledNumber(p, row);
    KeepOwnDirectories(p);
    const auto pointBack = qScopeGuard([&p, before = p.Branch] { p.Branch = before; });
    p.Branch.WorkDir = SiblingDirectory(p.Branch.WorkDir, file.first(1));
    p.Branch.sDbaseName = DatabasePath(p.Branch.WorkDir);
    p.Branch.UsingAlternate = 1;

    TakeBoxPosition(p, row);
    if (const Recordset* record = siblings.Find(file))
        DrawRecord(p, *record, pen);
    else
        DrawNumber(p, pen);
}

// The caption of a box by its number alone: without a walk through the own branch's table.
void DrawCaption(Program& p, Siblings& siblings, int row, Colour pen)
{
    p.Scratch.IdxA = row;
    const QString letter = FiledNumber(p, row).left(1);
    if (letter.isEmpty() || letter == u"0")
        return;
    const bool isOwn = SameText(letter, BranchLetter(p.Branch.WorkDir));
    // A box at no possible place costs its own caption, not those of the boxes behind it.
    p.Errors.Ignoring([&] {
        // The neighbours of an imported branch can't be reached.
        if (isOwn || IsImported(p.Branch.WorkDir)) {
            TakeBoxPosition(p, row);
            DrawNumber(p, pen);
        } else {
            DrawForeignCaption(p, siblings, row, pen);
        }
    });
}

// The boxes by the records that they hold.
QMultiHash<QString, int> BoxesByRecord(const MapState& map)
{
    QMultiHash<QString, int> boxes;
    for (int row = LastFiledBox; row >= 0; --row)
        if (const QString file = map.BoxArr[row][BoxColumn::File].Text(); !file.isEmpty())
            boxes.insert(file.toCaseFolded(), row);
    return boxes;
}
} // namespace

QString FittedForename(const QString& forename)
{
    constexpr qsizetype room = 8;
    if (forename.size() < room)
        return forename;
    const qsizetype blank = forename.indexOf(u' ');
    const QString first = blank < 0 ? forename : forename.first(blank);
    return first.size() < room ? first : first.first(5) + u'\'' + first.back();
}

void FitForename(Program& p, const Recordset& row)
{
    p.Record.sForeName = FittedForename(row.Text(u"Forename"));
}

void FitForename(Program& p)
{
    FitForename(p, Records(p));
}

void PrintForename(Program& p, Point corner, const QString& forename, Colour pen)
{
    PictureBox& picture = p.Form1->Picture1;
    picture.Font = {};
    picture.ForeColor = pen;
    picture.PrintAt({corner.X + ForenameInBox.X, corner.Y + ForenameInBox.Y}, forename);
    picture.ForeColor = Black;
}

void DrawRecordInBox(Program& p, const Recordset& row)
{
    DrawRecord(p, row, Black);
}

void DrawRecordInBox(Program& p)
{
    DrawRecordInBox(p, Records(p));
}

void DrawBoxNumber(Program& p)
{
    DrawNumber(p, Black);
}

void DrawBoxCaptions(Program& p)
{
    Siblings siblings(p);
    for (int row = 0; row <= LastFiledBox; ++row)
        DrawCaption(p, siblings, row, Black);
}

void WipeCaption(Program& p, int row)
{
    const Colour paper = p.Form1->Picture1.BackColor;
    if (Records(p).HasRow()) {
        // Another box may hold the same record, and come first.
        TakeBoxPosition(p, row);
        DrawRecord(p, Records(p), paper, Search::Never);
        return;
    }
    Siblings siblings(p);
    DrawCaption(p, siblings, row, paper);
}

void DrawRecordsInBoxes(Program& p)
{
    Recordset& records = Records(p);
    if (records.IsEmpty())
        return;
    const QMultiHash<QString, int> boxes = BoxesByRecord(p.Map);
    for (records.MoveFirst(); !records.Eof(); records.MoveNext()) {
        const QString file = records.Text(u"File");
        const auto [first, last] = boxes.equal_range(file.toCaseFolded());
        for (auto box = first; box != last; ++box) {
            if (!SameText(FiledNumber(p, *box), file))
                continue;
            p.Errors.Ignoring([&] {
                TakeBoxPosition(p, *box);
                DrawRecordInBox(p);
            });
        }
    }
}

void EraseBoxCaption(Program& p)
{
    const bool isAlternate = p.Branch.UsingAlternate == 1;
    if (!isAlternate) {
        FindBoxOfRecord(p);
        // A record without a box has no caption. The last box can't be erased this way either; so it is meant to be.
        if (p.Scratch.IdxA >= LastFiledBox)
            return;
        FitForename(p);
    } else {
        p.Scratch.IdxA = p.Mouse.BoxIdx;
        TakeBoxPosition(p, p.Mouse.BoxIdx);
        p.Record.sForeName = FittedForename(p.Record.sAltName);
    }
    const QString number = isAlternate ? FiledNumber(p, p.Scratch.IdxA) : Records(p).Text(u"File");
    p.Map.BoxArr[p.Scratch.IdxA][BoxColumn::File] = 0;

    PictureBox& picture = p.Form1->Picture1;
    ResetMapFont(picture);
    picture.ForeColor = picture.BackColor;
    PrintOnMap(picture, InBox(p, NumberInBox), number);
    picture.PrintAt(InBox(p, ForenameInBox), p.Record.sForeName);
    picture.ForeColor = Black;
}

} // namespace lineforge
