#include "check/RegistryCheck.h"

#include "platform/base/Number.h"
#include "platform/base/RuntimeError.h"
#include "platform/base/Text.h"
#include "platform/base/VisibleText.h"
#include "program/branch/AliasFile.h"
#include "program/branch/BranchPaths.h"

#include <QFileInfo>

#include <algorithm>

namespace lineforge::check
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int mostEntries = 99; // the program has room for one more, and knows the end of the list by an empty one

QString ListPath(const Home& home)
{
    return home.Files.Resolve(home.Path + u"AliasList.cfg");
}

void Tell(Home& home, const QString& text)
{
    home.Add(Kind::Registry, ListPath(home), text);
}

// Calls `take` with each value; what can't be read of the section is told.
template <class Take>
void ReadSection(Home& home, QStringView section, Take&& take)
{
    try {
        if (!ReadAliasSection(home.Files, ListPath(home), section, take))
            Tell(home, u"there is no section "_s + section);
    } catch (const RuntimeError& refusal) {
        if (refusal.Number == ErrorNumber::InputPastEnd)
            Tell(home, u"the file ends inside the section "_s + section);
        else
            home.Add(Kind::Unread, ListPath(home), u"the list of branches can't be read: "_s + refusal.Text);
    }
}

void CheckSettings(Home& home)
{
    ReadSection(home, AliasSection::Settings, [&](const QString& setting) {
        if (!NumberIn(setting))
            Tell(home, u"the setting '"_s + setting + u"' is no number");
    });
}

bool IsRepeated(const QStringList& texts, qsizetype at)
{
    return texts.first(at).contains(texts[at], Qt::CaseInsensitive);
}

// The directories of the entries; empty for an entry that leads to none.
QStringList DirectoriesOf(Home& home, const QStringList& entries)
{
    QStringList names;
    QStringList directories;
    for (const QString& entry : entries) {
        const QString directory = entry.section(u'=', -1);
        const bool leads = entry.contains(u'=') && IsBranchDirectory(home.Path + directory, home.Path);
        names += entry.section(u'=', 0, 0);
        directories += leads ? directory : QString();
        if (!entry.contains(u'='))
            Tell(home, u"the entry '"_s + entry + u"' has no directory, and hides the branches behind it");
        else if (!leads)
            Tell(home, u"the entry '"_s + entry + u"' leads to no directory of a branch");
        else if (ShowsNothing(names.back()))
            Tell(home, u"the branch in "_s + directory + u" has a name of which nothing is seen");
        if (IsRepeated(names, names.size() - 1))
            Tell(home, u"the name '"_s + names.back() + u"' stands there more than once");
    }
    return directories;
}

QStringList ReadDirectories(Home& home)
{
    QStringList entries;
    ReadSection(home, AliasSection::Branches, [&](const QString& entry) { entries += entry; });
    if (entries.size() > mostEntries)
        Tell(home, u"there are %1 entries; the program takes no more than %2"_s.arg(entries.size()).arg(mostEntries));
    return DirectoriesOf(home, entries.first(std::min<qsizetype>(entries.size(), mostEntries)));
}

// False when there can be no home here.
bool HasRegistry(Home& home, const QStringList& onDisk)
{
    if (Home::Stands(ListPath(home)))
        return home.RequireReadable(ListPath(home));
    if (onDisk.isEmpty())
        home.Add(Kind::Unread, {}, u"there is no home of branches in this directory"_s);
    else
        Tell(home, u"the list of branches isn't there"_s);
    return false;
}

void CheckListed(Home& home, const QStringList& listed, const QStringList& onDisk)
{
    for (qsizetype at = 0; at < listed.size(); ++at) {
        if (listed[at].isEmpty())
            continue;
        if (IsRepeated(listed, at))
            Tell(home, u"the directory "_s + listed[at] + u" stands there more than once");
        else if (!onDisk.contains(listed[at], Qt::CaseInsensitive))
            Tell(home, u"the branch in "_s + listed[at] + u" isn't there");
    }
    for (const QString& name : onDisk)
        if (!listed.contains(name, Qt::CaseInsensitive))
            home.Add(Kind::Registry, home.Path + name, u"this branch isn't in the list of branches"_s);
}

QStringList BranchDirectories(const Home& home)
{
    QStringList names = home.Files.Directories(home.Path);
    names.removeIf([&](const QString& name) { return !IsBranchDirectory(home.Path + name, home.Path); });
    return names;
}
} // namespace

void CheckRegistry(Home& home)
{
    const QFileInfo place(home.Path);
    if (!place.isDir() || !place.isReadable() || !place.isExecutable()) {
        home.Add(Kind::Unread, {},
                 place.exists() ? u"this directory can't be read"_s : u"there is no such directory"_s);
        return;
    }
    const QStringList onDisk = BranchDirectories(home);
    for (const QString& name : onDisk)
        home.Branches.push_back({.Name = name, .Path = home.Path + name});
    if (!HasRegistry(home, onDisk))
        return;
    CheckListed(home, ReadDirectories(home), onDisk);
    CheckSettings(home);
}

} // namespace lineforge::check
