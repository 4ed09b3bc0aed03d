#pragma once

#include "qt/QtPlatform.h"
#include "support/NamedChild.h"
#include "support/Printing.h"

#include <QApplication>
#include <QDir>
#include <QWidget>

#include <gmock/gmock.h>
#include <stdexcept>
#include <vector>

namespace lineforge
{

inline constexpr Size MainWindowSize{11880, 8190};

// Tests with real windows. A form of the test's own is made by a `Window` on `System()`.
class WindowTest : public testing::Test
{
protected:
    WindowTest();
    ~WindowTest() override;

    QtWindows& System() { return platform_.Windows(); }
    QtPlatform& Machine() { return platform_; }
    const Scale& PixelScale() const { return platform_.PixelScale(); }

    // The widget of that name in a window that has been shown; a test that looks for another fails and ends.
    template <class Widget>
    Widget& Find(const Form& form, const QString& name)
    {
        QWidget* window = System().WidgetOf(form);
        auto* found = window ? NamedChild<Widget>(*window, name) : nullptr;
        if (!found)
            throw std::runtime_error("no widget of the name " + name.toStdString());
        return *found;
    }

    QWidget& ViewOf(const Form& form);
    // Waits until the window has the keyboard.
    void Activate(const Form& form);

    // The numbers of the errors that handlers have run into.
    const std::vector<int>& Refusals() const { return refusals_; }

private:
    std::vector<int> refusals_;
    QtPlatform platform_;
};

// Serves what waits, without the event loop.
void ServeEvents();
// Lets the event loop have control once.
void PassEventLoop();

} // namespace lineforge
