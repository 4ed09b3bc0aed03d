#pragma once

#include "platform/canvas/PictureBox.h"
#include "qt/WindowTest.h"

namespace lineforge
{

// A window with a panel for films and one for sounds, the words below the buttons.
struct PanelForm : Form {
    PanelForm() : Form(u"PanelForm", u"Players", {8100, 4800}) { MMControl1.ScreenHeight = 2700; }

    PictureBox Picture1{*this, u"Picture1", {150, 150, 4200, 4350}};
    MultimediaControl MMControl1{Picture1, u"MMControl1", {150, 150, 3900, 3600}};
    Label Label1{Picture1, u"Label1", {150, 3780, 780, 300}, u"Rewind"};
    Label Label2{Picture1, u"Label2", {930, 3780, 780, 300}, u"Play"};
    Label Label3{Picture1, u"Label3", {1710, 3780, 780, 300}, u"Pause"};
    Label Label4{Picture1, u"Label4", {2490, 3780, 780, 300}, u"Step"};
    Label Label5{Picture1, u"Label5", {3270, 3780, 780, 300}, u"Stop"};
    PictureBox Picture2{*this, u"Picture2", {4500, 150, 3450, 1650}};
    MultimediaControl MMControl2{Picture2, u"MMControl2", {150, 150, 3150, 900}};
};

} // namespace lineforge
