#include "platform/store/Recordset.h"

#include "platform/base/RuntimeError.h"
#include "platform/base/Text.h"
#include "platform/store/OtherPrograms.h"

#include <algorithm>
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

// Of a row whose number is the statement's first column.
RowPlace PlaceAt(const Statement& row)
{
    return {row.Integer(0), row.Integer(0)};
}

FieldValue ValueAt(const Statement& row, int column)
{
    const QByteArrayView text = row.Text(column);
    return text.isNull() ? FieldValue() : FieldValue(FromUtf8(text));
}
} // namespace

Recordset::Recordset(std::shared_ptr<Database> database, const QString& table, Use use)
    : database_(std::move(database)), name_(table), table_(Quoted(table.toUtf8())), rows_(database_->Rows(table_))
{
    const TableRows::Notices notices = use == Use::Brief ? TableRows::Notices::No : TableRows::Notices::Yes;
    const auto hold = std::make_shared<TableRows::Hold>(rows_, notices);
    if (use == Use::Brief)
        held_ = hold;
    numbering_ = rows_.Numbering();
    const Look look(*this);
    lastRowAtOpening_ = held_ ? behindAllRows : rows_.Highest();
    Recordset::MoveFirst();
    Rest();
}

void Recordset::RenewStatements() const
{
    if (opening_ == database_->Opening())
        return;
    Rest();
    walks_.clear();
    previous_ = database_->Prepare("SELECT rowid FROM " + table_ + " WHERE rowid < ?1 ORDER BY rowid DESC");
    whole_ = database_->Prepare("SELECT " + rows_.Fields() + " FROM " + table_ + " WHERE rowid = ?1");
    opening_ = database_->Opening();
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
    else if (cachedRow_ == Number() && !cached_.empty())
        name = cached_.front();
    return name ? u"Record "_s + *name : u"A record"_s;
}

int Recordset::Column(QStringView field) const
{
    const std::vector<QString>& names = rows_.Names();
    for (std::size_t column = 0; column < names.size(); ++column)
        if (names[column] == field)
            return static_cast<int>(column);
    for (std::size_t column = 0; column < names.size(); ++column)
        if (SameText(names[column], field))
            return static_cast<int>(column);
    throw RuntimeError(ErrorNumber::ItemNotFound, field + u"\n"_s + database_->Path());
}

bool Recordset::InRowSet(std::int64_t row) const
{
    return row <= lastRowAtOpening_ || added_.contains(row);
}

void Recordset::FollowOthers() const
{
    // A brief cursor has seen nothing older than what it holds.
    if (held_)
        return;
    for (; numbering_ < rows_.Numbering(); ++numbering_)
        Follow(rows_.StepFrom(numbering_));
}

void Recordset::Follow(const Renumbering& step) const
{
    Rest();
    cachedChanges_ = -1;
    FollowRowSet(step);
    if (bof_ || eof_)
        return;
    if (gone_) {
        place_ = step.GapAfter(place_.After);
        return;
    }
    const QString record = RecordInWords();
    place_ = step.PlaceOf(place_.After);
    gone_ = place_.Fate == RowFate::Gone;
    if (gone_)
        takenAway_ = record;
    if (place_.Fate != RowFate::Same)
        NoteFate(place_.Fate);
}

void Recordset::NoteFate(RowFate fate) const
{
    fate_ = fate;
    willBeShown_ = fate == RowFate::Changed && ShowAnew();
}

void Recordset::Shown()
{
    if (std::exchange(willBeShown_, false))
        fate_ = RowFate::Same;
}

// What other programs have added is seen; what other cursors of this process have, is not.
void Recordset::FollowRowSet(const Renumbering& step) const
{
    std::vector<std::int64_t> numbers = step.Added;
    std::set<std::int64_t> strangers;
    for (const Renumbering::Row& row : step.Rows) {
        if (row.Fate == RowFate::Gone)
            continue;
        numbers.push_back(row.Now);
        if (!InRowSet(row.Before))
            strangers.insert(row.Now);
    }
    lastRowAtOpening_ = strangers.empty() ? beforeAllRows : *strangers.begin() - 1;
    added_.clear();
    for (const std::int64_t number : numbers) {
        if (strangers.empty())
            lastRowAtOpening_ = std::max(lastRowAtOpening_, number);
        else if (number > lastRowAtOpening_ && !strangers.contains(number))
            added_.insert(number);
    }
}

void Recordset::StandOn(const RowPlace& place)
{
    place_ = place;
    bof_ = eof_ = false;
    gone_ = place.Fate == RowFate::Gone;
    NoteFate(place.Fate);
    // Whoever shows nothing reads it now.
    if (!gone_ && !willBeShown_)
        fate_ = RowFate::Same;
    if (gone_)
        takenAway_ = u"A record"_s;
    pending_ = Pending::None;
    Arrived();
}

void Recordset::StandAtEnd(bool& end)
{
    Rest();
    const Look look(*this);
    const bool isEmpty = !FindLastBefore(behindAllRows);
    previous_->Reset();
    bof_ = eof_ = isEmpty;
    end = true;
    gone_ = false;
    fate_ = RowFate::Same;
    const std::int64_t place = &end == &bof_ ? beforeAllRows : behindAllRows;
    place_ = {place, place};
    pending_ = Pending::None;
    Arrived();
}

