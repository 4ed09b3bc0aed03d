#include "ShellTest.h"
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
