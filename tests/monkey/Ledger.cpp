#include "monkey/Ledger.h"

#include "monkey/Journal.h"
#include "platform/files/FileIdentity.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>
#include <fcntl.h>
#include <memory>
#include <sqlite3.h>
#include <unistd.h>

namespace lineforge::monkey
{

using namespace Qt::StringLiterals;

namespace
{
constexpr QChar tab = u'\t';
const QString rowsMark = u"rows"_s;
const QString begunMark = u"begun"_s;
const QString recordMark = u"record"_s;
const QString branchMark = u"branch"_s;

// The engine asks for functions without a context; a process keeps one book at a time.
Ledger* kept = nullptr;

struct Closing {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
};
struct Finalizing {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

QString TextOf(sqlite3_stmt* statement, int column)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return text ? QString::fromUtf8(text) + u"" : QString();
}

bool IsDatabase(const QString& path)
{
    static const QRegularExpression name(u"^LfgDat_.\\.mdb$"_s, QRegularExpression::CaseInsensitiveOption);
    return name.match(QFileInfo(path).fileName()).hasMatch();
}

bool IsBelow(const QString& path, const QStringList& directories)
{
    return std::ranges::any_of(directories,
                               [&](const QString& directory) { return path.startsWith(directory + u'/'); });
}

QString PathOf(sqlite3* database)
{
    return QString::fromUtf8(sqlite3_db_filename(database, "main"));
}

QByteArray ToJson(const Rows& rows)
{
    QJsonArray array;
    for (const QStringList& row : rows) {
        QJsonArray texts;
        for (const QString& text : row)
            texts.append(text.isNull() ? QJsonValue() : QJsonValue(text));
        array.append(texts);
    }
    return QJsonDocument(array).toJson(QJsonDocument::Compact);
}

Rows FromJson(const QByteArray& json)
{
    Rows rows;
    for (const QJsonValue row : QJsonDocument::fromJson(json).array()) {
        QStringList texts;
        for (const QJsonValue text : row.toArray())
            texts += text.isNull() ? QString() : text.toString() + u"";
        rows += texts;
    }
    return rows;
}

QString NumberOf(const QStringList& row)
{
    return row.first();
}

Confirmed NumbersOf(const Rows& rows)
{
    Confirmed numbers;
    for (const QStringList& row : rows)
        numbers.insert(NumberOf(row));
    return numbers;
}

// Null and empty are two things.
bool AreSame(const QStringList& a, const QStringList& b)
{
    return std::ranges::equal(a, b, [](const QString& left, const QString& right) {
        return left == right && left.isNull() == right.isNull();
    });
}

// The stretch in which two lists of rows differ.
struct Difference {
    Difference(const Rows& before, const Rows& after)
    {
        while (First < before.size() && First < after.size() && AreSame(before[First], after[First]))
            ++First;
        qsizetype same = 0;
        while (same < before.size() - First && same < after.size() - First &&
               AreSame(before[before.size() - 1 - same], after[after.size() - 1 - same]))
            ++same;
        Before = before.size() - First - same;
        After = after.size() - First - same;
    }

