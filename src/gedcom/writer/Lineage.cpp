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

Row& RowAt(LineageState& lineage, int row)
{
    return lineage.LineageArr[row];
}

void Print(const LineageSearch& search, QStringView line)
{
    search.Form12->Picture1.Print(line);
}

void PrintAndStep(const LineageSearch& search, QStringView line)
{
    Print(search, line);
    LineageStep(search);
}

bool SeekRecord(const LineageSearch& search)
{
    return Records(search.Form3).Seek(Field::File, search.Record.sCurFile);
}

// Of the record that was found.
void TakeParents(const LineageSearch& search, Row& row, const QString& none)
{
    const Recordset& records = Records(search.Form3);
    row[Pa] = records.Value(Field::FatherRec).value_or(none);
    row[Ma] = records.Value(Field::MotherRec).value_or(none);
}

// SECTION1. The line goes on to the father.
// KEPT(LineageTest.StartWithAMotherOnly_HasARowOfBlanksBehindIt_AndTheOffspringOfBlanks): a mother without a father
// isn't followed, but the line has one more row then, of blanks.
// Mended, the count in the file would be another for such a line.
void FillLine(const LineageSearch& search)
{
    Print(search, u"SECTION1:First fill array with lineage individuals");
    int& row = search.Scratch.LenScratch;
    row = 0;
    search.Record.sCurFile = RowAt(search.State, row)[Indi] = search.Form12->Text7.Text.value();
    while (SeekRecord(search)) {
        Row& individual = RowAt(search.State, row);
        TakeParents(search, individual, BlankRec);
        Print(search, QString(u"Rec " + individual[Indi] + u" Pa " + individual[Pa] + u" Ma " + individual[Ma]));
        if (individual[Pa] == BlankRec && individual[Ma] == BlankRec)
            break;
        ++row;
        search.Record.sCurFile = RowAt(search.State, row)[Indi] = individual[Pa];
    }
    search.State.sLineageCount = QString::number(row + 1);
}

