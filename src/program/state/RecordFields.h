#pragma once

#include <QStringView>

#include <array>

namespace lineforge
{

// What goes along when a whole record is copied over another: all fields but the record's number and its spouse's, in
// the order in which they are written.
inline constexpr std::array<QStringView, 23> CopyFieldList{
    u"Surname",          u"Forename",
    u"Nationality",      u"FatherRec",
    u"MotherRec",        u"BirthDate",
    u"BirthPlace",       u"Spouse",
    u"Children",         u"Education",
    u"Profession",       u"Deceased",
    u"BirthCertificate", u"MarriageCertificate",
    u"DeathCertificate", u"Notes",
    u"Medical",          u"Gender",
    u"Maiden",           u"Partner",
    u"PrevChildren",     u"Wedding",
    u"WedDate",
};

} // namespace lineforge
