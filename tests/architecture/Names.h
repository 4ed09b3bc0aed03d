#pragma once

#include "Architecture.h"

// Names that comments and documents mention are those of something that is there.
namespace lineforge::architecture
{

// Comments KEPT(Suite.Name) whose test isn't there, and those that name none: oddities that nobody holds.
QStringList OdditiesWithoutATest(const Sources& sources, const Sources& tests);

// Comments KEPT(...) that don't go on to say what would be otherwise, were the oddity mended.
QStringList OdditiesWithoutAReason(const Sources& sources);

// The windows of the program, after the headers in forms/.
QStringList WindowsOf(const Sources& sources);

// Windows that a source speaks of and that aren't there.
QStringList UnknownWindows(const Sources& sources);

// The first cells, without their quotes, of the table below a heading of a document.
QStringList FirstCellsBelow(const QString& heading, const QString& document);

} // namespace lineforge::architecture
