#pragma once

#include "program/state/BranchState.h"
#include "program/state/GalleryState.h"
#include "program/state/Windows.h"

namespace lineforge
{

// Whether the page on show is that of the record form's record: behind the window the cursor may have gone on.
bool IsPageOfRecord(const GalleryState& gallery, const BranchState& branch, Window<forms::Form3>& recordForm);

// Keeps the names of the page's record, which the captions tell, as long as the record form shows them.
void TakePageNames(GalleryState& gallery, const BranchState& branch, Window<forms::Form3>& recordForm);

} // namespace lineforge
