#pragma once

#include <QStringView>

// The fields of a record, as the table of a branch names them. The store compares them without regard to case.
namespace lineforge::Field
{

inline constexpr QStringView File = u"File"; // the record's number: the branch's letter and three digits
inline constexpr QStringView Surname = u"Surname";
inline constexpr QStringView Forename = u"Forename";
inline constexpr QStringView BirthDate = u"BirthDate";
inline constexpr QStringView BirthPlace = u"BirthPlace";
inline constexpr QStringView Gender = u"Gender";
inline constexpr QStringView Nationality = u"Nationality";
inline constexpr QStringView Spouse = u"Spouse";
inline constexpr QStringView SpouseRec = u"SpouseRec"; // here and below: the number of that person's record
inline constexpr QStringView FatherRec = u"FatherRec";
inline constexpr QStringView MotherRec = u"MotherRec";
inline constexpr QStringView Children = u"Children";
inline constexpr QStringView PrevChildren = u"PrevChildren";
inline constexpr QStringView Partner = u"Partner";
inline constexpr QStringView Maiden = u"Maiden";
inline constexpr QStringView Wedding = u"Wedding"; // its place
inline constexpr QStringView WedDate = u"WedDate";
inline constexpr QStringView Education = u"Education";
inline constexpr QStringView Profession = u"Profession";
inline constexpr QStringView Deceased = u"Deceased";
inline constexpr QStringView Notes = u"Notes";     // "Notes(2)" on the windows
inline constexpr QStringView Medical = u"Medical"; // "Notes(1)"
inline constexpr QStringView BirthCertificate = u"BirthCertificate";
inline constexpr QStringView MarriageCertificate = u"MarriageCertificate";
inline constexpr QStringView DeathCertificate = u"DeathCertificate";

} // namespace lineforge::Field
