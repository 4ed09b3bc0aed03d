#include "faults/Commands.h"

#include "program/branch/WorkDatabase.h"
#include "support/BranchBuilder.h"

#include <QColor>

namespace lineforge::faults
{

using namespace Qt::StringLiterals;

namespace
{
void Nothing(World&) {}

// The registry.

void GivenSplash(World& world)
{
    world.P.form9.Load();
}

void TickNoSplash(World& world)
{
    world.P.form9->Check1.Value = !world.P.form9->Check1.Value;
    world.Click(world.P.form9->Check1.Click);
}

// Branches.

void GivenName(World& world)
{
    world.Person.Typed = u"Browns"_s;
}

void MakeBranch(World& world)
{
    world.Click(world.P.Form1->New.Click);
}

void GivenMovedBox(World& world)
{
    world.P.Map.BoxArr[0][BoxColumn::X] = 1100;
}

void CloseTheBranch(World& world)
{
    world.Click(world.P.Form1->mnuCloseDB.Click);
}

void GivenMovedBoxInTools(World& world)
{
    world.Click(world.P.Form1->mnuTreeTools.Click);
    GivenMovedBox(world);
}

void LeaveTheTools(World& world)
{
    world.Click(world.P.Form1->Image8.Click);
}

void GivenSafePlace(World& world)
{
    GivenMovedBox(world);
    world.Home.MakeDirectory(u"safe");
    world.Person.Picked = world.Home.Path(u"safe/x.mdb");
}

void BackUp(World& world)
{
    world.Click(world.P.Form1->mnuBackup.Click);
}

void DeleteTheBranch(World& world)
{
    world.Click(world.P.Form1->mnuDelSub.Click);
}

void GivenStick(World& world)
{
    CloseTheBranch(world);
    world.Home.WriteFile(u"stick/AliasList.cfg", world.Home.ReadFile(u"AliasList.cfg"));
    world.Person.Picked = world.Home.Path(u"LfgDat_B/LfgDat_B.mdb");
}

void ExportIt(World& world)
{
    world.Click(world.P.Form1->mnuExpSub.Click);
    world.P.Form4->Dir1.GoTo(world.Home.Path(u"stick"));
    world.Click(world.P.Form4->Command1.Click);
}

void GivenGift(World& world)
{
    BranchBuilder(world.Home, u'C')
        .InDirectory(u"gift/LfgDat_C")
        .Row({{u"File", u"C001"}})
        .Boxes(u"1000,500,255,C001,,")
        .Picture(u"C001", Qt::red)
        .Gallery({{u"C001_01.jpg"_s, PictureBytes(Qt::red)}})
        .Build();
    GivenName(world);
    world.Person.Picked = world.Home.Path(u"gift/LfgDat_C/LfgDat_C.mdb");
}

void ImportIt(World& world)
{
    world.Click(world.P.Form1->mnuImpSub.Click);
}

// Records.

void OpenRecords(World& world)
{
    world.Click(world.P.Form1->Command1.Click);
}

void GivenTypedText(World& world)
{
    OpenRecords(world);
    world.P.Form3->Text3.Text = u"Anne"_s;
}

void LeaveTheRow(World& world)
{
    world.Click([&] { Records(world.P.Form3).MoveNext(); });
}

void GoBackToTheTree(World& world)
{
    world.Click(world.P.Form3->Command2.Click);
    LeaveTheRow(world);
    CloseTheBranch(world);
}

void GoToTheGallery(World& world)
{
    world.Click(world.P.Form3->Command1.Click);
    LeaveTheRow(world);
}

void OpenAnother(World& world)
{
    world.Choose(u"Jones");
}

void ExitFromIt(World& world)
{
    world.Click(world.P.Form3->mnuExit.Click);
}

void AddOne(World& world)
{
    world.Click(world.P.Form3->mnuAdd.Click);
}

void DeleteOne(World& world)
{
    world.Click(world.P.Form3->mnuDelete.Click);
}

void GivenDestination(World& world)
{
    OpenRecords(world);
    world.Person.Typed = u"A002"_s;
}

void Transfer(World& world)
{
    world.Click(world.P.Form3->MnuRecTransfer.Click);
}

void GivenChosenPicture(World& world)
{
    OpenRecords(world);
    world.Person.Picked = world.Home.Path(u"things/new.jpg");
}

void ChangePicture(World& world)
{
    world.Click(world.P.Form3->mnuSubPicture.Click);
}

void GivenSelection(World& world)
{
    OpenRecords(world);
    TextBox& box = world.P.Form3->Text3;
    box.SelStart = 0;
    box.SelText = box.Text;
    world.Click(box.Click);
    world.Machine.Clipboard.Text = u"Anne"_s;
}

void CutIt(World& world)
{
    world.Click(world.P.Form3->mnuCut.Click);
    LeaveTheRow(world);
}

void PasteIt(World& world)
{
    world.Click(world.P.Form3->mnuPaste.Click);
    LeaveTheRow(world);
}

// Mapping.

void GivenMapping(World& world, OptionButton forms::Form7::*record, OptionButton forms::Form7::*picture)
{
    world.Click(world.P.Form1->mnuMapSubject.Click);
    forms::Form7& form = *world.P.Form7;
    world.Click((form.*record).Click);
    form.Text1.Text = u"A003"_s;
    form.Option4.Value = true;
    form.Option6.Value = picture == &forms::Form7::Option6;
    form.Option7.Value = picture == &forms::Form7::Option7;
    world.Person.Picked = world.Home.Path(u"things/new.jpg");
    world.Click(form.Command1.Click);
}

void GivenMappingOfNewRecord(World& world)
{
    GivenMapping(world, &forms::Form7::Option1, &forms::Form7::Option6);
}

void GivenMappingOfNewRecordWithPicture(World& world)
{
    GivenMapping(world, &forms::Form7::Option1, &forms::Form7::Option7);
}

void GivenMappingOfOldRecord(World& world)
{
    GivenMapping(world, &forms::Form7::Option2, &forms::Form7::Option7);
}

void MapTheEmptyBox(World& world)
{
    world.DoubleClick({3300, 600});
    CloseTheBranch(world);
}

void GivenRemapping(World& world)
{
    world.Click(world.P.Form1->mnuRemap.Click);
    world.DoubleClick({1300, 600});
}

// The gallery.

void OpenGallery(World& world)
{
    world.Click(world.P.Form1->Command2.Click);
}

void GivenFileForGallery(World& world, QStringView name)
{
    OpenGallery(world);
    world.Person.Picked = world.Home.Path(name);
}

// As additions leave them.
void GivenTilesWithWholePaths(World& world)
{
    OpenGallery(world);
    for (const int tile : {0, 1}) {
        Image& image = world.P.Form5->Image1[tile];
        image.Tag = QString(world.P.Gallery.PageDirectory + image.Tag.value());
    }
}

void SwapTiles(World& world)
{
    forms::Form5& form = *world.P.Form5;
    world.Click([&] { form.Image1[1].DragDrop(form.Image1[0]); });
}

// The comparison.

void GivenComparison(World& world)
{
    world.Click(world.P.Form1->mnuComp.Click);
    world.Click(world.P.Form6->mnuOpen.Click);
    world.P.Form8->List1.SetText(u"Jones"_s);
    world.Click(world.P.Form8->Command1.Click);
}

void CopyFieldAcross(World& world)
{
    world.Click(world.P.Form6->Command3.Click);
}

void CopyAllAcross(World& world)
{
    world.Click(world.P.Form6->Command7.Click);
}

void AppendIt(World& world)
{
    world.Click(world.P.Form6->Command8.Click);
}

void GivenPair(World& world)
{
    GivenComparison(world);
    world.Click(world.P.Form6->Command1.Click);
    world.Machine.Clipboard.Text = u"Smythe"_s;
}

void GivenSelectionOnTheLeft(World& world)
{
    GivenPair(world);
    world.Click(world.P.Form6->Text1.Click);
}

void GivenSelectionOnTheRight(World& world)
{
    GivenPair(world);
    world.Click(world.P.Form6->Text3.Click);
}

void CutCompared(World& world)
{
    world.Click(world.P.Form6->mnuCut.Click);
}

void PasteCompared(World& world)
{
    world.Click(world.P.Form6->mnuPaste.Click);
}

// What leaves the program.

void GivenOldText(World& world)
{
    world.Home.WriteFile(u"LfgDat_A/LfgDat_A.txt", "an older text");
}

void WriteText(World& world)
{
    world.Click(world.P.Form1->mnuTxtDBase.Click);
}

void GivenBookmark(World& world)
{
    world.Click(world.P.Form1->mnuAddBkMark.Click);
}

void WriteBookmarks(World& world)
{
    world.Click(world.P.Form1->mnuTxtFileList.Click);
}

void GivenLineage(World& world)
{
    world.Click(world.P.Form1->mnuExpGedcom.Click);
    world.P.Form12->Text7.Text = u"A001"_s;
    world.P.Scratch.IdxA = 0;
}

void CreateGedcom(World& world)
{
    world.Click(world.P.Form12->Command1.Click);
}

void GivenGedcomFile(World& world)
{
    world.Person.Picked = world.Home.WriteFile(u"things/family.ged", "0 HEAD\r\n1 SOUR A\r\n0 @I1@ INDI\r\n"
                                                                     "1 NAME John /Smith/\r\n1 FAMS @F1@\r\n"
                                                                     "0 @F1@ FAM\r\n1 HUSB @I1@\r\n0 TRLR\r\n");
}

void ConvertIt(World& world)
{
    world.Click(world.P.Form1->mnuImpGedcom.Click);
}
} // namespace

std::vector<Command> AllCommands()
{
    return {
        {"SplashChoice", GivenSplash, TickNoSplash},
        {"New", GivenName, MakeBranch},
        {"CloseWithAChangedMap", GivenMovedBox, CloseTheBranch},
        {"LeaveTools", GivenMovedBoxInTools, LeaveTheTools},
        // Only what becomes of the map is told.
        {.Name = "Backup", .Given = GivenSafePlace, .Do = BackUp, .Silent = u"^safe/"},
        // What can't be taken away stays.
        {.Name = "DeleteBranch",
         .Given = Nothing,
         .Do = DeleteTheBranch,
         .Silent = u"^(LfgDat_A(/|$)|AliasList)",
         .May = u"AliasList.cfg: : the branch in LfgDat_A isn't there"},
        // Files that can't be copied are left out.
        {.Name = "Export", .Given = GivenStick, .Do = ExportIt, .Silent = u"^stick/"},
        // The branch that opens in the end is the sign, in the list or not.
        {.Name = "Import",
         .Given = GivenGift,
         .Do = ImportIt,
         .Silent = u"^(LfgDat_C(/|$)|AliasList)",
         .May = u"^LfgDat_C/.* isn't there$"},
        {"EditAndLeaveTheRow", GivenTypedText, LeaveTheRow},
        {"EditAndTree", GivenTypedText, GoBackToTheTree},
        {"EditAndGallery", GivenTypedText, GoToTheGallery},
        {"EditAndOpen", GivenTypedText, OpenAnother},
        {"EditAndExit", GivenTypedText, ExitFromIt},
        {"Add", OpenRecords, AddOne},
        // A record that can't be taken out stays, with its files and its box; so do they when the disk fails just
        // after.
        {.Name = "Delete",
         .Given = OpenRecords,
         .Do = DeleteOne,
         .Silent = u"^LfgDat_A/",
         .May = u"A001.*record(, which| that) isn't there$"},
        {"Transfer", GivenDestination, Transfer},
        // A picture that can't be had ends the command.
        {.Name = "SubjectPicture", .Given = GivenChosenPicture, .Do = ChangePicture, .Silent = u"Sub.jpg$"},
        {"Cut", GivenSelection, CutIt},
        {"Paste", GivenSelection, PasteIt},
        // A subject stays without a picture that can't be had.
        {.Name = "MapNewRecord", .Given = GivenMappingOfNewRecord, .Do = MapTheEmptyBox, .Silent = u"Sub.jpg$"},
        {.Name = "MapNewRecordWithPicture",
         .Given = GivenMappingOfNewRecordWithPicture,
         .Do = MapTheEmptyBox,
         .Silent = u"Sub.jpg$"},
        {.Name = "MapOldRecord", .Given = GivenMappingOfOldRecord, .Do = MapTheEmptyBox, .Silent = u"Sub.jpg$"},
        {"Remap", GivenRemapping, MapTheEmptyBox},
        // A file that can't be had ends the addition.
        {.Name = "AddPicture",
         .Given = [](World& world) { GivenFileForGallery(world, u"things/new.jpg"); },
         .Do = [](World& world) { world.Click(world.P.Form5->mnuPic.Click); },
         .Silent = u"/LfgGal_A/"},
        {.Name = "AddSound",
         .Given = [](World& world) { GivenFileForGallery(world, u"things/new.wav"); },
         .Do = [](World& world) { world.Click(world.P.Form5->mnuAud.Click); },
         .Silent = u"/LfgGal_A/"},
        {.Name = "AddFilm",
         .Given = [](World& world) { GivenFileForGallery(world, u"things/new.avi"); },
         .Do = [](World& world) { world.Click(world.P.Form5->mnuVid.Click); },
         .Silent = u"/LfgGal_A/"},
        {.Name = "AddText",
         .Given = [](World& world) { GivenFileForGallery(world, u"things/new.txt"); },
         .Do = [](World& world) { world.Click(world.P.Form5->mnuTxt.Click); },
         .Silent = u"/LfgGal_A/"},
        // Half way the names can't be given back either, once all are refused.
        {.Name = "SwapTiles",
         .Given = GivenTilesWithWholePaths,
         .Do = SwapTiles,
         .May = u"left by a swap of two tiles that was cut off"},
        {"CopyField", GivenComparison, CopyFieldAcross},
        {"CopyAllFields", GivenComparison, CopyAllAcross},
        {"AppendRecord", GivenComparison, AppendIt},
        {"CutOnTheLeft", GivenSelectionOnTheLeft, CutCompared},
        {"CutOnTheRight", GivenSelectionOnTheRight, CutCompared},
        {"PasteOnTheLeft", GivenSelectionOnTheLeft, PasteCompared},
        {"PasteOnTheRight", GivenSelectionOnTheRight, PasteCompared},
        {"TextFile", GivenOldText, WriteText},
        {"BookmarksTextFile", GivenBookmark, WriteBookmarks},
        {.Name = "GedcomFile", .Given = GivenLineage, .Do = CreateGedcom, .WrittenAsItGoes = u"Gedcom.tmp"},
        // A report that can't be written is completed all the same.
        {.Name = "GedcomReport",
         .Given = GivenGedcomFile,
         .Do = ConvertIt,
         .WrittenAsItGoes = u"family.txt",
         .Silent = u"family.txt$"},
    };
}

} // namespace lineforge::faults
