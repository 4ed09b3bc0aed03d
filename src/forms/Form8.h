#pragma once

#include "platform/controls/Form.h"

namespace lineforge::forms
{

// The list of tree branches.
struct Form8 : Form {
    Form8() : Form(u"Form8", u"Open Tree Branch", {6300, 4200}) { List1.SpokenName = QStringLiteral("Tree branches"); }

    Label Label1{*this, u"Label1", {180, 150, 5940, 480}};  // the home directory
    ListBox List1{*this, u"List1", {180, 690, 4140, 3330}}; // names of the branches
    Button Command1{*this, u"Command1", {4500, 690, 1620, 405}, u"Open"};
    Button Command2{*this, u"Command2", {4500, 1215, 1620, 405}, u"Cancel"};
    Button Command3{*this, u"Command3", {4500, 1740, 1620, 405}, u"Change Directory"};
};

} // namespace lineforge::forms
