#pragma once

#include "platform/controls/Form.h"

namespace lineforge::forms
{

// Where a branch is exported to.
struct Form4 : Form {
    Form4() : Form(u"Form4", u"Select  Export Drive & Directory", {5700, 4800})
    {
        Dir1.ToolTipText = QStringLiteral("Double Click to change");
    }

    Label Label1{*this, u"Label1", {180, 165, 3900, 255}, u"Drive"};
    DriveList Drive1{*this, u"Drive1", {180, 450, 3900, 375}};
    Label Label2{*this, u"Label2", {180, 975, 3900, 255}, u"Directory"};
    DirectoryList Dir1{*this, u"Dir1", {180, 1260, 3900, 3360}};
    Button Command1{*this, u"Command1", {4260, 450, 1260, 405}, u"OK"};
    Button Command2{*this, u"Command2", {4260, 975, 1260, 405}, u"Cancel"};
};

} // namespace lineforge::forms
