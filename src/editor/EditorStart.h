#pragma once

#include <QStringList>

namespace lineforge
{

class EditorWindow;

// Makes the application the same on every desktop: English numbers, and no dialog that leaves settings on the disk.
void PrepareEditorApplication();

// Shows the window for the arguments of the command line, the program's own name first: maximised with the file that is
// named there, else an empty text.
void ShowEditor(EditorWindow& window, const QStringList& arguments);

} // namespace lineforge
