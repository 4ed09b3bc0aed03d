#include "records/LiteralTables.h"

#include <algorithm>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// The class that begins behind its "["; the end of it, or nothing when it isn't closed.
std::optional<qsizetype> EndOfClass(const QString& pattern, qsizetype start)
{
    const qsizetype end = pattern.indexOf(u']', start);
    return end < 0 ? std::nullopt : std::optional(end);
}

bool IsInClass(QChar character, QString characters)
{
    const bool isInverted = characters.startsWith(u'!');
    if (isInverted)
        characters.remove(0, 1);
    bool isIn = false;
    for (qsizetype at = 0; at < characters.size(); ++at) {
        const bool isRange = at + 2 < characters.size() && characters[at + 1] == u'-';
        isIn = isIn ||
               (isRange ? characters[at] <= character && character <= characters[at + 2] : characters[at] == character);
        at += isRange ? 2 : 0;
    }
    return isIn != isInverted;
}

bool Fits(const QString& text, const QString& pattern)
{
    if (pattern.isEmpty())
        return text.isEmpty();
    const QString rest = pattern.mid(1);
    if (pattern[0] == u'*') {
        for (qsizetype taken = 0; taken <= text.size(); ++taken)
            if (Fits(text.mid(taken), rest))
                return true;
        return false;
    }
    if (text.isEmpty())
        return false;
    if (pattern[0] == u'[')
        if (const std::optional<qsizetype> end = EndOfClass(pattern, 1))
            return IsInClass(text[0], pattern.mid(1, *end - 1)) && Fits(text.mid(1), pattern.mid(*end + 1));
    const bool fits = pattern[0] == u'?' || (pattern[0] == u'#' && text[0].isDigit()) ||
                      (pattern[0] != u'#' && pattern[0] == text[0]);
    return fits && Fits(text.mid(1), rest);
}
} // namespace

bool IsLike(const QString& text, const QString& pattern)
{
    return Fits(text.toLower(), pattern.toLower());
}

bool IsSame(const QString& a, const QString& b)
{
    return a.toLower() == b.toLower();
}

const LiteralRow* LiteralBranch::Find(int id) const
{
    const auto row = std::ranges::find(Rows, id, &LiteralRow::Id);
    return row == Rows.end() ? nullptr : &*row;
}

LiteralCursor::LiteralCursor(QChar letter, LiteralBranch& branch) : Letter(letter), lastAtOpening_(branch.LastId)
{
    Bof = Eof = branch.Rows.empty();
    if (!branch.Rows.empty())
        Id = branch.Rows.front().Id;
}

std::vector<int> LiteralTables::Ids(const LiteralCursor& cursor) const
{
    std::vector<int> ids;
    for (const LiteralRow& row : Branches.at(cursor.Letter).Rows)
        if (cursor.Knows(row.Id))
            ids.push_back(row.Id);
    return ids;
}

void LiteralTables::StandOn(LiteralCursor& cursor, int id)
{
    cursor.Id = id;
    cursor.Bof = cursor.Eof = false;
    cursor.Edit.reset();
    cursor.IsAddition = false;
    Arrived(cursor);
}

void LiteralTables::StandAtEnd(LiteralCursor& cursor, bool& end)
{
    cursor.Bof = cursor.Eof = Ids(cursor).empty();
    end = true;
    cursor.Edit.reset();
    cursor.IsAddition = false;
    Arrived(cursor);
}

void LiteralTables::RequireRow(const LiteralCursor& cursor) const
{
    if (cursor.Bof || cursor.Eof)
        throw RuntimeError(ErrorNumber::NoCurrentRecord, DatabaseOf(cursor.Letter));
    if (!Branches.at(cursor.Letter).Find(cursor.Id))
        throw RuntimeError(ErrorNumber::RecordDeleted, DatabaseOf(cursor.Letter));
}

bool LiteralTables::HasRow(const LiteralCursor& cursor) const
{
    return cursor.IsOpen() && !cursor.Bof && !cursor.Eof && Branches.at(cursor.Letter).Find(cursor.Id);
}

LiteralField LiteralTables::Value(const LiteralCursor& cursor, const QString& field) const
{
    if (cursor.Edit && cursor.Edit->contains(field))
        return (*cursor.Edit)[field];
    RequireRow(cursor);
    return Branches.at(cursor.Letter).Find(cursor.Id)->Fields.value(field);
}

