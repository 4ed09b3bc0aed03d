#pragma once

#include <QElapsedTimer>
#include <QTimer>

#include <functional>

namespace lineforge
{

// Shows changes at most 60 times a second, however often they come: at once, or when the time has come.
class FramePacer
{
public:
    explicit FramePacer(std::function<void()> show);

    // Something has changed. Costs next to nothing.
    void Request();

private:
    void Show();

    std::function<void()> show_;
    QElapsedTimer sinceShown_;
    QTimer next_;
};

} // namespace lineforge
