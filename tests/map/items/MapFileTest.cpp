#include "map/items/MapFile.h"

#include "map/MapTest.h"

#include <csignal>
#include <sys/resource.h>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

// As long as it lives no file can grow beyond that many bytes: a disk that is full in the middle of a file.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit before_{};
    void (*handler_)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

class MapFileTest : public MapTest
{
protected:
    // The lists of a map with one item of each kind.
    void GivenLists()
    {
        P.Map.sBoxesText = u"1200,600,255,A001,John,"_s;
        P.Map.sLinesText = u"1507,817,2307,817,0,"_s;
        P.Map.sTextsText = u"300,150,The Smiths,Arial,8,0,"_s;
    }

    // A record of branch B is shown while the map is that of branch A.
    void GivenRecordOfSibling()
    {
        P.Branch.WorkDirSaved = P.Branch.WorkDir;
        P.Branch.HomeDirSaved = P.Branch.HomeDir;
        P.Branch.WorkDir = BranchB.Build();
        P.Branch.HomeDir = u"/elsewhere/"_s;
        P.Branch.UsingAlternate = 1;
    }

    const QByteArray oldMap = MapFileBytes(u"LfgDat_A", u"0,0,0,", u"0,0,0,", u"0,0,0,");
};

TEST_F(MapFileTest, WrittenMap_IsEightLines_ByteForByte)
{
    GivenOpen(BranchA);
    P.Map.sBoxesText = u"1200,600,255,A001,John,2000,600,255,0,,"_s;
    P.Map.sLinesText = u"1507,817,2307,817,0,"_s;
    P.Map.sTextsText = u"300,150,The Smiths,Arial,8,0,"_s;

    WriteMapFile(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgDat_A.cfg"),
              QByteArray("This File Contains Graphic Data crucial to your program. Warning: DO NOT MODIFY.\r\n"
                         "[LfgDat_A]\r\n"
                         "[Boxes]\r\n"
                         "1200,600,255,A001,John,2000,600,255,0,,\r\n"
                         "[Lines]\r\n"
                         "1507,817,2307,817,0,\r\n"
                         "[Text]\r\n"
                         "300,150,The Smiths,Arial,8,0,\r\n"));
}

TEST_F(MapFileTest, WrittenMap_LongList_StaysOnOneLine)
{
    GivenOpen(BranchA);
    P.Map.sBoxesText = u"1200,600,255,A001,John,"_s.repeated(1000);

    WriteMapFile(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgDat_A.cfg").count('\n'), 8);
}

TEST_F(MapFileTest, OrdinaryBranch_IsWrittenWhereItIsRead)
{
    GivenOpen(BranchA);
    GivenLists();
    WriteMapFile(P.Map, P.Branch, P.Files);
    P.Map.EraseLists();

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);

    EXPECT_EQ(P.Map.sBoxesText, u"1200,600,255,A001,John,"_s);
    EXPECT_EQ(P.Map.sLinesText, u"1507,817,2307,817,0,"_s);
    EXPECT_EQ(P.Map.sTextsText, u"300,150,The Smiths,Arial,8,0,"_s);
}

TEST_F(MapFileTest, ImportedBranch_IsWrittenBesideTheFileThatCameWithIt_SoThatChangesAreLost)
{
    BranchA.InDirectory(u"Import_A").Boxes(u"900,900,0,A009,Anne,");
    GivenOpen(BranchA);
    const QByteArray imported = Home.ReadFile(u"Import_A/LfgDat_A.cfg");
    GivenLists();

    WriteMapFile(P.Map, P.Branch, P.Files);
    EXPECT_EQ(Home.ReadFile(u"Import_A/LfgDat_A.cfg"), imported);
    EXPECT_EQ(Home.ReadFile(u"Import_A/Import_A.cfg"),
              MapFileBytes(u"Import_A", u"1200,600,255,A001,John,", u"1507,817,2307,817,0,",
                           u"300,150,The Smiths,Arial,8,0,"));

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);
    EXPECT_EQ(P.Map.sBoxesText, u"900,900,0,A009,Anne,"_s);
}

