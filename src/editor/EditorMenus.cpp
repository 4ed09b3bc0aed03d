#include "editor/EditorWindow.h"
#include "editor/FindBar.h"
#include "editor/TextArea.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace lineforge
{

using namespace Qt::StringLiterals;

void EditorWindow::BuildMenus()
{
    BuildFileMenu();
    BuildEditMenu();
    BuildFormatMenu();
    BuildHelpMenu();
}

QAction* EditorWindow::AddCommand(QMenu& menu, const QString& name, const QString& text, const QKeySequence& keys,
                                  const std::function<void()>& run)
{
    QAction* command = menu.addAction(text, this, run);
    command->setObjectName(name);
    command->setShortcut(keys);
    return command;
}

void EditorWindow::BuildFileMenu()
{
    QMenu& menu = *menuBar()->addMenu(u"&File"_s);
    AddCommand(menu, u"New"_s, u"&New"_s, QKeySequence::New, [this] { StartNew(); });
    AddCommand(menu, u"Open"_s, u"&Open..."_s, QKeySequence::Open, [this] { AskAndOpen(); });
    AddCommand(menu, u"Save"_s, u"&Save"_s, QKeySequence::Save, [this] { Save(); });
    AddCommand(menu, u"SaveAs"_s, u"Save &As..."_s, Qt::CTRL | Qt::SHIFT | Qt::Key_S, [this] { SaveAs(); });
    menu.addSeparator();
    AddCommand(menu, u"Print"_s, u"&Print..."_s, QKeySequence::Print, [this] { Print(); });
    menu.addSeparator();
    AddCommand(menu, u"Exit"_s, u"E&xit"_s, Qt::CTRL | Qt::Key_Q, [this] { close(); });
}

void EditorWindow::BuildEditMenu()
{
    QMenu& menu = *menuBar()->addMenu(u"&Edit"_s);
    BuildChangeCommands(menu);
    menu.addSeparator();
    BuildSearchCommands(menu);
    menu.addSeparator();
    AddCommand(menu, u"SelectAll"_s, u"Select &All"_s, QKeySequence::SelectAll, [this] { area_->selectAll(); });
    AddCommand(menu, u"TimeDate"_s, u"Time/&Date"_s, Qt::Key_F5, [this] { InsertTimeAndDate(); });
}

void EditorWindow::BuildChangeCommands(QMenu& menu)
{
    QAction* undo = AddCommand(menu, u"Undo"_s, u"&Undo"_s, QKeySequence::Undo, [this] { area_->undo(); });
    QAction* redo = AddCommand(menu, u"Redo"_s, u"&Redo"_s, QKeySequence::Redo, [this] { area_->redo(); });
    menu.addSeparator();
    QAction* cut = AddCommand(menu, u"Cut"_s, u"Cu&t"_s, QKeySequence::Cut, [this] { area_->cut(); });
    QAction* copy = AddCommand(menu, u"Copy"_s, u"&Copy"_s, QKeySequence::Copy, [this] { area_->copy(); });
    AddCommand(menu, u"Paste"_s, u"&Paste"_s, QKeySequence::Paste, [this] { area_->paste(); });
    QAction* erase = AddCommand(menu, u"Delete"_s, u"De&lete"_s, QKeySequence::Delete,
                                [this] { area_->textCursor().removeSelectedText(); });
    // The key belongs to the field that has the keyboard; the menu only shows it.
    erase->setShortcutContext(Qt::WidgetShortcut);

    undo->setEnabled(false);
    redo->setEnabled(false);
    connect(area_, &TextArea::undoAvailable, undo, &QAction::setEnabled);
    connect(area_, &TextArea::redoAvailable, redo, &QAction::setEnabled);
    for (QAction* needsMarked : {cut, copy, erase}) {
        needsMarked->setEnabled(false);
        connect(area_, &TextArea::copyAvailable, needsMarked, &QAction::setEnabled);
    }
}

void EditorWindow::BuildSearchCommands(QMenu& menu)
{
    AddCommand(menu, u"Find"_s, u"&Find..."_s, QKeySequence::Find, [this] { findBar_->ShowFind(); });
    AddCommand(menu, u"FindNext"_s, u"Find &Next"_s, Qt::Key_F3, [this] { findBar_->FindNext(); });
    AddCommand(menu, u"FindPrevious"_s, u"Find Pre&vious"_s, Qt::SHIFT | Qt::Key_F3,
               [this] { findBar_->FindPrevious(); });
    AddCommand(menu, u"Replace"_s, u"R&eplace..."_s, Qt::CTRL | Qt::Key_H, [this] { findBar_->ShowReplace(); });
    AddCommand(menu, u"GoToLine"_s, u"&Go to Line..."_s, Qt::CTRL | Qt::Key_G, [this] { GoToLine(); });
}

void EditorWindow::BuildFormatMenu()
{
    QMenu& menu = *menuBar()->addMenu(u"F&ormat"_s);
    QAction* wrap = menu.addAction(u"&Word Wrap"_s);
    wrap->setObjectName(u"WordWrap"_s);
    wrap->setCheckable(true);
    wrap->setChecked(true);
    connect(wrap, &QAction::toggled, this, &EditorWindow::SetWordWrap);
    AddCommand(menu, u"Font"_s, u"&Font..."_s, {}, [this] { ChooseFont(); });
}

void EditorWindow::BuildHelpMenu()
{
    QMenu& menu = *menuBar()->addMenu(u"&Help"_s);
    AddCommand(menu, u"About"_s, u"&About Lineforge Editor"_s, {}, [this] { ShowAbout(); });
}

} // namespace lineforge
