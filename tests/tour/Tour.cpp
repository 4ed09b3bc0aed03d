#include "Tour.h"

#include "Failure.h"

#include <QElapsedTimer>

#include <algorithm>
#include <utility>

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
constexpr int patience = 30'000; // milliseconds
constexpr int glance = 20;
constexpr QRgb paper = 0xffffffff;

// The first row from which on `picture`, one pixel wide, is nothing but paper for a while.
int FirstRowOfPaper(const QImage& picture)
{
    constexpr int enough = 30;
    int row = 0;
    for (int y = 0; y < picture.height() && y - row < enough; ++y)
        if (picture.pixel(0, y) != paper)
            row = y + 1;
    return row;
}
} // namespace

Tour::Tour(std::unique_ptr<const Display> screen, const QString& installed, const QDir& pictures)
    : screen_(std::move(screen)), Screen(*screen_), Hands(Screen), Places(Screen), Home(installed), Pictures(pictures)
{
}

void Tour::Await(const QString& what, const std::function<bool()>& condition)
{
    QElapsedTimer waited;
    waited.start();
    while (!condition()) {
        if (!Program.StillRunsAfter(glance))
            throw Failure(u"The program ended before "_s + what + u"; "_s + Program.Ending());
        if (waited.hasExpired(patience))
            throw Failure(u"Waited in vain for "_s + what);
    }
}

ScreenWindow Tour::AwaitWindow(const QString& title)
{
    std::optional<ScreenWindow> found;
    Await(u"the window \"%1\""_s.arg(title), [&] {
        found = Screen.Find(title);
        return found && !Screen.AwaitsKeyboard(*found);
    });
    Screen.GiveKeyboard(*found);
    return *found;
}

ScreenWindow Tour::AwaitFront(const QString& title)
{
    ScreenWindow window = AwaitWindow(title);
    Await(u"the window \"%1\" before the others"_s.arg(title), [&] {
        const std::optional<ScreenWindow> topmost = Screen.TopmostWindow();
        // Under a compositor it may have been shown anew, and is another one then.
        if (topmost)
            window = *topmost;
        return window.Title == title && !Screen.AwaitsKeyboard(window);
    });
    return window;
}

void Tour::AwaitGone(const ScreenWindow& window)
{
    Await(u"the window \"%1\" to go"_s.arg(window.Title), [&] { return !Screen.Find(window.Id); });
    Await(u"another window after \"%1\""_s.arg(window.Title), [&] {
        const std::optional<ScreenWindow> topmost = Screen.TopmostWindow();
        return topmost && !Screen.AwaitsKeyboard(*topmost);
    });
    Screen.GiveKeyboardToTopmost();
}

void Tour::Close(const ScreenWindow& window)
{
    if (const std::optional<QPoint> cross = Screen.ClosingCross(window))
        Hands.Click(*cross);
    else
        Screen.AskToClose(window);
}

void Tour::AwaitEnd()
{
    QElapsedTimer waited;
    waited.start();
    while (Program.StillRunsAfter(glance))
        if (waited.hasExpired(patience))
            throw Failure(u"Waited in vain for the program to end"_s);
    Expect(Program.EndedWell(), u"the program to end with exit code 0, but "_s + Program.Ending());
}

void Tour::Answer(const QString& title, Key key)
{
    const ScreenWindow box = AwaitWindow(title);
    Hands.Press(key);
    AwaitGone(box);
}

void Tour::StartProgram()
{
    Program.Start(Home, Screen.Platform());
    AwaitWindow(MainForm.Caption);
}

ScreenWindow Tour::MainWindow() const
{
    for (const ScreenWindow& window : Screen.Windows())
        if (window.Title.startsWith(MainForm.Caption.value()) && window.Place.width() > Screen.Size().width() * 9 / 10)
            return window;
    throw Failure(u"The main window isn't on the screen"_s);
}

// The picture of the map lies below the menus, white as paper at its left margin.
void Tour::MeasureMenuBar()
{
    constexpr int leftMargin = 2;
    const QRect window = MainWindow().Place;
    const int highest = window.height() / 4;
    Await(u"the map's paper below the menus"_s, [&] {
        menuBarHeight_ = FirstRowOfPaper(PictureOf(QRect(window.x() + leftMargin, window.y(), 1, highest)));
        return menuBarHeight_ > 0 && menuBarHeight_ < highest / 2;
    });
}

QRect Tour::OnMain(const Control& control) const
{
    return PlaceOf(MainWindow(), MainForm, control);
}

QRect Tour::PlaceOf(const ScreenWindow& window, const Form& form, const Control& control) const
{
    const QPoint client = window.Place.topLeft() + QPoint(0, form.Menus.empty() ? 0 : menuBarHeight_);
    return Places.PlaceOf(form, control).translated(client);
}

// A picture for somebody to look at; one that never rests, because a cursor blinks in it, will do as it is.
QImage Tour::SettledPicture()
{
    constexpr int longest = 3'000;
    constexpr int rest = 80;
    QElapsedTimer waited;
    waited.start();
    QImage before;
    QImage now = Screen.Picture();
    do {
        before = std::exchange(now, QImage());
        Program.StillRunsAfter(rest);
        now = Screen.Picture();
    } while (now != before && !waited.hasExpired(longest));
    return now;
}

} // namespace lineforge::tour
