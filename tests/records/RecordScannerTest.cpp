#include "records/RecordScanner.h"

#include "program/branch/SiblingBranch.h"
#include "records/RecordTest.h"

namespace lineforge
{
namespace
{

using testing::Values;
using testing::WithParamInterface;

constexpr Button forms::Form3::*moving[] = {&forms::Form3::Picture1, &forms::Form3::Picture2, &forms::Form3::Picture4,
                                            &forms::Form3::Picture5};

class RecordScannerTest : public RecordTest
{
protected:
    RecordScannerTest() { GivenRecordForm(); }

    void Press(Button forms::Form3::*button) { ((*P.Form3).*button).Click(); }
    void PressStop() { Press(&forms::Form3::Picture3); }
    void Tick() { P.Form3->Timer1.Tick(); }

    void StandOn(QStringView file) { ASSERT_TRUE(Records(P.Form3).Seek(u"File", file.toString())); }

    // The name of the store whose picture each of the five buttons shows, in their order; "" for none of them.
    QStringList Faces()
    {
        forms::Form3& form = *P.Form3;
        const Image* stores[] = {&form.Image2, &form.Image3, &form.Image4, &form.Image5,  &form.Image6,
                                 &form.Image7, &form.Image8, &form.Image9, &form.Image10, &form.Image11};
        QStringList names;
        for (const auto button : forms::Form3::Transport) {
            QString name;
            for (const Image* store : stores)
                if ((form.*button).Picture.value() == store->Picture.value())
                    name = store->Name;
            names += name;
        }
        return names;
    }

    void GivenBlankFaces()
    {
        for (const auto button : forms::Form3::Transport)
            ((*P.Form3).*button).Picture = QImage();
    }

