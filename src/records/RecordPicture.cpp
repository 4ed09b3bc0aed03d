#include "records/RecordPicture.h"

#include "forms/Form3.h"
#include "map/subjects/RecordFormPicture.h"
#include "map/subjects/SubjectPanel.h"
#include "program/branch/BranchPaths.h"
#include "program/state/PictureNames.h"

namespace lineforge
{

void ShowRecordPicture(const SubjectPictures& pictures, const QString& directory)
{
    pictures.Record.sCurFile = pictures.Form3->Label25.Caption;
    pictures.Record.sPicSuffix = SubjectPictureEnding.toString();
    pictures.Record.sPicFile = pictures.Record.sCurFile + pictures.Record.sPicSuffix;
    PutRecordPicture(pictures.Branch, pictures.Form3,
                     PictureOrNone(pictures.Pictures, pictures.Files, directory + pictures.Record.sPicFile));
}

void ShowRecordPicture(const SubjectPictures& pictures)
{
    ShowRecordPicture(pictures, pictures.Branch.WorkDir + PathSeparator);
}

void ShowNamedPicture(const SubjectPictures& pictures)
{
    const QString file = pictures.Branch.WorkDir + PathSeparator + pictures.Record.sPicFile;
    PutRecordPicture(pictures.Branch, pictures.Form3, PictureOrNone(pictures.Pictures, pictures.Files, file));
    // It names whoever it was put together for.
    pictures.Form3->Image1.Tag = file;
}

void FollowStep(const SubjectPanel& panel)
{
    panel.Form3->Data1.Settle();
    FollowSubject(panel);
    FollowWithRecordPicture(panel);
}

} // namespace lineforge
