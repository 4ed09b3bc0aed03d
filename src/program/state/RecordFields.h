#pragma once

#include "platform/store/Fields.h"

#include <QStringView>

#include <array>

namespace lineforge
{

// What goes along when a whole record is copied over another: all fields but the record's number and its spouse's, in
// the order in which they are written.
inline constexpr std::array<QStringView, 23> CopyFieldList{
    Field::Surname,          Field::Forename,
    Field::Nationality,      Field::FatherRec,
    Field::MotherRec,        Field::BirthDate,
    Field::BirthPlace,       Field::Spouse,
    Field::Children,         Field::Education,
    Field::Profession,       Field::Deceased,
    Field::BirthCertificate, Field::MarriageCertificate,
    Field::DeathCertificate, Field::Notes,
    Field::Medical,          Field::Gender,
    Field::Maiden,           Field::Partner,
    Field::PrevChildren,     Field::Wedding,
    Field::WedDate,
};

} // namespace lineforge
