#include "gallery/GalleryItem.h"

#include "gallery/GalleryTest.h"
#include "program/branch/SiblingBranch.h"

namespace lineforge
{
namespace
{

class GalleryItemTest : public GalleryTest
{
protected:
    void ExpectPathBox() { Prompts.Expect(u"File not Accessable.", u"Problem with File Path", Buttons::Information); }

    Rectangle PlaceOf(int index) { return {Tile(index).Left, Tile(index).Top, Tile(index).Width, Tile(index).Height}; }
    bool ButtonsAreShown() { return P.Form5->Command1.Visible && P.Form5->Command2.Visible; }
};

TEST_F(GalleryItemTest, ClickPlaysTheClickSound_AndYields)
{
    OpenGallery({u"A001_01.jpg"_s});
    QStringList commands;
    P.Form1->MMControl1.Act = [&](QStringView command) { commands << command.toString(); };
    const int before = Machine.Loop.Yields;
    ClickTile(1);
    EXPECT_EQ(commands, QStringList{u"Sound"_s});
    EXPECT_EQ(Machine.Loop.Yields, before + 1);
    EXPECT_EQ(P.Gallery.GallerySel, 1);
}

TEST_F(GalleryItemTest, Picture_OpensInItsOwnSizeInTheMiddle_WithoutTilesAndButtons)
{
    Home.WriteFile(InGallery(u"A001_02.jpg"), PictureBytes(Qt::red, {400, 300}));
    OpenGallery({u"A001_01.jpg"_s});
    ClickTile(1);
    EXPECT_EQ(Page(), QStringList{u"1 A001_02.jpg red"_s});
    EXPECT_EQ(PlaceOf(1), (Rectangle{(12000 - 6000) / 2, (8500 - 4500) / 2, 6000, 4500}));
    EXPECT_FALSE(Tile(1).Stretch);
    EXPECT_EQ(Tile(1).Picture.value().size(), QSize(400, 300));
    EXPECT_FALSE(ButtonsAreShown());
    EXPECT_EQ(State(), GalleryScan::ItemOpen);
    EXPECT_EQ(Caption(), u"A001 Gallery of John  Smith   A001_02.jpg"_s);
}

TEST_F(GalleryItemTest, PictureLargerThanTheWindow_StandsOutOnAllSides)
{
    Home.WriteFile(InGallery(u"A001_01.jpg"), PictureBytes(Qt::red, {1000, 700}));
    OpenGallery();
    ClickTile(0);
    EXPECT_EQ(PlaceOf(0), (Rectangle{-1500, -1000, 15000, 10500}));
}

TEST_F(GalleryItemTest, SecondClick_PutsThePictureBackOnItsTile)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_02.jpg"_s});
    const QStringList page = Page();
    const Rectangle place = PlaceOf(1);
    const QSize small = Tile(1).Picture.value().size();
    ClickTile(1);
    ClickTile(1);
    EXPECT_EQ(Page(), page);
    EXPECT_EQ(PlaceOf(1), place);
    EXPECT_TRUE(Tile(1).Stretch);
    EXPECT_EQ(Tile(1).Picture.value().size(), small);
    EXPECT_TRUE(ButtonsAreShown());
    EXPECT_EQ(State(), GalleryScan::Browsing);
    EXPECT_EQ(Caption(), u"A001 Gallery of  John  Smith"_s);
}

// A conversion that runs behind the gallery puts its own word back after each of its yields.
TEST_F(GalleryItemTest, StateWordTakenBehindAnOpenPicture_TheNextClickOpensFromThePage_AndTheTilesComeBackAsTheyWere)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_02.jpg"_s});
    const QStringList page = Page();
    const Rectangle places[] = {PlaceOf(0), PlaceOf(1)};
    for (const int next : {0, 1}) {
        ClickTile(0);
        P.Scratch.ScanState = GalleryScan::Browsing;
        ClickTile(next);
        EXPECT_EQ(Page().size(), 1);
        EXPECT_FALSE(Tile(next).Stretch);
        ClickTile(next);
        EXPECT_EQ(Page(), page);
        EXPECT_EQ(PlaceOf(0), places[0]);
        EXPECT_EQ(PlaceOf(1), places[1]);
        EXPECT_TRUE(Tile(0).Stretch && Tile(1).Stretch);
    }
}

TEST_F(GalleryItemTest, EmptyTile_DoesNothingButSayItsSubscriptInTheCaption)
{
    OpenGallery({u"A001_01.jpg"_s});
    ClickTile(1);
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.jpg blue"_s, u"1 2 empty"_s}));
    EXPECT_EQ(State(), GalleryScan::Browsing);
    EXPECT_EQ(Caption(), u"A001 Gallery of John  Smith   2"_s);
}

