#pragma once

#include "platform/DataControl.h"
#include "platform/Form.h"

namespace lineforge::forms
{

// The record form: every field of the current record, and the data control that all windows read through.
struct Form3 : Form {
    Form3();

    DataControl Data1{*this, u"Data1", {8880, 6660, 2760, 375}, u"Lineforge"};

    Label Label12{*this, u"Label12", {240, 210, 1320, 285}, u"Data Rec"};
    Label Label25{*this, u"Label25", {1620, 210, 1200, 285}};
    Label Label2{*this, u"Label2", {240, 600, 1320, 285}, u"Surname"};
    TextBox Text2{*this, u"Text2", {1620, 570, 2700, 315}, 30};
    Label Label3{*this, u"Label3", {4500, 600, 1320, 285}, u"Forenames"};
    TextBox Text3{*this, u"Text3", {5880, 570, 2700, 315}, 30};
    Label Label4{*this, u"Label4", {240, 990, 1320, 285}, u"BirthDate"};
    TextBox Text4{*this, u"Text4", {1620, 960, 2700, 315}, 30};
    Label Label5{*this, u"Label5", {4500, 990, 1320, 285}, u"BirthPlace"};
    TextBox Text5{*this, u"Text5", {5880, 960, 2700, 315}, 100};
    Label Label13{*this, u"Label13", {240, 1380, 1320, 285}, u"Gender"};
    TextBox Text23{*this, u"Text23", {1620, 1350, 2700, 315}, 30};
    Label Label22{*this, u"Label22", {4500, 1380, 1320, 285}, u"Nationality"};
    TextBox Text1{*this, u"Text1", {5880, 1350, 2700, 315}};
    Label Label6{*this, u"Label6", {240, 1770, 1320, 285}, u"Spouse"};
    TextBox Text6{*this, u"Text6", {1620, 1740, 2700, 315}, 100};
    Label Label14{*this, u"Label14", {4500, 1770, 1320, 285}, u"Spouse Rec"};
    TextBox Text24{*this, u"Text24", {5880, 1740, 2700, 315}, 30};
    Label Label20{*this, u"Label20", {240, 2160, 1320, 285}, u"Father Rec"};
    TextBox Text21{*this, u"Text21", {1620, 2130, 2700, 315}, 30};
    Label Label21{*this, u"Label21", {4500, 2160, 1320, 285}, u"Mother Rec"};
    TextBox Text22{*this, u"Text22", {5880, 2130, 2700, 315}, 30};
    Label Label7{*this, u"Label7", {240, 2550, 1320, 285}, u"Children"};
    TextBox Text7{*this, u"Text7", {1620, 2520, 6960, 315}, 100};
    Label Label17{*this, u"Label17", {240, 2940, 1320, 285}, u"Prev.Children"};
    TextBox Text18{*this, u"Text18", {1620, 2910, 6960, 315}, 100};
    Label Label16{*this, u"Label16", {240, 3330, 1320, 285}, u"Partner"};
    TextBox Text17{*this, u"Text17", {1620, 3300, 2700, 315}, 30};
    Label Label15{*this, u"Label15", {4500, 3330, 1320, 285}, u"Maiden Name"};
    TextBox Text16{*this, u"Text16", {5880, 3300, 2700, 315}, 30};
    Label Label18{*this, u"Label18", {240, 3720, 1320, 285}, u"Wedd.Place"};
    TextBox Text19{*this, u"Text19", {1620, 3690, 2700, 315}, 100};
    Label Label19{*this, u"Label19", {4500, 3720, 1320, 285}, u"Wedding Date"};
    TextBox Text20{*this, u"Text20", {5880, 3690, 2700, 315}, 100};
    Label Label8{*this, u"Label8", {240, 4110, 1320, 285}, u"Education"};
    TextBox Text8{*this, u"Text8", {1620, 4080, 6960, 315}, 100};
    Label Label9{*this, u"Label9", {240, 4500, 1320, 285}, u"Profession"};
    TextBox Text9{*this, u"Text9", {1620, 4470, 6960, 315}, 100};
    Label Label10{*this, u"Label10", {240, 4890, 1320, 285}, u"Deceased"};
    TextBox Text10{*this, u"Text10", {1620, 4860, 6960, 315}, 100};
    Label Label1{*this, u"Label1", {240, 5280, 1320, 285}, u"Notes(1)"};
    TextBox Text12{*this, u"Text12", {1620, 5250, 6960, 780}, 255};
    Label Label11{*this, u"Label11", {240, 6135, 1320, 285}, u"Notes(2)"};
    TextBox Text11{*this, u"Text11", {1620, 6105, 6960, 780}, 255};
    Label Label26{*this, u"Label26", {240, 6990, 1320, 285}, u"Birth Cert."};
    TextBox Text13{*this, u"Text13", {1620, 6960, 1500, 315}, 30};
    Label Label27{*this, u"Label27", {3210, 6990, 1260, 285}, u"Marriage Cert."};
    TextBox Text14{*this, u"Text14", {4500, 6960, 1500, 315}, 30};
    Label Label28{*this, u"Label28", {6090, 6990, 960, 285}, u"Death Cert."};
    TextBox Text15{*this, u"Text15", {7080, 6960, 1500, 315}, 30};

    Image Image1{*this, u"Image1", {8880, 570, 2760, 2400}};
};

} // namespace lineforge::forms
