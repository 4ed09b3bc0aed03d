#include "check/Home.h"

#include "platform/base/Text.h"
#include "platform/store/DataRef.h"
#include "program/branch/BranchPaths.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace lineforge::check
{

using namespace Qt::StringLiterals;

namespace
{
QString WithSeparator(const QString& directory)
{
    const QString path = QDir::cleanPath(QDir(directory).absolutePath());
    return path.endsWith(PathSeparator) ? path : QString(path + PathSeparator);
}

// One line, whatever stands in a file.
QString InOneLine(QString text)
{
    for (QChar& character : text)
        if (!character.isPrint() && !character.isSurrogate())
            character = u'?';
    return text;
}

// Where the records of that letter are, seen from a branch: in the same family of directories.
QString SiblingName(const Branch& from, const QString& number)
{
    return SiblingDirectory(from.Name, DataRef(number).Letter());
}
} // namespace

Home::Home(const QString& directory, std::chrono::milliseconds patience)
    : Path(WithSeparator(directory)), Files(Path), Patience(patience)
{
}

void Home::Add(Kind kind, const QString& path, const QString& text, const QString& record)
{
    Report.Findings.push_back({kind, InOneLine(Relative(path)), InOneLine(record), InOneLine(text)});
}

QString Home::Relative(const QString& path) const
{
    return path.startsWith(Path) ? path.sliced(Path.size()) : path;
}

const Branch* Home::Find(const QString& name) const
{
    const auto found =
        std::ranges::find_if(Branches, [&](const Branch& branch) { return SameText(branch.Name, name); });
    return found == Branches.end() ? nullptr : &*found;
}

bool Home::Leads(const Branch& from, const QString& number) const
{
    if (!from.Records || from.Numbers.contains(Folded(number)))
        return true;
    const Branch* sibling = Find(SiblingName(from, number));
    return sibling && (!sibling->Records || sibling->Numbers.contains(Folded(number)));
}

QString Home::WhyNot(const Branch& from, const QString& number) const
{
    const QString sibling = SiblingName(from, number);
    return Find(sibling) ? u"which isn't there"_s : u"and there is no branch "_s + sibling;
}

bool Home::Stands(const QString& path)
{
    const QFileInfo entry(path);
    return entry.exists() || entry.isSymLink();
}

QStringList Home::FilesOf(const QString& directory)
{
    const QFileInfo place(directory);
    // A directory that lists its names but lets nobody come to them shows none.
    if (!place.isDir() || !place.isReadable() || !place.isExecutable()) {
        Add(Kind::Unread, directory, u"this directory can't be read"_s);
        return {};
    }
    return Files.Files(directory + PathSeparator);
}

bool Home::RequireReadable(const QString& path)
{
    const QFileInfo file(path);
    if (file.isFile() && file.isReadable())
        return true;
    Add(Kind::Unread, path, file.isFile() ? u"this file can't be read"_s : u"this is no file, or leads to none"_s);
    return false;
}

bool IsLink(const QString& number)
{
    return !number.isEmpty() && number != u"0";
}

} // namespace lineforge::check
