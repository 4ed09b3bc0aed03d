#include "check/Findings.h"

#include <algorithm>

namespace lineforge::check
{

bool IsNote(Kind kind)
{
    return kind >= Kind::OldDatabase;
}

Verdict VerdictOf(const Report& report)
{
    const auto isUnread = [](const Finding& finding) { return finding.Kind == Kind::Unread; };
    const auto isFault = [](const Finding& finding) { return !IsNote(finding.Kind); };
    if (std::ranges::any_of(report.Findings, isUnread))
        return Verdict::NotWhole;
    return std::ranges::any_of(report.Findings, isFault) ? Verdict::Findings : Verdict::NothingFound;
}

} // namespace lineforge::check
