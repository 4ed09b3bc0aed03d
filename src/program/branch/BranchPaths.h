#pragma once

#include <QString>

// How the paths of a tree branch are made of its directory; pure.
namespace lineforge
{

// "LfgDat_A" of a branch directory's path.
QString DirectoryName(const QString& workDir);

// "A" of the same; empty of an empty path.
QString BranchLetter(const QString& workDir);

// The directory of the same family whose letter is another one.
QString SiblingDirectory(const QString& workDir, QStringView letter);

// Whether that is the path of a branch directory of either family right beneath that home directory, which ends in a
// separator.
bool IsBranchDirectory(const QString& workDir, const QString& homeDir);

// A branch that was imported beside another of its letter.
bool IsImported(const QString& workDir);

// The directory that the branches stand in, without a trailing separator.
QString ApplicationDirectory(const QString& workDir);

// "LfgDat_A.mdb", and the gallery's directory "LfgGal_A", of the branch of that letter.
QString DatabaseName(QStringView letter);
QString GalleryName(QStringView letter);

// The record database. Its name keeps the ordinary prefix in an imported branch.
QString DatabasePath(const QString& workDir);

// The subject picture of a record of the branch.
QString SubjectPictureFile(const QString& workDir, const QString& file);

// Where a map is read.
// KEPT(BranchImportTest.ChangesOfAMapInTheOtherFamily_DontComeBack): in an imported branch that is the file which came
// with it, never the one that is written there, so that changes to an imported map don't come back.
// Mended, imported branches would open with maps that were written and never read so far.
QString MapFileToRead(const QString& workDir);

// Where a map is written, with the given ending: ".cfg", or ".~cf" for the previous generation.
QString MapFileToWrite(const QString& workDir, const QString& homeDir, QStringView ending);

} // namespace lineforge
