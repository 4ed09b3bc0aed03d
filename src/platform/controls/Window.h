#pragma once

#include "platform/controls/Form.h"

#include <QScopeGuard>

#include <functional>
#include <memory>
#include <utility>

namespace lineforge
{

// Shows windows on a screen.
class WindowSystem
{
public:
    virtual ~WindowSystem() = default;
    // A window has been made: builds what shows it, hidden.
    virtual void Made(Form& form) = 0;
    // A window has been unloaded: what showed it goes at once, the form when no handler of it can be running any more.
    virtual void Retire(std::unique_ptr<Form> form) = 0;
};

// A window that is made when it is first touched, and again when it is touched after `Unload`.
template <class F>
class Window
{
public:
    explicit Window(WindowSystem& system) : system_(system) {}
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    F& operator*() { return Touch(); }
    F* operator->() { return &Touch(); }
    bool IsLoaded() const { return form_ != nullptr; }
    void Load() { Touch(); }

    // Tells the window, lets go of all that it holds open and takes it off the screen. Nothing when it isn't loaded.
    void Unload()
    {
        if (!form_ || std::exchange(unloading_, true))
            return;
        {
            const auto done = qScopeGuard([this] { unloading_ = false; });
            Fire(form_->Unloading);
            form_->Release();
        }
        system_.Retire(std::move(form_));
    }

    // Fills in the handlers of a window just made.
    std::function<void(F&)> Install;

private:
    F& Touch()
    {
        if (form_)
            return *form_;
        form_ = std::make_unique<F>();
        F& made = *form_;
        made.CloseByFrame = [this] { Unload(); };
        if (Install)
            Install(made);
        system_.Made(made);
        // May unload the window again.
        Fire(made.Load);
        return made;
    }

    WindowSystem& system_;
    std::unique_ptr<F> form_;
    bool unloading_ = false;
};

} // namespace lineforge
