#include "gallery/GalleryTest.h"

namespace lineforge
{
namespace
{

class DeleteFileTest : public GalleryTest
{
protected:
    void BeginDeletion(Answer answer = Answer::Ok)
    {
        Prompts.Expect(u"Deleting Gallery File.", u"Click on the File Icon you want to Delete.",
                       Buttons::InformationOkCancel, answer);
        Click(P.Form5->MnuDeleteFile.Click);
    }
};

TEST_F(DeleteFileTest, FileInTheMiddle_LeavesAnEmptyTile)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_02.jpg"_s, u"A001_03.jpg"_s});
    BeginDeletion();
    EXPECT_EQ(State(), GalleryScan::Deleting);
    ClickTile(1);
    EXPECT_EQ(FilesInGallery(), QStringList({u"A001_01.jpg"_s, u"A001_03.jpg"_s}));
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.jpg blue"_s, u"1 2 empty"_s, u"2 A001_03.jpg blue"_s, u"3 4 empty"_s}));
    EXPECT_EQ(State(), GalleryScan::Browsing);
    EXPECT_EQ(Top(), 3);
}

TEST_F(DeleteFileTest, NextAddition_FillsTheEmptyTile)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_02.jpg"_s, u"A001_03.jpg"_s});
    BeginDeletion();
    ClickTile(1);
    Prompts.Expect(u"Gallery Text File Addition.", u"Add new *.txt Gallery Text File ?", Buttons::QuestionOkCancel);
    Prompts.ExpectOpenFile(u"Select Text Source File", u"Text(*.txt)|*.txt|All Files(*.*)|*.*|",
                           Home.WriteFile(u"life.txt", "born"));
    Click(P.Form5->mnuTxt.Click);
    EXPECT_EQ(Page().at(1), u"1 A001_02.txt text"_s);
    EXPECT_EQ(Top(), 3);
}

TEST_F(DeleteFileTest, HighestFile_TakesTheTrailingTileAway_AndItsOwnTileOpensEmpty)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_03.jpg"_s});
    BeginDeletion();
    ClickTile(2);
    EXPECT_EQ(FilesInGallery(), QStringList{u"A001_01.jpg"_s});
    EXPECT_EQ(Top(), 2);
    EXPECT_EQ(Tile(3).Tag.value(), u"3");
    // The click goes on into the opening, with the tag that still holds the name.
    EXPECT_EQ(Page(), QStringList{u"2 A001_03.jpg empty"_s});
    EXPECT_EQ(State(), GalleryScan::ItemOpen);
    EXPECT_FALSE(P.Form5->Command1.Visible);

    ClickTile(2);
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.jpg blue"_s, u"1 2 empty"_s, u"2 A001_03.jpg empty"_s}));
    EXPECT_EQ(State(), GalleryScan::Browsing);
}

TEST_F(DeleteFileTest, FileAddedToTheTileThatHasOpenedEmpty_StaysThereWhenItIsClosed)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_02.jpg"_s});
    BeginDeletion();
    ClickTile(1);
    Prompts.Expect(u"Gallery Sound Clip Addition.", u"Add new *.Wav Sound clip ?", Buttons::QuestionOkCancel);
    Prompts.ExpectOpenFile(u"Select Sound Clip Source File", u"Audio(*.Wav)|*.Wav|All Files(*.*)|*.*|",
                           Home.WriteFile(u"bells.wav", "ding"));
    Click(P.Form5->mnuAud.Click);
    ClickTile(1);
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.jpg blue"_s, u"1 A001_02.wav sound"_s, u"2 3 empty"_s}));
    EXPECT_EQ(State(), GalleryScan::Browsing);
}

TEST_F(DeleteFileTest, HighestSound_EndsInTheBoxOfAMissingFile)
{
    OpenGallery({u"A001_01.wav"_s});
    P.Form5->MMControl1.Act = [](QStringView command) {
        if (command == u"Open")
            throw RuntimeError(ErrorNumber::FileNotFound);
    };
    BeginDeletion();
    Prompts.Expect(u"File not Accessable.", u"Problem with File Path", Buttons::Information);
    ClickTile(0);
    EXPECT_EQ(FilesInGallery(), QStringList());
    EXPECT_EQ(State(), GalleryScan::ItemOpen);
    EXPECT_EQ(Top(), 0);
}