TEST_F(MapFileTest, ImportedBranch_KeepsItsOwnPreviousGeneration)
{
    GivenOpen(BranchA.InDirectory(u"Import_A"));
    GivenLists();
    WriteMapFile(P.Map, P.Branch, P.Files);
    const QByteArray first = Home.ReadFile(u"Import_A/Import_A.cfg");
    EXPECT_FALSE(Home.Exists(u"Import_A/Import_A.~cf"));

    P.Map.sBoxesText = u"1500,900,0,0,,"_s;
    WriteMapFile(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Home.ReadFile(u"Import_A/Import_A.~cf"), first);
}

TEST_F(MapFileTest, PreviousGeneration_IsOneBack)
{
    GivenOpen(BranchA);
    GivenLists();

    WriteMapFile(P.Map, P.Branch, P.Files);
    const QByteArray first = Home.ReadFile(u"LfgDat_A/LfgDat_A.cfg");
    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgDat_A.~cf"), oldMap);

    P.Map.sBoxesText = u"1500,900,0,0,,"_s;
    WriteMapFile(P.Map, P.Branch, P.Files);
    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgDat_A.~cf"), first);
}

TEST_F(MapFileTest, PreviousGeneration_FirstMapOfABranch_HasNone)
{
    GivenOpen(BranchA);
    P.Files.Kill(Home.Path(u"LfgDat_A/LfgDat_A.cfg"));

    WriteMapFile(P.Map, P.Branch, P.Files);

    EXPECT_TRUE(Home.Exists(u"LfgDat_A/LfgDat_A.cfg"));
    EXPECT_FALSE(Home.Exists(u"LfgDat_A/LfgDat_A.~cf"));
}

TEST_F(MapFileTest, MapSpeltInAnotherCase_IsTheSameFile)
{
    GivenOpen(BranchA);
    P.Files.Kill(Home.Path(u"LfgDat_A/LfgDat_A.cfg"));
    Home.WriteFile(u"LfgDat_A/LFGDAT_A.CFG", oldMap);
    GivenLists();

    WriteMapFile(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgDat_A.~cf"), oldMap);
    EXPECT_NE(Home.ReadFile(u"LfgDat_A/LFGDAT_A.CFG"), oldMap);
    EXPECT_FALSE(Home.Exists(u"LfgDat_A/LfgDat_A.cfg"));
    P.Map.EraseLists();
    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);
    EXPECT_EQ(P.Map.sBoxesText, u"1200,600,255,A001,John,"_s);
}

TEST_F(MapFileTest, NoBranchOpen_WritesNamelessFileInTheHome)
{
    const Tree before = Home.Snapshot();
    GivenLists();

    WriteMapFile(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList(u"new: .cfg"_s));
    EXPECT_EQ(Home.ReadFile(u".cfg"),
              MapFileBytes(u"", u"1200,600,255,A001,John,", u"1507,817,2307,817,0,", u"300,150,The Smiths,Arial,8,0,"));
}

TEST_F(MapFileTest, NoBranchOpen_NamelessFileHasNoPreviousGeneration)
{
    Home.WriteFile(u".cfg", "old");

    SaveBoxes(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Home.ReadFile(u".cfg"), MapFileBytes(u"", u"", u"", u""));
    EXPECT_FALSE(Home.Exists(u".~cf"));
}

TEST_F(MapFileTest, RecordOfSiblingShown_MapGoesToItsOwnBranch)
{
    GivenOpen(BranchA);
    GivenLists();
    const QString own = P.Branch.WorkDir;
    GivenRecordOfSibling();
    const Tree before = Home.Snapshot();

    WriteMapFile(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Differences(before, Home.Snapshot()),
              QStringList({u"changed: LfgDat_A/LfgDat_A.cfg"_s, u"new: LfgDat_A/LfgDat_A.~cf"_s}));
    EXPECT_TRUE(Home.ReadFile(u"LfgDat_A/LfgDat_A.cfg").contains("\r\n[LfgDat_A]\r\n"));
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_B"));
    EXPECT_EQ(P.Branch.HomeDir, u"/elsewhere/"_s);
    EXPECT_EQ(P.Branch.WorkDirSaved, own);
    EXPECT_EQ(P.Branch.HomeDirSaved, Home.Path() + u'/');
    EXPECT_EQ(P.Branch.UsingAlternate, 1);
}

