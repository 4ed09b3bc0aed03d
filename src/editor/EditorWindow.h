#pragma once

#include "editor/EditedFile.h"

#include <QKeySequence>
#include <QMainWindow>

#include <functional>

class QLabel;
class QMenu;
class QPrinter;

namespace lineforge
{

class FindBar;
class TextArea;

// A text editor for one file at a time. What would lose typed text asks first; what the disk refuses is told, and then
// text and file stay as they were. Nothing is remembered from one run to the next.
class EditorWindow : public QMainWindow
{
public:
    EditorWindow();

    // Opens the file in place of the text that is there, which is lost; a file that can't be shown leaves it.
    void Open(const QString& path);
    // The same for a file that may be missing: then the user is asked whether to make it.
    void OpenOrMake(const QString& path);

    // What the menus run. Whether a saving has been done or not is given back.
    void StartNew();
    void AskAndOpen();
    bool Save();
    bool SaveAs();
    void Print();
    void GoToLine();
    void InsertTimeAndDate();
    void SetWordWrap(bool isOn);
    void ChooseFont();
    void ShowAbout();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void BuildMenus();
    void BuildFileMenu();
    void BuildEditMenu();
    void BuildChangeCommands(QMenu& menu);
    void BuildSearchCommands(QMenu& menu);
    void BuildFormatMenu();
    void BuildHelpMenu();
    QAction* AddCommand(QMenu& menu, const QString& name, const QString& text, const QKeySequence& keys,
                        const std::function<void()>& run);
    void BuildStatusBar();

    bool MayLeaveText();
    bool WriteTo(const QString& path);
    void PrintOnQueue(QPrinter& printer);
    void PrintToFile(QPrinter& printer);
    void ShowFile();
    void ShowPosition();

    EditedFile file_;
    TextArea* area_;
    FindBar* findBar_;
    QLabel* position_ = nullptr;
    QLabel* encoding_ = nullptr;
    QLabel* ends_ = nullptr;
};

} // namespace lineforge
