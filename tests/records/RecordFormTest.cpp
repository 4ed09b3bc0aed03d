#include "records/RecordForm.h"

#include "map/items/MapItems.h"
#include "records/RecordTest.h"
#include "support/Pixels.h"

namespace lineforge
{
namespace
{

using testing::Values;
using testing::WithParamInterface;

class RecordFormTest : public RecordTest
{
protected:
    void PressTree() { P.Form3->Command2.Click(); }
    void PressGallery() { P.Form3->Command1.Click(); }

    QString Forename(int row) { return P.Map.BoxArr[row][BoxColumn::Forename].Text(); }
    QImage Map() { return ShownBy(P.Form1->Picture1).copy(); }

    // What the map looks like once the names have been printed over the first box by hand, one wiping the other.
    QImage MapWith(const QString& wiped, const QString& printed)
    {
        const QImage before = Map();
        PictureBox& picture = P.Form1->Picture1;
        ResetMapFont(picture);
        picture.ForeColor = picture.BackColor;
        picture.PrintAt({1200 + 50, 600 + 100}, wiped);
        picture.ForeColor = Black;
        picture.PrintAt({1200 + 50, 600 + 100}, printed);
        const QImage result = Map();
        EXPECT_FALSE(result == before);
        return result;
    }

    // Draws the map anew, as the file has it.
    void GivenMapDrawnAfresh()
    {
        P.Form1->mnuCloseDB.Click();
        Choose(u"Smiths");
    }
};

// The two ways to the form.
struct Way {
    const char* Name;
    void (*Go)(Program& p);
};

void PrintTo(const Way& way, std::ostream* out)
{
    *out << way.Name;
}

class OpenFormTest : public RecordFormTest, public WithParamInterface<Way>
{
protected:
    void Open() { GetParam().Go(P); }
};

TEST_P(OpenFormTest, ShowsTheFormWithTheRecordsPicture_AndRemembersTheForename)
{
    Records(P.Form3).MoveNext();
    P.Record.sShownName = u"nobody"_s;

    Open();

    EXPECT_TRUE(P.Form3->Visible);
    EXPECT_EQ(P.Record.sShownName, u"Mary"_s);
    EXPECT_EQ(P.Record.sCurFile, u"A002"_s);
    EXPECT_EQ(P.Record.sPicFile, u"A002Sub.Jpg"_s);
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"green"_s);
}

TEST_P(OpenFormTest, WithNoBranchOpen_IsTold_AndStaysClosed)
{
    P.Form1->mnuCloseDB.Click();
    Prompts.Expect(u"Data not available", u"Cannot View until database file is Opened", Buttons::Information);

    Open();

    EXPECT_FALSE(P.Form3.IsLoaded() && P.Form3->Visible);
}

TEST_P(OpenFormTest, BringsThePointerBackToDefault)
{
    for (const MousePointer pointer : {MousePointer::Hourglass, MousePointer::Arrow, MousePointer::Cross}) {
        P.Screen.Pointer = pointer;
        Open();
        EXPECT_EQ(P.Screen.Pointer.value(), MousePointer::Default);
    }
}

TEST_P(OpenFormTest, EndsAPendingMappingOrRepositioning)
{
    for (const int mode : {1, 2}) {
        P.Tools.MapCursorMode = mode;
        P.Screen.Pointer = MousePointer::Cross;
        Open();
        EXPECT_EQ(P.Tools.MapCursorMode, MapCursor::Normal);
        EXPECT_EQ(P.Screen.Pointer.value(), MousePointer::Default);
    }
}

TEST_P(OpenFormTest, MissingPicture_LeavesItsPlaceEmpty_NotWithThePersonBefore)
{
    Open();
    ASSERT_EQ(ColourOf(P.Form3->Image1), u"red"_s);
    RemovePicture(u"A002");
    Records(P.Form3).MoveNext();

    Open();

    EXPECT_TRUE(P.Form3->Visible);
    EXPECT_EQ(P.Record.sPicFile, u"A002Sub.Jpg"_s);
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"none"_s);
}

