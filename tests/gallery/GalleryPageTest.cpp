#include "gallery/GalleryPage.h"

#include "gallery/GalleryTest.h"

namespace lineforge
{
namespace
{

using GalleryPageTest = GalleryTest;

TEST_F(GalleryPageTest, GridStandsInSevenRowsOfFourteen_AHundredTwipsApart)
{
    for (int index = 0; index < 98; ++index) {
        const int row = index / 14;
        const int column = index % 14;
        const Image& tile = Tile(index);
        EXPECT_EQ(tile.Left, 240 + column * 835) << index;
        EXPECT_EQ(tile.Top, 720 + row * 955) << index;
        EXPECT_EQ((Size{tile.Width, tile.Height}), (Size{735, 855})) << index;
        EXPECT_TRUE(tile.Stretch);
        EXPECT_TRUE(tile.Draggable);
        EXPECT_FALSE(tile.Visible);
    }
    // The last one is made and never placed.
    EXPECT_EQ((Point{Tile(98).Left, Tile(98).Top}), (Point{240, 720}));
    EXPECT_EQ(P.Form5->Image1.Count(), 99U);
}

TEST_F(GalleryPageTest, WindowTakesTheScreen)
{
    EXPECT_EQ(P.Form5->Width, 12000);
    EXPECT_EQ(P.Form5->Height, 8500);
    EXPECT_EQ(P.Form5->Left, 0);
    EXPECT_EQ(P.Form5->Top, 0);
}

TEST_F(GalleryPageTest, RecordWithoutFiles_ShowsOneEmptyTile)
{
    OpenGallery();
    EXPECT_EQ(Page(), QStringList{u"0 1 empty"_s});
    EXPECT_EQ(Top(), 0);
    EXPECT_TRUE(P.Form5->Visible);
    EXPECT_FALSE(P.Form1->Visible);
}

TEST_F(GalleryPageTest, FilesStandAtTheirSubscripts_GapsStayOpen_AndAnEmptyTileStandsBehind)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_02.bmp"_s, u"A001_05.jpg"_s});
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.jpg blue"_s, u"1 A001_02.bmp blue"_s, u"2 3 empty"_s, u"3 4 empty"_s,
                                   u"4 A001_05.jpg blue"_s, u"5 6 empty"_s}));
    EXPECT_EQ(Top(), 5);
    EXPECT_EQ(Tile(0).Tag.value(), u"A001_01.jpg");
}

TEST_F(GalleryPageTest, EachKindShowsItsIcon_WhateverTheCaseOfItsEnding)
{
    OpenGallery({u"A001_01.Wav"_s, u"A001_02.WAV"_s, u"A001_03.Avi"_s, u"A001_04.avi"_s, u"A001_05.Txt"_s,
                 u"A001_06.tXt"_s, u"A001_07.JPG"_s, u"A001_08.Bmp"_s});
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.Wav sound"_s, u"1 A001_02.WAV sound"_s, u"2 A001_03.Avi video"_s,
                                   u"3 A001_04.avi video"_s, u"4 A001_05.Txt text"_s, u"5 A001_06.tXt text"_s,
                                   u"6 A001_07.JPG blue"_s, u"7 A001_08.Bmp blue"_s, u"8 9 empty"_s}));
}

TEST_F(GalleryPageTest, FilesOfOtherRecords_ArePassedOver)
{
    OpenGallery({u"A001_01.jpg"_s, u"A002_02.jpg"_s, u"A0011_3.jpg"_s, u"A001-04.jpg"_s, u"readme.doc"_s, u"A00"_s});
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.jpg blue"_s, u"1 2 empty"_s}));
}

TEST_F(GalleryPageTest, KeyIsFoundInAnyCase)
{
    OpenGallery({u"a001_01.jpg"_s});
    EXPECT_EQ(Page(), QStringList({u"0 a001_01.jpg blue"_s, u"1 2 empty"_s}));
}

