#include "records/RecordTransferTest.h"

namespace lineforge
{
namespace
{

using testing::Values;
using testing::WithParamInterface;

TEST_F(RecordTransferTest, EveryField_ComesFromTheSource_AndNoOtherRecordChanges)
{
    GivenFullSource();
    const auto others = Rows("File <> 'A002'");

    TransferTo(u"A002");

    for (const QString& field : RecordFields()) {
        if (field != u"File" && field != u"SpouseRec") {
            EXPECT_EQ(Stored(qUtf8Printable(field), "A002"), QString(u"its " + field)) << qUtf8Printable(field);
        }
    }
    EXPECT_EQ(Rows("File <> 'A002'"), others);
}

TEST_F(RecordTransferTest, SpouseRecAndNumber_OfTheDestinationSurvive)
{
    GivenFullSource();
    Execute("UPDATE Tree99 SET SpouseRec = 'A077' WHERE File = 'A002'");

    TransferTo(u"A002");

    EXPECT_EQ(Stored("SpouseRec", "A002"), u"A077"_s);
    EXPECT_EQ(Stored("SpouseRec", "A001"), u"its SpouseRec"_s);
    EXPECT_EQ(Rows("File = 'A001'").size(), 1U);
}

TEST_F(RecordTransferTest, EmptyNotesOfTheSource_LoseTheOldText)
{
    Execute("UPDATE Tree99 SET Notes = 'old', Medical = 'old'");
    Execute("UPDATE Tree99 SET Notes = '', Medical = NULL WHERE File = 'A001'");

    TransferTo(u"A002");

    EXPECT_EQ(Stored("Notes", "A002"), QString());
    EXPECT_EQ(Stored("Medical", "A002"), QString());
    EXPECT_EQ(Stored("Medical", "A001"), std::nullopt);
}

TEST_F(RecordTransferTest, TextsPendingInTheSource_AreWritten_AndCarried)
{
    P.Form3->Text2.Text = u"Brown"_s;

    TransferTo(u"A002");

    EXPECT_EQ(Stored("Surname", "A001"), u"Brown"_s);
    EXPECT_EQ(Stored("Surname", "A002"), u"Brown"_s);
}

TEST_F(RecordTransferTest, Picture_IsTheSourcesByteForByte_InTheSameFile)
{
    const Tree before = Home.Snapshot();

    TransferTo(u"A002");

    EXPECT_EQ(PictureOf(u"A002"), Red);
    EXPECT_EQ(PictureOf(u"A001"), Red);
    EXPECT_EQ(ColourOf(P.Form1->Image1), u"red"_s);
    EXPECT_EQ(ChangesSince(before),
              QStringList({u"changed: LfgDat_A/A002Sub.jpg"_s, u"changed: LfgDat_A/LfgDat_A.mdb"_s}));
}

TEST_F(RecordTransferTest, GalleryFiles_StayWithTheSource)
{
    Home.WriteFile(u"LfgDat_A/LfgGal_A/A001_01.jpg", "picture");
    Home.WriteFile(u"LfgDat_A/LfgGal_A/A002_01.jpg", "another");

    TransferTo(u"A002");

    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgGal_A/A001_01.jpg"), "picture");
    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgGal_A/A002_01.jpg"), "another");
}

TEST_F(RecordTransferTest, DestinationInSmallLetters_IsFound_InThisBranch)
{
    TransferTo(u"a002");

    EXPECT_EQ(Stored("Forename", "A002"), u"John"_s);
    EXPECT_EQ(PictureOf(u"A002"), Red);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
}

TEST_F(RecordTransferTest, DestinationIsCurrentAfterwards_AndThePanelShowsIt)
{
    GivenFullSource();

    TransferTo(u"A002");

    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"its Forename"_s);
    EXPECT_EQ(P.Form1->Label10.Caption.value(), u"its Surname"_s);
    EXPECT_EQ(P.Form1->Label11.Caption.value(), u"its BirthDate"_s);
    EXPECT_EQ(P.Form1->Label12.Caption.value(), u"its Deceased"_s);
    EXPECT_EQ(P.Form1->Label14.Caption.value(), u"its Spouse"_s);
    EXPECT_EQ(P.Form1->Label17.Caption.value(), u"its Gender"_s);
    EXPECT_EQ(ShownRef(), u"Ref  A002"_s);
}

TEST_F(RecordTransferTest, NameInTheBox_IsWiped_AndTheNewOnePrinted)
{
    const QImage expected = MapWith(3000, u"Mary"_s, u"John"_s);
    P.Form1->mnuCloseDB.Click();
    Choose(u"Smiths");
    GivenRecordForm();
    ASSERT_FALSE(Map() == expected);

    TransferTo(u"A002");

    EXPECT_TRUE(Map() == expected);
    EXPECT_EQ(P.Form1->Picture1.ForeColor, Black);
    EXPECT_EQ(P.Form1->Picture1.Font.Name, u"Arial"_s);
    EXPECT_EQ(P.Form1->Picture1.Font.Size, 8);
    EXPECT_FALSE(P.Form1->Picture1.Font.Italic);
}

TEST_F(RecordTransferTest, LongName_IsPrintedAsItFits)
{
    const QImage expected = MapWith(3000, u"Mary"_s, u"Chris'r"_s);
    P.Form1->mnuCloseDB.Click();
    Choose(u"Smiths");
    GivenRecordForm();
    P.Form3->Text3.Text = u"Christopher"_s;

    TransferTo(u"A002");

    EXPECT_TRUE(Map() == expected);
    EXPECT_EQ(Stored("Forename", "A002"), u"Christopher"_s);
}

TEST_F(RecordTransferTest, MapsListsAndFile_StayAsTheyWere)
{
    const QByteArray map = MapOf(u'A');

    TransferTo(u"A002");

    EXPECT_EQ(P.Map.BoxArr[1][BoxColumn::File].Text(), u"A002"_s);
    EXPECT_EQ(MapOf(u'A'), map);
}

TEST_F(RecordTransferTest, Marker_MovesToTheDestinationsBox_InTheColourOfTheNewGender)
{
    ASSERT_EQ(MarkerLeft(), MarkerOn(1200));

    TransferTo(u"A002");

    EXPECT_EQ(MarkerLeft(), MarkerOn(3000));
    EXPECT_TRUE(P.Form1->Shape1.Visible);
    EXPECT_EQ(P.Form1->Shape1.BorderColor.value(), QbColor(9));
}

TEST_F(RecordTransferTest, DestinationWithoutABox_IsOverwritten_AndNothingIsPrinted)
{
    P.Map.BoxArr[1][BoxColumn::File] = u"0"_s;
    const QImage before = Map();

    TransferTo(u"A002");

    EXPECT_EQ(Stored("Forename", "A002"), u"John"_s);
    EXPECT_TRUE(Map() == before);
    EXPECT_FALSE(P.Form1->Shape1.Visible);
}

TEST_F(RecordTransferTest, DestinationIsTheSource_PictureCannotBeCopied_AndNullBecomesEmptyText)
{
    ExpectTransferTo(u"A001");
    ExpectCopyProblem();

    Press();

    EXPECT_EQ(PictureOf(u"A001"), Red);
    EXPECT_EQ(Stored("Forename"), u"John"_s);
    EXPECT_EQ(Stored("Surname"), u"Smith"_s);
    EXPECT_EQ(Stored("Notes"), QString());
    EXPECT_EQ(Stored("SpouseRec"), std::nullopt);
}

TEST_F(RecordTransferTest, OnARecordOfAnotherBranch_IsRefused_AndChangesNothing)
{
    GivenRecordOfSibling();
    GivenRecordForm();
    const Tree before = Home.Snapshot();
    Prompts.Expect(u"Search Alternate Tree Branch Records.",
                   u"This Record is from another Tree Branch. You must open \n"
                   u"that Tree Branch to Transfer this Record.",
                   Buttons::Information);

    Press();

    EXPECT_EQ(P.Branch.UsingAlternate, 1);
    EXPECT_EQ(ChangesSince(before), QStringList());
}

TEST_F(RecordTransferTest, CancelAtTheConfirmation_ChangesNothing)
{
    const Tree before = Home.Snapshot();
    ExpectConfirmation(Answer::Cancel);

    Press();

    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_EQ(ChangesSince(before), QStringList());
}

TEST_F(RecordTransferTest, CancelAtTheConfirmation_WhatWasTypedIsWrittenAllTheSame)
{
    P.Form3->Text2.Text = u"Brown"_s;
    ExpectConfirmation(Answer::Cancel);

    Press();

    EXPECT_EQ(Stored("Surname"), u"Brown"_s);
}

TEST_F(RecordTransferTest, EmptyNumber_ChangesNothing)
{
    const Tree before = Home.Snapshot();

    TransferTo(u"");

    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_EQ(ChangesSince(before), QStringList());
}

class WrongLengthTest : public RecordTransferTest, public WithParamInterface<QStringView>
{
protected:
    void ExpectWrongLength()
    {
        ExpectTransferTo(GetParam());
        Prompts.Expect(u"Incorrect Character length.", u"Incorrect File Ref Input.", Buttons::Information);
    }
};

TEST_P(WrongLengthTest, IsTold_AndTheConfirmationComesAgain)
{
    const Tree before = Home.Snapshot();
    ExpectWrongLength();
    ExpectWrongLength();
    ExpectConfirmation(Answer::Cancel);

    Press();

    EXPECT_EQ(ChangesSince(before), QStringList());
}

TEST_P(WrongLengthTest, ThenTheRightOne_IsTransferredTo)
{
    ExpectWrongLength();

    TransferTo(u"A002");

    EXPECT_EQ(Stored("Forename", "A002"), u"John"_s);
}

INSTANTIATE_TEST_SUITE_P(Numbers, WrongLengthTest, Values(u"A02", u"A0002", u" ", u"A002 "));

TEST_F(RecordTransferTest, NoSuchRecord_IsToldWithTheNumberShownLast_AndThePictureStaysCopied)
{
    ASSERT_EQ(P.Record.sCurFile, u"A001"_s);
    const auto before = Rows("1");
    ExpectTransferTo(u"A009");
    ExpectNoMatch(u"A001");

    Press();

    EXPECT_EQ(Rows("1"), before);
    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/A009sub.jpg"), Red);
    EXPECT_TRUE(Records(P.Form3).Eof());
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"none"_s);
}

