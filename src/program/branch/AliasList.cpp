#include "program/branch/AliasList.h"

#include "forms/Form8.h"
#include "forms/form9.h"
#include "platform/base/Number.h"
#include "platform/base/Text.h"
#include "platform/base/VisibleText.h"
#include "platform/files/TextFile.h"
#include "program/branch/AliasFile.h"
#include "program/state/Program.h"

#include <algorithm>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int fileNameLength = 13; // of "AliasList.cfg"
constexpr int directoryLength = 8; // of "LfgDat_A"

QString ListPath(const BranchState& branch)
{
    return branch.HomeDir + u"AliasList.cfg";
}

// Keeps the attributes of the list. False, and a box, when it isn't there or must not be read: only an attribute value
// of exactly read-only refuses; a file that bears another attribute as well passes here and fails later, when it is
// written.
bool FindReadableList(const BranchRegistry& registry)
{
    if (!registry.Files.LookUpGivesTail(ListPath(registry.Branch), fileNameLength)) {
        registry.form9.Unload();
        registry.Prompts.MsgBox(u"File not Found."_s, u"Can't find AliasList.cfg in Home Directory"_s,
                                Buttons::Information);
        return false;
    }
    registry.Alias.AliasAttr = registry.Files.GetAttr(ListPath(registry.Branch));
    if (registry.Alias.AliasAttr == FileSystem::ReadOnly) {
        registry.Prompts.MsgBox(u"File Attribute set for Read Only."_s,
                                u"Cannot access a Read Only File. Use 'Import File' to read this File."_s,
                                Buttons::Information);
        return false;
    }
    return true;
}

// Where the entry of that name begins in the list; -1 for none.
qsizetype StartOfEntry(const QString& aliasList, const QString& name)
{
    qsizetype start = 0;
    for (qsizetype at = 0; at < aliasList.size(); ++at) {
        if (aliasList[at] == u',')
            start = at + 1;
        else if (aliasList[at] == u'=' && SameText(aliasList.sliced(start, at - start), name))
            return start;
    }
    return -1;
}

void Do(const BranchRegistry& registry, void (*step)(const BranchRegistry&), Refusals refusals)
{
    if (refusals == Refusals::CostTheirStep)
        registry.Errors.Ignoring([&] { step(registry); });
    else
        step(registry);
}

void PublishAliasList(const BranchRegistry& registry, Refusals refusals)
{
    for (const auto step : {WriteAliasList, ReadAliasList, FillBranchList})
        Do(registry, step, refusals);
}

// Whether the branch list can give the name back: the first equals sign ends it there, the reader drops what is lost on
// it, and a row that shows nothing, or nothing but commas and brackets, isn't seen or isn't there.
// KEPT(MadeBranchTest.NameWithComma_HidesItselfAndLaterBranchesFromTheList): a comma among other characters is taken,
// and hides its branch and those behind it in the list.
// Mended, such a name would be refused or changed.
// KEPT(MadeBranchTest.NameWithClosingBracket_IsLostFromMemory_AndFromTheFileAtTheNextWrite): a closing bracket is taken
// as well, and costs its entry.
// Mended, such a name would be refused or changed.
bool IsGivenBack(const QString& name)
{
    constexpr QStringView lost = u"=[\n\r";
    constexpr QStringView marks = u",]";
    const auto isLost = [&](QChar character) { return lost.contains(character); };
    QString shown = name;
    shown.removeIf([&](QChar character) { return marks.contains(character); });
    return std::ranges::none_of(name, isLost) && !ShowsNothing(shown);
}

QString WholeEntry(const QString& name, const QString& directory)
{
    return u',' + name + u'=' + directory + u',';
}

// A name with commas makes several entries, of which only the last has the directory.
void RemoveWholeName(QString& aliasList, const QString& name, const QString& directory)
{
    const QString before = u',' + aliasList;
    aliasList = QString(before).replace(WholeEntry(name, directory), u","_s, Qt::CaseInsensitive).sliced(1);
}

bool IsEntryOf(const QString& entry, const QString& directory)
{
    return SameText(entry.right(directoryLength), directory);
}

void RemoveEntriesOf(QString& aliasList, const QString& directory)
{
    QStringList entries = aliasList.split(u',');
    entries.removeIf([&](const QString& entry) { return IsEntryOf(entry, directory); });
    aliasList = entries.join(u',');
}
} // namespace

BranchRegistry::BranchRegistry(Program& p)
    : Alias(p.Alias), Branch(p.Branch), Files(p.Files), Prompts(p.Prompts), Errors(p.Errors), Scratch(p.Scratch),
      form9(p.form9), Form8(p.Form8)
{
}