TEST_P(OpenFormTest, BranchWithoutRecords_ShowsNobodysPicture)
{
    Open();
    ASSERT_EQ(ColourOf(P.Form3->Image1), u"red"_s);
    ExpectEmptyBox();
    Choose(u"Nobody");

    Open();

    EXPECT_EQ(ColourOf(P.Form3->Image1), u"none"_s);
    EXPECT_EQ(ColourOf(P.Form1->Image1), u"none"_s);
    EXPECT_EQ(P.Form3->Text3.Text.value(), QString());
}

TEST_P(OpenFormTest, OwnRecord_LeavesTheScannersButtonsOn)
{
    Open();

    for (const auto button : forms::Form3::Transport)
        EXPECT_TRUE(((*P.Form3).*button).Enabled);
}

INSTANTIATE_TEST_SUITE_P(Ways, OpenFormTest,
                         Values(Way{"Records button", [](Program& p) { p.Form1->Command1.Click(); }},
                                Way{"View Records entry", [](Program& p) { p.Form1->mnuViewRecs.Click(); }}));

TEST_F(RecordFormTest, Load_TakesTheScreensWidth_And400TwipsLessThanItsHeight)
{
    Machine.Screen.Width = 15360;
    Machine.Screen.Height = 11520;
    P.Form3.Unload();

    P.Form3.Load();

    EXPECT_EQ(P.Form3->Width, 15360);
    EXPECT_EQ(P.Form3->Height, 11120);
    EXPECT_EQ(P.Form3->Left, 0);
    EXPECT_EQ(P.Form3->Top, 0);
}

TEST_F(RecordFormTest, Load_CaptionTellsTheBranchSelectedInTheList)
{
    P.Form3.Unload();
    P.Form1->Open.Click();
    P.Form8->List1.SetText(u"Jones"_s);

    P.Form3.Load();

    EXPECT_EQ(P.Form3->Caption.value(), u"Jones Ancestral Records."_s);
}

class TreeTest : public RecordFormTest
{
protected:
    TreeTest() { GivenRecordForm(); }
};

TEST_F(TreeTest, GoesBackToTheMap)
{
    P.Form1->Hide();

    PressTree();

    EXPECT_TRUE(P.Form1->Visible);
    EXPECT_FALSE(P.Form3->Visible);
    EXPECT_TRUE(P.Form3.IsLoaded());
}

TEST_F(TreeTest, ChangedForename_IsPrintedInItsBox_AndTheOldOneIsWiped)
{
    const QImage expected = MapWith(u"John"_s, u"Anne"_s);
    GivenMapDrawnAfresh();
    GivenRecordForm();
    P.Form3->Text3.Text = u"Anne"_s;

    PressTree();

    EXPECT_EQ(Forename(0), u"Anne"_s);
    EXPECT_TRUE(Map() == expected);
}

TEST_F(TreeTest, ChangedForename_IsShortenedToFit_AndWipedSo)
{
    const QImage withLong = MapWith(u"John"_s, u"Chris'r"_s);
    const QImage withShort = MapWith(u"Chris'r"_s, u"Jo"_s);
    GivenMapDrawnAfresh();

    GivenRecordForm();
    P.Form3->Text3.Text = u"Christopher"_s;
    PressTree();
    EXPECT_EQ(Forename(0), u"Christopher"_s);
    EXPECT_TRUE(Map() == withLong);

    GivenRecordForm();
    P.Form3->Text3.Text = u"Jo"_s;
    PressTree();
    EXPECT_TRUE(Map() == withShort);
}

TEST_F(TreeTest, ChangedForename_LeavesThePenBlack_AndTheFontUpright)
{
    P.Form1->Picture1.Font.Italic = true;
    P.Form3->Text3.Text = u"Anne"_s;

    PressTree();

    EXPECT_EQ(P.Form1->Picture1.ForeColor, Black);
    EXPECT_FALSE(P.Form1->Picture1.Font.Italic);
    EXPECT_EQ(P.Form1->Picture1.Font.Size, 8);
}