TEST_F(GalleryItemTest, Text_StartsTheEditorOnTheFile_AndTheTilesStay)
{
    OpenGallery({u"A001_01.txt"_s});
    ClickTile(0);
    EXPECT_EQ(Machine.Processes.Started, QStringList({Home.Path(u"Notepad.exe"), GalleryPathOf(u"A001_01.txt")}));
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.txt text"_s, u"1 2 empty"_s}));
    EXPECT_EQ(State(), GalleryScan::Browsing);
    EXPECT_TRUE(ButtonsAreShown());
    EXPECT_EQ(P.Scratch.sNewDir, Home.Path());
    EXPECT_EQ(P.Gallery.EditorTask, 2);
}

TEST_F(GalleryItemTest, EditorIsLookedForBesideTheProgramOnly)
{
    OpenGallery({u"A001_01.txt"_s});
    P.Files.Kill(Home.Path(u"Notepad.exe"));
    ExpectPathBox();
    ClickTile(0);
    EXPECT_EQ(Machine.Processes.Started, QStringList());
    EXPECT_EQ(State(), GalleryScan::Browsing);
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(GalleryItemTest, PictureWhoseFileIsGone_IsTold_AndThePageStays)
{
    OpenGallery({u"A001_01.jpg"_s});
    P.Files.Kill(GalleryPathOf(u"A001_01.jpg"));
    ExpectPathBox();
    ClickTile(0);
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.jpg blue"_s, u"1 2 empty"_s}));
    EXPECT_EQ(State(), GalleryScan::Browsing);
}

TEST_F(GalleryItemTest, ItemOpenWhenTheWindowIsLeft_IsOpenWhenItComesBack)
{
    OpenGallery({u"A001_01.jpg"_s});
    ClickTile(0);
    Click(P.Form5->CloseByFrame);
    EXPECT_TRUE(P.Form1->Visible);
    EXPECT_FALSE(P.Form5->Visible);
    EXPECT_EQ(State(), GalleryScan::ItemOpen);
    Click(P.Form1->Command2.Click);
    EXPECT_EQ(Page(), QStringList{u"0 A001_01.jpg blue"_s});
    ClickTile(0);
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.jpg blue"_s, u"1 2 empty"_s}));
    EXPECT_EQ(State(), GalleryScan::Browsing);
}

TEST_F(GalleryItemTest, NewPageBehindAnOpenPicture_HasAllTilesInTheirPlaces_AndTheNextClickCloses)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_02.jpg"_s, u"A002_01.jpg"_s, u"A002_02.jpg"_s});
    const Rectangle first = PlaceOf(0);
    const Rectangle second = PlaceOf(1);
    ClickTile(0);
    Click(P.Form5->CloseByFrame);
    P.Form3->Data1.Records().MoveNext();
    P.Gallery.FirstShow = 1;
    Click(P.Form1->Command2.Click);
    EXPECT_EQ(PlaceOf(0), first);
    EXPECT_EQ(State(), GalleryScan::ItemOpen);

    ClickTile(1);
    EXPECT_EQ(PlaceOf(0), first);
    EXPECT_EQ(PlaceOf(1), second);
    EXPECT_EQ(Page(), QStringList({u"0 A002_01.jpg blue"_s, u"1 A002_02.jpg blue"_s, u"2 3 empty"_s}));
    EXPECT_EQ(State(), GalleryScan::Browsing);
    EXPECT_TRUE(ButtonsAreShown());
}

TEST_F(GalleryItemTest, NewPageBehindAnOpenPicture_HasItsButtonsToo)
{
    OpenGallery({u"A001_01.jpg"_s});
    ClickTile(0);
    Click(P.Form5->CloseByFrame);
    P.Form3->Data1.Records().MoveNext();
    P.Gallery.FirstShow = 1;
    Click(P.Form1->Command2.Click);
    EXPECT_TRUE(ButtonsAreShown());
}

TEST_F(GalleryItemTest, FileAddedBesideAnOpenPicture_ClosesThePictureWhenItIsClicked)
{
    OpenGallery({u"A001_01.jpg"_s});
    const Rectangle place = PlaceOf(0);
    ClickTile(0);
    Prompts.Expect(u"Gallery Text File Addition.", u"Add new *.txt Gallery Text File ?", Buttons::QuestionOkCancel);
    Prompts.ExpectOpenFile(u"Select Text Source File", u"Text(*.txt)|*.txt|All Files(*.*)|*.*|",
                           Home.WriteFile(u"life.txt", "born"));
    Click(P.Form5->mnuTxt.Click);
    ClickTile(1);
    EXPECT_EQ(PlaceOf(0), place);
    EXPECT_EQ(State(), GalleryScan::Browsing);
    EXPECT_TRUE(ButtonsAreShown());
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.jpg blue"_s, u"1 A001_02.txt text"_s, u"2 3 empty"_s}));
}

