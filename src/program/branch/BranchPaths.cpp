#include "program/branch/BranchPaths.h"

#include "platform/base/Text.h"
#include "platform/files/FileSystem.h"
#include "program/state/PictureNames.h"

#include <algorithm>

namespace lineforge
{

namespace
{
constexpr int directoryNameLength = 8;
}

QString DirectoryName(const QString& workDir)
{
    return workDir.right(directoryNameLength);
}

QString BranchLetter(const QString& workDir)
{
    return workDir.right(1);
}

QString SiblingDirectory(const QString& workDir, QStringView letter)
{
    Q_ASSERT(letter.size() == 1);
    return workDir.chopped(1) + letter;
}

bool IsBranchDirectory(const QString& workDir, const QString& homeDir)
{
    if (!homeDir.endsWith(PathSeparator) || !workDir.startsWith(homeDir))
        return false;
    const QStringView name = QStringView(workDir).sliced(homeDir.size());
    const QStringView family = name.chopped(std::min<qsizetype>(1, name.size()));
    return (SameText(family, u"LfgDat_") || SameText(family, u"Import_")) && name.back() != PathSeparator;
}

bool IsImported(const QString& workDir)
{
    return SameText(DirectoryName(workDir).first(std::min<qsizetype>(6, workDir.size())), u"Import");
}

QString ApplicationDirectory(const QString& workDir)
{
    return workDir.left(std::max<qsizetype>(0, workDir.size() - directoryNameLength - 1));
}

QString DatabaseName(QStringView letter)
{
    return u"LfgDat_" + letter + u".mdb";
}

QString GalleryName(QStringView letter)
{
    return u"LfgGal_" + letter;
}

QString DatabasePath(const QString& workDir)
{
    return workDir + PathSeparator + DatabaseName(BranchLetter(workDir));
}

QString SubjectPictureFile(const QString& workDir, const QString& file)
{
    return workDir + PathSeparator + file + SubjectPictureEnding;
}

QString MapFileToRead(const QString& workDir)
{
    return workDir + PathSeparator + u"LfgDat_" + BranchLetter(workDir) + u".cfg";
}

QString MapFileToWrite(const QString& workDir, const QString& homeDir, QStringView ending)
{
    // With no branch open the name has lost its directory and begins at the root, which here is the home directory.
    if (workDir.isEmpty())
        return homeDir + ending;
    return workDir + PathSeparator + DirectoryName(workDir) + ending;
}

} // namespace lineforge
