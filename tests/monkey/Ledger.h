#pragma once

#include <QMap>
#include <QSet>
#include <QStringList>

#include <functional>
#include <optional>
#include <sys/types.h>

struct sqlite3;

namespace lineforge::monkey
{

class Journal;

// The records of a database in their stored order, field by field; a null text stands for Null.
using Rows = QList<QStringList>;

// What a connection of its own reads of a database's records; nothing when that can't be had just now, as of a file of
// an older installation.
std::optional<Rows> ReadRows(const QString& database);

// The databases below that directory, by their absolute paths.
QStringList DatabasesBelow(const QString& directory);

// Numbers of records whose deletion the user has confirmed.
using Confirmed = QSet<QString>;

// What is wrong with a commit that has made the one out of the other: it may add one record, change one, or take one
// out that the user wanted to delete. Empty when nothing is.
QString FaultOfCommit(const Rows& before, const Rows& after, const Confirmed& confirmed);

// The book of all that has been committed: after each commit that the engine tells of, each database as another
// connection reads it then. In the journal stands what must not be; in a file, for whoever looks after the process has
// been killed, what has to be there.
class Ledger
{
public:
    // Reads all databases below those directories.
    Ledger(const QStringList& directories, const QString& file, Journal& journal);
    ~Ledger();
    Ledger(const Ledger&) = delete;
    Ledger& operator=(const Ledger&) = delete;

    // The user wants to delete that record, that branch.
    void ConfirmRecord(const QString& database, const QString& number);
    void ConfirmBranch(const QString& directory);

    // At rest: no database has gone or changed but by what has been seen.
    void Audit();

private:
    static int Opened(sqlite3* database, char** message, const void* routines);
    static int Traced(unsigned event, void* context, void* statement, void* time);
    static int Committing(void* context);
    void Committed(const QString& database);
    bool IsGivenUp(const QString& database) const;
    void Enter(const QString& database, const Rows& rows);
    void Write(const QString& line);

    QStringList directories_;
    Journal& journal_;
    int file_;
    QMap<QString, Rows> book_;
    QMap<QString, Confirmed> confirmed_; // by database
    QMap<QString, ino_t> givenUp_;       // branches, by directory
    bool isReading_ = false;
    QMap<const sqlite3*, long long> changes_;
};

// What is wrong with the databases after the death of a process that has kept that file: what was committed last must
// stand there, or what the commit under way at that moment makes of it.
QStringList FaultsAfterDeath(const QString& file);

} // namespace lineforge::monkey
