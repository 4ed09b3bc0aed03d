#include "platform/store/Database.h"

#include "platform/base/RuntimeError.h"
#include "platform/store/OtherPrograms.h"
#include "platform/store/TableRows.h"

#include <utility>

namespace lineforge
{

Database::Database(const FileSystem& files, const QString& path, std::shared_ptr<OtherPrograms> others,
                   std::shared_ptr<KnownTables> tables, int milliseconds)
    : Connection(files, path, std::move(others), milliseconds),
      tables_(tables ? std::move(tables) : std::make_shared<KnownTables>())
{
}

Database::~Database()
{
    for (const auto& [name, rows] : *tables_)
        rows->Detach();
}

TableRows& Database::Rows(const QByteArray& table)
{
    const auto known = tables_->find(table);
    if (known != tables_->end() && known->second->IsAttached())
        return *known->second;
    auto rows = known != tables_->end() ? known->second : std::make_shared<TableRows>(table);
    rows->Attach(*this);
    (*tables_)[table] = rows;
    return *rows;
}

Databases::Databases() : others_(std::make_shared<OtherPrograms>()) {}

Databases::~Databases() = default;

std::shared_ptr<Database> Databases::Open(const FileSystem& files, const QString& path)
{
    const QString file = files.Resolve(path);
    Known& known = known_[file];
    if (auto open = known.Open.lock()) {
        others_->Patiently(file, [&](int milliseconds) {
            open->BePatient(milliseconds);
            open->FollowFile();
        });
        if (!open->IsStillThere())
            throw RuntimeError(ErrorNumber::DatabaseNotFound, file);
        return open;
    }
    if (!known.Tables)
        known.Tables = std::make_shared<KnownTables>();
    auto opened = others_->Patiently(file, [&](int milliseconds) {
        return std::make_shared<Database>(files, file, others_, known.Tables, milliseconds);
    });
    known.Open = opened;
    return opened;
}

} // namespace lineforge
