#include "platform/base/RuntimeError.h"
#include "platform/store/OtherPrograms.h"
#include "platform/store/Recordset.h"

#include <utility>

namespace lineforge
{

void Recordset::Edit()
{
    Row();
    edits_.clear();
    choices_.clear();
    pending_ = Pending::Edit;
}

void Recordset::AddNew()
{
    Leaving();
    edits_.clear();
    choices_.clear();
    pending_ = Pending::Addition;
}

void Recordset::Put(QStringView field, const FieldValue& value)
{
    if (pending_ == Pending::None)
        Fail(ErrorNumber::UpdateWithoutEdit);
    edits_[Column(field)] = value;
}

void Recordset::PutWhenWritten(QStringView field, std::function<FieldValue()> choose)
{
    Put(field, {});
    choices_[Column(field)] = std::move(choose);
}

void Recordset::Update()
{
    Updating();
    if (pending_ == Pending::None)
        Fail(ErrorNumber::UpdateWithoutEdit);
    try {
        pending_ == Pending::Edit ? WriteEdit() : WriteAddition();
    } catch (const RuntimeError& refusal) {
        // What the user has given up doesn't wait for the next saving; what he has typed does, in its boxes.
        if (refusal.IsTold)
            pending_ = Pending::None;
        throw;
    }
    pending_ = Pending::None;
    Arrived();
}

void Recordset::CancelUpdate()
{
    pending_ = Pending::None;
}

// The change takes place on the rows as they stand in the file, whole or not at all.
template <class Act>
void Recordset::InFile(const Act& act)
{
    Q_ASSERT(!held_);
    // A walk under way would hold off the very program that has to finish before this can begin.
    Rest();
    const auto attempt = [&] {
        Transaction transaction(*database_);
        const Look look(*this);
        act();
        transaction.Commit();
    };
    database_->Others().Patiently(database_->Path(), [&](int milliseconds) {
        database_->BePatient(milliseconds);
        try {
            attempt();
        } catch (const RuntimeError& refusal) {
            // The engine's word for a file that has been replaced in this very moment.
            if (refusal.Number != ErrorNumber::DatabaseReadOnly || database_->IsStillThere())
                throw;
            attempt();
        }
    });
}

// Changes the current row, unless it is no longer what it was when the cursor came to it.
template <class Change>
void Recordset::ChangeRow(Change&& change)
{
    const QString record = RecordInWords();
    RowFate fate = RowFate::Same;
    Concerning(record, [&] {
        InFile([&] {
            fate = fate_;
            if (fate == RowFate::Same)
                change();
        });
    });
    if (fate != RowFate::Same)
        GiveUp(record);
}

void Recordset::GiveUp(const QString& record)
{
    pending_ = Pending::None;
    Arrived();
    database_->Others().TellOfReplaced();
    if (gone_)
        FailDeleted();
    fate_ = RowFate::Same;
    RuntimeError refusal(ErrorNumber::RecordChanged, database_->Path() + u'\n' + record);
    if (const auto& tell = database_->Others().TellChanged) {
        tell(record);
        refusal.IsTold = true;
    }
    throw refusal;
}

void Recordset::WriteEdit()
{
    if (!edits_.empty()) {
        TableRows::Print print;
        ChangeRow([&] {
            QByteArray settings;
            for (const auto& [column, value] : edits_)
                settings += (settings.isEmpty() ? "" : ", ") + QuotedName(column) + " = ?";
            const auto update = database_->Prepare("UPDATE " + table_ + " SET " + settings + " WHERE rowid = ?");
            int parameter = 0;
            for (const auto& [column, value] : edits_)
                value ? update->Bind(parameter++, value->toUtf8()) : update->BindNull(parameter++);
            update->Bind(parameter, Number());
            const std::int64_t before = database_->Changes();
            update->Step();
            if (database_->Changes() == before)
                Fail(ErrorNumber::RecordDeleted);
            print = rows_.PrintOf(Number());
        });
        rows_.Put(Number(), print);
    }
    lastModified_ = Mark(Number());
}

void Recordset::Insert(std::int64_t row)
{
    QByteArray names = "rowid";
    QByteArray places = "?";
    for (const auto& [column, value] : edits_) {
        names += ", " + QuotedName(column);
        places += ", ?";
    }
    const auto insertion = database_->Prepare("INSERT INTO " + table_ + " (" + names + ") VALUES (" + places + ")");
    int parameter = 0;
    insertion->Bind(parameter++, row);
    for (const auto& [column, value] : edits_)
        value ? insertion->Bind(parameter++, value->toUtf8()) : insertion->BindNull(parameter++);
    insertion->Step();
}

void Recordset::WriteAddition()
{
    std::int64_t row = 0;
    TableRows::Print print;
    bool isChosen = choices_.empty();
    try {
        InFile([&] {
            for (const auto& [column, choose] : choices_)
                edits_[column] = choose();
            isChosen = true;
            row = rows_.NewNumber();
            Insert(row);
            print = rows_.PrintOf(row);
        });
    } catch (RuntimeError& refusal) {
        if (isChosen)
            refusal.Concerns(RecordInWords());
        throw;
    }
    rows_.Put(row, print);
    added_.insert(row);
    lastModified_ = Mark(row);
}

void Recordset::Delete()
{
    Row();
    ChangeRow([this] {
        const auto removal = database_->Prepare("DELETE FROM " + table_ + " WHERE rowid = ?1");
        removal->Bind(0, Number());
        removal->Step();
    });
    rows_.Remove(Number());
    pending_ = Pending::None;
    gone_ = true;
    Rest();
    Arrived();
}

} // namespace lineforge
