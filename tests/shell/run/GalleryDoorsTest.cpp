#include "shell/run/GalleryDoors.h"

#include "records/RecordTest.h"

namespace lineforge
{
namespace
{

class GalleryDoorsTest : public RecordTest
{
protected:
    void GivenGallery(const QStringList& files)
    {
        for (const QString& file : files)
            Home.WriteFile(QString(u"LfgDat_A/LfgGal_A/" + file), PictureBytes(Qt::blue));
    }

    void PressWithoutTools() { Click(P.Form1->Command2.Click); }
    void PressOnRecords() { Click(P.Form3->Command1.Click); }
    void PressTree() { Click(P.Form5->Command1.Click); }
    void PressRecords() { Click(P.Form5->Command2.Click); }

    QString Caption() { return P.Form5->Caption; }
    bool TransportIsShown()
    {
        for (Button forms::Form3::*transport : forms::Form3::Transport)
            if (!((*P.Form3).*transport).Visible)
                return false;
        return true;
    }
};

TEST_F(GalleryDoorsTest, ButtonOfTheMap_BuildsThePage_KeepsTheForename_AndHidesTheMap)
{
    GivenGallery({u"A001_01.jpg"_s});
    P.Record.sShownName.clear();
    PressWithoutTools();
    EXPECT_EQ(Caption(), u"Smiths Tree Branch. Gallery A001 of John Smith"_s);
    EXPECT_EQ(P.Gallery.GalleryTop, 1);
    EXPECT_TRUE(P.Form5->Visible);
    EXPECT_FALSE(P.Form1->Visible);
    EXPECT_EQ(P.Record.sShownName, u"John"_s);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Arrow);
}

TEST_F(GalleryDoorsTest, ButtonOfTheMap_WithoutABranch_IsTold)
{
    Click(P.Form1->mnuCloseDB.Click);
    Prompts.Expect(u"Data not available", u"Cannot View until database file is Opened", Buttons::Information);
    PressWithoutTools();
    EXPECT_TRUE(P.Form1->Visible);
}

TEST_F(GalleryDoorsTest, ButtonOfTheMap_EndsAPendingMapping)
{
    P.Tools.MapCursorMode = MapCursor::Mapping;
    PressWithoutTools();
    EXPECT_EQ(P.Tools.MapCursorMode, MapCursor::Normal);
}

TEST_F(GalleryDoorsTest, ButtonOfTheMap_LeavesTheTools)
{
    Click(P.Form1->mnuTreeTools.Click);
    ASSERT_EQ(P.Tools.ToolMode, ToolsOpen);
    Prompts.Expect(u"Closing Graphics Tools", u"Save the Tree Graphic changes ?", Buttons::InformationYesNo,
                   Answer::No);
    PressWithoutTools();
    EXPECT_NE(P.Tools.ToolMode, ToolsOpen);
    EXPECT_TRUE(P.Form5->Visible);
}

// View has taken the mouse from them.
TEST_F(GalleryDoorsTest, ButtonOfTheMap_ToolsLeftToThemselves_StayAsTheyAre_AndThePageIsTheRecordsBesideTheMap)
{
    Click(P.Form1->mnuTreeTools.Click);
    P.Form1->Text1.Text = u"Nobody"_s;
    Click(P.Form1->Command3.Click);
    ASSERT_EQ(P.Tools.ToolMode, 1);
    Records(P.Form3).MoveNext();
    PressWithoutTools();
    EXPECT_EQ(Caption(), u"Smiths Tree Branch. Gallery A002 of Mary Jones"_s);
    EXPECT_TRUE(P.Form1->Image8.Visible);
}

TEST_F(GalleryDoorsTest, SameRecordAgain_ShowsThePageThatItHas)
{
    GivenGallery({u"A001_01.jpg"_s});
    PressWithoutTools();
    PressTree();
    EXPECT_TRUE(P.Form1->Visible);
    EXPECT_FALSE(P.Form5->Visible);
    GivenGallery({u"A001_02.jpg"_s});
    PressWithoutTools();
    EXPECT_EQ(P.Gallery.GalleryTop, 1);
}

TEST_F(GalleryDoorsTest, RecordThatASearchHasFound_GetsItsOwnPage)
{
    GivenGallery({u"A001_01.jpg"_s, u"A002_01.jpg"_s, u"A002_02.jpg"_s});
    PressWithoutTools();
    PressRecords();
    Records(P.Form3).MoveNext();
    ASSERT_EQ(P.Gallery.FirstShow, 0);
    PressOnRecords();
    EXPECT_EQ(Caption(), u"Smiths Tree Branch. Gallery A002 of Mary Jones"_s);
    EXPECT_EQ(P.Gallery.GalleryTop, 2);
}

TEST_F(GalleryDoorsTest, PageOfARecordThatASearchHasFound_IsBuiltUnderTheHourglass)
{
    PressWithoutTools();
    PressRecords();
    Records(P.Form3).MoveNext();
    bool isHourglass = false;
    Machine.Loop.AtNextYield([&] { isHourglass = P.Screen.Pointer == MousePointer::Hourglass; });
    PressOnRecords();
    EXPECT_TRUE(isHourglass);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Arrow);
}

