#include "Branch.h"

#include "Failure.h"
#include "Files.h"

#include <QDir>
#include <QRegularExpression>

namespace lineforge::makehome
{

using namespace Qt::StringLiterals;

namespace
{

QString ReadFriendlyName(const QString& path)
{
    const QString line = ReadLines(path).value(0).trimmed();
    if (!line.startsWith("Name:"_L1)) {
        throw FailureAt(path, 1, u"expected \"Name: \" and the name of the branch"_s);
    }
    QString name = line.mid(5).trimmed();
    static const QRegularExpression unsafe(u"[\\[\\],=]"_s);
    if (name.isEmpty() || name.contains(unsafe)) {
        throw FailureAt(path, 1, u"the registry needs a name without comma, equals sign or brackets"_s);
    }
    return name;
}

Branch ReadBranch(const QDir& directory)
{
    Branch branch;
    branch.letter = directory.dirName();
    branch.sourceDirectory = directory.path();
    branch.friendlyName = ReadFriendlyName(directory.filePath(u"branch.txt"_s));
    branch.records = ReadRecords(directory.filePath(u"records.txt"_s));
    branch.map = ReadMapSource(directory.filePath(u"map.txt"_s));
    branch.gallery = ReadGallery(directory.filePath(u"gallery.txt"_s));
    return branch;
}

} // namespace

QString Branch::DirectoryName() const
{
    return u"LfgDat_"_s + letter;
}

QList<Branch> ReadBranches(const QString& examplesDirectory)
{
    QList<Branch> branches;
    const QDir top(examplesDirectory);
    static const QRegularExpression oneLetter(u"^[A-Z]$"_s);
    const QStringList names = top.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (const QString& name : names) {
        if (oneLetter.match(name).hasMatch()) {
            branches.append(ReadBranch(QDir(top.filePath(name))));
        }
    }
    if (branches.isEmpty()) {
        throw Failure(u"%1 holds no branch"_s.arg(examplesDirectory));
    }
    return branches;
}

const Record* FindRecord(const QList<Branch>& branches, const QString& file)
{
    for (const Branch& branch : branches) {
        for (const Record& record : branch.records) {
            if (record.Value(Field::File) == file) {
                return &record;
            }
        }
    }
    return nullptr;
}

} // namespace lineforge::makehome
