#include "shell/ShellTest.h"
#include "support/SqliteFile.h"

namespace lineforge
{
namespace
{

class ExitTest : public ShellTest
{
protected:
    ExitTest() { GivenSmithsAndJones(); }

    // The windows as a user may have them open when it ends.
    void GivenAllWindows()
    {
        P.Form2.Load();
        P.Form3.Load();
        P.Form4.Load();
        P.Form6.Load();
        P.Form7.Load();
        P.Form8.Load();
        P.Form11.Load();
        P.Form12.Load();
    }

    void Exit() { Click(P.Form1->mnuExit.Click); }
    void CloseByFrame() { Click(P.Form1->CloseByFrame); }

    void ExpectAllOthersUnloaded()
    {
        EXPECT_FALSE(P.Form2.IsLoaded());
        EXPECT_FALSE(P.Form3.IsLoaded());
        EXPECT_FALSE(P.Form4.IsLoaded());
        EXPECT_FALSE(P.Form5.IsLoaded());
        EXPECT_FALSE(P.Form6.IsLoaded());
        EXPECT_FALSE(P.Form7.IsLoaded());
        EXPECT_FALSE(P.Form8.IsLoaded());
        EXPECT_FALSE(P.form9.IsLoaded());
        EXPECT_FALSE(P.Form12.IsLoaded());
    }
};

TEST_F(ExitTest, ExitCommand_SavesTheBoxes_AndEndsWithCodeZero)
{
    Choose(u"Smiths");
    MoveFirstBoxTo(1300);
    const QByteArray before = MapOf(u'A');

    Exit();

    EXPECT_EQ(ExitCode(), 0);
    EXPECT_EQ(MapOf(u'A'), QByteArray(before).replace("1200,600,255,A001", "1300,600,255,A001"));
    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgDat_A.~cf"), before);
}

TEST_F(ExitTest, Frame_DoesNotSaveTheBoxes_AndEndsWithCodeZero)
{
    Choose(u"Smiths");
    MoveFirstBoxTo(1300);
    const Tree before = Home.Snapshot();

    CloseByFrame();

    EXPECT_EQ(ExitCode(), 0);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(ExitTest, ExitCommand_UnloadsAllWindows)
{
    GivenAllWindows();

    Exit();

    ExpectAllOthersUnloaded();
    EXPECT_FALSE(P.Form11.IsLoaded());
}

TEST_F(ExitTest, Frame_UnloadsAllWindows)
{
    GivenAllWindows();

    CloseByFrame();

    ExpectAllOthersUnloaded();
}

TEST_F(ExitTest, ExitFromTheGallery_ClosesTheBranch_AndEndsWithCodeZero)
{
    GivenAllWindows();
    Choose(u"Smiths");
    MoveFirstBoxTo(1300);
    P.Form3->Text3.Text = u"Anne"_s;
    bool isClosed = false;
    P.Form5->MMControl1.Act = [&](QStringView command) { isClosed = isClosed || command == u"Close"; };

    Click(P.Form5->mnuExit.Click);

    EXPECT_EQ(ExitCode(), 0);
    EXPECT_TRUE(isClosed);
    EXPECT_TRUE(MapOf(u'A').contains("1300,600,255,A001"));
    EXPECT_EQ(P.Branch.WorkDir, QString());
    EXPECT_EQ(SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb")).Value("SELECT Forename FROM Tree99 WHERE File = 'A001'"),
              u"Anne"_s);
    ExpectAllOthersUnloaded();
    EXPECT_FALSE(P.Form11.IsLoaded());
}

// Ends with all windows loaded and the tools open; what is done is told in its order.
class ExitOrderTest : public ExitTest
{
protected:
    ExitOrderTest()
    {
        Choose(u"Smiths");
        GivenAllWindows();
        P.form9->imgLogo.Visible = true; // made, without the start that its loading is
        P.Form1->mnuTreeTools.Click();
        MoveFirstBoxTo(1300);
        Tell(P.Form1, P.Form2, P.Form3, P.Form4, P.Form5, P.Form6, P.Form7, P.Form8, P.form9, P.Form11, P.Form12);
        P.Form1->MMControl1.Act = [this](QStringView command) { Story += u"map "_s + command; };
        P.Form5->MMControl1.Act = [this](QStringView command) { Story += u"gallery "_s + command; };
    }

    template <class... Windows>
    void Tell(Windows&... windows)
    {
        (TellWhenItGoes(*windows), ...);
    }

    void TellWhenItGoes(Form& form)
    {
        form.Unloading = [this, name = form.Name, unloading = form.Unloading] {
            Story += name;
            Fire(unloading);
        };
    }

    // Asked after the boxes have been written, or before.
    void ExpectToolsQuestion(int boxOnDisk)
    {
        Prompts.Expect(u"Closing Graphics Tools", u"Save the Tree Graphic changes ?", Buttons::InformationYesNo,
                       Answer::No, [this, boxOnDisk] {
                           Story += u"tools"_s;
                           EXPECT_TRUE(
                               MapOf(u'A').contains(QByteArray(QByteArray::number(boxOnDisk) + ",600,255,A001")));
                       });
    }

    static constexpr int moved = 1300;
    static constexpr int unmoved = 1200;
    QStringList Story;
};

// The gallery lets go of its sound once more when it goes.
const QStringList windowsGo{u"map Close"_s, u"gallery Close"_s, u"Form2"_s, u"Form3"_s, u"Form4"_s,
                            u"Form5"_s,     u"gallery Close"_s, u"Form6"_s, u"Form7"_s, u"Form8"_s,
                            u"form9"_s,     u"Form11"_s,        u"Form12"_s};

TEST_F(ExitOrderTest, Command_BoxesToolsMedia_ThenTheWindows)
{
    ExpectToolsQuestion(moved);
    Exit();
    EXPECT_EQ(Story, QStringList({u"tools"_s, u"gallery Close"_s, u"Form1"_s}) + windowsGo);
}

TEST_F(ExitOrderTest, Frame_ToolsMedia_ThenTheWindows_AndTheBoxesStayAsTheyWere)
{
    ExpectToolsQuestion(unmoved);
    CloseByFrame();
    EXPECT_EQ(Story, QStringList({u"Form1"_s, u"tools"_s}) + windowsGo);
}

TEST_F(ExitOrderTest, CommandOfTheRecordForm_IsTheSame)
{
    ExpectToolsQuestion(moved);
    Click(P.Form3->mnuExit.Click);
    EXPECT_EQ(Story, QStringList({u"tools"_s, u"gallery Close"_s, u"Form1"_s}) + windowsGo);
}

// The branch is closed as by Close DataBase, which takes most windows with it; the gallery is made again to be told to
// close its sound.
TEST_F(ExitOrderTest, CommandOfTheGallery_ClosesTheBranchFirst)
{
    ExpectToolsQuestion(unmoved);
    Click(P.Form5->mnuExit.Click);
    EXPECT_EQ(Story, QStringList({u"tools"_s, u"gallery Close"_s, u"Form2"_s, u"Form3"_s, u"Form4"_s, u"Form5"_s,
                                  u"gallery Close"_s, u"Form6"_s, u"Form7"_s, u"Form8"_s, u"form9"_s, u"Form1"_s,
                                  u"map Close"_s, u"Form11"_s, u"Form12"_s}));
    EXPECT_EQ(Machine.Windows.RetiredNames.count(u"Form5"_s), 2);
    EXPECT_EQ(ExitCode(), 0);
}

class BothExitsTest : public ExitTest, public testing::WithParamInterface<bool>
{
protected:
    void End()
    {
        if (GetParam())
            CloseByFrame();
        else
            Exit();
    }
};

TEST_P(BothExitsTest, MediaOfMainWindowAndGallery_AreClosed)
{
    int mainClosed = 0;
    int galleryClosed = 0;
    P.Form1->MMControl1.Act = [&](QStringView command) { mainClosed += command == u"Close"; };
    P.Form5->MMControl1.Act = [&](QStringView command) { galleryClosed += command == u"Close"; };

    End();

    EXPECT_GE(mainClosed, 1);
    EXPECT_GE(galleryClosed, 1);
}

TEST_P(BothExitsTest, EditStillPendingOnTheRecordForm_IsWritten)
{
    Choose(u"Smiths");
    P.Form3->Text3.Text = u"Anne"_s;

    End();

    EXPECT_EQ(SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb")).Value("SELECT Forename FROM Tree99 WHERE File = 'A001'"),
              u"Anne"_s);
}

TEST_P(BothExitsTest, AfterCloseDatabase_TheGalleryWindowIsMadeAgain_OnlyToBeUnloaded)
{
    Choose(u"Smiths");
    P.Form1->mnuCloseDB.Click();

    End();

    EXPECT_EQ(ExitCode(), 0);
    ExpectAllOthersUnloaded();
}

INSTANTIATE_TEST_SUITE_P(Exits, BothExitsTest, testing::Bool(),
                         [](const auto& path) { return path.param ? "ByFrame" : "ByCommand"; });

TEST_F(ExitTest, ExitCommandWithNoBranchOpen_StillWritesAMap_AtTheRootWhichIsTheHomeDirectory)
{
    const Tree before = Home.Snapshot();

    Exit();

    EXPECT_EQ(ExitCode(), 0);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList{u"new: .cfg"_s});
    EXPECT_EQ(Home.ReadFile(u".cfg"), QByteArray("This File Contains Graphic Data crucial to your program. "
                                                 "Warning: DO NOT MODIFY.\r\n"
                                                 "[]\r\n[Boxes]\r\n\r\n[Lines]\r\n\r\n[Text]\r\n\r\n"));
}

TEST_F(ExitTest, FrameWithNoBranchOpen_WritesNothing)
{
    const Tree before = Home.Snapshot();

    CloseByFrame();

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(ExitTest, ReadOnlyMap_EndsTheProgramWithTheRunTimesMessage_AndTheMapAsItWas)
{
    Choose(u"Smiths");
    MoveFirstBoxTo(1300);
    Home.MakeReadOnly(u"LfgDat_A/LfgDat_A.cfg");
    const QByteArray before = MapOf(u'A');
    ExpectFatalBox(u"Run-time error '75':\n\nPath/File access error",
                   u"This can't be opened, made, changed or removed:\n"_s + Home.Path(u"LfgDat_A/LfgDat_A.cfg"));

    Exit();

    EXPECT_EQ(ExitCode(), 1);
    EXPECT_EQ(MapOf(u'A'), before);
    EXPECT_TRUE(P.Form3.IsLoaded());
}

} // namespace
} // namespace lineforge
