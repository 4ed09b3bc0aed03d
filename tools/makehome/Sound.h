#pragma once

#include <QByteArray>
#include <QString>

namespace lineforge::makehome
{

// All of them return a complete wave file: 16-bit mono at 22050 Hz.
QByteArray ChimeSound();
QByteArray ClickSound();

// A tune is written as notes with their beats ("G4:1 F#4:0.5 -:1", a dash for a rest) and beats per minute. Returns an
// empty array if the notes cannot be read.
QByteArray TuneSound(const QString& notes, int beatsPerMinute);

} // namespace lineforge::makehome
