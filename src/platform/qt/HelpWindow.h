#pragma once

#include <QMainWindow>

class QTextBrowser;

namespace lineforge
{

// Shows a help file beside the program's windows.
class HelpWindow : public QMainWindow
{
public:
    HelpWindow();

    // Whether the file could be read; if not, what is shown stays.
    bool Open(const QString& path);

private:
    QTextBrowser* browser_;
};

} // namespace lineforge
