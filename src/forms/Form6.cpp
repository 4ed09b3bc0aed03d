#include "forms/Form6.h"

namespace lineforge::forms
{

Form6::Form6() : Form(u"Form6", u"Comparison of Databases", {11820, 7500})
{
    Option1.Value = true;
    for (Label* branch : {&Label2, &Label7})
        branch->Font.Bold = true;
}

} // namespace lineforge::forms
