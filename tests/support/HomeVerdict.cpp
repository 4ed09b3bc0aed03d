#include "support/HomeVerdict.h"

#include "check/HomeCheck.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

QStringList FaultsOf(const QString& home, Leftovers leftovers)
{
    QStringList faults;
    for (const check::Finding& finding : check::CheckHome(home).Findings) {
        const bool passes = leftovers == Leftovers::Pass && finding.Kind == check::Kind::Leftover;
        if (!check::IsNote(finding.Kind) && !passes)
            faults += finding.File + u": "_s + finding.Record + u": " + finding.Text;
    }
    return faults;
}

} // namespace lineforge
