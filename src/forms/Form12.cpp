#include "forms/Form12.h"

namespace lineforge::forms
{

using namespace Qt::StringLiterals;

Form12::Form12() : Form(u"Form12", u"Create GEDCOM file", {11880, 7500})
{
    // KEPT(GedcomWriterTest.DefaultTexts_PassAsTheUsersOwn): each begins with its own name, which passes as what the
    // user has typed.
    // Mended, no file would be made before a name and an address are typed.
    for (TextBox* box : Texts())
        box->Text.Show(box->Name);
    Text7.Text.Show(u"X010"_s);
    Option2.Value = true;
    Frame5.SpokenName = u"Address"_s;
    Text3.ToolTipText = u"Address, second line"_s;
    Text4.ToolTipText = u"Address, third line"_s;
    Picture1.ToolTipText = u"Progress"_s;
}

} // namespace lineforge::forms
