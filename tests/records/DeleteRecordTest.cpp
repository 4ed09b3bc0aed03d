#include "records/DeleteRecordTest.h"

namespace lineforge
{
namespace
{

using testing::Values;
using testing::WithParamInterface;

TEST_F(DeleteRecordTest, RecordAndPictureGo_TheOthersStay)
{
    Records(P.Form3).MoveNext();
    const auto others = AllRows("File <> 'A002'");

    Delete();

    EXPECT_EQ(AllRows(), others);
    EXPECT_FALSE(HasPicture(u"A002"));
    EXPECT_TRUE(HasPicture(u"A001"));
    EXPECT_TRUE(HasPicture(u"A003"));
}

TEST_F(DeleteRecordTest, Ends_OnTheFirstRecord_WithItsPicture)
{
    Records(P.Form3).MoveLast();
    Delete();
    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"red"_s);
    EXPECT_EQ(P.Record.sCurFile, u"A001"_s);
    EXPECT_EQ(P.Record.sPicFile, u"A001Sub.jpg"_s);

    Delete();
    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"green"_s);
    EXPECT_EQ(P.Form3->Text3.Text.value(), u"Mary"_s);
}

TEST_F(DeleteRecordTest, FirstRecordWithoutPicture_ShowsNone)
{
    Records(P.Form3).MoveLast();
    RemovePicture(u"A001");

    Delete();

    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"none"_s);
}

TEST_F(DeleteRecordTest, BoxIsEmptied_InTheMapFileToo_AndOthersKeepTheirs)
{
    Records(P.Form3).MoveNext();

    Delete();

    EXPECT_EQ(P.Map.BoxArr[1][BoxColumn::File].Text(), u"0"_s);
    EXPECT_TRUE(MapOf(u'A').contains("1200,600,255,A001,John,3000,600,255,0,,5000,600,255,A003,Peter,"));
}

TEST_F(DeleteRecordTest, ForenameTypedAndNotYetStored_TheOneInTheBoxIsWiped)
{
    P.Form3->Text3.Text = u"Christopher"_s;

    Delete();

    EXPECT_EQ(CaptionPixels(1200), 0);
    EXPECT_EQ(Numbers(), QStringList({u"A002"_s, u"A003"_s}));
}

TEST_F(DeleteRecordTest, ForenameStoredBehindTheMapsBack_TheOneInTheBoxIsWiped)
{
    P.Form3->Text3.Text = u"Christopher"_s;
    Records(P.Form3).MoveNext();
    Records(P.Form3).MovePrevious();
    ASSERT_EQ(Stored("Forename"), u"Christopher"_s);

    Delete();

    EXPECT_EQ(CaptionPixels(1200), 0);
}

TEST_F(DeleteRecordTest, BoxIsWipedOfItsCaption_AndTheOthersKeepTheirs)
{
    Records(P.Form3).MoveNext();
    const int first = CaptionPixels(1200);
    ASSERT_GT(CaptionPixels(3000), 0);

    Delete();

    EXPECT_EQ(CaptionPixels(3000), 0);
    EXPECT_EQ(CaptionPixels(1200), first);
    EXPECT_EQ(P.Form1->Picture1.ForeColor, Black);
}

TEST_F(DeleteRecordTest, OnlyDatabasePictureAndMap_Change)
{
    const Tree before = Home.Snapshot();

    Delete();

    QStringList changes = Differences(before, Home.Snapshot());
    // The generation before, as at every writing of a map.
    changes.removeIf([](const QString& line) { return line.endsWith(u"LfgDat_A.~cf"); });
    EXPECT_EQ(changes, QStringList({u"changed: LfgDat_A/LfgDat_A.cfg"_s, u"changed: LfgDat_A/LfgDat_A.mdb"_s,
                                    u"gone: LfgDat_A/A001Sub.jpg"_s}));
}

TEST_F(DeleteRecordTest, RecordInTheLastBox_GoesButTheBoxKeepsItsNumber)
{
    P.Map.BoxArr[99] = P.Map.BoxArr[0];
    P.Map.BoxArr[0][BoxColumn::File] = u"0"_s;

    Delete();

    EXPECT_EQ(Numbers(), QStringList({u"A002"_s, u"A003"_s}));
    EXPECT_EQ(P.Map.BoxArr[99][BoxColumn::File].Text(), u"A001"_s);
    EXPECT_TRUE(MapOf(u'A').contains("A001,John,"));
}

