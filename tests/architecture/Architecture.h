#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

// The rules of the source tree, checked on the text of its files. Each check gives back what is wrong, a line a
// finding.
namespace lineforge::architecture
{

// The sources: path below src/, with `/` between the parts, to the file's text.
using Sources = QMap<QString, QString>;

// All sources and headers below a directory.
Sources ReadSources(const QString& directory);

// Widgets, dialogs, printers and media are named in platform/qt, editor and main alone.
QStringList WidgetsBelowTheLine(const Sources& sources);

// Every include goes to a file of the same folder or of a folder further down. platform/qt is for main alone, editor
// for nobody, and both know nothing but the platform.
QStringList IncludesAgainstTheTower(const Sources& sources);

// Includes of files that aren't in the tree.
QStringList DanglingIncludes(const Sources& sources);

// A circle as "a -> b -> a", for each group of files, or of folders, that reach each other.
QStringList CirclesOfFiles(const Sources& sources);
QStringList CirclesOfFolders(const Sources& sources);

} // namespace lineforge::architecture
