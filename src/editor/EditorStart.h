#pragma once

#include <QString>

namespace lineforge
{

class EditorWindow;

// Makes the application the same on every desktop: English numbers, and no dialog that leaves settings on the disk.
void PrepareEditorApplication();

// Shows the window: maximised with the file that was named, or, when none was, with an empty text.
void ShowEditor(EditorWindow& window, const QString& file);

} // namespace lineforge
