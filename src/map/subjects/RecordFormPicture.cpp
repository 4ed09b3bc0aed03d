#include "map/subjects/RecordFormPicture.h"

#include "forms/Form3.h"
#include "map/subjects/SubjectPanel.h"
#include "platform/base/Text.h"
#include "program/branch/BranchPaths.h"

namespace lineforge
{

namespace
{
bool ShowsFormerPicture(Program& p)
{
    if (!p.Form3.IsLoaded() || !p.Form3->Visible || !p.Form3->Data1.IsOpen())
        return false;
    const forms::Form3& form = *p.Form3;
    return !SameText(form.Image1.Tag.value(), SubjectPictureFile(p.Branch.WorkDir, form.Label25.Caption.Shown()));
}
} // namespace

// The tag names the file that the record's picture would be, also where that isn't there.
void PutRecordPicture(Program& p, const QImage& picture)
{
    Image& place = p.Form3->Image1;
    place.Picture = picture;
    place.Tag = QString();
    try {
        place.Tag = SubjectPictureFile(p.Branch.WorkDir, p.Form3->Label25.Caption.value());
    } catch (const RuntimeError&) {
        // Nobody's, as long as the record can't be read.
    }
}

void FollowWithRecordPicture(Program& p)
{
    if (!ShowsFormerPicture(p))
        return;
    PartFromFormerRecordPicture(p);
    Image& place = p.Form3->Image1;
    const QString number = p.Form3->Label25.Caption.Shown();
    place.Tag = SubjectPictureFile(p.Branch.WorkDir, number);
    if (!number.isEmpty())
        place.Picture = PictureOrNone(p, place.Tag);
}

void PartFromFormerRecordPicture(Program& p)
{
    if (!ShowsFormerPicture(p))
        return;
    p.Form3->Image1.Picture = QImage();
    p.Form3->Image1.Tag = QString();
}

} // namespace lineforge