TEST_F(RecordTransferTest, NoSuchRecordAfterASearch_IsToldWithItsPattern)
{
    Prompts.ExpectInput(u"Search Database", u"Enter the Surname or partial Surname", u"nobody");
    Prompts.Expect(u"Database Result", u"No Match Found for Surname: nobody", Buttons::Information);
    P.Form3->mnuSearchSurName.Click();
    Records(P.Form3).MoveFirst();
    ExpectTransferTo(u"A009");
    ExpectNoMatch(u"*nobody*");

    Press();
}

TEST_F(RecordTransferTest, LetterAndDigitsAreNotTested)
{
    ExpectTransferTo(u"A,??");
    ExpectNoMatch(u"A001");

    Press();
}

TEST_F(RecordTransferTest, SourceWithoutPicture_IsTold_AndTheDestinationKeepsIts)
{
    RemovePicture(u"A001");
    ExpectTransferTo(u"A002");
    ExpectCopyProblem();

    Press();

    EXPECT_EQ(PictureOf(u"A002"), Green);
    EXPECT_EQ(ColourOf(P.Form1->Image1), u"green"_s);
    EXPECT_EQ(Stored("Forename", "A002"), u"John"_s);
}

TEST_F(RecordTransferTest, NeitherHasAPicture_IsToldTwice_AndNothingIsTransferred)
{
    RemovePicture(u"A001");
    RemovePicture(u"A002");
    const Tree before = Home.Snapshot();
    ExpectTransferTo(u"A002");
    ExpectCopyProblem();
    ExpectLoadProblem();

    Press();

    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_EQ(ChangesSince(before), QStringList());
}

