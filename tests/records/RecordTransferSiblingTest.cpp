#include "records/RecordTransferTest.h"

namespace lineforge
{
namespace
{

// The current record of branch A goes over one of branch B.
class SiblingTransferTest : public RecordTransferTest
{
protected:
    // Each part that a transfer may leave in either branch.
    void ExpectStillInBranchA()
    {
        EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
        EXPECT_EQ(P.Form3->Data1.DatabaseName, Home.Path(u"LfgDat_A/LfgDat_A.mdb"));
        EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::File].Text(), u"A001"_s);
        EXPECT_EQ(P.Map.Owner, P.Branch.WorkDir);
    }
};

TEST_F(SiblingTransferTest, EveryField_ComesFromTheSource_AndNoOtherRecordChanges)
{
    GivenFullSource();
    Execute("UPDATE Tree99 SET SpouseRec = 'B077' WHERE File = 'B001'", u'B');
    const auto own = Rows("1");
    const auto others = Rows("File <> 'B001'", u'B');

    TransferTo(u"B001");

    for (const QString& field : RecordFields()) {
        if (field != u"File" && field != u"SpouseRec") {
            EXPECT_EQ(StoredIn(u'B', qUtf8Printable(field), "B001"), QString(u"its " + field)) << qUtf8Printable(field);
        }
    }
    EXPECT_EQ(StoredIn(u'B', "SpouseRec", "B001"), u"B077"_s);
    EXPECT_EQ(Rows("1"), own);
    EXPECT_EQ(Rows("File <> 'B001'", u'B'), others);
}

TEST_F(SiblingTransferTest, TheProgramStaysThere_ButKeepsTheBranchsName)
{
    const QString name = P.Branch.sBranchName;
    const QString caption = P.Form1->Caption;

    TransferTo(u"B001");

    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_B"));
    EXPECT_EQ(P.Branch.sDbaseName, Home.Path(u"LfgDat_B/LfgDat_B.mdb"));
    EXPECT_EQ(P.Form3->Data1.DatabaseName, Home.Path(u"LfgDat_B/LfgDat_B.mdb"));
    EXPECT_EQ(P.Branch.UsingAlternate, 0);
    EXPECT_EQ(P.Branch.sBranchName, name);
    EXPECT_EQ(P.Form1->Caption.value(), caption);
    EXPECT_EQ(Current(), u"B001"_s);
    EXPECT_EQ(ShownRef(), u"Ref  B001"_s);
}

TEST_F(SiblingTransferTest, TheWorkGoesOnThere)
{
    TransferTo(u"B001");
    P.Form3->Text2.Text = u"Brown"_s;
    P.Form3->Command2.Click();
    Records(P.Form3).MoveNext();

    EXPECT_EQ(StoredIn(u'B', "Surname", "B001"), u"Brown"_s);
    EXPECT_EQ(Stored("Surname"), u"Smith"_s);
    EXPECT_EQ(Current(), u"B002"_s);
}

TEST_F(SiblingTransferTest, Picture_IsTheSourcesByteForByte)
{
    Records(P.Form3).MoveNext();

    TransferTo(u"B001");

    EXPECT_EQ(PictureOf(u"B001", u'B'), Green);
    EXPECT_EQ(PictureOf(u"A002"), Green);
    EXPECT_EQ(PictureOf(u"B002", u'B'), Blue);
    EXPECT_EQ(ColourOf(P.Form1->Image1), u"green"_s);
}

TEST_F(SiblingTransferTest, OnlyDatabaseAndPictureOfTheDestination_Change)
{
    Records(P.Form3).MoveNext();
    const Tree before = Home.Snapshot();

    TransferTo(u"B001");

    EXPECT_EQ(ChangesSince(before),
              QStringList({u"changed: LfgDat_B/B001Sub.jpg"_s, u"changed: LfgDat_B/LfgDat_B.mdb"_s}));
}

TEST_F(SiblingTransferTest, MapIsTheDestinations_WithTheNewNameInItsBox)
{
    Choose(u"Jones");
    const QImage expected = MapWith(1200, u"John"_s, u"Mary"_s);
    const MapState lists = P.Map;
    Choose(u"Smiths");
    GivenRecordForm();
    Records(P.Form3).MoveNext();

    TransferTo(u"B001");

    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::File].Text(), u"B001"_s);
    EXPECT_EQ(P.Map.BoxArr[1][BoxColumn::File].Text(), u"B002"_s);
    EXPECT_NE(P.Map.BoxArr[2][BoxColumn::File].Text(), u"A003"_s);
    EXPECT_EQ(P.Map.sBoxesText, lists.sBoxesText);
    EXPECT_EQ(P.Map.sLinesText, lists.sLinesText);
    EXPECT_EQ(P.Map.sTextsText, lists.sTextsText);
    EXPECT_TRUE(Map() == expected);
}

