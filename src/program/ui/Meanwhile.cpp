#include "program/ui/Meanwhile.h"

namespace lineforge
{

namespace
{
constexpr qint64 firstPatience = 500; // milliseconds
constexpr qint64 patience = 100;
} // namespace

Meanwhile::Meanwhile(Program& p) : p_(p), patience_(firstPatience)
{
    sincePainted_.start();
}

void Meanwhile::KeepPainted()
{
    if (!sincePainted_.hasExpired(patience_))
        return;
    p_.Loop.PaintWindows();
    patience_ = patience;
    sincePainted_.restart();
}

} // namespace lineforge
