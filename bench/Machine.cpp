#include "Machine.h"

#include "shell/handlers/Handlers.h"

namespace lineforge::bench
{

Answer NoUser::MsgBox(const QString& title, const QString& text, Buttons)
{
    qFatal("unexpected box: %s / %s", qUtf8Printable(title), qUtf8Printable(text));
}

Machine::Machine(const QString& home) : P(Platform{windows_, user_, loop_, screen_, home})
{
    InstallHandlers(P);
    P.Branch.HomeDir = home;
    P.Form1.Load();
}

} // namespace lineforge::bench
