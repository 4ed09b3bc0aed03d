#include "Machine.h"

#include "shell/handlers/Handlers.h"

#include <QPagedPaintDevice>

namespace lineforge::bench
{

Answer NoUser::MsgBox(const QString& title, const QString& text, Buttons)
{
    qFatal("unexpected box: %s / %s", qUtf8Printable(title), qUtf8Printable(text));
}

std::unique_ptr<QPagedPaintDevice> NoPrinter::NewJob(bool)
{
    throw RuntimeError(ErrorNumber::PrinterError);
}

Machine::Machine(const QString& home) : P(Platform{windows_, user_, loop_, screen_, clipboard_, printer_, home})
{
    InstallHandlers(P);
    P.Branch.HomeDir = home;
    P.Form1.Load();
}

} // namespace lineforge::bench