    bool IsRunning() { return P.Form3->Timer1.Enabled; }
    int Mode() { return P.Record.RecordScanMode; }
};

TEST_F(RecordScannerTest, TenFaces_AreTenDifferentPictures)
{
    forms::Form3& form = *P.Form3;
    const Image* stores[] = {&form.Image2, &form.Image3, &form.Image4, &form.Image5,  &form.Image6,
                             &form.Image7, &form.Image8, &form.Image9, &form.Image10, &form.Image11};
    for (const Image* one : stores) {
        EXPECT_FALSE(one->Picture.value().isNull()) << qUtf8Printable(one->Name);
        EXPECT_FALSE(one->Visible) << qUtf8Printable(one->Name);
        for (const Image* other : stores)
            EXPECT_EQ(one == other, one->Picture.value() == other->Picture.value())
                << qUtf8Printable(one->Name) << ' ' << qUtf8Printable(other->Name);
    }
}

TEST_F(RecordScannerTest, AtRest_TheTimerIsOffAtItsFirstInterval_AndTheStopButtonIsDown)
{
    EXPECT_FALSE(IsRunning());
    EXPECT_EQ(P.Form3->Timer1.Interval.value(), 100);
    EXPECT_EQ(Faces(), (QStringList{u"Image2"_s, u"Image4"_s, u"Image7"_s, u"Image8"_s, u"Image10"_s}));
}

struct Start {
    Button forms::Form3::*Pressed;
    int Mode;
    QStringList Faces;
    int Interval; // after a tick
    bool Forward;
};

void PrintTo(const Start& start, std::ostream* out)
{
    *out << "mode " << start.Mode;
}

class ScanStartTest : public RecordScannerTest, public WithParamInterface<Start>
{
};

TEST_P(ScanStartTest, Press_SetsTheMode_AndTurnsTheTimerOn)
{
    Press(GetParam().Pressed);

    EXPECT_EQ(Mode(), GetParam().Mode);
    EXPECT_TRUE(IsRunning());
    EXPECT_EQ(Current(), u"A001"_s);
}

TEST_P(ScanStartTest, Press_ShowsTheButtonDown_AndAllOthersUp)
{
    GivenBlankFaces();

    Press(GetParam().Pressed);

    EXPECT_EQ(Faces(), GetParam().Faces);
}

TEST_P(ScanStartTest, Press_GoesToTheDirectoryAboveTheBranch)
{
    ASSERT_EQ(P.Files.CurDir(), Home.Path(u"LfgDat_A"));

    Press(GetParam().Pressed);

    EXPECT_EQ(P.Scratch.sNewDir, Home.Path() + PathSeparator);
    EXPECT_EQ(P.Files.CurDir(), Home.Path());
}

TEST_P(ScanStartTest, Press_LeavesTheInterval_AndTheTickRewritesIt)
{
    P.Form3->Timer1.Interval = 77;
    Press(GetParam().Pressed);
    EXPECT_EQ(P.Form3->Timer1.Interval.value(), 77);

    StandOn(u"A002");
    Tick();
    EXPECT_EQ(P.Form3->Timer1.Interval.value(), GetParam().Interval);

    P.Form3->Timer1.Interval = 77;
    Tick();
    EXPECT_EQ(P.Form3->Timer1.Interval.value(), GetParam().Interval);
}

TEST_P(ScanStartTest, IntervalOfTheLastScan_IsLeftToTheNext)
{
    Press(GetParam().Pressed);
    StandOn(u"A002");
    Tick();
    PressStop();

    Press(GetParam().Forward ? &forms::Form3::Picture4 : &forms::Form3::Picture2);

    EXPECT_EQ(P.Form3->Timer1.Interval.value(), GetParam().Interval);
}

TEST_P(ScanStartTest, Tick_MovesOneRecord_AndGoesOn)
{
    StandOn(u"A002");
    Press(GetParam().Pressed);

    Tick();

    EXPECT_EQ(Current(), GetParam().Forward ? u"A003"_s : u"A001"_s);
    EXPECT_EQ(Mode(), GetParam().Mode);
    EXPECT_TRUE(IsRunning());
    EXPECT_EQ(Faces(), GetParam().Faces);
    EXPECT_EQ(P.Files.CurDir(), Home.Path());
}

TEST_P(ScanStartTest, PressDuringAnyOtherRun_ChangesTheModeAtOnce_WithoutAStop)
{
    for (const auto other : moving) {
        Press(other);
        Press(GetParam().Pressed);
        EXPECT_EQ(Mode(), GetParam().Mode);
        EXPECT_TRUE(IsRunning());
        EXPECT_EQ(Faces(), GetParam().Faces);
        EXPECT_EQ(ShownRef(), u"Ref  A001"_s);
    }
}

TEST_P(ScanStartTest, RunToTheEnd_StopsThere_AndTheMapFollows)
{
    P.Gallery.FirstShow = 0;
    StandOn(GetParam().Forward ? u"A001" : u"A003");
    Press(GetParam().Pressed);

    for (int tick = 0; tick < 3; ++tick) {
        EXPECT_TRUE(IsRunning());
        Tick();
    }

    const bool forward = GetParam().Forward;
    EXPECT_EQ(Current(), forward ? u"A003"_s : u"A001"_s);
    EXPECT_EQ(Mode(), 3);
    EXPECT_FALSE(IsRunning());
    EXPECT_EQ(P.Files.CurDir(), Home.Path(u"LfgDat_A"));
    EXPECT_EQ(P.Scratch.sNewDir, Home.Path() + PathSeparator);
    EXPECT_EQ(ShownRef(), forward ? u"Ref  A003"_s : u"Ref  A001"_s);
    EXPECT_EQ(ColourOf(P.Form1->Image1), forward ? u"blue"_s : u"red"_s);
    EXPECT_EQ(MarkerLeft(), MarkerOn(forward ? 5000 : 1200));
    EXPECT_EQ(P.Gallery.FirstShow, 1);
}

TEST_P(ScanStartTest, OnABranchWithoutRecords_TheFirstTickStops_AndShowsTheEmptyState)
{
    GivenEmptyBranch();
    P.Form1->Label9.Caption = u"somebody"_s;
    Press(GetParam().Pressed);
    ExpectMissingPicture(u"Sub.Jpg");

    Click(P.Form3->Timer1.Tick);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(Mode(), 3);
    EXPECT_FALSE(IsRunning());
    for (const Label* label : {&P.Form1->Label9, &P.Form1->Label10, &P.Form1->Label11, &P.Form1->Label12,
                               &P.Form1->Label14, &P.Form1->Label15, &P.Form1->Label17})
        EXPECT_EQ(label->Caption.value(), QString()) << qUtf8Printable(label->Name);
    EXPECT_EQ(ShownRef(), u"Ref  "_s);
    EXPECT_EQ(ColourOf(P.Form1->Image1), u"none"_s);
    EXPECT_FALSE(P.Form1->Shape1.Visible);
    EXPECT_EQ(P.Files.CurDir(), Home.Path(u"LfgDat_C"));
}

INSTANTIATE_TEST_SUITE_P(
    Buttons, ScanStartTest,
    Values(
        Start{
            &forms::Form3::Picture1, 1, {u"Image3"_s, u"Image4"_s, u"Image6"_s, u"Image8"_s, u"Image10"_s}, 250, true},
        Start{
            &forms::Form3::Picture2, 2, {u"Image2"_s, u"Image5"_s, u"Image6"_s, u"Image8"_s, u"Image10"_s}, 1000, true},
        Start{&forms::Form3::Picture4,
              4,
              {u"Image2"_s, u"Image4"_s, u"Image6"_s, u"Image9"_s, u"Image10"_s},
              1000,
              false},
        Start{&forms::Form3::Picture5,
              5,
              {u"Image2"_s, u"Image4"_s, u"Image6"_s, u"Image8"_s, u"Image11"_s},
              250,
              false}));

struct End {
    int Mode;
    Button forms::Form3::*Pressed;
    bool BeforeMove;
    QStringList Rewritten;  // what each button shows when all were blank
    QStringList AfterPress; // and when the button of the mode was down
};

void PrintTo(const End& end, std::ostream* out)
{
    *out << "mode " << end.Mode << (end.BeforeMove ? " before" : " after") << " the move";
}

class ScanEndTest : public RecordScannerTest, public WithParamInterface<End>
{
protected:
    bool IsForward() const { return GetParam().Mode <= 2; }

