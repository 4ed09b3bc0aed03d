#pragma once

#include "program/state/ScratchState.h"

#include <QString>
#include <QStringList>

namespace lineforge
{

// A long value as lines of a report: below 80 characters one line, else cut behind the last blank of the first 80,
// again and again. One blank is added to the value beforehand, so that the last line ends in it, as the others end in
// theirs; line breaks count as any other character. A run without a blank isn't cut: its line is as long as it. A
// cut at the very end leaves an empty last line. `IdxA` is left at the length of the last line, `LenScratch` at 80.
QStringList Wrapped(ScratchState& scratch, const QString& value);

} // namespace lineforge
