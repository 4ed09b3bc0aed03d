#include "shell/run/RunHandler.h"

#include "forms/Form3.h"
#include "gedcom/report/GedcomConversion.h"
#include "map/subjects/RecordFormPicture.h"
#include "map/subjects/SubjectPanel.h"
#include "platform/store/OtherPrograms.h"
#include "program/branch/WorkDatabase.h"
#include "shell/run/ErrorInWords.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// What else has failed is no reason to lose what is typed. What a command was about to put in the record is given up:
// it hasn't been finished.
void StoreTypedAtTheEnd(Program& p)
{
    if (!p.Form3.IsLoaded() || !p.Form3->Data1.IsOpen())
        return;
    const OtherPrograms::Quiet quiet(p.Databases.Others());
    p.Errors.Ignoring([&] {
        Records(p.Form3).CancelUpdate();
        StoreTyped(p.Form3);
    });
}

void EndWithError(Program& p, const RuntimeError& error)
{
    StoreTypedAtTheEnd(p);
    p.Errors.Last = error;
    // What was written to them stays.
    p.Lineage.File.reset();
    CloseConversionFiles(p.Gedcom, p.Errors);
    TellError(p, error);
    p.Loop.End(1);
}

// It has been told and answered. The windows are there for the next one.
void GiveUpCommand(Program& p, const RuntimeError& error)
{
    p.Errors.Last = error;
    if (p.Screen.Pointer == MousePointer::Hourglass)
        p.Screen.Pointer = MousePointer::Default;
    p.Databases.Others().TellOfReplaced();
}

// Beside the map and on the record form stands one person each.
void SettlePictures(Program& p, bool isWithinAnother)
{
    isWithinAnother ? PartFromFormerSubject(p.Form1, p.Form3) : FollowSubject(p);
    isWithinAnother ? PartFromFormerRecordPicture(p.Branch, p.Form3) : FollowWithRecordPicture(p);
}
} // namespace

void TellError(Program& p, const RuntimeError& error)
{
    p.Prompts.MsgBox(u"Lineforge"_s, FatalText(error), Buttons::Error);
}

void RunHandler(Program& p, const Event& handler)
{
    try {
        const OtherPrograms::Command command(p.Databases.Others());
        try {
            Fire(handler);
            p.Databases.Others().TellOfReplaced();
        } catch (const RuntimeError& error) {
            error.IsTold ? GiveUpCommand(p, error) : EndWithError(p, error);
        }
        SettlePictures(p, command.IsWithinAnother());
    } catch (const ProgramEnded&) {
        // The handlers further out learn of the end when their own waiting returns.
    }
}

} // namespace lineforge