void Recordset::RequireNotTakenAway() const
{
    if (fate_ != RowFate::Gone)
        return;
    RuntimeError refusal(ErrorNumber::RecordDeleted, database_->Path());
    if (const auto& tell = database_->Others().TellGone) {
        refusal.IsTold = true;
        if (!takenAway_.isEmpty())
            tell(std::exchange(takenAway_, QString()));
    }
    throw refusal;
}

void Recordset::FailDeleted() const
{
    RequireNotTakenAway();
    Fail(ErrorNumber::RecordDeleted);
}

void Recordset::RequireCurrentRow() const
{
    if (bof_ || eof_)
        Fail(ErrorNumber::NoCurrentRecord);
    if (gone_)
        FailDeleted();
}

QByteArray Recordset::QuotedName(int column) const
{
    return Quoted(rows_.Names()[static_cast<std::size_t>(column)].toUtf8());
}

// Whether the statement, whose first column is the row number, comes to a row of this set; the cursor stays.
bool Recordset::FindRow(Statement& rows)
{
    bool found = rows.Step();
    while (found && !InRowSet(rows.Integer(0)))
        found = rows.Step();
    if (!found)
        rows.Reset();
    return found;
}

bool Recordset::FindLastBefore(std::int64_t row)
{
    previous_->Bind(0, row);
    return FindRow(*previous_);
}

QByteArray Recordset::WalkSql(ColumnSet columns) const
{
    QByteArray sql = "SELECT rowid";
    for (int column = 0; column < columnsInSet && column < static_cast<int>(rows_.Names().size()); ++column)
        if (columns & (ColumnSet{1} << column))
            sql += ", " + QuotedName(column);
    return sql + " FROM " + table_ + " WHERE rowid > ?1 ORDER BY rowid";
}

void Recordset::RestartWalk(std::int64_t after)
{
    walkColumns_ = std::exchange(wanted_, 0) | (walk_ ? walkColumns_ : 0);
    Rest();
    std::unique_ptr<Statement>& statement = walks_[walkColumns_];
    if (!statement)
        statement = database_->Prepare(WalkSql(walkColumns_));
    statement->Bind(0, after);
    walk_ = statement.get();
    walkChanges_ = database_->Changes();
}

bool Recordset::StepWalk()
{
    if (walk_ && wanted_ == 0 && walkChanges_ == database_->Changes())
        return FindRow(*walk_);
    // Until the walk's first step has taken the file's lock itself.
    const Look look(*this);
    RestartWalk(place_.After);
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
    const Look look(*this);
    RestartWalk(beforeAllRows);
    if (FindRow(*walk_))
        StandOn(PlaceAt(*walk_));
    else
        StandAtEnd(eof_);
}

void Recordset::MoveLast()
{
    Leaving();
    Rest();
    const Look look(*this);
    StandOnLastBefore(behindAllRows);
}

void Recordset::MoveNext()
{
    if (eof_)
        Fail(ErrorNumber::NoCurrentRecord);
    Leaving();
    if (StepWalk())
        StandOn(PlaceAt(*walk_));
    else
        StandAtEnd(eof_);
}

void Recordset::MovePrevious()
{
    if (bof_)
        Fail(ErrorNumber::NoCurrentRecord);
    Leaving();
    Rest();
    const Look look(*this);
    StandOnLastBefore(place_.Before);
}

void Recordset::StandOnLastBefore(std::int64_t row)
{
    if (FindLastBefore(row)) {
        StandOn(PlaceAt(*previous_));
        previous_->Reset();
    } else {
        StandAtEnd(bof_);
    }
}

bool Recordset::Seek(QStringView field, const QString& value)
{
    const int column = Column(field);
    Leaving();
    Rest();
    const Look look(*this);
    const auto matches = database_->Prepare("SELECT rowid FROM " + table_ + " WHERE CAST(" + QuotedName(column) +
                                            " AS TEXT) = ?1 COLLATE SAMETEXT ORDER BY rowid");
    matches->Bind(0, value.toUtf8());
    if (FindRow(*matches)) {
        StandOn(PlaceAt(*matches));
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
    FollowOthers();
    if (!gone_ && cachedRow_ == Number() && cachedChanges_ == database_->Changes())
        return true;
    const Look look(*this);
    if (gone_)
        return false;
    whole_->Bind(0, Number());
    const bool found = whole_->Step();
    if (found) {
        cached_.clear();
        for (int column = 0; column < whole_->Columns(); ++column)
            cached_.push_back(ValueAt(*whole_, column));
        cachedRow_ = Number();
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
        FailDeleted();
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

std::unique_ptr<Recordset> Recordset::Afresh() const
{
    return std::make_unique<Recordset>(database_, name_);
}

Bookmark Recordset::Mark(std::int64_t row) const
{
    return rows_.Mark(row, numbering_);
}

Bookmark Recordset::GetBookmark() const
{
    RequireCurrentRow();
    return Mark(Number());
}

void Recordset::SetBookmark(const Bookmark& bookmark)
{
    if (!bookmark)
        Fail(ErrorNumber::NotABookmark);
    database_->Others().RequireNoQuestion(database_->Path());
    Leaving();
    Rest();
    FollowOthers();
    StandOn(rows_.Find(*bookmark));
}

} // namespace lineforge