TEST_F(GalleryPageTest, SubscriptOfOneDigit_StandsAtItsTile)
{
    OpenGallery({u"A001_3.jpg"_s});
    EXPECT_EQ(Page(), QStringList({u"0 1 empty"_s, u"1 2 empty"_s, u"2 A001_3.jpg blue"_s, u"3 4 empty"_s}));
}

TEST_F(GalleryPageTest, LastSubscript_LeavesTheUnplacedTileBehind)
{
    OpenGallery({u"A001_98.jpg"_s});
    EXPECT_EQ(Top(), 98);
    EXPECT_EQ(Page().size(), 99);
    EXPECT_EQ(Page().at(97), u"97 A001_98.jpg blue"_s);
    EXPECT_EQ(Page().at(98), u"98 99 empty"_s);
}

TEST_F(GalleryPageTest, OfTwoFilesWithOneSubscript_TheLaterNameHasTheTile)
{
    OpenGallery({u"A001_01.wav"_s, u"A001_01.jpg"_s, u"A001_01.txt"_s});
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.wav sound"_s, u"1 2 empty"_s}));
}

TEST_F(GalleryPageTest, CaptionTellsBranchRecordAndName)
{
    OpenGallery();
    EXPECT_EQ(Caption(), u"Smiths Tree Branch. Gallery A001 of John Smith"_s);
}

TEST_F(GalleryPageTest, CurrentDirectoryIsTheBranch_AndTheSearchersPathTheHome)
{
    OpenGallery({u"A001_01.jpg"_s});
    EXPECT_EQ(P.Files.CurDir(), Home.Path(u"LfgDat_A"));
    EXPECT_EQ(P.Scratch.sNewDir, Home.Path());
    EXPECT_EQ(P.Gallery.FirstShow, 0);
}

TEST_F(GalleryPageTest, TilesComeOneByOne_WithAYieldAfterEach)
{
    GivenFiles({u"A001_01.jpg"_s, u"A001_03.jpg"_s});
    Choose(u"Smiths");
    std::vector<QStringList> seen;
    for (int yield = 0; yield < 5; ++yield)
        Machine.Loop.AtNextYield([&] { seen.push_back(Page()); });
    Click(P.Form1->Command2.Click);
    EXPECT_EQ(seen, (std::vector<QStringList>{
                        {},
                        {u"0 A001_01.jpg blue"_s},
                        {u"0 A001_01.jpg blue"_s, u"1 2 empty"_s},
                        {u"0 A001_01.jpg blue"_s, u"1 2 empty"_s, u"2 A001_03.jpg blue"_s},
                        {u"0 A001_01.jpg blue"_s, u"1 2 empty"_s, u"2 A001_03.jpg blue"_s, u"3 4 empty"_s},
                    }));
}

TEST_F(GalleryPageTest, WindowIsShownBeforeItsTiles_UnderTheHourglass)
{
    GivenFiles({u"A001_01.jpg"_s});
    Choose(u"Smiths");
    bool isSeen = false;
    Machine.Loop.AtNextYield([&] { isSeen = P.Form5->Visible && P.Screen.Pointer == MousePointer::Hourglass; });
    Click(P.Form1->Command2.Click);
    EXPECT_TRUE(isSeen);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Arrow);
}

TEST_F(GalleryPageTest, TileKeepsNoMoreThanItShows)
{
    Home.WriteFile(InGallery(u"A001_01.jpg"), PictureBytes(Qt::blue, {3000, 2000}));
    Machine.Screen.TwipsPerPixel = 5;
    OpenGallery();
    EXPECT_EQ(Tile(0).Picture.value().size(), QSize(147, 171));
}

