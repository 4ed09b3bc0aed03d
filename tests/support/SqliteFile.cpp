#include "support/SqliteFile.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace lineforge
{

SqliteFile::SqliteFile(const QString& path)
{
    if (sqlite3_open(path.toUtf8().constData(), &handle_) != SQLITE_OK)
        ADD_FAILURE() << "can't open " << qUtf8Printable(path) << ": " << sqlite3_errmsg(handle_);
    // What a test prepares needn't survive a power cut.
    Try("PRAGMA synchronous = OFF");
}

SqliteFile::~SqliteFile()
{
    sqlite3_close(handle_);
}

int SqliteFile::Try(const QByteArray& sql)
{
    return sqlite3_exec(handle_, sql.constData(), nullptr, nullptr, nullptr) & 0xFF;
}

void SqliteFile::Execute(const QByteArray& sql)
{
    if (Try(sql) != SQLITE_OK)
        ADD_FAILURE() << sql.constData() << ": " << sqlite3_errmsg(handle_);
}

std::vector<SqliteFile::Row> SqliteFile::Query(const QByteArray& sql, const Row& parameters)
{
    std::vector<Row> rows;
    sqlite3_stmt* statement = nullptr;
    int result = sqlite3_prepare_v2(handle_, sql.constData(), -1, &statement, nullptr);
    int number = 0;
    for (const std::optional<QString>& parameter : parameters) {
        ++number;
        if (parameter)
            sqlite3_bind_text(statement, number, parameter->toUtf8().constData(), -1, SQLITE_TRANSIENT);
    }
    if (result == SQLITE_OK)
        result = sqlite3_step(statement);
    for (; result == SQLITE_ROW; result = sqlite3_step(statement)) {
        Row row;
        for (int column = 0; column < sqlite3_column_count(statement); ++column) {
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
            row.push_back(text ? std::optional(QString::fromUtf8(text)) : std::nullopt);
        }
        rows.push_back(std::move(row));
    }
    if (result != SQLITE_DONE)
        ADD_FAILURE() << sql.constData() << ": " << sqlite3_errmsg(handle_);
    sqlite3_finalize(statement);
    return rows;
}

std::optional<QString> SqliteFile::Value(const QByteArray& sql)
{
    const std::vector<Row> rows = Query(sql);
    if (rows.empty()) {
        ADD_FAILURE() << "no row: " << sql.constData();
        return {};
    }
    return rows.front().front();
}

} // namespace lineforge
