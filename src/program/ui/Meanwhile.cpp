#include "program/ui/Meanwhile.h"

namespace lineforge
{

namespace
{
constexpr qint64 firstPatience = 500; // milliseconds
constexpr qint64 patience = 100;
} // namespace

Meanwhile::Meanwhile(EventLoop& loop) : loop_(loop), patience_(firstPatience)
{
    sincePainted_.start();
}

void Meanwhile::KeepPainted()
{
    if (!sincePainted_.hasExpired(patience_))
        return;
    loop_.PaintWindows();
    patience_ = patience;
    sincePainted_.restart();
}

} // namespace lineforge
