#pragma once

#include "platform/files/FileSystem.h"

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

class TableRows;
class OtherPrograms;

// A name of a table or field as it stands in a statement.
QByteArray Quoted(QByteArray name);

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
    // As the file has them, which is cheaper: for the engine need not end them with a zero.
    bool IsNull(int column) const;
    QByteArrayView Bytes(int column) const;

private:
    [[noreturn]] void Fail() const;

    sqlite3* database_;
    sqlite3_stmt* statement_ = nullptr;
};

// What is known of the rows of a file's tables, by their quoted names. It outlives the opening of the file, so that a
// bookmark still leads to its record when the file is opened again.
using KnownTables = std::map<QByteArray, std::shared_ptr<TableRows>>;

// One open database file: the one connection that all cursors of this process on that file share, so that they see
// each other's changes at once and never lock each other out. Changes are durable when the call returns.
class Database
{
public:
    // RuntimeError 3024 missing, 3027 read-only, 3260 locked for longer than that, 3343 not a database. Looking doesn't
    // change the file.
    Database(const FileSystem& files, const QString& path, std::shared_ptr<OtherPrograms> others = {},
             std::shared_ptr<KnownTables> tables = {}, int milliseconds = 2000);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    std::unique_ptr<Statement> Prepare(const QByteArray& sql) const;

    const QString& Path() const { return path_; }

    // Grows with every row written through this connection.
    std::int64_t Changes() const;

    // Whether the file's name still leads to the very file that is open here.
    bool IsStillThere() const;

    // How long the engine waits for a lock from now on.
    void BePatient(int milliseconds);

    // Goes over to the file that another program has put in the place of this one, if there is one that can be opened;
    // the user is told. Not during a transaction.
    void FollowFile();
    // Grows with every file that is gone over to. Statements prepared before are of the one that is gone.
    std::uint32_t Opening() const { return opening_; }

    // The rows of that table, whose name is quoted. 3078 when there is none.
    TableRows& Rows(const QByteArray& table);

    OtherPrograms& Others() const { return *others_; }

private:
    void Open();

    int patience_; // in milliseconds
    std::shared_ptr<OtherPrograms> others_;
    std::shared_ptr<KnownTables> tables_;
    QString path_;
    sqlite3* handle_ = nullptr;
    dev_t device_ = 0;
    ino_t inode_ = 0;
    std::uint32_t opening_ = 0;
    std::int64_t changesBefore_ = 0; // in the files that are gone
};

// A change of a file that takes place whole or not at all: taken back by its end unless it was committed. No other
// program can write meanwhile. 3260 when one is at it already, or still reads when it is to be committed; 3024 when the
// file has lost its name.
class Transaction
{
public:
    explicit Transaction(Database& database);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void Commit();

private:
    const Database& database_;
    bool isOpen_ = true;
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
    std::shared_ptr<Database> Open(const FileSystem& files, const QString& path);

private:
    struct Known {
        std::weak_ptr<Database> Open;
        std::shared_ptr<KnownTables> Tables;
    };

    std::shared_ptr<OtherPrograms> others_;
    std::map<QString, Known> known_;
};

} // namespace lineforge