TEST_F(SiblingTransferTest, MarkerStandsOnTheDestinationsBox)
{
    TransferTo(u"B002");

    EXPECT_EQ(MarkerLeft(), MarkerOn(2000));
    EXPECT_TRUE(P.Form1->Shape1.Visible);
}

TEST_F(SiblingTransferTest, PointerComesBackToDefault)
{
    P.Screen.Pointer = MousePointer::Hourglass;

    TransferTo(u"B001");

    EXPECT_EQ(P.Screen.Pointer.value(), MousePointer::Default);
}

TEST_F(SiblingTransferTest, ExitAfterwards_SavesTheDestinationsMapThere_AndTheOwnStays)
{
    const QByteArray own = MapOf(u'A');
    TransferTo(u"B001");
    MoveFirstBoxTo(1300);

    Click(P.Form3->mnuExit.Click);

    EXPECT_EQ(ExitCode(), 0);
    EXPECT_EQ(MapOf(u'A'), own);
    EXPECT_TRUE(MapOf(u'B').contains("1300,600,255,B001,"));
}

TEST_F(SiblingTransferTest, LetterInSmall_FindsTheBranch)
{
    Records(P.Form3).MoveNext();

    TransferTo(u"b001");

    EXPECT_EQ(StoredIn(u'B', "Forename", "B001"), u"Mary"_s);
    EXPECT_EQ(PictureOf(u"B001", u'B'), Green);
    EXPECT_EQ(QDir(Home.Path()).entryList({u"LfgDat_?"_s}, QDir::Dirs),
              QStringList({u"LfgDat_A"_s, u"LfgDat_B"_s, u"LfgDat_C"_s}));
}

TEST_F(SiblingTransferTest, GalleryFiles_StayWithTheSource)
{
    Home.WriteFile(u"LfgDat_A/LfgGal_A/A001_01.jpg", "picture");

    TransferTo(u"B001");

    EXPECT_TRUE(Home.Exists(u"LfgDat_A/LfgGal_A/A001_01.jpg"));
    EXPECT_FALSE(Home.Exists(u"LfgDat_B/LfgGal_B"));
}

TEST_F(SiblingTransferTest, BranchWithoutRecords_EndsThereWithoutAWord)
{
    const Tree before = Home.Snapshot();

    TransferTo(u"C001");

    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_C"));
    EXPECT_TRUE(Records(P.Form3).IsEmpty());
    EXPECT_EQ(ChangesSince(before), QStringList());
}

TEST_F(SiblingTransferTest, NoSuchRecordThere_IsTold_AndThePictureStaysCopied)
{
    const auto before = Rows("1", u'B');
    ExpectTransferTo(u"B009");
    ExpectNoMatch(u"A001");

    Press();

    EXPECT_EQ(Rows("1", u'B'), before);
    EXPECT_EQ(Home.ReadFile(u"LfgDat_B/B009sub.jpg"), Red);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_B"));
    EXPECT_EQ(ColourOf(P.Form3->Image1), u"none"_s);
}

TEST_F(SiblingTransferTest, NoSuchBranch_IsToldTwice_AndTheOwnIsAsItWas)
{
    Records(P.Form3).MoveNext();
    const Tree before = Home.Snapshot();
    const QImage map = Map();
    ExpectTransferTo(u"Z001");
    ExpectCopyProblem();
    ExpectLoadProblem();

    Press();

    ExpectStillInBranchA();
    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_TRUE(Map() == map);
    EXPECT_EQ(ChangesSince(before), QStringList());
}

TEST_F(SiblingTransferTest, NoSuchBranch_TheWorkGoesOnInTheOwn)
{
    ExpectTransferTo(u"?001");
    ExpectCopyProblem();
    ExpectLoadProblem();
    Press();

    P.Form3->Text3.Text = u"Anne"_s;
    P.Form3->Command2.Click();
    Records(P.Form3).MoveNext();

    EXPECT_EQ(Stored("Forename"), u"Anne"_s);
    EXPECT_EQ(P.Map.BoxArr[0][BoxColumn::Forename].Text(), u"Anne"_s);
}

TEST_F(SiblingTransferTest, BranchWithoutDatabase_TheOwnRecordsAreSearched)
{
    QFile::remove(Home.Path(u"LfgDat_B/LfgDat_B.mdb"));
    Records(P.Form3).MoveNext();
    const auto own = Rows("1");
    ExpectTransferTo(u"B001");
    ExpectNoMatch(u"B001");

    Press();

    EXPECT_EQ(Rows("1"), own);
    EXPECT_EQ(PictureOf(u"B001", u'B'), Red);
    EXPECT_FALSE(Home.Exists(u"LfgDat_B/LfgDat_B.mdb"));
    ExpectStillInBranchA();
}

