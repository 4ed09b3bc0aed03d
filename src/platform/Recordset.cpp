#include "platform/Recordset.h"

#include "platform/RuntimeError.h"
#include "platform/Text.h"

#include <bit>
#include <limits>
#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr std::int64_t beforeAllRows = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t behindAllRows = std::numeric_limits<std::int64_t>::max();
// One bit a column; fields further right are read a row at a time.
constexpr int columnsInSet = 64;

QByteArray Quoted(const QString& name)
{
    return '"' + name.toUtf8().replace('"', "\"\"") + '"';
}

FieldValue ValueAt(const Statement& row, int column)
{
    const QByteArrayView text = row.Text(column);
    return text.isNull() ? FieldValue() : FieldValue(QString::fromUtf8(text));
}
} // namespace

Recordset::Recordset(std::shared_ptr<Database> database, const QString& table)
    : database_(std::move(database)), table_(Quoted(table)),
      previous_(database_->Prepare("SELECT rowid FROM " + table_ + " WHERE rowid < ?1 ORDER BY rowid DESC")),
      whole_(database_->Prepare("SELECT * FROM " + table_ + " WHERE rowid = ?1"))
{
    for (int column = 0; column < whole_->Columns(); ++column)
        names_.push_back(QString::fromUtf8(whole_->ColumnName(column)));
    previous_->Bind(0, behindAllRows);
    if (previous_->Step())
        lastRowAtOpening_ = previous_->Integer(0);
    previous_->Reset();
    database_->NoteRow(lastRowAtOpening_);
    Recordset::MoveFirst();
    Rest();
}

void Recordset::Fail(int number) const
{
    throw RuntimeError(number, database_->Path());
}

// By its first field, which is what its user knows it by. Reads nothing: a file that refuses to be written may refuse
// that too.
QString Recordset::RecordInWords() const
{
    FieldValue name;
    if (pending_ == Pending::Addition)
        name = ValueOf(0);
    else if (cachedRow_ == row_ && !cached_.empty())
        name = cached_.front();
    return name ? u"Record "_s + *name : u"A record"_s;
}

int Recordset::Column(QStringView field) const
{
    for (std::size_t column = 0; column < names_.size(); ++column)
        if (names_[column] == field)
            return static_cast<int>(column);
    for (std::size_t column = 0; column < names_.size(); ++column)
        if (SameText(names_[column], field))
            return static_cast<int>(column);
    throw RuntimeError(ErrorNumber::ItemNotFound, field + u"\n"_s + database_->Path());
}

bool Recordset::InRowSet(std::int64_t row) const
{
    return row <= lastRowAtOpening_ || added_.contains(row);
}

void Recordset::StandOn(std::int64_t row)
{
    row_ = row;
    bof_ = eof_ = gone_ = false;
    pending_ = Pending::None;
    Arrived();
}

void Recordset::StandAtEnd(bool& end)
{
    Rest();
    previous_->Bind(0, behindAllRows);
    const bool isEmpty = !FindRow(*previous_);
    previous_->Reset();
    bof_ = eof_ = isEmpty;
    end = true;
    gone_ = false;
    row_ = &end == &bof_ ? beforeAllRows : behindAllRows;
    pending_ = Pending::None;
    Arrived();
}

void Recordset::RequireCurrentRow() const
{
    if (bof_ || eof_)
        Fail(ErrorNumber::NoCurrentRecord);
    if (gone_)
        Fail(ErrorNumber::RecordDeleted);
}

// Whether the statement, whose first column is the row number, comes to a row of this set; `row_` is not touched.
bool Recordset::FindRow(Statement& rows)
{
    bool found = rows.Step();
    while (found && !InRowSet(rows.Integer(0)))
        found = rows.Step();
    if (!found)
        rows.Reset();
    return found;
}

QByteArray Recordset::WalkSql(ColumnSet columns) const
{
    QByteArray sql = "SELECT rowid";
    for (int column = 0; column < columnsInSet && column < static_cast<int>(names_.size()); ++column)
        if (columns & (ColumnSet{1} << column))
            sql += ", " + Quoted(names_[static_cast<std::size_t>(column)]);
    return sql + " FROM " + table_ + " WHERE rowid > ?1 ORDER BY rowid";
}