TEST_F(MapFileTest, RecordOfSiblingShown_DirectoriesComeBackWhenTheWriteFails)
{
    GivenOpen(BranchA);
    const QString own = P.Branch.WorkDir;
    GivenRecordOfSibling();
    Home.MakeReadOnly(u"LfgDat_A/LfgDat_A.cfg");

    EXPECT_EQ(RefusalOf([&] { WriteMapFile(P.Map, P.Branch, P.Files); }), ErrorNumber::PathFileAccess);

    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_B"));
    EXPECT_EQ(P.Branch.HomeDir, u"/elsewhere/"_s);
    EXPECT_EQ(P.Branch.WorkDirSaved, own);
    EXPECT_EQ(P.Branch.HomeDirSaved, Home.Path() + u'/');
}

TEST_F(MapFileTest, MapOfAnotherBranch_IsLeftOutSilently)
{
    BranchB.Build();
    GivenOpen(BranchA);
    GivenLists();
    P.Map.Owner = Home.Path(u"LfgDat_B");
    const Tree before = Home.Snapshot();

    WriteMapFile(P.Map, P.Branch, P.Files);
    SaveBoxes(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(MapFileTest, MapOfNoBranch_IsLeftOutSilently)
{
    GivenOpen(BranchA);
    P.Map.EraseLists();
    const Tree before = Home.Snapshot();

    SaveBoxes(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(MapFileTest, MapOfAnotherBranch_RecordOfSiblingShown_IsLeftOutAndDirectoriesComeBack)
{
    GivenOpen(BranchA);
    GivenRecordOfSibling();
    P.Map.Owner = P.Branch.WorkDir;
    const Tree before = Home.Snapshot();

    SaveBoxes(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_B"));
    EXPECT_EQ(P.Branch.WorkDirSaved, Home.Path(u"LfgDat_A"));
}

TEST_F(MapFileTest, ReadOnlyMap_IsReadWithoutComplaint)
{
    GivenOpen(BranchA.Boxes(u"1200,600,255,A001,John,"));
    Home.MakeReadOnly(u"LfgDat_A/LfgDat_A.cfg");

    ReadMapFile(P.Map, P.Branch, P.Files, P.Prompts);

    EXPECT_EQ(P.Map.sBoxesText, u"1200,600,255,A001,John,"_s);
}

TEST_F(MapFileTest, ReadOnlyMap_WriterFailsAndOldMapStaysWhole)
{
    GivenOpen(BranchA);
    GivenLists();
    Home.MakeReadOnly(u"LfgDat_A/LfgDat_A.cfg");
    const Tree before = Home.Snapshot();

    EXPECT_EQ(RefusalOf([&] { WriteMapFile(P.Map, P.Branch, P.Files); }), ErrorNumber::PathFileAccess);

    // The previous generation is copied before the old map is in the way.
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList(u"new: LfgDat_A/LfgDat_A.~cf"_s));
    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgDat_A.~cf"), oldMap);
}

TEST_F(MapFileTest, ReadOnlyDirectory_WriterFailsAndNothingChanges)
{
    GivenOpen(BranchA);
    GivenLists();
    Home.MakeReadOnly(u"LfgDat_A");
    const Tree before = Home.Snapshot();

    EXPECT_EQ(RefusalOf([&] { WriteMapFile(P.Map, P.Branch, P.Files); }), ErrorNumber::PathFileAccess);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(MapFileTest, PreviousGenerationThatCannotBeReplaced_WriterFailsAndNothingChanges)
{
    GivenOpen(BranchA);
    GivenLists();
    Home.WriteFile(u"LfgDat_A/LfgDat_A.~cf", "older");
    Home.MakeReadOnly(u"LfgDat_A/LfgDat_A.~cf");
    const Tree before = Home.Snapshot();

    EXPECT_EQ(RefusalOf([&] { WriteMapFile(P.Map, P.Branch, P.Files); }), ErrorNumber::PathFileAccess);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(MapFileTest, DirectoryOfTheBranchGone_WriterFails)
{
    GivenOpen(BranchA);
    P.Branch.WorkDir = Home.Path(u"LfgDat_Q");
    P.Map.Owner = P.Branch.WorkDir;

    EXPECT_EQ(RefusalOf([&] { WriteMapFile(P.Map, P.Branch, P.Files); }), ErrorNumber::PathNotFound);
    EXPECT_FALSE(Home.Exists(u"LfgDat_Q"));
}

TEST_F(MapFileTest, WriteThatFailsHalfWay_LeavesTheOldMapAndNoRemains)
{
    GivenOpen(BranchA);
    P.Map.sBoxesText = u"1200,600,255,A001,John,"_s.repeated(5000);
    const Tree before = Home.Snapshot();
    {
        const FileSizeLimit limit(20000);
        EXPECT_NE(RefusalOf([&] { WriteMapFile(P.Map, P.Branch, P.Files); }), 0);
    }

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList(u"new: LfgDat_A/LfgDat_A.~cf"_s));
}

TEST_F(MapFileTest, SaveBoxes_TakesBoxesFromTheArray_LinesAndTextsAsTheyWereRead)
{
    GivenOpen(BranchA.Boxes(u"1200,600,255,A001,John,")
                  .Lines(u"1507,817,2307,817,0,")
                  .Texts(u"300,150,The Smiths,Arial,8,0,"));
    OpenMap();
    GivenBox(1, {2000, 600}, u"A002");
    GivenLine(0, {1, 1}, {2, 2});
    GivenText(0, {1, 1}, u"changed");

    SaveBoxes(P.Map, P.Branch, P.Files);

    EXPECT_EQ(P.Map.sBoxesText, u"1200,600,255,A001,John,2000,600,0,A002,,"_s);
    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgDat_A.cfg"),
              MapFileBytes(u"LfgDat_A", u"1200,600,255,A001,John,2000,600,0,A002,,", u"1507,817,2307,817,0,",
                           u"300,150,The Smiths,Arial,8,0,"));
}

TEST_F(MapFileTest, SaveBoxes_BoxWhosePositionIsNoNumber_IsWrittenAsItWasRead)
{
    GivenOpen(BranchA.Boxes(u"abc,600,255,A001,John,"));
    OpenMap();
    const QByteArray before = Home.ReadFile(BranchA.MapFile());

    SaveBoxes(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Home.ReadFile(BranchA.MapFile()), before);
}

TEST_F(MapFileTest, SaveBoxes_ForenameThatWouldBreakTheList_GoesOutWithoutWhatBreaksIt)
{
    GivenOpen(BranchA.Boxes(u"1200,600,255,A001,John,2000,600,255,A002,Ann,"));
    OpenMap();
    P.Map.BoxArr[0][BoxColumn::Forename] = u"Mary, [Ann]\r\nJane"_s;

    SaveBoxes(P.Map, P.Branch, P.Files);

    EXPECT_EQ(P.Map.sBoxesText, u"1200,600,255,A001,Mary Ann]Jane,2000,600,255,A002,Ann,"_s);
    OpenMap();
    EXPECT_EQ(P.Map.BoxArr[1][BoxColumn::File].Text(), u"A002"_s);
}

// Without what breaks it the number might be another record's.
TEST_F(MapFileTest, SaveBoxes_NumberThatWouldBreakTheList_GoesOutAsAnEmptyBox)
{
    GivenOpen(BranchA.Boxes(u"1200,600,255,0,,2000,600,255,A002,Ann,"));
    OpenMap();
    for (const QString& number : {u"A,002"_s, u"A[002"_s, u"A002\r"_s, u"\nA002"_s}) {
        P.Map.BoxArr[0][BoxColumn::File] = number;

        SaveBoxes(P.Map, P.Branch, P.Files);

        EXPECT_EQ(P.Map.sBoxesText, u"1200,600,255,0,,2000,600,255,A002,Ann,"_s) << number.toStdString();
    }
}

TEST_F(MapFileTest, RoundTrip_FullMap_IsUnchanged)
{
    GivenOpen(BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}})
                  .Boxes(u"1200,600,255,A001,John,2000,600,255,0,,2800.5, 600 ,16711680,b002,Änne,")
                  .Lines(u"1507,817,2307,817,0,10,20,30,40,16777215,")
                  .Texts(u"300,150,The [old] Smiths,Arial,8,0,400,250,House,Courier New,12,255,"));
    const QByteArray before = Home.ReadFile(u"LfgDat_A/LfgDat_A.cfg");
    OpenMap();

    SaveBoxes(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgDat_A.cfg"), before);
}

TEST_F(MapFileTest, RoundTrip_FreeBox_IsLeftOutAndLaterBoxesMoveUp)
{
    GivenOpen(BranchA.Boxes(u"1200,600,255,A001,John,0,700,255,A002,Anne,2000,800,255,A003,Mary,"));
    OpenMap();
    SaveBoxes(P.Map, P.Branch, P.Files);
    P.Map.EraseLists();

    OpenMap();

    EXPECT_EQ(P.Map.BoxArr[1][BoxColumn::File].Text(), u"A003"_s);
    EXPECT_EQ(P.Map.SBoxes, 1);
}

TEST_F(MapFileTest, RoundTrip_BoxesBeyondTheHundredth_AreLost)
{
    GivenOpen(BranchA.Boxes(u"1200,600,255,0,,"_s.repeated(103)));
    OpenMap();
    ASSERT_EQ(P.Map.SBoxes, 102);

    SaveBoxes(P.Map, P.Branch, P.Files);

    EXPECT_EQ(P.Map.sBoxesText, u"1200,600,255,0,,"_s.repeated(100));
}

TEST_F(MapFileTest, BoxAtXZero_VanishesAtTheNextSave)
{
    GivenOpen(BranchA.Boxes(u"1200,600,255,A001,John,"));
    OpenMap();
    P.Map.BoxArr[0][BoxColumn::X] = 0;

    SaveBoxes(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgDat_A.cfg"), MapFileBytes(u"LfgDat_A", u"", u"0,0,0,", u"0,0,0,"));
}

TEST_F(MapFileTest, MapWithoutTexts_WarnsAtTheNextOpening_AndStillOpens)
{
    GivenOpen(BranchA.Boxes(u"1200,600,255,0,,").Lines(u"1507,817,2307,817,0,"));
    OpenMap();
    P.Map.sTextsText = ListOfTexts(P.Map);
    SaveBoxes(P.Map, P.Branch, P.Files);
    EXPECT_TRUE(Home.ReadFile(u"LfgDat_A/LfgDat_A.cfg").endsWith("\r\n[Text]\r\n\r\n"));
    P.Map.EraseLists();
    Picture.Cls();
    Prompts.Expect(u"Box Config File record corrupt", u"Config Text Record empty", Buttons::Information);

    OpenMap();

    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::X].Number(), 1200);
    EXPECT_EQ(P.Map.LineArr[0][LineColumn::X2], 2307);
    EXPECT_EQ(ColourAt(Picture, {1200, 700}), 255u);
}

TEST_F(MapFileTest, BranchThatWasOpen_ClosedWithNothingOpen_WritesNoOtherBranch)
{
    GivenOpen(BranchA.Boxes(u"1200,600,255,A001,John,"));
    OpenMap();
    P.Branch.WorkDir.clear();
    P.Map.EraseLists();
    const Tree before = Home.Snapshot();

    SaveBoxes(P.Map, P.Branch, P.Files);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList(u"new: .cfg"_s));
}

} // namespace
} // namespace lineforge
