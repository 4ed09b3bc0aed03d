#include "shell/ShellTest.h"

// Another run of the program works in the home already.
namespace lineforge
{
namespace
{

class HomeInUseTest : public ShellTest
{
protected:
    void Start()
    {
        RunHandler(P, [this] { StartProgram(P); });
    }

    void ExpectTold(const QString& home)
    {
        const QString text =
            u"Lineforge is open in this Home Directory already, and has been called to the front:\n"_s + home;
        Prompts.Expect(u"Home Directory in use", text, Buttons::Information);
    }
    void ExpectQuestion(const QString& home, Answer answer)
    {
        const QString text = u"Another Lineforge works in this Home Directory, and doesn't answer:\n"_s + home +
                             u"\nTwo of them may write over each other's maps.\nGo on all the same ?";
        Prompts.Expect(u"Home Directory in use", text, Buttons::QuestionYesNoDefaultNo, answer);
    }

    const QString Here = Home.Path() + PathSeparator;
};

TEST_F(HomeInUseTest, HomeOfNobodyElse_IsClaimedBeforeAnythingIsRead)
{
    GivenRegistry();
    Start();
    EXPECT_EQ(Machine.Processes.Claimed, QStringList(Here));
    EXPECT_TRUE(P.Form1.IsLoaded());
}

TEST_F(HomeInUseTest, NamedHome_IsTheOneThatIsClaimed)
{
    TemporaryHome other;
    WriteAliasList(other, {});
    StartProgram(P, other.Path() + PathSeparator);
    EXPECT_EQ(Machine.Processes.Claimed, QStringList(other.Path() + PathSeparator));
}

TEST_F(HomeInUseTest, OtherRunThatHasComeToTheFront_IsTold_AndThisOneEnds)
{
    GivenRegistry();
    const Tree before = Home.Snapshot();
    Machine.Processes.Owner = HomeOwner::OtherInFront;
    ExpectTold(Here);

    Start();

    EXPECT_EQ(ExitCode(), 0);
    EXPECT_FALSE(P.Form1.IsLoaded());
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(HomeInUseTest, OtherRunThatDoesNotAnswer_WithNo_EndsThisOne)
{
    GivenRegistry();
    Machine.Processes.Owner = HomeOwner::OtherOutOfReach;
    ExpectQuestion(Here, Answer::No);

    Start();

    EXPECT_EQ(ExitCode(), 0);
    EXPECT_FALSE(P.Form1.IsLoaded());
}

TEST_F(HomeInUseTest, OtherRunThatDoesNotAnswer_WithYes_IsPassedOver)
{
    GivenRegistry();
    Machine.Processes.Owner = HomeOwner::OtherOutOfReach;
    ExpectQuestion(Here, Answer::Yes);

    Start();

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_TRUE(P.Form1.IsLoaded());
}

// Change Directory goes to a home that may be in use as well.
class OtherHomeInUseTest : public HomeInUseTest
{
protected:
    OtherHomeInUseTest()
    {
        GivenSmithsAndJones();
        WriteAliasList(Other, {{u"Browns", u"LfgDat_C"}});
        P.Form1->Open.Click();
    }

    void PickOther()
    {
        Prompts.ExpectOpenFile(u"Select AliasList configuration File", u"AliasList.cfg|AliasList.cfg|All Files|*.*|",
                               Other.Path(u"AliasList.cfg"));
    }

    TemporaryHome Other;
    const QString There = Other.Path() + PathSeparator;
};

TEST_F(OtherHomeInUseTest, IsTold_AndTheHomeStays)
{
    Machine.Processes.Owner = HomeOwner::OtherInFront;
    PickOther();
    ExpectTold(There);

    Click(P.Form8->Command3.Click);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(P.Branch.HomeDir, Here);
    EXPECT_EQ(P.Form8->List1.Items.value(), (QStringList{u"Smiths"_s, u"Jones"_s}));
}

// Its map and its records are still in this run.
TEST_F(OtherHomeInUseTest, HomeOfTheOpenBranch_IsKept_UntilThatIsLeft)
{
    BranchBuilder(Other, u'C').Row({{u"File", u"A001"}}).Picture(u"A001", Qt::red).Build();
    P.Form8->List1.ListIndex = 0;
    Click(P.Form8->Command1.Click);
    P.Form1->Open.Click();
    PickOther();
    Click(P.Form8->Command3.Click);
    EXPECT_EQ(Machine.Processes.Kept, QStringList({There, Here}));

    P.Branch.WorkDirSaved = Home.Path(u"LfgDat_A"); // as a visit to a sibling has left it
    P.Form8->List1.ListIndex = 0;
    Click(P.Form8->Command1.Click);

    EXPECT_EQ(P.Branch.sBranchName, u"Browns"_s);
    EXPECT_EQ(Machine.Processes.Kept, QStringList({There, There}));
}

TEST_F(OtherHomeInUseTest, HomeOfTheBranchThatWasOpen_IsLeft_WhenItIsClosed)
{
    P.Form8->List1.ListIndex = 0;
    Click(P.Form8->Command1.Click);
    P.Form1->Open.Click();
    PickOther();
    Click(P.Form8->Command3.Click);

    Click(P.Form1->mnuCloseDB.Click);

    EXPECT_EQ(Machine.Processes.Kept, QStringList{There});
}

TEST_F(OtherHomeInUseTest, WithYes_IsGoneTo)
{
    Machine.Processes.Owner = HomeOwner::OtherOutOfReach;
    PickOther();
    ExpectQuestion(There, Answer::Yes);

    Click(P.Form8->Command3.Click);

    EXPECT_EQ(P.Branch.HomeDir, There);
}

TEST_F(OtherHomeInUseTest, HomeThatCannotBeWritten_IsGivenUpForTheOneBefore)
{
    Other.MakeReadOnly(u"AliasList.cfg");
    PickOther();
    Prompts.Expect(u"File Attribute set for Read Only.",
                   u"Cannot access a Read Only File. Use 'Import File' to read this File.", Buttons::Information);

    Click(P.Form8->Command3.Click);

    EXPECT_EQ(P.Branch.HomeDir, Here);
    EXPECT_EQ(Machine.Processes.Claimed, QStringList({Here, There}));
    EXPECT_EQ(Machine.Processes.Kept, QStringList{Here});
}

} // namespace
} // namespace lineforge
