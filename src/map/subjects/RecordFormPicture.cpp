#include "map/subjects/RecordFormPicture.h"

#include "forms/Form3.h"
#include "map/subjects/SubjectPanel.h"
#include "platform/base/Text.h"
#include "program/branch/BranchPaths.h"

namespace lineforge
{

namespace
{
bool ShowsFormerPicture(const BranchState& branch, Window<forms::Form3>& recordForm)
{
    if (!recordForm.IsLoaded() || !recordForm->Visible || !recordForm->Data1.IsOpen())
        return false;
    const forms::Form3& form = *recordForm;
    return !SameText(form.Image1.Tag.value(), SubjectPictureFile(branch.WorkDir, form.Label25.Caption.Shown()));
}
} // namespace

// The tag names the file that the record's picture would be, also where that isn't there.
void PutRecordPicture(const BranchState& branch, Window<forms::Form3>& recordForm, const QImage& picture)
{
    Image& place = recordForm->Image1;
    place.Picture = picture;
    place.Tag = QString();
    try {
        place.Tag = SubjectPictureFile(branch.WorkDir, recordForm->Label25.Caption.value());
    } catch (const RuntimeError&) {
        // Nobody's, as long as the record can't be read.
    }
}

void FollowWithRecordPicture(const SubjectPictures& pictures)
{
    if (!ShowsFormerPicture(pictures.Branch, pictures.Form3))
        return;
    PartFromFormerRecordPicture(pictures.Branch, pictures.Form3);
    Image& place = pictures.Form3->Image1;
    const QString number = pictures.Form3->Label25.Caption.Shown();
    place.Tag = SubjectPictureFile(pictures.Branch.WorkDir, number);
    if (!number.isEmpty())
        place.Picture = PictureOrNone(pictures.Pictures, pictures.Files, place.Tag);
}

void PartFromFormerRecordPicture(const BranchState& branch, Window<forms::Form3>& recordForm)
{
    if (!ShowsFormerPicture(branch, recordForm))
        return;
    recordForm->Image1.Picture = QImage();
    recordForm->Image1.Tag = QString();
}

} // namespace lineforge
