#include "forms/form9.h"
#include "shell/handlers/InstallHandlers.h"
#include "shell/run/StartUp.h"

namespace lineforge
{

void InstallForm9(Program& p, forms::form9& form)
{
    form.Load = [&p] { LoadSplash(p); };
    form.Frame1.Click = [&p] { p.form9.Unload(); };
    form.Check1.Click = [&p] { ChooseSplash(p); };
}

} // namespace lineforge
