#include "map/tools/MapMouse.h"
#include "program/branch/SiblingBranch.h"
#include "shell/ShellTest.h"

#include <QFile>

namespace lineforge
{
namespace
{

const QStringView title = u"Select AliasList configuration File";
const QStringView filter = u"AliasList.cfg|AliasList.cfg|All Files|*.*|";

class HomeDirectoryTest : public ShellTest
{
protected:
    HomeDirectoryTest()
    {
        GivenSmithsAndJones();
        Other.WriteFile(u"LfgHelp.hlp", "help");
        WriteAliasList(Other, {{u"Browns", u"LfgDat_C"}, {u"Greens", u"LfgDat_D"}});
        P.Form1->Open.Click();
    }

    void PickFile(std::optional<QString> path)
    {
        Prompts.ExpectOpenFile(title, filter, std::move(path));
        P.Form8->Command3.Click();
    }

    void ExpectNothingChanged()
    {
        EXPECT_EQ(P.Branch.HomeDir, Home.Path() + PathSeparator);
        EXPECT_EQ(P.Form8->Label1.Caption.value(), u"Path: "_s + Home.Path() + PathSeparator);
        EXPECT_EQ(P.Form8->List1.Items.value(), (QStringList{u"Smiths"_s, u"Jones"_s}));
    }

    TemporaryHome Other;
};

TEST_F(HomeDirectoryTest, PickedRegistry_MakesItsDirectoryTheHome_AndListsItsBranches)
{
    PickFile(Other.Path(u"AliasList.cfg"));

    EXPECT_EQ(P.Branch.HomeDir, Other.Path() + PathSeparator);
    EXPECT_EQ(P.Form8->Label1.Caption.value(), u"Path: "_s + Other.Path() + PathSeparator);
    EXPECT_EQ(P.Form8->List1.Items.value(), (QStringList{u"Browns"_s, u"Greens"_s}));
    EXPECT_EQ(P.Alias.AliasTable[0], u"Browns=LfgDat_C"_s);
}

TEST_F(HomeDirectoryTest, BranchesOfTheNewHome_OpenFromThere_WithoutACopy)
{
    BranchBuilder(Other, u'C')
        .Row({{u"File", u"C001"}, {u"Forename", u"Anne"}})
        .Picture(u"C001", Qt::red)
        .Boxes(u"1200,600,255,C001,,")
        .Lines(u"1507,817,2307,817,0,")
        .Build();
    const Tree before = Home.Snapshot();
    PickFile(Other.Path(u"AliasList.cfg"));

    P.Form8->List1.SetText(u"Browns"_s);
    P.Form8->Command1.Click();

    EXPECT_EQ(P.Branch.WorkDir, Other.Path(u"LfgDat_C"));
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"Anne"_s);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(HomeDirectoryTest, NewHome_HoldsToTheEndOfTheRun_AndTheProgramsOwnFilesAreLookedForThere)
{
    PickFile(Other.Path(u"AliasList.cfg"));
    P.Form8->Command2.Click();
    P.Form1->mnuCloseDB.Click();

    P.Form1->Open.Click();

    EXPECT_EQ(P.Form8->List1.Items.value(), (QStringList{u"Browns"_s, u"Greens"_s}));
    Prompts.ExpectHelp(Other.Path(u"LfgHelp.hlp"));
    P.Form1->mnuConts.Click();
}

TEST_F(HomeDirectoryTest, OpenBranchOfTheOldHome_StaysOpen_AndIsSavedToItsOwnPlace)
{
    P.Form8->List1.SetText(u"Smiths"_s);
    P.Form8->Command1.Click();
    P.Form1->Open.Click();
    PickFile(Other.Path(u"AliasList.cfg"));
    P.Form8->Command2.Click();
    MoveFirstBoxTo(1300);
    const Tree others = Other.Snapshot();

    Click(P.Form1->mnuExit.Click);

    EXPECT_TRUE(MapOf(u'A').contains("1300,600,255,A001"));
    EXPECT_EQ(Differences(others, Other.Snapshot()), QStringList());
}

class HomeOnSiblingTest : public HomeDirectoryTest
{
protected:
    HomeOnSiblingTest()
    {
        P.Form8->List1.SetText(u"Smiths"_s);
        P.Form8->Command1.Click();
        SwitchToSibling(P, u"B");
        P.Form1->Open.Click();
    }