QString LiteralTables::Text(const LiteralCursor& cursor, const QString& field) const
{
    return Value(cursor, field).value_or(QString());
}

void LiteralTables::MoveFirst(LiteralCursor& cursor)
{
    Leaving(cursor);
    const std::vector<int> ids = Ids(cursor);
    ids.empty() ? StandAtEnd(cursor, cursor.Eof) : StandOn(cursor, ids.front());
}

void LiteralTables::MoveLast(LiteralCursor& cursor)
{
    Leaving(cursor);
    const std::vector<int> ids = Ids(cursor);
    ids.empty() ? StandAtEnd(cursor, cursor.Bof) : StandOn(cursor, ids.back());
}

void LiteralTables::MoveNext(LiteralCursor& cursor)
{
    if (cursor.Eof)
        throw RuntimeError(ErrorNumber::NoCurrentRecord, DatabaseOf(cursor.Letter));
    Leaving(cursor);
    for (const int id : Ids(cursor))
        if (cursor.Bof || id > cursor.Id)
            return StandOn(cursor, id);
    StandAtEnd(cursor, cursor.Eof);
}

void LiteralTables::MovePrevious(LiteralCursor& cursor)
{
    if (cursor.Bof)
        throw RuntimeError(ErrorNumber::NoCurrentRecord, DatabaseOf(cursor.Letter));
    Leaving(cursor);
    std::vector<int> ids = Ids(cursor);
    std::ranges::reverse(ids);
    for (const int id : ids)
        if (cursor.Eof || id < cursor.Id)
            return StandOn(cursor, id);
    StandAtEnd(cursor, cursor.Bof);
}

bool LiteralTables::Walk(LiteralCursor& cursor, const QString& field, const QString& value)
{
    for (MoveFirst(cursor); !cursor.Eof; MoveNext(cursor))
        if (const LiteralField found = Value(cursor, field); found && IsSame(*found, value))
            return true;
    return false;
}

int LiteralTables::Bookmark(const LiteralCursor& cursor) const
{
    RequireRow(cursor);
    return cursor.Id;
}

void LiteralTables::GoBack(LiteralCursor& cursor, int bookmark)
{
    Leaving(cursor);
    StandOn(cursor, bookmark);
}

void LiteralTables::Edit(LiteralCursor& cursor)
{
    RequireRow(cursor);
    cursor.Edit.emplace();
}

void LiteralTables::AddNew(LiteralCursor& cursor)
{
    Leaving(cursor);
    cursor.Edit.emplace();
    cursor.IsAddition = true;
}

void LiteralTables::Put(LiteralCursor& cursor, const QString& field, const LiteralField& value)
{
    (*cursor.Edit)[field] = value;
}

void LiteralTables::Update(LiteralCursor& cursor)
{
    Updating(cursor);
    LiteralBranch& branch = Branches.at(cursor.Letter);
    if (!cursor.Edit)
        throw RuntimeError(ErrorNumber::UpdateWithoutEdit, DatabaseOf(cursor.Letter));
    Changing();
    if (branch.RefusesChanges) {
        const LiteralField file =
            cursor.IsAddition ? cursor.Edit->value(u"File"_s) : branch.Find(cursor.Id)->Fields.value(u"File"_s);
        throw RuntimeError(ErrorNumber::DeviceIo,
                           DatabaseOf(cursor.Letter) + u'\n' + (file ? u"Record "_s + *file : u"A record"_s));
    }
    if (cursor.IsAddition) {
        branch.Add(*cursor.Edit);
        cursor.NoteAdded(branch.LastId);
        cursor.LastModified = branch.LastId;
    } else {
        for (LiteralRow& row : branch.Rows)
            if (row.Id == cursor.Id)
                row.Fields.insert(*cursor.Edit);
        cursor.LastModified = cursor.Id;
    }
    cursor.Edit.reset();
    cursor.IsAddition = false;
    Arrived(cursor);
}

void LiteralTables::Delete(LiteralCursor& cursor)
{
    Changing();
    RequireRow(cursor);
    LiteralBranch& branch = Branches.at(cursor.Letter);
    if (branch.RefusesDeletions)
        throw RuntimeError(ErrorNumber::DeviceIo, DatabaseOf(cursor.Letter));
    std::erase_if(branch.Rows, [&](const LiteralRow& row) { return row.Id == cursor.Id; });
    cursor.Edit.reset();
    Arrived(cursor);
}

} // namespace lineforge
