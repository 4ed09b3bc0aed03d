#include "map/tools/ToolsTest.h"
#include "shell/run/RunHandler.h"

#include <ostream>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// A command that leaves the map, and what it does with the boxes before it asks.
struct LeavingCommand {
    const char* Name;
    Event (*Handler)(Program& p);
    bool SavesBoxesFirst;
    // What is asked behind the question of the tools.
    void (*Afterwards)(ScriptedPrompts& prompts) = [](ScriptedPrompts&) {};
};

void PrintTo(const LeavingCommand& command, std::ostream* out)
{
    *out << command.Name;
}

const LeavingCommand commands[] = {
    {"New", [](Program& p) { return p.Form1->New.Click; }, true,
     [](ScriptedPrompts& prompts) {
         prompts.ExpectInput(u"New Tree Branch name", u"Enter the name for this new Tree Branch Map", u"");
     }},
    {"Open", [](Program& p) { return p.Form1->Open.Click; }, true},
    {"Close Database", [](Program& p) { return p.Form1->mnuCloseDB.Click; }, false},
    {"Exit", [](Program& p) { return p.Form1->mnuExit.Click; }, true},
    {"the frame", [](Program& p) { return p.Form1->CloseByFrame; }, false},
    {"Exit of the record form", [](Program& p) { return p.Form3->mnuExit.Click; }, true},
};

// To the record form. Whatever is drawn outlives the way there and back.
const LeavingCommand doors[] = {
    {"Records", [](Program& p) { return p.Form1->Command1.Click; }, false},
    {"View Records", [](Program& p) { return p.Form1->mnuViewRecs.Click; }, false},
};

class LeavingCommandTest : public ToolsTest, public testing::WithParamInterface<LeavingCommand>
{
protected:
    LeavingCommandTest()
    {
        BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}, {u"Gender", u"Male"}})
            .Boxes(u"1000,500,0,A001,John,")
            .Lines(u"1000,2000,2000,2000,255,")
            .Picture(u"A001", Qt::red);
    }

    void Run()
    {
        GetParam().Afterwards(Prompts);
        RunHandler(P, GetParam().Handler(P));
    }
};

TEST_P(LeavingCommandTest, ToolsOpen_AsksOnce_AndSavesOnYes)
{
    GivenTools();
    PlaceBox({5000, 5000});
    DrawNewLine({1000, 6000}, {2000, 6000});
    ExpectSaveQuestion(Answer::Yes);

    Run();

    EXPECT_EQ(MapBytes(),
              BytesOf(u"1000,500,0,A001,John,4693,4892,0,0,,", u"1000,2000,2000,2000,255,1000,6000,2000,6000,0,", u""));
    EXPECT_EQ(P.Tools.ToolMode, 0);
}

TEST_P(LeavingCommandTest, ToolsOpen_No_SavesNoLine_AndABoxOnlyWhereTheCommandSavesFirst)
{
    GivenTools();
    PlaceBox({5000, 5000});
    DrawNewLine({1000, 6000}, {2000, 6000});
    ExpectSaveQuestion(Answer::No);

    Run();

    const bool isBoxSaved = GetParam().SavesBoxesFirst;
    const QByteArray bytes = MapBytes();
    EXPECT_EQ(bytes.contains("4693,4892"), isBoxSaved);
    EXPECT_TRUE(bytes.contains("1000,2000,2000,2000,255,\r\n"));
    EXPECT_FALSE(bytes.contains("1000,6000"));
}

TEST_P(LeavingCommandTest, ToolsClosed_AsksNothing)
{
    GivenMap();

    Run();

    EXPECT_EQ(P.Tools.ToolMode, 0);
}

INSTANTIATE_TEST_SUITE_P(Commands, LeavingCommandTest, testing::ValuesIn(commands));
INSTANTIATE_TEST_SUITE_P(Doors, LeavingCommandTest, testing::ValuesIn(doors));

// Clear and View take the mouse from them; what has been drawn is still to be saved.
class ToolsLeftToThemselvesTest : public LeavingCommandTest
{
protected:
    void GivenToolsLeftToThemselves()
    {
        GivenTools();
        PlaceBox({5000, 5000});
        DrawNewLine({1000, 6000}, {2000, 6000});
        P.Form1->Command4.Click();
        ASSERT_EQ(P.Tools.ToolMode, 0);
    }
};

TEST_P(ToolsLeftToThemselvesTest, CommandThatLeavesTheMap_AsksOnce_AndSavesOnYes)
{
    GivenToolsLeftToThemselves();
    ExpectSaveQuestion(Answer::Yes);

    Run();

    EXPECT_EQ(MapBytes(),
              BytesOf(u"1000,500,0,A001,John,4693,4892,0,0,,", u"1000,2000,2000,2000,255,1000,6000,2000,6000,0,", u""));
}

INSTANTIATE_TEST_SUITE_P(Commands, ToolsLeftToThemselvesTest, testing::ValuesIn(commands));

class DoorTest : public ToolsLeftToThemselvesTest
{
};

TEST_P(DoorTest, ToolsLeftToThemselves_StayAsTheyAre_AndAreAskedForWhenTheMapIsLeft)
{
    GivenToolsLeftToThemselves();

    Run();

    EXPECT_TRUE(P.Form3->Visible);
    EXPECT_TRUE(P.Form1->Image8.Visible);
    P.Form3->Text3.Text = u"Jack"_s;
    RunHandler(P, P.Form3->Command2.Click);
    ExpectSaveQuestion(Answer::Yes);
    RunHandler(P, P.Form1->mnuCloseDB.Click);
    EXPECT_EQ(MapBytes(),
              BytesOf(u"1000,500,0,A001,Jack,4693,4892,0,0,,", u"1000,2000,2000,2000,255,1000,6000,2000,6000,0,", u""));
}

TEST_P(DoorTest, ToolsLeftToThemselves_OpensTheRecordBesideTheMap_NotTheOneOfTheirOpening)
{
    BranchA.Row({{u"File", u"A002"}, {u"Forename", u"Mary"}});
    GivenToolsLeftToThemselves();
    Records(P.Form3).MoveNext();

    Run();

    EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A002"_s);
}

INSTANTIATE_TEST_SUITE_P(Doors, DoorTest, testing::ValuesIn(doors));

TEST_F(ToolsTest, ToolsLeftToThemselvesByView_AreClosedByTheNextCommand)
{
    BranchA.Row({{u"File", u"A001"}}).Picture(u"A001", Qt::red);
    GivenTools();
    DrawNewLine({1000, 6000}, {2000, 6000});
    P.Form1->Text1.Text = u"Nobody"_s;
    P.Form1->Command3.Click();
    ASSERT_EQ(P.Tools.ToolMode, 1);
    ExpectSaveQuestion(Answer::Yes);

    P.Form1->mnuCloseDB.Click();

    EXPECT_EQ(MapBytes(), BytesOf(u"", u"1000,6000,2000,6000,0,", u""));
    EXPECT_EQ(P.Tools.ToolMode, 0);
}

TEST_F(ToolsTest, LineageMarks_AreNoToolsToBeClosed)
{
    GivenMap();
    P.Tools.ToolMode = 1;

    P.Form1->Command1.Click();

    EXPECT_TRUE(P.Form3->Visible);
}

} // namespace
} // namespace lineforge
