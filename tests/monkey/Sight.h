#pragma once

#include "monkey/Chance.h"

#include <QList>
#include <QPoint>

class QAction;
class QMenuBar;
class QWidget;

namespace lineforge
{
class QtPlatform;
struct Program;
} // namespace lineforge

namespace lineforge::monkey
{

// What a user sees on the screen, and where on it he points. Of the program's own state he knows only which branches it
// lists and where the boxes of the map are.
class Sight
{
public:
    Sight(Program& p, QtPlatform& machine, Chance& chance) : program_(p), machine_(machine), chance_(chance) {}

    bool HasMenus() const;
    bool HasTextBoxes() const;
    // The main window waits for a branch to be opened, and the list of branches isn't there yet.
    bool HasNoBranch() const;
    // None unless they can be chosen from.
    QWidget* ListOfBranches() const;
    // None while the main window isn't to be seen.
    QWidget* Map() const;

    // Mostly the one that has the keyboard. One must be on the screen.
    QWidget& AnyWindow();
    // The window itself when nothing is on it.
    QWidget& AnyControl(QWidget& window);
    QPoint PlaceOn(const QWidget& widget);
    // Mostly on a box, as far as that is in sight. The map must be.
    QPoint PlaceOnMap();

private:
    // Its windows are touched only where they are loaded.
    Program& program_;
    QtPlatform& machine_;
    Chance& chance_;
};

// The window's, if it is to be seen; else none.
QMenuBar* MenuBarOf(const QWidget& window);

// The commands below those menus that can be chosen.
QList<QAction*> CommandsOf(const QList<QAction*>& menus);
bool LeadsTo(QAction* menu, const QString& command);

QList<QWidget*> TextBoxesOf(const QWidget& window);

} // namespace lineforge::monkey
