#pragma once

#include "platform/store/Connection.h"

#include <map>

namespace lineforge
{

class TableRows;

// What is known of the rows of a file's tables, by their quoted names. It outlives the opening of the file, so that a
// bookmark still leads to its record when the file is opened again.
using KnownTables = std::map<QByteArray, std::shared_ptr<TableRows>>;

// One open database file: the one connection that all cursors of this process on that file share, so that they see
// each other's changes at once and never lock each other out, and what is known of its rows.
class Database : public Connection
{
public:
    // As a connection.
    Database(const FileSystem& files, const QString& path, std::shared_ptr<OtherPrograms> others = {},
             std::shared_ptr<KnownTables> tables = {}, int milliseconds = 2000);
    ~Database();

    // The rows of that table, whose name is quoted. 3078 when there is none.
    TableRows& Rows(const QByteArray& table);

private:
    std::shared_ptr<KnownTables> tables_;
};

// The open database files of this process, by path.
class Databases
{
public:
    Databases();
    ~Databases();
    Databases(const Databases&) = delete;
    Databases& operator=(const Databases&) = delete;

    // How the user is told of other programs.
    OtherPrograms& Others() { return *others_; }

    // The open file of that path, or a fresh opening; it closes with its last user.
    [[nodiscard]] std::shared_ptr<Database> Open(const FileSystem& files, const QString& path);

private:
    struct Known {
        std::weak_ptr<Database> Open;
        std::shared_ptr<KnownTables> Tables;
    };

    std::shared_ptr<OtherPrograms> others_;
    std::map<QString, Known> known_;
};

} // namespace lineforge
