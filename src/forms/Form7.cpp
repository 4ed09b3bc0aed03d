#include "forms/Form7.h"

namespace lineforge::forms
{

Form7::Form7() : Form(u"Form7", u"Subject  Mapping Options", {6000, 4245})
{
    // One of the two pictures has to be chosen; a gender may be left open.
    Option6.Value = true;
}

} // namespace lineforge::forms
