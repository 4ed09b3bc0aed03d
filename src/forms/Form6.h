#pragma once

#include "platform/controls/DataControl.h"
#include "platform/controls/Form.h"

namespace lineforge::forms
{

// The comparison of two branches: the current one on the left, the other on the right, the field that differs side by
// side below them.
struct Form6 : Form {
    Form6();

    MenuItem mnuFile{Menus, u"mnuFile", u"&File"};
    MenuItem mnuOpen{mnuFile, u"mnuOpen", u"Open Co&mpare"};
    MenuItem mnuPrintScreen{mnuFile, u"mnuPrintScreen", u"&Print Screen"};
    MenuItem mnuClose{mnuFile, u"mnuClose", u"Exit Compare"};

    MenuItem mnuEdit{Menus, u"mnuEdit", u"&Edit"};
    MenuItem mnuCut{mnuEdit, u"mnuCut", u"&Cut"};
    MenuItem mnuCopy{mnuEdit, u"mnuCopy", u"C&opy"};
    MenuItem mnuPaste{mnuEdit, u"mnuPaste", u"&Paste"};

    MenuItem mnuHelp{Menus, u"mnuHelp", u"&Help"};

    Label Label1{*this, u"Label1", {240, 180, 1860, 285}, u"Current Tree Branch:"};
    Label Label2{*this, u"Label2", {2160, 180, 3540, 285}}; // the open branch
    Label Label3{*this, u"Label3", {240, 570, 840, 285}, u"Record :"};
    Label Label4{*this, u"Label4", {1140, 570, 1500, 285}}; // number of its record
    Label Label5{*this, u"Label5", {240, 975, 960, 285}, u"Surname :"};
    TextBox Text1{*this, u"Text1", {1260, 960, 2400, 315}}; // surname
    Label Label11{*this, u"Label11", {240, 1365, 960, 285}, u"Forename"};
    TextBox Text5{*this, u"Text5", {1260, 1350, 2400, 315}};           // forenames
    Image Image1{*this, u"Image1", {3840, 570, 1860, 1740}};           // subject picture
    Frame Frame5{*this, u"Frame5", {240, 2400, 5460, 2100}, u"Field"}; // names the field on show
    TextBox Text2{Frame5, u"Text2", {120, 285, 5220, 1695}};           // the field on show

    Label Label6{*this, u"Label6", {6120, 180, 1980, 285}, u"Compare Tree Branch:"};
    Label Label7{*this, u"Label7", {8160, 180, 3420, 285}}; // the other branch
    Label Label8{*this, u"Label8", {6120, 570, 840, 285}, u"Record :"};
    Label Label9{*this, u"Label9", {7020, 570, 1500, 285}}; // number of its record
    Label Label10{*this, u"Label10", {6120, 975, 960, 285}, u"Surname :"};
    TextBox Text3{*this, u"Text3", {7140, 960, 2400, 315}}; // surname
    Label Label12{*this, u"Label12", {6120, 1365, 960, 285}, u"Forename"};
    TextBox Text6{*this, u"Text6", {7140, 1350, 2400, 315}};            // forenames
    Image Image2{*this, u"Image2", {9720, 570, 1860, 1740}};            // subject picture
    Frame Frame6{*this, u"Frame6", {6120, 2400, 5460, 2100}, u"Field"}; // names the field on show
    TextBox Text4{Frame6, u"Text4", {120, 285, 5220, 1695}};            // the field on show

    Frame Frame1{
        *this, u"Frame1", {240, 4620, 11340, 2700}, u"Database Comparison Settings for Field Difference Searches"};
    Frame Frame2{Frame1, u"Frame2", {150, 330, 2550, 2220}, u"Search Where Same"};
    CheckBox Check1{Frame2, u"Check1", {180, 420, 2220, 375}, u"Record Number"};
    CheckBox Check2{Frame2, u"Check2", {180, 945, 2220, 375}, u"Surname"};
    CheckBox Check3{Frame2, u"Check3", {180, 1470, 2220, 375}, u"Date of Birth"};
    Frame Frame3{Frame1, u"Frame3", {2850, 330, 4200, 2220}, u"Copy Field Direction"};
    OptionButton Option1{Frame3, u"Option1", {180, 315, 3840, 345}, u"Current to Compare  >"};
    OptionButton Option2{Frame3, u"Option2", {180, 690, 3840, 345}, u"Compare to Current  <"};
    Button Command3{Frame3, u"Command3", {180, 1110, 1860, 405}, u"Copy a Field"};
    Button Command7{Frame3, u"Command7", {2160, 1110, 1860, 405}, u"Copy all Fields"};
    Button Command8{Frame3, u"Command8", {180, 1620, 1860, 405}, u"Append Record"};
    Frame Frame4{Frame1, u"Frame4", {7200, 330, 3990, 2220}, u"Database Search Actions"};
    Button Command1{Frame4, u"Command1", {180, 330, 1740, 405}, u"Search"};
    Button Command2{Frame4, u"Command2", {2070, 330, 1740, 405}, u"Reset"};
    Button Command5{Frame4, u"Command5", {180, 810, 1740, 405}, u"Next Comp."};
    Button Command6{Frame4, u"Command6", {2070, 810, 1740, 405}, u"Next Current"};
    Button Command4{Frame4, u"Command4", {180, 1290, 1740, 405}, u"Tree"};
    DataControl Data1{Frame4, u"Data1", {180, 1770, 3630, 345}, u"Manual Compare Search"};
};

} // namespace lineforge::forms
