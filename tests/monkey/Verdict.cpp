#include "monkey/Verdict.h"

#include <algorithm>

namespace lineforge::monkey
{

using namespace Qt::StringLiterals;

namespace
{
// Numbers are typed as the user likes. A deleted record leaves its gallery, its second box, and its boxes on maps of
// other branches and on the one that an imported branch came with; a picture goes along to a record that is found not
// to be there only then. All that is meant to be.
bool MayBeTheUsers(const check::Finding& finding)
{
    using check::Kind;
    return check::IsNote(finding.Kind) || finding.Kind == Kind::Link || finding.Kind == Kind::Box ||
           finding.Text.contains(u"of a record that isn't there");
}

bool IsUnlisted(const check::Finding& finding)
{
    return finding.Kind == check::Kind::Registry && finding.Text.contains(u"isn't in the list of branches");
}

// A journal that the engine had not got as far as to fill stays until the next change.
bool IsCutOff(const check::Finding& finding)
{
    return (finding.Kind == check::Kind::Leftover && finding.File.endsWith(u"-journal")) ||
           (finding.Kind == check::Kind::GalleryFile && finding.Text.startsWith(u"left by a swap of two tiles"));
}

// A branch takes what is wrong with it along to another directory, and a new record its number from those before it.
bool AreSame(const check::Finding& one, const check::Finding& other)
{
    return one.Kind == other.Kind && one.File.section(u'/', -1) == other.File.section(u'/', -1) &&
           (one.Record == other.Record || one.Kind == check::Kind::RecordNumber) && one.Text == other.Text;
}
} // namespace

QStringList NewFindings(const check::Report& before, const check::Report& now)
{
    QStringList found;
    for (const check::Finding& finding : now.Findings)
        if (!MayBeTheUsers(finding) &&
            std::ranges::none_of(before.Findings, [&](const auto& known) { return AreSame(known, finding); }))
            found += u"%1 %2: %3"_s.arg(finding.File, finding.Record, finding.Text);
    return found;
}

check::Report WithoutChosen(check::Report report, const std::function<bool(const QString&)>& isTheUsers)
{
    std::erase_if(report.Findings, [&](const check::Finding& finding) {
        return (finding.Kind == check::Kind::SubjectPicture || finding.Kind == check::Kind::GalleryFile) &&
               finding.Text.startsWith(u"no ") && isTheUsers(finding.File);
    });
    return report;
}

check::Report WithoutExports(check::Report report, const OfDirectory& isExport, const OfDirectory& isEmpty)
{
    std::erase_if(report.Findings, [&](const check::Finding& finding) {
        const QString directory = finding.File.section(u'/', 0, 0);
        return isExport(directory) && (IsUnlisted(finding) || isEmpty(directory));
    });
    return report;
}

check::Report WithoutUnfinished(check::Report report, const OfDirectory& mustBeListed)
{
    QStringList unfinished;
    for (const check::Finding& finding : report.Findings)
        if (IsUnlisted(finding) && !mustBeListed(finding.File))
            unfinished += finding.File;
    std::erase_if(report.Findings, [&](const check::Finding& finding) {
        return unfinished.contains(finding.File.section(u'/', 0, 0)) || IsCutOff(finding);
    });
    return report;
}

} // namespace lineforge::monkey
