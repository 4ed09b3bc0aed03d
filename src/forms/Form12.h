#pragma once

#include "platform/controls/Form.h"
#include "platform/controls/TextPanel.h"

#include <array>

namespace lineforge::forms
{

// The submitter and the start record of a GEDCOM file on the left, the progress of its writing on the right.
struct Form12 : Form {
    Form12();

    Frame Frame1{*this, u"Frame1", {120, 60, 4080, 3000}, u"Submitter Information"};
    Label Label1{Frame1, u"Label1", {180, 315, 780, 255}, u"Name"};
    TextBox Text1{Frame1, u"Text1", {1020, 285, 2910, 315}}; // the submitter's name
    Frame Frame5{Frame1, u"Frame5", {60, 660, 3960, 1140}};  // the three lines of the address
    Label Label2{Frame5, u"Label2", {120, 105, 780, 255}, u"Address"};
    TextBox Text2{Frame5, u"Text2", {960, 75, 2910, 315}};  // first line
    TextBox Text3{Frame5, u"Text3", {960, 420, 2910, 315}}; // second line
    TextBox Text4{Frame5, u"Text4", {960, 765, 2910, 315}}; // third line
    Label Label3{Frame1, u"Label3", {180, 1890, 780, 255}, u"Phone"};
    TextBox Text5{Frame1, u"Text5", {1020, 1860, 2910, 315}}; // telephone
    Label Label4{Frame1, u"Label4", {180, 2265, 780, 255}, u"Notes"};
    TextBox Text6{Frame1, u"Text6", {1020, 2235, 2910, 660}}; // notes

    Frame Frame3{*this, u"Frame3", {120, 3150, 4080, 1260}, u"Record Sorting"};
    Label Label5{Frame3, u"Label5", {180, 315, 1980, 255}, u"Start Record number"};
    TextBox Text7{Frame3, u"Text7", {2220, 285, 1020, 315}}; // number of the record to begin with
    Label Label6{Frame3, u"Label6", {180, 690, 1980, 255}, u"Sort Direction"};
    OptionButton Option1{Frame3, u"Option1", {2220, 645, 1740, 285}, u"Decendants"}; // spelt so
    OptionButton Option2{Frame3, u"Option2", {2220, 930, 1740, 285}, u"Ancestors"};

    Frame Frame2{*this, u"Frame2", {120, 4500, 4080, 780}, u"GEDCOM Standard 5.5"};
    Button Command1{Frame2, u"Command1", {120, 270, 1440, 405}, u"Create File"};
    Button Command2{Frame2, u"Command2", {1650, 270, 1110, 405}, u"Cancel"};
    Button Command3{Frame2, u"Command3", {2850, 270, 1110, 405}, u"Reset "};

    Frame Frame4{*this, u"Frame4", {120, 5370, 4080, 2070}, u"Data Used"};
    Label Label7{
        Frame4,
        u"Label7",
        {180, 270, 3750, 1740},
        u"Lineage linked data will be encoded into a GEDCOM file using the available record numbers for each subject. "
        u"Data extracted will include individual Birth, Marriage and Deceased dates and place names together with "
        u"family siblings. A list of the code tags used will be found in the help file."};

    // Moved up behind the window's upper edge by its bar, so that it begins there.
    TextPanel Picture1{*this, u"Picture1", {4320, 0, 7200, 8000}};                  // progress
    ScrollBar VScroll1{*this, u"VScroll1", {11565, 0, 255, 7440}, 8000, 100, 1000}; // moves it

    std::array<TextBox*, 7> Texts() { return {&Text1, &Text2, &Text3, &Text4, &Text5, &Text6, &Text7}; }
};

} // namespace lineforge::forms