TEST_F(TreeTest, ChangedForename_RebuildsTheListOfBoxes)
{
    P.Map.sBoxesText = u"stale"_s;
    P.Form3->Text3.Text = u"Anne"_s;

    PressTree();

    EXPECT_EQ(P.Map.sBoxesText, u"1200,600,255,A001,Anne,3000,600,255,A002,Mary,5000,600,255,A003,Peter,"_s);
}

TEST_F(TreeTest, SameForename_LeavesMapAndListAlone)
{
    P.Map.sBoxesText = u"stale"_s;
    const QImage before = Map();

    PressTree();

    EXPECT_EQ(P.Map.sBoxesText, u"stale"_s);
    EXPECT_TRUE(Map() == before);
}

TEST_F(TreeTest, ForenameChangedInItsCaseOnly_CountsAsUnchanged_AndIsStillWritten)
{
    P.Map.sBoxesText = u"stale"_s;
    const QImage before = Map();
    P.Form3->Text3.Text = u"JOHN"_s;

    PressTree();

    EXPECT_EQ(Forename(0), u"John"_s);
    EXPECT_EQ(P.Map.sBoxesText, u"stale"_s);
    EXPECT_TRUE(Map() == before);
    Records(P.Form3).MoveNext();
    EXPECT_EQ(Stored("Forename"), u"JOHN"_s);
}

TEST_F(TreeTest, RecordInTwoBoxes_OnlyTheFirstIsRewritten_CaseOfItsNumberIgnored)
{
    P.Map.BoxArr[1][BoxColumn::File] = u"a001"_s;
    P.Map.BoxArr[0][BoxColumn::File] = u"0"_s;
    P.Map.BoxArr[2][BoxColumn::File] = u"A001"_s;
    P.Form3->Text3.Text = u"Anne"_s;

    PressTree();

    EXPECT_EQ(Forename(0), u"John"_s);
    EXPECT_EQ(Forename(1), u"Anne"_s);
    EXPECT_EQ(Forename(2), u"Peter"_s);
}

TEST_F(TreeTest, LastFiledBoxIsLookedAt_TheNextIsNot)
{
    P.Map.BoxArr[99] = P.Map.BoxArr[0];
    P.Map.BoxArr[100] = P.Map.BoxArr[0];
    P.Map.BoxArr[0][BoxColumn::File] = u"0"_s;
    P.Form3->Text3.Text = u"Anne"_s;
    PressTree();
    EXPECT_EQ(Forename(99), u"Anne"_s);
    EXPECT_EQ(Forename(100), u"John"_s);

    P.Map.BoxArr[99][BoxColumn::File] = u"0"_s;
    GivenRecordForm();
    P.Form3->Text3.Text = u"Ben"_s;
    PressTree();
    EXPECT_EQ(Forename(99), u"Anne"_s);
    EXPECT_EQ(Forename(100), u"John"_s);
}

TEST_F(TreeTest, RecordWithoutABox_LeavesThePicture_AndRebuildsTheList)
{
    P.Map.BoxArr[0][BoxColumn::File] = u"0"_s;
    P.Map.sBoxesText = u"stale"_s;
    const QImage before = Map();
    P.Form3->Text3.Text = u"Anne"_s;

    PressTree();

    EXPECT_TRUE(Map() == before);
    EXPECT_EQ(P.Map.sBoxesText, u"1200,600,255,0,John,3000,600,255,A002,Mary,5000,600,255,A003,Peter,"_s);
}

TEST_F(TreeTest, MovedToAnotherRecord_ComparesWithTheNameAtOpening_AndRewritesThatRecordsBox)
{
    Records(P.Form3).MoveNext();
    P.Map.BoxArr[1][BoxColumn::Forename] = u"old"_s;

    PressTree();

    EXPECT_EQ(Forename(0), u"John"_s);
    EXPECT_EQ(Forename(1), u"Mary"_s);
}

