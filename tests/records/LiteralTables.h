#pragma once

#include "platform/base/RuntimeError.h"

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <vector>

// Branches as plain data, for a model of the program that has nothing of its code: a table is a list of rows, a cursor
// an index that walks it row by row. Nothing is looked up, kept or put off.
namespace lineforge
{

using LiteralField = std::optional<QString>;
using LiteralFields = QMap<QString, LiteralField>; // by their names; one that isn't there is Null

struct LiteralRow {
    int Id;
    LiteralFields Fields;
};

struct LiteralBranch {
    std::vector<LiteralRow> Rows; // in storage order, and so by their ids
    int LastId = 0;
    QString Boxes;                   // the list as the map file has it
    QMap<QString, QString> Pictures; // colour by the number of the record in small letters
    bool RefusesChanges = false;
    bool RefusesDeletions = false;

    void Add(const LiteralFields& fields) { Rows.push_back({++LastId, fields}); }
    const LiteralRow* Find(int id) const;
};

// Whether the text fits the pattern, case ignored: `*` any run, `?` any one, `#` a digit, `[...]` one of a class, `[!`
// none of it.
bool IsLike(const QString& text, const QString& pattern);

// Case ignored.
bool IsSame(const QString& a, const QString& b);

// A cursor; of the rows it knows those that stood there when it was opened, and those that it has added.
class LiteralCursor
{
public:
    LiteralCursor() = default;
    LiteralCursor(QChar letter, LiteralBranch& branch);

    bool IsOpen() const { return !Letter.isNull(); }
    bool IsEmpty() const { return Bof && Eof; }

    QChar Letter;
    bool Bof = false;
    bool Eof = false;
    int Id = 0;
    std::optional<LiteralFields> Edit; // what `Edit` or `AddNew` began
    bool IsAddition = false;
    int LastModified = 0;

    bool Knows(int id) const { return id <= lastAtOpening_ || added_.contains(id); }
    void NoteAdded(int id) { added_.insert(id); }

private:
    int lastAtOpening_ = 0;
    QSet<int> added_;
};

// All branches of a home, and what a cursor can do in them. What is refused is a RuntimeError.
class LiteralTables
{
public:
    explicit LiteralTables(QString home) : Home(std::move(home)) {}
    virtual ~LiteralTables() = default;
    LiteralTables(const LiteralTables&) = default;
    LiteralTables& operator=(const LiteralTables&) = default;

    QString Home; // without a trailing separator
    std::map<QChar, LiteralBranch> Branches;

    QString DirectoryOf(QChar letter) const { return Home + QStringLiteral("/LfgDat_") + letter; }
    QString DatabaseOf(QChar letter) const
    {
        return DirectoryOf(letter) + QStringLiteral("/LfgDat_") + letter + QStringLiteral(".mdb");
    }

    bool HasRow(const LiteralCursor& cursor) const;
    LiteralField Value(const LiteralCursor& cursor, const QString& field) const;
    QString Text(const LiteralCursor& cursor, const QString& field) const;

    void MoveFirst(LiteralCursor& cursor);
    void MoveLast(LiteralCursor& cursor);
    void MoveNext(LiteralCursor& cursor);
    void MovePrevious(LiteralCursor& cursor);
    // Row by row from the first; at `Eof` without a match.
    bool Walk(LiteralCursor& cursor, const QString& field, const QString& value);
    int Bookmark(const LiteralCursor& cursor) const;
    void GoBack(LiteralCursor& cursor, int bookmark);

    void Edit(LiteralCursor& cursor);
    void AddNew(LiteralCursor& cursor);
    void Put(LiteralCursor& cursor, const QString& field, const LiteralField& value);
    void Update(LiteralCursor& cursor);
    void Delete(LiteralCursor& cursor);

protected:
    // For the data control of the record form, whose boxes write when the row is left or updated.
    virtual void Leaving(LiteralCursor&) {}
    virtual void Updating(LiteralCursor&) {}
    virtual void Arrived(LiteralCursor&) {}
    // Before a row is written or goes.
    virtual void Changing() {}

private:
    std::vector<int> Ids(const LiteralCursor& cursor) const;
    void StandOn(LiteralCursor& cursor, int id);
    void StandAtEnd(LiteralCursor& cursor, bool& end);
    void RequireRow(const LiteralCursor& cursor) const;
};

} // namespace lineforge
