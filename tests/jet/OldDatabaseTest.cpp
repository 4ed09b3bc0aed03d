#include "jet/OldBranchTest.h"
#include "program/branch/SiblingBranch.h"
#include "support/Refusal.h"

#include <sys/stat.h>

namespace lineforge
{
namespace
{

// What the program does with the databases of older installations, real ones of which stand here.
class OldDatabaseTest : public OldBranchTest
{
};

class ReadableDatabaseTest : public OldBranchTest, public testing::WithParamInterface<std::string>
{
};

TEST_P(ReadableDatabaseTest, IsConvertedWhenItIsOpened_AndOnlyOnce)
{
    const QString path = GivenOldBranch(u'A', QString::fromStdString(GetParam()) + u".mdb");

    PointAtDatabase(P, path);

    ExpectConverted(u'A', GetParam());
    const Tree converted = Home.Snapshot();
    PointAtDatabase(P, path);
    EXPECT_EQ(Differences(converted, Home.Snapshot()), QStringList());
}

INSTANTIATE_TEST_SUITE_P(Fixtures, ReadableDatabaseTest, testing::ValuesIn(ReadableFixtures()), TestNameOf);

TEST_F(OldDatabaseTest, Open_ShowsTheFirstRecord)
{
    GivenOldBranch(u'A', u"jet4/royals12.mdb"_s);
    StartProgram(P);

    Choose(u"Smiths");

    ExpectConverted(u'A', "jet4/royals12");
    EXPECT_EQ(P.Form1->Label9.Caption.value(), ExpectedRecords("jet4/royals12")[0][2]);
    EXPECT_EQ(P.Form1->Caption.value(), u"Lineforge Smiths Tree Branch."_s);
}

TEST_F(OldDatabaseTest, SiblingOfAForeignBox_IsConverted)
{
    GivenOldBranch(u'A', u"jet3/royals12.mdb"_s);
    GivenOldBranch(u'B', u"jet3/moved.mdb"_s);
    P.Branch.WorkDir = Home.Path(u"LfgDat_A");
    OpenWorkDatabase(P);

    SwitchToSibling(P, u"B");

    ExpectConverted(u'B', "jet3/moved");
    EXPECT_EQ(Records(P.Form3).Text(u"File"), ExpectedRecords("jet3/moved")[0][0]);
}

TEST_F(OldDatabaseTest, SiblingThatCantBeTaken_IsTold_AndIsNotGoneTo)
{
    GivenOldBranch(u'A', u"jet3/royals12.mdb"_s);
    GivenOldBranch(u'B', u"jet4/broken/tdef_ff.mdb"_s);
    P.Branch.WorkDir = Home.Path(u"LfgDat_A");
    OpenWorkDatabase(P);
    const Tree before = Home.Snapshot();
    ExpectCannotOpenBox();

    EXPECT_FALSE(RequireSibling(P, u"B"));

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
}

TEST_F(OldDatabaseTest, SiblingOfANewerInstallation_IsTold)
{
    GivenOldBranch(u'A', u"jet3/royals12.mdb"_s);
    GivenOldBranch(u'B', u"jet3/royals12.mdb"_s);
    Home.WriteFile(u"LfgDat_B/LfgDat_B.mdb", QByteArray("\0\1\0\0Standard ACE DB\0\2", 21) + QByteArray(4000, '\0'));
    P.Branch.WorkDir = Home.Path(u"LfgDat_A");
    OpenWorkDatabase(P);
    ExpectCannotOpenBox();

    EXPECT_FALSE(RequireSibling(P, u"B"));
}

TEST_F(OldDatabaseTest, WhatIsNoFile_IsRefusedLikeOneThatIsMissing)
{
    Home.MakeDirectory(u"LfgDat_A");
    ASSERT_EQ(mkfifo(Home.Path(u"LfgDat_A/LfgDat_A.mdb").toLocal8Bit().constData(), 0600), 0);

    EXPECT_EQ(RefusalOf([this] { PointAtDatabase(P, Home.Path(u"LfgDat_A/LfgDat_A.mdb")); }),
              ErrorNumber::DatabaseNotFound);
}

TEST_F(OldDatabaseTest, FileBelowTheHomeButInNoBranch_StaysWhatItIs)
{
    const QString path = Home.WriteFile(u"examples/LfgDat_A/LfgDat_A.mdb", FixtureBytes(u"jet4/royals12.mdb"_s));
    const Tree before = Home.Snapshot();

    EXPECT_EQ(RefusalOf([&] { PointAtDatabase(P, path); }), ErrorNumber::NotADatabase);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(OldDatabaseTest, ImportOfABranchThatCantBeWritten_IsConvertedInItsNewPlace)
{
    GivenRegistry();
    Home.WriteFile(u"stick/LfgDat_C/LfgDat_C.mdb", FixtureBytes(u"jet4/royals12.mdb"_s));
    Home.MakeReadOnly(u"stick/LfgDat_C/LfgDat_C.mdb");
    StartProgram(P);
    Prompts.ExpectOpenFile(u"Select Import Database File", u"DataBase *.mdb|*.mdb|All Files|*.*|",
                           Home.Path(u"stick/LfgDat_C/LfgDat_C.mdb"));
    Prompts.ExpectInput(u"Imported Tree Branch alternate name",
                        u"Enter alternate user friendly name for this imported Tree Branch Map.", u"Royals");
    const QString question =
        u"Imported 'Royals' Database and files will be placed in\ndirectory "_s + Home.Path(u"LfgDat_C");
    Prompts.Expect(u"New Directory and Files", question, Buttons::InformationOkCancel);
    Prompts.Expect(u"Graphic Config File not Found.", u"You need to create a new Ancestral Map for this Database.",
                   Buttons::Information);
    Prompts.Expect(u"Image not Present", u"Searched Image File for 1Sub.Jpg", Buttons::Information);

    P.Form1->mnuImpSub.Click();

    ExpectConverted(u'C', "jet4/royals12");
    EXPECT_EQ(Home.ReadFile(u"stick/LfgDat_C/LfgDat_C.mdb"), FixtureBytes(u"jet4/royals12.mdb"_s));
}

TEST_F(OldDatabaseTest, CompareBranch_IsConverted)
{
    GivenOldBranch(u'A', u"jet4/royals12.mdb"_s);
    GivenOldBranch(u'B', u"jet4/deleted.mdb"_s);

    PointAtDatabase(P, P.Form6->Data1, Home.Path(u"LfgDat_B/LfgDat_B.mdb"));

    ExpectConverted(u'B', "jet4/deleted");
    EXPECT_EQ(P.Form6->Data1.Records().Text(u"File"), ExpectedRecords("jet4/deleted")[0][0]);
}

// By the commands of the windows.
class OldCompareTest : public OldBranchTest
{
protected:
    void Compare(const QString& fixture)
    {
        GivenOldBranch(u'A', u"jet4/royals12.mdb"_s);
        StartProgram(P);
        Choose(u"Smiths");
        GivenOldBranch(u'B', fixture);
        Click(P.Form1->mnuComp.Click);
        before_ = Home.Snapshot();
        Click(P.Form6->mnuOpen.Click);
        P.Form8->List1.SetText(u"Jones"_s);
        Click(P.Form8->Command1.Click);
    }
    void ExpectNotCompared()
    {
        EXPECT_EQ(ExitCode(), std::nullopt);
        EXPECT_EQ(P.Form6->Label7.Caption.value(), QString());
        EXPECT_EQ(Differences(before_, Home.Snapshot()), QStringList());
    }

private:
    Tree before_;
};

TEST_F(OldCompareTest, BranchThatCantBeTaken_IsTold_AndNotCompared)
{
    ExpectCannotOpenBox();

    Compare(u"jet4/broken/tdef_ff.mdb"_s);

    ExpectNotCompared();
}

TEST_F(OldCompareTest, BranchThatTheUserDoesntWantWithItsLosses_IsNotCompared)
{
    ExpectLossBox(u'B', u"406 of the 999 records can be read, and 0 of their fields can't.", Answer::No);
    ExpectCannotOpenBox();

    Compare(u"jet4/broken/truncated.mdb"_s);

    ExpectNotCompared();
}

TEST_F(OldCompareTest, OldBranch_IsConverted_AndCompared)
{
    Compare(u"jet4/deleted.mdb"_s);

    ExpectConverted(u'B', "jet4/deleted");
    EXPECT_EQ(P.Form6->Label7.Caption.value(), u"Jones"_s);
}

TEST_F(OldDatabaseTest, ImportOfABranchThatCantBeTaken_IsTold_AndItsCopyStaysWhatItIs)
{
    GivenRegistry();
    const QByteArray bytes = FixtureBytes(u"jet4/broken/tdef_ff.mdb"_s);
    const QString source = Home.WriteFile(u"stick/LfgDat_C/LfgDat_C.mdb", bytes);
    StartProgram(P);
    Prompts.ExpectOpenFile(u"Select Import Database File", u"DataBase *.mdb|*.mdb|All Files|*.*|", source);
    Prompts.ExpectInput(u"Imported Tree Branch alternate name",
                        u"Enter alternate user friendly name for this imported Tree Branch Map.", u"Royals");
    const QString question =
        u"Imported 'Royals' Database and files will be placed in\ndirectory "_s + Home.Path(u"LfgDat_C");
    Prompts.Expect(u"New Directory and Files", question, Buttons::InformationOkCancel);
    ExpectCannotOpenBox();

    Click(P.Form1->mnuImpSub.Click);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(Home.ReadFile(u"LfgDat_C/LfgDat_C.mdb"), bytes);
    EXPECT_FALSE(Home.Exists(u"LfgDat_C/LfgDat_C.jet"));
    EXPECT_EQ(Home.ReadFile(u"stick/LfgDat_C/LfgDat_C.mdb"), bytes);
}

TEST_F(OldDatabaseTest, BookmarksOfADamagedSibling_AskOnce)
{
    GivenOldBranch(u'A', u"jet4/royals12.mdb"_s);
    StartProgram(P);
    Choose(u"Smiths");
    GivenOldBranch(u'B', u"jet4/broken/truncated.mdb"_s);
    const QString own = ExpectedRecords("jet4/royals12")[1][0].value();
    for (int entry = 0; const QString& file : {u"B001"_s, own, u"B002"_s})
        P.Bookmarks.BookmarkList[entry++] = file;
    const QString text =
        u"The Bookmark list will be copied Text File located at\n"_s + Home.Path(u"LfgDat_A/LfgDat_A.txt");
    Prompts.Expect(u"Make a Text File.", text, Buttons::Information);
    ExpectLossBox(u'B', u"406 of the 999 records can be read, and 0 of their fields can't.", Answer::No);

    Click(P.Form1->mnuTxtFileList.Click);

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_TRUE(Home.ReadFile(u"LfgDat_A/LfgDat_A.txt").contains(QByteArray("ANCESTRAL RECORD " + own.toUtf8())));
}

TEST_F(OldDatabaseTest, TemplateThatCantBeTaken_EndsTheProgram_WithTheRegistryAsItWas)
{
    const QByteArray registry = Registry();
    Home.WriteFile(u"LfgEmpt.~Md", FixtureBytes(u"jet4/broken/tdef_ff.mdb"_s));
    StartProgram(P);
    AnswerName(u"Browns");
    Confirm(u"Browns", u"LfgDat_A");
    ExpectFatalBox(u"Run-time error '3343':\n\nUnrecognized database format.",
                   u"This can't be read as a database of records:\n"_s + Home.Path(u"LfgDat_A/LfgDat_A.mdb"));

    Click(P.Form1->New.Click);

    EXPECT_EQ(ExitCode(), 1);
    EXPECT_EQ(Registry(), registry);
}

TEST_F(OldDatabaseTest, ImportedBranch_IsConverted)
{
    const QString path = Home.WriteFile(u"Import_A/LfgDat_A.mdb", FixtureBytes(u"jet3/cp1250.mdb"_s));

    PointAtDatabase(P, path);

    EXPECT_EQ(StoredRecords(path), ExpectedRecords("jet3/cp1250"));
}

TEST_F(OldDatabaseTest, TemplateOfAnOlderInstallation_MakesANewBranchAllTheSame)
{
    const QString path = GivenOldBranch(u'A', u"jet3/empty.mdb"_s);

    PointAtDatabase(P, path);

    EXPECT_TRUE(Records(P.Form3).IsEmpty());
    Records(P.Form3).AddNew();
    Records(P.Form3).Put(u"File", u"A001"_s);
    Records(P.Form3).Update();
    EXPECT_EQ(StoredRecords(path).size(), 1U);
}

TEST_F(OldDatabaseTest, NameInAnotherCase_KeepsItsSpelling)
{
    const QString path = Home.WriteFile(u"LfgDat_A/LFGDAT_A.MDB", FixtureBytes(u"jet3/royals12.mdb"_s));
    P.Branch.WorkDir = Home.Path(u"LfgDat_A");

    OpenWorkDatabase(P);

    EXPECT_EQ(StoredRecords(path), ExpectedRecords("jet3/royals12"));
    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LFGDAT_A.jet"), FixtureBytes(u"jet3/royals12.mdb"_s));
}

TEST_F(OldDatabaseTest, ReadOnlyFile_IsRefusedAsEver)
{
    const QString path = GivenOldBranch(u'A', u"jet4/royals12.mdb"_s);
    Home.MakeReadOnly(u"LfgDat_A/LfgDat_A.mdb");
    const Tree before = Home.Snapshot();

    EXPECT_EQ(RefusalOf([&] { PointAtDatabase(P, path); }), ErrorNumber::DatabaseReadOnly);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    Home.MakeWritable(u"LfgDat_A/LfgDat_A.mdb");
}

TEST_F(OldDatabaseTest, FileOutsideTheHomeDirectory_IsNotConverted)
{
    TemporaryHome elsewhere;
    const QString path = elsewhere.WriteFile(u"LfgDat_A/LfgDat_A.mdb", FixtureBytes(u"jet4/royals12.mdb"_s));
    const Tree before = elsewhere.Snapshot();

    EXPECT_EQ(RefusalOf([&] { PointAtDatabase(P, path); }), ErrorNumber::NotADatabase);

    EXPECT_EQ(Differences(before, elsewhere.Snapshot()), QStringList());
}

TEST_F(OldDatabaseTest, LockFileBeside_IsToldOnceBeforeTheConversion)
{
    const QString path = GivenOldBranch(u'A', u"jet4/royals12.mdb"_s);
    Home.WriteFile(u"LfgDat_A/LFGDAT_A.LDB", "a computer");
    Prompts.Expect(u"Old Database may be in use",
                   u"LFGDAT_A.LDB shows that another program may have this database open.\n"
                   u"What that program writes from now on is not taken over.",
                   Buttons::Information, Answer::Ok,
                   [&] { EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgDat_A.mdb"), FixtureBytes(u"jet4/royals12.mdb"_s)); });

    PointAtDatabase(P, path);
    PointAtDatabase(P, path);

    ExpectConverted(u'A', "jet4/royals12");
}

TEST_F(OldDatabaseTest, FileThatChangesWhileABoxIsOpen_IsNotConverted)
{
    const QString path = GivenOldBranch(u'A', u"jet4/royals12.mdb"_s);
    Home.WriteFile(u"LfgDat_A/LfgDat_A.ldb", "a computer");
    Prompts.Expect(u"Old Database may be in use",
                   u"LfgDat_A.ldb shows that another program may have this database open.\n"
                   u"What that program writes from now on is not taken over.",
                   Buttons::Information, Answer::Ok,
                   [&] { Home.WriteFile(u"LfgDat_A/LfgDat_A.mdb", FixtureBytes(u"jet4/rows999.mdb"_s)); });
    Prompts.Expect(u"Database in use", u"The Database is in use by another program.", Buttons::InformationRetryCancel,
                   Answer::Cancel);

    EXPECT_EQ(RefusalOf([&] { PointAtDatabase(P, path); }), ErrorNumber::DatabaseBusy);

    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgDat_A.mdb"), FixtureBytes(u"jet4/rows999.mdb"_s));
    EXPECT_FALSE(Home.Exists(u"LfgDat_A/LfgDat_A.jet"));
}

// What can't be taken: one box, and everything as it was.
class RefusedDatabaseTest : public OldBranchTest, public testing::WithParamInterface<std::string>
{
};

TEST_P(RefusedDatabaseTest, ChangesNothing)
{
    GivenOldBranch(u'A', QString::fromStdString(GetParam()));
    // Somebody else's lock is no concern of a file that stays as it is.
    Home.WriteFile(u"LfgDat_A/LfgDat_A.ldb", "a computer");
    StartProgram(P);
    const Tree before = Home.Snapshot();
    ExpectCannotOpenBox();

    Choose(u"Smiths");

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

INSTANTIATE_TEST_SUITE_P(Files, RefusedDatabaseTest,
                         testing::Values("jet3/broken/truncated_header.mdb", "jet4/broken/truncated_header.mdb",
                                         "jet3/broken/catalog_zeroed.mdb", "jet4/broken/catalog_zeroed.mdb",
                                         "jet3/broken/tdef_ff.mdb", "jet4/broken/tdef_ff.mdb", "jet3/no_tree99.mdb",
                                         "jet4/no_tree99.mdb", "not_jet/zero_length.mdb", "not_jet/not_jet.mdb"),
                         TestNameOf);

TEST_F(OldDatabaseTest, LaterFormat_IsRefused)
{
    QByteArray bytes = FixtureBytes(u"jet4/royals12.mdb"_s);
    bytes[0x14] = 2;
    GivenOldBranch(u'A', u"jet4/royals12.mdb"_s);
    Home.WriteFile(u"LfgDat_A/LfgDat_A.mdb", bytes);
    StartProgram(P);
    const Tree before = Home.Snapshot();
    ExpectCannotOpenBox();

    Choose(u"Smiths");

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

struct DamagedDatabase {
    QStringView Fixture;
    QStringView Question;
    std::size_t Rows;
};

void PrintTo(const DamagedDatabase& database, std::ostream* out)
{
    PrintTo(database.Fixture, out);
}

class DamagedDatabaseTest : public OldBranchTest, public testing::WithParamInterface<DamagedDatabase>
{
};

TEST_P(DamagedDatabaseTest, Yes_TakesWhatCanBeRead)
{
    const QString path = GivenOldBranch(u'A', GetParam().Fixture.toString());
    const QByteArray bytes = FixtureBytes(GetParam().Fixture.toString());
    ExpectLossBox(u'A', GetParam().Question, Answer::Yes);

    PointAtDatabase(P, path);

    EXPECT_EQ(StoredRecords(path).size(), GetParam().Rows);
    EXPECT_EQ(Home.ReadFile(u"LfgDat_A/LfgDat_A.jet"), bytes);
}

TEST_P(DamagedDatabaseTest, No_ChangesNothing)
{
    GivenOldBranch(u'A', GetParam().Fixture.toString());
    StartProgram(P);
    const Tree before = Home.Snapshot();
    ExpectLossBox(u'A', GetParam().Question, Answer::No);
    ExpectCannotOpenBox();

    Choose(u"Smiths");

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

INSTANTIATE_TEST_SUITE_P(
    Fixtures, DamagedDatabaseTest,
    testing::Values(DamagedDatabase{u"jet3/broken/truncated.mdb",
                                    u"356 of the 999 records can be read, and 0 of their fields can't.", 356},
                    DamagedDatabase{u"jet4/broken/truncated.mdb",
                                    u"406 of the 999 records can be read, and 0 of their fields can't.", 406},
                    DamagedDatabase{u"jet4/broken/row_table_scrambled.mdb",
                                    u"974 of the 999 records can be read, and 0 of their fields can't.", 974},
                    DamagedDatabase{u"jet3/broken/memo_loop.mdb",
                                    u"12 of the 12 records can be read, and 1 of their fields can't.", 12}));

TEST_F(OldDatabaseTest, EndlessDescription_IsNoDamage)
{
    const QString path = GivenOldBranch(u'A', u"jet4/broken/property_loop.mdb"_s);

    PointAtDatabase(P, path);

    EXPECT_EQ(StoredRecords(path), ExpectedRecords("jet4/property"));
}

// Boxes of a map that show people of an old branch.
class OldCaptionsTest : public OldBranchTest
{
protected:
    void GivenMapWithPeopleOfBranchB()
    {
        BranchOf(u'A').Boxes(u"1200,600,255,B001,,2000,600,255,B002,,2800,600,255,A001,John,").Build();
        StartProgram(P);
    }

    void ExpectInUseWhileTheScannerGoesOn()
    {
        Prompts.Expect(u"Old Database may be in use",
                       u"LfgDat_B.ldb shows that another program may have this database open.\n"
                       u"What that program writes from now on is not taken over.",
                       Buttons::Information, Answer::Ok, [this] { Click(P.Form3->Timer1.Tick); });
    }
};

TEST_F(OldCaptionsTest, NeighbourOfAnOlderInstallation_IsConverted)
{
    GivenOldBranch(u'B', u"jet3/royals12.mdb"_s);
    GivenMapWithPeopleOfBranchB();

    Choose(u"Smiths");

    ExpectConverted(u'B', "jet3/royals12");
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
}

// The box that stands between the number and the map is no reason for another number.
TEST_F(OldCaptionsTest, ScannerThatGoesOnBehindTheBox_DoesntChangeTheNumberThatIsMapped)
{
    GivenOldBranch(u'B', u"jet3/royals12.mdb"_s);
    Home.WriteFile(u"LfgDat_B/LfgDat_B.ldb", "a computer");
    BranchOf(u'A').Boxes(u"1200,600,255,A001,John,2000,600,255,0,,").Build();
    StartProgram(P);
    Choose(u"Smiths");
    P.Form3->Picture4.Click();
    P.Form1->mnuMapSubject.Click();
    P.Form7->Option3.Click();
    P.Form7->Text1.Text = u"B007"_s;
    P.Form7->Command1.Click();
    P.Mouse.DownX = 2100;
    P.Mouse.DownY = 700;
    ExpectInUseWhileTheScannerGoesOn();
    Prompts.Expect(u"Record not Present", u"Record not Found: B007", Buttons::Information);

    Click(P.Form1->Picture1.DblClick);

    EXPECT_TRUE(MapOf(u'A').contains("2000,600,255,B007,,"));
}

TEST_F(OldCaptionsTest, ScannerThatGoesOnBehindTheBox_DoesntChangeTheRecordThatIsShown)
{
    BranchOf(u'A').Boxes(u"1200,600,255,A001,John,2000,600,255,B007,,").Build();
    StartProgram(P);
    Choose(u"Smiths");
    GivenOldBranch(u'B', u"jet4/royals12.mdb"_s);
    Home.WriteFile(u"LfgDat_B/LfgDat_B.ldb", "a computer");
    P.Form3->Picture2.Click();
    P.Mouse.DownX = 2100;
    P.Mouse.DownY = 700;
    ExpectInUseWhileTheScannerGoesOn();
    Prompts.Expect(u"Database Searched", u"No File data found", Buttons::Information);

    Click(P.Form1->Picture1.DblClick);

    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_B"));
}

TEST_F(OldCaptionsTest, SpoiltNeighbour_CostsNoBox)
{
    GivenOldBranch(u'B', u"jet4/broken/tdef_ff.mdb"_s);
    GivenMapWithPeopleOfBranchB();
    const QByteArray before = Home.ReadFile(u"LfgDat_B/LfgDat_B.mdb");

    Choose(u"Smiths");

    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"John"_s);
    EXPECT_EQ(Home.ReadFile(u"LfgDat_B/LfgDat_B.mdb"), before);
}

TEST_F(OldCaptionsTest, NeighbourWithLosses_IsAskedForOnceInARun_AndAgainWhenItIsOpened)
{
    GivenOldBranch(u'B', u"jet4/broken/truncated.mdb"_s);
    GivenMapWithPeopleOfBranchB();
    const auto expectQuestion = [this] {
        ExpectLossBox(u'B', u"406 of the 999 records can be read, and 0 of their fields can't.", Answer::No);
    };
    expectQuestion();
    Choose(u"Smiths");
    Choose(u"Smiths");
    Prompts.Verify();

    expectQuestion();
    ExpectCannotOpenBox();
    Choose(u"Jones");

    EXPECT_EQ(Home.ReadFile(u"LfgDat_B/LfgDat_B.mdb"), FixtureBytes(u"jet4/broken/truncated.mdb"_s));
}

TEST_F(OldCaptionsTest, NeighbourThatWasRefused_IsTriedAgainWhenItIsAnotherFile)
{
    GivenOldBranch(u'B', u"jet4/broken/tdef_ff.mdb"_s);
    GivenMapWithPeopleOfBranchB();
    Choose(u"Smiths");
    Home.WriteFile(u"LfgDat_B/LfgDat_B.mdb", FixtureBytes(u"jet4/deleted.mdb"_s));

    Choose(u"Smiths");

    ExpectConverted(u'B', "jet4/deleted");
}

} // namespace
} // namespace lineforge