TEST_F(TreeTest, ChangedGender_IsWrittenAtOnce_AndColoursTheMarker)
{
    P.Gallery.FirstShow = 0;
    P.Form3->Text23.Text = u"Female"_s;

    PressTree();

    EXPECT_EQ(Stored("Gender"), u"Female"_s);
    EXPECT_EQ(P.Form1->Shape1.BorderColor.value(), QbColor(12));
    EXPECT_EQ(P.Form1->Label17.Caption.value(), u"Female"_s);
    EXPECT_EQ(P.Gallery.FirstShow, 1);
}

TEST_F(TreeTest, EmptiedGender_IsEmptyText_NotNull)
{
    P.Form3->Text23.Text = QString();

    PressTree();

    EXPECT_EQ(Stored("Gender"), QString());
    EXPECT_EQ(P.Form1->Shape1.BorderColor.value(), QbColor(13));
}

TEST_F(TreeTest, SameGender_WritesNothingOfItsOwn)
{
    const Tree before = Home.Snapshot();

    PressTree();

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(TreeTest, WithoutGenderInRecordAndBox_WritesNothing)
{
    SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb")).Execute("UPDATE Tree99 SET Gender = NULL");
    Records(P.Form3).MoveFirst();
    const Tree before = Home.Snapshot();

    PressTree();

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(TreeTest, Panel_ShowsTheRecordWithWhatWasTyped)
{
    Records(P.Form3).MoveNext();
    P.Form3->Text2.Text = u"Brown"_s;

    PressTree();

    EXPECT_EQ(P.Form1->Label10.Caption.value(), u"Brown"_s);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"Mary"_s);
    EXPECT_EQ(ShownRef(), u"Ref  A002"_s);
    EXPECT_EQ(ColourOf(P.Form1->Image1), u"green"_s);
}

TEST_F(TreeTest, MissingPicture_IsTold_AndTheMapIsShown)
{
    RemovePicture(u"A001");
    ExpectMissingPicture(u"A001Sub.Jpg");

    PressTree();

    EXPECT_EQ(ColourOf(P.Form1->Image1), u"none"_s);
    EXPECT_FALSE(P.Form3->Visible);
}

TEST_F(TreeTest, Marker_FollowsOnlyWhenANewGalleryPageIsAskedFor)
{
    Records(P.Form3).MoveNext();
    P.Record.sShownName = u"Mary"_s;
    P.Gallery.FirstShow = 0;
    PressTree();
    EXPECT_EQ(MarkerLeft(), MarkerOn(1200));

    P.Gallery.FirstShow = 1;
    PressTree();
    EXPECT_EQ(MarkerLeft(), MarkerOn(3000));
}

TEST_F(TreeTest, PendingMapping_WritesTheForename_AndEnds)
{
    P.Tools.MapCursorMode = MapCursor::Mapping;
    P.Form3->Text3.Text = u"Anne"_s;

    PressTree();

    EXPECT_EQ(P.Tools.MapCursorMode, MapCursor::Normal);
    EXPECT_EQ(Stored("Forename"), u"Anne"_s);
    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_TRUE(P.Record.SavedBookmark.has_value());
    EXPECT_EQ(P.Form3->Text3.Text.value(), u"Anne"_s);
}

TEST_F(TreeTest, PendingMapping_PrintsNumberAndForenameInTheBox)
{
    P.Form1->Picture1.Cls();
    P.Tools.MapCursorMode = MapCursor::Mapping;

    PressTree();

    EXPECT_GT(CountPixels(P.Form1->Picture1, Black, {1250, 600, 615, 250}), 0);
    EXPECT_EQ(CountPixels(P.Form1->Picture1, Black, {3000, 600, 615, 250}), 0);
}

TEST_F(TreeTest, WithoutAPendingMapping_NoBookmarkIsKept)
{
    P.Record.SavedBookmark.reset();
    P.Form3->Text3.Text = u"Anne"_s;

    PressTree();

    EXPECT_FALSE(P.Record.SavedBookmark.has_value());
}

TEST_F(TreeTest, OnABranchWithoutRecords_GoesBack_WithItsMissingPicture)
{
    GivenEmptyBranch();
    ExpectMissingPicture(u"Sub.Jpg");

    Click(P.Form3->Command2.Click);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_FALSE(P.Form3->Visible);
    EXPECT_TRUE(P.Form1->Visible);
}

TEST_F(TreeTest, AnUnreadablePosition_CostsItsStepOnly)
{
    P.Map.BoxArr[0][BoxColumn::X] = u"here"_s;
    P.Form3->Text3.Text = u"Anne"_s;
    P.Form3->Text23.Text = u"Female"_s;

    Click(P.Form3->Command2.Click);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(Stored("Gender"), u"Female"_s);
    EXPECT_FALSE(P.Form3->Visible);
}

// What a user can do with texts still pending.
class NothingLostTest : public RecordFormTest, public WithParamInterface<Way>
{
};

TEST_P(NothingLostTest, EveryTextTyped_StandsInTheFileAfterwards_AndInItsOwnRecordOnly)
{
    GivenRecordForm();
    P.Form3->Text2.Text = u"Brown"_s;
    P.Form3->Text11.Text = u"first\nsecond"_s;
    P.Form3->Text1.Text = u"Ålander, \"half\" Ω"_s;
    P.Form3->Text6.Text = u"x"_s;
    P.Form3->Text6.Text = QString();

    try {
        GetParam().Go(P);
    } catch (const ProgramEnded&) {
    }

    EXPECT_EQ(Stored("Surname"), u"Brown"_s);
    EXPECT_EQ(Stored("Notes"), u"first\nsecond"_s);
    EXPECT_EQ(Stored("Nationality"), u"Ålander, \"half\" Ω"_s);
    EXPECT_EQ(Stored("Spouse"), QString());
    EXPECT_EQ(Stored("Medical"), std::nullopt);
    EXPECT_EQ(Stored("Surname", "A002"), u"Jones"_s);
    EXPECT_EQ(Stored("Notes", "A002"), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Ways, NothingLostTest,
                         Values(Way{"next record", [](Program& p) { Records(p.Form3).MoveNext(); }},
                                Way{"last record", [](Program& p) { Records(p.Form3).MoveLast(); }},
                                Way{"first record, itself", [](Program& p) { Records(p.Form3).MoveFirst(); }},
                                Way{"behind the last record",
                                    [](Program& p) {
                                        while (!Records(p.Form3).Eof())
                                            Records(p.Form3).MoveNext();
                                    }},
                                Way{"a search without a hit",
                                    [](Program& p) { Records(p.Form3).Seek(u"File", u"Z999"_s); }},
                                Way{"a scan",
                                    [](Program& p) {
                                        p.Form3->Picture2.Click();
                                        p.Form3->Timer1.Tick();
                                    }},
                                Way{"Tree, then another record",
                                    [](Program& p) {
                                        p.Form3->Command2.Click();
                                        Records(p.Form3).MoveNext();
                                    }},
                                Way{"Tree with another gender",
                                    [](Program& p) {
                                        p.Form3->Text23.Text = u"Female"_s;
                                        p.Form3->Command2.Click();
                                    }},
                                Way{"frame, then closed branch",
                                    [](Program& p) {
                                        p.Form3->CloseByFrame();
                                        p.Form1->mnuCloseDB.Click();
                                    }},
                                Way{"Tree, then a double click on another box",
                                    [](Program& p) {
                                        p.Form3->Command2.Click();
                                        p.Mouse.DownX = 3100;
                                        p.Mouse.DownY = 700;
                                        p.Form1->Picture1.DblClick();
                                    }},
                                Way{"Gallery", [](Program& p) { p.Form3->Command1.Click(); }},
                                Way{"unloading", [](Program& p) { p.Form3.Unload(); }},
                                Way{"closing the branch", [](Program& p) { p.Form1->mnuCloseDB.Click(); }},
                                Way{"opening another branch",
                                    [](Program& p) {
                                        p.Form1->Open.Click();
                                        p.Form8->List1.SetText(u"Jones"_s);
                                        p.Form8->Command1.Click();
                                    }},
                                Way{"opening the same branch",
                                    [](Program& p) {
                                        p.Form1->Open.Click();
                                        p.Form8->List1.SetText(u"Smiths"_s);
                                        p.Form8->Command1.Click();
                                    }},
                                Way{"Exit", [](Program& p) { p.Form3->mnuExit.Click(); }},
                                Way{"Exit of the map", [](Program& p) { p.Form1->mnuExit.Click(); }},
                                Way{"the map's frame", [](Program& p) { p.Form1->CloseByFrame(); }}));

class GalleryButtonTest : public RecordFormTest
{
protected:
    GalleryButtonTest() { GivenRecordForm(); }
};

TEST_F(GalleryButtonTest, WhileASubjectIsMapped_DoesNothing)
{
    P.Tools.MapCursorMode = MapCursor::Mapping;
    P.Form3->Text3.Text = u"Anne"_s;
    const Tree before = Home.Snapshot();

    PressGallery();

    EXPECT_TRUE(P.Form3->Visible);
    EXPECT_FALSE(P.Form5->Visible);
    EXPECT_EQ(P.Tools.MapCursorMode, MapCursor::Mapping);
    EXPECT_EQ(Forename(0), u"John"_s);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(GalleryButtonTest, ShowsTheGallery_AndHidesTheForm_WithTheArrow)
{
    for (const int firstShow : {0, 1}) {
        P.Form5->Hide();
        P.Gallery.FirstShow = firstShow;
        P.Screen.Pointer = MousePointer::Default;

        PressGallery();

        EXPECT_TRUE(P.Form5->Visible);
        EXPECT_FALSE(P.Form3->Visible);
        EXPECT_EQ(P.Screen.Pointer.value(), MousePointer::Arrow);
    }
}

TEST_F(GalleryButtonTest, CarriesTheForenameToTheMap_AndWritesAllThatWasTyped)
{
    const QImage expected = MapWith(u"John"_s, u"Anne"_s);
    GivenMapDrawnAfresh();
    GivenRecordForm();
    P.Form3->Text3.Text = u"Anne"_s;
    P.Form3->Text4.Text = u"1 May 1901"_s;

    PressGallery();

    EXPECT_EQ(Forename(0), u"Anne"_s);
    EXPECT_TRUE(P.Map.sBoxesText.contains(u"A001,Anne,"));
    EXPECT_EQ(Stored("Forename"), u"Anne"_s);
    EXPECT_EQ(Stored("BirthDate"), u"1 May 1901"_s);
    EXPECT_TRUE(Map() == expected);
}

TEST_F(GalleryButtonTest, WritesAChangedGender_AndTheMapFollows)
{
    P.Form3->Text23.Text = u"Female"_s;

    PressGallery();

    EXPECT_EQ(Stored("Gender"), u"Female"_s);
    EXPECT_EQ(P.Form1->Shape1.BorderColor.value(), QbColor(12));
}

TEST_F(GalleryButtonTest, PanelFollowsTheRecord_TheMarkerOnlyWhenANewPageIsAskedFor)
{
    Records(P.Form3).MoveNext();
    P.Gallery.FirstShow = 0;
    PressGallery();
    EXPECT_EQ(ShownRef(), u"Ref  A002"_s);
    EXPECT_EQ(MarkerLeft(), MarkerOn(1200));

    P.Gallery.FirstShow = 1;
    PressGallery();
    EXPECT_EQ(MarkerLeft(), MarkerOn(3000));
}

TEST_F(GalleryButtonTest, MissingPicture_IsTold)
{
    RemovePicture(u"A001");
    ExpectMissingPicture(u"A001Sub.Jpg");

    PressGallery();

    EXPECT_TRUE(P.Form5->Visible);
}

TEST_F(RecordFormTest, PictureClick_ShowsItAlone_UnderNumberForenameAndSurname)
{
    GivenRecordForm();

    P.Form3->Image1.Click();

    EXPECT_EQ(P.Form2->Caption.value(), u"A001     John  Smith"_s);
    EXPECT_EQ(ColourOf(P.Form2->Image1), u"red"_s);
    EXPECT_TRUE(P.Form2->Visible);
}

TEST_F(RecordFormTest, ClickOnThePictureAlone_HidesIt)
{
    GivenRecordForm();
    P.Form3->Image1.Click();

    P.Form2->Image1.Click();

    EXPECT_FALSE(P.Form2->Visible);
}

TEST_F(RecordFormTest, PictureClickWithoutPicture_IsTold_AndEmptiesTheMapsPanel)
{
    GivenRecordForm();
    P.Form3->Image1.Click();
    P.Form2->Hide();
    RemovePicture(u"A001");
    ExpectMissingPicture(u"A001Sub.Jpg", [&] {
        EXPECT_EQ(ColourOf(P.Form1->Image1), u"none"_s);
        EXPECT_FALSE(P.Form2->Visible);
    });

    P.Form3->Image1.Click();

    EXPECT_EQ(ColourOf(P.Form2->Image1), u"red"_s);
    EXPECT_FALSE(P.Form2->Visible);
}

// Whatever has moved the cursor since a picture was named last.
TEST_F(RecordFormTest, PictureClickOnARecordThatTheBarWentTo_ShowsItsOwn)
{
    GivenRecordForm();
    Records(P.Form3).MoveNext();
    LoopRuns();

    P.Form3->Image1.Click();

    EXPECT_EQ(P.Form2->Caption.value(), u"A002     Mary  Jones"_s);
    EXPECT_EQ(ColourOf(P.Form2->Image1), u"green"_s);
}

TEST_F(RecordFormTest, Bar_ShowsThePictureWithTheRecord)
{
    GivenRecordForm();
    RemovePicture(u"A003");
    for (const QString& colour : {u"green"_s, u"none"_s}) {
        Records(P.Form3).MoveNext();
        LoopRuns();
        EXPECT_EQ(ColourOf(P.Form3->Image1), colour);
    }
    Records(P.Form3).MoveFirst();
    LoopRuns();
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"red"_s);
}

TEST_F(RecordFormTest, DoubleClickOnTheMapBehind_ShowsThePictureWithTheRecord)
{
    GivenRecordForm();
    P.Mouse.DownX = 3100;
    P.Mouse.DownY = 700;

    Click(P.Form1->Picture1.DblClick);
    LoopRuns();

    EXPECT_EQ(P.Form3->Label25.Caption.value(), u"A002"_s);
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"green"_s);
}

TEST_F(RecordFormTest, OtherBranchOpenedBehind_ShowsThePictureOfItsFirstRecord)
{
    GivenRecordForm();
    Records(P.Form3).MoveNext();

    Choose(u"Jones");
    LoopRuns();

    EXPECT_EQ(P.Form3->Label25.Caption.value(), u"B001"_s);
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"red"_s);
    ExpectEmptyBox();
    Choose(u"Nobody");
    LoopRuns();
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"none"_s);
}

