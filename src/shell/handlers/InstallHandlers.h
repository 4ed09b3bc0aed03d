#pragma once

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
#include "program/state/Program.h"

namespace lineforge
{

// What the controls of each window do, one file a window; each handler is one call.
void InstallForm1(Program& p, forms::Form1& form);
void InstallForm2(Program& p, forms::Form2& form);
void InstallForm3(Program& p, forms::Form3& form);
void InstallForm4(Program& p, forms::Form4& form);
void InstallForm5(Program& p, forms::Form5& form);
void InstallForm6(Program& p, forms::Form6& form);
void InstallForm7(Program& p, forms::Form7& form);
void InstallForm8(Program& p, forms::Form8& form);
void InstallForm11(Program& p, forms::Form11& form);
void InstallForm12(Program& p, forms::Form12& form);
void InstallForm9(Program& p, forms::form9& form);

// For all windows of a program, whenever they are made.
void InstallHandlers(Program& p);

} // namespace lineforge
