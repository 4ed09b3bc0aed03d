#include "gallery/GalleryTest.h"

#include <ostream>
#include <string>

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

// A gallery in which a tile is dropped on another.
struct Dropping {
    QStringList Files;
    QList<int> WithPaths; // tiles that know the ways to their files; with none the gallery is the current directory
    int From;
    int To;
};

// What the page and the gallery are then.
struct Rearranged {
    QStringList Tiles; // of those up to the trailing one all that aren't empty and named by their own number
    int Top;
    QMap<QString, QString> NamesBefore; // of the files that are called otherwise then
};

struct Move {
    const char* Name;
    Dropping Drop;
    Rearranged After;
};

void PrintTo(const Move& move, std::ostream* out)
{
    *out << move.Name;
}

class MoveTest : public RearrangeTest, public testing::WithParamInterface<Move>
{
protected:
    static QStringList WholePage()
    {
        QStringList page;
        for (int index = 0; index <= GetParam().After.Top; ++index)
            page << u"%1 %2 empty"_s.arg(index).arg(index + 1);
        for (const QString& tile : GetParam().After.Tiles)
            page[tile.section(u' ', 0, 0).toInt()] = tile;
        return page;
    }

    QMap<QString, QByteArray> Contents()
    {
        QMap<QString, QByteArray> contents;
        for (const QString& name : FilesInGallery())
            contents[name] = In(name);
        return contents;
    }

    static QMap<QString, QByteArray> ContentsAfter()
    {
        const QMap<QString, QString>& before = GetParam().After.NamesBefore;
        QMap<QString, QByteArray> contents;
        for (const QString& name : GetParam().Drop.Files)
            contents[before.key(name, name)] = ContentOf(name);
        return contents;
    }

    QStringList TagsWithPaths()
    {
        QStringList tags;
        for (int index = 0; index <= Top(); ++index)
            if (const QString tag = Tile(index).Tag; tag.contains(PathSeparator))
                tags << tag;
        return tags;
    }
};

TEST_P(MoveTest, FilesAreRenamed_AndThePageShowsIt)
{
    const Dropping& drop = GetParam().Drop;
    OpenGallery(drop.Files);
    if (drop.WithPaths.isEmpty())
        GivenCurrentDirectoryInTheGallery();
    for (const int tile : drop.WithPaths)
        GivenWholePathOn(tile);

    Drop(drop.From, drop.To);

    EXPECT_EQ(Page(), WholePage());
    EXPECT_EQ(Top(), GetParam().After.Top);
    EXPECT_EQ(TagsWithPaths().size(), drop.WithPaths.size());
    for (const QString& tag : TagsWithPaths())
        EXPECT_EQ(tag, GalleryPathOf(tag.section(PathSeparator, -1)));
    EXPECT_EQ(Contents(), ContentsAfter());
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
}

