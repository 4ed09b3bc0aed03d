#include "forms/Form1.h"

namespace lineforge::forms
{

Form1::Form1() : Form(u"Form1", u"Lineforge", MainWindowClient)
{
    Picture1.Font = {QStringLiteral("Arial"), 8.25};
    Label9.Font.Bold = Label10.Font.Bold = true;
}

} // namespace lineforge::forms
