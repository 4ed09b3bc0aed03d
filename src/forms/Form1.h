#pragma once

#include "forms/ToolFaces.h"
#include "platform/canvas/PictureBox.h"
#include "platform/controls/ControlArray.h"
#include "platform/controls/Form.h"

#include <array>

namespace lineforge::forms
{

// What the main window was laid out for, below its menus; how large all windows are shown goes by it.
inline constexpr Size MainWindowClient{11880, 8190};

// What the colour and the font dialog were last left with. The colour of all that is drawn lives here.
struct CommonDialog {
    Colour Color = Black;
    QString FontName = QStringLiteral("Arial");
    double FontSize = 8; // points
};

// The main window: the map, the subject beside it, and the menus.
struct Form1 : Form {
    Form1();

    MenuItem mnuFile{Menus, u"mnuFile", u"&File"};
    MenuItem New{mnuFile, u"New", u"&New"};
    MenuItem Open{mnuFile, u"Open", u"&Open"};
    MenuItem mnuDash1{mnuFile, u"mnuDash1", u"-"};
    MenuItem mnuAddBkMark{mnuFile, u"mnuAddBkMark", u"&Add BookMark"};
    MenuItem mnuClrList{mnuFile, u"mnuClrList", u"Clear Bookmarks"};
    MenuItem mnuTreePrint{mnuFile, u"mnuTreePrint", u"Print"};
    MenuItem mnuPrinterSetUp{mnuTreePrint, u"mnuPrinterSetUp", u"Printer &Setup"};
    MenuItem mnuPrint{mnuTreePrint, u"mnuPrint", u"Print &Branch"};
    MenuItem mnuPrintPage{mnuTreePrint, u"mnuPrintPage", u"Print Pa&ge"};
    MenuItem mnuPrintRecord{mnuTreePrint, u"mnuPrintRecord", u"Print &Record"};
    MenuItem mnuPrinList{mnuTreePrint, u"mnuPrinList", u"Print Bookmarks"};
    MenuItem mnuDash2{mnuFile, u"mnuDash2", u"-"};
    MenuItem mnuMainCopy{mnuFile, u"mnuMainCopy", u"Copy"};
    MenuItem mnuBackup{mnuMainCopy, u"mnuBackup", u"Make Bac&kup"};
    MenuItem mnuTxtFileList{mnuMainCopy, u"mnuTxtFileList", u"Bookmark List"};
    MenuItem mnuTxtDBase{mnuMainCopy, u"mnuTxtDBase", u"Database"};
    MenuItem mnuDash3{mnuFile, u"mnuDash3", u"-"};
    MenuItem mnuExport{mnuFile, u"mnuExport", u"&Export"};
    MenuItem mnuExpSub{mnuExport, u"mnuExpSub", u"Database and Gallery"};
    MenuItem mnuExpGedcom{mnuExport, u"mnuExpGedcom", u"Ged File"};
    MenuItem mnuImport{mnuFile, u"mnuImport", u"Import"};
    MenuItem mnuImpSub{mnuImport, u"mnuImpSub", u"Database and Gallery"};
    MenuItem mnuImpGedcom{mnuImport, u"mnuImpGedcom", u"Ged File"};
    MenuItem mnuDash4{mnuFile, u"mnuDash4", u"-"};
    MenuItem mnuCloseDB{mnuFile, u"mnuCloseDB", u"Close DataBase"};
    MenuItem mnuExit{mnuFile, u"mnuExit", u"E&xit"};

    MenuItem mnuEdit{Menus, u"mnuEdit", u"&Edit"};
    MenuItem mnuCopy{mnuEdit, u"mnuCopy", u"&Copy"};
    MenuItem mnuPaste{mnuEdit, u"mnuPaste", u"&Paste"};
    MenuItem mnuDash5{mnuEdit, u"mnuDash5", u"-"};
    MenuItem mnuDataBase{mnuEdit, u"mnuDataBase", u"&Database"};
    MenuItem mnuViewRecs{mnuDataBase, u"mnuViewRecs", u"View Records"};
    MenuItem mnuComp{mnuDataBase, u"mnuComp", u"Compare Records"};
    MenuItem mnuDash6{mnuEdit, u"mnuDash6", u"-"};
    MenuItem mnuDel{mnuEdit, u"mnuDel", u"Delete"};
    MenuItem mnuDelSub{mnuDel, u"mnuDelSub", u"Delete Dbase and Galleries"};

    MenuItem mnuTreeGraphics{Menus, u"mnuTreeGraphics", u"Tree Graphics"};
    MenuItem mnuTreeTools{mnuTreeGraphics, u"mnuTreeTools", u"&TreeTools"};
    MenuItem mnuMapSubject{mnuTreeGraphics, u"mnuMapSubject", u"&Map Subject"};
    MenuItem mnuRemap{mnuTreeGraphics, u"mnuRemap", u"ReMapSubject"};

    MenuItem mnuHelp{Menus, u"mnuHelp", u"&Help"};
    MenuItem mnuConts{mnuHelp, u"mnuConts", u"Contents"};
    MenuItem MnuAbout{mnuHelp, u"MnuAbout", u"About"};

    PictureBox Picture1{*this, u"Picture1", {0, 0, 8415, 12750}}; // the map
    Shape Shape1{Picture1, u"Shape1", {0, 0, 135, 255}};          // marks the current record's box
    ControlArray<Shape> Shape2{Picture1, u"Shape2", LineageFrame};
    Shape Shape3{Picture1, u"Shape3", {0, 0, 0, 0}};                               // the zone that a tool moves
    ScrollBar VScroll1{*this, u"VScroll1", {8400, 0, 255, 7455}, 8000, 100, 1500}; // moves the map up and down