TEST_F(DeleteRecordTest, RecordWithoutABox_Goes_AndEveryBoxStays)
{
    const QByteArray map = MapOf(u'A');
    Add(u"A004");

    Delete();

    EXPECT_EQ(Numbers(), QStringList({u"A001"_s, u"A002"_s, u"A003"_s}));
    EXPECT_EQ(MapOf(u'A'), map);
    EXPECT_FALSE(HasPicture(u"A004"));
}

TEST_F(DeleteRecordTest, NoAtTheFirstQuestion_LeavesEverything)
{
    const Tree before = Home.Snapshot();
    ExpectFirstQuestion(Answer::No);

    P.Form3->mnuDelete.Click();

    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(DeleteRecordTest, NoAtTheSecondQuestion_LeavesEverything)
{
    Records(P.Form3).MoveNext();
    const Tree before = Home.Snapshot();
    const int caption = CaptionPixels(3000);
    ExpectFirstQuestion(Answer::Yes);
    ExpectSecondQuestion(Answer::No);

    P.Form3->mnuDelete.Click();

    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(P.Map.BoxArr[1][BoxColumn::File].Text(), u"A002"_s);
    EXPECT_EQ(CaptionPixels(3000), caption);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(DeleteRecordTest, PendingMapping_EndsBeforeTheQuestion)
{
    P.Tools.MapCursorMode = MapCursor::Mapping;
    P.Screen.Pointer = MousePointer::Cross;
    Prompts.Expect(u"Delete Record", u"Do you really want to delete this record?", Buttons::QuestionYesNo, Answer::No,
                   [&] { EXPECT_EQ(P.Tools.MapCursorMode, MapCursor::Normal); });

    P.Form3->mnuDelete.Click();

    EXPECT_EQ(P.Screen.Pointer.value(), MousePointer::Default);
}

TEST_F(DeleteRecordTest, PendingRepositioning_Goes_On)
{
    P.Tools.MapCursorMode = MapCursor::Repositioning;
    ExpectFirstQuestion(Answer::No);

    P.Form3->mnuDelete.Click();

    EXPECT_EQ(P.Tools.MapCursorMode, MapCursor::Repositioning);
}

TEST_F(DeleteRecordTest, BehindTheLastRecord_OrBeforeTheFirst_NothingIsAsked)
{
    const Tree before = Home.Snapshot();
    Records(P.Form3).MoveLast();
    Records(P.Form3).MoveNext();
    P.Tools.MapCursorMode = MapCursor::Mapping;
    Click(P.Form3->mnuDelete.Click);
    EXPECT_EQ(P.Tools.MapCursorMode, MapCursor::Normal);

    Records(P.Form3).MoveFirst();
    Records(P.Form3).MovePrevious();
    Click(P.Form3->mnuDelete.Click);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(DeleteRecordTest, OnlyRecord_LeavesTheCursorAtTheEnd_AndNoPicture)
{
    Execute("DELETE FROM Tree99 WHERE File <> 'A001'");
    P.Form1->mnuCloseDB.Click();
    Choose(u"Smiths");
    GivenRecordForm();

    Delete();

    EXPECT_EQ(Numbers(), QStringList());
    EXPECT_TRUE(Records(P.Form3).Eof());
    EXPECT_EQ(P.Record.sCurFile, QString());
    EXPECT_EQ(P.Record.sPicFile, u"Sub.jpg"_s);
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"none"_s);
}

TEST_F(DeleteRecordTest, RecordsOneAfterTheOther_UntilNoneIsLeft_AndThenNothingIsAsked)
{
    for (int record = 0; record < 3; ++record)
        Delete();

    EXPECT_TRUE(MapOf(u'A').contains("1200,600,255,0,,3000,600,255,0,,5000,600,255,0,,"));
    Click(P.Form3->mnuDelete.Click);
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(DeleteRecordTest, TextsPending_AreInNoRecordAfterwards)
{
    const auto others = AllRows("File <> 'A001'");
    P.Form3->Text2.Text = u"Brown"_s;

    Delete();

    EXPECT_EQ(AllRows(), others);
}

// A number that is none: its picture would be anyone's.
class NoNumberTest : public DeleteRecordTest, public WithParamInterface<const char*>
{
};

TEST_P(NoNumberTest, RecordGoes_AndNoFile)
{
    Home.WriteFile(u"LfgDat_A/Sub.jpg", "nobody's");
    Home.WriteFile(u"LfgDat_A/LfgGal_A/_01.jpg", "nobody's");
    P.Files.ChDir(Home.Path(u"LfgDat_A/LfgGal_A"));
    Execute(QByteArray("UPDATE Tree99 SET File = ") + GetParam() + " WHERE File = 'A001'");
    P.Form3->Data1.Refresh(P.Databases, P.Files);

    Delete();

    EXPECT_EQ(Numbers(), QStringList({u"A002"_s, u"A003"_s}));
    EXPECT_TRUE(Home.Exists(u"LfgDat_A/Sub.jpg"));
    EXPECT_TRUE(Home.Exists(u"LfgDat_A/LfgGal_A/_01.jpg"));
    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::File].Text(), u"A001"_s);
}

INSTANTIATE_TEST_SUITE_P(Numbers, NoNumberTest, Values("''", "NULL"));

// The numbers that are given after one has gone.
TEST_F(DeleteRecordTest, LastDeleted_ItsNumberIsGivenAgain_WithTheBlankPortrait)
{
    Records(P.Form3).MoveLast();
    Delete();

    Add(u"A003");

    EXPECT_EQ(Numbers(), QStringList({u"A001"_s, u"A002"_s, u"A003"_s}));
    EXPECT_EQ(Stored("Forename", "A003"), std::nullopt);
    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/A003Sub.jpg"), PictureBytes(Qt::blue));
}

TEST_F(DeleteRecordTest, FirstDeleted_NumberingGoesOnBehindTheLast)
{
    Delete();

    Add(u"A004");

    EXPECT_EQ(Numbers(), QStringList({u"A002"_s, u"A003"_s, u"A004"_s}));
}

TEST_F(DeleteRecordTest, MiddleDeleted_ItsNumberStaysFree)
{
    Records(P.Form3).MoveNext();
    Delete();

    Add(u"A004");

    EXPECT_EQ(Numbers(), QStringList({u"A001"_s, u"A003"_s, u"A004"_s}));
}

TEST_F(DeleteRecordTest, ReadOnlyPicture_Stays_AndTheRecordGoes)
{
    Home.MakeReadOnly(u"LfgDat_A/A001Sub.jpg");

    Delete();

    EXPECT_TRUE(HasPicture(u"A001"));
    EXPECT_EQ(Numbers(), QStringList({u"A002"_s, u"A003"_s}));
}

TEST_F(DeleteRecordTest, ReadOnlyMapFile_StaysWhole_AndTheRecordGoes)
{
    const QByteArray map = MapOf(u'A');
    Home.MakeReadOnly(u"LfgDat_A/LfgDat_A.cfg");

    Delete();

    EXPECT_EQ(MapOf(u'A'), map);
    EXPECT_EQ(Numbers(), QStringList({u"A002"_s, u"A003"_s}));
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"green"_s);
}

