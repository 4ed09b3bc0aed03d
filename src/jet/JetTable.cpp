#include "jet/JetTable.h"

#include "jet/Refused.h"

#include <strings.h>

namespace lineforge::jet
{

namespace
{
constexpr int flagMask = 0xC000;
constexpr int pointerFlag = 0x4000; // the row has moved to where the slot points
constexpr int bodyFlag = 0x8000;    // a row that has moved here, and is met where it is pointed at
constexpr int deletedFlags = 0xC000;

constexpr int ownerPlace = 4;
constexpr std::size_t pointerBytes = 4;
constexpr unsigned mostColumns = 255;
constexpr std::size_t leastUsageMap = 5;

[[noreturn]] void Refuse()
{
    throw Refused{jetstream::Outcome::NotReadable};
}

const MdbColumn& ColumnAt(const MdbTableDef& table, guint place)
{
    return *static_cast<const MdbColumn*>(g_ptr_array_index(table.columns, place));
}

FieldPlace PlaceOf(const MdbColumn& column)
{
    const bool isFixed = column.is_fixed != 0;
    // What a yes or no is stands among the bits.
    const int bytes = column.col_type == MDB_BOOL ? 0 : column.col_size;
    return {static_cast<std::size_t>(column.col_num), isFixed,
            isFixed ? static_cast<std::size_t>(column.fixed_offset) : column.var_col_num,
            static_cast<std::size_t>(bytes)};
}
} // namespace

JetTable::JetTable(MdbHandle& file, unsigned long definitionPage) : file_(file)
{
    entry_.mdb = &file;
    entry_.object_type = MDB_TABLE;
    entry_.table_pg = definitionPage;
    table_.reset(mdb_read_table(&entry_));
    // The library trusts these numbers in all that follows.
    if (!table_ || !table_->usage_map || table_->map_sz < leastUsageMap || table_->num_cols == 0 ||
        table_->num_cols > mostColumns || table_->num_real_idxs > mostColumns)
        Refuse();
    if (!mdb_read_columns(table_.get()) || table_->columns->len != table_->num_cols)
        Refuse();
    for (guint place = 0; place < table_->num_cols; ++place)
        places_.push_back(PlaceOf(ColumnAt(*table_, place)));
}

std::optional<JetColumn> JetTable::Column(std::string_view name) const
{
    for (guint place = 0; place < table_->num_cols; ++place) {
        const MdbColumn& column = ColumnAt(*table_, place);
        const std::string_view known(column.name);
        if (known.size() == name.size() && strncasecmp(known.data(), name.data(), name.size()) == 0)
            return JetColumn{place, column.col_type};
    }
    return {};
}

std::uint64_t JetTable::Scan(const std::function<bool(const Fields&)>& take)
{
    std::uint64_t bad = 0;
    unsigned long last = 0;
    mdb_rewind_table(table_.get());
    while (mdb_read_next_dpg(table_.get())) {
        // A spoilt map of pages could lead back, and so round and round.
        const unsigned long page = file_.cur_pg;
        if (page <= last)
            return bad + 1;
        last = page;
        const int slots = Slots();
        if (slots < 0)
            ++bad;
        for (int slot = 0; slot < slots; ++slot) {
            const Slot found = ReadSlot(slot);
            if (found == Slot::Bad)
                ++bad;
            if (found == Slot::Sound && !take(fields_))
                return bad;
            // A row that had moved, or its fields, have taken the page's place.
            if (file_.cur_pg != page && mdb_read_pg(&file_, page) != file_.fmt->pg_size)
                return bad + 1;
        }
    }
    return bad;
}

int JetTable::Slots() const
{
    const int countPlace = file_.fmt->row_count_offset;
    const int count = mdb_get_int16(file_.pg_buf, countPlace);
    const auto room = (file_.fmt->pg_size - countPlace - 2) / 2;
    return count <= room ? count : -1;
}

JetTable::Slot JetTable::ReadSlot(int slot)
{
    int start = 0;
    std::size_t length = 0;
    if (mdb_find_row(&file_, slot, &start, &length) != 0)
        return Slot::Bad;
    switch (start & flagMask) {
    case deletedFlags:
    case bodyFlag:
        return Slot::Empty;
    case pointerFlag:
        return FollowPointer(start & placeMask, length);
    default:
        return Split(start & placeMask, length);
    }
}

JetTable::Slot JetTable::FollowPointer(int start, std::size_t length)
{
    if (length < pointerBytes)
        return Slot::Bad;
    const auto pointer = static_cast<guint32>(mdb_get_int32(file_.pg_buf, start));
    // What a refused reading leaves in the buffer is no page.
    if (mdb_read_pg(&file_, pointer >> 8) != file_.fmt->pg_size) {
        file_.cur_pg = 0;
        return Slot::Bad;
    }
    if (!IsDataPage())
        return Slot::Bad;
    const int slot = static_cast<int>(pointer & 0xFF);
    if (slot >= Slots() || mdb_find_row(&file_, slot, &start, &length) != 0 || (start & flagMask) != bodyFlag)
        return Slot::Bad;
    return Split(start & placeMask, length);
}

bool JetTable::IsDataPage() const
{
    return file_.pg_buf[0] == MDB_PAGE_DATA &&
           static_cast<guint32>(mdb_get_int32(file_.pg_buf, ownerPlace)) == entry_.table_pg;
}

// The library's own way of doing it believes what a row tells of itself, and can be led far out of the page.
JetTable::Slot JetTable::Split(int start, std::size_t length)
{
    const std::string_view page(reinterpret_cast<const char*>(file_.pg_buf),
                                static_cast<std::size_t>(file_.fmt->pg_size));
    const auto place = static_cast<std::size_t>(start);
    if (place + length > page.size())
        return Slot::Bad;
    const RowLayout layout = IS_JET3((&file_)) ? RowLayout::Jet3 : RowLayout::Jet4;
    return SplitRow(page.substr(place, length), layout, places_, fields_) ? Slot::Sound : Slot::Bad;
}

} // namespace lineforge::jet
