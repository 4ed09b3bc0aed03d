#pragma once

#include "platform/FileSystem.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <map>
#include <memory>
#include <sys/types.h>

struct sqlite3;
struct sqlite3_stmt;

namespace lineforge
{

// A prepared statement. A refusal of the engine is a RuntimeError: 61 disk full, 57 device, 3027 read-only,
// 3260 locked by somebody else, 3343 no database, 3078 no such table.
class Statement
{
public:
    Statement(sqlite3* database, const QByteArray& sql);
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    // Parameters and columns count from 0.
    void Bind(int parameter, std::int64_t value);
    void Bind(int parameter, QByteArrayView utf8);
    void BindNull(int parameter);

    // True while there is a row. A statement that has been stepped holds a read lock until Reset or its last row.
    bool Step();
    void Reset();

    int Columns() const;
    QByteArray ColumnName(int column) const;
    std::int64_t Integer(int column) const;
    // UTF-8, valid until the next Step or Reset; a null view for Null.
    QByteArrayView Text(int column) const;

private:
    [[noreturn]] void Fail() const;

    sqlite3* database_;
    sqlite3_stmt* statement_ = nullptr;
};

// One open database file: the one connection that all cursors of this process on that file share, so that they see
// each other's changes at once and never lock each other out. Changes are durable when the call returns.
class Database
{
public:
    // RuntimeError 3024 missing, 3027 read-only, 3343 not a database. Looking doesn't change the file.
    Database(const FileSystem& files, const QString& path);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    std::unique_ptr<Statement> Prepare(const QByteArray& sql) const;

    QString Path() const;

    // Grows with every row written through this connection.
    std::int64_t Changes() const;

    // Whether the path still leads to the very file that is open here.
    bool IsStill(const QString& path) const;

    // A row of that number has been seen.
    void NoteRow(std::int64_t row);

    // A row number that no row stands under, nor any that has been seen or added since the file was opened.
    std::int64_t NewRowNumber(const QByteArray& table);

private:
    sqlite3* handle_ = nullptr;
    dev_t device_ = 0;
    ino_t inode_ = 0;
    std::int64_t highestRow_ = 0;
};

// The open database files of this process, by path.
class Databases
{
public:
    // The open file of that path, or a fresh opening; it closes with its last user.
    std::shared_ptr<Database> Open(const FileSystem& files, const QString& path);

private:
    std::map<QString, std::weak_ptr<Database>> open_;
};

} // namespace lineforge
