#include "shell/handlers/InstallHandlers.h"

#include "forms/Form1.h"
#include "forms/Form11.h"
#include "forms/Form12.h"
#include "forms/Form2.h"
#include "forms/Form3.h"
#include "forms/Form4.h"
#include "forms/Form5.h"
#include "forms/Form6.h"
#include "forms/Form7.h"
#include "forms/Form8.h"
#include "forms/form9.h"

namespace lineforge
{

void InstallHandlers(Program& p)
{
    p.Form1.Install = [&p](forms::Form1& form) { InstallForm1(p, form); };
    p.Form2.Install = [&p](forms::Form2& form) { InstallForm2(p, form); };
    p.Form3.Install = [&p](forms::Form3& form) { InstallForm3(p, form); };
    p.Form4.Install = [&p](forms::Form4& form) { InstallForm4(p, form); };
    p.Form5.Install = [&p](forms::Form5& form) { InstallForm5(p, form); };
    p.Form6.Install = [&p](forms::Form6& form) { InstallForm6(p, form); };
    p.Form7.Install = [&p](forms::Form7& form) { InstallForm7(p, form); };
    p.Form8.Install = [&p](forms::Form8& form) { InstallForm8(p, form); };
    p.Form11.Install = [&p](forms::Form11& form) { InstallForm11(p, form); };
    p.Form12.Install = [&p](forms::Form12& form) { InstallForm12(p, form); };
    p.form9.Install = [&p](forms::form9& form) { InstallForm9(p, form); };
}

} // namespace lineforge
