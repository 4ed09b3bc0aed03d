#include "gallery/PageRecord.h"

#include "forms/Form3.h"
#include "gallery/GalleryFile.h"
#include "platform/base/Text.h"

namespace lineforge
{

bool IsPageOfRecord(Program& p)
{
    return p.Gallery.PageDirectory == GalleryDirectory(p.Branch.WorkDir) &&
           SameText(p.Gallery.PageRecord, p.Form3->Label25.Caption.value());
}

void TakePageNames(Program& p)
{
    if (!p.Form3.IsLoaded() || !IsPageOfRecord(p))
        return;
    p.Gallery.PageForename = p.Form3->Text3.Text;
    p.Gallery.PageSurname = p.Form3->Text2.Text;
}

} // namespace lineforge
