#pragma once

#include "platform/store/Connection.h"
#include "platform/store/RowPlace.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace lineforge
{

// One step from the numbers that the rows of a table had to those that another program has left them with.
struct Renumbering {
    struct Row {
        std::int64_t Before;
        std::int64_t Now; // of no meaning for one that is gone
        RowFate Fate;
    };

    // Of a number, whether or not a row stood under it.
    RowPlace PlaceOf(std::int64_t before) const;
    // The gap behind a number.
    RowPlace GapAfter(std::int64_t before) const;

    std::vector<Row> Rows;           // all that there were, in stored order
    std::vector<std::int64_t> Added; // those that another program has added
};

// Which row of a table stands under which number. A table of records has no key, and the engine gives its rows new
// numbers whenever somebody compacts the file. So the rows are known here by prints of what they hold: after another
// program has written to the file, those that are the same are found again under their new numbers, and the others are
// known to be changed or gone. What this process writes itself is to be told.
class TableRows
{
public:
    // What a row holds, and what its first field, by which its user knows it.
    struct Print {
        std::uint64_t Content = 0;
        std::uint64_t Name = 0; // 0: it has none
        friend bool operator==(const Print&, const Print&) = default;
    };

    // The name is quoted.
    explicit TableRows(const QByteArray& table);
    TableRows(const TableRows&) = delete;
    TableRows& operator=(const TableRows&) = delete;

    // By which the table is read until it is detached. What is known of its rows outlives that. 3078 when the file has
    // no such table.
    void Attach(Connection& file);
    void Detach();
    bool IsAttached() const { return file_ != nullptr; }

    // While it lives no other program can change the file. When it begins, what one did before has been noticed; where
    // nobody will remember a row when it ends, that can be left out.
    enum class Notices { Yes, No };
    class [[nodiscard]] Hold
    {
    public:
        explicit Hold(TableRows& rows, Notices notices = Notices::Yes);
        ~Hold();
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;

    private:
        TableRows& rows_;
    };

    // The names of the fields, and their quoted list.
    const std::vector<QString>& Names() const { return names_; }
    const QByteArray& Fields() const { return fields_; }

    // Grows with every step.
    std::uint32_t Numbering() const { return static_cast<std::uint32_t>(steps_.size()); }
    // The step that ended that numbering.
    const Renumbering& StepFrom(std::uint32_t numbering) const { return *steps_[numbering]; }

    RowMark Mark(std::int64_t row, std::uint32_t numbering) const { return {row, serial_, numbering}; }
    // In the present numbering. 3159 for a mark of another table, or of another opening of this one.
    RowPlace Find(const RowMark& mark) const;

    // Within a hold: what stands under that number; the highest number of a row; a number that no row stands under, nor
    // any that has been seen in this numbering.
    Print PrintOf(std::int64_t row);
    std::int64_t Highest() const;
    std::int64_t NewNumber() const;

    // What this process has written.
    void Put(std::int64_t row, const Print& print);
    void Remove(std::int64_t row);

private:
    struct Entry {
        std::int64_t Row;
        Print Held;
        friend bool operator==(const Entry&, const Entry&) = default;
    };
    using Entries = std::vector<Entry>;

    Print PrintAt(const Statement& row) const;
    static Renumbering StepBetween(const Entries& before, const Entries& now);
    void Prepare();
    void Lock();
    void Take();
    void Release();
    Entries ReadAll();
    void Notice();
    Entries::iterator EntryFrom(std::int64_t row);

    QByteArray table_;
    std::uint32_t serial_;
    Connection* file_ = nullptr;
    std::uint32_t opening_ = 0;
    std::vector<QString> names_;
    QByteArray fields_;
    std::unique_ptr<Statement> version_; // of the file; while it is not reset the engine keeps others out
    std::unique_ptr<Statement> one_;
    int holds_ = 0;
    std::optional<std::int64_t> seenVersion_;
    std::optional<Entries> entries_;
    std::int64_t highest_ = 0; // that has been in use since the last step
    std::vector<std::unique_ptr<const Renumbering>> steps_;
};

} // namespace lineforge
