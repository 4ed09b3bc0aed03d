#pragma once

#include <QFileDevice>
#include <QString>

// The rules by which the disk is refused to the program, and the number that each refusal has. All paths are resolved
// ones.
namespace lineforge
{

[[noreturn]] void Refuse(int number, const QString& path);

// With the number of what has just failed.
[[noreturn]] void Refuse(const QFileDevice& file);

// Whoever runs the program: the owner's permission bit alone counts.
bool OwnerCanWrite(const QString& path);

// A name can be added to or taken from a directory only when it is there (else 76) and its owner may write it (75).
void RequireWritableParent(const QString& path);

// 53 where no file stands.
void RequireFile(const QString& path);

// Another file can be put in its place: the errors of its directory, and 75 for a directory or a read-only file.
void RequireReplaceable(const QString& path);

// The number of what has just failed: 61 disk full, 70 permission denied, 75 not to be opened, 57 anything else.
int NumberOfFailure(const QFileDevice& file);

} // namespace lineforge
