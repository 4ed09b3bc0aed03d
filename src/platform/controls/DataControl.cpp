#include "platform/controls/DataControl.h"

#include "platform/base/RuntimeError.h"

#include <algorithm>
#include <utility>

namespace lineforge
{

// The control's cursor: carries what was typed in the bound boxes into the row that it leaves or updates.
class DataControl::BoundRecordset : public Recordset
{
public:
    BoundRecordset(DataControl& control, std::shared_ptr<Database> database, const QString& table)
        : Recordset(std::move(database), table), control_(control)
    {
    }

    void Leaving() override
    {
        if (!control_.HasEdits())
            return;
        // Without a row there is nowhere to store them.
        if (HasRow())
            return Update();
        Arrived();
        RequireNotTakenAway();
    }

    // A text comes later than what an edit in hand has for its field.
    void Typed(const QString& field)
    {
        if (IsEditing())
            TakeBack(field);
    }

protected:
    void Arrived() override
    {
        control_.DropEdits();
        control_.MarkStale();
    }

    void Updating() override
    {
        if (!control_.HasEdits())
            return;
        if (!IsEditing())
            Edit();
        // What the program has put in a field meanwhile came later.
        for (const Binding& binding : control_.bindings_)
            if (binding.IsEdited && !IsPut(binding.Field))
                Put(binding.Field, binding.Text->Shown());
    }

    // Unless a text stands in a box that belongs to what the row held before.
    bool ShowAnew() const override
    {
        if (control_.HasEdits())
            return false;
        control_.MarkStale();
        return !control_.bindings_.empty();
    }

private:
    DataControl& control_;
};

DataControl::DataControl(Container& parent, QStringView name, Rectangle place, QStringView caption)
    : ControlKind(parent, name, place), Caption(caption.toString())
{
}

DataControl::~DataControl()
{
    Unbind();
}

void DataControl::Unbind()
{
    LockBoxes(false);
    for (const Binding& binding : bindings_)
        binding.Text->Attach(nullptr);
    bindings_.clear();
}

void DataControl::Refresh(Databases& databases, const FileSystem& files)
{
    auto opened = std::make_unique<BoundRecordset>(*this, databases.Open(files, DatabaseName), RecordSource);
    Store();
    records_ = std::move(opened);
    MarkStale();
}

void DataControl::Store()
{
    if (records_)
        records_->Leaving();
}

Recordset& DataControl::Records()
{
    if (!records_)
        throw RuntimeError(ErrorNumber::ObjectNotSet, Caption.isEmpty() ? Name : Caption);
    return *records_;
}

void DataControl::Bind(ControlText& text, const QString& field, TextBox* box)
{
    bindings_.push_back({&text, field, box});
    text.Attach(this);
}

void DataControl::Bind(Label& label, const QString& field)
{
    Bind(label.Caption, field, nullptr);
}

void DataControl::Bind(TextBox& box, const QString& field)
{
    Bind(box.Text, field, &box);
    box.Locked = true; // until there is a row
}

void DataControl::Edited(const ControlText& text)
{
    for (Binding& binding : bindings_) {
        if (binding.Text != &text || !binding.Box || !records_)
            continue;
        if (binding.Box->Locked)
            return MarkStale();
        binding.IsEdited = true;
        records_->Typed(binding.Field);
    }
}

void DataControl::Forget(const ControlText& text)
{
    std::erase_if(bindings_, [&](const Binding& binding) { return binding.Text == &text; });
}

bool DataControl::HasEdits() const
{
    return std::ranges::any_of(bindings_, &Binding::IsEdited);
}

void DataControl::DropEdits()
{
    for (Binding& binding : bindings_)
        binding.IsEdited = false;
}

void DataControl::LockBoxes(bool locked)
{
    for (const Binding& binding : bindings_)
        if (binding.Box)
            binding.Box->Locked = locked;
}

void DataControl::GiveUpEdits()
{
    DropEdits();
    MarkStale();
}

void DataControl::MarkStale()
{
    if (!std::exchange(stale_, true))
        Fire(Stale);
}

void DataControl::Settle()
{
    if (!stale_)
        return;
    std::vector<QString> texts(bindings_.size());
    bool hasRow = false;
    const auto show = [&] {
        stale_ = false;
        LockBoxes(!hasRow);
        for (std::size_t at = 0; records_ && at < bindings_.size(); ++at)
            bindings_[at].Text->Show(texts[at]);
    };
    try {
        if (records_)
            records_->Rest();
        hasRow = records_ && records_->HasRow();
        if (hasRow)
            std::ranges::transform(bindings_, texts.begin(),
                                   [this](const Binding& binding) { return records_->Text(binding.Field); });
    } catch (const RuntimeError&) {
        // The next reading tries again. Until then no other record's texts stand there.
        hasRow = false;
        texts.assign(texts.size(), QString());
        show();
        stale_ = true;
        throw;
    }
    show();
    if (records_)
        records_->Shown();
}

void DataControl::Release()
{
    Store();
    records_.reset();
    // The texts stay as they stand; a label of another window may soon be bound to this control's successor.
    Unbind();
}

} // namespace lineforge
