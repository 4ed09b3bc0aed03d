#pragma once

#include "Story.h"

namespace lineforge::tour
{

// A stop is a file of its own and a line in the story.
Steps SplashStop();
Steps EmptyWindowStop();
Steps OpenStop();
Steps ScrollStop();
Steps CoordinatesStop();
Steps SubjectsStop();
Steps RecordsStop();
Steps ScannerStop();
Steps SearchStop();
Steps AddRecordStop();
Steps GalleryStop();
Steps GedcomStop();
Steps OutputStop();
Steps CompareStop();
Steps LineageStop();
Steps NewBranchStop();
Steps DrawTreeStop();
Steps MapSubjectsStop();
Steps DuplicateNameStop();
Steps OpenOtherStop();
Steps HelpStop();
Steps CloseBranchStop();
Steps InterchangeStop();
Steps ChangeDirectoryStop();
Steps ExitStop();
Steps WithoutSplashStop();

} // namespace lineforge::tour