void Recordset::RestartWalk()
{
    walkColumns_ = std::exchange(wanted_, 0) | (walk_ ? walkColumns_ : 0);
    Rest();
    std::unique_ptr<Statement>& statement = walks_[walkColumns_];
    if (!statement)
        statement = database_->Prepare(WalkSql(walkColumns_));
    statement->Bind(0, row_);
    walk_ = statement.get();
    walkChanges_ = database_->Changes();
}

bool Recordset::StepWalk()
{
    if (!walk_ || wanted_ != 0 || walkChanges_ != database_->Changes())
        RestartWalk();
    return FindRow(*walk_);
}

void Recordset::Rest() const
{
    if (walk_)
        walk_->Reset();
    walk_ = nullptr;
}

void Recordset::MoveFirst()
{
    Leaving();
    Rest();
    row_ = beforeAllRows;
    if (StepWalk())
        StandOn(walk_->Integer(0));
    else
        StandAtEnd(eof_);
}

void Recordset::MoveLast()
{
    Leaving();
    Rest();
    previous_->Bind(0, behindAllRows);
    if (FindRow(*previous_)) {
        StandOn(previous_->Integer(0));
        previous_->Reset();
    } else {
        StandAtEnd(bof_);
    }
}

void Recordset::MoveNext()
{
    if (eof_)
        Fail(ErrorNumber::NoCurrentRecord);
    Leaving();
    if (StepWalk())
        StandOn(walk_->Integer(0));
    else
        StandAtEnd(eof_);
}

void Recordset::MovePrevious()
{
    if (bof_)
        Fail(ErrorNumber::NoCurrentRecord);
    Leaving();
    Rest();
    previous_->Bind(0, row_);
    if (FindRow(*previous_)) {
        StandOn(previous_->Integer(0));
        previous_->Reset();
    } else {
        StandAtEnd(bof_);
    }
}

bool Recordset::Seek(QStringView field, const QString& value)
{
    Leaving();
    Rest();
    const QByteArray name = Quoted(names_[static_cast<std::size_t>(Column(field))]);
    const auto matches = database_->Prepare("SELECT rowid FROM " + table_ + " WHERE CAST(" + name +
                                            " AS TEXT) = ?1 COLLATE SAMETEXT ORDER BY rowid");
    matches->Bind(0, value.toUtf8());
    if (FindRow(*matches)) {
        StandOn(matches->Integer(0));
        return true;
    }
    StandAtEnd(eof_);
    return false;
}

int Recordset::WalkColumn(int column) const
{
    const ColumnSet bit = column < columnsInSet ? ColumnSet{1} << column : 0;
    if (!walk_ || walkChanges_ != database_->Changes())
        return -1;
    if (!(walkColumns_ & bit)) {
        wanted_ |= bit;
        return -1;
    }
    // The row number comes first, then the selected fields in the order of the table.
    return 1 + std::popcount(walkColumns_ & (bit - 1));
}

// Reads the whole current row, unless that has been done since the last change; false when it is gone.
bool Recordset::FetchRow() const
{
    if (cachedRow_ == row_ && cachedChanges_ == database_->Changes())
        return true;
    whole_->Bind(0, row_);
    const bool found = whole_->Step();
    if (found) {
        cached_.clear();
        for (int column = 0; column < whole_->Columns(); ++column)
            cached_.push_back(ValueAt(*whole_, column));
        cachedRow_ = row_;
        cachedChanges_ = database_->Changes();
    }
    whole_->Reset();
    return found;
}

bool Recordset::HasRow() const
{
    return !bof_ && !eof_ && !gone_ && FetchRow();
}

const std::vector<FieldValue>& Recordset::Row() const
{
    RequireCurrentRow();
    if (!FetchRow())
        Fail(ErrorNumber::RecordDeleted);
    return cached_;
}

FieldValue Recordset::Value(QStringView field) const
{
    return ValueOf(Column(field));
}

FieldValue Recordset::ValueOf(int column) const
{
    if (pending_ != Pending::None) {
        if (const auto edit = edits_.find(column); edit != edits_.end())
            return edit->second;
        if (pending_ == Pending::Addition)
            return {};
    }
    RequireCurrentRow();
    const int walked = WalkColumn(column);
    return walked >= 0 ? ValueAt(*walk_, walked) : Row()[static_cast<std::size_t>(column)];
}

