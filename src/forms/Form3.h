#pragma once

#include "platform/controls/DataControl.h"
#include "platform/controls/Form.h"

#include <array>

namespace lineforge::forms
{

// The record form: every field of the current record, and the data control that all windows read through.
struct Form3 : Form {
    Form3();

    MenuItem mnuFile{Menus, u"mnuFile", u"&File"};
    MenuItem mnuPrint{mnuFile, u"mnuPrint", u"&Print"};
    MenuItem mnuAddPMark{mnuPrint, u"mnuAddPMark", u"&Add Print BookMark"};
    MenuItem mnuPrintSetup{mnuPrint, u"mnuPrintSetup", u"&Setup"};
    MenuItem mnuPrinForm{mnuPrint, u"mnuPrinForm", u"&Window"};
    MenuItem mnuPrinRecord{mnuPrint, u"mnuPrinRecord", u"&Record"};
    MenuItem mnuRecList{mnuPrint, u"mnuRecList", u"Record &List"};
    MenuItem mnuPrList{mnuRecList, u"mnuPrList", u"Print List"};
    MenuItem mnuClrList{mnuRecList, u"mnuClrList", u"Clear List"};
    MenuItem mnuPrinDatabase{mnuPrint, u"mnuPrinDatabase", u"&Database"};
    MenuItem mnuDash3{mnuFile, u"mnuDash3", u"-"};
    MenuItem mnuExit{mnuFile, u"mnuExit", u"E&xit"};

    MenuItem mnuEdit{Menus, u"mnuEdit", u"&Edit"};
    MenuItem mnuCut{mnuEdit, u"mnuCut", u"Cu&t"};
    MenuItem mnuCopy{mnuEdit, u"mnuCopy", u"&Copy"};
    MenuItem mnuCopyRecToClip{mnuEdit, u"mnuCopyRecToClip", u"Copy&Record"};
    MenuItem mnuPaste{mnuEdit, u"mnuPaste", u"&Paste"};
    MenuItem mnuDash1{mnuEdit, u"mnuDash1", u"-"};
    MenuItem mnuSubPicture{mnuEdit, u"mnuSubPicture", u"Subject &Picture"};
    MenuItem mnuAdd{mnuEdit, u"mnuAdd", u"&Add New Record"};
    MenuItem mnuDelete{mnuEdit, u"mnuDelete", u"&Delete Record"};
    MenuItem MnuDash2{mnuEdit, u"MnuDash2", u"-"};
    MenuItem MnuRecTransfer{mnuEdit, u"MnuRecTransfer", u"&Record Transfer"};

    MenuItem mnuSearch{Menus, u"mnuSearch", u"&Search By"};
    MenuItem mnuSearchDataRef{mnuSearch, u"mnuSearchDataRef", u"Data &Ref"};
    MenuItem mnuSearchSurName{mnuSearch, u"mnuSearchSurName", u"Sur&name"};
    MenuItem mnuSearchBirthPlace{mnuSearch, u"mnuSearchBirthPlace", u"&BirthPlace"};
    MenuItem mnuSearchWord{mnuSearch, u"mnuSearchWord", u"&Word"};

    MenuItem mnuHelp{Menus, u"mnuHelp", u"&Help"};

