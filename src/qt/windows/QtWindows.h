#pragma once

#include "platform/controls/Window.h"
#include "qt/events/HandlerGate.h"
#include "qt/style/Scale.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <vector>

class QWidget;

namespace lineforge
{

class QtMedia;
class WindowView;

// Shows the program's windows. The widgets of a window are made when it is first shown. Whatever happens to a window
// reaches its handlers through `RunHandler`.
class QtWindows : public QObject, public WindowSystem
{
public:
    QtWindows(const Scale& scale, QtMedia& media);
    ~QtWindows() override;

    // Runs a handler and catches all that it throws; set once before the first window is made.
    std::function<void(const Event&)>& RunHandler;

    // For what runs outside of any window's event, such as the start of the program: windows that it unloads live on
    // until it has returned.
    void Run(const Event& event) { handlers_.Run(event); }

    void Made(Form& form) override;
    // The window leaves the screen and its widgets fall silent at once. Widgets and form go when the event loop has
    // control again, outside of all handlers, because it may be one of theirs that is running.
    void Retire(std::unique_ptr<Form> form) override;

    // Takes all windows down. The forms themselves stay with their owners.
    void CloseAll();

    // What shows the form; null when it hasn't been shown yet.
    QWidget* WidgetOf(const Form& form) const;

private:
    class Host;

    void SweepLater();
    void Sweep();

    Handlers handlers_;
    const Scale scale_;
    QtMedia& media_;
    std::vector<std::unique_ptr<Host>> hosts_;
    struct Retired;
    std::vector<Retired> retired_;
    QTimer sweep_;
};

} // namespace lineforge