const Move moves[] = {
    {"FileToTheEmptyTileInAGap_TakesItsSubscriptAsItStands",
     {{u"A001_01.jpg"_s, u"A001_04.txt"_s}, {}, 0, 1},
     {{u"0 01 empty"_s, u"1 A001_2.jpg blue"_s, u"3 A001_04.txt text"_s}, 4, {{u"A001_2.jpg"_s, u"A001_01.jpg"_s}}}},
    {"EmptyTileOnAFile_BringsTheFileToIt",
     {{u"A001_01.jpg"_s, u"A001_04.txt"_s}, {}, 1, 0},
     {{u"0 01 empty"_s, u"1 A001_2.jpg blue"_s, u"3 A001_04.txt text"_s}, 4, {{u"A001_2.jpg"_s, u"A001_01.jpg"_s}}}},
    {"EmptyTileOnAFileWithAPath_BringsTheFileToIt",
     {{u"A001_01.wav"_s, u"A001_04.txt"_s}, {0}, 1, 0},
     {{u"0 01 empty"_s, u"1 A001_2.wav sound"_s, u"3 A001_04.txt text"_s}, 4, {{u"A001_2.wav"_s, u"A001_01.wav"_s}}}},
    {"FileWithAPath_KeepsItsDirectory",
     {{u"A001_01.jpg"_s, u"A001_12.jpg"_s}, {0}, 0, 10},
     {{u"0 01 empty"_s, u"10 A001_11.jpg blue"_s, u"11 A001_12.jpg blue"_s},
      12,
      {{u"A001_11.jpg"_s, u"A001_01.jpg"_s}}}},
    {"LongName_KeepsAllThatFollowsItsSubscript",
     {{u"A001_01 Leeds, 1901 (2).wav"_s, u"A001_03 York.avi"_s}, {}, 0, 1},
     {{u"0 01 empty"_s, u"1 A001_2 Leeds, 1901 (2).wav sound"_s, u"2 A001_03 York.avi video"_s},
      3,
      {{u"A001_2 Leeds, 1901 (2).wav"_s, u"A001_01 Leeds, 1901 (2).wav"_s}}}},
    {"FileToTheTrailingTile_BringsANewTrailingTile",
     {{u"A001_01.jpg"_s, u"A001_02.wav"_s}, {}, 0, 2},
     {{u"0 01 empty"_s, u"1 A001_02.wav sound"_s, u"2 A001_3.jpg blue"_s}, 3, {{u"A001_3.jpg"_s, u"A001_01.jpg"_s}}}},
    {"TrailingTileOnAFile_BringsANewTrailingTile",
     {{u"A001_01.jpg"_s, u"A001_02.wav"_s}, {}, 2, 0},
     {{u"0 01 empty"_s, u"1 A001_02.wav sound"_s, u"2 A001_3.jpg blue"_s}, 3, {{u"A001_3.jpg"_s, u"A001_01.jpg"_s}}}},
    {"HighestFileToTheTrailingTile_OnlyMovesUp",
     {{u"A001_01.jpg"_s, u"A001_02.jpg"_s}, {}, 1, 2},
     {{u"0 A001_01.jpg blue"_s, u"1 02 empty"_s, u"2 A001_3.jpg blue"_s}, 3, {{u"A001_3.jpg"_s, u"A001_02.jpg"_s}}}},
    {"FilesOfTwoKinds_ChangePlaces_AndKeepTheirEndings",
     {{u"A001_01.wav"_s, u"A001_02.txt"_s}, {}, 0, 1},
     {{u"0 A001_01.txt text"_s, u"1 A001_02.wav sound"_s},
      2,
      {{u"A001_01.txt"_s, u"A001_02.txt"_s}, {u"A001_02.wav"_s, u"A001_01.wav"_s}}}},
    {"FilesWithPaths_ChangePlaces_WhereverTheCurrentDirectoryIs",
     {{u"A001_01.wav"_s, u"A001_02.avi"_s}, {0, 1}, 1, 0},
     {{u"0 A001_01.avi video"_s, u"1 A001_02.wav sound"_s},
      2,
      {{u"A001_01.avi"_s, u"A001_02.avi"_s}, {u"A001_02.wav"_s, u"A001_01.wav"_s}}}},
    {"LongNames_ChangePlacesByTheirSubscriptsAlone",
     {{u"A001_01 Leeds.wav"_s, u"A001_12 York Minster.avi"_s}, {}, 0, 11},
     {{u"0 A001_01 York Minster.avi video"_s, u"11 A001_12 Leeds.wav sound"_s},
      12,
      {{u"A001_01 York Minster.avi"_s, u"A001_12 York Minster.avi"_s},
       {u"A001_12 Leeds.wav"_s, u"A001_01 Leeds.wav"_s}}}},
};

INSTANTIATE_TEST_SUITE_P(Moves, MoveTest, testing::ValuesIn(moves),
                         [](const auto& row) { return std::string(row.param.Name); });

TEST_F(RearrangeTest, HighestFileToAGap_TakesTheTrailingTileAway)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_03.jpg"_s});
    GivenCurrentDirectoryInTheGallery();
    Drop(2, 1);
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.jpg blue"_s, u"1 A001_2.jpg blue"_s, u"2 03 empty"_s}));
    EXPECT_EQ(Top(), 2);
    EXPECT_EQ(Tile(3).Tag.value(), u"4");
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
