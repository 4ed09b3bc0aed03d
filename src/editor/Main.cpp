#include "editor/EditorStart.h"
#include "editor/EditorWindow.h"

#include <QApplication>
#include <QIcon>

int main(int argc, char* argv[])
{
    using namespace lineforge;

    QApplication application(argc, argv);
    QApplication::setWindowIcon(QIcon(QApplication::applicationDirPath() + QStringLiteral("/Notepad.png")));
    PrepareEditorApplication();
    EditorWindow window;
    ShowEditor(window, QApplication::arguments());
    return QApplication::exec();
}
