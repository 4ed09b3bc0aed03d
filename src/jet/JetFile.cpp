#include "jet/JetFile.h"

#include "jet/JetTable.h"
#include "jet/JetText.h"
#include "jet/MemoReader.h"
#include "platform/store/DatabaseFormat.h"

#include <fstream>
#include <optional>

namespace lineforge::jet
{

namespace
{
using jetstream::Outcome;

constexpr unsigned long catalogPage = 2;
constexpr long userTable = 1;

void RequireReadableFormat(const std::string& path)
{
    std::array<char, databaseFormatBytes> bytes{};
    std::ifstream file(path, std::ios::binary);
    file.read(bytes.data(), bytes.size());
    switch (FormatOf({bytes.data(), static_cast<std::size_t>(file.gcount())})) {
    case DatabaseFormat::Jet3:
    case DatabaseFormat::Jet4:
        return;
    case DatabaseFormat::Newer:
        throw Refused{Outcome::NewerFormat};
    default:
        throw Refused{Outcome::NotReadable};
    }
}

// A whole number of the size that its column has; nothing when the field has another one.
std::optional<long> WholeNumber(int type, std::string_view bytes)
{
    auto* start = const_cast<char*>(bytes.data());
    switch (type) {
    case MDB_BYTE:
        return bytes.size() == 1 ? std::optional<long>(mdb_get_byte(start, 0)) : std::nullopt;
    case MDB_INT:
        // The library takes it for one without a sign.
        return bytes.size() == 2 ? std::optional<long>(static_cast<std::int16_t>(mdb_get_int16(start, 0)))
                                 : std::nullopt;
    case MDB_LONGINT:
        return bytes.size() == 4 ? std::optional<long>(static_cast<std::int32_t>(mdb_get_int32(start, 0)))
                                 : std::nullopt;
    default:
        return std::nullopt;
    }
}
} // namespace

class JetFile::Reader
{
public:
    explicit Reader(const std::string& path)
        : file_(Open(path)), text_(IS_JET3(file_) ? JetText::InCodePage(file_->f->code_page) : JetText::InUnicode()),
          memos_(*file_), records_(*file_, RecordsPage())
    {
        for (std::size_t field = 0; field < columns_.size(); ++field)
            columns_[field] = records_.Column(jetstream::fields[field]);
    }

    jetstream::Tally ReadRows(const std::function<void(const Row&)>& take)
    {
        jetstream::Tally tally;
        tally.Stated = records_.StatedRows();
        tally.BadRows = records_.Scan([&](const Fields& fields) {
            for (std::size_t field = 0; field < columns_.size(); ++field)
                if (!ReadCell(columns_[field], fields, row_[field]))
                    ++tally.BadCells;
            ++tally.Rows;
            take(row_);
            return true;
        });
        return tally;
    }

private:
    static MdbHandle* Open(const std::string& path)
    {
        RequireReadableFormat(path);
        MdbHandle* file = mdb_open(path.c_str(), MDB_NOFLAGS);
        if (!file)
            throw Refused{Outcome::NotReadable};
        return file;
    }

    // By a walk of our own: the library's reads what else the catalogue holds, and can be led in circles there.
    unsigned long RecordsPage()
    {
        constexpr unsigned long pageMask = 0xFFFFFF;
        JetTable catalog(*file_, catalogPage);
        const std::optional<JetColumn> id = catalog.Column("Id");
        const std::optional<JetColumn> type = catalog.Column("Type");
        const std::optional<JetColumn> name = catalog.Column("Name");
        std::optional<unsigned long> page;
        catalog.Scan([&](const Fields& fields) {
            if (Number(type, fields) != userTable || !IsRecordsName(name, fields))
                return true;
            if (const std::optional<long> number = Number(id, fields))
                page = static_cast<unsigned long>(*number) & pageMask;
            return !page;
        });
        if (!page)
            throw Refused{Outcome::NoTable};
        return *page;
    }

    bool IsRecordsName(const std::optional<JetColumn>& column, const Fields& fields)
    {
        Cell name;
        return ReadCell(column, fields, name) && g_ascii_strcasecmp(name.Text.c_str(), "Tree99") == 0;
    }

    static std::optional<long> Number(const std::optional<JetColumn>& column, const Fields& fields)
    {
        if (!column || !fields[column->Place])
            return {};
        return WholeNumber(column->Type, *fields[column->Place]);
    }

    // False for a bad cell. Kinds that no field of a record ever was are such.
    bool ReadCell(const std::optional<JetColumn>& column, const Fields& fields, Cell& cell)
    {
        cell.Text.clear();
        cell.IsNull = !column || !fields[column->Place];
        if (cell.IsNull)
            return true;
        const std::string_view bytes = *fields[column->Place];
        if (column->Type == MDB_TEXT)
            return text_.Append(bytes, cell.Text);
        if (column->Type == MDB_MEMO) {
            const std::optional<std::string_view> memo = memos_.Read(bytes);
            cell.IsNull = !memo;
            return memo && text_.Append(*memo, cell.Text);
        }
        const std::optional<long> number = WholeNumber(column->Type, bytes);
        cell.IsNull = !number;
        if (number)
            cell.Text = std::to_string(*number);
        return number.has_value();
    }

    struct Close {
        void operator()(MdbHandle* file) const { mdb_close(file); }
    };

    std::unique_ptr<MdbHandle, Close> file_;
    JetText text_;
    MemoReader memos_;
    JetTable records_;
    std::array<std::optional<JetColumn>, jetstream::fields.size()> columns_{};
    Row row_;
};

JetFile::JetFile(const std::string& path) : reader_(std::make_unique<Reader>(path)) {}

JetFile::~JetFile() = default;

jetstream::Tally JetFile::ReadRows(const std::function<void(const Row&)>& take)
{
    return reader_->ReadRows(take);
}

} // namespace lineforge::jet