TEST_F(RecordTransferTest, PictureThatCannotBeShown_IsCopied_AndNothingElseIsTransferred)
{
    Home.WriteFile(u"LfgDat_A/A001Sub.jpg", "no picture");
    const Tree before = Home.Snapshot();
    ExpectTransferTo(u"A002");
    ExpectLoadProblem();

    Press();

    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_EQ(ChangesSince(before), QStringList({u"changed: LfgDat_A/A002Sub.jpg"_s}));
}

TEST_F(RecordTransferTest, ReadOnlyPictureOfTheDestination_StaysWhole_AndTheFieldsAreTransferred)
{
    Home.MakeReadOnly(u"LfgDat_A/A002Sub.jpg");
    ExpectTransferTo(u"A002");
    ExpectCopyProblem();

    Press();

    EXPECT_EQ(PictureOf(u"A002"), Green);
    EXPECT_EQ(Stored("Forename", "A002"), u"John"_s);
}

TEST_F(RecordTransferTest, RefusedByTheDatabase_EndsTheProgram_WithTheRecordsWhole)
{
    GivenFullSource();
    const auto before = Rows("1");
    Execute("CREATE TRIGGER Refusal BEFORE UPDATE ON Tree99 BEGIN SELECT RAISE(ABORT, 'refused'); END");
    ExpectTransferTo(u"A002");
    ExpectFatalBox(u"Run-time error '57':\n\nDevice I/O error",
                   u"The disk failed at this:\n"_s + Home.Path(u"LfgDat_A/LfgDat_A.mdb") + u"\nRecord A002");

    Click(P.Form3->MnuRecTransfer.Click);

    EXPECT_EQ(ExitCode(), 1);
    EXPECT_EQ(Rows("1"), before);
}

