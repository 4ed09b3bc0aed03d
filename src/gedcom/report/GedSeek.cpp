#include "gedcom/report/GedSeek.h"

#include "gedcom/report/GedFields.h"
#include "gedcom/report/GedSource.h"
#include "gedcom/report/ReportLines.h"

#include <algorithm>

namespace lineforge
{

namespace
{
constexpr char blank = ' ';

GedSource& SourceOf(const GedcomState& gedcom)
{
    if (!gedcom.Source)
        throw RuntimeError(ErrorNumber::BadFileNumber);
    return *gedcom.Source;
}

bool SeeksChild(const GedcomState& gedcom)
{
    return SameBytes(gedcom.sSeekFor, "CHIL");
}

// Its value is a reference that is looked for next, from outside of any record.
bool IsReference(QByteArrayView tag)
{
    return SameBytes(tag, "CHIL") || SameBytes(tag, "WIFE") || SameBytes(tag, "HUSB");
}

void TakeLine(GedcomState& gedcom, QByteArrayView line)
{
    gedcom.sGedLine = line.toByteArray();
    GedParseLine(gedcom);
}

// Leaves the state as if every line from `from` to `last` had been parsed.
void TakeLines(GedcomState& gedcom, const GedLines& lines, qsizetype from, qsizetype last)
{
    if (last < from)
        return;
    if (const qsizetype valued = lines.LastValued(last); valued >= from && valued < last)
        TakeLine(gedcom, lines.Text(valued));
    TakeLine(gedcom, lines.Text(last));
}

void TakeTail(GedcomState& gedcom, GedSource& source, const GedLines& lines)
{
    const bool hasTail = source.Line() <= lines.Count();
    source.GoToLine(lines.Count() + 1);
    gedcom.sGedLine = hasTail ? lines.Tail().toByteArray() : QByteArray();
    if (hasTail && lines.RunsOff())
        throw RuntimeError(ErrorNumber::InputPastEnd);
}

enum class Stretch { Complete, GivenUp, CutOff };

// What follows a "0" up to the end of its line.
Stretch ReadStretch(GedcomState& gedcom, GedSource& source, Integer16& scanState)
{
    while (!source.AtEnd()) {
        const char character = source.Next();
        if (IsLineEnd(character))
            return Stretch::Complete;
        if (scanState == GedRecord::Inside) {
            if (character == blank)
                return Stretch::GivenUp;
            gedcom.sGedValue += character;
        } else if (character == blank && !gedcom.sGedTag.isEmpty()) {
            scanState = GedRecord::Inside;
            gedcom.sGedValue += source.Next();
        } else if (scanState == GedRecord::Outside) {
            gedcom.sGedTag += character == blank ? source.Next() : character;
        }
    }
    return Stretch::CutOff;
}

bool SkipPast(GedSource& source, QByteArrayView level)
{
    while (!source.AtEnd()) {
        const char character = source.Next();
        if (level == QByteArrayView(&character, 1))
            return true;
    }
    return false;
}

// The free entries are empty texts, which an empty reference equals.
template <int Last>
void Remember(FixedArray<QByteArray, 0, Last>& list, Integer16& next, const QByteArray& reference)
{
    for (int index = 1; index <= Last; ++index)
        if (SameBytes(list[index], reference))
            return;
    list[next] = reference;
    next += 1;
}

// KEPT(GedIndexFileTest.ASource_GivesTheReferencesThatItsZerosLetSee): a record that is remembered leaves `ScanState`
// as it is, so that the stretch at the next "0" is given up.
// Mended, reports would have families that they miss now.
void TakeStretch(GedcomState& gedcom, Integer16& scanState)
{
    if (SameBytes(gedcom.sGedValue, "INDI"))
        Remember(gedcom.GedIndiList, gedcom.GedIndiNext, gedcom.sGedTag);
    else if (SameBytes(gedcom.sGedValue, "FAM"))
        Remember(gedcom.GedFamList, gedcom.GedFamNext, gedcom.sGedTag);
    else
        scanState = GedRecord::Outside;
}

void EmptyFields(GedcomState& gedcom)
{
    gedcom.sGedTag.clear();
    gedcom.sGedValue.clear();
}
} // namespace

void GedParseLine(GedcomState& gedcom)
{
    const GedFields fields = FieldsOf(gedcom.sGedLine);
    gedcom.sGedLevel = fields.Level.toByteArray();
    // A line that ends before its third character has no tag to put in the place of the last one's.
    if (gedcom.sGedLine.size() > 2)
        gedcom.sGedTag = fields.Tag.toByteArray();
    if (!fields.Value.isEmpty())
        gedcom.sGedValue = fields.Value.toByteArray();
    gedcom.sGedRest = fields.Rest.toByteArray();
    gedcom.sGedRest.removeIf(IsLineEnd);
}

void GedSeek(const GedReport& report)
{
    GedcomState& gedcom = report.State;
    gedcom.sGedLine.clear();
    gedcom.sGedValue.clear();
    GedSource& source = SourceOf(gedcom);
    const GedLines& lines = source.Lines();
    const qsizetype from = source.Line();
    const bool endsWithRecord = SeeksChild(gedcom) || report.Scratch.ScanState == GedRecord::Inside;
    const qsizetype record = endsWithRecord ? lines.NextRecord(from) : lines.Count();
    const qsizetype tagged = lines.NextTagged(gedcom.sSeekFor, from);
    const qsizetype stop = std::min(record, tagged);
    if (stop == lines.Count()) {
        TakeLines(gedcom, lines, from, stop - 1);
        TakeTail(gedcom, source, lines);
        return;
    }
    TakeLines(gedcom, lines, from, stop);
    source.GoToLine(stop + 1);
    if (stop == record && SeeksChild(gedcom)) {
        PutLine(report, ReportLine::Empty);
        report.Scratch.ScanState = GedRecord::Inside;
    } else if (stop == tagged) {
        report.Scratch.ScanState = IsReference(gedcom.sGedTag) ? GedRecord::Outside : GedRecord::Inside;
    }
}

void GedSeekChild(const GedReport& report, int times)
{
    GedSource& source = SourceOf(report.State);
    const GedLines& lines = source.Lines();
    // Seeks that find a line leave nothing behind that the next one doesn't set anew; only the last have to be made.
    qsizetype passed = 0;
    source.GoToLine(lines.BehindTagged(report.State.sSeekFor, source.Line(), times - 1, passed));
    for (int left = times - static_cast<int>(passed); left > 0; --left) {
        const bool nothingLeft = source.Line() > lines.Count();
        GedSeek(report);
        // Every further seek would leave the same.
        if (nothingLeft)
            return;
    }
}

bool GedIndexFile(GedcomState& gedcom, Integer16& scanState)
{
    GedSource& source = SourceOf(gedcom);
    while (SkipPast(source, gedcom.sGedLevel)) {
        switch (ReadStretch(gedcom, source, scanState)) {
        case Stretch::CutOff:
            return true;
        case Stretch::GivenUp:
            scanState = GedRecord::Outside;
            break;
        case Stretch::Complete:
            if (gedcom.GedHeadState == GedHead::NotSeen && !SameBytes(gedcom.sGedTag, "HEAD"))
                return false;
            gedcom.GedHeadState = GedHead::Good;
            TakeStretch(gedcom, scanState);
            break;
        }
        EmptyFields(gedcom);
    }
    return true;
}

} // namespace lineforge
