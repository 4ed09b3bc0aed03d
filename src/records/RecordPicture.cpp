#include "records/RecordPicture.h"

#include "map/RecordFormPicture.h"
#include "program/BranchPaths.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// What stood there before may be somebody else.
void LoadOrEmpty(Program& p, const QString& file)
{
    QImage picture;
    try {
        picture = p.Pictures.Load(p.Files, file);
    } catch (const RuntimeError&) {
        // Its place stays empty.
    }
    PutRecordPicture(p, picture);
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
    const QString file = p.Branch.WorkDir + PathSeparator + p.Record.sPicFile;
    LoadOrEmpty(p, file);
    // It names whoever it was put together for.
    p.Form3->Image1.Tag = file;
}

} // namespace lineforge