// The steps up to the copying of the picture pass over what is refused; the record can't be left then.
TEST_F(RecordTransferTest, RefusedByTheDatabase_ThePictureThatWasThereStays)
{
    Execute("CREATE TRIGGER Refusal BEFORE UPDATE ON Tree99 BEGIN SELECT RAISE(ABORT, 'refused'); END");
    ExpectTransferTo(u"A002");
    ExpectFatalBox(u"Run-time error '57':\n\nDevice I/O error",
                   u"The disk failed at this:\n"_s + Home.Path(u"LfgDat_A/LfgDat_A.mdb") + u"\nRecord A002");

    Click(P.Form3->MnuRecTransfer.Click);

    EXPECT_EQ(PictureOf(u"A002"), Green);
}

TEST_F(RecordTransferTest, RefusedByTheDatabase_WhoHadNoPictureHasNone)
{
    RemovePicture(u"A002");
    Execute("CREATE TRIGGER Refusal BEFORE UPDATE ON Tree99 BEGIN SELECT RAISE(ABORT, 'refused'); END");
    ExpectTransferTo(u"A002");
    ExpectFatalBox(u"Run-time error '57':\n\nDevice I/O error",
                   u"The disk failed at this:\n"_s + Home.Path(u"LfgDat_A/LfgDat_A.mdb") + u"\nRecord A002");

    Click(P.Form3->MnuRecTransfer.Click);

    EXPECT_EQ(P.Files.Dir(Home.Path(u"LfgDat_A/A002sub.jpg")), QString());
}

TEST_F(RecordTransferTest, TextsPendingThatCannotBeStored_EndTheProgramNoSoonerThanTheWalk)
{
    P.Form3->Text2.Text = u"Brown"_s;
    const auto before = Rows("1");
    Execute("CREATE TRIGGER Refusal BEFORE UPDATE ON Tree99 BEGIN SELECT RAISE(ABORT, 'refused'); END");
    ExpectTransferTo(u"A002");
    ExpectFatalBox(u"Run-time error '57':\n\nDevice I/O error",
                   u"The disk failed at this:\n"_s + Home.Path(u"LfgDat_A/LfgDat_A.mdb") + u"\nRecord A001");

    Click(P.Form3->MnuRecTransfer.Click);

    EXPECT_EQ(PictureOf(u"A002"), Green);
    EXPECT_EQ(Rows("1"), before);
}

TEST_F(RecordTransferTest, TextsPendingThatCannotBeStored_StayPending_WhenTheUserGivesUp)
{
    P.Form3->Text2.Text = u"Brown"_s;
    Execute("CREATE TRIGGER Refusal BEFORE UPDATE ON Tree99 BEGIN SELECT RAISE(ABORT, 'refused'); END");
    TransferTo(u"");

    EXPECT_EQ(P.Form3->Text2.Text.value(), u"Brown"_s);
    Execute("DROP TRIGGER Refusal");
    Records(P.Form3).MoveNext();
    EXPECT_EQ(Stored("Surname"), u"Brown"_s);
}

