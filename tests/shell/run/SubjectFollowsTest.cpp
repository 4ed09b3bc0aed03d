#include "map/subjects/SubjectPanel.h"
#include "program/branch/WorkDatabase.h"
#include "shell/ShellTest.h"

#include <ostream>

namespace lineforge
{
namespace
{

// Where the cursor of the records goes without the map's asking for it, and whom the panel beside the map then shows.
class SubjectFollowsTest : public ShellTest
{
protected:
    SubjectFollowsTest()
    {
        GivenRegistry({{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}, {u"Browns", u"LfgDat_C"}});
        BranchOf(u'A').Boxes(u"1200,600,255,A001,John,2000,600,255,A002,Mary,2800,600,255,B002,Mary,").Build();
        BranchOf(u'B').Build();
        WriteTemplates(Home);
        StartProgram(P);
        Choose(u"Smiths");
        LoopRuns();
    }

    // What it does when a handler has returned.
    void LoopRuns()
    {
        Click([this] { P.Form3->Data1.Settle(); });
    }

    void DoubleClick(Point at)
    {
        Click([&] { P.Form1->Picture1.MouseDown(1, 0, at.X, at.Y); });
        Click([&] { P.Form1->Picture1.MouseUp(1, 0, at.X, at.Y); });
        Click(P.Form1->Picture1.DblClick);
        LoopRuns();
    }

    // Forename, number, picture and the left of the marker, as they stand beside the map.
    QString Shown()
    {
        const forms::Form1& form = *P.Form1;
        const QImage picture = form.Image1.Picture;
        const QString colour = picture.isNull()                          ? u"none"_s
                               : picture.pixelColor(10, 10).red() > 200  ? u"red"_s
                               : picture.pixelColor(10, 10).blue() > 200 ? u"blue"_s
                                                                         : u"?"_s;
        return form.Label9.Caption.Shown() + u'|' + form.Frame1.Caption.value() + u'|' + colour + u'|' +
               (form.Shape1.Visible ? QString::number(form.Shape1.Left) : u"none"_s);
    }

    void Compare()
    {
        Click(P.Form1->mnuComp.Click);
        Click(P.Form6->mnuOpen.Click);
        P.Form8->List1.SetText(u"Jones"_s);
        Click(P.Form8->Command1.Click);
        LoopRuns();
    }