TEST_F(DeleteRecordTest, ReadOnlyDirectory_PicturesAndMapStayWhole)
{
    const QByteArray map = MapOf(u'A');
    const QByteArray picture = Home.ReadFile(u"LfgDat_A/A001Sub.jpg");
    const auto others = AllRows("File <> 'A001'");
    Home.MakeReadOnly(u"LfgDat_A");

    Delete();

    Home.MakeWritable(u"LfgDat_A");
    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/A001Sub.jpg"), picture);
    EXPECT_EQ(MapOf(u'A'), map);
    EXPECT_EQ(AllRows("File <> 'A001'"), others);
}

// What is there of the first record: row, files, and the box in memory, on the screen and on disk.
class RefusedDeletionTest : public DeleteRecordTest
{
protected:
    void RefuseDeletion()
    {
        Execute("CREATE TRIGGER Kept BEFORE DELETE ON Tree99 BEGIN SELECT RAISE(ABORT, 'refused'); END");
    }
    void RefuseChanges()
    {
        Execute("CREATE TRIGGER Refusal BEFORE UPDATE ON Tree99 BEGIN SELECT RAISE(ABORT, 'refused'); END");
    }
    void DeleteInVain()
    {
        const auto rows = AllRows();
        const Tree files = Home.Snapshot();
        const QImage map = ShownBy(P.Form1->Picture1).copy();
        const auto boxes = P.Map.BoxArr;
        Delete();
        EXPECT_EQ(AllRows(), rows);
        EXPECT_EQ(Differences(files, Home.Snapshot()), QStringList());
        EXPECT_TRUE(ShownBy(P.Form1->Picture1) == map);
        for (int row = 0; row <= LastFiledBox; ++row)
            for (int column = 0; column < BoxColumn::Count; ++column)
                EXPECT_EQ(P.Map.BoxArr[row][column].Text(), boxes[row][column].Text()) << row << ' ' << column;
        EXPECT_EQ(Current(), u"A001"_s);
    }
};

