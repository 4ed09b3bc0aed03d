#include "forms/Form3.h"

#include "platform/drawing/TransportFaces.h"

namespace lineforge::forms
{

using namespace Qt::StringLiterals;

Form3::Form3() : Form(u"Form3", u"Family Tree Data", {11880, 7500})
{
    BindBoxes();
    DrawFaces();
    Image1.SpokenName = u"Subject picture"_s;
    Frame1.SpokenName = u"Record scanner"_s;
    Data1.SpokenName = u"Records"_s;
}

void Form3::BindBoxes()
{
    Data1.RecordSource = u"Tree99"_s;
    Data1.Bind(Label25, u"File"_s);

    struct BoundBox {
        TextBox& Box;
        QStringView Field;
        char16_t AccessKey; // none of those that the menus and buttons have
    };
    // "Notes(1)" is the field Medical and "Notes(2)" the field Notes; reports and the clipboard keep that pairing.
    const BoundBox bound[] = {
        {Text1, u"Nationality", u'A'},
        {Text2, u"Surname", u'U'},
        {Text3, u"Forename", u'O'},
        {Text4, u"BirthDate", u'B'},
        {Text5, u"BirthPlace", u'L'},
        {Text6, u"Spouse", u'P'},
        {Text7, u"Children", u'C'},
        {Text8, u"Education", u'J'},
        {Text9, u"Profession", u'Y'},
        {Text10, u"Deceased", u'D'},
        {Text11, u"Notes", u'2'},
        {Text12, u"Medical", u'1'},
        {Text13, u"BirthCertificate", u'3'},
        {Text14, u"MarriageCertificate", u'4'},
        {Text15, u"DeathCertificate", u'5'},
        {Text16, u"Maiden", u'I'},
        {Text17, u"Partner", u'K'},
        {Text18, u"PrevChildren", u'V'},
        {Text19, u"Wedding", u'W'},
        {Text20, u"WedDate", u'X'},
        {Text21, u"FatherRec", u'R'},
        {Text22, u"MotherRec", u'M'},
        {Text23, u"Gender", u'N'},
        {Text24, u"SpouseRec", u'Q'},
    };
    for (const BoundBox& each : bound) {
        Data1.Bind(each.Box, each.Field.toString());
        each.Box.AccessKey = each.AccessKey;
    }
    Command1.AccessKey = u'G';
    Command2.AccessKey = u'T';
}

void Form3::DrawFaces()
{
    struct Faces {
        Button& Transport;
        Image& Up;
        Image& Down;
        TransportSymbol Symbol;
        QStringView ToolTip;
    };
    const Faces faces[] = {
        {Picture1, Image2, Image3, TransportSymbol::FastForward, u"Fast forward"},
        {Picture2, Image4, Image5, TransportSymbol::Forward, u"Forward"},
        {Picture3, Image6, Image7, TransportSymbol::Stop, u"Stop"},
        {Picture4, Image8, Image9, TransportSymbol::Back, u"Back"},
        {Picture5, Image10, Image11, TransportSymbol::FastBack, u"Fast back"},
    };
    for (const Faces& each : faces) {
        each.Up.Picture = DrawTransportFace(each.Symbol, false);
        each.Down.Picture = DrawTransportFace(each.Symbol, true);
        each.Up.Visible = false;
        each.Down.Visible = false;
        each.Transport.Picture = each.Up.Picture.value();
        each.Transport.ToolTipText = each.ToolTip.toString();
    }
    // At rest the stop button is down.
    Picture3.Picture = Image7.Picture.value();
}

} // namespace lineforge::forms