    qsizetype First = 0;
    qsizetype Before = 0; // how many rows there were
    qsizetype After = 0;
};
} // namespace

std::optional<Rows> ReadRows(const QString& database)
{
    sqlite3* opened = nullptr;
    const int result = sqlite3_open_v2(database.toUtf8().constData(), &opened, SQLITE_OPEN_READONLY, nullptr);
    const std::unique_ptr<sqlite3, Closing> handle(opened);
    sqlite3_stmt* prepared = nullptr;
    if (result != SQLITE_OK ||
        sqlite3_prepare_v2(opened, "SELECT File, * FROM Tree99 ORDER BY rowid", -1, &prepared, nullptr) != SQLITE_OK)
        return {};
    const std::unique_ptr<sqlite3_stmt, Finalizing> statement(prepared);
    Rows rows;
    int step = sqlite3_step(prepared);
    for (; step == SQLITE_ROW; step = sqlite3_step(prepared)) {
        QStringList row;
        for (int column = 0; column < sqlite3_column_count(prepared); ++column)
            row += TextOf(prepared, column);
        rows += row;
    }
    if (step != SQLITE_DONE)
        return {};
    return rows;
}

QStringList DatabasesBelow(const QString& directory)
{
    QStringList found;
    for (QDirIterator files(directory, QDir::Files, QDirIterator::Subdirectories); files.hasNext();)
        if (const QString path = files.next(); IsDatabase(path))
            found += QFileInfo(path).canonicalFilePath();
    found.sort();
    return found;
}

QString FaultOfCommit(const Rows& before, const Rows& after, const Confirmed& confirmed)
{
    const Difference between(before, after);
    if (between.Before + between.After == 0 || (between.Before == 0 && between.After == 1))
        return {};
    if (between.Before == 1 && between.After == 0) {
        const QString number = NumberOf(before[between.First]);
        return confirmed.contains(number) ? QString()
                                          : QString(u"record "_s + number + u" has gone, and nobody confirmed that");
    }
    if (between.Before != 1 || between.After != 1)
        return u"one commit has changed %1 records into %2"_s.arg(between.Before).arg(between.After);
    const QString number = NumberOf(before[between.First]);
    return number == NumberOf(after[between.First])
               ? QString()
               : QString(u"record "_s + number + u" has become record " + NumberOf(after[between.First]));
}

Ledger::Ledger(const QStringList& directories, const QString& file, Journal& journal)
    : directories_(directories), journal_(journal),
      file_(open(QFile::encodeName(file).constData(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600))
{
    if (file_ < 0 || kept)
        qFatal("no ledger can be kept in %s", qUtf8Printable(file));
    kept = this;
    sqlite3_auto_extension(reinterpret_cast<void (*)()>(&Ledger::Opened));
    for (const QString& directory : directories_)
        for (const QString& database : DatabasesBelow(directory))
            Committed(database);
}

Ledger::~Ledger()
{
    sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(&Ledger::Opened));
    kept = nullptr;
    close(file_);
}

// Every connection of the process is listened to from its beginning but the ledger's own.
int Ledger::Opened(sqlite3* database, char**, const void*)
{
    if (!kept || kept->isReading_)
        return SQLITE_OK;
    kept->changes_[database] = sqlite3_total_changes64(database);
    sqlite3_trace_v2(database, SQLITE_TRACE_PROFILE, reinterpret_cast<int (*)(unsigned, void*, void*, void*)>(&Traced),
                     database);
    sqlite3_commit_hook(database, &Committing, database);
    return SQLITE_OK;
}

// A statement has come to its end; what it has written outside of a transaction is committed by then.
int Ledger::Traced(unsigned, void* context, void*, void*)
{
    auto* database = static_cast<sqlite3*>(context);
    if (!kept || !sqlite3_get_autocommit(database))
        return 0;
    long long& seen = kept->changes_[database];
    const long long changes = sqlite3_total_changes64(database);
    if (std::exchange(seen, changes) != changes)
        kept->Committed(PathOf(database));
    return 0;
}

int Ledger::Committing(void* context)
{
    if (kept)
        kept->Write(begunMark + tab + PathOf(static_cast<sqlite3*>(context)));
    return 0;
}

void Ledger::ConfirmRecord(const QString& database, const QString& number)
{
    const QString path = QFileInfo(database).canonicalFilePath();
    confirmed_[path].insert(number);
    Write(recordMark + tab + path + tab + number);
}

void Ledger::ConfirmBranch(const QString& directory)
{
    const QString path = QFileInfo(directory).canonicalFilePath();
    for (const QString& database : book_.keys())
        if (IsBelow(database, {path}))
            book_.remove(database);
    givenUp_[path] = IdentityOf(path).File;
    Write(branchMark + tab + path);
}

// A directory that has taken the name of one that has gone is another branch.
bool Ledger::IsGivenUp(const QString& database) const
{
    return std::ranges::any_of(givenUp_.asKeyValueRange(), [&](const auto& branch) {
        return IsBelow(database, {branch.first}) && IdentityOf(branch.first).File == branch.second;
    });
}

void Ledger::Committed(const QString& database)
{
    // The texts of a branch that is given up are still stored when its window closes.
    if (!IsDatabase(database) || !IsBelow(database, directories_) || IsGivenUp(database))
        return;
    isReading_ = true;
    const std::optional<Rows> rows = ReadRows(database);
    isReading_ = false;
    if (!rows)
        return;
    if (const auto before = book_.constFind(database); before != book_.cend())
        if (const QString fault = FaultOfCommit(*before, *rows, confirmed_[database]); !fault.isEmpty())
            journal_.Finding(database + u": " + fault);
    confirmed_[database].intersect(NumbersOf(*rows));
    Enter(database, *rows);
}

void Ledger::Enter(const QString& database, const Rows& rows)
{
    book_[database] = rows;
    Write(rowsMark + tab + database + tab + QString::fromUtf8(ToJson(rows)));
}

void Ledger::Audit()
{
    for (const QString& database : book_.keys()) {
        const std::optional<Rows> now = ReadRows(database);
        if (!now)
            journal_.Finding(database + u" has gone or can't be read, and nobody confirmed that");
        else if (!std::ranges::equal(book_.value(database), *now, AreSame))
            journal_.Finding(database + u" holds something else than was committed");
        if (now)
            Enter(database, *now);
        else
            book_.remove(database);
    }
    // What is still there stays.
    givenUp_.clear();
    for (const QString& directory : directories_)
        for (const QString& database : DatabasesBelow(directory))
            if (!book_.contains(database))
                Committed(database);
}

void Ledger::Write(const QString& line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    if (write(file_, bytes.constData(), static_cast<std::size_t>(bytes.size())) != bytes.size())
        qFatal("the ledger can't be written");
}

namespace
{
// What a ledger says of its databases in the end.
struct Book {
    explicit Book(const QString& file)
    {
        QFile ledger(file);
        if (!ledger.open(QFile::ReadOnly))
            return;
        QList<QByteArray> lines = ledger.readAll().split('\n');
        lines.removeLast(); // nothing, or what the kill has cut short
        for (const QByteArray& line : lines)
            Take(QString::fromUtf8(line).split(tab));
    }