TEST_F(GalleryPageTest, NextPage_TakesTheTilesOfTheOneBefore)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_04.wav"_s, u"A002_02.txt"_s});
    Click(P.Form5->Command1.Click);
    P.Form3->Data1.Records().MoveNext();
    P.Gallery.FirstShow = 1;
    Click(P.Form1->Command2.Click);
    EXPECT_EQ(Page(), QStringList({u"0 1 empty"_s, u"1 A002_02.txt text"_s, u"2 3 empty"_s}));
    EXPECT_EQ(Tile(3).Tag.value(), QString());
    EXPECT_TRUE(Tile(3).Picture.value().isNull());
    EXPECT_EQ(Caption(), u"Smiths Tree Branch. Gallery A002 of Mary Jones"_s);
}

TEST_F(GalleryPageTest, PageBegunWithinAnother_IsTheOneThatStays)
{
    GivenFiles({u"A001_01.jpg"_s, u"A001_02.jpg"_s, u"A001_03.jpg"_s, u"A002_01.wav"_s});
    Choose(u"Smiths");
    Machine.Loop.AtNextYield([] {});
    Machine.Loop.AtNextYield([&] {
        P.Form3->Data1.Records().MoveNext();
        BuildGalleryPage(P);
    });
    Click(P.Form1->Command2.Click);
    EXPECT_EQ(Page(), QStringList({u"0 A002_01.wav sound"_s, u"1 2 empty"_s}));
}

TEST_F(GalleryPageTest, FileAddedWhileThePageIsBuilt_KeepsItsTile)
{
    GivenFiles({u"A001_01.jpg"_s, u"A001_03.jpg"_s});
    Choose(u"Smiths");
    Machine.Loop.AtNextYield([] {});
    Machine.Loop.AtNextYield([&] {
        Prompts.Expect(u"Gallery Text File Addition.", u"Add new *.txt Gallery Text File ?", Buttons::QuestionOkCancel);
        Prompts.ExpectOpenFile(u"Select Text Source File", u"Text(*.txt)|*.txt|All Files(*.*)|*.*|",
                               Home.WriteFile(u"life.txt", "born"));
        P.Form5->mnuTxt.Click();
    });
    Click(P.Form1->Command2.Click);
    EXPECT_EQ(Page(),
              QStringList({u"0 A001_01.jpg blue"_s, u"1 A001_02.txt text"_s, u"2 A001_03.jpg blue"_s, u"3 4 empty"_s}));
}

TEST_F(GalleryPageTest, PictureOpenedAndClosedWhileThePageIsBuilt_KeepsNoTileFromItsFile)
{
    GivenFiles({u"A001_01.jpg"_s, u"A001_02.jpg"_s, u"A001_03.jpg"_s});
    Choose(u"Smiths");
    QStringList closed;
    Machine.Loop.AtNextYield([] {});
    Machine.Loop.AtNextYield([&] {
        ClickTile(0);
        ClickTile(0);
        closed = Page();
    });
    Click(P.Form1->Command2.Click);
    EXPECT_EQ(closed, QStringList{u"0 A001_01.jpg blue"_s});
    EXPECT_EQ(Page(),
              QStringList({u"0 A001_01.jpg blue"_s, u"1 A001_02.jpg blue"_s, u"2 A001_03.jpg blue"_s, u"3 4 empty"_s}));
}

// The tile behind the page, hidden by the deletion, is one of the next page's.
TEST_F(GalleryPageTest, PageAfterADeletionOfTheHighestFile_HasAllItsTiles)
{
    OpenGallery({u"A001_01.jpg"_s, u"A002_01.jpg"_s, u"A002_02.jpg"_s, u"A002_03.jpg"_s});
    Prompts.Expect(u"Deleting Gallery File.", u"Click on the File Icon you want to Delete.",
                   Buttons::InformationOkCancel);
    Click(P.Form5->MnuDeleteFile.Click);
    ClickTile(0);
    ClickTile(0);
    P.Form3->Data1.Records().MoveNext();
    P.Gallery.FirstShow = 1;
    Click(P.Form1->Command2.Click);
    EXPECT_EQ(Page(),
              QStringList({u"0 A002_01.jpg blue"_s, u"1 A002_02.jpg blue"_s, u"2 A002_03.jpg blue"_s, u"3 4 empty"_s}));
}