TEST_F(RecordFormTest, PictureClickOnARecordWithoutSurname_LeavesTheBlanks)
{
    Records(P.Form3).MoveLast();
    GivenRecordForm();

    P.Form3->Image1.Click();

    EXPECT_EQ(P.Form2->Caption.value(), u"A003     Peter  "_s);
}

class RecordMenuTest : public RecordFormTest, public WithParamInterface<MenuItem forms::Form3::*>
{
protected:
    RecordMenuTest() { GivenRecordForm(); }
    void Open() { ((*P.Form3).*GetParam()).Click(); }
};

TEST_P(RecordMenuTest, Opening_TurnsTheBarOff_AndEndsAPendingMapping)
{
    ASSERT_TRUE(P.Form3->Data1.Enabled);
    for (const int mode : {1, 2}) {
        P.Tools.MapCursorMode = mode;
        P.Screen.Pointer = MousePointer::Cross;

        Open();

        EXPECT_FALSE(P.Form3->Data1.Enabled);
        EXPECT_EQ(P.Tools.MapCursorMode, MapCursor::Normal);
        EXPECT_EQ(P.Screen.Pointer.value(), MousePointer::Default);
    }
}

INSTANTIATE_TEST_SUITE_P(Menus, RecordMenuTest,
                         Values(&forms::Form3::mnuEdit, &forms::Form3::mnuPrint, &forms::Form3::mnuSearch));

