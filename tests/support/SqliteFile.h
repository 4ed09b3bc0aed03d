#pragma once

#include "support/Printing.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

struct sqlite3;

namespace lineforge
{

// A plain connection to a database file that knows nothing of the program: prepares files and tells what really stands
// in them. It never waits for a lock. Quotes in statements are the engine's own.
class SqliteFile
{
public:
    using Row = std::vector<std::optional<QString>>;

    // Makes the file when it isn't there.
    explicit SqliteFile(const QString& path);
    ~SqliteFile();
    SqliteFile(const SqliteFile&) = delete;
    SqliteFile& operator=(const SqliteFile&) = delete;

    // Fails the test when the engine refuses.
    void Execute(const QByteArray& sql);
    // The engine's primary result code, 0 for success.
    int Try(const QByteArray& sql);

    // All rows; nothing stands for NULL.
    std::vector<Row> Query(const QByteArray& sql, const std::vector<std::optional<QString>>& parameters = {});
    // The first field of the first row.
    std::optional<QString> Value(const QByteArray& sql);

private:
    sqlite3* handle_ = nullptr;
};

} // namespace lineforge
