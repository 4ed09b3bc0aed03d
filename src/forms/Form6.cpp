#include "forms/Form6.h"

namespace lineforge::forms
{

using namespace Qt::StringLiterals;

Form6::Form6() : Form(u"Form6", u"Comparison of Databases", {11820, 7500})
{
    Option1.Value = true;
    for (Label* branch : {&Label2, &Label7})
        branch->Font.Bold = true;
    // What stands twice is told apart by its place alone, which isn't heard.
    Text1.SpokenName = u"Surname, current branch"_s;
    Text5.SpokenName = u"Forename, current branch"_s;
    Image1.SpokenName = u"Picture, current branch"_s;
    Text3.SpokenName = u"Surname, compare branch"_s;
    Text6.SpokenName = u"Forename, compare branch"_s;
    Image2.SpokenName = u"Picture, compare branch"_s;
    Text2.SpokenName = u"Field, current branch"_s;
    Text4.SpokenName = u"Field, compare branch"_s;
}

} // namespace lineforge::forms
