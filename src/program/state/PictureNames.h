#pragma once

#include <QStringView>

namespace lineforge
{

// What the name of a subject picture ends in, behind the record's number; files are found without regard to case.
inline constexpr QStringView SubjectPictureEnding = u"Sub.jpg";
// KEPT(GedcomWriterTest.WholeFile_AsItStandsOnDisk): where the name is told it has a capital J.
// Mended, GEDCOM files would name the picture otherwise than those written before.
inline constexpr QStringView ToldPictureEnding = u"Sub.Jpg";
// KEPT(RecordTransferTest.NoSuchRecord_IsToldWithTheNumberShownLast_AndThePictureStaysCopied): the name of a picture
// that a transfer makes has a small S.
// Mended, it would be named otherwise than those made before.
inline constexpr QStringView TransferredPictureEnding = u"sub.jpg";

} // namespace lineforge
