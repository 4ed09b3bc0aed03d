#include "program/branch/WorkDatabase.h"
#include "shell/ShellTest.h"

namespace lineforge
{
namespace
{

// The record form stands open while commands elsewhere move its cursor: its picture is the one of the record on it.
class RecordPictureFollowsTest : public ShellTest
{
protected:
    RecordPictureFollowsTest()
    {
        GivenRegistry({{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}});
        BranchOf(u'A').Boxes(u"1200,600,255,A001,John,2000,600,255,A002,Mary,2800,600,255,B002,Mary,").Build();
        BranchOf(u'B').Picture(u"B002", Qt::green).Build();
        WriteTemplates(Home);
        StartProgram(P);
        Choose(u"Smiths");
        Click(P.Form1->Command1.Click);
        LoopRuns();
    }

    // What it does when a handler has returned.
    void LoopRuns()
    {
        Click([this] {
            if (P.Form3.IsLoaded())
                P.Form3->Data1.Settle();
        });
    }
    void Do(const Event& handler)
    {
        Click(handler);
        LoopRuns();
    }
    void DoubleClick(int x)
    {
        P.Mouse.DownX = x;
        P.Mouse.DownY = 700;
        Do(P.Form1->Picture1.DblClick);
    }

    // The number on the form, and the colour of its picture.
    QString Shown()
    {
        const QImage picture = P.Form3->Image1.Picture;
        QString colour = u"none"_s;
        if (!picture.isNull())
            colour = picture.pixelColor(10, 10).red() > 200    ? u"red"_s
                     : picture.pixelColor(10, 10).blue() > 200 ? u"blue"_s
                                                               : u"green"_s;
        return P.Form3->Label25.Caption.Shown() + u' ' + colour;
    }

    void ExpectMappingQuestion(Answer answer)
    {
        Prompts.Expect(u"New Subject Mapping",
                       u"This Subject has already been Logged into the Database.\n"
                       u"Do you want to change the Subject Picture ? ",
                       Buttons::QuestionYesNo, answer);
    }
    void ChooseMapping(OptionButton forms::Form7::*picture)
    {
        Do(P.Form1->mnuMapSubject.Click);
        for (OptionButton forms::Form7::*option : {&forms::Form7::Option6, &forms::Form7::Option7})
            ((*P.Form7).*option).Value = option == picture;
        Do(P.Form7->Command1.Click);
    }
};

TEST_F(RecordPictureFollowsTest, CursorThatWasMovedByWhateverElse)
{
    EXPECT_EQ(Shown(), u"A001 red"_s);
    Do([this] { Records(P.Form3).MoveNext(); });
    EXPECT_EQ(Shown(), u"A002 blue"_s);
    Do([this] { Records(P.Form3).MoveNext(); });
    EXPECT_EQ(Shown(), u" none"_s);
}

TEST_F(RecordPictureFollowsTest, RecordWithoutPicture_HasNobodyElses)
{
    P.Files.Kill(Home.Path(u"LfgDat_A/A002Sub.jpg"));
    Do([this] { Records(P.Form3).MoveNext(); });
    EXPECT_EQ(Shown(), u"A002 none"_s);
}

TEST_F(RecordPictureFollowsTest, HiddenForm_KeepsItsPicture)
{
    P.Form3->Hide();
    Do([this] { Records(P.Form3).MoveNext(); });
    EXPECT_EQ(Shown(), u"A002 red"_s);
}

TEST_F(RecordPictureFollowsTest, MappingAnsweredNo)
{
    ChooseMapping(&forms::Form7::Option6);
    ExpectMappingQuestion(Answer::No);
    DoubleClick(2100);
    EXPECT_EQ(Shown(), u"A002 blue"_s);
}

TEST_F(RecordPictureFollowsTest, MappingWhosePictureIsCancelled)
{
    ChooseMapping(&forms::Form7::Option7);
    ExpectMappingQuestion(Answer::Yes);
    Prompts.ExpectOpenFile(u"Select Picture Source File", u"DataBase|*.jpg|All Files|*.*|");
    DoubleClick(2100);
    EXPECT_EQ(Shown(), u"A002 blue"_s);
}

TEST_F(RecordPictureFollowsTest, RecordOfASibling_AndTheReturnBesideAllBoxes)
{
    DoubleClick(2900);
    EXPECT_EQ(Shown(), u"B002 green"_s);
    DoubleClick(9000);
    EXPECT_EQ(Shown(), u"A001 red"_s);
}

TEST_F(RecordPictureFollowsTest, RecordsOutOfTheGallery_AfterTheCursorHasMovedElsewhere)
{
    Do(P.Form3->Command1.Click);
    Do([this] { Records(P.Form3).MoveNext(); });
    Do(P.Form5->Command2.Click);
    ASSERT_TRUE(P.Form3->Visible);
    EXPECT_EQ(Shown(), u"A002 blue"_s);
}

TEST_F(RecordPictureFollowsTest, BranchThatIsGone_AndTheNextOne)
{
    Do(P.Form1->mnuCloseDB.Click);
    Choose(u"Jones");
    Do(P.Form1->Command1.Click);
    EXPECT_EQ(Shown(), u"B001 red"_s);
}

// A command that waits for a box: its cursor may still be on its way.
TEST_F(RecordPictureFollowsTest, UnderABox_TheFormerPictureGoes_AndTheOneOfTheRecordComesBehindIt)
{
    Do([this] {
        Records(P.Form3).MoveNext();
        LoopRuns();
        EXPECT_EQ(Shown(), u"A002 none"_s);
    });
    EXPECT_EQ(Shown(), u"A002 blue"_s);
}

// The user's own step isn't on its way anywhere.
TEST_F(RecordPictureFollowsTest, StepByTheFormsOwnBar_IsFollowedAtOnce_UnderAnotherCommandToo)
{
    Do([this] {
        Do([this] {
            Records(P.Form3).MoveNext();
            Fire(P.Form3->Data1.Stepped);
        });
        EXPECT_EQ(Shown(), u"A002 blue"_s);
        EXPECT_EQ(P.Form1->Frame1.Caption.value(), u"Ref  A002"_s);
        EXPECT_FALSE(P.Form1->Image1.Picture.value().isNull());
    });
}

} // namespace
} // namespace lineforge