TEST_F(RefusedDeletionTest, NothingIsLost_AndNothingIsTold)
{
    Home.WriteFile(u"LfgDat_A/LfgGal_A/A001_01.jpg", "hers");
    P.Files.ChDir(Home.Path(u"LfgDat_A/LfgGal_A"));
    RefuseDeletion();

    DeleteInVain();
}

TEST_F(RefusedDeletionTest, WithTextsPending_NothingIsLost_AndTheyAreStoredLater)
{
    P.Form3->Text2.Text = u"Brown"_s;
    P.Form3->Text3.Text = u"Christopher"_s;
    RefuseDeletion();
    RefuseChanges();

    DeleteInVain();

    EXPECT_EQ(P.Form3->Text2.Text.value(), u"Brown"_s);
    Execute("DROP TRIGGER Refusal");
    Records(P.Form3).MoveNext();
    EXPECT_EQ(Stored("Surname"), u"Brown"_s);
    EXPECT_EQ(Stored("Forename"), u"Christopher"_s);
}

TEST_F(RefusedDeletionTest, ForenameStoredBehindTheMapsBack_TheBoxKeepsTheOneItShows)
{
    P.Form3->Text3.Text = u"Christopher"_s;
    Records(P.Form3).MoveNext();
    Records(P.Form3).MovePrevious();
    RefuseDeletion();

    DeleteInVain();
}

TEST_F(DeleteRecordTest, ChangesRefused_WithTextsPending_TheRecordGoesAllTheSame)
{
    P.Form3->Text3.Text = u"Christopher"_s;
    Execute("CREATE TRIGGER Refusal BEFORE UPDATE ON Tree99 BEGIN SELECT RAISE(ABORT, 'refused'); END");

    Delete();

    EXPECT_EQ(Numbers(), QStringList({u"A002"_s, u"A003"_s}));
    EXPECT_EQ(CaptionPixels(1200), 0);
    EXPECT_EQ(P.Form3->Text3.Text.value(), u"Mary"_s);
}

TEST_F(DeleteRecordTest, LockedByAnotherProgram_WithTextsPending_WhenGivenUp_TheRecordStays)
{
    const auto before = AllRows();
    P.Form3->Text2.Text = u"Brown"_s;
    auto other = LockDatabase(u'A');

    Delete([this] { ExpectDatabaseInUse(Answer::Cancel); });

    other.reset();
    EXPECT_EQ(AllRows(), before);
    EXPECT_TRUE(HasPicture(u"A001"));
    EXPECT_EQ(P.Form3->Text2.Text.value(), u"Brown"_s);
}

TEST_F(DeleteRecordTest, LockedByAnotherProgram_WhenGivenUp_TheRecordStays)
{
    const auto before = AllRows();
    auto other = LockDatabase(u'A');

    Delete([this] { ExpectDatabaseInUse(Answer::Cancel); });

    other.reset();
    EXPECT_EQ(AllRows(), before);
}

TEST_F(DeleteRecordTest, BranchDirectoryVanished_NothingIsTold)
{
    QDir(Home.Path(u"LfgDat_A")).removeRecursively();

    Delete();

    EXPECT_FALSE(Home.Exists(u"LfgDat_A"));
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"none"_s);
}

} // namespace
} // namespace lineforge