TEST_F(GalleryItemTest, PictureOfManyMegapixels_IsEnlarged)
{
    Home.WriteFile(InGallery(u"A001_01.jpg"), PictureBytes(Qt::red, {10'000, 8'000}));
    OpenGallery();
    ClickTile(0);
    EXPECT_EQ(Tile(0).Picture.value().size(), QSize(10'000, 8'000));
}

TEST_F(GalleryItemTest, BranchChangedBehindThePage_TheItemIsThatOfThePage)
{
    Home.WriteFile(InGallery(u"A001_01.jpg"), PictureBytes(Qt::red));
    OpenGallery();
    P.Branch.WorkDir = Home.Path(u"LfgDat_B");
    ClickTile(0);
    EXPECT_EQ(Page(), QStringList{u"0 A001_01.jpg red"_s});
}

// The scanner goes on behind the window.
TEST_F(GalleryItemTest, CursorThatHasGoneOn_LeavesTheCaptionsToThePagesRecord)
{
    OpenGallery({u"A001_01.jpg"_s});
    P.Form3->Data1.Records().MoveNext();
    ASSERT_EQ(P.Form3->Text3.Text.value(), u"Mary"_s);

    ClickTile(0);
    EXPECT_EQ(Caption(), u"A001 Gallery of John  Smith   A001_01.jpg"_s);
    ClickTile(0);
    EXPECT_EQ(Caption(), u"A001 Gallery of  John  Smith"_s);
    ClickTile(1);
    EXPECT_EQ(Caption(), u"A001 Gallery of John  Smith   2"_s);
}

TEST_F(GalleryItemTest, CursorOfAnotherBranch_LeavesTheCaptionsToThePagesRecord)
{
    OpenGallery({u"A001_01.jpg"_s});
    SwitchToSibling(P, u"B");
    ASSERT_EQ(P.Form3->Label25.Caption.value(), u"B001"_s);

    ClickTile(0);

    EXPECT_EQ(Caption(), u"A001 Gallery of John  Smith   A001_01.jpg"_s);
}

TEST_F(GalleryItemTest, ForenameChangedSinceThePageWasBuilt_IsInTheCaptions)
{
    OpenGallery({u"A001_01.jpg"_s});
    Recordset& records = P.Form3->Data1.Records();
    records.Edit();
    records.Put(u"Forename", u"Jack"_s);
    records.Update();

    ClickTile(0);

    EXPECT_EQ(Caption(), u"A001 Gallery of Jack  Smith   A001_01.jpg"_s);
}

TEST_F(GalleryItemTest, PictureReplacedSinceThePageWasBuilt_OpensAsItIsNow)
{
    OpenGallery({u"A001_01.jpg"_s});
    Home.WriteFile(InGallery(u"A001_01.jpg"), PictureBytes(Qt::red, {400, 300}));

    ClickTile(0);
    EXPECT_EQ(Page(), QStringList{u"0 A001_01.jpg red"_s});
    EXPECT_EQ(Tile(0).Picture.value().size(), QSize(400, 300));

    // The tile goes on showing what the page was built of.
    ClickTile(0);
    EXPECT_EQ(Page(), QStringList({u"0 A001_01.jpg blue"_s, u"1 2 empty"_s}));
}

TEST_F(GalleryItemTest, BranchChangedBehindThePage_TheTextIsThatOfThePage)
{
    OpenGallery({u"A001_01.txt"_s});
    SwitchToSibling(P, u"B");
    ClickTile(0);
    EXPECT_EQ(Machine.Processes.Started, QStringList({Home.Path(u"Notepad.exe"), GalleryPathOf(u"A001_01.txt")}));
}

TEST_F(GalleryItemTest, CloseWithNothingOpen_DoesNothing)
{
    OpenGallery({u"A001_01.jpg"_s});
    const QString caption = Caption();
    CloseGalleryItem(P);
    EXPECT_EQ(Caption(), caption);
}

TEST_F(GalleryItemTest, TileDroppedOnItself_RearrangesNothing)
{
    OpenGallery({u"A001_01.jpg"_s, u"A001_02.jpg"_s});
    const Tree before = Home.Snapshot();
    ClickTile(0);
    ClickTile(0);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(GalleryItemTest, PictureAddedAMomentAgo_Opens)
{
    OpenGallery();
    Tile(0).Tag = GalleryPathOf(u"A001_01.jpg");
    GivenFiles({u"A001_01.jpg"_s});
    Tile(0).Picture = LoadTilePicture(P, GalleryPathOf(u"A001_01.jpg"));
    ClickTile(0);
    EXPECT_EQ(State(), GalleryScan::ItemOpen);
    EXPECT_EQ(Tile(0).Picture.value().size(), QSize(40, 30));
}

} // namespace
} // namespace lineforge
