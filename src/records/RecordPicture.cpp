#include "records/RecordPicture.h"

#include "program/BranchPaths.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// What stood there before may be somebody else.
void LoadOrEmpty(Program& p, const QString& file)
{
    try {
        p.Form3->Image1.Picture = p.Pictures.Load(p.Files, file);
    } catch (const RuntimeError&) {
        p.Form3->Image1.Picture = QImage();
    }
}
} // namespace

void ShowRecordPicture(Program& p, const QString& directory)
{
    p.Record.sCurFile = p.Form3->Label25.Caption;
    p.Record.sPicSuffix = u"Sub.jpg"_s;
    p.Record.sPicFile = p.Record.sCurFile + p.Record.sPicSuffix;
    LoadOrEmpty(p, directory + p.Record.sPicFile);
}

void ShowRecordPicture(Program& p)
{
    ShowRecordPicture(p, p.Branch.WorkDir + PathSeparator);
}

void ShowNamedPicture(Program& p)
{
    LoadOrEmpty(p, p.Branch.WorkDir + PathSeparator + p.Record.sPicFile);
}

void FollowWithPicture(Program& p)
{
    if (p.Form3.IsLoaded() && p.Form3->Visible && p.Form3->Data1.IsOpen())
        LoadOrEmpty(p, SubjectPictureFile(p.Branch.WorkDir, p.Form3->Label25.Caption));
}

} // namespace lineforge
