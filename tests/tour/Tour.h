#pragma once

#include "Display.h"
#include "Input.h"
#include "Layout.h"
#include "RunningProgram.h"
#include "ScratchHome.h"
#include "forms/Form1.h"
#include "forms/Form12.h"
#include "forms/Form3.h"
#include "forms/Form4.h"
#include "forms/Form5.h"
#include "forms/Form6.h"
#include "forms/Form7.h"
#include "forms/Form8.h"
#include "forms/form9.h"

#include <QDir>

#include <functional>
#include <memory>

namespace lineforge::tour
{

// What the steps work with: the screen, a user's hands, the program and its home. The forms here are never shown; they
// tell where the program's own have their controls.
class Tour
{
public:
    Tour(std::unique_ptr<const Display> screen, const QString& installed, const QDir& pictures);

private:
    std::unique_ptr<const Display> screen_;

public:
    const Display& Screen;
    Input Hands;
    const Layout Places;
    const ScratchHome Home;
    const QDir Pictures; // where those of the steps go
    RunningProgram Program;

    const forms::Form1 MainForm;
    const forms::Form3 RecordForm;
    const forms::Form4 ExportForm;
    const forms::Form5 GalleryForm;
    const forms::Form6 CompareForm;
    const forms::Form12 GedcomForm;
    const forms::Form7 MappingForm;
    const forms::Form8 ListForm;
    const forms::form9 SplashForm;

    // Looks again and again until the condition holds. Fails after half a minute, or when the program ends first.
    void Await(const QString& what, const std::function<bool()>& condition);
    // The window that comes gets the keyboard; when it goes, the topmost of the others.
    ScreenWindow AwaitWindow(const QString& title);
    // In front of the others as well: one that was hidden comes back behind them, and is then raised.
    ScreenWindow AwaitFront(const QString& title);
    void AwaitGone(const ScreenWindow& window);
    // By the cross of its frame, as far as it has one.
    void Close(const ScreenWindow& window);
    // Until the program has ended by itself with exit code 0.
    void AwaitEnd();

    // A box of that title: there, and gone after the key.
    void Answer(const QString& title, Key key);

    // Starts the program and waits for its main window.
    void StartProgram();
    ScreenWindow MainWindow() const;
    int MenuBarHeight() const { return menuBarHeight_; }
    // The main window's menu bar has a height once nothing covers it.
    void MeasureMenuBar();

    // On the screen.
    QRect OnMain(const Control& control) const;
    QRect PlaceOf(const ScreenWindow& window, const Form& form, const Control& control) const;
    QImage PictureOf(const QRect& place) const { return Screen.Picture(place); }

    // The screen when it has come to rest.
    QImage SettledPicture();

private:
    int menuBarHeight_ = 0;
};

} // namespace lineforge::tour
