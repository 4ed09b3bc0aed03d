#include "compare/CompareBranch.h"
#include "forms/Form1.h"
#include "forms/form9.h"
#include "gedcom/report/GedcomConversion.h"
#include "gedcom/writer/GedcomWriter.h"
#include "interchange/BranchExport.h"
#include "interchange/BranchImport.h"
#include "map/items/SpokenBoxes.h"
#include "map/subjects/MapClipboard.h"
#include "map/subjects/MapInteraction.h"
#include "map/subjects/SubjectMapping.h"
#include "map/subjects/SurnameFrames.h"
#include "map/tools/LeaveTools.h"
#include "map/tools/MapMouse.h"
#include "map/tools/ToolButtons.h"
#include "output/BookmarkList.h"
#include "output/PrintCurrentRecord.h"
#include "output/PrintMap.h"
#include "output/PrintWindow.h"
#include "output/TextReport.h"
#include "program/ui/BranchUi.h"
#include "records/RecordForm.h"
#include "shell/branches/BackUpBranch.h"
#include "shell/branches/CloseBranch.h"
#include "shell/branches/DeleteBranch.h"
#include "shell/branches/HomeInUse.h"
#include "shell/branches/NewBranch.h"
#include "shell/branches/OpenBranch.h"
#include "shell/handlers/InstallHandlers.h"
#include "shell/run/Exit.h"
#include "shell/run/GalleryDoors.h"
#include "shell/run/Help.h"
#include "shell/run/StartUp.h"

#include <tuple>

namespace lineforge
{

namespace
{
void OpenFileOrHelpMenu(Program& p)
{
    p.form9.Unload();
    ClearMapCursor(p.Tools, p.Screen);
}

void InstallOutput(Program& p, forms::Form1& form)
{
    form.mnuAddBkMark.Click = [&p] { AddBookmark(p.Bookmarks, p.Branch, p.Form3, p.Prompts); };
    form.mnuClrList.Click = [&p] { ClearBookmarks(p.Bookmarks); };
    form.mnuPrinterSetUp.Click = [&p] { p.Prompts.PickPrinter(); };
    form.mnuPrint.Click = [&p] { PrintMap(p, p.Printer, p.Screen); };
    form.mnuPrintPage.Click = [&p, &form] { PrintMainWindow(form, p.Printer, p.Errors, p.Prompts); };
    form.mnuPrintRecord.Click = [&p] { PrintCurrentRecord(p); };
    form.mnuPrinList.Click = [&p] { PrintBookmarks(p); };
    form.mnuTxtFileList.Click = [&p] { WriteBookmarksText(p); };
    form.mnuTxtDBase.Click = [&p] { WriteDatabaseText(p); };
}

void InstallTools(Program& p, forms::Form1& form)
{
    form.Image2.Click = [&p] { ChooseMove(p); };
    form.Image3.Click = [&p] { ChooseColour(p); };
    form.Image4.Click = [&p] { ChooseFont(p); };
    form.Image5.Click = [&p] { ChooseDelete(p); };
    form.Image6.Click = [&p] { ChooseLineTool(p); };
    form.Image7.Click = [&p] { ChooseBoxTool(p); };
    form.Image8.Click = [&p] { ChooseExit(p); };
    form.Image9.Click = [&p] { ChooseTextTool(p); };
}
} // namespace

void InstallForm1(Program& p, forms::Form1& form)
{
    form.Load = [&p] { LoadMainWindow(p); };
    form.Unloading = [&p] { CloseMainWindow(p); };
    // A press on the map isn't one on the bare window, and leaves the splash.
    form.Click = [&p] { p.form9.Unload(); };

    form.mnuFile.Click = [&p] { OpenFileOrHelpMenu(p); };
    form.New.Click = [&p] { NewBranch(p); };
    form.Open.Click = [&p] { ChooseBranch(p); };
    InstallOutput(p, form);
    form.mnuBackup.Click = [&p] { BackUpBranch(p, p.Map, p.Errors); };
    form.mnuExpSub.Click = [&p] { ChooseExport(p); };
    form.mnuExpGedcom.Click = [&p] { ShowGedcomForm(p.Form12); };
    form.mnuImpSub.Click = [&p] {
        ImportBranch(p);
        LeaveOtherHomes(p);
    };
    form.mnuImpGedcom.Click = [&p] { ConvertGedcom(p); };
    form.mnuCloseDB.Click = [&p] { CloseBranch(p); };
    form.mnuExit.Click = [&p] { ExitProgram(p); };

    form.mnuEdit.Click = [&p] { OpenEditingMenu(p, p.Pictures); };
    form.mnuCopy.Click = [&p] { CopyMapPicture(p.Map, *p.Form1, p.Clipboard); };
    form.mnuPaste.Click = [&p] { PasteMapPicture(p.Map, *p.Form1, p.Clipboard); };
    form.mnuDataBase.Click = [&p] { std::ignore = TellIfNoBranch(p.Branch, p.Form3, p.Prompts); };
    form.mnuViewRecs.Click = [&p] { ShowRecordForm(p, p); };
    form.mnuComp.Click = [&p] { OpenComparison(p, p.Form1); };
    form.mnuDelSub.Click = [&p] { DeleteBranch(p); };
    form.mnuTreeGraphics.Click = [&p] { OpenEditingMenu(p, p.Pictures); };
    form.mnuTreeTools.Click = [&p] { OpenTools(p); };
    form.mnuMapSubject.Click = [&p] { ShowMappingOptions(p.Branch, p.Form3, p.Prompts, p.Form7); };
    form.mnuRemap.Click = [&p] { RemapSubject(p.Branch, p.Form3, p.Prompts, p.Tools, p.Screen); };

    form.mnuHelp.Click = [&p] { OpenFileOrHelpMenu(p); };
    form.mnuConts.Click = [&p] { ShowHelpContents(p.Prompts, p.Branch); };
    form.MnuAbout.Click = [&p] { ShowAbout(p.Prompts); };

    form.VScroll1.Change = [&form] { form.Picture1.Top = -form.VScroll1.Value; };
    form.Picture1.MouseDown = [&p](int, int shift, double x, double y) { PressMap(p, shift, x, y); };
    form.Picture1.MouseMove = [&p](int buttons, int shift, double x, double y) {
        MoveOverMap(p, buttons, shift, x, y);
    };
    form.Picture1.MouseUp = [&p](int, int, double x, double y) { ReleaseMap(p, x, y); };
    form.Picture1.DblClick = [&p] { DoubleClickOnMap(p, p); };
    form.Picture1.Parts = [&p] { return SpokenBoxes(p.Map, p); };

    form.Command1.Click = [&p] { ShowRecordForm(p, p); };
    form.Command2.Click = [&p] { GoToGalleryFromMap(p); };
    form.Command3.Click = [&p] { ViewLineage(p, p.Prompts, p.Loop); };
    form.Command4.Click = [&p] { ClearLineage(p, p.Prompts, p.Loop); };
    form.Command5.Click = [&p] { ReturnToComparison(p, p.Form1); };
    InstallTools(p, form);
}

} // namespace lineforge
