#include "shell/run/StartUp.h"

#include "forms/Form1.h"
#include "forms/Form5.h"
#include "forms/form9.h"
#include "platform/drawing/PictureFile.h"
#include "program/branch/AliasList.h"
#include "program/ui/BranchUi.h"
#include "shell/branches/HomeInUse.h"

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
// The splash is placed in points of 15 twips, which grow with the windows' scale and are no dots of the screen.
constexpr int twipsPerPoint = 15;

void PrepareSound(MultimediaControl& player)
{
    player.Notify = false;
    player.Wait = true;
    player.Shareable = false;
    player.DeviceType = u"WavAudio"_s;
}

// The program stands still while the sound plays.
void ShowSplash(Program& p)
{
    forms::form9& splash = *p.form9;
    splash.Topmost = true;
    splash.Left = 150 * twipsPerPoint;
    splash.Top = 150 * twipsPerPoint;
    splash.Width = 500 * twipsPerPoint;
    splash.Height = 300 * twipsPerPoint;
    // A home without the picture still starts.
    p.Errors.Ignoring([&] { splash.imgLogo.Picture = LoadPicture(p.Files, p.Branch.HomeDir + u"lineforge.png"); });
    splash.Show();
    p.Loop.DoEvents();

    MultimediaControl& player = splash.MMControl1;
    PrepareSound(player);
    player.FileName = p.Branch.HomeDir + u"LfgOpen.wav";
    for (const auto command : {u"Open", u"Sound", u"Close"})
        player.Command(command);
    p.Loop.DoEvents();
}
} // namespace

void StartProgram(Program& p, const QString& home)
{
    if (!home.isEmpty()) {
        p.FirstHome = home;
        p.Files.ChDir(home);
    }
    if (!MayWorkIn(p.Processes, p.Prompts, p.FirstHome))
        p.Loop.End(0);
    p.form9.Load();
}

void LoadSplash(Program& p)
{
    p.Branch.HomeDir = p.FirstHome;
    p.Scratch.sPath = p.Branch.HomeDir;
    ReadAliasConfig(p);

    // A missing list has unloaded the splash.
    if (p.form9.IsLoaded() && !p.Alias.IsSplashOff())
        ShowSplash(p);

    p.Form1.Load();
    p.Form5.Load();
    p.Form1->Show();
}

void ChooseSplash(Program& p)
{
    // Taken before the list is read: should that be missing, the splash goes, and touching it would start all anew.
    const int choice = p.form9->Check1.Value ? 1 : 0;
    // Ticked while the splash still stands alone: the list must be there before it is written again.
    if (!p.Form1.IsLoaded())
        ReadAliasList(p);
    p.Alias.NoSplash = choice;
    WriteAliasList(p);
}

void LoadMainWindow(Program& p)
{
    forms::Form1& form = *p.Form1;
    FillScreen(form, p.Screen, 400);

    p.Branch.HomeDir = p.FirstHome;
    ReadAliasList(p);
    DisableBranchUI(*p.Form1);
    p.Gallery.FirstShow = 1;

    // Opened before its file has a name; the name serves the commands that come later.
    PrepareSound(form.MMControl1);
    form.MMControl1.Command(u"Open");
    form.MMControl1.FileName = p.Branch.HomeDir + u"click.wav";
}

} // namespace lineforge
