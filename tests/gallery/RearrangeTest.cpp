#include "gallery/GalleryTest.h"

namespace lineforge
{
namespace
{

class RearrangeTest : public GalleryTest
{
protected:
    // As a cancelled addition leaves it: bare names are found then.
    void GivenCurrentDirectoryInTheGallery() { P.Files.ChDir(Home.Path(u"LfgDat_A/LfgGal_A")); }

    // As an addition leaves the tile of its file.
    void GivenWholePathOn(int index) { Tile(index).Tag = GalleryPathOf(Tile(index).Tag.value()); }

    QByteArray In(QStringView name) { return Home.ReadFile(InGallery(name)); }
};

TEST_F(RearrangeTest, FromAPageBuild_TheNamesAreNotFound_AndTheProgramEnds)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_02.jpg"_s});
    const Tree before = Home.Snapshot();
    ExpectFatalBox(u"Run-time error '53':\n\nFile not found",
                   u"There is no such file:\n"_s + Home.Path(u"LfgDat_A/A001_02.jpg"));
    Drop(0, 1);
    EXPECT_TRUE(ExitCode().has_value());
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(RearrangeTest, FromAPageBuild_MovesFailAsWell)
{
    const std::pair<int, int> moves[] = {{0, 1}, {0, 3}, {1, 0}, {3, 0}};
    OpenGallery({u"A001_01.jpg"_s, u"A001_03.jpg"_s});
    for (const auto& [source, target] : moves) {
        P.Gallery.FirstShow = 1;
        Click(P.Form1->Command2.Click);
        const Tree before = Home.Snapshot();
        ExpectFatalBox(u"Run-time error '53':\n\nFile not found",
                       u"There is no such file:\n"_s + Home.Path(u"LfgDat_A/A001_01.jpg"));
        Drop(source, target);
        EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    }
}

// One tile of a page build and one of an addition.
TEST_F(RearrangeTest, NameAndPath_FromAPageBuild_LoseNothing)
{
    OpenGallery({u"A001_01.wav"_s, u"A001_02.wav"_s});
    GivenWholePathOn(1);
    const Tree before = Home.Snapshot();
    ExpectFatalBox(u"Run-time error '53':\n\nFile not found",
                   u"There is no such file:\n"_s + Home.Path(u"LfgDat_A/A001_01.wav"));
    Drop(0, 1);
    ExpectFatalBox(u"Run-time error '53':\n\nFile not found",
                   u"There is no such file:\n"_s + Home.Path(u"LfgDat_A/A001_01.wav"));
    Drop(1, 0);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(RearrangeTest, NameAndPath_WithTheGalleryCurrent_ChangePlaces)
{
    OpenGallery({u"A001_01.wav"_s, u"A001_02.avi"_s});
    GivenCurrentDirectoryInTheGallery();
    GivenWholePathOn(0);
    Drop(0, 1);
    EXPECT_EQ(FilesInGallery(), QStringList({u"A001_01.avi"_s, u"A001_02.wav"_s}));
    Drop(0, 1);
    EXPECT_EQ(FilesInGallery(), QStringList({u"A001_01.wav"_s, u"A001_02.avi"_s}));
}

TEST_F(RearrangeTest, FileOfOneDigit_MovesAndSwapsByIt)
{
    OpenGallery({u"A001_01.wav"_s, u"A001_2.avi"_s});
    GivenCurrentDirectoryInTheGallery();
    Drop(1, 2);
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.wav sound"_s, u"1 2 empty"_s, u"2 A001_3.avi video"_s, u"3 4 empty"_s}));
    Drop(0, 2);
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.avi video"_s, u"1 2 empty"_s, u"2 A001_3.wav sound"_s, u"3 4 empty"_s}));
}

TEST_F(RearrangeTest, LongName_KeepsAllThatFollowsItsSubscript)
{
    OpenGallery({u"A001_01 Leeds, 1901 (2).wav"_s, u"A001_03 York.avi"_s});
    GivenCurrentDirectoryInTheGallery();
    Drop(0, 1);
    EXPECT_EQ(FilesInGallery(), QStringList({u"A001_03 York.avi"_s, u"A001_2 Leeds, 1901 (2).wav"_s}));
}

TEST_F(RearrangeTest, LongNames_ChangePlacesByTheirSubscriptsAlone)
{
    OpenGallery({u"A001_01 Leeds.wav"_s, u"A001_12 York Minster.avi"_s});
    GivenCurrentDirectoryInTheGallery();
    Drop(0, 11);
    EXPECT_EQ(FilesInGallery(), QStringList({u"A001_01 York Minster.avi"_s, u"A001_12 Leeds.wav"_s}));
    EXPECT_EQ(In(u"A001_12 Leeds.wav"), "A001_01 Leeds.wav");
}

// A swap is three renames: none of them is done when one of the files isn't there.
TEST_F(RearrangeTest, SwapWithAFileThatHasGone_RenamesNothing)
{
    for (const QStringView gone : {u"A001_01.wav", u"A001_02.avi"}) {
        GivenFiles({u"A001_01.wav"_s, u"A001_02.avi"_s});
        P.Gallery.FirstShow = 1;
        OpenGallery();
        GivenCurrentDirectoryInTheGallery();
        P.Files.Kill(GalleryPathOf(gone));
        const Tree before = Home.Snapshot();
        ExpectFatalBox(u"Run-time error '53':\n\nFile not found", u"There is no such file:\n"_s + GalleryPathOf(gone));
        Drop(0, 1);
        EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    }
}

TEST_F(RearrangeTest, EmptyTileOnAFileWithAPath_BringsTheFileToIt)
{
    OpenGallery({u"A001_01.wav"_s, u"A001_04.txt"_s});
    GivenWholePathOn(0);
    Drop(1, 0);
    EXPECT_EQ(Tile(1).Tag.value(), GalleryPathOf(u"A001_2.wav"));
    EXPECT_EQ(FilesInGallery(), QStringList({u"A001_04.txt"_s, u"A001_2.wav"_s}));
}

TEST_F(RearrangeTest, FileToTheEmptyTileInAGap_TakesItsSubscriptAsItStands)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_04.txt"_s});
    GivenCurrentDirectoryInTheGallery();
    Drop(0, 1);
    EXPECT_EQ(Page(), QStringList({u"0 01 empty"_s, u"1 A001_2.jpg blue"_s, u"2 3 empty"_s, u"3 A001_04.txt text"_s,
                                   u"4 5 empty"_s}));
    EXPECT_EQ(FilesInGallery(), QStringList({u"A001_04.txt"_s, u"A001_2.jpg"_s}));
    EXPECT_EQ(Top(), 4);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
}

TEST_F(RearrangeTest, FileWithAPath_KeepsItsDirectory)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_12.jpg"_s});
    GivenWholePathOn(0);
    Drop(0, 10);
    EXPECT_EQ(Tile(10).Tag.value(), GalleryPathOf(u"A001_11.jpg"));
    EXPECT_EQ(FilesInGallery(), QStringList({u"A001_11.jpg"_s, u"A001_12.jpg"_s}));
}

TEST_F(RearrangeTest, FileToTheTrailingTile_BringsANewTrailingTile)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_02.wav"_s});
    GivenCurrentDirectoryInTheGallery();
    Drop(0, 2);
    EXPECT_EQ(Page(), QStringList({u"0 01 empty"_s, u"1 A001_02.wav sound"_s, u"2 A001_3.jpg blue"_s, u"3 4 empty"_s}));
    EXPECT_EQ(Top(), 3);
}