    Label Label12{*this, u"Label12", {240, 210, 1320, 285}, u"Data Rec"};
    Label Label25{*this, u"Label25", {1620, 210, 1200, 285}}; // number
    Label Label2{*this, u"Label2", {240, 585, 1320, 285}, u"Surname"};
    TextBox Text2{*this, u"Text2", {1620, 570, 2100, 315}, 30}; // surname
    Label Label3{*this, u"Label3", {3960, 585, 1080, 285}, u"Forenames"};
    TextBox Text3{*this, u"Text3", {5100, 570, 3480, 315}, 30}; // forenames
    Label Label4{*this, u"Label4", {240, 975, 1320, 285}, u"BirthDate"};
    TextBox Text4{*this, u"Text4", {1620, 960, 2100, 315}, 30}; // date of birth
    Label Label5{*this, u"Label5", {3960, 975, 1080, 285}, u"BirthPlace"};
    TextBox Text5{*this, u"Text5", {5100, 960, 3480, 315}, 100}; // place of birth
    Label Label13{*this, u"Label13", {240, 1365, 1320, 285}, u"Gender"};
    TextBox Text23{*this, u"Text23", {1620, 1350, 2100, 315}, 30}; // gender
    Label Label22{*this, u"Label22", {3960, 1365, 1080, 285}, u"Nationality"};
    TextBox Text1{*this, u"Text1", {5100, 1350, 3480, 315}}; // nationality
    Label Label14{*this, u"Label14", {240, 1755, 1320, 285}, u"Spouse Rec"};
    TextBox Text24{*this, u"Text24", {1620, 1740, 2100, 315}, 30}; // spouse's number
    Label Label6{*this, u"Label6", {3960, 1755, 1080, 285}, u"Spouse"};
    TextBox Text6{*this, u"Text6", {5100, 1740, 3480, 315}, 100}; // spouse
    Label Label20{*this, u"Label20", {240, 2145, 1320, 285}, u"Father Rec"};
    TextBox Text21{*this, u"Text21", {1620, 2130, 2100, 315}, 30}; // father's number
    Label Label21{*this, u"Label21", {3960, 2145, 1080, 285}, u"Mother Rec"};
    TextBox Text22{*this, u"Text22", {5100, 2130, 3480, 315}, 30}; // mother's number
    Label Label7{*this, u"Label7", {240, 2535, 1320, 285}, u"Children"};
    TextBox Text7{*this, u"Text7", {1620, 2520, 6960, 315}, 100}; // children
    Label Label17{*this, u"Label17", {240, 2925, 1320, 285}, u"Prev.Children"};
    TextBox Text18{*this, u"Text18", {1620, 2910, 6960, 315}, 100}; // children before
    Label Label15{*this, u"Label15", {240, 3315, 1320, 285}, u"Maiden Name"};
    TextBox Text16{*this, u"Text16", {1620, 3300, 2100, 315}, 30}; // maiden name
    Label Label19{*this, u"Label19", {3960, 3315, 1080, 285}, u"Wedding Date"};
    TextBox Text20{*this, u"Text20", {5100, 3300, 3480, 315}, 100}; // date of the wedding
    Label Label16{*this, u"Label16", {240, 3705, 1320, 285}, u"Partner"};
    TextBox Text17{*this, u"Text17", {1620, 3690, 2100, 315}, 30}; // partner
    Label Label18{*this, u"Label18", {3960, 3705, 1080, 285}, u"Wedd.Place"};
    TextBox Text19{*this, u"Text19", {5100, 3690, 3480, 315}, 100}; // place of the wedding
    Label Label8{*this, u"Label8", {240, 4095, 1320, 285}, u"Education"};
    TextBox Text8{*this, u"Text8", {1620, 4080, 6960, 315}, 100}; // education
    Label Label9{*this, u"Label9", {240, 4485, 1320, 285}, u"Profession"};
    TextBox Text9{*this, u"Text9", {1620, 4470, 6960, 315}, 100}; // profession
    Label Label10{*this, u"Label10", {240, 4875, 1320, 285}, u"Deceased"};
    TextBox Text10{*this, u"Text10", {1620, 4860, 6960, 315}, 100}; // death
    Label Label1{*this, u"Label1", {240, 5265, 1320, 285}, u"Notes(1)"};
    TextBox Text12{*this, u"Text12", {1620, 5250, 6960, 780}, 255}; // the field Medical
    Label Label11{*this, u"Label11", {240, 6120, 1320, 285}, u"Notes(2)"};
    TextBox Text11{*this, u"Text11", {1620, 6105, 6960, 780}, 255}; // the field Notes
    Label Label26{*this, u"Label26", {240, 6975, 1320, 285}, u"Birth Cert."};
    TextBox Text13{*this, u"Text13", {1620, 6960, 1500, 315}, 30}; // birth certificate
    Label Label27{*this, u"Label27", {3210, 6975, 1260, 285}, u"Marriage Cert."};
    TextBox Text14{*this, u"Text14", {4500, 6960, 1500, 315}, 30}; // marriage certificate
    Label Label28{*this, u"Label28", {6090, 6975, 960, 285}, u"Death Cert."};
    TextBox Text15{*this, u"Text15", {7080, 6960, 1500, 315}, 30}; // death certificate

    Image Image1{*this, u"Image1", {8880, 570, 2760, 2415}}; // subject picture

    Frame Frame1{*this, u"Frame1", {8880, 3120, 2760, 840}};     // the record scanner
    Button Picture1{Frame1, u"Picture1", {105, 210, 495, 495}};  // fast forward
    Button Picture2{Frame1, u"Picture2", {615, 210, 495, 495}};  // forward
    Button Picture3{Frame1, u"Picture3", {1125, 210, 495, 495}}; // stop
    Button Picture4{Frame1, u"Picture4", {1635, 210, 495, 495}}; // back
    Button Picture5{Frame1, u"Picture5", {2145, 210, 495, 495}}; // fast back
    static constexpr std::array<Button Form3::*, 5> Transport{&Form3::Picture1, &Form3::Picture2, &Form3::Picture3,
                                                              &Form3::Picture4, &Form3::Picture5};

    Button Command1{*this, u"Command1", {8880, 4170, 1320, 405}, u"Gallery"};
    Button Command2{*this, u"Command2", {10320, 4170, 1320, 405}, u"Tree"};
    DataControl Data1{*this, u"Data1", {8880, 4770, 2760, 375}, u"Lineforge"}; // the cursor on the records

    // The faces of the transport buttons, up and down in turn; never shown themselves.
    Image Image2{*this, u"Image2", {}};
    Image Image3{*this, u"Image3", {}};
    Image Image4{*this, u"Image4", {}};
    Image Image5{*this, u"Image5", {}};
    Image Image6{*this, u"Image6", {}};
    Image Image7{*this, u"Image7", {}};
    Image Image8{*this, u"Image8", {}};
    Image Image9{*this, u"Image9", {}};
    Image Image10{*this, u"Image10", {}};
    Image Image11{*this, u"Image11", {}};

    Timer Timer1{*this, u"Timer1", 100}; // a step of the scanner

private:
    void BindBoxes();
    void DrawFaces();
};

} // namespace lineforge::forms
