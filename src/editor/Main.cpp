#include "editor/EditorStart.h"
#include "editor/EditorWindow.h"
#include "platform/base/CommandLine.h"

#include <QApplication>
#include <QFile>
#include <QIcon>

int main(int argc, char* argv[])
{
    using namespace lineforge;

    const CommandLine line = ReadCommandLine(argc, argv,
                                             {.Name = "Notepad.exe",
                                              .Operands = "[file]",
                                              .Purpose = "Edits a text file, or an empty text where none is named.\n"});
    if (line.ExitStatus)
        return *line.ExitStatus;

    QApplication application(argc, argv);
    QApplication::setWindowIcon(QIcon(QApplication::applicationDirPath() + QStringLiteral("/Notepad.png")));
    PrepareEditorApplication();
    EditorWindow window;
    ShowEditor(window, line.Operands.empty() ? QString() : QFile::decodeName(line.Operands.front().c_str()));
    return QApplication::exec();
}
