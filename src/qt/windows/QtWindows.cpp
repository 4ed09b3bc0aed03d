#include "qt/windows/QtWindows.h"

#include "platform/controls/DataControl.h"
#include "qt/events/Bindings.h"
#include "qt/media/QtMedia.h"
#include "qt/windows/WindowView.h"

#include <QThread>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace lineforge
{

namespace
{
// Keeps a timer of the toolkit in step with a control.
class TimerService
{
public:
    TimerService(Timer& control, std::shared_ptr<const Gate> gate)
    {
        QObject::connect(&timer_, &QTimer::timeout, &timer_, [gate, &control] { gate->Run(control.Tick); });
        bindings_.Follow(control.Interval, [this, &control] { timer_.setInterval(control.Interval); });
        bindings_.Follow(control.Enabled, [this, &control] { control.Enabled ? timer_.start() : timer_.stop(); });
    }

private:
    QTimer timer_;
    Bindings bindings_;
};
} // namespace

// What stands behind one form: its services from the start, its widgets once it has been shown.
class QtWindows::Host
{
public:
    Host(Form& form, Handlers& handlers, const Scale& scale, QtMedia& media)
        : form_(form), scale_(scale), gate_(std::make_shared<Gate>(handlers)), media_(media)
    {
        Serve(form);
        visible_ = form.Visible.addNotifier([this] { FollowVisible(); });
        form_.Grab = [this, gate = gate_] { return gate->IsOpen() && view_ ? view_->Picture() : QImage(); };
        form_.Measure = [this, gate = gate_] {
            return gate->IsOpen() && view_ ? scale_.ToTwips(view_->centralWidget()->size())
                                           : Size{form_.Width, form_.Height};
        };
        form_.ToFront = [this, gate = gate_] {
            if (gate->IsOpen() && view_)
                view_->Appear();
        };
        FollowVisible();
    }

    ~Host() { Detach(); }

    const Form& Window() const { return form_; }
    WindowView* View() const { return view_.get(); }

    void Detach()
    {
        gate_->Close();
        visible_ = {};
        if (view_)
            view_->Detach();
    }

private:
    void FollowVisible()
    {
        if (!form_.Visible) {
            if (view_)
                view_->hide();
            return;
        }
        if (!view_)
            view_ = std::make_unique<WindowView>(form_, scale_, gate_);
        view_->Show();
    }

    void Serve(const Container& container)
    {
        for (Control* control : container.Controls()) {
            if (auto* player = dynamic_cast<MultimediaControl*>(control))
                player->Act = [this, gate = gate_, player](QStringView command) {
                    if (gate->IsOpen())
                        media_.Act(*player, command);
                };
            if (auto* timer = dynamic_cast<Timer*>(control))
                timers_.push_back(std::make_unique<TimerService>(*timer, gate_));
            if (auto* data = dynamic_cast<DataControl*>(control))
                data->Stale = [this, gate = gate_, data] {
                    if (gate->IsOpen())
                        SettleLater(*data);
                };
            if (const auto* inner = dynamic_cast<const Container*>(control))
                Serve(*inner);
        }
    }

    // One call at a time, however often a walk that reads bound controls makes them stale again.
    void SettleLater(DataControl& data)
    {
        if (std::ranges::find(settling_, &data) != settling_.end())
            return;
        settling_.push_back(&data);
        const auto settle = [this, gate = gate_, &data] {
            if (!gate->IsOpen())
                return;
            std::erase(settling_, &data);
            gate->Run([&data] { data.Settle(); });
        };
        QMetaObject::invokeMethod(&queue_, settle, Qt::QueuedConnection);
    }

    Form& form_;
    const Scale scale_;
    std::shared_ptr<Gate> gate_;
    QtMedia& media_;
    QObject queue_; // what waits for the event loop goes with it
    std::vector<DataControl*> settling_;
    std::vector<std::unique_ptr<TimerService>> timers_;
    std::unique_ptr<WindowView> view_;
    QPropertyNotifier visible_;
};

// In this order: the widgets go before the form that they show.
struct QtWindows::Retired {
    std::unique_ptr<Form> Window;
    std::unique_ptr<Host> Shown;
};

QtWindows::QtWindows(const Scale& scale, QtMedia& media) : RunHandler(handlers_.Runner), scale_(scale), media_(media)
{
    handlers_.Idle = [this] { SweepLater(); };
    sweep_.setSingleShot(true);
    connect(&sweep_, &QTimer::timeout, this, &QtWindows::Sweep);
}

QtWindows::~QtWindows()
{
    CloseAll();
}

void QtWindows::Made(Form& form)
{
    hosts_.push_back(std::make_unique<Host>(form, handlers_, scale_, media_));
}

void QtWindows::Retire(std::unique_ptr<Form> form)
{
    const auto found = std::ranges::find(hosts_, form.get(), [](const auto& host) { return &host->Window(); });
    Retired retired{std::move(form), nullptr};
    if (found != hosts_.end()) {
        retired.Shown = std::move(*found);
        hosts_.erase(found);
        retired.Shown->Detach();
    }
    retired_.push_back(std::move(retired));
    SweepLater();
}

void QtWindows::SweepLater()
{
    if (!retired_.empty())
        sweep_.start(0);
}

// Inside a box that waits for an answer, or where the program itself lets the event loop run, a handler is still to be
// gone on with: the last one to return asks again. Any other inner loop is the toolkit's own, over in a moment.
void QtWindows::Sweep()
{
    constexpr int momentMilliseconds = 50;
    if (handlers_.IsRunning())
        return;
    if (QThread::currentThread()->loopLevel() == 1)
        retired_.clear();
    else
        sweep_.start(momentMilliseconds);
}

void QtWindows::CloseAll()
{
    hosts_.clear();
    retired_.clear();
}

QWidget* QtWindows::WidgetOf(const Form& form) const
{
    const auto found = std::ranges::find(hosts_, &form, [](const auto& host) { return &host->Window(); });
    return found == hosts_.end() ? nullptr : (*found)->View();
}

} // namespace lineforge