class LockedTransferTest : public RecordTransferTest
{
protected:
    // Another program begins when the number is asked for.
    void ExpectTransferUnderALock()
    {
        ExpectConfirmation(Answer::Ok);
        Prompts.ExpectInput(u"Data Record Destination.", u"Enter Destination Data Ref Number.", u"A002",
                            [&] { Other = LockDatabase(u'A'); });
    }

    std::unique_ptr<SqliteFile> Other;
};

TEST_F(LockedTransferTest, Cancel_GivesTheTransferUp_WithTheRecordsWhole)
{
    const auto before = Rows("1");
    ExpectTransferUnderALock();
    ExpectDatabaseInUse(Answer::Cancel);

    Press();

    Other.reset();
    EXPECT_EQ(Rows("1"), before);
}

TEST_F(LockedTransferTest, Cancel_ThePictureThatWasThereStays)
{
    ExpectTransferUnderALock();
    ExpectDatabaseInUse(Answer::Cancel);

    Press();

    EXPECT_EQ(PictureOf(u"A002"), Green);
    // A001 is still the one beside the map.
    EXPECT_EQ(ColourOf(P.Form1->Image1), u"red"_s);
}

TEST_F(LockedTransferTest, Retry_GoesOnWithIt)
{
    ExpectTransferUnderALock();
    ExpectDatabaseInUse(Answer::Retry, [&] { Other.reset(); });

    Press();

    EXPECT_EQ(Stored("Forename", "A002"), u"John"_s);
    EXPECT_EQ(PictureOf(u"A002"), Red);
}

TEST_F(LockedTransferTest, WithTextsPending_Cancel_AsksNothingFurther_AndTheTextsWait)
{
    P.Form3->Text2.Text = u"Brown"_s;
    const Tree before = Home.Snapshot();
    Other = LockDatabase(u'A');
    ExpectDatabaseInUse(Answer::Cancel);

    Press();

    Other.reset();
    EXPECT_EQ(ChangesSince(before), QStringList());
    EXPECT_EQ(P.Form3->Text2.Text.value(), u"Brown"_s);
    Records(P.Form3).MoveNext();
    EXPECT_EQ(Stored("Surname"), u"Brown"_s);
}

// The scan has gone on under the question, so that the record must be read anew.
TEST_F(RecordTransferTest, RecordThatIsGoneByThen_IsNotTransferred_AndTold)
{
    ExpectConfirmation(Answer::Ok);
    Prompts.ExpectInput(u"Data Record Destination.", u"Enter Destination Data Ref Number.", u"A002", [&] {
        Records(P.Form3).MoveNext();
        Records(P.Form3).Rest();
        Execute("DELETE FROM Tree99 WHERE File = 'A001'");
    });
    Prompts.Expect(u"Record removed", u"A record has been removed by another program.\nNothing was stored.",
                   Buttons::Information);

    Press();

    EXPECT_EQ(Stored("Forename", "A002"), u"Mary"_s);
    EXPECT_EQ(PictureOf(u"A002"), Green);
}

TEST_F(RecordTransferTest, DatabaseTurnedReadOnly_WhatIsOpenIsStillWritten)
{
    const auto others = Rows("File <> 'A002'");
    Home.MakeReadOnly(u"LfgDat_A/LfgDat_A.mdb");

    TransferTo(u"A002");

    EXPECT_EQ(Stored("Forename", "A002"), u"John"_s);
    EXPECT_EQ(Rows("File <> 'A002'"), others);
}

TEST_F(RecordTransferTest, BranchDirectoryVanished_IsToldTwice_AndNothingIsTransferred)
{
    QDir(Home.Path(u"LfgDat_A")).removeRecursively();
    ExpectTransferTo(u"A002");
    ExpectCopyProblem();
    ExpectLoadProblem();

    Press();

    EXPECT_FALSE(Home.Exists(u"LfgDat_A"));
}

} // namespace
} // namespace lineforge
