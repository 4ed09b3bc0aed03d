#pragma once

#include <QString>

namespace lineforge
{

// A text of the record store, to the last character: the toolkit would drop a first one that is a byte order mark.
QString FromUtf8(QByteArrayView utf8);

// The one comparison of texts in the program: whole texts, case ignored.
bool SameText(QStringView a, QStringView b);

// The text without differences of case: two texts that are the same have equal ones.
QString Folded(QStringView text);

// SameText with a text of the record store, without building a string where it is ASCII.
bool SameText(QByteArrayView utf8, QStringView text);

// Less than, equal to or greater than zero, the order that goes with SameText; for two texts of the record store.
int CompareText(QByteArrayView a, QByteArrayView b);

} // namespace lineforge
