#pragma once

#include "check/Home.h"

namespace lineforge::check
{

// The pictures of a branch's people.
void CheckSubjectPictures(Home& home, const Branch& branch);

// Whether the program can show that file as a picture; a finding of that kind where not.
void RequirePicture(Home& home, Kind kind, const QString& path, const QString& record);

} // namespace lineforge::check
