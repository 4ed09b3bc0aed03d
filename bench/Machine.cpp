#include "Machine.h"

#include "forms/Form1.h"
#include "shell/handlers/InstallHandlers.h"

#include <QPagedPaintDevice>

namespace lineforge::bench
{

Answer NoUser::MsgBox(const QString& title, const QString& text, Buttons)
{
    qFatal("unexpected box: %s / %s", qUtf8Printable(title), qUtf8Printable(text));
}

std::shared_ptr<QPagedPaintDevice> NoPrinter::NewJob(bool)
{
    throw RuntimeError(ErrorNumber::PrinterError);
}

Machine::Machine(const QString& home) : Machine(home, loop_, user_) {}

Machine::Machine(const QString& home, EventLoop& loop) : Machine(home, loop, user_) {}

Machine::Machine(const QString& home, Prompts& user) : Machine(home, loop_, user) {}

Machine::Machine(const QString& home, EventLoop& loop, Prompts& user)
    : P(Platform{windows_, user, loop, screen_, clipboard_, printer_, processes_, home})
{
    InstallHandlers(P);
    P.Branch.HomeDir = home;
    P.Form1.Load();
}

} // namespace lineforge::bench
