#include "check/LinkCheck.h"

#include "program/branch/BranchPaths.h"

namespace lineforge::check
{

using namespace Qt::StringLiterals;

namespace
{
void CheckLink(Home& home, const Branch& branch, const Record& record, std::size_t link)
{
    const QString& number = record.Links[link];
    if (!IsLink(number) || home.Leads(branch, number))
        return;
    home.Add(Kind::Link, home.Files.Resolve(DatabasePath(branch.Path)),
             linkFields[link] + u" leads to "_s + number + u", " + home.WhyNot(branch, number), record.Number);
}
} // namespace

void CheckLinks(Home& home, const Branch& branch)
{
    if (!branch.Records)
        return;
    for (const Record& record : *branch.Records)
        for (std::size_t link = 0; link < linkFields.size(); ++link)
            CheckLink(home, branch, record, link);
}

} // namespace lineforge::check