    void GivenAtTheEnd()
    {
        Recordset& records = Records(P.Form3);
        IsForward() ? records.MoveLast() : records.MoveFirst();
        if (!GetParam().BeforeMove)
            return;
        IsForward() ? records.MoveNext() : records.MovePrevious();
        // There is no record to show.
        ExpectMissingPicture(u"Sub.Jpg");
    }
};

TEST_P(ScanEndTest, RewritesTheNamedFacesOnly)
{
    GivenAtTheEnd();
    Press(GetParam().Pressed);
    GivenBlankFaces();

    Tick();

    EXPECT_EQ(Faces(), GetParam().Rewritten);
    EXPECT_EQ(Mode(), 3);
    EXPECT_FALSE(IsRunning());
}

TEST_P(ScanEndTest, AfterAPress_LeavesTheseFaces)
{
    GivenAtTheEnd();
    Press(GetParam().Pressed);

    Tick();

    EXPECT_EQ(Faces(), GetParam().AfterPress);
}

TEST_P(ScanEndTest, BeforeTheMove_NothingMoves_AfterIt_TheEndsRecordIsCurrent)
{
    GivenAtTheEnd();
    Press(GetParam().Pressed);

    Tick();

    EXPECT_EQ(Records(P.Form3).Eof(), GetParam().BeforeMove && IsForward());
    EXPECT_EQ(Records(P.Form3).Bof(), GetParam().BeforeMove && !IsForward());
    if (!GetParam().BeforeMove) {
        EXPECT_EQ(Current(), IsForward() ? u"A003"_s : u"A001"_s);
        EXPECT_EQ(ShownRef(), IsForward() ? u"Ref  A003"_s : u"Ref  A001"_s);
    }
}

INSTANTIATE_TEST_SUITE_P(Table, ScanEndTest,
                         Values(End{1,
                                    &forms::Form3::Picture1,
                                    true,
                                    {u""_s, u"Image4"_s, u"Image7"_s, u""_s, u""_s},
                                    {u"Image3"_s, u"Image4"_s, u"Image7"_s, u"Image8"_s, u"Image10"_s}},
                                End{1,
                                    &forms::Form3::Picture1,
                                    false,
                                    {u"Image2"_s, u""_s, u"Image7"_s, u""_s, u""_s},
                                    {u"Image2"_s, u"Image4"_s, u"Image7"_s, u"Image8"_s, u"Image10"_s}},
                                End{2,
                                    &forms::Form3::Picture2,
                                    true,
                                    {u""_s, u"Image4"_s, u"Image7"_s, u""_s, u""_s},
                                    {u"Image2"_s, u"Image4"_s, u"Image7"_s, u"Image8"_s, u"Image10"_s}},
                                End{2,
                                    &forms::Form3::Picture2,
                                    false,
                                    {u""_s, u"Image4"_s, u"Image7"_s, u""_s, u""_s},
                                    {u"Image2"_s, u"Image4"_s, u"Image7"_s, u"Image8"_s, u"Image10"_s}},
                                End{4,
                                    &forms::Form3::Picture4,
                                    true,
                                    {u""_s, u""_s, u"Image7"_s, u"Image8"_s, u""_s},
                                    {u"Image2"_s, u"Image4"_s, u"Image7"_s, u"Image8"_s, u"Image10"_s}},
                                End{4,
                                    &forms::Form3::Picture4,
                                    false,
                                    {u""_s, u""_s, u"Image7"_s, u"Image8"_s, u""_s},
                                    {u"Image2"_s, u"Image4"_s, u"Image7"_s, u"Image8"_s, u"Image10"_s}},
                                End{5,
                                    &forms::Form3::Picture5,
                                    true,
                                    {u""_s, u""_s, u"Image7"_s, u"Image10"_s, u""_s},
                                    {u"Image2"_s, u"Image4"_s, u"Image7"_s, u"Image10"_s, u"Image11"_s}},
                                End{5,
                                    &forms::Form3::Picture5,
                                    false,
                                    {u""_s, u""_s, u"Image7"_s, u""_s, u"Image10"_s},
                                    {u"Image2"_s, u"Image4"_s, u"Image7"_s, u"Image8"_s, u"Image10"_s}}));

TEST_F(RecordScannerTest, ForwardAtTheLastRecord_OneTick_StopsOnIt_WithTheStopFace)
{
    StandOn(u"A003");
    Press(&forms::Form3::Picture2);

    Tick();

    EXPECT_EQ(Current(), u"A003"_s);
    EXPECT_EQ(Mode(), 3);
    EXPECT_EQ(Faces()[2], u"Image7"_s);
}

TEST_F(RecordScannerTest, BackwardFromBehindTheLastRecord_MovesToTheLast)
{
    Records(P.Form3).MoveLast();
    Records(P.Form3).MoveNext();
    Press(&forms::Form3::Picture4);

    Tick();

    EXPECT_EQ(Current(), u"A003"_s);
    EXPECT_TRUE(IsRunning());
}

TEST_F(RecordScannerTest, TickWithoutAMode_OnlyAsksForANewGalleryPage)
{
    for (const int mode : {0, 3, 6, -1}) {
        P.Gallery.FirstShow = 0;
        P.Record.RecordScanMode = mode;
        P.Form3->Timer1.Enabled = true;
        P.Form3->Timer1.Interval = 77;

        Tick();

        EXPECT_EQ(P.Gallery.FirstShow, 1);
        EXPECT_EQ(Current(), u"A001"_s);
        EXPECT_EQ(Mode(), mode);
        EXPECT_EQ(P.Form3->Timer1.Interval.value(), 77);
        EXPECT_TRUE(IsRunning());
    }
}

TEST_F(RecordScannerTest, MovingTick_AsksForANewGalleryPage)
{
    Press(&forms::Form3::Picture2);
    P.Gallery.FirstShow = 0;

    Tick();

    EXPECT_EQ(P.Gallery.FirstShow, 1);
}

TEST_F(RecordScannerTest, InPassing_TheFormShowsTheRecordAndItsPicture)
{
    Press(&forms::Form3::Picture2);

    Tick();

    EXPECT_EQ(P.Form3->Text3.Text.value(), u"Mary"_s);
    EXPECT_EQ(P.Form3->Label25.Caption.value(), u"A002"_s);
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"green"_s);
    EXPECT_EQ(P.Record.sCurFile, u"A002"_s);
    EXPECT_EQ(P.Record.sPicSuffix, u"Sub.jpg"_s);
    EXPECT_EQ(P.Record.sPicFile, u"A002Sub.jpg"_s);
}

TEST_F(RecordScannerTest, InPassing_TheMapStaysBehind_ButForItsBoundLabels)
{
    Press(&forms::Form3::Picture2);

    Tick();

    EXPECT_EQ(ShownRef(), u"Ref  A001"_s);
    EXPECT_EQ(ColourOf(P.Form1->Image1), u"red"_s);
    EXPECT_EQ(MarkerLeft(), MarkerOn(1200));
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"Mary"_s);
}

