#pragma once

#include "map/subjects/MappingWork.h"

namespace lineforge
{

// Mapping ties a box to a record. The options are asked in `Form7`; the next double click on a box carries it out.

// The options window; told when no branch is open.
void ShowMappingOptions(const BranchState& branch, Window<forms::Form3>& recordForm, Prompts& prompts,
                        Window<forms::Form7>& options);

// The choice of what is mapped. Only an existing record has a number to be entered, only a new one a gender and a
// picture to be chosen.
void ChooseBlankRecord(forms::Form7& form);
void ChooseUnmappedRecord(forms::Form7& form);
void ChooseAlternateRecord(forms::Form7& form);

// Takes the options; a cross waits for the double click.
void TakeMappingOptions(MappingState& mapping, ToolState& tools, Screen& screen, forms::Form7& form);

// Fills the box under the last press with a new record or an existing one, by the options; the first record of a branch
// is always a new one. Writes the boxes at once and shows the record form. A wrong number is told, and ends the
// mapping. Errors of the disk and of the record store, also when the branch of a number isn't there.
void MapNewSubject(const MappingWork& work);

// The box has its record already: asks whether its picture is to be changed.
// KEPT(AskSubjectPictureTest.Yes_SelectNow_StoresThePictureUnderTheLastMappedNumber): the picture is stored under the
// number of the last mapping, not under the record's own.
// Mended, the record's own picture would be written over, and not that of the record mapped last.
void AskSubjectPicture(const MappingWork& work);

// After two questions the next two double clicks move a record from its box to another one.
void RemapSubject(const BranchState& branch, Window<forms::Form3>& recordForm, Prompts& prompts, ToolState& tools,
                  Screen& screen);

} // namespace lineforge
