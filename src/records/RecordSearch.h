#pragma once

#include "map/subjects/SubjectPanel.h"
#include "platform/store/Fields.h"
#include "program/state/ScratchState.h"

#include <array>

namespace lineforge
{

class EventLoop;

// What the search by word looks at, in the order in which it is tested. The number, the gender and the spouse's number
// are left out.
inline constexpr std::array<QStringView, 22> WordFields{
    Field::FatherRec,        Field::MotherRec,
    Field::Surname,          Field::Forename,
    Field::Nationality,      Field::BirthDate,
    Field::BirthPlace,       Field::Spouse,
    Field::Children,         Field::Education,
    Field::Profession,       Field::Deceased,
    Field::BirthCertificate, Field::MarriageCertificate,
    Field::DeathCertificate, Field::Notes,
    Field::Medical,          Field::Maiden,
    Field::PrevChildren,     Field::Partner,
    Field::Wedding,          Field::WedDate,
};

// The four searches of the record form. Each asks for a text, walks all records from the first, case ignored, and
// leaves the cursor on a hit, or behind the last record. The map isn't told.
void SearchByDataRef(const SubjectPictures& pictures, const ScratchState& scratch);

// With wildcards; each hit asks whether to go on.
void SearchBySurname(const SubjectPictures& pictures, const ScratchState& scratch, EventLoop& loop);
void SearchByBirthPlace(const SubjectPictures& pictures, const ScratchState& scratch, EventLoop& loop);
void SearchByWord(const SubjectPictures& pictures, const ScratchState& scratch, EventLoop& loop);

// Back to the first record, with its picture.
void ShowFirstRecord(const SubjectPictures& pictures, const ScratchState& scratch);

} // namespace lineforge
