#pragma once

#include "platform/Form.h"
#include "platform/qt/Bindings.h"
#include "platform/qt/Handlers.h"
#include "platform/qt/Scale.h"

#include <QImage>
#include <QMainWindow>

#include <memory>

namespace lineforge
{

// What shows one window. Without a size of its own the window has exactly the client area of its design, in the middle
// of the screen unless it has been placed; a size that the program gave is that of the whole window with its frame, but
// no lower than its design as long as the screen has room.
class WindowView : public QMainWindow
{
public:
    WindowView(Form& form, const Scale& scale, std::shared_ptr<const Gate> gate);

    // Before all other windows.
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

private:
    void BuildClient();
    void FollowForm();
    bool HasOwnSize() const;
    QSize InnerSize(QSize available) const;
    void TakePlace();
    int TitleHeight() const;

    Form& form_;
    const Scale scale_;
    std::shared_ptr<const Gate> gate_;
    Bindings bindings_;
};

} // namespace lineforge
