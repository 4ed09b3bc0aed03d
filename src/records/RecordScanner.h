#pragma once

#include "map/items/MapWork.h"
#include "map/subjects/SubjectPanel.h"
#include "program/state/RecordState.h"

namespace lineforge
{

class OtherPrograms;

// The record scanner: five buttons like those of a tape recorder, and a timer that steps through the records while one
// of the four moving ones is down. The map stays behind until the scan ends.

// A press of a moving button. Error 76 when the directory above the branch has gone.
void StartScan(const SubjectPictures& pictures, ScratchState& scratch, ScanMode mode);

// A press of the stop button: the map follows. Leaves the current directory above the branch, unlike a scan that has
// come to an end by itself.
void StopScan(const SubjectPanel& panel, const BoxWork& work);

// One step of the timer.
void TickScan(const SubjectPanel& panel, const BoxWork& work, const OtherPrograms& others);

} // namespace lineforge
