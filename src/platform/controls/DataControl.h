#pragma once

#include "platform/controls/Controls.h"
#include "platform/store/Recordset.h"

#include <memory>
#include <vector>

namespace lineforge
{

// Points at one table of one database file and feeds the labels and boxes that are bound to it. What a bound control
// shows follows the current row when it is read or when the event loop next runs, never during a walk. What is typed in
// a bound box is pending until the row is left or updated; a label never writes. Without a row, where nothing could
// keep what is typed, the bound boxes are locked.
class DataControl : public ControlKind<DataControl>, private TextSource
{
public:
    DataControl(Container& parent, QStringView name, Rectangle place, QStringView caption);
    ~DataControl() override;

    QString Caption;
    QString DatabaseName;
    QString RecordSource;

    // Opens the table that the two names tell; the first row becomes current. On a refusal (3024 missing, 3027
    // read-only, 3343 no database, 3078 no such table) it stays with what it had.
    void Refresh(Databases& databases, const FileSystem& files);

    // Error 91 while nothing has been opened.
    Recordset& Records();
    bool IsOpen() const { return records_ != nullptr; }

    void Bind(Label& label, const QString& field);
    void Bind(TextBox& box, const QString& field);

    // Writes what is typed and still pending; the row stays current. Nothing while nothing has been opened.
    void Store();

    // Brings the bound controls up to date and lets a walk rest. Called by the event loop.
    void Settle() override;

    // Gives up what is typed and pending; the bound controls show the record again.
    void GiveUpEdits();

    // The user has moved to another record by the control's own buttons.
    Event Stepped;

    // Told once when what the bound controls show has become out of date.
    Event Stale;

    // Writes what is pending, closes the file and lets the bound controls go.
    void Release() override;

private:
    class BoundRecordset;
    struct Binding {
        ControlText* Text;
        QString Field;
        TextBox* Box; // null for a label
        bool IsEdited = false;
    };

    void Bind(ControlText& text, const QString& field, TextBox* box);
    void Edited(const ControlText& text) override;
    void Forget(const ControlText& text) override;
    void MarkStale();
    void Unbind();
    bool HasEdits() const;
    void DropEdits();
    void LockBoxes(bool locked);

    std::vector<Binding> bindings_;
    std::unique_ptr<BoundRecordset> records_;
    bool stale_ = false;
};

} // namespace lineforge
