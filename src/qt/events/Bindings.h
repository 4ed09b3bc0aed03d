#pragma once

#include "platform/controls/Controls.h"

#include <QProperty>

#include <vector>

namespace lineforge
{

// What keeps a window's widgets in step with its properties.
class Bindings
{
public:
    // Runs `show` now and after every change.
    template <class T, class Show>
    void Follow(QProperty<T>& property, const Show& show)
    {
        show();
        Watch(property, show);
    }

    template <class Show>
    void Follow(ControlText& text, const Show& show)
    {
        show();
        notifiers_.push_back(text.OnChange(show));
    }

    // Runs `show` after every change.
    template <class T, class Show>
    void Watch(QProperty<T>& property, const Show& show)
    {
        notifiers_.push_back(property.addNotifier(show));
    }

private:
    std::vector<QPropertyNotifier> notifiers_;
};

} // namespace lineforge