TEST_F(RearrangeTest, HighestFileToAGap_TakesTheTrailingTileAway)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_03.jpg"_s});
    GivenCurrentDirectoryInTheGallery();
    Drop(2, 1);
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.jpg blue"_s, u"1 A001_2.jpg blue"_s, u"2 03 empty"_s}));
    EXPECT_EQ(Top(), 2);
    EXPECT_EQ(Tile(3).Tag.value(), u"4");
}

TEST_F(RearrangeTest, HighestFileToTheTrailingTile_OnlyMovesUp)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_02.jpg"_s});
    GivenCurrentDirectoryInTheGallery();
    Drop(1, 2);
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.jpg blue"_s, u"1 02 empty"_s, u"2 A001_3.jpg blue"_s, u"3 4 empty"_s}));
    EXPECT_EQ(Top(), 3);
}

TEST_F(RearrangeTest, EmptyTileOnAFile_BringsTheFileToIt)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_04.txt"_s});
    GivenCurrentDirectoryInTheGallery();
    Drop(1, 0);
    EXPECT_EQ(Page(), QStringList({u"0 01 empty"_s, u"1 A001_2.jpg blue"_s, u"2 3 empty"_s, u"3 A001_04.txt text"_s,
                                   u"4 5 empty"_s}));
    EXPECT_EQ(FilesInGallery(), QStringList({u"A001_04.txt"_s, u"A001_2.jpg"_s}));
}

TEST_F(RearrangeTest, TrailingTileOnAFile_BringsANewTrailingTile)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_02.wav"_s});
    GivenCurrentDirectoryInTheGallery();
    Drop(2, 0);
    EXPECT_EQ(Page(), QStringList({u"0 01 empty"_s, u"1 A001_02.wav sound"_s, u"2 A001_3.jpg blue"_s, u"3 4 empty"_s}));
    EXPECT_EQ(Top(), 3);
}

