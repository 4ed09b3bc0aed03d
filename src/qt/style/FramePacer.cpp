#include "qt/style/FramePacer.h"

#include <utility>

namespace lineforge
{

namespace
{
constexpr int frameMilliseconds = 16;
}

FramePacer::FramePacer(std::function<void()> show) : show_(std::move(show))
{
    next_.setSingleShot(true);
    QObject::connect(&next_, &QTimer::timeout, &next_, [this] { Show(); });
}

void FramePacer::Request()
{
    if (next_.isActive())
        return;
    if (sinceShown_.isValid() && sinceShown_.elapsed() < frameMilliseconds)
        next_.start(frameMilliseconds - static_cast<int>(sinceShown_.elapsed()));
    else
        Show();
}

void FramePacer::Show()
{
    sinceShown_.start();
    show_();
}

} // namespace lineforge