TEST_F(GalleryPageTest, BranchClosedWhileThePageIsBuilt_EndsIt)
{
    GivenFiles({u"A001_01.jpg"_s, u"A001_02.jpg"_s});
    for (const int yieldsBefore : {0, 1, 2}) {
        Choose(u"Smiths");
        for (int yield = 0; yield < yieldsBefore; ++yield)
            Machine.Loop.AtNextYield([] {});
        Machine.Loop.AtNextYield([&] { P.Form1->mnuCloseDB.Click(); });
        Click(P.Form1->Command2.Click);
        EXPECT_EQ(Page(), QStringList()) << yieldsBefore;
        EXPECT_EQ(ExitCode(), std::nullopt);
    }
}

TEST_F(GalleryPageTest, DeletionThatWaits_EndsWithANewPage)
{
    OpenGallery({u"A001_01.jpg"_s, u"A002_01.jpg"_s});
    P.Scratch.ScanState = GalleryScan::Deleting;
    P.Form3->Data1.Records().MoveNext();
    P.Gallery.FirstShow = 1;
    Click(P.Form1->Command2.Click);
    EXPECT_EQ(State(), GalleryScan::Browsing);
}

TEST_F(GalleryPageTest, WrongEnding_IsTold_AndNoTileIsShown)
{
    GivenFiles({u"A001_01.jpg"_s, u"A001_04.gif"_s, u"A001_06.jpg"_s});
    Choose(u"Smiths");
    Prompts.Expect(u"File access error.", u"Incorrect File Subscript Found in Gallery \nDirectory : gif",
                   Buttons::Information);
    Click(P.Form1->Command2.Click);
    EXPECT_EQ(Page(), QStringList());
    EXPECT_EQ(Top(), 4);
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(GalleryPageTest, WrongEndingBeforeAWrongSubscript_IsTheOneThatIsTold)
{
    GivenFiles({u"A001_01.doc"_s, u"A001_xx.jpg"_s});
    Choose(u"Smiths");
    Prompts.Expect(u"File access error.", u"Incorrect File Subscript Found in Gallery \nDirectory : doc",
                   Buttons::Information);
    Click(P.Form1->Command2.Click);
    EXPECT_EQ(Page(), QStringList());
}

TEST_F(GalleryPageTest, BranchWithoutAGalleryDirectory_ShowsAnEmptyTile)
{
    P.Files.RmDir(Home.Path(u"LfgDat_A/LfgGal_A"));
    OpenGallery();
    EXPECT_EQ(Page(), QStringList{u"0 1 empty"_s});
}

TEST_F(GalleryPageTest, RecordOfASibling_ShowsItsOwnBranchesGallery)
{
    Choose(u"Smiths");
    P.Mouse.DownX = 5100;
    P.Mouse.DownY = 700;
    P.Form1->Picture1.DblClick();
    ASSERT_EQ(P.Branch.UsingAlternate, 1);
    Click(P.Form1->Command2.Click);
    EXPECT_EQ(Page(), QStringList({u"0 B001_01.jpg red"_s, u"1 2 empty"_s}));
    EXPECT_EQ(P.Files.CurDir(), Home.Path(u"LfgDat_B"));
}

// A branch imported beside another has the same numbers.
TEST_F(GalleryPageTest, SameNumberInAnotherBranch_GetsItsOwnPage)
{
    BranchOf(u'A').InDirectory(u"Import_A").Gallery({{u"A001_02.txt"_s, "text"}}).Build();
    OpenGallery({u"A001_01.jpg"_s});
    P.Branch.WorkDir = Home.Path(u"Import_A");
    ASSERT_EQ(P.Gallery.FirstShow, 0);
    Click(P.Form1->Command2.Click);
    EXPECT_EQ(Page(), QStringList({u"0 1 empty"_s, u"1 A001_02.txt text"_s, u"2 3 empty"_s}));
}

} // namespace
} // namespace lineforge