TEST_F(RearrangeTest, EmptyTileOnTheHighestFile_TakesTheTrailingTileAway_AndLeavesItsTag)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_03.jpg"_s});
    GivenCurrentDirectoryInTheGallery();
    Tile(3).Tag = u"04"_s; // as a move of an earlier file leaves it
    Drop(1, 2);
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.jpg blue"_s, u"1 A001_2.jpg blue"_s, u"2 03 empty"_s}));
    EXPECT_EQ(Top(), 2);
    EXPECT_EQ(Tile(3).Tag.value(), u"04");
}

TEST_F(RearrangeTest, TwoEmptyTiles_ChangeNothing)
{
    OpenGallery({u"A001_03.jpg"_s});
    const QStringList page = Page();
    const Tree before = Home.Snapshot();
    Drop(0, 1);
    EXPECT_EQ(Page(), page);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
}

TEST_F(RearrangeTest, TwoFiles_ChangePlaces)
{
    Home.WriteFile(InGallery(u"A001_03.jpg"), PictureBytes(Qt::red));
    OpenGallery({u"A001_01.jpg"_s});
    GivenCurrentDirectoryInTheGallery();
    Drop(0, 2);
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.jpg red"_s, u"1 2 empty"_s, u"2 A001_03.jpg blue"_s, u"3 4 empty"_s}));
    EXPECT_EQ(In(u"A001_01.jpg"), PictureBytes(Qt::red));
    EXPECT_EQ(In(u"A001_03.jpg"), PictureBytes(Qt::blue));
    EXPECT_EQ(FilesInGallery(), QStringList({u"A001_01.jpg"_s, u"A001_03.jpg"_s}));
}

TEST_F(RearrangeTest, FilesOfTwoKinds_KeepTheirEndings)
{
    OpenGallery({u"A001_01.wav"_s, u"A001_02.txt"_s});
    GivenCurrentDirectoryInTheGallery();
    Drop(0, 1);
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.txt text"_s, u"1 A001_02.wav sound"_s, u"2 3 empty"_s}));
    EXPECT_EQ(In(u"A001_01.txt"), "A001_02.txt");
    EXPECT_EQ(In(u"A001_02.wav"), "A001_01.wav");
}

TEST_F(RearrangeTest, TwoFilesWithPaths_ChangePlaces_WhereverTheCurrentDirectoryIs)
{
    OpenGallery({u"A001_01.wav"_s, u"A001_02.avi"_s});
    GivenWholePathOn(0);
    GivenWholePathOn(1);
    Drop(1, 0);
    EXPECT_EQ(Tile(0).Tag.value(), GalleryPathOf(u"A001_01.avi"));
    EXPECT_EQ(Tile(1).Tag.value(), GalleryPathOf(u"A001_02.wav"));
    EXPECT_EQ(In(u"A001_01.avi"), "A001_02.avi");
    EXPECT_EQ(In(u"A001_02.wav"), "A001_01.wav");
}

TEST_F(RearrangeTest, FileAddedAMomentAgo_MovesFromItsPath)
{
    GivenFiles({u"A001_01.jpg"_s, u"A001_03.jpg"_s});
    OpenGallery();
    Prompts.Expect(u"Gallery Text File Addition.", u"Add new *.txt Gallery Text File ?", Buttons::QuestionOkCancel);
    Prompts.ExpectOpenFile(u"Select Text Source File", u"Text(*.txt)|*.txt|All Files(*.*)|*.*|",
                           Home.WriteFile(u"life.txt", "born"));
    Click(P.Form5->mnuTxt.Click);
    ASSERT_EQ(Tile(1).Tag.value(), GalleryPathOf(u"A001_02.txt"));

    Drop(1, 3);
    EXPECT_EQ(Tile(3).Tag.value(), GalleryPathOf(u"A001_4.txt"));
    EXPECT_EQ(In(u"A001_4.txt"), "born");
    EXPECT_EQ(Tile(1).Tag.value(), u"02");
}

TEST_F(RearrangeTest, NameThatIsTaken_EndsTheProgram_AndBothFilesStay)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_03.jpg"_s});
    GivenFiles({u"A001_2.jpg"_s});
    GivenCurrentDirectoryInTheGallery();
    const Tree before = Home.Snapshot();
    ExpectFatalBox(u"Run-time error '58':\n\nFile already exists",
                   u"A file of this name is there already:\n"_s + GalleryPathOf(u"A001_2.jpg"));
    Drop(0, 1);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

} // namespace
} // namespace lineforge
