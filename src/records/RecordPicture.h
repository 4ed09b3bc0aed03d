#pragma once

#include "map/subjects/SubjectPanel.h"

namespace lineforge
{

// The current record's subject picture on the record form, from that directory, which ends in its separator. One that
// isn't there, or is no picture, leaves none; nothing is told.
void ShowRecordPicture(const SubjectPictures& pictures, const QString& directory);

// From the branch's own directory.
void ShowRecordPicture(const SubjectPictures& pictures);

// The picture that `sPicFile` names, in the same way.
void ShowNamedPicture(const SubjectPictures& pictures);

// After a step by the record form's own bar, which is on no way to anywhere: picture and panel go with it at once, also
// while another command, whose end would bring them, is still waiting.
void FollowStep(const SubjectPanel& panel);

} // namespace lineforge
