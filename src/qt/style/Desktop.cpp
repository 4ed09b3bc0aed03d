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

void ShowAnewUnlessGranted(QWindow& window);

void LookSoonWhetherGranted(QWindow& window)
{
    constexpr int patience = 150; // milliseconds: no user takes that for waiting
    QTimer::singleShot(patience, &window, [&window] { ShowAnewUnlessGranted(window); });
}

// What comes to the screen anew stands before all others. A box keeps what it belongs to, and while it is open nothing
// comes before it.
void ShowAnewUnlessGranted(QWindow& window)
{
    if (&window != Wanted())
        return;
    if (QWindow* box = QGuiApplication::modalWindow()) {
        const auto look = [&window] { LookSoonWhetherGranted(window); };
        QObject::connect(box, &QWindow::visibleChanged, &window, look, Qt::SingleShotConnection);
        return;
    }
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
    return RoomFor(Asking().Answer(), QGuiApplication::primaryScreen()->size());
}

QSize RoomFor(QSize answer, QSize screen)
{
    constexpr int panelAndTitle = 80; // pixels: rather too many, since what doesn't fit is cut off
    return answer.height() > screen.height() / 2 ? answer : screen - QSize(0, panelAndTitle);
}

QSize RoomOn(const QScreen& screen)
{
    return RoomFor({}, screen.availableSize());
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
    window.raise();
    window.requestActivate();
    if (!DesktopArrangesWindows())
        return;
    Wanted() = &window;
    if (window.isExposed())
        LookSoonWhetherGranted(window);
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
