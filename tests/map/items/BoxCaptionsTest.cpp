#include "map/items/BoxCaptions.h"

#include "map/MapTest.h"

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;
using testing::TestWithParam;
using testing::Values;
using testing::WithParamInterface;

constexpr Colour red = Rgb(255, 0, 0);

struct Fitting {
    QString Forename;
    QString Shown;
};

void PrintTo(const Fitting& fitting, std::ostream* out)
{
    *out << '"' << qUtf8Printable(fitting.Forename) << '"';
}

class FittedForenameTest : public TestWithParam<Fitting>
{
};

TEST_P(FittedForenameTest, Forename_IsCutToTheRoomOfABox)
{
    EXPECT_EQ(FittedForename(GetParam().Forename), GetParam().Shown);
}

INSTANTIATE_TEST_SUITE_P(Forenames, FittedForenameTest,
                         Values(Fitting{{}, {}}, Fitting{u"John"_s, u"John"_s},
                                Fitting{u"Jo Anne"_s, u"Jo Anne"_s}, // 7 characters stay whole, blank and all
                                Fitting{u"Jo Annie"_s, u"Jo"_s},     // 8: cut before the first blank
                                Fitting{u"Mary Louise Ann"_s, u"Mary"_s}, Fitting{u"Anthony"_s, u"Anthony"_s},
                                Fitting{u"Margaret"_s, u"Marga't"_s},    // 8 without a blank
                                Fitting{u"Christopher"_s, u"Chris'r"_s}, // five, an apostrophe, the last
                                Fitting{u"Christopher John"_s, u"Chris'r"_s},
                                Fitting{u"Frances Mary"_s, u"Frances"_s}, // 7 are left after the cut
                                Fitting{u" Christopher"_s, {}}, Fitting{u"        "_s, {}},
                                Fitting{u"Jürgenßä"_s, u"Jürge'ä"_s}));

class BoxCaptionsTest : public MapTest
{
protected:
    void GivenRecord(QStringView forename, QStringView birthDate = u"1 May 1871")
    {
        GivenOpen(BranchA.Row({{u"File", u"A001"}, {u"Forename", forename}, {u"BirthDate", birthDate}}));
    }

    void GivenPosition(Point corner)
    {
        P.Mouse.BoxX = corner.X;
        P.Mouse.BoxY = corner.Y;
    }

    PictureByHand Expected;
};

TEST_F(BoxCaptionsTest, FitForename_TakesTheCurrentRecords)
{
    GivenRecord(u"Christopher");

    FitForename(P.Record, Records(P.Form3));

    EXPECT_EQ(P.Record.sForeName, u"Chris'r"_s);
}

TEST_F(BoxCaptionsTest, FitForename_NullForename_GivesEmptyText)
{
    GivenOpen(BranchA.Row({{u"File", u"A001"}}));
    P.Record.sForeName = u"left behind"_s;

    FitForename(P.Record, Records(P.Form3));

    EXPECT_EQ(P.Record.sForeName, QString());
}

