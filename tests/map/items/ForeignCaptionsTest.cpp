#include "map/MapTest.h"
#include "map/items/BoxCaptions.h"
#include "support/SqliteFile.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// Boxes that stand for records of sibling branches.
class ForeignCaptionsTest : public MapTest
{
protected:
    ForeignCaptionsTest()
    {
        GivenOpen(BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}})
                      .Row({{u"File", u"A002"}, {u"Forename", u"Anne"}}));
        BranchB.Row({{u"File", u"B001"}, {u"Forename", u"Beatrice"}})
            .Row({{u"File", u"B002"}})
            .Row({{u"File", u"B003"}, {u"Forename", u"Bob"}, {u"BirthDate", u"1 May 1871"}})
            .Row({{u"File", u"B004"}, {u"Forename", u"Jo, [An"}});
    }

    // Draws them all; whatever the siblings are like, the program stands on its own branch afterwards, on the same
    // record, and nothing on disk has changed.
    void Draw()
    {
        Records(P.Form3).MoveFirst();
        Records(P.Form3).MoveNext();
        const QString workDir = P.Branch.WorkDir;
        const QString homeDir = P.Branch.HomeDir;
        const QString database = P.Branch.sDbaseName;
        const Tree before = Home.Snapshot();

        DrawBoxCaptions(P, Sheet());

        EXPECT_EQ(P.Branch.WorkDir, workDir);
        EXPECT_EQ(P.Branch.HomeDir, homeDir);
        EXPECT_EQ(P.Branch.sDbaseName, database);
        EXPECT_EQ(P.Branch.UsingAlternate, 0);
        EXPECT_EQ(Records(P.Form3).Text(u"File"), u"A002"_s);
        EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    }

    void ExpectNumberOnly(QStringView number)
    {
        Draw();
        Expected->PrintAt({1100, 500}, number.toString());
        EXPECT_TRUE(SameDrawing(Picture, *Expected));
    }

    PictureByHand Expected;
};

