#include "program/state/Program.h"

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
#include "program/state/OtherProgramsTold.h"

namespace lineforge
{

Program::Program(const Platform& platform)
    : Prompts(platform.Prompts), Loop(platform.Loop), Screen(platform.Screen), Clipboard(platform.Clipboard),
      Processes(platform.Processes), Printer(platform.PrintSystem), ExecutableDirectory(platform.ExecutableDirectory),
      FirstHome(platform.ExecutableDirectory), Files(platform.ExecutableDirectory), form9(platform.Windows),
      Form1(platform.Windows), Form2(platform.Windows), Form3(platform.Windows), Form4(platform.Windows),
      Form5(platform.Windows), Form6(platform.Windows), Form7(platform.Windows), Form8(platform.Windows),
      Form11(platform.Windows), Form12(platform.Windows)
{
    TellOfOtherPrograms(Databases.Others(), Prompts);
}

Program::~Program() = default;

} // namespace lineforge