TEST_F(RecordFormTest, SearchMenuOnARecordOfAnotherBranch_IsRefused_AndChangesNothing)
{
    GivenRecordOfSibling();
    GivenRecordForm();
    P.Tools.MapCursorMode = MapCursor::Repositioning;
    Prompts.Expect(u"Search Alternate Tree Branch Records.",
                   u"This Record is from another Tree Branch. You must open \n"
                   u"that Tree Branch to Search the Records of the Database. ",
                   Buttons::Information);

    P.Form3->mnuSearch.Click();

    EXPECT_TRUE(P.Form3->Data1.Enabled);
    EXPECT_EQ(P.Tools.MapCursorMode, MapCursor::Repositioning);
}

TEST_F(RecordFormTest, EditAndPrintMenusOnARecordOfAnotherBranch_AreNotRefused)
{
    GivenRecordOfSibling();
    GivenRecordForm();

    P.Form3->mnuEdit.Click();

    EXPECT_FALSE(P.Form3->Data1.Enabled);
}

TEST_F(RecordFormTest, Help_OpensTheHelpFile_AndEndsAPendingMapping)
{
    GivenRecordForm();
    P.Tools.MapCursorMode = MapCursor::Mapping;
    const QString helpFile = P.Branch.HomeDir + u"LfgHelp.hlp";
    Prompts.ExpectHelp(helpFile);

    P.Form3->mnuHelp.Click();

    EXPECT_EQ(P.Tools.MapCursorMode, MapCursor::Normal);
    EXPECT_TRUE(P.Form3->Data1.Enabled);
}

