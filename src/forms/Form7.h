#pragma once

#include "platform/controls/Form.h"

namespace lineforge::forms
{

// How a box is to be tied to a record.
struct Form7 : Form {
    Form7();

    Frame Frame1{*this, u"Frame1", {180, 120, 5640, 2055}, u"Mapped Record Details"};
    OptionButton Option1{Frame1, u"Option1", {240, 330, 5200, 315}, u"Map and create new Blank Record"};
    OptionButton Option2{Frame1, u"Option2", {240, 720, 5200, 315}, u"Map existing Unmapped Record"};
    OptionButton Option3{Frame1, u"Option3", {240, 1110, 5200, 315}, u"Map existing Alternate Tree Branch Record"};
    Label Label1{Frame1, u"Label1", {240, 1590, 2460, 255}, u"Enter existing Record Number :"};
    TextBox Text1{Frame1, u"Text1", {2790, 1545, 900, 330}, 4}; // its number

    Frame Frame2{*this, u"Frame2", {180, 2310, 2730, 1155}, u"Subject Gender"};
    OptionButton Option4{Frame2, u"Option4", {240, 300, 2300, 315}, u"Male"};
    OptionButton Option5{Frame2, u"Option5", {240, 690, 2300, 315}, u"Female"};

    Frame Frame3{*this, u"Frame3", {3090, 2310, 2730, 1155}, u"Subject Picture"};
    OptionButton Option6{Frame3, u"Option6", {240, 300, 2300, 315}, u"Leave until later"};
    OptionButton Option7{Frame3, u"Option7", {240, 690, 2300, 315}, u"Select now"};

    Button Command1{*this, u"Command1", {1800, 3660, 1140, 405}, u"OK"};
    Button Command2{*this, u"Command2", {3060, 3660, 1140, 405}, u"Cancel"};
};

} // namespace lineforge::forms