TEST_F(RecordScannerTest, InPassing_AMissingPictureEmptiesTheForms_WithoutAWord)
{
    RemovePicture(u"A002");
    Press(&forms::Form3::Picture2);

    Tick();
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"none"_s);
    EXPECT_TRUE(IsRunning());

    Tick();
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"blue"_s);
}

TEST_F(RecordScannerTest, InPassing_APictureThatIsNone_CountsAsMissing)
{
    Home.WriteFile(u"LfgDat_A/A002Sub.jpg", "no picture");
    Press(&forms::Form3::Picture2);

    Tick();

    EXPECT_EQ(ColourOf(P.Form3->Image1), u"none"_s);
    EXPECT_TRUE(IsRunning());
}

TEST_F(RecordScannerTest, AtTheEnd_AMissingPictureIsTold_OnceTheScanHasStopped)
{
    RemovePicture(u"A003");
    StandOn(u"A003");
    Press(&forms::Form3::Picture2);
    ExpectMissingPicture(u"A003Sub.Jpg", [&] {
        EXPECT_EQ(Mode(), 3);
        EXPECT_FALSE(IsRunning());
        EXPECT_EQ(P.Files.CurDir(), Home.Path(u"LfgDat_A"));
        EXPECT_EQ(Faces()[2], u"Image7"_s);
        EXPECT_EQ(MarkerLeft(), MarkerOn(1200));
    });

    Tick();

    EXPECT_EQ(ColourOf(P.Form1->Image1), u"none"_s);
    EXPECT_EQ(MarkerLeft(), MarkerOn(5000));
}

