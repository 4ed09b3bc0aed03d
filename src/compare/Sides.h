#pragma once

#include "compare/Comparison.h"
#include "forms/Form6.h"

namespace lineforge
{

// One of the two sides of the comparison: where its records come from, and what shows them.
struct Side {
    DataControl& (*Data)(const ComparedSides& sides);
    QString (*Directory)(const ComparedSides& sides); // of the branch
    ShownRecord CompareState::*Shown;
    Label forms::Form6::*Number;
    Image forms::Form6::*Picture;
    TextBox forms::Form6::*Surname;
    TextBox forms::Form6::*Forename;
    Frame forms::Form6::*FieldFrame;
    TextBox forms::Form6::*Field;

    // Error 91 while none has been opened.
    Recordset& Records(const ComparedSides& sides) const { return Data(sides).Records(); }
};

// The open branch on the left; its records are those of the record form, which follows every move.
extern const Side CurrentSide;
// The other branch on the right.
extern const Side CompareSide;

Recordset& CompareRecords(Window<forms::Form6>& window);

// What a side tells of its record beside the field on show.
struct PersonTexts {
    QString File;
    QString Surname;
    QString Forename;
    ShownRecord Whose;
};

// Whether a forename that is Null is error 94, as in the steps of the search's own buttons, or empty text.
enum class NullForename { Refused, Empty };

// Read whole before any of it is shown, so that the window never holds one person's number over another's name. Error
// 3021 without a record.
PersonTexts ReadPerson(const ComparedSides& sides, const Side& side, NullForename null);

// Number, picture, surname and forename. A picture that can't be had leaves its place empty.
void ShowPerson(const ComparedSides& sides, const Side& side, const PersonTexts& person);

// Whether a branch has been opened for the side and its cursor stands on a record.
bool HasRecord(const ComparedSides& sides, const Side& side);
// Whether the side shows the record on which its cursor stands; false without a record.
bool IsOnShow(const ComparedSides& sides, const Side& side);
// Whether both sides stand on one record, of one branch.
bool IsOneRecord(const ComparedSides& sides);

void ShowPicture(const ComparedSides& sides, const Side& side, const QString& file);

// The side's record as a step by hand leaves the side: with no field on show.
void ShowStepped(const ComparedSides& sides, const Side& side, NullForename null);
void ShowStepped(const ComparedSides& sides, const Side& side, const PersonTexts& person);

// A side that has no record.
void ShowNothing(CompareState& state, forms::Form6& form, const Side& side);

// What the frame above each field says, the current one's first.
void SetFieldCaptions(forms::Form6& form, const QString& current, const QString& compare);

// What stands in the boxes of the field, one or both; in both is marked what differs.
void ShowField(forms::Form6& form, const Side& side, const QString& text);
void ShowFields(forms::Form6& form, const QString& current, const QString& compare);
void EmptyFields(forms::Form6& form);

} // namespace lineforge
