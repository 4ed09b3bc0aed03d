#include "records/RecordScanner.h"

#include "forms/Form3.h"
#include "map/items/CurrentBox.h"
#include "map/subjects/SubjectPanel.h"
#include "platform/store/OtherPrograms.h"
#include "program/branch/WorkDatabase.h"
#include "records/RecordPicture.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
using forms::Form3;

struct Face {
    Button Form3::*Transport;
    Image Form3::*Picture;
};

// Each button by its mode: its face when it is up and when it is down.
struct ButtonFaces {
    ScanMode Mode;
    Button Form3::*Transport;
    Image Form3::*Up;
    Image Form3::*Down;
};

constexpr ButtonFaces faces[] = {
    {ScanMode::FastForward, &Form3::Picture1, &Form3::Image2, &Form3::Image3},
    {ScanMode::Forward, &Form3::Picture2, &Form3::Image4, &Form3::Image5},
    {ScanMode::Stopped, &Form3::Picture3, &Form3::Image6, &Form3::Image7},
    {ScanMode::Back, &Form3::Picture4, &Form3::Image8, &Form3::Image9},
    {ScanMode::FastBack, &Form3::Picture5, &Form3::Image10, &Form3::Image11},
};

// What shows at the end of a scan beside the stop button going down.
// KEPT(ScanEndTest.RewritesTheNamedFacesOnly): not every button that is down comes up, and the fast back button's face
// lands on its neighbour.
// Mended, every button would show its own face after a scan, and only the stop button look pressed.
struct EndFaces {
    ScanMode Mode;
    Face BeforeMove; // the end was met before the step
    Face AfterMove;
};

constexpr EndFaces endFaces[] = {
    {ScanMode::FastForward, {&Form3::Picture2, &Form3::Image4}, {&Form3::Picture1, &Form3::Image2}},
    {ScanMode::Forward, {&Form3::Picture2, &Form3::Image4}, {&Form3::Picture2, &Form3::Image4}},
    {ScanMode::Back, {&Form3::Picture4, &Form3::Image8}, {&Form3::Picture4, &Form3::Image8}},
    {ScanMode::FastBack, {&Form3::Picture4, &Form3::Image10}, {&Form3::Picture5, &Form3::Image10}},
};

enum class Step { Moved, EndBeforeMove, EndAfterMove };

void Put(Form3& form, const Face& face)
{
    (form.*face.Transport).Picture = (form.*face.Picture).Picture.value();
}

void PressButton(forms::Form3& form, ScanMode mode)
{
    for (const ButtonFaces& button : faces)
        Put(form, {button.Transport, button.Mode == mode ? button.Down : button.Up});
}

ScanMode ModeOf(const RecordState& record)
{
    return static_cast<ScanMode>(static_cast<int>(record.RecordScanMode));
}

bool IsForward(ScanMode mode)
{
    return mode == ScanMode::FastForward || mode == ScanMode::Forward;
}

bool IsFast(ScanMode mode)
{
    return mode == ScanMode::FastForward || mode == ScanMode::FastBack;
}

// The directory above the branch becomes the current one, and is left for the searches to find pictures in.
void GoAboveBranch(const SubjectPictures& pictures, ScratchState& scratch)
{
    constexpr int directoryNameLength = 8;
    scratch.sNewDir = pictures.Branch.WorkDir.left(pictures.Branch.WorkDirLen - directoryNameLength);
    pictures.Files.ChDir(scratch.sNewDir);
}

void ShowOnMap(const SubjectPanel& panel, const BoxWork& work)
{
    ShowRecordOnMap(panel);
    MarkCurrentBox(work);
}

Step MoveOn(Recordset& records, bool forward)
{
    if (forward ? records.Eof() : records.Bof())
        return Step::EndBeforeMove;
    forward ? records.MoveNext() : records.MovePrevious();
    if (!(forward ? records.Eof() : records.Bof()))
        return Step::Moved;
    forward ? records.MovePrevious() : records.MoveNext();
    return Step::EndAfterMove;
}

// Where the database refuses the step, and the user knows: without one more question at every tick.
Step MoveOnOrHalt(const SubjectPictures& pictures, ScanMode mode)
{
    try {
        return MoveOn(Records(pictures.Form3), IsForward(mode));
    } catch (const RuntimeError& refusal) {
        if (refusal.IsTold) {
            pictures.Record.RecordScanMode = static_cast<int>(ScanMode::Stopped);
            pictures.Form3->Timer1.Enabled = false;
            PressButton(*pictures.Form3, ScanMode::Stopped);
        }
        throw;
    }
}

void EndScan(const SubjectPanel& panel, const BoxWork& work, ScanMode mode, Step step)
{
    panel.Record.RecordScanMode = static_cast<int>(ScanMode::Stopped);
    panel.Form3->Timer1.Enabled = false;
    for (const EndFaces& end : endFaces)
        if (end.Mode == mode)
            Put(*panel.Form3, step == Step::EndBeforeMove ? end.BeforeMove : end.AfterMove);
    Put(*panel.Form3, {&Form3::Picture3, &Form3::Image7});
    panel.Files.ChDir(panel.Branch.WorkDir);
    ShowOnMap(panel, work);
}
} // namespace

void StartScan(const SubjectPictures& pictures, ScratchState& scratch, ScanMode mode)
{
    pictures.Record.RecordScanMode = static_cast<int>(mode);
    pictures.Form3->Timer1.Enabled = true;
    GoAboveBranch(pictures, scratch);
    PressButton(*pictures.Form3, mode);
}

void StopScan(const SubjectPanel& panel, const BoxWork& work)
{
    panel.Record.RecordScanMode = static_cast<int>(ScanMode::Stopped);
    panel.Form3->Timer1.Enabled = false;
    GoAboveBranch(panel, work.Scratch);
    PressButton(*panel.Form3, ScanMode::Stopped);
    ShowOnMap(panel, work);
}

void TickScan(const SubjectPanel& panel, const BoxWork& work, const OtherPrograms& others)
{
    constexpr int fastMilliseconds = 250;
    constexpr int slowMilliseconds = 1000;

    // Under that question nothing moves; and a record of another branch stands alone until the return.
    if (others.IsAsking() || panel.Branch.IsSiblingShown())
        return;
    work.Gallery.FirstShow = 1;
    const ScanMode mode = ModeOf(panel.Record);
    if (mode < ScanMode::FastForward || mode == ScanMode::Stopped || mode > ScanMode::FastBack)
        return;
    // Takes effect after this step: the first one came after the interval that the last scan left.
    panel.Form3->Timer1.Interval = IsFast(mode) ? fastMilliseconds : slowMilliseconds;

    const Step step = MoveOnOrHalt(panel, mode);
    if (step == Step::Moved)
        ShowRecordPicture(panel);
    else
        EndScan(panel, work, mode, step);
}

} // namespace lineforge
