#pragma once

#include "support/Printing.h"

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

namespace lineforge
{

// What stands in a directory tree: relative path to content; a directory's content is "<dir>".
using Tree = QMap<QString, QByteArray>;

// What became of a tree, a line an entry, sorted: "changed: x", "gone: y", "new: z". Empty when nothing did.
//     EXPECT_EQ(Differences(before, home.Snapshot()), QStringList());
QStringList Differences(const Tree& before, const Tree& after);

// A directory of the test's own on the real disk; it goes with the test. Relative paths have `/` between the parts.
class TemporaryHome
{
public:
    TemporaryHome();
    ~TemporaryHome();
    TemporaryHome(const TemporaryHome&) = delete;
    TemporaryHome& operator=(const TemporaryHome&) = delete;

    // Without a trailing separator.
    QString Path() const { return directory_.path(); }
    // The absolute path of what stands in it.
    QString Path(QStringView relative) const;

    // Makes the directories above the file as well. Both give back the absolute path.
    QString WriteFile(QStringView relative, const QByteArray& bytes);
    QString MakeDirectory(QStringView relative);

    // The bytes of a file; a test that reads a file which isn't there fails.
    QByteArray ReadFile(QStringView relative) const;
    bool Exists(QStringView relative) const;

    // Takes the write permission bits of a file or directory, or gives the owner's back.
    void MakeReadOnly(QStringView relative);
    void MakeWritable(QStringView relative);

    Tree Snapshot() const;

private:
    QTemporaryDir directory_;
};

} // namespace lineforge