// Whoever has `sCurFile` for a father, as many as there are cells left.
void FindOffspring(const LineageSearch& search, Row& row)
{
    int& count = search.Scratch.IdxA;
    Meanwhile meanwhile(search.Loop);
    Recordset& records = Records(search.Form3);
    for (records.MoveFirst(); !records.Eof(); records.MoveNext()) {
        meanwhile.KeepPainted();
        if (!records.FieldIs(Field::FatherRec, search.Record.sCurFile))
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
void AddOffspringOfLine(const LineageSearch& search)
{
    Print(search, u"SECTION2:Search for Records who's Pa is = Subject & add offspring to array");
    int& row = search.Scratch.LenScratch;
    row = 0;
    do {
        search.Record.sCurFile = RowAt(search.State, row)[Indi];
        FindOffspring(search, RowAt(search.State, row));
        PrintAndStep(search, IndividualLine(RowAt(search.State, row), RowAt(search.State, search.Scratch.IdxB)));
        search.Scratch.IdxA = 0;
        ++row;
    } while (row != LineageState::LastRow && !RowAt(search.State, row)[Indi].isEmpty());
}

// To the first cell of the next row; false behind the last row.
bool GoToNextRow(const LineageSearch& search)
{
    search.Scratch.IdxA = 0;
    ++search.Scratch.LenScratch;
    return !RowAt(search.State, search.Scratch.LenScratch)[Indi].isEmpty();
}

// The offspring at hand.
const QString& OffspringCell(const LineageSearch& search)
{
    return RowAt(search.State, search.Scratch.LenScratch)[Sib1 + search.Scratch.IdxA];
}

enum class Place { Present, Free, None };

// Leaves `IdxB` at the individual's row or else at the first free one; behind the table when it is full.
Place FindIndividual(const LineageSearch& search, const QString& number)
{
    int& row = search.Scratch.IdxB;
    for (row = 0; row <= LineageState::LastRow; ++row) {
        const QString& individual = RowAt(search.State, row)[Indi];
        if (SameText(individual, number))
            return Place::Present;
        if (individual.isEmpty())
            return Place::Free;
    }
    return Place::None;
}

void AddIndividual(const LineageSearch& search, Row& row, const QString& number)
{
    search.Record.sCurFile = row[Indi] = number;
    if (SeekRecord(search))
        TakeParents(search, row, BlankRec);
    PrintAndStep(search, IndividualLine(row, row));
}

// SECTION3. The rows that it appends have no offspring themselves: the table ends one generation below the line.
void AddOffspringAsIndividuals(const LineageSearch& search)
{
    PrintAndStep(search, u"SECTION3:search for offspring of indi's & add new array data if not in already");
    search.Scratch.LenScratch = search.Scratch.IdxA = 0;
    do {
        for (; !OffspringCell(search).isEmpty(); ++search.Scratch.IdxA) {
            const QString number = OffspringCell(search);
            const Place place = FindIndividual(search, number);
            if (place == Place::None)
                return;
            if (place == Place::Free)
                AddIndividual(search, RowAt(search.State, search.Scratch.IdxB), number);
        }
    } while (GoToNextRow(search));
}

// False when one of the row's offspring has no record.
bool CollectMothers(const LineageSearch& search)
{
    for (int& index = search.Scratch.IdxA; !OffspringCell(search).isEmpty(); ++index) {
        search.Record.sCurFile = OffspringCell(search);
        if (!SeekRecord(search))
            return false;
        search.State.MaArray[index] = Records(search.Form3).Text(Field::MotherRec);
    }
    return true;
}

void PrintMothers(const LineageSearch& search)
{
    Print(search, u"MaArray..........");
    for (int index = 0; index <= LineageState::LastMother && !search.State.MaArray[index].isEmpty(); ++index)
        PrintAndStep(search, search.State.MaArray[index]);
}

void CountDifferentMothers(LineageState& lineage)
{
    const auto& mothers = lineage.MaArray;
    lineage.MaDiffer = 0;
    for (int index = 0; index <= LineageState::LastMother && !mothers[index + 1].isEmpty(); ++index)
        if (!SameText(mothers[index], mothers[index + 1]))
            lineage.MaDiffer += 1;
}

// KEPT(LineageTest.ChildrenOfTwoMothers_GiveNeitherSpouseNorMark): offspring of different mothers leave the row as it
// is, whatever the panel says.
// Mended, the table would have mothers that it doesn't have now.
void MarkFamily(const LineageSearch& search)
{
    CountDifferentMothers(search.State);
    if (search.State.MaDiffer == 0) {
        Row& row = RowAt(search.State, search.Scratch.LenScratch);
        row[Spse] = search.State.MaArray[0];
        row[Fam] = u"Fam"_s;
    }
    search.State.MaArray.Erase();
}

// KEPT(LineageSectionsTest.OffspringGoneMeanwhile_HasNoParents_AndEndsTheMarkingOfAllRowsBehindIt): an offspring
// without a record ends the marking for all rows behind it as well.
// Mended, those rows would have marks and spouses.
void MarkFamilies(const LineageSearch& search)
{
    search.Scratch.LenScratch = search.Scratch.IdxA = 0;
    do {
        if (OffspringCell(search).isEmpty())
            continue;
        if (!CollectMothers(search))
            return;
        PrintMothers(search);
        MarkFamily(search);
    } while (GoToNextRow(search));
}

// KEPT(LineageSectionsTest.SpouseWithoutARecord_FillsAllFreeRows): a spouse without a record is put into every free
// row.
// Mended, there would be room for the spouses behind that one.
void AddSpouse(const LineageSearch& search, const Row& partner)
{
    const QString number = partner[Spse];
    const QString individual = partner[Indi];
    for (int at = 0; at <= LineageState::LastRow; ++at) {
        Row& row = RowAt(search.State, at);
        if (SameText(row[Indi], number))
            return;
        if (!row[Indi].isEmpty())
            continue;
        search.Record.sCurFile = row[Indi] = number;
        row[Spse] = individual;
        if (SeekRecord(search)) {
            TakeParents(search, row, QString());
            return;
        }
    }
}

void AddSpouses(const LineageSearch& search)
{
    for (int row = 0; row <= LineageState::LastRow; ++row)
        if (!RowAt(search.State, row)[Spse].isEmpty())
            AddSpouse(search, RowAt(search.State, row));
}

void PrintListing(const LineageSearch& search)
{
    for (int row = 0; row <= LineageState::LastRow && !RowAt(search.State, row)[Indi].isEmpty(); ++row)
        PrintAndStep(search, ListingLine(RowAt(search.State, row)));
}

// SECTION4.
void AddMothers(const LineageSearch& search)
{
    for (const QStringView line :
         {u"SECTION4:", u"Now search array for individuals with offspring, test each for same recs Ma",
          u"If any are different test array for this as an individual and add in if not",
          u"present. If all Ma's same rec then goto Pa in array and add in Ma as spouse"})
        Print(search, line);
    LineageStep(search);
    MarkFamilies(search);
    AddSpouses(search);
    PrintListing(search);
}
} // namespace

void CollectLineage(const LineageSearch& search)
{
    search.State.LineageArr.Erase();
    search.State.MaArray.Erase();
    FillLine(search);
    AddOffspringOfLine(search);
    AddOffspringAsIndividuals(search);
    AddMothers(search);
}

bool ReadsOpenBranch(const BranchState& branch, Window<forms::Form3>& recordForm)
{
    return recordForm.IsLoaded() && recordForm->Data1.IsOpen() &&
           SameText(recordForm->Data1.DatabaseName, DatabasePath(branch.WorkDir));
}

// What is done meanwhile uses the shared indexes as well. Other walks of the program let them be changed; this one
// keeps its own place, since a click on the map would end it at a wrong row.
void LineageStep(const LineageSearch& search)
{
    const QString branch = search.Branch.WorkDir;
    ScratchState& scratch = search.Scratch;
    const std::tuple place(scratch.IdxA, scratch.IdxB, scratch.LenScratch);
    StepPanel(search.Loop, search.Form12->Picture1, search.Form12->VScroll1);
    std::tie(scratch.IdxA, scratch.IdxB, scratch.LenScratch) = place;
    if (search.Branch.WorkDir != branch || !ReadsOpenBranch(search.Branch, search.Form3))
        throw LineageAbandoned{};
}

} // namespace lineforge
