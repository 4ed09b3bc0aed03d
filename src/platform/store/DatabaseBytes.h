#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace lineforge
{

class OtherPrograms;

// The bytes of a database's file as they stand between two changes of other programs, who are kept out while they are
// read: those of the file, and what the engine keeps of them beside it. What a writer that was cut off has left is
// taken back before. Nothing where there is no database of ours, or one that can't be opened and beside which nothing
// is kept: its file can be copied like any other. 3260, told, when the user doesn't wait for another program any
// longer; otherwise as `Statement`.
[[nodiscard]] std::optional<QByteArray> DatabaseBytes(OtherPrograms& others, const QString& path);

// The files beside a database of that name in which the engine keeps changes. To a copy of those bytes they are none.
QStringList ChangesBeside(const QString& database);

} // namespace lineforge
