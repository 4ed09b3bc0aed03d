#include "forms/Form5.h"
#include "gallery/AddFile.h"
#include "gallery/DeleteFile.h"
#include "gallery/GalleryItem.h"
#include "gallery/GalleryPage.h"
#include "gallery/TileClick.h"
#include "output/PrintWindow.h"
#include "shell/handlers/InstallHandlers.h"
#include "shell/run/Exit.h"
#include "shell/run/GalleryDoors.h"
#include "shell/run/Help.h"

namespace lineforge
{

namespace
{
void InstallMenus(Program& p, forms::Form5& form)
{
    form.mnuExit.Click = [&p] { ExitFromGallery(p); };
    form.mnuEdit.Click = [&p] { CancelDeletion(p.Scratch); };
    form.mnuPic.Click = [&p] { AddGalleryFile(p, GalleryKind::Picture); };
    form.mnuAud.Click = [&p] { AddGalleryFile(p, GalleryKind::Sound); };
    form.mnuVid.Click = [&p] { AddGalleryFile(p, GalleryKind::Video); };
    form.mnuTxt.Click = [&p] { AddGalleryFile(p, GalleryKind::Text); };
    form.MnuDeleteFile.Click = [&p] { BeginDeletion(p); };
    form.mnuPrintSetup.Click = [&p] { p.Prompts.PickPrinter(); };
    form.mnuPrintpic.Click = [&p, &form] { PrintGalleryWindow(form, p.Printer, p.Errors); };
    form.mnuHelp.Click = [&p] { ShowHelpContents(p.Prompts, p.Branch); };
}
} // namespace

void InstallForm5(Program& p, forms::Form5& form)
{
    form.Load = [&p, &form] {
        LoadImageGrid(form, p.Screen);
        for (int index = 0; index <= forms::Form5::LastTile; ++index)
            form.Image1[index].DragDrop = [&p, index](Image& source) { DropOnTile(p, p.Form1, index, source); };
    };
    form.Unloading = [&p] { ForgetPage(p.Gallery); };
    // Unloaded, the form would forget its page: its frame leads back to the map.
    form.CloseByFrame = [&p] { LeaveGalleryForTree(p); };

    InstallMenus(p, form);
    form.Command1.Click = [&p] { LeaveGalleryForTree(p); };
    form.Command2.Click = [&p] { LeaveGalleryForRecords(p); };
    form.Command3.Click = [&p] { ExitSoundPlayer(p); };
    form.Command4.Click = [&p] { ExitVideoPlayer(p); };
}

} // namespace lineforge
