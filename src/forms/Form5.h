#pragma once

#include "platform/canvas/PictureBox.h"
#include "platform/controls/ControlArray.h"
#include "platform/controls/Form.h"

namespace lineforge::forms
{

// The gallery of a record: tiles of pictures, sounds, videos and texts, and a player for each of the two that play.
struct Form5 : Form {
    Form5();

    MenuItem mnuFile{Menus, u"mnuFile", u"&File"};
    MenuItem mnuExit{mnuFile, u"mnuExit", u"E&xit"};

    MenuItem mnuEdit{Menus, u"mnuEdit", u"&Edit"};
    MenuItem mnuAddFile{mnuEdit, u"mnuAddFile", u"&Add File"};
    MenuItem mnuPic{mnuAddFile, u"mnuPic", u"&Picture"};
    MenuItem mnuAud{mnuAddFile, u"mnuAud", u"&Audio"};
    MenuItem mnuVid{mnuAddFile, u"mnuVid", u"&Video"};
    MenuItem mnuTxt{mnuAddFile, u"mnuTxt", u"&Text"};
    MenuItem MnuDeleteFile{mnuEdit, u"MnuDeleteFile", u"&Delete File"};
    MenuItem mnuPrintSetup{mnuEdit, u"mnuPrintSetup", u"Printer&Setup"};
    MenuItem mnuPrintpic{mnuEdit, u"mnuPrintpic", u"&Print Picture"};

    MenuItem mnuHelp{Menus, u"mnuHelp", u"&Help"};

    Button Command1{*this, u"Command1", {240, 120, 975, 375}, u"Tree"};
    Button Command2{*this, u"Command2", {1320, 120, 975, 375}, u"Records"};

    // The tiles. Tile 0 is there from the start, hidden like the others until a page is built.
    static constexpr int LastTile = 98;
    static constexpr Rectangle FirstTile{240, 720, 735, 855};
    ControlArray<Image> Image1{*this, u"Image1", Tile};

    PictureBox Picture1{*this, u"Picture1", {0, 0, 5250, 2250}}; // the player of sounds
    Label Label11{Picture1, u"Label11", {150, 120, 4950, 255}, u"Media Player"};
    MultimediaControl MMControl1{Picture1, u"MMControl1", {150, 480, 4950, 615}}; // its buttons
    Label Label1{Picture1, u"Label1", {150, 1155, 990, 255}, u"Rewind"};
    Label Label2{Picture1, u"Label2", {1140, 1155, 990, 255}, u"Play"};
    Label Label3{Picture1, u"Label3", {2130, 1155, 990, 255}, u"Pause"};
    Label Label4{Picture1, u"Label4", {3120, 1155, 990, 255}, u"Step"};
    Label Label5{Picture1, u"Label5", {4110, 1155, 990, 255}, u"Stop"};
    Button Command3{Picture1, u"Command3", {2137, 1650, 975, 375}, u"Exit"};

    PictureBox Picture2{*this, u"Picture2", {0, 0, 6900, 6900}}; // the player of films
    Label Label12{Picture2, u"Label12", {150, 120, 6600, 255}, u"Media Player"};
    MultimediaControl MMControl2{Picture2, u"MMControl2", {150, 480, 6600, 5265}}; // its screen and buttons
    Label Label10{Picture2, u"Label10", {150, 5805, 1320, 255}, u"Rewind"};
    Label Label9{Picture2, u"Label9", {1470, 5805, 1320, 255}, u"Play"};
    Label Label8{Picture2, u"Label8", {2790, 5805, 1320, 255}, u"Pause"};
    Label Label7{Picture2, u"Label7", {4110, 5805, 1320, 255}, u"Step"};
    Label Label6{Picture2, u"Label6", {5430, 5805, 1320, 255}, u"Stop"};
    Button Command4{Picture2, u"Command4", {2962, 6300, 975, 375}, u"Exit"};

private:
    static std::unique_ptr<Image> Tile(Container& parent, const QString& name);
};

} // namespace lineforge::forms