TEST_F(RecordScannerTest, StopButton_StopsOnTheRecordAtHand_AndTheMapFollows)
{
    Press(&forms::Form3::Picture1);
    Tick();
    P.Gallery.FirstShow = 0;

    PressStop();

    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(Mode(), 3);
    EXPECT_FALSE(IsRunning());
    EXPECT_EQ(ShownRef(), u"Ref  A002"_s);
    EXPECT_EQ(ColourOf(P.Form1->Image1), u"green"_s);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"Mary"_s);
    EXPECT_EQ(MarkerLeft(), MarkerOn(3000));
    EXPECT_EQ(P.Gallery.FirstShow, 1);
}

TEST_F(RecordScannerTest, StopButton_ShowsAllFacesAtRest)
{
    GivenBlankFaces();

    PressStop();

    EXPECT_EQ(Faces(), (QStringList{u"Image2"_s, u"Image4"_s, u"Image7"_s, u"Image8"_s, u"Image10"_s}));
}

TEST_F(RecordScannerTest, StopButton_LeavesTheDirectoryAboveTheBranch_UnlikeTheEnd)
{
    P.Scratch.sNewDir.clear();
    P.Files.ChDir(Home.Path(u"LfgDat_A"));

    PressStop();

    EXPECT_EQ(P.Scratch.sNewDir, Home.Path() + PathSeparator);
    EXPECT_EQ(P.Files.CurDir(), Home.Path());
}

TEST_F(RecordScannerTest, StopButton_TellsAMissingPicture)
{
    RemovePicture(u"A001");
    ExpectMissingPicture(u"A001Sub.Jpg");

    PressStop();

    EXPECT_EQ(ColourOf(P.Form1->Image1), u"none"_s);
}

TEST_F(RecordScannerTest, StopButtonOnABranchWithoutRecords_ShowsTheEmptyState)
{
    GivenEmptyBranch();
    ExpectMissingPicture(u"Sub.Jpg");

    Click(P.Form3->Picture3.Click);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(ShownRef(), u"Ref  "_s);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), QString());
    EXPECT_EQ(ColourOf(P.Form1->Image1), u"none"_s);
    EXPECT_FALSE(P.Form1->Shape1.Visible);
}

TEST_F(RecordScannerTest, RunOfOneRecord_StopsOnIt)
{
    SqliteFile(Home.Path(u"LfgDat_A/LfgDat_A.mdb")).Execute("DELETE FROM Tree99 WHERE File > 'A001'");
    Records(P.Form3).MoveFirst();
    for (const auto button : moving) {
        Press(button);
        Tick();
        EXPECT_FALSE(IsRunning());
        EXPECT_EQ(Current(), u"A001"_s);
    }
}