    Button Command5{*this, u"Command5", {8760, 120, 975, 375}, u"Compare"};
    Button Command1{*this, u"Command1", {9840, 120, 975, 375}, u"Records"};
    Button Command2{*this, u"Command2", {10920, 120, 855, 375}, u"Gallery"};

    Frame Frame1{*this, u"Frame1", {8760, 720, 3015, 2775}, u"Ref  "};
    Image Image1{Frame1, u"Image1", {120, 240, 2775, 2415}}; // subject picture

    Label Label9{*this, u"Label9", {8760, 3570, 3015, 285}};   // forenames
    Label Label10{*this, u"Label10", {8760, 3855, 3015, 285}}; // surname
    Label Label2{*this, u"Label2", {8760, 4200, 1125, 255}, u"Birthdate"};
    Label Label11{*this, u"Label11", {9930, 4200, 1845, 255}}; // date of birth
    Label Label3{*this, u"Label3", {8760, 4470, 1125, 255}, u"Deceased"};
    Label Label12{*this, u"Label12", {9930, 4470, 1845, 255}}; // death
    Label Label4{*this, u"Label4", {8760, 4740, 1125, 255}, u"Spouse"};
    Label Label14{*this, u"Label14", {9930, 4740, 1845, 255}}; // spouse
    Label Label13{*this, u"Label13", {8760, 5010, 1125, 255}, u"Maiden Name"};
    Label Label15{*this, u"Label15", {9930, 5010, 1845, 255}}; // maiden name
    Label Label16{*this, u"Label16", {8760, 5280, 1125, 255}, u"Gender"};
    Label Label17{*this, u"Label17", {9930, 5280, 1845, 255}}; // gender

    Frame Frame2{*this, u"Frame2", {8760, 5610, 3015, 930}, u"Tree Co-ordinates"};
    Label Label6{Frame2, u"Label6", {120, 255, 1125, 240}, u"Reference"};
    TextBox Text8{Frame2, u"Text8", {120, 510, 1125, 315}}; // corner of a box around the pointer
    Label Label7{Frame2, u"Label7", {1350, 255, 720, 240}, u"Mouse 'X'"};
    TextBox Text9{Frame2, u"Text9", {1350, 510, 720, 315}}; // the pointer on the map, across
    Label Label8{Frame2, u"Label8", {2175, 255, 720, 240}, u"Mouse 'Y'"};
    TextBox Text10{Frame2, u"Text10", {2175, 510, 720, 315}}; // and down

    Frame Frame3{*this, u"Frame3", {8760, 6600, 3015, 735}, u"Heredity Lineage Indicater"};
    Label Label18{Frame3, u"Label18", {120, 330, 765, 240}, u"Surname :"};
    TextBox Text1{Frame3, u"Text1", {885, 300, 930, 315}}; // whose lineage is viewed
    Button Command3{Frame3, u"Command3", {1860, 300, 525, 315}, u"View"};
    Button Command4{Frame3, u"Command4", {2400, 300, 525, 315}, u"Clear"};

    // The drawing tools. Each image has a raised and a sunken face, kept in two images that are never shown.
    Frame Frame4{*this, u"Frame4", {8760, 7395, 3015, 600}};
    Image Image2{Frame4, u"Image2", ToolPlace(0)}; // moves what is in a zone
    Image Image3{Frame4, u"Image3", ToolPlace(1)}; // colour of lines, boxes and texts
    Image Image4{Frame4, u"Image4", ToolPlace(2)}; // font of texts
    Image Image5{Frame4, u"Image5", ToolPlace(3)}; // deletes
    Image Image6{Frame4, u"Image6", ToolPlace(4)}; // draws lines
    Image Image7{Frame4, u"Image7", ToolPlace(5)}; // draws boxes
    Image Image9{Frame4, u"Image9", ToolPlace(6)}; // writes texts
    Image Image8{Frame4, u"Image8", ToolPlace(7)}; // leaves the tools
    Image Image10{Frame4, u"Image10", {}};
    Image Image11{Frame4, u"Image11", {}};
    Image Image12{Frame4, u"Image12", {}};
    Image Image13{Frame4, u"Image13", {}};
    Image Image14{Frame4, u"Image14", {}};
    Image Image15{Frame4, u"Image15", {}};
    Image Image16{Frame4, u"Image16", {}};
    Image Image17{Frame4, u"Image17", {}};
    Image Image18{Frame4, u"Image18", {}};
    Image Image19{Frame4, u"Image19", {}};
    Image Image20{Frame4, u"Image20", {}};
    Image Image21{Frame4, u"Image21", {}};
    Image Image22{Frame4, u"Image22", {}};
    Image Image23{Frame4, u"Image23", {}};
    Image Image24{Frame4, u"Image24", {}};
    Image Image25{Frame4, u"Image25", {}};

    CommonDialog CommonDialog1;

    MultimediaControl MMControl1{*this, u"MMControl1"}; // clicks

    // The tool images in the order in which they stand.
    struct ToolImage {
        Image Form1::*Button;
        Image Form1::*Raised;
        Image Form1::*Sunken;
        QStringView ToolTip;
        ToolSymbol Symbol;
    };
    static const std::array<ToolImage, 8> Tools;
    static Rectangle ToolPlace(int index);
    // Fills the images that keep the faces. Not done before the tools are first wanted: the program must start at once.
    void DrawToolFaces();

    // A green frame over a box of a surname's line, hidden.
    static std::unique_ptr<Shape> LineageFrame(Container& parent, const QString& name);
};

} // namespace lineforge::forms
