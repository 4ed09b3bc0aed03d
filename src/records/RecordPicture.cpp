#include "records/RecordPicture.h"

#include "forms/Form3.h"
#include "map/subjects/RecordFormPicture.h"
#include "map/subjects/SubjectPanel.h"
#include "program/branch/BranchPaths.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

void ShowRecordPicture(Program& p, const QString& directory)
{
    p.Record.sCurFile = p.Form3->Label25.Caption;
    p.Record.sPicSuffix = u"Sub.jpg"_s;
    p.Record.sPicFile = p.Record.sCurFile + p.Record.sPicSuffix;
    PutRecordPicture(p, PictureOrNone(p, directory + p.Record.sPicFile));
}

void ShowRecordPicture(Program& p)
{
    ShowRecordPicture(p, p.Branch.WorkDir + PathSeparator);
}

void ShowNamedPicture(Program& p)
{
    const QString file = p.Branch.WorkDir + PathSeparator + p.Record.sPicFile;
    PutRecordPicture(p, PictureOrNone(p, file));
    // It names whoever it was put together for.
    p.Form3->Image1.Tag = file;
}

void FollowStep(Program& p)
{
    p.Form3->Data1.Settle();
    FollowSubject(p);
    FollowWithRecordPicture(p);
}

} // namespace lineforge