    // The marker goes along with those alone who ask the map to follow.
    const QString john = u"John|Ref  A001|red|1447"_s;
    const QString maryMarkedJohn = u"Mary|Ref  A002|blue|1447"_s;
    const QString nobodyMarkedJohn = u"|Ref  |none|1447"_s;
    static constexpr Point sibling{3000, 700};
    static constexpr Point besideAllBoxes{5000, 5000};
};

TEST_F(SubjectFollowsTest, AfterTheComparison_TheRecordThatItHasGoneOnTo)
{
    Compare();
    EXPECT_EQ(Shown(), john);

    Click(P.Form6->Command6.Click);
    LoopRuns();
    EXPECT_EQ(Shown(), maryMarkedJohn);

    Click(P.Form6->Command4.Click);
    EXPECT_EQ(Shown(), maryMarkedJohn);
}

TEST_F(SubjectFollowsTest, BehindTheLastRecord_Nobody)
{
    Compare();
    Click(P.Form6->Command6.Click);
    Prompts.Expect(u"Current Database End of File", u"End of Current Database Records", Buttons::Information);
    Click(P.Form6->Command6.Click);
    LoopRuns();

    EXPECT_EQ(Shown(), nobodyMarkedJohn);
}

TEST_F(SubjectFollowsTest, BackFromASibling_TheOwnBranchsFirstRecord)
{
    DoubleClick(sibling);
    EXPECT_EQ(Shown(), u"Mary|Ref  B002|blue|3047"_s);

    DoubleClick(besideAllBoxes);

    EXPECT_EQ(Shown(), u"John|Ref  A001|red|3047"_s);
}

// Both branches have a record that a comparison has appended.
TEST_F(SubjectFollowsTest, BackFromASiblingsRecordOfTheSameNumber_TheOwnBranchsPicture)
{
    BranchBuilder(Home, u'C')
        .Row({{u"File", u"Z001"}, {u"Forename", u"Ours"}})
        .Boxes(u"1200,600,255,D001,Theirs,2000,600,255,0,0,")
        .Picture(u"Z001", Qt::red)
        .Build();
    BranchBuilder(Home, u'D').Row({{u"File", u"Z001"}, {u"Forename", u"Theirs"}}).Picture(u"Z001", Qt::blue).Build();
    Choose(u"Browns");
    LoopRuns();
    Prompts.Expect(u"Database Searched", u"No File data found", Buttons::Information);
    DoubleClick({1400, 700});
    EXPECT_EQ(Shown(), u"Theirs|Ref  Z001|blue|none"_s);

    DoubleClick(besideAllBoxes);

    EXPECT_EQ(Shown(), u"Ours|Ref  Z001|red|none"_s);
}

TEST_F(SubjectFollowsTest, DuringAScan_TheRecordThatIsPassing)
{
    Click(P.Form3->Picture2.Click);
    Click(P.Form3->Timer1.Tick);
    LoopRuns();

    EXPECT_EQ(Shown(), maryMarkedJohn);
}

TEST_F(SubjectFollowsTest, AfterABackup_TheFirstRecord)
{
    DoubleClick({2200, 700});
    ASSERT_EQ(Shown(), u"Mary|Ref  A002|blue|2247"_s);
    Home.MakeDirectory(u"safe");
    Prompts.Expect(u"Backup Database",
                   u"Backup will copy your current Database File \nand Tree Config file to your chosen destination.",
                   Buttons::Information);
    Prompts.ExpectSaveFile(u"Select Backup Destination Directory", u"DataBase *.mdb|*.mdb|All Files|*.*|",
                           Home.Path(u"safe/x.mdb"));

    Click(P.Form1->mnuBackup.Click);
    LoopRuns();

    EXPECT_EQ(Shown(), u"John|Ref  A001|red|2247"_s);
}

TEST_F(SubjectFollowsTest, AfterTheDeletionOfARecord_TheFirstOfThoseLeft)
{
    Prompts.Expect(u"Delete Record", u"Do you really want to delete this record?", Buttons::QuestionYesNo, Answer::Yes);
    Prompts.Expect(u"Deletion of Subject Records",
                   u"All information in this record will be deleted\nincluding any Subject and Gallery graphic files.\n"
                   u"Are you sure this is what you want ? ",
                   Buttons::ErrorYesNo, Answer::Yes);
    Click(P.Form3->mnuDelete.Click);
    LoopRuns();

    EXPECT_EQ(Shown(), maryMarkedJohn);
}

// The command isn't over, and its cursor may go back: nobody's number and picture stand beside the labels.
TEST_F(SubjectFollowsTest, UnderABoxOfACommand_TheFormerSubjectHasGone)
{
    Click([this] {
        Records(P.Form3).MoveNext();
        LoopRuns();
        EXPECT_EQ(Shown(), u"Mary|Ref  |none|1447"_s);
        Records(P.Form3).MovePrevious();
    });
    LoopRuns();

    EXPECT_EQ(Shown(), john);
}

TEST_F(SubjectFollowsTest, WithTheToolsOpen_NoMarker)
{
    Click(P.Form1->mnuTreeTools.Click);
    Click([this] { Records(P.Form3).MoveNext(); });
    LoopRuns();

    EXPECT_EQ(Shown(), u"Mary|Ref  A002|blue|none"_s);
}

// Those are asked for a page of the gallery and a place on the map by the map itself.
TEST_F(SubjectFollowsTest, NothingElseGoesAlong)
{
    P.Gallery.FirstShow = 0;
    P.Mouse.BoxX = 7;
    P.Mouse.BoxY = 8;
    P.Record.sCurFile = u"cur"_s;
    P.Record.sPicFile = u"pic"_s;
    Click([this] { Records(P.Form3).MoveNext(); });
    LoopRuns();

    EXPECT_EQ(Shown(), maryMarkedJohn);
    EXPECT_EQ(P.Gallery.FirstShow, 0);
    EXPECT_EQ(P.Mouse.BoxX, 7);
    EXPECT_EQ(P.Mouse.BoxY, 8);
    EXPECT_EQ(P.Record.sCurFile, u"cur"_s);
    EXPECT_EQ(P.Record.sPicFile, u"pic"_s);
}

TEST_F(SubjectFollowsTest, RecordWithoutPicture_ShowsNone)
{
    BranchOf(u'C').Row({{u"File", u"C003"}, {u"Forename", u"Paul"}}).Build();
    Choose(u"Browns");
    Click([this] { Records(P.Form3).MoveLast(); });
    LoopRuns();

    EXPECT_EQ(Shown(), u"Paul|Ref  C003|none|1447"_s);
}

TEST_F(SubjectFollowsTest, SiblingWithoutRecords_Nobody)
{
    BranchOf(u'C').Boxes(u"1200,600,255,C001,John,2000,600,255,D001,Nobody,").Build();
    BranchBuilder(Home, u'D').Build();
    Choose(u"Browns");
    LoopRuns();
    ASSERT_EQ(Shown(), u"John|Ref  C001|red|1447"_s);
    Prompts.Expect(u"Database Empty", u"This Tree Branch has no records to access", Buttons::Information);

    DoubleClick({2200, 700});

    EXPECT_EQ(Shown(), nobodyMarkedJohn);
}

} // namespace
} // namespace lineforge
