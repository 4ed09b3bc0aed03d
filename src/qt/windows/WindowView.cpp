#include "qt/windows/WindowView.h"

#include "qt/events/Popups.h"
#include "qt/pictures/KeyboardPointer.h"
#include "qt/style/Desktop.h"
#include "qt/views/ClickableWidgets.h"
#include "qt/windows/MenuBuilder.h"
#include "qt/windows/WidgetBuilder.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMenuBar>
#include <QScreen>
#include <QStyle>
#include <QWindow>

#include <algorithm>
#include <iterator>
#include <utility>

namespace lineforge
{

using namespace Qt::StringLiterals;

WindowView::WindowView(Form& form, const Scale& scale, std::shared_ptr<const Gate> gate)
    : form_(form), scale_(scale), gate_(std::move(gate))
{
    setObjectName(form.Name);
    setWindowFlag(Qt::WindowStaysOnTopHint, form.Topmost);
    setWindowFlag(Qt::FramelessWindowHint, form.Frameless);
    if (!form.Menus.empty()) {
        menuBar()->setNativeMenuBar(false);
        BuildMenus(*menuBar(), form.Menus, gate_, bindings_);
    }
    BuildClient();
    if (!form.Frameless)
        frame_.setTop(style()->pixelMetric(QStyle::PM_TitleBarHeight));
    FollowForm();
}

void WindowView::BuildClient()
{
    auto* client = new ClientArea(this);
    client->Clicked = [gate = gate_, &form = form_] { gate->Run(form.Click); };
    WidgetBuilder(scale_, gate_, bindings_).Build(form_, client);
    setCentralWidget(client);
}

void WindowView::FollowForm()
{
    bindings_.Follow(form_.Caption, [this] {
        setWindowTitle(form_.Caption);
        setAccessibleName(form_.Caption.value().isEmpty() ? u"Lineforge"_s : form_.Caption.value());
    });
    bindings_.Follow(form_.Enabled, [this] { setEnabled(form_.Enabled); });
    TakePlace();
    for (QProperty<int>* length : {&form_.Left, &form_.Top, &form_.Width, &form_.Height})
        bindings_.Watch(*length, [this] { TakePlace(); });
}

bool WindowView::HasOwnSize() const
{
    return Size{form_.Width, form_.Height} != form_.Client;
}

QSize WindowView::InnerSize(QSize available) const
{
    QSize wanted = scale_.ToPixels(form_.Client);
    if (!form_.Menus.empty())
        wanted.rheight() += static_cast<const QMenuBar*>(menuWidget())->heightForWidth(wanted.width());
    if (HasOwnSize()) {
        // The program leaves a strip of the screen free, whether or not there is something in it. That must not cut off
        // what the window holds.
        const QSize own = scale_.ToPixels(Size{form_.Width, form_.Height}).shrunkBy(frame_);
        wanted = own.expandedTo({own.width(), wanted.height()});
    }
    return wanted.boundedTo(available).expandedTo({1, 1});
}

void WindowView::TakePlace()
{
    const QScreen& monitor = *QGuiApplication::primaryScreen();
    const QRect available = monitor.availableGeometry();
    const QSize inner = InnerSize(available.size().shrunkBy(frame_));
    const QSize whole = inner.grownBy(frame_);
    const QPoint spare(available.width() - whole.width(), available.height() - whole.height());
    const bool isPlaced = HasOwnSize() || form_.Left != 0 || form_.Top != 0;
    const QPoint wanted =
        isPlaced ? monitor.geometry().topLeft() + QPoint(scale_.ToPixels(form_.Left), scale_.ToPixels(form_.Top))
                 : available.topLeft() + spare / 2;
    if (DesktopArrangesWindows() && HasOwnSize() && whole.width() >= available.width())
        return Maximise(inner);
    // Nothing in a window of designed size could make use of more room.
    if (HasOwnSize()) {
        setMinimumSize(0, 0);
        setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        resize(inner);
    } else {
        setFixedSize(inner);
    }
    if (DesktopArrangesWindows())
        return;
    move(std::clamp(wanted.x(), available.left(), available.left() + spare.x()),
         std::clamp(wanted.y(), available.top(), available.top() + spare.y()));
}

// The desktop ends a program whose maximised window has another size than it has been granted.
void WindowView::Maximise(QSize otherwise)
{
    if (isMaximized())
        return;
    resize(otherwise);
    setWindowState(windowState() | Qt::WindowMaximized);
}

void WindowView::Show()
{
    ShowRestored(*this);
}

void WindowView::Appear()
{
    ShowInFront(*this);
}

QImage WindowView::Picture() const
{
    const QList<QWidget*> pointers = findChildren<QWidget*>(KeyboardPointer::Name);
    QList<QWidget*> seen;
    std::ranges::copy_if(pointers, std::back_inserter(seen), &QWidget::isVisible);
    std::ranges::for_each(seen, &QWidget::hide);
    const QImage picture = centralWidget()->grab().toImage();
    std::ranges::for_each(seen, &QWidget::show);
    return picture;
}

void WindowView::Detach()
{
    bindings_ = {};
    // Whoever looks for the window by its name means the next one that is made.
    setObjectName({});
    hide();
}

// Closing is the program's business: unloading the form takes the window away.
void WindowView::closeEvent(QCloseEvent* event)
{
    event->ignore();
    gate_->Run(form_.CloseByFrame);
}

// A menu that has been opened while a handler yields would outlive its window on the screen.
void WindowView::hideEvent(QHideEvent* event)
{
    ClosePopupsOf(*this);
    QMainWindow::hideEvent(event);
}

void WindowView::showEvent(QShowEvent* event)
{
    windowHandle()->installEventFilter(this);
    isArriving_ = true;
    QMainWindow::showEvent(event);
}

// A desktop has put its frame around a window before the window is first seen.
bool WindowView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == windowHandle() && event->type() == QEvent::Expose) {
        MeetFrame();
        if (std::exchange(isArriving_, false) && DesktopArrangesWindows())
            // Once it has been painted: before that nothing can belong to it.
            QMetaObject::invokeMethod(this, &WindowView::TakeTopmostAlong, Qt::QueuedConnection);
    }
    return QMainWindow::eventFilter(watched, event);
}

// Only once: from then on the window stands where the user has put it.
void WindowView::MeetFrame()
{
    const QMargins met = windowHandle()->frameMargins();
    if (isFrameMet_ || met.isNull())
        return;
    isFrameMet_ = true;
    if (std::exchange(frame_, met) != met)
        TakePlace();
}

void WindowView::TakeTopmostAlong()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        const auto* other = dynamic_cast<WindowView*>(window);
        if (!other || other == this || !other->form_.Topmost || !other->isVisible())
            continue;
        window->hide();
        window->windowHandle()->setTransientParent(windowHandle());
        window->show();
    }
}

void WindowView::keyPressEvent(QKeyEvent* event)
{
    if (form_.Frameless && event->key() == Qt::Key_Escape)
        close();
    else
        QMainWindow::keyPressEvent(event);
}

} // namespace lineforge