TEST_F(DeleteFileTest, HighestText_IsDeleted_AndTheEditorStartedOnItsName)
{
    OpenGallery({u"A001_01.txt"_s});
    BeginDeletion();
    ClickTile(0);
    EXPECT_EQ(FilesInGallery(), QStringList());
    EXPECT_EQ(Machine.Processes.Started, QStringList({Home.Path(u"Notepad.exe"), GalleryPathOf(u"A001_01.txt")}));
    EXPECT_EQ(State(), GalleryScan::Browsing);
}

TEST_F(DeleteFileTest, EmptyTile_OnlyEndsTheDeletion)
{
    OpenGallery({u"A001_02.jpg"_s});
    const QStringList page = Page();
    const QString caption = Caption();
    BeginDeletion();
    ClickTile(0);
    EXPECT_EQ(State(), GalleryScan::Browsing);
    EXPECT_EQ(Page(), page);
    EXPECT_EQ(Caption(), caption);
    EXPECT_EQ(FilesInGallery(), QStringList{u"A001_02.jpg"_s});
}

TEST_F(DeleteFileTest, AllFilesOfTheSubscript_Go_AndNoOthers)
{
    OpenGallery({u"A001_02.jpg"_s, u"A001_02.wav"_s, u"A001_03.jpg"_s, u"A002_02.jpg"_s});
    BeginDeletion();
    ClickTile(1);
    EXPECT_EQ(FilesInGallery(), QStringList({u"A001_03.jpg"_s, u"A002_02.jpg"_s}));
}

TEST_F(DeleteFileTest, FileOfOneDigit_Goes)
{
    OpenGallery({u"A001_2.jpg"_s, u"A001_05.jpg"_s});
    BeginDeletion();
    ClickTile(1);
    EXPECT_EQ(FilesInGallery(), QStringList{u"A001_05.jpg"_s});
}

// Of the two names with one digit the tile names the later one; the other is no file of the subscript.
TEST_F(DeleteFileTest, FileOfOneDigitThatTheTileNames_GoesBesideThoseOfTwo)
{
    OpenGallery({u"A001_02.jpg"_s, u"A001_2.jpg"_s, u"A001_2.wav"_s, u"A001_05.jpg"_s});
    ASSERT_EQ(Page().at(1), u"1 A001_2.wav sound"_s);
    BeginDeletion();
    ClickTile(1);
    EXPECT_EQ(FilesInGallery(), QStringList({u"A001_05.jpg"_s, u"A001_2.jpg"_s}));
}

TEST_F(DeleteFileTest, FileOfOneDigitJustMoved_GoesByItsPath)
{
    OpenGallery({u"A001_01.wav"_s, u"A001_05.jpg"_s});
    Tile(0).Tag = GalleryPathOf(u"A001_01.wav");
    Drop(0, 2);
    ASSERT_EQ(FilesInGallery(), QStringList({u"A001_05.jpg"_s, u"A001_3.wav"_s}));
    BeginDeletion();
    ClickTile(2);
    EXPECT_EQ(FilesInGallery(), QStringList{u"A001_05.jpg"_s});
}

TEST_F(DeleteFileTest, BranchChangedBehindThePage_KeepsItsFiles)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_02.jpg"_s});
    Home.WriteFile(u"LfgDat_B/LfgGal_B/A001_01.jpg", "another branch's");
    BeginDeletion();
    P.Branch.WorkDir = Home.Path(u"LfgDat_B");
    ClickTile(0);
    EXPECT_TRUE(Home.Exists(u"LfgDat_B/LfgGal_B/A001_01.jpg"));
    EXPECT_EQ(FilesInGallery(), QStringList{u"A001_02.jpg"_s});
}

