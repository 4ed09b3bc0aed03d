#include "check/PictureCheck.h"

#include "platform/base/RuntimeError.h"
#include "platform/base/Text.h"
#include "platform/drawing/PictureFile.h"
#include "program/branch/BranchPaths.h"
#include "program/state/PictureNames.h"

#include <algorithm>

namespace lineforge::check
{

using namespace Qt::StringLiterals;

namespace
{
// A decoder that knows how little is wanted saves itself most of the work.
QSize Smaller(QSize size)
{
    constexpr int side = 64;
    return size.width() <= side && size.height() <= side ? size : QSize(side, side);
}

// The numbers of the records that have a picture, folded.
QSet<QString> CheckPictures(Home& home, const Branch& branch)
{
    QSet<QString> shown;
    for (const QString& name : home.FilesOf(branch.Path)) {
        if (!SameText(name.right(SubjectPictureEnding.size()), SubjectPictureEnding))
            continue;
        const QString path = branch.Path + PathSeparator + name;
        const QString number = name.chopped(SubjectPictureEnding.size());
        ++home.Report.Seen.Pictures;
        shown.insert(Folded(number));
        if (branch.Records && !branch.Numbers.contains(Folded(number)))
            home.Add(Kind::SubjectPicture, path, u"the picture of a record that isn't there"_s, number);
        RequirePicture(home, Kind::SubjectPicture, path, number);
    }
    return shown;
}
} // namespace

void CheckSubjectPictures(Home& home, const Branch& branch)
{
    const QSet<QString> shown = CheckPictures(home, branch);
    if (!branch.Records)
        return;
    QStringList without;
    for (const Record& record : *branch.Records)
        if (!record.Number.isEmpty() && !shown.contains(Folded(record.Number)))
            without += record.Number;
    if (!without.isEmpty())
        home.Add(Kind::WithoutPicture, branch.Path, u"records without a picture: "_s + without.join(u' '));
}

void RequirePicture(Home& home, Kind kind, const QString& path, const QString& record)
{
    if (!home.RequireReadable(path))
        return;
    try {
        DecodePicture(path, Smaller);
    } catch (const RuntimeError&) {
        home.Add(kind, path, u"no picture that can be shown"_s, record);
    }
}

} // namespace lineforge::check
