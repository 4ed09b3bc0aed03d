#include "output/Wrap.h"

namespace lineforge
{

namespace
{
constexpr int width = 80;

// Where a text that is too long for a line is cut. There is a blank at least at its end.
qsizetype CutOf(QStringView text)
{
    const qsizetype blank = text.first(width).lastIndexOf(u' ');
    return (blank >= 0 ? blank : text.indexOf(u' ', width)) + 1;
}
} // namespace

// KEPT(WrapTest.Value_BecomesTheseLines): counts in the shared indexes, and leaves the length of the last piece to a
// lineage, which begins there.
// Mended, a lineage after a report of notes would begin at its first row.
QStringList Wrapped(ScratchState& scratch, const QString& value)
{
    const QString text = value + u' ';
    QStringView rest(text);
    QStringList lines;
    for (;;) {
        scratch.IdxA = static_cast<int>(rest.size());
        scratch.LenScratch = width;
        if (rest.size() < width)
            break;
        scratch.LenScratch = static_cast<int>(CutOf(rest));
        lines.push_back(rest.first(scratch.LenScratch).toString());
        rest = rest.sliced(scratch.LenScratch);
    }
    // KEPT(WrapTest.Value_BecomesTheseLines): a text that has been cut at its very end leaves an empty line behind.
    // Mended, notes of that length would take a line less than in earlier reports.
    lines.push_back(rest.toString());
    return lines;
}

} // namespace lineforge
