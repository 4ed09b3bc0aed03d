#include "check/HomeCheck.h"

#include "check/DatabaseCheck.h"
#include "check/GalleryCheck.h"
#include "check/Home.h"
#include "check/LeftoverCheck.h"
#include "check/LinkCheck.h"
#include "check/MapCheck.h"
#include "check/PictureCheck.h"
#include "check/RegistryCheck.h"

#include <QFileInfo>

#include <algorithm>
#include <ranges>

namespace lineforge::check
{

using namespace Qt::StringLiterals;

namespace
{
// A directory that nobody can look into is told once; who is in it can't be told then.
void FindClosed(Home& home)
{
    for (Branch& branch : home.Branches) {
        const QFileInfo place(branch.Path);
        branch.IsClosed = !place.isReadable() || !place.isExecutable();
        if (branch.IsClosed)
            home.Add(Kind::Unread, branch.Path, u"this directory can't be read"_s);
    }
}

void CheckBranch(Home& home, Branch& branch)
{
    CheckLinks(home, branch);
    CheckMaps(home, branch);
    CheckSubjectPictures(home, branch);
    CheckGallery(home, branch);
}
} // namespace

Report CheckHome(const QString& directory, std::chrono::milliseconds patience)
{
    Home home(directory, patience);
    CheckRegistry(home);
    FindClosed(home);
    auto open = home.Branches | std::views::filter([](const Branch& branch) { return !branch.IsClosed; });
    for (Branch& branch : open)
        CheckDatabase(home, branch);
    for (Branch& branch : open)
        CheckBranch(home, branch);
    for (const Branch& branch : open)
        TellWithoutBox(home, branch);
    CheckLeftovers(home);
    home.Report.Seen.Branches = static_cast<int>(home.Branches.size());
    std::ranges::stable_sort(home.Report.Findings, {}, &Finding::File);
    return home.Report;
}

} // namespace lineforge::check
