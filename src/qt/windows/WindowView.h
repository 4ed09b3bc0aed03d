#pragma once

#include "platform/controls/Form.h"
#include "qt/events/Bindings.h"
#include "qt/events/HandlerGate.h"
#include "qt/style/Scale.h"

#include <QImage>
#include <QMainWindow>
#include <QMargins>

#include <memory>

namespace lineforge
{

// What shows one window. Without a size of its own the window has exactly the client area of its design, in the middle
// of the screen unless it has been placed; a size that the program gave is that of the whole window with its frame, but
// no lower than its design as long as the screen has room. Window and frame lie within what is free of the screen: the
// frame is reckoned with as the style tells it, and once the window is on the screen as it really is. Where the desktop
// alone arranges windows, one that is as wide as the screen is maximised instead, and no place is asked for.
class WindowView : public QMainWindow
{
public:
    WindowView(Form& form, const Scale& scale, std::shared_ptr<const Gate> gate);

    // On the screen, also when the user has minimised it.
    void Show();
    // The same, and before all other windows.
    void Appear();
    // What it shows below its menus, without a pointer, which belongs to the hand and not to the window.
    QImage Picture() const;
    // For good: the window goes from the screen and nothing follows the form any more.
    void Detach();

protected:
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    // Escape closes a window whose missing frame has no button for that.
    void keyPressEvent(QKeyEvent* event) override;
    // Of the window on the screen.
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void BuildClient();
    void FollowForm();
    bool HasOwnSize() const;
    QSize InnerSize(QSize available) const;
    void TakePlace();
    // `otherwise` is how large it is when the user ends that.
    void Maximise(QSize otherwise);
    void MeetFrame();
    // What is to stay before all others comes before this window, and belongs to it from now on.
    void TakeTopmostAlong();

    Form& form_;
    const Scale scale_;
    std::shared_ptr<const Gate> gate_;
    QMargins frame_;
    bool isFrameMet_ = false;
    bool isArriving_ = false; // shown, but not yet on the screen
    Bindings bindings_;
};

} // namespace lineforge
