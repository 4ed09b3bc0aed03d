#pragma once

#include "platform/Database.h"
#include "platform/Like.h"

#include <QHash>
#include <QString>

#include <optional>
#include <set>
#include <vector>

namespace lineforge
{

// A remembered position of a cursor; empty until one has been stored in it.
using Bookmark = std::optional<std::int64_t>;

// The text of a field, or nothing for Null.
using FieldValue = std::optional<QString>;

// A cursor over one table in storage order. The rows are those that stood in the table when it was opened and those
// that this cursor added; their values are read live. It stands on a row, before the first (`Bof`), behind the last
// (`Eof`), or on a row that is gone. The names of fields are compared without regard to case.
//
// Errors: 3021 reading, editing or moving on without a current row; 3167 on a row that has been deleted; 3265 no such
// field; 3020 `Update` with nothing in hand; and those of the engine that `Statement` names.
class Recordset
{
public:
    // Stands on the first row. 3078 when the file has no such table, and the errors of `Databases::Open`.
    Recordset(std::shared_ptr<Database> database, const QString& table);
    virtual ~Recordset() = default;
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    // `Eof` is spelt so because the C library has taken the capitals for a macro. Both true: the table is empty.
    bool Bof() const { return bof_; }
    bool Eof() const { return eof_; }
    bool IsEmpty() const { return bof_ && eof_; }
    // Whether there is a current row to be read.
    bool HasRow() const;

    // To the first or last row of an empty table is no error; `MoveNext` at `Eof` and `MovePrevious` at `Bof` are 3021.
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    void MovePrevious();

    // Ends as a walk from the first row does that compares this field with the value, case ignored, and stops at the
    // first match: on that row and true, or at `Eof` and false. A Null never matches. Costs one pass of the engine.
    bool Seek(QStringView field, const QString& value);

    FieldValue Value(QStringView field) const;
    // Null reads as empty text.
    QString Text(QStringView field) const { return Value(field).value_or(QString()); }
    // Whether the field holds that text, case ignored; false for Null. Cheaper than `Value` during a walk.
    bool FieldIs(QStringView field, const QString& value) const;

    // The place of a field in the table, for walks that look at many fields of every row.
    int Column(QStringView field) const;
    // Whether the field at that place fits the pattern; false for Null.
    bool IsLike(int column, const LikePattern& pattern) const;

    void Edit();
    void AddNew();
    void Put(QStringView field, const FieldValue& value);
    // Writes what `Edit` or `AddNew` began. After an addition the current row is the one before it, and
    // `LastModified` is the new one.
    void Update();
    void Delete();

    Bookmark GetBookmark() const;
    void SetBookmark(const Bookmark& bookmark);
    Bookmark LastModified() const { return lastModified_; }

    // The walk is over for now: gives back the read lock that it holds on the file.
    void Rest() const;

protected:
    // Before the current row is left by a move, a bookmark, a deletion or an addition.
    virtual void Leaving() {}
    // After the position or the content of the current row has changed.
    virtual void Arrived() {}
    // Before `Update` writes; may begin an edit and put values.
    virtual void Updating() {}

    bool IsEditing() const { return pending_ != Pending::None; }
    // Of the edit or addition in hand: whether the field has a value in it, and to take that back.
    bool IsPut(QStringView field) const { return edits_.contains(Column(field)); }
    void TakeBack(QStringView field) { edits_.erase(Column(field)); }

private:
    enum class Pending { None, Edit, Addition };
    using ColumnSet = std::uint64_t;

    [[noreturn]] void Fail(int number) const;
    QString RecordInWords() const;
    bool InRowSet(std::int64_t row) const;
    void StandOn(std::int64_t row);
    void StandAtEnd(bool& end);
    void RequireCurrentRow() const;
    FieldValue ValueOf(int column) const;
    bool FindRow(Statement& rows);
    bool StepWalk();
    void RestartWalk();
    QByteArray WalkSql(ColumnSet columns) const;
    // The column of the walking statement that holds this field of the current row, or -1.
    int WalkColumn(int column) const;
    bool FetchRow() const;
    const std::vector<FieldValue>& Row() const;
    void WriteEdit();
    void WriteAddition();

    std::shared_ptr<Database> database_;
    QByteArray table_;
    std::vector<QString> names_;

    std::int64_t row_ = 0;
    bool bof_ = false;
    bool eof_ = false;
    bool gone_ = false;
    std::int64_t lastRowAtOpening_ = 0;
    std::set<std::int64_t> added_;
    Bookmark lastModified_;

    // A walk steps one statement that selects the fields which the walk has been seen to read.
    mutable std::map<ColumnSet, std::unique_ptr<Statement>> walks_;
    mutable Statement* walk_ = nullptr;
    mutable ColumnSet walkColumns_ = 0;
    mutable ColumnSet wanted_ = 0;
    mutable std::int64_t walkChanges_ = 0;

    std::unique_ptr<Statement> previous_;
    std::unique_ptr<Statement> whole_;
    mutable std::vector<FieldValue> cached_;
    mutable std::int64_t cachedRow_ = 0;
    mutable std::int64_t cachedChanges_ = -1;

    Pending pending_ = Pending::None;
    std::map<int, FieldValue> edits_;
};

} // namespace lineforge