    // A double click on an own box; the record of the other branch is left by it.
    void DoubleClickFirstBox()
    {
        P.Form8->Command2.Click();
        PressMap(P, 0, 1300, 700);
        P.Form1->Picture1.DblClick();
        ASSERT_EQ(P.Branch.UsingAlternate, 0);
        ASSERT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    }
};

TEST_F(HomeOnSiblingTest, NewHome_HoldsBeyondTheReturnToTheMapsOwnBranch)
{
    PickFile(Other.Path(u"AliasList.cfg"));
    DoubleClickFirstBox();

    EXPECT_EQ(P.Branch.HomeDir, Other.Path() + PathSeparator);
    P.Form1->Open.Click();
    EXPECT_EQ(P.Form8->List1.Items.value(), (QStringList{u"Browns"_s, u"Greens"_s}));
}

TEST_F(HomeOnSiblingTest, RefusedRegistry_LeavesTheOldHomeBeyondIt)
{
    Other.MakeReadOnly(u"AliasList.cfg");
    Prompts.ExpectOpenFile(title, filter, Other.Path(u"AliasList.cfg"));
    Prompts.Expect(u"File Attribute set for Read Only.",
                   u"Cannot access a Read Only File. Use 'Import File' to read this File.", Buttons::Information);
    P.Form8->Command3.Click();
    DoubleClickFirstBox();

    EXPECT_EQ(P.Branch.HomeDir, Home.Path() + PathSeparator);
}

TEST_F(HomeDirectoryTest, Cancel_ChangesNothing)
{
    PickFile({});

    ExpectNothingChanged();
}

TEST_F(HomeDirectoryTest, FileThatIsntThere_ChangesNothing)
{
    PickFile(Other.Path(u"missing/AliasList.cfg"));

    ExpectNothingChanged();
}

TEST_F(HomeDirectoryTest, ReadOnlyRegistry_IsRefused_AndEverythingStaysAsItWas)
{
    Other.MakeReadOnly(u"AliasList.cfg");
    P.Branch.WorkDir = Home.Path(u"LfgDat_A");
    const QString others = u"Path: "_s + Other.Path() + PathSeparator;
    Prompts.ExpectOpenFile(title, filter, Other.Path(u"AliasList.cfg"));
    Prompts.Expect(u"File Attribute set for Read Only.",
                   u"Cannot access a Read Only File. Use 'Import File' to read this File.", Buttons::Information,
                   Answer::Ok, [&] { EXPECT_EQ(P.Form8->Label1.Caption.value(), others); });

    P.Form8->Command3.Click();

    ExpectNothingChanged();
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(P.Alias.AliasAttr, 0);
    EXPECT_EQ(P.Alias.sAliasList, u"Smiths=LfgDat_A,Jones=LfgDat_B,"_s);
}

TEST_F(HomeDirectoryTest, AfterARefusedRegistry_AWritableOneIsTaken)
{
    Other.MakeReadOnly(u"AliasList.cfg");
    Prompts.ExpectOpenFile(title, filter, Other.Path(u"AliasList.cfg"));
    Prompts.Expect(u"File Attribute set for Read Only.",
                   u"Cannot access a Read Only File. Use 'Import File' to read this File.", Buttons::Information);
    P.Form8->Command3.Click();
    Other.MakeWritable(u"AliasList.cfg");

    PickFile(Other.Path(u"AliasList.cfg"));

    EXPECT_EQ(P.Branch.HomeDir, Other.Path() + PathSeparator);
}

TEST_F(HomeDirectoryTest, RegistrySpeltInAnotherCase_IsTaken)
{
    QFile::rename(Other.Path(u"AliasList.cfg"), Other.Path(u"ALIASLIST.CFG"));

    PickFile(Other.Path(u"ALIASLIST.CFG"));

    EXPECT_EQ(P.Form8->List1.Items.value(), (QStringList{u"Browns"_s, u"Greens"_s}));
}

TEST_F(HomeDirectoryTest, RegistryWithoutBranches_LeavesTheListAsItWas)
{
    WriteAliasList(Other, {});

    PickFile(Other.Path(u"AliasList.cfg"));

    EXPECT_EQ(P.Branch.HomeDir, Other.Path() + PathSeparator);
    EXPECT_EQ(P.Form8->List1.Items.value(), (QStringList{u"Smiths"_s, u"Jones"_s}));
}

TEST_F(HomeDirectoryTest, RegistryCutOffInItsList_EndsTheProgram_WithNothingChangedOnDisk)
{
    Other.WriteFile(u"AliasList.cfg", "[Alias]\r\n[Browns=LfgDat_C,");
    const Tree before = Other.Snapshot();
    Prompts.ExpectOpenFile(title, filter, Other.Path(u"AliasList.cfg"));
    ExpectFatalBox(u"Run-time error '62':\n\nInput past end of file",
                   u"This file ends too early:\n"_s + Other.Path(u"AliasList.cfg"));

    Click(P.Form8->Command3.Click);

    EXPECT_EQ(ExitCode(), 1);
    EXPECT_EQ(Differences(before, Other.Snapshot()), QStringList());
}

} // namespace
} // namespace lineforge
