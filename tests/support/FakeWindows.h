#pragma once

#include "platform/controls/Window.h"

#include <QStringList>

#include <memory>
#include <vector>

namespace lineforge
{

// A window system without a screen: remembers the names of the windows that came and went. Unloaded windows are kept
// to its own end, so that a handler may unload the window that it belongs to.
class FakeWindows : public WindowSystem
{
public:
    void Made(Form& form) override;
    void Retire(std::unique_ptr<Form> form) override;

    QStringList MadeNames;
    QStringList RetiredNames;
    std::vector<std::unique_ptr<Form>> Retired;
};

} // namespace lineforge
