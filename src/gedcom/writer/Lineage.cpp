#include "gedcom/writer/Lineage.h"

#include "forms/Form12.h"
#include "forms/Form3.h"
#include "gedcom/writer/LineageLines.h"
#include "platform/base/Text.h"
#include "platform/store/Fields.h"
#include "program/branch/BranchPaths.h"
#include "program/branch/WorkDatabase.h"
#include "program/ui/Meanwhile.h"
#include "program/ui/ProgressPanel.h"

#include <tuple>

namespace lineforge
{

using namespace Qt::StringLiterals;
using namespace LineageColumn;

namespace
{
using Row = LineageState::Row;
constexpr int offspring = 6;

// No father or no mother, in the first and the third section; the fourth has an empty text for that.
const QString BlankRec(4, u' ');

Row& RowAt(Program& p, int row)
{
    return p.Lineage.LineageArr[row];
}

void Print(Program& p, QStringView line)
{
    p.Form12->Picture1.Print(line);
}

void PrintAndStep(Program& p, QStringView line)
{
    Print(p, line);
    LineageStep(p);
}

bool SeekRecord(Program& p)
{
    return Records(p.Form3).Seek(Field::File, p.Record.sCurFile);
}

// Of the record that was found.
void TakeParents(Program& p, Row& row, const QString& none)
{
    const Recordset& records = Records(p.Form3);
    row[Pa] = records.Value(Field::FatherRec).value_or(none);
    row[Ma] = records.Value(Field::MotherRec).value_or(none);
}

// SECTION1. The line goes on to the father.
// KEPT(LineageTest.StartWithAMotherOnly_HasARowOfBlanksBehindIt_AndTheOffspringOfBlanks): a mother without a father
// isn't followed, but the line has one more row then, of blanks.
// Mended, the count in the file would be another for such a line.
void FillLine(Program& p)
{
    Print(p, u"SECTION1:First fill array with lineage individuals");
    int& row = p.Scratch.LenScratch;
    row = 0;
    p.Record.sCurFile = RowAt(p, row)[Indi] = p.Form12->Text7.Text.value();
    while (SeekRecord(p)) {
        Row& individual = RowAt(p, row);
        TakeParents(p, individual, BlankRec);
        Print(p, QString(u"Rec " + individual[Indi] + u" Pa " + individual[Pa] + u" Ma " + individual[Ma]));
        if (individual[Pa] == BlankRec && individual[Ma] == BlankRec)
            break;
        ++row;
        p.Record.sCurFile = RowAt(p, row)[Indi] = individual[Pa];
    }
    p.Lineage.sLineageCount = QString::number(row + 1);
}

// Whoever has `sCurFile` for a father, as many as there are cells left.
void FindOffspring(Program& p, Row& row)
{
    int& count = p.Scratch.IdxA;
    Meanwhile meanwhile(p.Loop);
    Recordset& records = Records(p.Form3);
    for (records.MoveFirst(); !records.Eof(); records.MoveNext()) {
        meanwhile.KeepPainted();
        if (!records.FieldIs(Field::FatherRec, p.Record.sCurFile))
            continue;
        if (count >= offspring)
            break;
        row[Sib1 + count] = records.Text(Field::File);
        ++count;
    }
}

// SECTION2.
// KEPT(StaleCountTest.FirstRow_BeginsAtWhatWasLeft_TheOthersAtTheFirstCell): the first row's count begins at what other
// routines have left in `IdxA`.
// Mended, the table would have offspring that it lacks after a box has been looked for.
// KEPT(LineageTest.LastThreeOffspring_AreThoseOfTheRowThatAnEarlierSearchEndedAt): the line of each row shows the last
// three of its offspring from the row that `IdxB` was left at.
// Mended, the panel would show those of the row itself.
void AddOffspringOfLine(Program& p)
{
    Print(p, u"SECTION2:Search for Records who's Pa is = Subject & add offspring to array");
    int& row = p.Scratch.LenScratch;
    row = 0;
    do {
        p.Record.sCurFile = RowAt(p, row)[Indi];
        FindOffspring(p, RowAt(p, row));
        PrintAndStep(p, IndividualLine(RowAt(p, row), RowAt(p, p.Scratch.IdxB)));
        p.Scratch.IdxA = 0;
        ++row;
    } while (row != LineageState::LastRow && !RowAt(p, row)[Indi].isEmpty());
}

// To the first cell of the next row; false behind the last row.
bool GoToNextRow(Program& p)
{
    p.Scratch.IdxA = 0;
    ++p.Scratch.LenScratch;
    return !RowAt(p, p.Scratch.LenScratch)[Indi].isEmpty();
}

// The offspring at hand.
const QString& OffspringCell(Program& p)
{
    return RowAt(p, p.Scratch.LenScratch)[Sib1 + p.Scratch.IdxA];
}

enum class Place { Present, Free, None };

// Leaves `IdxB` at the individual's row or else at the first free one; behind the table when it is full.
Place FindIndividual(Program& p, const QString& number)
{
    int& row = p.Scratch.IdxB;
    for (row = 0; row <= LineageState::LastRow; ++row) {
        const QString& individual = RowAt(p, row)[Indi];
        if (SameText(individual, number))
            return Place::Present;
        if (individual.isEmpty())
            return Place::Free;
    }
    return Place::None;
}

void AddIndividual(Program& p, Row& row, const QString& number)
{
    p.Record.sCurFile = row[Indi] = number;
    if (SeekRecord(p))
        TakeParents(p, row, BlankRec);
    PrintAndStep(p, IndividualLine(row, row));
}

// SECTION3. The rows that it appends have no offspring themselves: the table ends one generation below the line.
void AddOffspringAsIndividuals(Program& p)
{
    PrintAndStep(p, u"SECTION3:search for offspring of indi's & add new array data if not in already");
    p.Scratch.LenScratch = p.Scratch.IdxA = 0;
    do {
        for (; !OffspringCell(p).isEmpty(); ++p.Scratch.IdxA) {
            const QString number = OffspringCell(p);
            const Place place = FindIndividual(p, number);
            if (place == Place::None)
                return;
            if (place == Place::Free)
                AddIndividual(p, RowAt(p, p.Scratch.IdxB), number);
        }
    } while (GoToNextRow(p));
}

// False when one of the row's offspring has no record.
bool CollectMothers(Program& p)
{
    for (int& index = p.Scratch.IdxA; !OffspringCell(p).isEmpty(); ++index) {
        p.Record.sCurFile = OffspringCell(p);
        if (!SeekRecord(p))
            return false;
        p.Lineage.MaArray[index] = Records(p.Form3).Text(Field::MotherRec);
    }
    return true;
}

void PrintMothers(Program& p)
{
    Print(p, u"MaArray..........");
    for (int index = 0; index <= LineageState::LastMother && !p.Lineage.MaArray[index].isEmpty(); ++index)
        PrintAndStep(p, p.Lineage.MaArray[index]);
}

void CountDifferentMothers(Program& p)
{
    const auto& mothers = p.Lineage.MaArray;
    p.Lineage.MaDiffer = 0;
    for (int index = 0; index <= LineageState::LastMother && !mothers[index + 1].isEmpty(); ++index)
        if (!SameText(mothers[index], mothers[index + 1]))
            p.Lineage.MaDiffer += 1;
}

// KEPT(LineageTest.ChildrenOfTwoMothers_GiveNeitherSpouseNorMark): offspring of different mothers leave the row as it
// is, whatever the panel says.
// Mended, the table would have mothers that it doesn't have now.
void MarkFamily(Program& p)
{
    CountDifferentMothers(p);
    if (p.Lineage.MaDiffer == 0) {
        Row& row = RowAt(p, p.Scratch.LenScratch);
        row[Spse] = p.Lineage.MaArray[0];
        row[Fam] = u"Fam"_s;
    }
    p.Lineage.MaArray.Erase();
}

// KEPT(LineageSectionsTest.OffspringGoneMeanwhile_HasNoParents_AndEndsTheMarkingOfAllRowsBehindIt): an offspring
// without a record ends the marking for all rows behind it as well.
// Mended, those rows would have marks and spouses.
void MarkFamilies(Program& p)
{
    p.Scratch.LenScratch = p.Scratch.IdxA = 0;
    do {
        if (OffspringCell(p).isEmpty())
            continue;
        if (!CollectMothers(p))
            return;
        PrintMothers(p);
        MarkFamily(p);
    } while (GoToNextRow(p));
}

// KEPT(LineageSectionsTest.SpouseWithoutARecord_FillsAllFreeRows): a spouse without a record is put into every free
// row.
// Mended, there would be room for the spouses behind that one.
void AddSpouse(Program& p, const Row& partner)
{
    const QString number = partner[Spse];
    const QString individual = partner[Indi];
    for (int at = 0; at <= LineageState::LastRow; ++at) {
        Row& row = RowAt(p, at);
        if (SameText(row[Indi], number))
            return;
        if (!row[Indi].isEmpty())
            continue;
        p.Record.sCurFile = row[Indi] = number;
        row[Spse] = individual;
        if (SeekRecord(p)) {
            TakeParents(p, row, QString());
            return;
        }
    }
}

void AddSpouses(Program& p)
{
    for (int row = 0; row <= LineageState::LastRow; ++row)
        if (!RowAt(p, row)[Spse].isEmpty())
            AddSpouse(p, RowAt(p, row));
}

void PrintListing(Program& p)
{
    for (int row = 0; row <= LineageState::LastRow && !RowAt(p, row)[Indi].isEmpty(); ++row)
        PrintAndStep(p, ListingLine(RowAt(p, row)));
}

// SECTION4.
void AddMothers(Program& p)
{
    for (const QStringView line :
         {u"SECTION4:", u"Now search array for individuals with offspring, test each for same recs Ma",
          u"If any are different test array for this as an individual and add in if not",
          u"present. If all Ma's same rec then goto Pa in array and add in Ma as spouse"})
        Print(p, line);
    LineageStep(p);
    MarkFamilies(p);
    AddSpouses(p);
    PrintListing(p);
}
} // namespace

void CollectLineage(Program& p)
{
    p.Lineage.LineageArr.Erase();
    p.Lineage.MaArray.Erase();
    FillLine(p);
    AddOffspringOfLine(p);
    AddOffspringAsIndividuals(p);
    AddMothers(p);
}

bool ReadsOpenBranch(Program& p)
{
    return p.Form3.IsLoaded() && p.Form3->Data1.IsOpen() &&
           SameText(p.Form3->Data1.DatabaseName, DatabasePath(p.Branch.WorkDir));
}

// What is done meanwhile uses the shared indexes as well. Other walks of the program let them be changed; this one
// keeps its own place, since a click on the map would end it at a wrong row.
void LineageStep(Program& p)
{
    const QString branch = p.Branch.WorkDir;
    ScratchState& scratch = p.Scratch;
    const std::tuple place(scratch.IdxA, scratch.IdxB, scratch.LenScratch);
    StepPanel(p.Loop, p.Form12->Picture1, p.Form12->VScroll1);
    std::tie(scratch.IdxA, scratch.IdxB, scratch.LenScratch) = place;
    if (p.Branch.WorkDir != branch || !ReadsOpenBranch(p))
        throw LineageAbandoned{};
}

} // namespace lineforge