TEST_F(DeleteFileTest, FileThatHasGoneAlready_LeavesAnEmptyTile)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_02.jpg"_s});
    P.Files.Kill(GalleryPathOf(u"A001_01.jpg"));
    BeginDeletion();
    ClickTile(0);
    EXPECT_EQ(Page(), QStringList({u"0 1 empty"_s, u"1 A001_02.jpg blue"_s, u"2 3 empty"_s}));
}

TEST_F(DeleteFileTest, BoxDeclined_DeletesNothingAtTheNextClick)
{
    OpenGallery({u"A001_01.jpg"_s});
    BeginDeletion(Answer::Cancel);
    EXPECT_EQ(State(), GalleryScan::Browsing);
    ClickTile(0);
    EXPECT_EQ(FilesInGallery(), QStringList{u"A001_01.jpg"_s});
}

TEST_F(DeleteFileTest, OpenItem_IsClosedFirst)
{
    OpenGallery({u"A001_01.jpg"_s});
    ClickTile(0);
    BeginDeletion(Answer::Cancel);
    EXPECT_EQ(State(), GalleryScan::Browsing);
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.jpg blue"_s, u"1 2 empty"_s}));
}

TEST_F(DeleteFileTest, WhileItWaits_ADropOnAnotherTileRearranges)
{
    OpenGallery({u"A001_01.wav"_s, u"A001_02.wav"_s});
    P.Files.ChDir(Home.Path(u"LfgDat_A/LfgGal_A"));
    BeginDeletion();
    Drop(0, 1);
    EXPECT_EQ(State(), GalleryScan::Deleting);
    EXPECT_EQ(Home.ReadFile(InGallery(u"A001_01.wav")), "A001_02.wav");
    EXPECT_EQ(Home.ReadFile(InGallery(u"A001_02.wav")), "A001_01.wav");
}

TEST_F(DeleteFileTest, RecordTheUserHasGoneOnTo_KeepsItsFiles)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_02.jpg"_s, u"A002_01.jpg"_s});
    BeginDeletion();
    P.Form3->Data1.Records().MoveNext();
    ClickTile(0);
    EXPECT_EQ(FilesInGallery(), QStringList({u"A001_02.jpg"_s, u"A002_01.jpg"_s}));
}

TEST_F(DeleteFileTest, ReadOnlyFile_EndsTheProgram_AndStays)
{
    OpenGallery({u"A001_01.jpg"_s});
    Home.MakeReadOnly(InGallery(u"A001_01.jpg"));
    BeginDeletion();
    ExpectFatalBox(u"Run-time error '75':\n\nPath/File access error",
                   u"This can't be opened, made, changed or removed:\n"_s + GalleryPathOf(u"A001_01.jpg"));
    ClickTile(0);
    EXPECT_EQ(FilesInGallery(), QStringList{u"A001_01.jpg"_s});
}

struct WayOut {
    const char* Name;
    std::function<void(forms::Form5&)> Take;
};
class EndedDeletionTest : public DeleteFileTest, public testing::WithParamInterface<WayOut>
{
};

TEST_P(EndedDeletionTest, NextClickDeletesNothing)
{
    OpenGallery({u"A001_01.jpg"_s});
    BeginDeletion();
    Click([&] { GetParam().Take(*P.Form5); });
    EXPECT_EQ(State(), GalleryScan::Browsing);
    ClickTile(0);
    EXPECT_EQ(FilesInGallery(), QStringList{u"A001_01.jpg"_s});
}

std::string NameOf(const testing::TestParamInfo<WayOut>& way)
{
    return way.param.Name;
}

INSTANTIATE_TEST_SUITE_P(Ways, EndedDeletionTest,
                         testing::Values(WayOut{"EditMenu", [](forms::Form5& form) { form.mnuEdit.Click(); }},
                                         WayOut{"Tree", [](forms::Form5& form) { form.Command1.Click(); }},
                                         WayOut{"Records", [](forms::Form5& form) { form.Command2.Click(); }},
                                         WayOut{"SoundExit", [](forms::Form5& form) { form.Command3.Click(); }},
                                         WayOut{"VideoExit", [](forms::Form5& form) { form.Command4.Click(); }}),
                         NameOf);

} // namespace
} // namespace lineforge
