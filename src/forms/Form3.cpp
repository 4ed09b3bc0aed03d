#include "forms/Form3.h"

namespace lineforge::forms
{

using namespace Qt::StringLiterals;

Form3::Form3() : Form(u"Form3", u"Family Tree Data", {11880, 7500})
{
    Data1.RecordSource = u"Tree99"_s;
    Data1.Bind(Label25, u"File"_s);

    struct BoundBox {
        TextBox& Box;
        QStringView Field;
    };
    // "Notes(1)" is the field Medical and "Notes(2)" the field Notes; reports and the clipboard keep that pairing.
    const BoundBox bound[] = {
        {Text1, u"Nationality"},
        {Text2, u"Surname"},
        {Text3, u"Forename"},
        {Text4, u"BirthDate"},
        {Text5, u"BirthPlace"},
        {Text6, u"Spouse"},
        {Text7, u"Children"},
        {Text8, u"Education"},
        {Text9, u"Profession"},
        {Text10, u"Deceased"},
        {Text11, u"Notes"},
        {Text12, u"Medical"},
        {Text13, u"BirthCertificate"},
        {Text14, u"MarriageCertificate"},
        {Text15, u"DeathCertificate"},
        {Text16, u"Maiden"},
        {Text17, u"Partner"},
        {Text18, u"PrevChildren"},
        {Text19, u"Wedding"},
        {Text20, u"WedDate"},
        {Text21, u"FatherRec"},
        {Text22, u"MotherRec"},
        {Text23, u"Gender"},
        {Text24, u"SpouseRec"},
    };
    for (const BoundBox& each : bound)
        Data1.Bind(each.Box, each.Field.toString());
}

} // namespace lineforge::forms
