#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace lineforge
{

// A name of a table or field as it stands in a statement.
QByteArray Quoted(QByteArray name);

// The number of the engine's last refusal, of those that a statement names.
int NumberOfRefusal(sqlite3* database);

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
    std::vector<QString> ColumnNames() const;
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

} // namespace lineforge
