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

// Widgets, dialogs, printers and media are named in the wings qt and editor and in main alone.
QStringList WidgetsBelowTheLine(const Sources& sources);

// Every include goes to a file of the same room or of a room that the table of rooms has it use.
QStringList IncludesAgainstTheTower(const Sources& sources);

// The rooms of that table, in its order.
QStringList RoomsFromTheGroundUp();

// Rooms of that table that use one which doesn't stand before them.
QStringList RoomsThatUseWhatIsAbove();

// Includes of files that aren't in the tree.
QStringList DanglingIncludes(const Sources& sources);

// A circle as "a -> b -> a", for each group of files that reach each other; of units, which are a header and its
// source; of rooms, which are folders; of wings, which are the folders right below the root.
QStringList CirclesOfFiles(const Sources& sources);
QStringList CirclesOfUnits(const Sources& sources);
QStringList CirclesOfRooms(const Sources& sources);
QStringList CirclesOfWings(const Sources& sources);

} // namespace lineforge::architecture