TEST_F(ForeignCaptionsTest, SiblingPresent_ShowsNumberAndForename)
{
    BranchB.Build();
    GivenBox(0, {1000, 500}, u"B001");

    Draw();

    Expected->PrintAt({1100, 500}, u"B001"_s);
    Expected->PrintAt({1050, 600}, u"Beatr'e"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
}

TEST_F(ForeignCaptionsTest, NumberInLowerCase_IsShownAsTheRecordHasIt)
{
    BranchB.Build();
    GivenBox(0, {1000, 500}, u"b003");

    Draw();

    Expected->PrintAt({1100, 500}, u"B003"_s);
    Expected->PrintAt({1050, 600}, u"Bob"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
}

TEST_F(ForeignCaptionsTest, ForenameWithWhatBreaksTheFile_IsPrintedAsTheFileWouldHaveIt)
{
    BranchB.Build();
    GivenBox(0, {1000, 500}, u"B004");

    Draw();

    Expected->PrintAt({1100, 500}, u"B004"_s);
    Expected->PrintAt({1050, 600}, u"Jo An"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
}

TEST_F(ForeignCaptionsTest, OnPaper_ForenameWithWhatBreaksTheFile_IsPrintedAsTheFileWouldHaveIt)
{
    BranchB.Build();
    GivenBox(0, {1000, 500}, u"B004");
    GivenPrinting();

    Draw();

    EXPECT_EQ(Page.Take().at(1), u"Print 2250,1030 \"Jo An\" Arial 8 colour 0"_s);
}

TEST_F(ForeignCaptionsTest, FreeRow_HasNoCaption)
{
    BranchB.Build();
    GivenBox(0, {0, 500}, u"B001");
    GivenBox(1, {0, 900}, u"B009");

    Draw();

    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(ForeignCaptionsTest, SeveralSiblings_EachBoxGetsItsOwn)
{
    BranchB.Build();
    BranchBuilder(Home, u'C').Row({{u"File", u"C001"}, {u"Forename", u"Carl"}}).Build();
    GivenBox(0, {1000, 500}, u"B003");
    GivenBox(1, {2000, 500}, u"C001");
    GivenBox(2, {3000, 500}, u"A001");
    GivenBox(3, {4000, 500}, u"B001");
    GivenBox(99, {5000, 500}, u"B003");

    Draw();

    const struct {
        int X;
        QString Number;
        QString Forename;
    } captions[] = {{1000, u"B003"_s, u"Bob"_s},
                    {2000, u"C001"_s, u"Carl"_s},
                    {3000, u"A001"_s, {}}, // the own records' forenames come with the walk of their table
                    {4000, u"B001"_s, u"Beatr'e"_s},
                    {5000, u"B003"_s, u"Bob"_s}};
    for (const auto& [x, number, forename] : captions) {
        Expected->PrintAt({x + 100, 500}, number);
        Expected->PrintAt({x + 50, 600}, forename);
    }
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
}

TEST_F(ForeignCaptionsTest, NullForename_ShowsOnlyTheNumber)
{
    BranchB.Build();
    GivenBox(0, {1000, 500}, u"B002");

    ExpectNumberOnly(u"B002");
}

TEST_F(ForeignCaptionsTest, RecordNotInTheSibling_ShowsOnlyTheNumber)
{
    BranchB.Build();
    GivenBox(0, {1000, 500}, u"B009");

    ExpectNumberOnly(u"B009");
}

TEST_F(ForeignCaptionsTest, BranchThatNoLongerExists_ShowsOnlyTheNumber_WithoutAMessage)
{
    GivenBox(0, {1000, 500}, u"B001");

    ExpectNumberOnly(u"B001");
}

TEST_F(ForeignCaptionsTest, DatabaseGoneFromItsDirectory_ShowsOnlyTheNumber)
{
    BranchB.Build();
    P.Files.Kill(Home.Path(BranchB.DatabaseFile()));
    GivenBox(0, {1000, 500}, u"B001");

    ExpectNumberOnly(u"B001");
}

TEST_F(ForeignCaptionsTest, DatabaseThatIsGarbage_ShowsOnlyTheNumber)
{
    BranchB.Build();
    Home.WriteFile(BranchB.DatabaseFile(), QByteArray("no database at all ").repeated(500));
    GivenBox(0, {1000, 500}, u"B001");

    ExpectNumberOnly(u"B001");
}

TEST_F(ForeignCaptionsTest, DatabaseThatIsEmpty_ShowsOnlyTheNumber)
{
    BranchB.Build();
    Home.WriteFile(BranchB.DatabaseFile(), {});
    GivenBox(0, {1000, 500}, u"B001");

    ExpectNumberOnly(u"B001");
}

TEST_F(ForeignCaptionsTest, DatabaseWithoutTheTable_ShowsOnlyTheNumber)
{
    BranchB.Build();
    SqliteFile(Home.Path(BranchB.DatabaseFile())).Execute("ALTER TABLE Tree99 RENAME TO Other");
    GivenBox(0, {1000, 500}, u"B001");

    ExpectNumberOnly(u"B001");
}

TEST_F(ForeignCaptionsTest, DatabaseThatIsReadOnly_ShowsOnlyTheNumber)
{
    BranchB.Build();
    Home.MakeReadOnly(BranchB.DatabaseFile());
    GivenBox(0, {1000, 500}, u"B001");

    ExpectNumberOnly(u"B001");
}

TEST_F(ForeignCaptionsTest, LetterThatIsNoLetter_ShowsOnlyTheNumber)
{
    GivenBox(0, {1000, 500}, u"/001");

    ExpectNumberOnly(u"/001");
}

TEST_F(ForeignCaptionsTest, ImportedBranch_ReachesNoNeighbours)
{
    BranchB.InDirectory(u"Import_B").Build();
    BranchBuilder imported(Home, u'A');
    GivenOpen(imported.InDirectory(u"Import_A").Row({{u"File", u"A001"}}).Row({{u"File", u"A002"}}));
    GivenBox(0, {1000, 500}, u"B001");
    P.Branch.WorkDirSaved = u"untouched"_s;

    ExpectNumberOnly(u"B001");

    EXPECT_EQ(P.Branch.WorkDirSaved, u"untouched"_s);
}

TEST_F(ForeignCaptionsTest, BoxAtImpossiblePlace_ProgramStandsOnItsOwnBranchAfterwards)
{
    BranchB.Build();
    GivenBox(0, {99999, 500}, u"B001");
    GivenBox(1, {1000, 500}, u"B003");

    Draw();

    Expected->PrintAt({1100, 500}, u"B003"_s);
    Expected->PrintAt({1050, 600}, u"Bob"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
}

TEST_F(ForeignCaptionsTest, RealDirectories_AreKeptAsTheSavedOnes)
{
    GivenBox(0, {1000, 500}, u"B001");

    Draw();

    EXPECT_EQ(P.Branch.WorkDirSaved, P.Branch.WorkDir);
    EXPECT_EQ(P.Branch.HomeDirSaved, P.Branch.HomeDir);
}

TEST_F(ForeignCaptionsTest, SubjectBeingMapped_ForeignBoxKeepsItsPlace)
{
    BranchB.Build();
    GivenBox(0, {3000, 500}, u"A002"); // of the current record, which is looked for while a subject is mapped
    GivenBox(1, {1000, 500}, u"B003");
    GivenBox(2, {2000, 500}, u"B009");
    P.Tools.MapCursorMode = 1;

    Draw();

    Expected->PrintAt({3100, 500}, u"A002"_s);
    Expected->PrintAt({1100, 500}, u"B003"_s);
    Expected->PrintAt({1050, 600}, u"Bob"_s);
    Expected->PrintAt({2100, 500}, u"B009"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
}

TEST_F(ForeignCaptionsTest, OnPaper_RecordHasThreeLines_NumberOne)
{
    BranchB.Build();
    GivenBox(0, {1000, 500}, u"B003");
    GivenBox(1, {2000, 500}, u"B009");
    GivenPrinting();

    Draw();

    EXPECT_EQ(Page.Take(),
              QStringList({u"Print 2300,910 \"B003\" Arial 8 colour 0"_s, u"Print 2250,1030 \"Bob\" Arial 8 colour 0"_s,
                           u"Print 2250,1160 \"B :1871\" Arial 8 colour 0"_s,
                           u"Print 3300,940 \"B009\" Arial 8 colour 0"_s}));
}

TEST_F(ForeignCaptionsTest, OpeningAMap_ShowsOwnAndForeignRecords)
{
    BranchB.Build();
    P.Map.sBoxesText = u"1000,500,255,A001,,2000,500,255,B003,,"_s;

    ParseBoxes(P);

    Expected->ForeColor = 255;
    Expected->Box({1000, 500, 615, 217});
    Expected->Box({2000, 500, 615, 217});
    Expected->ForeColor = Black;
    Expected->PrintAt({1100, 500}, u"A001"_s);
    Expected->PrintAt({1050, 600}, u"John"_s);
    Expected->PrintAt({2100, 500}, u"B003"_s);
    Expected->PrintAt({2050, 600}, u"Bob"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
}

} // namespace
} // namespace lineforge
