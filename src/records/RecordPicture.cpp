#include "records/RecordPicture.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

void ShowRecordPicture(Program& p, const QString& directory)
{
    p.Record.sCurFile = p.Form3->Label25.Caption;
    p.Record.sPicSuffix = u"Sub.jpg"_s;
    p.Record.sPicFile = p.Record.sCurFile + p.Record.sPicSuffix;
    try {
        p.Form3->Image1.Picture = p.Pictures.Load(p.Files, directory + p.Record.sPicFile);
    } catch (const RuntimeError&) {
        p.Form3->Image1.Picture = QImage();
    }
}

void ShowRecordPicture(Program& p)
{
    ShowRecordPicture(p, p.Branch.WorkDir + PathSeparator);
}

} // namespace lineforge
