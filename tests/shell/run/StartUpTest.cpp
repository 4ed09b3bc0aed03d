#include "program/branch/AliasList.h"
#include "shell/ShellTest.h"
#include "shell/handlers/InstallHandlers.h"

#include <QFile>

namespace lineforge
{
namespace
{

class StartUpTest : public ShellTest
{
protected:
    StartUpTest()
    {
        P.form9.Install = [this](forms::form9& form) {
            InstallForm9(P, form);
            Listen(form.MMControl1);
        };
        P.Form1.Install = [this](forms::Form1& form) {
            InstallForm1(P, form);
            Listen(form.MMControl1);
        };
    }

    void GivenSplashIsOn() { WriteAliasList(Home, {{u"Smiths", u"LfgDat_A"}}, 0); }
    void GivenSplashIsOff() { WriteAliasList(Home, {{u"Smiths", u"LfgDat_A"}}, 1); }

    void GivenReadOnlyRegistry()
    {
        GivenSplashIsOn();
        Home.MakeReadOnly(u"AliasList.cfg");
    }

    void NoteYields(int count)
    {
        for (int yield = 0; yield < count; ++yield)
            Machine.Loop.AtNextYield([this] { Happened += u"yield"_s; });
    }

    void ExpectMissingBox(ScriptedPrompts::WhileOpen whileOpen = {})
    {
        Prompts.Expect(u"File not Found.", u"Can't find AliasList.cfg in Home Directory", Buttons::Information,
                       Answer::Ok, std::move(whileOpen));
    }

    void ExpectReadOnlyBox()
    {
        Prompts.Expect(u"File Attribute set for Read Only.",
                       u"Cannot access a Read Only File. Use 'Import File' to read this File.", Buttons::Information);
    }

