#include "check/LeftoverCheck.h"

#include "gallery/GalleryFile.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>

namespace lineforge::check
{

using namespace Qt::StringLiterals;

namespace
{
struct Sign {
    QRegularExpression Name;
    QString Text;
};

// By whom a file was left is seen by its name alone.
const std::vector<Sign>& Signs()
{
    const auto named = [](const QString& pattern) {
        return QRegularExpression(QRegularExpression::anchoredPattern(pattern),
                                  QRegularExpression::CaseInsensitiveOption |
                                      QRegularExpression::DotMatchesEverythingOption);
    };
    // The six letters that the toolkit takes at random. Words of users (.backup, .LATEST, .Holder) are not as mixed,
    // nor are five in a hundred of its own.
    const QString random = uR"((?-i)(?!.?[a-z]+$|[A-Z]+$)[A-Za-z]{6})"_s;
    static const std::vector<Sign> signs{
        {named(uR"(\.lineforge-.*)"_s), u"left by a copy that was cut off"_s},
        {named(uR"(\.arriving-.*)"_s), u"left by a start that was cut off"_s},
        {named(uR"(.*\.(mdb|jet)\.new(-journal)?)"_s), u"left by a conversion that was cut off"_s},
        {named(uR"(.*\.(mdb|jet)-(journal|wal|shm))"_s),
         u"left by a change that was cut off, or that is just being made; the branch's next change sees to it"_s},
        // What a file of the program's is written to before it takes its name.
        {named(uR"((|AliasList|(LfgDat|Import)_.|Gedcom|.*Sub|.{4,5}_\d\d?)\.[~a-z]{2,3}\.)"_s + random),
         u"left by a writing that was cut off"_s},
    };
    return signs;
}

const Sign* SignOf(const QString& name)
{
    const auto found =
        std::ranges::find_if(Signs(), [&](const Sign& sign) { return sign.Name.match(name).hasMatch(); });
    return found == Signs().end() ? nullptr : &*found;
}

void CheckDirectory(Home& home, const QString& directory)
{
    for (const QString& name : home.Files.Files(directory) + home.Files.Directories(directory))
        if (const Sign* sign = SignOf(name))
            home.Add(Kind::Leftover, directory + name, sign->Text);
}
} // namespace

void CheckLeftovers(Home& home)
{
    CheckDirectory(home, home.Path);
    for (const Branch& branch : home.Branches) {
        CheckDirectory(home, branch.Path + PathSeparator);
        CheckDirectory(home, home.Files.Resolve(GalleryDirectory(branch.Path)) + PathSeparator);
    }
}

bool IsLeftover(const QString& name)
{
    return SignOf(name) != nullptr;
}

} // namespace lineforge::check