TEST_F(RecordScannerTest, TicksWhileAnotherBoxIsOpen_WalkOn)
{
    Press(&forms::Form3::Picture2);
    RemovePicture(u"A001");
    ExpectMissingPicture(u"A001Sub.Jpg", [&] { Tick(); });

    P.Form3->Image1.Click();

    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_TRUE(IsRunning());
}

TEST_F(RecordScannerTest, WhileTheFormIsHidden_TheScanGoesOn)
{
    Press(&forms::Form3::Picture2);
    P.Form3->Command2.Click();
    ASSERT_FALSE(P.Form3->Visible);
    EXPECT_TRUE(IsRunning());

    Tick();

    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(Mode(), 2);
}

TEST_F(RecordScannerTest, TextTypedDuringAScan_IsWrittenByTheStep)
{
    Press(&forms::Form3::Picture2);
    P.Form3->Text4.Text = u"3 June 1911"_s;

    Tick();

    EXPECT_EQ(Stored("BirthDate"), u"3 June 1911"_s);
    EXPECT_EQ(Stored("BirthDate", "A002"), std::nullopt);
}

TEST_F(RecordScannerTest, ImportedBranch_LeavesTheSameDirectoryAboveIt)
{
    BranchOf(u'D').InDirectory(u"Import_D").Build();
    GivenRegistry({{u"Cousins", u"Import_D"}});
    Choose(u"Cousins");
    GivenRecordForm();

    Press(&forms::Form3::Picture2);

    EXPECT_EQ(P.Scratch.sNewDir, Home.Path() + PathSeparator);
    EXPECT_EQ(P.Files.CurDir(), Home.Path());
}

// It walks no other branch than the one whose map is shown.
TEST_F(RecordScannerTest, RecordOfAnotherBranch_TheScanWaitsForTheReturn)
{
    P.Map.BoxArr[2][BoxColumn::File] = u"B001"_s;
    Press(&forms::Form3::Picture2);
    P.Form1->Picture1.MouseDown(1, 0, 5100, 700);
    P.Form1->Picture1.DblClick();
    ASSERT_EQ(Current(), u"B001"_s);
    P.Gallery.FirstShow = 0;

    Tick();

    EXPECT_EQ(Current(), u"B001"_s);
    EXPECT_EQ(P.Gallery.FirstShow, 0);
    EXPECT_TRUE(IsRunning());
    P.Form1->Picture1.MouseDown(1, 0, 1300, 700);
    P.Form1->Picture1.DblClick();
    Tick();
    EXPECT_EQ(Current(), u"A002"_s);
}

class SiblingScannerTest : public RecordScannerTest
{
protected:
    SiblingScannerTest()
    {
        P.Form3->Hide();
        GivenRecordOfSibling();
    }

    QList<bool> Enabled()
    {
        QList<bool> states;
        for (const auto button : forms::Form3::Transport)
            states += ((*P.Form3).*button).Enabled.value();
        return states;
    }

    const QList<bool> AllOff = QList<bool>(5, false);
    const QList<bool> AllOn = QList<bool>(5, true);
};

TEST_F(SiblingScannerTest, RecordOfAnotherBranch_TurnsAllFiveButtonsOff)
{
    EXPECT_EQ(Enabled(), AllOff);

    GivenRecordForm();

    EXPECT_EQ(Enabled(), AllOff);
    EXPECT_EQ(P.Form3->Label25.Caption.value(), u"B002"_s);
}

TEST_F(SiblingScannerTest, NothingOnTheFormTurnsThemOnAgain)
{
    GivenRecordForm();

    P.Form3->Command2.Click();
    EXPECT_EQ(Enabled(), AllOff);
    GivenRecordForm();
    P.Form3->Command1.Click();
    EXPECT_EQ(Enabled(), AllOff);
    GivenRecordForm();
    EXPECT_EQ(Enabled(), AllOff);
}

TEST_F(SiblingScannerTest, TheReturnToTheOwnBranchOnTheMap_TurnsThemOn)
{
    GivenRecordForm();
    P.Form3->Command2.Click();
    P.Mouse.DownX = 1300;
    P.Mouse.DownY = 700;

    P.Form1->Picture1.DblClick();

    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_EQ(Enabled(), AllOn);
    GivenRecordForm();
    EXPECT_EQ(Enabled(), AllOn);
}

} // namespace
} // namespace lineforge
