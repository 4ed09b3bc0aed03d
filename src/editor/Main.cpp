#include "editor/EditorStart.h"
#include "editor/EditorWindow.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    using namespace lineforge;

    QApplication application(argc, argv);
    PrepareEditorApplication();
    EditorWindow window;
    ShowEditor(window, QApplication::arguments());
    return QApplication::exec();
}