TEST_F(GalleryDoorsTest, ButtonOfTheRecordForm_BuildsThePage_AndHidesTheForm)
{
    GivenRecordForm();
    PressOnRecords();
    EXPECT_EQ(Caption(), u"Smiths Tree Branch. Gallery A001 of John Smith"_s);
    EXPECT_TRUE(P.Form5->Visible);
    EXPECT_FALSE(P.Form3->Visible);
}

TEST_F(GalleryDoorsTest, RecordsButton_ShowsTheRecordWithItsPicture)
{
    PressWithoutTools();
    P.Form3->Image1.Picture = QImage();
    PressRecords();
    EXPECT_FALSE(P.Form3->Image1.Picture.value().isNull());
    EXPECT_TRUE(P.Form3->Visible);
    EXPECT_FALSE(P.Form5->Visible);
    EXPECT_TRUE(TransportIsShown());
}

TEST_F(GalleryDoorsTest, RecordsButton_WithoutThePicture_ShowsTheRecordAllTheSame_AndNobodyElse)
{
    PressWithoutTools();
    P.Form3->Image1.Picture = P.Form1->Image1.Picture.value();
    P.Files.Kill(Home.Path(u"LfgDat_A/A001Sub.jpg"));
    PressRecords();
    EXPECT_TRUE(P.Form3->Visible);
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"none"_s);
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(GalleryDoorsTest, RecordsButtonOnASiblingsRecord_HidesTheScanner_UntilTheOwnBranchIsBack)
{
    GivenRecordOfSibling();
    PressWithoutTools();
    PressRecords();
    EXPECT_FALSE(TransportIsShown());
    Click(P.Form3->Command2.Click);
    P.Mouse.DownX = 1300;
    P.Mouse.DownY = 700;
    Click(P.Form1->Picture1.DblClick);
    ASSERT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_TRUE(TransportIsShown());
}

TEST_F(GalleryDoorsTest, TreePressedWhileThePageIsBuilt_LeavesTheMapInSight)
{
    GivenGallery({u"A001_01.jpg"_s});
    Machine.Loop.AtNextYield([&] { P.Form5->Command1.Click(); });
    PressWithoutTools();
    EXPECT_TRUE(P.Form1->Visible);
    EXPECT_FALSE(P.Form5->Visible);
}

TEST_F(GalleryDoorsTest, RecordsPressedWhileThePageIsBuilt_LeavesTheFormInSight)
{
    GivenGallery({u"A001_01.jpg"_s});
    GivenRecordForm();
    Machine.Loop.AtNextYield([&] { P.Form5->Command2.Click(); });
    PressOnRecords();
    EXPECT_TRUE(P.Form3->Visible);
    EXPECT_FALSE(P.Form5->Visible);
}

TEST_F(GalleryDoorsTest, ClosedBranch_LeavesAnEmptyWindow_AndTheNextOneItsOwnPage)
{
    GivenGallery({u"A001_01.jpg"_s, u"A001_02.jpg"_s});
    PressWithoutTools();
    PressTree();
    Click(P.Form1->mnuCloseDB.Click);
    Choose(u"Jones");
    PressWithoutTools();
    EXPECT_EQ(Caption(), u"Jones Tree Branch. Gallery B001 of John Smith"_s);
    EXPECT_EQ(P.Gallery.GalleryTop, 0);
    EXPECT_TRUE(P.Form5->Image1[0].Visible);
    EXPECT_FALSE(P.Form5->Image1[1].Visible);
}

TEST_F(GalleryDoorsTest, EmptyBranch_ShowsOneEmptyTile)
{
    ExpectEmptyBox();
    Choose(u"Nobody");
    PressWithoutTools();
    EXPECT_EQ(Caption(), u"Nobody Tree Branch. Gallery  of  "_s);
    EXPECT_TRUE(P.Form5->Image1[0].Visible);
    EXPECT_EQ(P.Form5->Image1[0].Tag.value(), u"1"_s);
    EXPECT_FALSE(P.Form5->Image1[1].Visible);
}

TEST_F(GalleryDoorsTest, EmptyBranch_LeftForTheRecordForm_NamesNobodysPicture)
{
    Click(P.Form1->mnuCloseDB.Click);
    ExpectEmptyBox();
    Choose(u"Nobody");
    PressWithoutTools();
    PressRecords();
    EXPECT_EQ(P.Record.sPicFile, QString());
    EXPECT_EQ(P.Record.sCurFile, u"A001"_s);
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"none"_s);
}

} // namespace
} // namespace lineforge
