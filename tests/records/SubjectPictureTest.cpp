#include "records/AddRecord.h"
#include "records/RecordTest.h"

#include <QBuffer>

namespace lineforge
{
namespace
{

class SubjectPictureTest : public RecordTest
{
protected:
    SubjectPictureTest() { GivenRecordForm(); }

    void ExpectQuestion(Answer answer)
    {
        Prompts.Expect(u"Subject Picture Change.", u"Change or add the Subject Picture ?", Buttons::QuestionOkCancel,
                       answer);
    }
    void ExpectDialog(std::optional<QString> chosen)
    {
        Prompts.ExpectOpenFile(u"Select Picture Source File", u"Graphics|*.jpg|All Files|*.*|", std::move(chosen));
    }
    // The user agrees and chooses that file; nothing may end the program.
    void Choose(std::optional<QString> chosen)
    {
        ExpectQuestion(Answer::Ok);
        ExpectDialog(std::move(chosen));
        Click(P.Form3->mnuSubPicture.Click);
        EXPECT_EQ(ExitCode(), std::nullopt);
    }

    QByteArray Picture(QStringView file = u"A001") { return Home.ReadFile(QString(u"LfgDat_A/" + file + u"Sub.jpg")); }
    QStringList ChangesSince(const Tree& before) { return Differences(before, Home.Snapshot()); }

    const QByteArray Blue = PictureBytes(Qt::blue);
    const QByteArray Red = PictureBytes(Qt::red);
    const QString Album = Home.WriteFile(u"Album/me.jpg", Blue);
};

TEST_F(SubjectPictureTest, ChosenFile_BecomesThePicture_ByteForByte_AndIsShown)
{
    const Tree before = Home.Snapshot();

    Choose(Album);

    EXPECT_EQ(Picture(), Blue);
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"blue"_s);
    EXPECT_EQ(ChangesSince(before), QStringList({u"changed: LfgDat_A/A001Sub.jpg"_s}));
}

TEST_F(SubjectPictureTest, PictureIsTheCurrentRecords)
{
    Records(P.Form3).MoveNext();

    Choose(Album);

    EXPECT_EQ(Picture(u"A002"), Blue);
    EXPECT_EQ(Picture(u"A001"), Red);
}

TEST_F(SubjectPictureTest, RecordWithoutPicture_GetsOne)
{
    RemovePicture(u"A001");

    Choose(Album);

    EXPECT_EQ(Picture(), Blue);
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"blue"_s);
}

TEST_F(SubjectPictureTest, AnotherKindOfPicture_KeepsItsBytes_UnderTheOneEnding)
{
    QImage image(40, 30, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QBuffer bytes;
    ASSERT_TRUE(image.save(&bytes, "PNG"));

    Choose(Home.WriteFile(u"Album/me.png", bytes.data()));

    EXPECT_EQ(Picture(), bytes.data());
    EXPECT_FALSE(Home.Exists(u"LfgDat_A/A001Sub.png"));
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"blue"_s);
}

TEST_F(SubjectPictureTest, FileThatCannotBeShown_StaysCopied_AndNothingIsTold)
{
    Choose(Home.WriteFile(u"Album/letter.txt", "Dear all"));

    EXPECT_EQ(Picture(), "Dear all");
}

TEST_F(SubjectPictureTest, CancelAtTheQuestion_ChangesNothing)
{
    const Tree before = Home.Snapshot();
    ExpectQuestion(Answer::Cancel);

    P.Form3->mnuSubPicture.Click();

    EXPECT_EQ(ColourOf(P.Form3->Image1), u"red"_s);
    EXPECT_EQ(ChangesSince(before), QStringList());
}

TEST_F(SubjectPictureTest, CancelInTheDialog_ChangesNothing)
{
    const Tree before = Home.Snapshot();

    Choose(std::nullopt);

    EXPECT_EQ(ColourOf(P.Form3->Image1), u"red"_s);
    EXPECT_EQ(ChangesSince(before), QStringList());
}

TEST_F(SubjectPictureTest, OnARecordOfAnotherBranch_IsRefused_AndChangesNothing)
{
    GivenRecordOfSibling();
    GivenRecordForm();
    const Tree before = Home.Snapshot();
    Prompts.Expect(u"Change to Subject Picture.",
                   u"This Record is from another Tree Branch. You must \n"
                   u"open that Tree Branch to change the Subject Picture. ",
                   Buttons::Information);

    P.Form3->mnuSubPicture.Click();

    EXPECT_EQ(ChangesSince(before), QStringList());
}

TEST_F(SubjectPictureTest, MissingFile_LeavesThePicture_WithoutAWord)
{
    Choose(Home.Path(u"Album/nobody.jpg"));

    EXPECT_EQ(Picture(), Red);
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"red"_s);
}

TEST_F(SubjectPictureTest, ThePictureItself_StaysWhole)
{
    Choose(Home.Path(u"LfgDat_A/A001Sub.jpg"));

    EXPECT_EQ(Picture(), Red);
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"red"_s);
}

TEST_F(SubjectPictureTest, ReadOnlyPicture_StaysWhole_WithoutAWord)
{
    Home.MakeReadOnly(u"LfgDat_A/A001Sub.jpg");

    Choose(Album);

    EXPECT_EQ(Picture(), Red);
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"red"_s);
}

TEST_F(SubjectPictureTest, ReadOnlyDirectory_ThePictureStaysWhole_WithoutAWord)
{
    const Tree before = Home.Snapshot();
    Home.MakeReadOnly(u"LfgDat_A");

    Choose(Album);

    Home.MakeWritable(u"LfgDat_A");
    EXPECT_EQ(ChangesSince(before), QStringList());
}

TEST_F(SubjectPictureTest, BranchDirectoryVanished_NothingIsTold)
{
    QDir(Home.Path(u"LfgDat_A")).removeRecursively();

    Choose(Album);

    EXPECT_FALSE(Home.Exists(u"LfgDat_A"));
}

// The scanner runs on under the dialog.
class ScannedPictureTest : public SubjectPictureTest
{
protected:
    ScannedPictureTest() { P.Form3->Picture2.Click(); }

    void ChooseWhileItScans(const QString& chosen)
    {
        ExpectQuestion(Answer::Ok);
        Prompts.ExpectOpenFile(u"Select Picture Source File", u"Graphics|*.jpg|All Files|*.*|", chosen,
                               [&] { P.Form3->Timer1.Tick(); });
        Click(P.Form3->mnuSubPicture.Click);
        LoopRuns();
        EXPECT_EQ(ExitCode(), std::nullopt);
        EXPECT_EQ(Current(), u"A001"_s);
    }
};

TEST_F(ScannedPictureTest, PictureIsThatOfTheRecordThatWasAskedAbout_WhichIsShownWithIt)
{
    ChooseWhileItScans(Album);

    EXPECT_EQ(Picture(), Blue);
    EXPECT_EQ(Picture(u"A002"), PictureBytes(Qt::green));
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"blue"_s);
}

TEST_F(ScannedPictureTest, RefusedPicture_LeavesTheOldOneOfTheRecordThatWasAskedAbout)
{
    ChooseWhileItScans(Home.Path(u"Album/nobody.jpg"));

    EXPECT_EQ(Picture(), Red);
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"red"_s);
}

TEST_F(SubjectPictureTest, TextsPending_StayPending)
{
    P.Form3->Text2.Text = u"Brown"_s;

    Choose(Album);

    EXPECT_EQ(Stored("Surname"), u"Smith"_s);
    EXPECT_EQ(P.Form3->Text2.Text.value(), u"Brown"_s);
}

} // namespace
} // namespace lineforge
