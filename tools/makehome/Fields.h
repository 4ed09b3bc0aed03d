#pragma once

#include <QStringView>

#include <array>
#include <cstddef>

namespace lineforge::makehome
{

// The columns of Tree99 in table order.
enum class Field : std::size_t {
    File,
    Surname,
    Forename,
    BirthDate,
    BirthPlace,
    Gender,
    Nationality,
    Spouse,
    SpouseRec,
    FatherRec,
    MotherRec,
    Children,
    PrevChildren,
    Partner,
    Maiden,
    Wedding,
    WedDate,
    Education,
    Profession,
    Deceased,
    Notes,
    Medical,
    BirthCertificate,
    MarriageCertificate,
    DeathCertificate
};

struct FieldSpec {
    QStringView name;
    int limit;
};

inline constexpr std::size_t fieldCount = 25;

inline constexpr std::array<FieldSpec, fieldCount> fieldSpecs{{
    {u"File", 4},
    {u"Surname", 30},
    {u"Forename", 30},
    {u"BirthDate", 30},
    {u"BirthPlace", 100},
    {u"Gender", 30},
    {u"Nationality", 100},
    {u"Spouse", 100},
    {u"SpouseRec", 30},
    {u"FatherRec", 30},
    {u"MotherRec", 30},
    {u"Children", 100},
    {u"PrevChildren", 100},
    {u"Partner", 30},
    {u"Maiden", 30},
    {u"Wedding", 100},
    {u"WedDate", 100},
    {u"Education", 100},
    {u"Profession", 100},
    {u"Deceased", 100},
    {u"Notes", 255},
    {u"Medical", 255},
    {u"BirthCertificate", 30},
    {u"MarriageCertificate", 30},
    {u"DeathCertificate", 30},
}};

} // namespace lineforge::makehome