void ReadAliasConfig(const BranchRegistry& registry)
{
    if (!FindReadableList(registry))
        return;
    ReadAliasSection(registry.Files, ListPath(registry.Branch), AliasSection::Settings,
                     [&](const QString& value) { registry.Alias.NoSplash = ToInteger(value); });
}

void ReadAliasList(const BranchRegistry& registry)
{
    if (!FindReadableList(registry))
        return;
    registry.Alias.AliasTable.Erase();
    registry.Alias.sAliasList.clear();
    int index = 0;
    ReadAliasSection(registry.Files, ListPath(registry.Branch), AliasSection::Branches, [&](const QString& entry) {
        registry.Alias.AliasTable[index++] = entry;
        registry.Alias.sAliasList += entry + u',';
    });
}

void WriteAliasList(const BranchRegistry& registry)
{
    registry.Scratch.sFileA = ListPath(registry.Branch);
    registry.Scratch.sFileB = registry.Branch.HomeDir + u"AliasList.bak";
    if (registry.Files.LookUpGivesTail(registry.Scratch.sFileA, fileNameLength))
        registry.Files.FileCopy(registry.Scratch.sFileA, registry.Scratch.sFileB);
    WriteTextLines(registry.Files, registry.Scratch.sFileA,
                   {u"This File Contains Graphic Data crucial to your program. Warning: DO NOT MODIFY."_s, u"[Alias]"_s,
                    u'[' + registry.Alias.sAliasList + u']', u"[CFG]"_s, u"[%1,]"_s.arg(registry.Alias.NoSplash)});
}

bool IsNameListed(const AliasState& alias, const QString& name)
{
    return StartOfEntry(alias.sAliasList, name) >= 0;
}

bool IsDirectoryListed(const AliasState& alias, const QString& directory)
{
    return std::ranges::any_of(alias.sAliasList.split(u','),
                               [&](const QString& entry) { return SameText(entry.section(u'=', -1), directory); });
}

QString ListedName(const AliasState& alias, const BranchState& branch, const QString& directory)
{
    const QString& open = branch.sBranchName;
    if (QString(u',' + alias.sAliasList).contains(WholeEntry(open, directory), Qt::CaseInsensitive))
        return open;
    for (const QString& entry : alias.sAliasList.split(u','))
        // As the branch list gives it back.
        if (const QString name = entry.section(u'=', 0, 0); IsEntryOf(entry, directory) && name != entry)
            return name;
    return open;
}

QString AskBranchName(const AliasState& alias, Prompts& prompts, const QString& title, const QString& prompt)
{
    for (;;) {
        QString name = prompts.InputBox(title, prompt);
        if (name.isEmpty() || (IsGivenBack(name) && !IsNameListed(alias, name)))
            return name;
        prompts.MsgBox(u"Duplicate Name entered."_s, u"Cannot have Tree Branch databases with same name"_s,
                       Buttons::Information);
    }
}

void AddAlias(const BranchRegistry& registry, const QString& name, const QString& directory, Refusals refusals)
{
    Do(registry, ReadAliasList, refusals);
    registry.Alias.sAliasList += name + u'=' + directory + u',';
    PublishAliasList(registry, refusals);
}

// By the directory: under the name the list may have another branch, of which this one's name is the beginning, and the
// directory may be listed under other names too.
void RemoveAlias(const BranchRegistry& registry, const QString& name, const QString& directory)
{
    RemoveWholeName(registry.Alias.sAliasList, name, directory);
    RemoveEntriesOf(registry.Alias.sAliasList, directory);
    PublishAliasList(registry, Refusals::CostTheirStep);
}

void FillBranchList(const BranchRegistry& registry)
{
    if (registry.Alias.sAliasList.isEmpty())
        return;
    const FixedArray<QString, 0, 99>& table = registry.Alias.AliasTable;
    ListBox& list = registry.Form8->List1;

    QStringList names;
    for (int index = 0; !table[index].isEmpty(); ++index) {
        const qsizetype equals = table[index].indexOf(u'=');
        if (equals < 0)
            break;
        names += table[index].first(equals);
    }
    list.ListIndex = -1;
    list.Items = names;

    const QString open = registry.Branch.WorkDir.right(directoryLength);
    for (int index = 0; !table[index].isEmpty(); ++index) {
        if (IsEntryOf(table[index], open)) {
            // A directory that stands there alone has no name to select.
            list.SetText(table[index].first(std::max<qsizetype>(0, table[index].size() - directoryLength - 1)));
            break;
        }
    }
}

} // namespace lineforge
