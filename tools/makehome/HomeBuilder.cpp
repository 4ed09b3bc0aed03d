#include "HomeBuilder.h"

#include "Artwork.h"
#include "Branch.h"
#include "Database.h"
#include "Failure.h"
#include "Files.h"
#include "MapChecks.h"
#include "MapFile.h"
#include "Portrait.h"
#include "RecordChecks.h"

#include <QDir>
#include <QFileInfo>

namespace lineforge::makehome
{

using namespace Qt::StringLiterals;

namespace
{

void CheckGallery(const Branch& branch)
{
    for (const GalleryItem& item : branch.gallery) {
        if (!item.file.startsWith(branch.letter) || !FindRecord({branch}, item.file)) {
            throw FailureAt(item.sourcePath, item.sourceLine, u"the branch has no record %1"_s.arg(item.file));
        }
    }
}

void CheckAll(const QList<Branch>& branches)
{
    CheckRecords(branches);
    for (const Branch& branch : branches) {
        CheckMap(branch, branches);
        CheckGallery(branch);
    }
}

void BuildBranch(const Branch& branch, const QList<Branch>& branches, const QString& schemaPath, const QDir& home)
{
    if (home.exists(branch.DirectoryName())) {
        throw Failure(
            u"%1 is there already; remove it or choose another directory"_s.arg(home.filePath(branch.DirectoryName())));
    }
    const QDir directory(home.filePath(branch.DirectoryName()));
    MakeDirectory(directory.path());
    CreateDatabase(schemaPath, directory.filePath(branch.DirectoryName() + u".mdb"_s), branch.records);
    WriteMapFile(directory.filePath(branch.DirectoryName() + u".cfg"_s), branch, branches);
    for (const Record& record : branch.records) {
        WriteJpeg(directory.filePath(record.Value(Field::File) + u"Sub.jpg"_s), Portrait(record));
    }
    MakeGallery(branch.gallery, branch.sourceDirectory, directory.filePath(u"LfgGal_"_s + branch.letter));
}

void CopyFixedFiles(const QString& schemaPath, const QDir& home)
{
    const QDir data = QFileInfo(schemaPath).dir();
    for (const QString& name : {u"LfgEmpt.~cf"_s, u"lineforge.svg"_s}) {
        CopyOver(data.filePath(name), home.filePath(name));
    }
    CreateDatabase(schemaPath, home.filePath(u"LfgEmpt.~Md"_s));
    MakeArtwork(data.path(), home.path());
}

void WriteRegistry(const QList<Branch>& branches, const QDir& home)
{
    QString list;
    for (const Branch& branch : branches) {
        list += branch.friendlyName + u'=' + branch.DirectoryName() + u',';
    }
    WriteCrLfLines(home.filePath(u"AliasList.cfg"_s),
                   {WarningLine(), u"[Alias]"_s, u'[' + list + u']', u"[CFG]"_s, u"[0,]"_s});
}

} // namespace

void BuildHome(const QString& examplesDirectory, const QString& schemaPath, const QString& targetDirectory)
{
    const QList<Branch> branches = ReadBranches(examplesDirectory);
    CheckAll(branches);
    const QDir home(targetDirectory);
    MakeDirectory(home.path());
    for (const Branch& branch : branches) {
        BuildBranch(branch, branches, schemaPath, home);
    }
    CopyFixedFiles(schemaPath, home);
    // The registry comes last: its presence says that the home is complete.
    WriteRegistry(branches, home);
}

} // namespace lineforge::makehome
