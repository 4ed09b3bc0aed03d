#include "qt/style/Desktop.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace lineforge
{

namespace
{
// A window that asks to be maximised and is never painted, so that it is answered but not seen.
class Asking : public QWindow
{
public:
    QSize Answer()
    {
        constexpr int patience = 2000; // milliseconds, for a desktop that doesn't answer
        QTimer::singleShot(patience, &answered_, &QEventLoop::quit);
        showMaximized();
        answered_.exec(QEventLoop::ExcludeUserInputEvents);
        return size();
    }

protected:
    void exposeEvent(QExposeEvent* event) override
    {
        QWindow::exposeEvent(event);
        if (isExposed())
            answered_.quit();
    }

private:
    QEventLoop answered_;
};

// The window that was asked for last: no other may come before it.
QPointer<QWindow>& Wanted()
{
    static QPointer<QWindow> window;
    return window;
}

// The window that has come to the screen last, until it knows that it is in front. What is in front before that, will
// soon be behind it.
QPointer<QWindow>& Arriving()
{
    static QPointer<QWindow> window;
    return window;
}

void AwaitArrival(QWindow& window)
{
    Arriving() = &window;
    const auto arrive = [&window] {
        if (Arriving() == &window)
            Arriving().clear();
    };
    QObject::connect(&window, &QWindow::activeChanged, &window, arrive, Qt::SingleShotConnection);
}

bool StaysInFront(const QWindow& window)
{
    const QWindow* arriving = Arriving();
    return window.isActive() && (!arriving || arriving == &window || !arriving->isVisible());
}

// What comes to the screen anew stands before all others. A box keeps what it belongs to.
void ShowAnewUnlessGranted(QWindow& window)
{
    if (&window != Wanted() || QGuiApplication::modalWindow())
        return;
    Wanted().clear();
    if (StaysInFront(window) || !window.isVisible())
        return;
    window.hide();
    AwaitArrival(window);
    window.show();
}
} // namespace

bool DesktopArrangesWindows()
{
    return QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

QSize GrantedRoom()
{
    const QSize screen = QGuiApplication::primaryScreen()->size();
    const QSize answer = Asking().Answer();
    // Some desktops say how large it is only when there is something to be seen.
    return answer.height() > screen.height() / 2 ? answer : screen;
}

Scale ScaleForRoom(Size client, QSize room, double dots)
{
    constexpr int bareStrip = 150; // twips
    constexpr int noTitle = 0;
    return FittingScale({client.Width, client.Height - bareStrip}, room, noTitle, dots);
}

// Some such desktops heed the wish, and the others answer nothing.
void BringToFront(QWindow& window)
{
    constexpr int patience = 150; // milliseconds: no user takes that for waiting
    window.raise();
    window.requestActivate();
    if (!DesktopArrangesWindows())
        return;
    Wanted() = &window;
    if (window.isExposed())
        QTimer::singleShot(patience, &window, [&window] { ShowAnewUnlessGranted(window); });
    else
        AwaitArrival(window);
}

void ShowRestored(QWidget& window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
}

void ShowInFront(QWidget& window)
{
    ShowRestored(window);
    BringToFront(*window.windowHandle());
}

} // namespace lineforge