TEST_F(BoxCaptionsTest, Record_NumberStands100AcrossAndForename50And100Down)
{
    GivenRecord(u"Christopher");
    GivenPosition({1000, 500});

    DrawRecordInBox(P, Sheet());

    Expected->PrintAt({1100, 500}, u"A001"_s);
    Expected->PrintAt({1050, 600}, u"Chris'r"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
    EXPECT_GT(CountPixels(Picture, Black, {1100, 500, 400, 110}), 0);
    EXPECT_GT(CountPixels(Picture, Black, {1050, 620, 500, 140}), 0);
    EXPECT_EQ(CountPixels(Picture, Black, {0, 0, 1045, 12750}), 0);
}

TEST_F(BoxCaptionsTest, Record_IsBlackInArial8_WhateverWasInHand)
{
    GivenRecord(u"John");
    GivenPosition({1000, 500});
    Picture.ForeColor = red;
    Picture.Font = {u"Courier New"_s, 20, true};

    DrawRecordInBox(P, Sheet());

    EXPECT_EQ(CountPixels(Picture, red), 0);
    Expected->PrintAt({1100, 500}, u"A001"_s);
    Expected->PrintAt({1050, 600}, u"John"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
    EXPECT_EQ(Picture.Font, TextFont{});
}

TEST_F(BoxCaptionsTest, Record_NullForename_ShowsOnlyItsNumber)
{
    GivenOpen(BranchA.Row({{u"File", u"A001"}}));
    GivenPosition({1000, 500});

    DrawRecordInBox(P, Sheet());

    Expected->PrintAt({1100, 500}, u"A001"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
}

TEST_F(BoxCaptionsTest, Record_ForenameOf7CharactersWithABlank_StandsWhole)
{
    GivenRecord(u"Jo Anne");
    GivenPosition({1000, 500});

    DrawRecordInBox(P, Sheet());

    Expected->PrintAt({1100, 500}, u"A001"_s);
    Expected->PrintAt({1050, 600}, u"Jo Anne"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
}

TEST_F(BoxCaptionsTest, Record_BehindTheLastRow_DrawsNothing)
{
    GivenRecord(u"John");
    Records(P.Form3).MoveNext();

    DrawRecordInBox(P, Sheet());

    EXPECT_TRUE(IsBlank(Picture));
    EXPECT_EQ(P.Record.sForeName, QString());
}

TEST_F(BoxCaptionsTest, RecordOnPaper_HasThreeLinesBelowTheStretchedTop)
{
    GivenRecord(u"Christopher", u"1 May 1871");
    GivenPosition({1000, 500});
    GivenPrinting();

    DrawRecordInBox(P, Sheet());

    EXPECT_EQ(Page.Take(), QStringList({u"Print 2300,910 \"A001\" Arial 8 colour 0"_s,
                                        u"Print 2250,1030 \"Chris'r\" Arial 8 colour 0"_s,
                                        u"Print 2250,1160 \"B :1871\" Arial 8 colour 0"_s}));
    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(BoxCaptionsTest, RecordOnPaper_ForenameWithWhatBreaksTheFile_IsPrintedAsTheFileHasIt)
{
    GivenRecord(u"Jo, [An");
    GivenPosition({1000, 500});
    GivenPrinting();

    DrawRecordInBox(P, Sheet());

    EXPECT_EQ(Page.Take().at(1), u"Print 2250,1030 \"Jo An\" Arial 8 colour 0"_s);
}

TEST_F(BoxCaptionsTest, RecordOnPaper_KeepsThePagesFont)
{
    GivenRecord(u"John", u"71");
    GivenPosition({1000, 500});
    GivenPrinting();
    Page.Font = {u"Courier"_s, 7};
    Page.ForeColor = red;

    DrawRecordInBox(P, Sheet());

    EXPECT_EQ(Page.Take(), QStringList({u"Print 2300,910 \"A001\" Courier 7 colour 0"_s,
                                        u"Print 2250,1030 \"John\" Courier 7 colour 0"_s,
                                        u"Print 2250,1160 \"B :71\" Courier 7 colour 0"_s}));
}

TEST_F(BoxCaptionsTest, RecordOnPaper_NullDate_HasNoYear)
{
    GivenOpen(BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}}));
    GivenPrinting();

    DrawRecordInBox(P, Sheet());

    EXPECT_EQ(Page.Take().last(), u"Print 1250,260 \"B :\" Arial 8 colour 0"_s);
}

TEST_F(BoxCaptionsTest, Number_IsThatOfTheRow_AtThePositionInHand)
{
    GivenBox(3, {2000, 2000}, u"A007");
    P.Scratch.IdxA = 3;
    GivenPosition({1000, 500});
    Picture.ForeColor = red;
    Picture.Font = {u"Courier New"_s, 20, true};

    DrawBoxNumber(P, Sheet());

    Expected->PrintAt({1100, 500}, u"A007"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
    EXPECT_EQ(Picture.Font, TextFont{});
}

TEST_F(BoxCaptionsTest, NumberOnPaper_Stands40Lower)
{
    GivenBox(3, {2000, 2000}, u"A007");
    P.Scratch.IdxA = 3;
    GivenPosition({1000, 500});
    GivenPrinting();

    DrawBoxNumber(P, Sheet());

    EXPECT_EQ(Page.Take(), QStringList(u"Print 2300,940 \"A007\" Arial 8 colour 0"_s));
}

struct CursorMode {
    int Mode;
    bool LooksForTheBox;
};

void PrintTo(const CursorMode& mode, std::ostream* out)
{
    *out << "MapCursorMode " << mode.Mode;
}

class PlacingSubjectTest : public BoxCaptionsTest, public WithParamInterface<CursorMode>
{
protected:
    PlacingSubjectTest()
    {
        GivenRecord(u"John");
        GivenBox(4, {3000, 2500}, u"A001");
        GivenBox(5, {5000, 2500}, u"A009");
        GivenPosition({1000, 500});
        P.Tools.MapCursorMode = GetParam().Mode;
    }

    Point Corner = GetParam().LooksForTheBox ? Point{3000, 2500} : Point{1000, 500};
};

TEST_P(PlacingSubjectTest, Record_LooksForItsBoxFirst)
{
    DrawRecordInBox(P, Sheet());

    Expected->PrintAt({Corner.X + 100, Corner.Y}, u"A001"_s);
    Expected->PrintAt({Corner.X + 50, Corner.Y + 100}, u"John"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
}

TEST_P(PlacingSubjectTest, Number_LooksForTheCurrentRecordsBoxFirst)
{
    P.Scratch.IdxA = 5;

    DrawBoxNumber(P, Sheet());

    Expected->PrintAt({Corner.X + 100, Corner.Y}, GetParam().LooksForTheBox ? u"A001"_s : u"A009"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
}

INSTANTIATE_TEST_SUITE_P(Modes, PlacingSubjectTest,
                         Values(CursorMode{0, false}, CursorMode{1, true}, CursorMode{2, true}, CursorMode{3, true},
                                CursorMode{4, false}));

TEST_F(BoxCaptionsTest, AllNumbers_StandInTheirBoxes)
{
    GivenRecord(u"John");
    GivenBox(0, {1000, 500}, u"A001");
    GivenBox(50, {2000, 500}, u"a002");
    GivenBox(99, {3000, 500}, u"A003");

    DrawBoxCaptions(P, Sheet());

    Expected->PrintAt({1100, 500}, u"A001"_s);
    Expected->PrintAt({2100, 500}, u"a002"_s);
    Expected->PrintAt({3100, 500}, u"A003"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
}

TEST_F(BoxCaptionsTest, AllNumbers_BoxesWithoutARecord_AreSkipped)
{
    GivenRecord(u"John");
    GivenBox(0, {1000, 500}, u"0");
    GivenBox(1, {2000, 500}, u"");
    GivenBox(2, {3000, 500}, u"0A01");
    P.Map.BoxArr[3][BoxColumn::X] = 4000;
    P.Map.BoxArr[4][BoxColumn::File] = 0;

    DrawBoxCaptions(P, Sheet());

    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(BoxCaptionsTest, AllNumbers_BoxesBeyondTheHundredth_HaveNone)
{
    GivenRecord(u"John");
    GivenBox(100, {1000, 500}, u"A001");

    DrawBoxCaptions(P, Sheet());
    DrawOwnCaptions(P, Sheet());

    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(BoxCaptionsTest, FreeRow_HasNoCaption)
{
    GivenRecord(u"John");
    GivenBox(0, {0, 500}, u"A001");
    GivenBox(1, {0, 900}, u"A009");

    DrawBoxCaptions(P, Sheet());
    DrawOwnCaptions(P, Sheet());

    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(BoxCaptionsTest, FreeRow_HasNoCaptionOnPaper)
{
    GivenRecord(u"John");
    GivenBox(0, {0, 500}, u"A001");
    GivenPrinting();

    DrawBoxCaptions(P, Sheet());
    DrawOwnCaptions(P, Sheet());

    EXPECT_EQ(Page.Take(), QStringList());
}

// The row behind the last filed one is where the search for its box has ended.
TEST_F(BoxCaptionsTest, AllNumbers_WhileARecordWithoutABoxIsPlaced_StandInNoOtherBox)
{
    GivenRecord(u"John");
    GivenBox(0, {1000, 500}, u"A002");
    GivenBox(100, {3000, 500}, u"A009");
    P.Tools.MapCursorMode = MapCursor::Mapping;

    DrawBoxCaptions(P, Sheet());

    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(BoxCaptionsTest, AllNumbers_BoxAtImpossiblePlace_CostsNoOtherBoxItsNumber)
{
    GivenRecord(u"John");
    GivenBox(0, {99999, 500}, u"A001");
    GivenBox(1, {2000, 500}, u"A002");

    DrawBoxCaptions(P, Sheet());

    Expected->PrintAt({2100, 500}, u"A002"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
}

TEST_F(BoxCaptionsTest, AllRecords_EveryBoxThatHoldsARecord_GetsItsCaption)
{
    GivenOpen(BranchA.Row({{u"File", u"A001"}, {u"Forename", u"John"}})
                  .Row({{u"File", u"A002"}, {u"Forename", u"Anne"}})
                  .Row({{u"Forename", u"Nobody"}}));
    GivenBox(0, {1000, 500}, u"A002");
    GivenBox(1, {2000, 500}, u"a001");
    GivenBox(99, {3000, 500}, u"A001");
    GivenBox(98, {4000, 500}, u"");

    DrawOwnCaptions(P, Sheet());

    Expected->PrintAt({1100, 500}, u"A002"_s);
    Expected->PrintAt({1050, 600}, u"Anne"_s);
    for (const int x : {2000, 3000}) {
        Expected->PrintAt({x + 100, 500}, u"A001"_s);
        Expected->PrintAt({x + 50, 600}, u"John"_s);
    }
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
    EXPECT_TRUE(Records(P.Form3).Eof());
}

TEST_F(BoxCaptionsTest, AllRecords_EmptyTable_IsQuiet)
{
    GivenOpen(BranchA);
    GivenBox(0, {1000, 500}, u"A001");

    DrawOwnCaptions(P, Sheet());

    EXPECT_TRUE(IsBlank(Picture));
}

TEST_F(BoxCaptionsTest, BoxWhoseRecordIsNotInTheTable_ShowsOnlyItsNumber)
{
    GivenRecord(u"John");
    GivenBox(0, {1000, 500}, u"A009");

    DrawBoxCaptions(P, Sheet());
    DrawOwnCaptions(P, Sheet());

    Expected->PrintAt({1100, 500}, u"A009"_s);
    EXPECT_TRUE(SameDrawing(Picture, *Expected));
}

} // namespace
} // namespace lineforge
