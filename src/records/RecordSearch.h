#pragma once

#include "program/state/Program.h"

#include <array>

namespace lineforge
{

// What the search by word looks at, in the order in which it is tested. The number, the gender and the spouse's number
// are left out.
inline constexpr std::array<QStringView, 22> WordFields{
    u"FatherRec",        u"MotherRec",
    u"Surname",          u"Forename",
    u"Nationality",      u"BirthDate",
    u"BirthPlace",       u"Spouse",
    u"Children",         u"Education",
    u"Profession",       u"Deceased",
    u"BirthCertificate", u"MarriageCertificate",
    u"DeathCertificate", u"Notes",
    u"Medical",          u"Maiden",
    u"PrevChildren",     u"Partner",
    u"Wedding",          u"WedDate",
};

// The four searches of the record form. Each asks for a text, walks all records from the first, case ignored, and
// leaves the cursor on a hit, or behind the last record. The map isn't told.
void SearchByDataRef(Program& p);

// With wildcards; each hit asks whether to go on.
void SearchBySurname(Program& p);
void SearchByBirthPlace(Program& p);
void SearchByWord(Program& p);

// Back to the first record, with its picture.
void ShowFirstRecord(Program& p);

} // namespace lineforge
