#include "editor/EditorStart.h"

#include "editor/EditorWindow.h"

#include <QLocale>
#include <QSettings>

namespace lineforge
{

using namespace Qt::StringLiterals;

void PrepareEditorApplication()
{
    QLocale::setDefault(QLocale::c());
    // The toolkit's file dialog keeps its history in the user's settings; below a file no other file can be made.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, u"/dev/null"_s);
}

void ShowEditor(EditorWindow& window, const QString& file)
{
    if (file.isEmpty()) {
        window.show();
        return;
    }
    window.showMaximized();
    window.OpenOrMake(file);
}

} // namespace lineforge
