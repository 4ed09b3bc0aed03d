#include "records/RecordPicture.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// What stood there before may be somebody else.
void LoadOrEmpty(Program& p, const QString& directory)
{
    try {
        p.Form3->Image1.Picture = p.Pictures.Load(p.Files, directory + p.Record.sPicFile);
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
    LoadOrEmpty(p, directory);
}

void ShowRecordPicture(Program& p)
{
    ShowRecordPicture(p, p.Branch.WorkDir + PathSeparator);
}

void ShowNamedPicture(Program& p)
{
    LoadOrEmpty(p, p.Branch.WorkDir + PathSeparator);
}

} // namespace lineforge