TEST_F(SiblingTransferTest, ReadOnlyDatabaseThere_StaysWhole_AndTheOwnIsAsItWas)
{
    Records(P.Form3).MoveNext();
    const auto own = Rows("1");
    const auto there = Rows("1", u'B');
    Home.MakeReadOnly(u"LfgDat_B/LfgDat_B.mdb");
    ExpectTransferTo(u"B001");
    ExpectNoMatch(u"B001");

    Press();

    EXPECT_EQ(Rows("1"), own);
    EXPECT_EQ(Rows("1", u'B'), there);
    EXPECT_EQ(PictureOf(u"B001", u'B'), Red);
    // The search has left nobody current.
    EXPECT_EQ(ColourOf(P.Form1->Image1), u"none"_s);
    ExpectStillInBranchA();
}

TEST_F(SiblingTransferTest, ReadOnlyDatabaseThere_APictureThatIsMissingThere_IsCopiedAllTheSame)
{
    Home.MakeReadOnly(u"LfgDat_B/LfgDat_B.mdb");
    ExpectTransferTo(u"B009");
    ExpectNoMatch(u"B009");

    Press();

    EXPECT_EQ(Home.ReadFile(u"LfgDat_B/B009sub.jpg"), Red);
    ExpectStillInBranchA();
}

TEST_F(SiblingTransferTest, LockedThere_Cancel_NothingThereIsTouched_AndTheOwnIsAsItWas)
{
    Records(P.Form3).MoveNext();
    const Tree before = Home.Snapshot();
    auto other = LockDatabase(u'B');
    ExpectTransferTo(u"B001");
    ExpectDatabaseInUse(Answer::Cancel);

    Press();

    other.reset();
    EXPECT_EQ(ChangesSince(before), QStringList());
    EXPECT_EQ(Current(), u"A002"_s);
    ExpectStillInBranchA();
}

TEST_F(SiblingTransferTest, LockedThere_Retry_TransfersTheRecord)
{
    Records(P.Form3).MoveNext();
    auto other = LockDatabase(u'B');
    ExpectTransferTo(u"B001");
    ExpectDatabaseInUse(Answer::Retry, [&] { other.reset(); });

    Press();

    EXPECT_EQ(StoredIn(u'B', "Forename", "B001"), u"Mary"_s);
    EXPECT_EQ(PictureOf(u"B001", u'B'), Green);
}

TEST_F(SiblingTransferTest, ReadOnlyPictureThere_StaysWhole_AndTheFieldsAreTransferred)
{
    Records(P.Form3).MoveNext();
    Home.MakeReadOnly(u"LfgDat_B/B001Sub.jpg");
    ExpectTransferTo(u"B001");
    ExpectCopyProblem();

    Press();

    EXPECT_EQ(PictureOf(u"B001", u'B'), Red);
    EXPECT_EQ(StoredIn(u'B', "Forename", "B001"), u"Mary"_s);
}

TEST_F(SiblingTransferTest, RefusedByTheDatabaseThere_EndsTheProgram_WithTheRecordsWhole)
{
    Records(P.Form3).MoveNext();
    const auto own = Rows("1");
    const auto there = Rows("1", u'B');
    Execute("CREATE TRIGGER Refusal BEFORE UPDATE ON Tree99 BEGIN SELECT RAISE(ABORT, 'refused'); END", u'B');
    ExpectTransferTo(u"B001");
    ExpectFatalBox(u"Run-time error '57':\n\nDevice I/O error",
                   u"The disk failed at this:\n"_s + Home.Path(u"LfgDat_B/LfgDat_B.mdb") + u"\nRecord B001");

    Click(P.Form3->MnuRecTransfer.Click);

    EXPECT_EQ(ExitCode(), 1);
    EXPECT_EQ(Rows("1"), own);
    EXPECT_EQ(Rows("1", u'B'), there);
}

TEST_F(SiblingTransferTest, NoMapThere_IsTold_AndTheRecordIsTransferred)
{
    Records(P.Form3).MoveNext();
    QFile::remove(Home.Path(u"LfgDat_B/LfgDat_B.cfg"));
    ExpectTransferTo(u"B001");
    Prompts.Expect(u"Graphic Config File not Found.", u"You need to create a new Ancestral Map for this Database.",
                   Buttons::Information);

    Press();

    EXPECT_EQ(StoredIn(u'B', "Forename", "B001"), u"Mary"_s);
    EXPECT_TRUE(IsBlank(P.Form1->Picture1));
    EXPECT_FALSE(P.Form1->Shape1.Visible);
}

} // namespace
} // namespace lineforge