bool Recordset::FieldIs(QStringView field, const QString& value) const
{
    const int column = Column(field);
    if (pending_ == Pending::None) {
        RequireCurrentRow();
        if (const int walked = WalkColumn(column); walked >= 0) {
            const QByteArrayView text = walk_->Text(walked);
            return !text.isNull() && SameText(text, value);
        }
    }
    const FieldValue current = Value(field);
    return current && SameText(*current, value);
}

bool Recordset::IsLike(int column, const LikePattern& pattern) const
{
    if (pending_ == Pending::None) {
        RequireCurrentRow();
        if (const int walked = WalkColumn(column); walked >= 0) {
            const QByteArrayView text = walk_->Text(walked);
            return !text.isNull() && pattern.Matches(text);
        }
    }
    const FieldValue current = ValueOf(column);
    return current && pattern.Matches(*current);
}

void Recordset::Edit()
{
    Row();
    edits_.clear();
    pending_ = Pending::Edit;
}

void Recordset::AddNew()
{
    Leaving();
    edits_.clear();
    pending_ = Pending::Addition;
}

void Recordset::Put(QStringView field, const FieldValue& value)
{
    if (pending_ == Pending::None)
        Fail(ErrorNumber::UpdateWithoutEdit);
    edits_[Column(field)] = value;
}

void Recordset::Update()
{
    Updating();
    switch (pending_) {
    case Pending::None:
        Fail(ErrorNumber::UpdateWithoutEdit);
    case Pending::Edit:
        Concerning(RecordInWords(), [this] { WriteEdit(); });
        break;
    case Pending::Addition:
        Concerning(RecordInWords(), [this] { WriteAddition(); });
        break;
    }
    pending_ = Pending::None;
    Arrived();
}

void Recordset::WriteEdit()
{
    lastModified_ = row_;
    if (edits_.empty())
        return;
    QByteArray settings;
    for (const auto& [column, value] : edits_)
        settings += (settings.isEmpty() ? "" : ", ") + Quoted(names_[static_cast<std::size_t>(column)]) + " = ?";
    const auto update = database_->Prepare("UPDATE " + table_ + " SET " + settings + " WHERE rowid = ?");
    int parameter = 0;
    for (const auto& [column, value] : edits_)
        value ? update->Bind(parameter++, value->toUtf8()) : update->BindNull(parameter++);
    update->Bind(parameter, row_);
    const std::int64_t before = database_->Changes();
    update->Step();
    if (database_->Changes() == before)
        Fail(ErrorNumber::RecordDeleted);
}

void Recordset::WriteAddition()
{
    const std::int64_t row = database_->NewRowNumber(table_);
    QByteArray names = "rowid";
    QByteArray places = "?";
    for (const auto& [column, value] : edits_) {
        names += ", " + Quoted(names_[static_cast<std::size_t>(column)]);
        places += ", ?";
    }
    const auto insert = database_->Prepare("INSERT INTO " + table_ + " (" + names + ") VALUES (" + places + ")");
    int parameter = 0;
    insert->Bind(parameter++, row);
    for (const auto& [column, value] : edits_)
        value ? insert->Bind(parameter++, value->toUtf8()) : insert->BindNull(parameter++);
    insert->Step();
    added_.insert(row);
    lastModified_ = row;
}

void Recordset::Delete()
{
    Row();
    const auto removal = database_->Prepare("DELETE FROM " + table_ + " WHERE rowid = ?1");
    removal->Bind(0, row_);
    Concerning(RecordInWords(), [&removal] { removal->Step(); });
    pending_ = Pending::None;
    gone_ = true;
    Rest();
    Arrived();
}

Bookmark Recordset::GetBookmark() const
{
    RequireCurrentRow();
    return row_;
}

void Recordset::SetBookmark(const Bookmark& bookmark)
{
    if (!bookmark)
        Fail(ErrorNumber::NotABookmark);
    Leaving();
    Rest();
    StandOn(*bookmark);
}

} // namespace lineforge
