#include "forms/Form3.h"

#include "platform/drawing/TransportFaces.h"
#include "platform/store/Fields.h"

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
    Data1.Bind(Label25, Field::File.toString());

    struct BoundBox {
        TextBox& Box;
        QStringView Field;
        char16_t AccessKey; // none of those that the menus and buttons have
    };
    // "Notes(1)" is the field Medical and "Notes(2)" the field Notes; reports and the clipboard keep that pairing.
    const BoundBox bound[] = {
        {Text1, Field::Nationality, u'A'},
        {Text2, Field::Surname, u'U'},
        {Text3, Field::Forename, u'O'},
        {Text4, Field::BirthDate, u'B'},
        {Text5, Field::BirthPlace, u'L'},
        {Text6, Field::Spouse, u'P'},
        {Text7, Field::Children, u'C'},
        {Text8, Field::Education, u'J'},
        {Text9, Field::Profession, u'Y'},
        {Text10, Field::Deceased, u'D'},
        {Text11, Field::Notes, u'2'},
        {Text12, Field::Medical, u'1'},
        {Text13, Field::BirthCertificate, u'3'},
        {Text14, Field::MarriageCertificate, u'4'},
        {Text15, Field::DeathCertificate, u'5'},
        {Text16, Field::Maiden, u'I'},
        {Text17, Field::Partner, u'K'},
        {Text18, Field::PrevChildren, u'V'},
        {Text19, Field::Wedding, u'W'},
        {Text20, Field::WedDate, u'X'},
        {Text21, Field::FatherRec, u'R'},
        {Text22, Field::MotherRec, u'M'},
        {Text23, Field::Gender, u'N'},
        {Text24, Field::SpouseRec, u'Q'},
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
