#pragma once

#include "jet/Library.h"
#include "jet/RowFields.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace lineforge::jet
{

struct JetColumn {
    std::size_t Place; // among the fields of a row
    int Type;          // the library's number for it
};

// One table of an open file, walked slot by slot.
class JetTable
{
public:
    // Throws Refused when no sound definition stands on that page.
    JetTable(MdbHandle& file, unsigned long definitionPage);
    JetTable(const JetTable&) = delete;
    JetTable& operator=(const JetTable&) = delete;

    // The column of that name in any case.
    std::optional<JetColumn> Column(std::string_view name) const;

    std::uint64_t StatedRows() const { return table_->num_rows; }

    // Hands out the fields of every row in stored order, until `take` gives back false. Their bytes stand in the file's
    // page buffer. Gives back how many rows could not be read.
    std::uint64_t Scan(const std::function<bool(const Fields&)>& take);

private:
    enum class Slot { Sound, Empty, Bad };

    Slot ReadSlot(int slot);
    Slot FollowPointer(int start, std::size_t length);
    Slot Split(int start, std::size_t length);
    bool IsDataPage() const;
    int Slots() const;

    MdbHandle& file_;
    MdbCatalogEntry entry_{}; // the table points at it
    std::unique_ptr<MdbTableDef, decltype(&mdb_free_tabledef)> table_{nullptr, mdb_free_tabledef};
    std::vector<FieldPlace> places_;
    Fields fields_;
};

} // namespace lineforge::jet