TEST_F(RecordFormTest, Exit_SavesTheMap_ClosesTheMedia_AndEndsWithCodeZero)
{
    GivenRecordForm();
    MoveFirstBoxTo(1300);
    QStringList commands;
    P.Form5->MMControl1.Act = [&](QStringView command) { commands += command.toString(); };

    Click(P.Form3->mnuExit.Click);

    EXPECT_EQ(ExitCode(), 0);
    EXPECT_TRUE(MapOf(u'A').contains("1300,600,255,A001,John,"));
    EXPECT_TRUE(commands.contains(u"Close"_s));
    EXPECT_FALSE(P.Form3.IsLoaded());
    EXPECT_EQ(SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb")).Try("BEGIN EXCLUSIVE; COMMIT"), 0);
}

TEST_F(RecordFormTest, ExitWithAReadOnlyMap_TellsSo_AndKeepsWhatWasTyped)
{
    GivenRecordForm();
    P.Form3->Text2.Text = u"Brown"_s;
    Home.MakeReadOnly(u"LfgDat_A/LfgDat_A.cfg");
    const QByteArray before = MapOf(u'A');
    ExpectFatalBox(u"Run-time error '75':\n\nPath/File access error",
                   u"This can't be opened, made, changed or removed:\n"_s + Home.Path(u"LfgDat_A/LfgDat_A.cfg"));

    Click(P.Form3->mnuExit.Click);

    EXPECT_EQ(ExitCode(), 0);
    EXPECT_EQ(MapOf(u'A'), before);
    EXPECT_EQ(Stored("Surname"), u"Brown"_s);
}

TEST_F(RecordFormTest, FrameClose_LeadsBackToTheMap_WithTheDatabaseStillOpen)
{
    GivenRecordForm();
    P.Form1->Hide();
    P.Form3->Text3.Text = u"Anne"_s;

    P.Form3->CloseByFrame();

    EXPECT_TRUE(P.Form1->Visible);
    EXPECT_FALSE(P.Form3->Visible);
    EXPECT_EQ(Forename(0), u"Anne"_s);
    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"Anne"_s);
    Records(P.Form3).MoveNext();
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"Mary"_s);
}

} // namespace
} // namespace lineforge