    QStringList Happened;

private:
    void Listen(MultimediaControl& player)
    {
        player.Act = [this, &player](QStringView command) {
            // A window that goes closes its player, prepared or not.
            if (player.DeviceType.isEmpty())
                return;
            Happened += u"%1 %2 %3"_s.arg(command, player.DeviceType, player.FileName.section(u'/', -1)).trimmed();
            EXPECT_TRUE(player.Wait);
            EXPECT_FALSE(player.Notify);
            EXPECT_FALSE(player.Shareable);
        };
    }
};

TEST_F(StartUpTest, NamedHome_IsTheHomeFromTheFirstReadingOn)
{
    GivenSplashIsOff();
    Home.WriteFile(u"elsewhere/AliasList.cfg", "header\r\n[Alias]\r\n[Jones=LfgDat_B,]\r\n[CFG]\r\n[1,]\r\n");
    StartProgram(P, Home.Path(u"elsewhere/"));
    EXPECT_EQ(P.Branch.HomeDir, Home.Path(u"elsewhere/"));
    EXPECT_EQ(P.Alias.sAliasList, u"Jones=LfgDat_B,");
    EXPECT_EQ(P.Files.CurDir(), Home.Path(u"elsewhere"));
    EXPECT_EQ(P.Scratch.sPath, Home.Path(u"elsewhere/"));
}

TEST_F(StartUpTest, Windows_ComeInTheirOrder_AndNoOthers)
{
    GivenSplashIsOn();

    StartProgram(P);

    EXPECT_EQ(Machine.Windows.MadeNames, (QStringList{u"form9"_s, u"Form1"_s, u"Form5"_s}));
    EXPECT_EQ(Machine.Windows.RetiredNames, QStringList());
    EXPECT_TRUE(P.Form1->Visible);
    EXPECT_FALSE(P.Form5->Visible);
}

TEST_F(StartUpTest, Splash_StandsTopmostAtItsPlace_AndStaysUp)
{
    GivenSplashIsOn();

    StartProgram(P);

    const forms::form9& splash = *P.form9;
    EXPECT_TRUE(splash.Visible);
    EXPECT_TRUE(splash.Topmost);
    EXPECT_TRUE(splash.Frameless);
    EXPECT_EQ(splash.Left, 150 * 15);
    EXPECT_EQ(splash.Top, 150 * 15);
    EXPECT_EQ(splash.Width, 500 * 15);
    EXPECT_EQ(splash.Height, 300 * 15);
    EXPECT_EQ(splash.Caption.value(), QString());
}

TEST_F(StartUpTest, OpeningSound_PlaysBetweenTwoYields_WhileTheMainWindowIsntThereYet)
{
    GivenSplashIsOn();
    NoteYields(2);

    StartProgram(P);

    EXPECT_EQ(Happened, (QStringList{u"yield"_s, u"Open WavAudio LfgOpen.wav"_s, u"Sound WavAudio LfgOpen.wav"_s,
                                     u"Close WavAudio LfgOpen.wav"_s, u"yield"_s, u"Open WavAudio"_s}));
    EXPECT_EQ(Machine.Loop.Yields, 2);
    EXPECT_EQ(P.form9->MMControl1.FileName, Home.Path(u"LfgOpen.wav"));
}

TEST_F(StartUpTest, WithNoSplash1_NothingIsPlayed_AndTheMainWindowAppearsDirectly)
{
    GivenSplashIsOff();

    StartProgram(P);

    EXPECT_EQ(Happened, QStringList{u"Open WavAudio"_s});
    EXPECT_EQ(Machine.Loop.Yields, 0);
    EXPECT_FALSE(P.form9->Visible);
    EXPECT_TRUE(P.Form1->Visible);
}

TEST_F(StartUpTest, AnyOtherSetting_ShowsTheSplash)
{
    WriteAliasList(Home, {}, 2);

    StartProgram(P);

    EXPECT_TRUE(P.form9->Visible);
}

TEST_F(StartUpTest, HomeDirectory_IsTheExecutables_AndTheGeneralPathBeginsThere)
{
    GivenSplashIsOn();
    P.Branch.HomeDir.clear();

    StartProgram(P);

    EXPECT_EQ(P.Branch.HomeDir, Home.Path() + PathSeparator);
    EXPECT_EQ(P.Scratch.sPath, P.Branch.HomeDir);
    EXPECT_EQ(P.Branch.WorkDir, QString());
    EXPECT_EQ(P.Branch.sDbaseName, QString());
}

TEST_F(StartUpTest, MainWindow_FillsTheScreenButForAStripBelow)
{
    GivenSplashIsOff();

    StartProgram(P);

    EXPECT_EQ(P.Form1->Left, 0);
    EXPECT_EQ(P.Form1->Top, 0);
    EXPECT_EQ(P.Form1->Width, Machine.Screen.Width);
    EXPECT_EQ(P.Form1->Height, Machine.Screen.Height - 400);
    EXPECT_EQ(P.Form1->Client, (Size{11880, 8190}));
}

TEST_F(StartUpTest, MainWindow_ReadsTheList_AndAsksForAGalleryPage)
{
    GivenSplashIsOff();

    StartProgram(P);

    EXPECT_EQ(P.Alias.AliasTable[0], u"Smiths=LfgDat_A"_s);
    EXPECT_EQ(P.Alias.sAliasList, u"Smiths=LfgDat_A,"_s);
    EXPECT_EQ(P.Gallery.FirstShow, 1);
}

TEST_F(StartUpTest, ClickSound_IsOpenedBeforeItHasItsName)
{
    GivenSplashIsOff();

    StartProgram(P);

    EXPECT_EQ(Happened.last(), u"Open WavAudio"_s);
    EXPECT_EQ(P.Form1->MMControl1.FileName, Home.Path(u"click.wav"));
}

TEST_F(StartUpTest, MissingRegistry_IsToldByBothReaders_UnloadsTheSplash_AndTheStartGoesOn)
{
    ExpectMissingBox([&] {
        EXPECT_FALSE(P.form9.IsLoaded());
        EXPECT_FALSE(P.Form1.IsLoaded());
    });
    ExpectMissingBox([&] { EXPECT_TRUE(P.Form1.IsLoaded()); });
    const Tree before = Home.Snapshot();

    StartProgram(P);

    EXPECT_EQ(Happened, QStringList{u"Open WavAudio"_s});
    EXPECT_FALSE(P.form9.IsLoaded());
    EXPECT_TRUE(P.Form1->Visible);
    EXPECT_EQ(P.Alias.sAliasList, QString());
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(StartUpTest, ReadOnlyRegistry_IsToldByBothReaders_AndTheStartGoesOnWithoutAList)
{
    GivenReadOnlyRegistry();
    ExpectReadOnlyBox();
    ExpectReadOnlyBox();

    StartProgram(P);

    EXPECT_TRUE(P.form9->Visible);
    EXPECT_TRUE(P.Form1->Visible);
    EXPECT_EQ(P.Alias.sAliasList, QString());
    EXPECT_EQ(P.Alias.AliasAttr, 1);
}

class SplashTest : public StartUpTest
{
protected:
    SplashTest()
    {
        GivenSplashIsOn();
        StartProgram(P);
    }

    void Tick(bool value)
    {
        P.form9->Check1.Value = value;
        P.form9->Check1.Click();
    }
};

TEST_F(SplashTest, Click_OnItsFrame_DismissesIt)
{
    P.form9->Frame1.Click();
    EXPECT_FALSE(P.form9.IsLoaded());
}

TEST_F(SplashTest, Click_OnTheBareMainWindow_DismissesIt)
{
    P.Form1->Click();
    EXPECT_FALSE(P.form9.IsLoaded());
}

TEST_F(SplashTest, OpeningTheFileMenu_DismissesIt)
{
    P.Form1->mnuFile.Click();
    EXPECT_FALSE(P.form9.IsLoaded());
}

TEST_F(SplashTest, OpeningTheHelpMenu_DismissesIt)
{
    P.Form1->mnuHelp.Click();
    EXPECT_FALSE(P.form9.IsLoaded());
}

TEST_F(SplashTest, CloseDatabase_DismissesIt)
{
    P.Form1->mnuCloseDB.Click();
    EXPECT_FALSE(P.form9.IsLoaded());
}

TEST_F(SplashTest, ClickOnTheMap_LeavesIt)
{
    PictureBox& map = P.Form1->Picture1;
    for (const PictureBox::MouseEvent& event : {map.MouseDown, map.MouseMove, map.MouseUp})
        if (event)
            event(1, 0, 300, 300);

    EXPECT_TRUE(P.form9.IsLoaded());
    EXPECT_TRUE(P.form9->Visible);
}

TEST_F(SplashTest, OtherMenus_LeaveIt)
{
    P.Form1->mnuEdit.Click();
    P.Form1->mnuTreeGraphics.Click();

    EXPECT_TRUE(P.form9.IsLoaded());
}

TEST_F(SplashTest, TickingTheBox_WritesTheSettingAtOnce)
{
    const QByteArray before = Registry();

    Tick(true);

    EXPECT_EQ(P.Alias.NoSplash, 1);
    EXPECT_EQ(Registry(), QByteArray(before).replace("[0,]", "[1,]"));
    EXPECT_EQ(Home.ReadFile(u"AliasList.bak"), before);
}

TEST_F(SplashTest, TakingTheTickBack_WritesThatToo)
{
    const QByteArray before = Registry();
    Tick(true);

    Tick(false);

    EXPECT_EQ(P.Alias.NoSplash, 0);
    EXPECT_EQ(Registry(), before);
}

class EarlyTickTest : public StartUpTest, public testing::WithParamInterface<int>
{
};

TEST_P(EarlyTickTest, TickingTheBoxBeforeTheMainWindowHasLoaded_KeepsTheRegistry)
{
    GivenSplashIsOn();
    const QByteArray before = Registry();
    NoteYields(GetParam() - 1);
    Machine.Loop.AtNextYield([&] {
        EXPECT_FALSE(P.Form1.IsLoaded());
        P.form9->Check1.Value = true;
        P.form9->Check1.Click();
    });

    StartProgram(P);

    EXPECT_EQ(Machine.Loop.Yields, 2);
    EXPECT_EQ(Registry(), QByteArray(before).replace("[0,]", "[1,]"));
    EXPECT_EQ(P.Alias.AliasTable[0], u"Smiths=LfgDat_A"_s);
}

INSTANTIATE_TEST_SUITE_P(Yields, EarlyTickTest, testing::Values(1, 2));

TEST_F(StartUpTest, RegistryThatGoesWhileTheSplashStands_DoesNotStartTheProgramTwiceWhenTheBoxIsTicked)
{
    GivenSplashIsOn();
    Machine.Loop.AtNextYield([&] {
        QFile::remove(Home.Path(u"AliasList.cfg"));
        P.form9->Check1.Value = true;
        P.form9->Check1.Click();
    });
    ExpectMissingBox();

    StartProgram(P);

    EXPECT_EQ(Machine.Windows.MadeNames, (QStringList{u"form9"_s, u"Form1"_s, u"Form5"_s}));
    EXPECT_EQ(P.Alias.NoSplash, 1);
}

TEST_F(StartUpTest, SplashDismissedWhileItsSoundIsAwaited_LetsTheStartGoOn)
{
    GivenSplashIsOn();
    Machine.Loop.AtNextYield([&] { P.form9->Frame1.Click(); });

    StartProgram(P);

    EXPECT_FALSE(P.form9.IsLoaded());
    EXPECT_TRUE(P.Form1->Visible);
}

TEST_F(StartUpTest, TickingTheBoxOfAReadOnlyRegistry_EndsTheProgram_AndChangesNothing)
{
    GivenReadOnlyRegistry();
    ExpectReadOnlyBox();
    ExpectReadOnlyBox();
    StartProgram(P);
    const QByteArray before = Registry();
    ExpectFatalBox(u"Run-time error '75':\n\nPath/File access error",
                   u"This can't be opened, made, changed or removed:\n"_s + Home.Path(u"AliasList.cfg"));

    P.form9->Check1.Value = true;
    Click(P.form9->Check1.Click);

    EXPECT_EQ(ExitCode(), 1);
    EXPECT_EQ(Registry(), before);
}

struct SplashLabel {
    Label forms::form9::*Shown;
    QStringView Caption;
};

void PrintTo(const SplashLabel& label, std::ostream* out)
{
    PrintTo(label.Caption, out);
}

class SplashLabelTest : public SplashTest, public testing::WithParamInterface<SplashLabel>
{
};

TEST_P(SplashLabelTest, Label_ShowsItsTextInArial)
{
    const Label& label = (*P.form9).*GetParam().Shown;

    EXPECT_EQ(label.Caption.value(), GetParam().Caption);
    EXPECT_EQ(label.Font.Name, u"Arial"_s);
    EXPECT_TRUE(label.Visible);
}

using F9 = forms::form9;

INSTANTIATE_TEST_SUITE_P(
    Labels, SplashLabelTest,
    testing::Values(SplashLabel{&F9::lblProductName, u"Lineforge"},
                    SplashLabel{&F9::lblCompanyProduct, u"Tarnwick Technology"},
                    SplashLabel{&F9::lblCompany, u"Tarnwick Technology"},
                    SplashLabel{&F9::lblPlatform, u"Genealogical Database for Amateurs and Professionals"},
                    SplashLabel{&F9::lblVersion, u"Version 1.2"},
                    SplashLabel{&F9::lblWarning,
                                u"Disclaimer: While every endeavour is made to ensure that this product will operate "
                                u"trouble free, the user accepts all responsibilities for its use. "}));

TEST_F(SplashTest, CheckBox_SaysWhatItDoes_AndIsNotTicked)
{
    EXPECT_EQ(P.form9->Check1.Caption.value(), u"Don't show this screen again."_s);
    EXPECT_FALSE(P.form9->Check1.Value);
}

} // namespace
} // namespace lineforge
