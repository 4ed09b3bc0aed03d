#include "gallery/PageRecord.h"

#include "forms/Form3.h"
#include "gallery/GalleryFile.h"
#include "platform/base/Text.h"

namespace lineforge
{

bool IsPageOfRecord(const GalleryState& gallery, const BranchState& branch, Window<forms::Form3>& recordForm)
{
    return gallery.PageDirectory == GalleryDirectory(branch.WorkDir) &&
           SameText(gallery.PageRecord, recordForm->Label25.Caption.value());
}

void TakePageNames(GalleryState& gallery, const BranchState& branch, Window<forms::Form3>& recordForm)
{
    if (!recordForm.IsLoaded() || !IsPageOfRecord(gallery, branch, recordForm))
        return;
    gallery.PageForename = recordForm->Text3.Text;
    gallery.PageSurname = recordForm->Text2.Text;
}

} // namespace lineforge
