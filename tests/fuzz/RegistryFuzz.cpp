#include "FuzzHome.h"
#include "forms/Form8.h"
#include "program/branch/AliasList.h"

#include <algorithm>

namespace lineforge::fuzz
{
namespace
{

using namespace Qt::StringLiterals;

// False when the registry is refused.
bool Read(Program& p)
{
    try {
        ReadAliasConfig(p);
        ReadAliasList(p);
        FillBranchList(p);
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

QStringList Entries(const Program& p)
{
    QStringList entries;
    for (int index = 0; index < 100; ++index)
        entries += p.Alias.AliasTable[index];
    return entries;
}

// Some of the names that the user is shown; a list that is empty shows what it had.
void RequireKnown(Program& p)
{
    constexpr qsizetype some = 8;
    const QStringList names = p.Form8->List1.Items;
    for (const QString& name : names.first(std::min(names.size(), some)))
        Require(p.Alias.sAliasList.isEmpty() || IsNameListed(p.Alias, name));
}

} // namespace
} // namespace lineforge::fuzz

// Whatever the registry: it is refused, or what was read of it is written and read back the same, and every name that
// the user is shown is known.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace lineforge;
    using namespace lineforge::fuzz;

    static FuzzHome home;
    Program& p = home.P;
    home.Write(u"AliasList.cfg"_s, BytesOf(data, size));
    if (!Read(p))
        return 0;
    const QString list = p.Alias.sAliasList;
    const QStringList entries = Entries(p);
    const int noSplash = p.Alias.NoSplash;
    RequireKnown(p);
    WriteAliasList(p);
    Require(Read(p) && p.Alias.sAliasList == list && Entries(p) == entries && p.Alias.NoSplash == noSplash);
    return 0;
}
