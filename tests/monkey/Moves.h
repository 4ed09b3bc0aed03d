#pragma once

#include "monkey/Sight.h"

#include <QPointer>
#include <QWidget>

#include <vector>

class QMenu;

namespace lineforge::monkey
{

class Journal;

// What a user does with windows, menus and lists: one move at a time, anything that can be done with mouse and
// keyboard, the useful more often than the odd.
class Moves
{
public:
    Moves(Program& p, QtPlatform& machine, Chance& chance, Journal& journal)
        : machine_(machine), chance_(chance), journal_(journal), sight_(p, machine, chance)
    {
    }

    // While no box, menu or list is open.
    void Any();
    // In a menu that is open, mostly towards the command that it was opened for.
    void InMenu(QMenu& menu);
    // In the open list of a combo box.
    void InList(QWidget& list);
    // Towards the end of the program, by the menu or by the frames of all windows in turn. No box is open.
    void ToLeave();
    void Wait();

    // Whether the main window was closed by its frame, and that goes on or has ended the program.
    bool IsClosingMainWindow() const { return isClosing_; }

private:
    struct Kind;
    static const std::vector<Kind>& Kinds();

    bool SeesWindow() const;
    bool SeesMenus() const { return sight_.HasMenus(); }
    bool SeesTextBoxes() const { return sight_.HasTextBoxes(); }
    bool SeesMap() const { return sight_.Map(); }
    bool SeesNoBranch() const { return sight_.HasNoBranch(); }
    bool SeesBranches() const { return sight_.ListOfBranches(); }
    bool HoldsButton() const { return held_; }
    bool HoldsNothing() const { return SeesWindow() && !held_; }

    void ClickControl();
    void DoubleClickControl();
    void DragControl();
    void ChooseCommand();
    void ChooseOpen();
    void OpenOfList();
    void TypeIntoBox();
    void PressAnyKey();
    void DrawOnMap();
    void ClickMap();
    void DoubleClickMap();
    void HoldButton();
    void MoveHeld();
    void LetGo();
    void TurnWheel();
    void GoToWindow();
    void CloseByFrame();

    QString AnyCommand(const QList<QAction*>& commands);
    void GoFor(QWidget& window, const QString& command);
    void Close(QWidget& window);

    QtPlatform& machine_;
    Chance& chance_;
    Journal& journal_;
    Sight sight_;
    QString wanted_;         // the command that he is going for in the menus
    QPointer<QWidget> held_; // where the mouse's button is down
    bool isClosing_ = false;
};

} // namespace lineforge::monkey