    void Take(const QStringList& parts)
    {
        if (parts.first() == rowsMark) {
            Databases[parts[1]].Committed = FromJson(parts[2].toUtf8());
            Databases[parts[1]].IsChanging = false;
        } else if (parts.first() == begunMark) {
            if (const auto database = Databases.find(parts[1]); database != Databases.end())
                database->IsChanging = true;
        } else if (parts.first() == recordMark) {
            Databases[parts[1]].Deleting.insert(parts[2]);
        } else if (parts.first() == branchMark) {
            Databases.removeIf([&](const auto& database) { return IsBelow(database.key(), {parts[1]}); });
        }
    }

    struct Entry {
        Rows Committed;
        bool IsChanging = false; // a commit was under way
        Confirmed Deleting;
    };
    QMap<QString, Entry> Databases;
};

QString FaultOf(const QString& database, const Book::Entry& entry)
{
    const std::optional<Rows> now = ReadRows(database);
    if (!now)
        return u"can't be read"_s;
    if (std::ranges::equal(entry.Committed, *now, AreSame))
        return {};
    return entry.IsChanging ? FaultOfCommit(entry.Committed, *now, entry.Deleting) : u"a committed change is lost"_s;
}
} // namespace

QStringList FaultsAfterDeath(const QString& file)
{
    const Book book(file);
    QStringList faults;
    for (auto database = book.Databases.begin(); database != book.Databases.end(); ++database)
        if (const QString fault = FaultOf(database.key(), *database); !fault.isEmpty())
            faults += database.key() + u": " + fault;
    return faults;
}

} // namespace lineforge::monkey
