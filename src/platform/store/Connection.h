#pragma once

#include "platform/files/FileSystem.h"
#include "platform/store/Statement.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <map>
#include <memory>
#include <sys/types.h>
#include <vector>

namespace lineforge
{

class OtherPrograms;

// The connection of this process to one database file. Changes are durable when the call returns.
class Connection
{
public:
    // RuntimeError 3024 missing, 3027 read-only, 3260 locked for longer than that, 3343 not a database. Looking doesn't
    // change the file.
    Connection(const FileSystem& files, const QString& path, std::shared_ptr<OtherPrograms> others = {},
               int milliseconds = 2000);
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    [[nodiscard]] std::unique_ptr<Statement> Prepare(const QByteArray& sql) const;

    const QString& Path() const { return path_; }

    // Grows with every row written through this connection.
    std::int64_t Changes() const;

    // Whether the file's name still leads to the very file that is open here.
    bool IsStillThere() const;
    // Whoever keeps directories alike on several machines takes a file away to put another one in its place.
    bool MayComeBack() const;

    // How long the engine waits for a lock from now on.
    void BePatient(int milliseconds);

    // Goes over to the file that another program has put in the place of this one, if there is one; the user is told.
    // Not during a transaction. One that can't be used is refused as in opening, or with 3078; the file that is open
    // stays so.
    void FollowFile();
    // The same, but one that can't be used doesn't keep anybody from reading on in the file that is open. 3260 all the
    // same.
    void FollowUsableFile();
    // What a file must have to be gone over to: that table, quoted, with these fields in this order.
    void RequireTable(const QByteArray& table, const std::vector<QString>& fields) { required_[table] = fields; }
    // Grows with every file that is gone over to. Statements prepared before are of the one that is gone.
    std::uint32_t Opening() const { return opening_; }

    OtherPrograms& Others() const { return *others_; }

private:
    void Open();
    void RequireTables(sqlite3* fresh) const;

    int patience_; // in milliseconds
    std::shared_ptr<OtherPrograms> others_;
    QString path_;
    sqlite3* handle_ = nullptr;
    dev_t device_ = 0;
    ino_t inode_ = 0;
    std::uint32_t opening_ = 0;
    std::int64_t changesBefore_ = 0; // in the files that are gone
    std::map<QByteArray, std::vector<QString>> required_;
};

// A change of a file that takes place whole or not at all: taken back by its end unless it was committed. No other
// program can write meanwhile. 3260 when one is at it already, or still reads when it is to be committed, and when the
// file has lost its name, or another has it that can't be used; 3024 when its directory has, too.
class Transaction
{
public:
    explicit Transaction(Connection& connection);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    void Commit();

private:
    const Connection& connection_;
    bool isOpen_ = true;
};

} // namespace lineforge
