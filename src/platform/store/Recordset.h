#pragma once

#include "platform/base/Like.h"
#include "platform/store/Database.h"
#include "platform/store/RowPlace.h"
#include "platform/store/TableRows.h"

#include <QHash>
#include <QString>

#include <functional>
#include <optional>
#include <set>
#include <vector>

namespace lineforge
{

// A remembered position of a cursor; empty until one has been stored in it. It leads to the same record whatever other
// programs have done to the file meanwhile.
using Bookmark = std::optional<RowMark>;

// The text of a field, or nothing for Null.
using FieldValue = std::optional<QString>;

// A cursor over one table in storage order. The rows are those that stood in the table when it was opened, those that
// this cursor added, and those that other programs did; their values are read live. It stands on a row, before the
// first (`Bof`), behind the last (`Eof`), or on a row that is gone. The names of fields are compared without regard to
// case.
//
// Errors: 3021 reading, editing or moving on without a current row; 3167 on a row that has been deleted; 3265 no such
// field; 3020 `Update` with nothing in hand; and those of the engine that `Statement` names. A row that another program
// has changed since the cursor came to it is not written to: the user is told, what was to be written is given up, and
// 3197 ends the command. A row that another program has deleted is told to the user as well.
class Recordset
{
public:
    // A brief cursor only reads, and goes before events are served. It keeps other programs off the file all the while,
    // and so needs not know their ways.
    enum class Use { Lasting, Brief };

    // Stands on the first row. 3078 when the file has no such table, and the errors of `Databases::Open`.
    Recordset(std::shared_ptr<Database> database, const QString& table, Use use = Use::Lasting);
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
    // Of an addition, a value that is chosen when the row is written and nobody else can write. Null until then.
    void PutWhenWritten(QStringView field, std::function<FieldValue()> choose);
    // Writes what `Edit` or `AddNew` began. After an addition the current row is the one before it, and
    // `LastModified` is the new one.
    void Update();
    // Gives up what `Edit` or `AddNew` began, if anything.
    void CancelUpdate();
    void Delete();

    Bookmark GetBookmark() const;
    void SetBookmark(const Bookmark& bookmark);
    Bookmark LastModified() const { return lastModified_; }

    // A cursor of its own on all rows that stand in the file now.
    [[nodiscard]] std::unique_ptr<Recordset> Afresh() const;

    // The user sees the current row as it stands.
    void Shown();

    // The walk is over for now: gives back the read lock that it holds on the file.
    void Rest() const;

protected:
    // Before the current row is left by a move, a bookmark, a deletion or an addition.
    virtual void Leaving() {}
    // After the position or the content of the current row has changed.
    virtual void Arrived() {}
    // Before `Update` writes; may begin an edit and put values.
    virtual void Updating() {}
    // Another program has changed the current row. True when its user will see it anew: from `Shown` on it may be
    // written to.
    virtual bool ShowAnew() const { return false; }

    // 3167, of which the user is told once, when another program has deleted the current row.
    void RequireNotTakenAway() const;

    bool IsEditing() const { return pending_ != Pending::None; }
    // Of the edit or addition in hand: whether the field has a value in it, and to take that back.
    bool IsPut(QStringView field) const { return edits_.contains(Column(field)); }
    void TakeBack(QStringView field) { edits_.erase(Column(field)); }

private:
    enum class Pending { None, Edit, Addition };
    using ColumnSet = std::uint64_t;

    class Look;

    [[noreturn]] void Fail(int number) const;
    QString RecordInWords() const;
    bool InRowSet(std::int64_t row) const;
    void FollowOthers() const;
    void Follow(const Renumbering& step) const;
    void FollowRowSet(const Renumbering& step) const;
    void NoteFate(RowFate fate) const;
    std::int64_t Number() const { return place_.After; }
    Bookmark Mark(std::int64_t row) const;
    void StandOn(const RowPlace& place);
    void StandOnLastBefore(std::int64_t row);
    void StandAtEnd(bool& end);
    void RequireCurrentRow() const;
    [[noreturn]] void FailDeleted() const;
    FieldValue ValueOf(int column) const;
    bool FindRow(Statement& rows);
    bool FindLastBefore(std::int64_t row);
    bool StepWalk();
    void RestartWalk(std::int64_t after);
    void RenewStatements() const;
    QByteArray QuotedName(int column) const;
    QByteArray WalkSql(ColumnSet columns) const;
    // The column of the walking statement that holds this field of the current row, or -1.
    int WalkColumn(int column) const;
    bool FetchRow() const;
    const std::vector<FieldValue>& Row() const;
    template <class Act>
    void InFile(const Act& act);
    template <class Change>
    void ChangeRow(Change&& change);
    void GiveUp(const QString& record);
    void WriteEdit();
    void Insert(std::int64_t row);
    void WriteAddition();

    std::shared_ptr<Database> database_;
    QString name_;
    QByteArray table_; // its quoted name
    TableRows& rows_;
    std::shared_ptr<void> held_; // the file, by a brief cursor

    bool bof_ = false;
    bool eof_ = false;
    Bookmark lastModified_;

    // Where the cursor stands and which rows are its own; known anew, even while it is only read, when other programs
    // have renumbered the rows.
    mutable std::uint32_t numbering_ = 0;
    mutable RowPlace place_;
    mutable bool gone_ = false;
    mutable RowFate fate_ = RowFate::Same; // what others have done to the current row since its user has seen it
    mutable bool willBeShown_ = false;     // and he will see that
    mutable QString takenAway_;            // that row in words, until its deletion has been told
    mutable std::int64_t lastRowAtOpening_ = 0;
    mutable std::set<std::int64_t> added_;

    // A walk steps one statement that selects the fields which the walk has been seen to read.
    mutable std::map<ColumnSet, std::unique_ptr<Statement>> walks_;
    mutable Statement* walk_ = nullptr;
    mutable ColumnSet walkColumns_ = 0;
    mutable ColumnSet wanted_ = 0;
    mutable std::int64_t walkChanges_ = 0;

    // Of the opening of the file in which they were prepared.
    mutable std::uint32_t opening_ = 0;
    mutable std::unique_ptr<Statement> previous_;
    mutable std::unique_ptr<Statement> whole_;
    mutable std::vector<FieldValue> cached_;
    mutable std::int64_t cachedRow_ = 0;
    mutable std::int64_t cachedChanges_ = -1;

    Pending pending_ = Pending::None;
    std::map<int, FieldValue> edits_;
    std::map<int, std::function<FieldValue()>> choices_; // of edits that are still to be chosen
};

// While it lives no other program changes the file, and the cursor has followed what they did before.
class [[nodiscard]] Recordset::Look
{
public:
    explicit Look(const Recordset& cursor)
        : hold_(cursor.rows_, cursor.held_ ? TableRows::Notices::No : TableRows::Notices::Yes)
    {
        cursor.RenewStatements();
        cursor.FollowOthers();
    }

private:
    TableRows::Hold hold_;
};

} // namespace lineforge
