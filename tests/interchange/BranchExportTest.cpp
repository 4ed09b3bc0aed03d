#include "interchange/BranchExport.h"

#include "interchange/InterchangeTest.h"
#include "support/ChildProcess.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTimeZone>

#include <unistd.h>

namespace lineforge
{
namespace
{

class BranchExportTest : public InterchangeTest
{
protected:
    BranchExportTest()
    {
        GivenRegistry({{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}});
        BranchOf(u'A').Gallery({{u"A001_01.jpg"_s, "picture"}, {u"A001_02.txt"_s, "text"}}).Build();
        BranchOf(u'B').Build();
        Home.MakeDirectory(u"stick");
        StartProgram(P);
    }

    QString Database(QStringView letter) const { return Home.Path(u"LfgDat_%1/LfgDat_%1.mdb"_s.arg(letter)); }

    void ExpectRefusal(QStringView title, QStringView text) { Prompts.Expect(title, text, Buttons::Information); }

    // With the path chosen and the window before the user.
    void GivenChosen() { ChooseToExport(Database(u"A")); }
};

TEST_F(BranchExportTest, Cancel_EndsInSilence)
{
    const Tree before = Home.Snapshot();

    ChooseToExport({});

    EXPECT_FALSE(P.Form4.IsLoaded());
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

struct RefusalRow {
    QStringView File;
    QStringView Title;
    QStringView Text;
};
class ExportRefusalTest : public BranchExportTest, public testing::WithParamInterface<RefusalRow>
{
};

TEST_P(ExportRefusalTest, Choice_IsRefused_AndTheWindowStaysAway)
{
    Home.WriteFile(u"LfgDat_A/LfgDat_A.txt", "text");
    Home.WriteFile(u"LfgDat_A/Other_A.mdb", "other");
    Prompts.ExpectOpenFile(u"Select Export Database source File", Filter, Home.Path(GetParam().File));
    ExpectRefusal(GetParam().Title, GetParam().Text);

    P.Form1->mnuExpSub.Click();

    EXPECT_FALSE(P.Form4.IsLoaded());
}

INSTANTIATE_TEST_SUITE_P(Choices, ExportRefusalTest,
                         testing::Values(RefusalRow{u"LfgDat_A/LfgDat_C.mdb", u"File not present.", u"File not found."},
                                         RefusalRow{u"LfgDat_A/LfgDat_A.txt", u"Database not selected.",
                                                    u" Must select a database"},
                                         RefusalRow{u"LfgDat_A/Other_A.mdb", u"Database not selected.",
                                                    u" Must select an 'LfgDat_[]' File"}));

TEST_F(BranchExportTest, OpenBranch_IsRefused_AfterOpenByItsBareName)
{
    Choose(u"Smiths");
    Prompts.ExpectOpenFile(u"Select Export Database source File", Filter, Database(u"A"));
    ExpectRefusal(u"Database Open.", u"Must close this database to Export Files.");

    P.Form1->mnuExpSub.Click();

    EXPECT_FALSE(P.Form4.IsLoaded() && P.Form4->Visible);
}

TEST_F(BranchExportTest, OpenBranch_IsRefused_ByItsPath_CaseIgnored)
{
    P.Branch.sDbaseName = Database(u"A").toUpper();
    Prompts.ExpectOpenFile(u"Select Export Database source File", Filter, Database(u"A"));
    ExpectRefusal(u"Database Open.", u"Must close this database to Export Files.");

    P.Form1->mnuExpSub.Click();

    EXPECT_FALSE(P.Form4.IsLoaded());
}

TEST_F(BranchExportTest, BranchOfTheSameLetterInAnotherHome_CountsAsOpen)
{
    Choose(u"Smiths");
    const QString other = Home.WriteFile(u"other/LfgDat_A/LfgDat_A.mdb", "records");
    Prompts.ExpectOpenFile(u"Select Export Database source File", Filter, other);
    ExpectRefusal(u"Database Open.", u"Must close this database to Export Files.");

    P.Form1->mnuExpSub.Click();
}

TEST_F(BranchExportTest, BranchJustMade_IsOpen)
{
    WriteTemplates(Home);
    AnswerName(u"Browns");
    Confirm(u"Browns", u"LfgDat_C");
    ExpectEmptyBox();
    P.Form1->New.Click();
    Prompts.ExpectOpenFile(u"Select Export Database source File", Filter, Database(u"C"));
    ExpectRefusal(u"Database Open.", u"Must close this database to Export Files.");

    P.Form1->mnuExpSub.Click();
}

TEST_F(BranchExportTest, BranchOpenedWhileTheWindowStands_IsRefusedByItsOk)
{
    GivenChosen();
    P.Form4->Dir1.GoTo(Home.Path(u"stick"));
    Choose(u"Smiths");
    const Tree before = Home.Snapshot();
    ExpectRefusal(u"Database Open.", u"Must close this database to Export Files.");

    P.Form4->Command1.Click();

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(BranchExportTest, ChoiceThatIsRefused_IsTheSourceAllTheSame)
{
    GivenChosen();
    Prompts.ExpectOpenFile(u"Select Export Database source File", Filter, Home.Path(u"LfgDat_A/LfgDat_A.cfg"));
    ExpectRefusal(u"Database not selected.", u" Must select a database");

    P.Form1->mnuExpSub.Click();

    EXPECT_EQ(P.Export.sExportSource, Home.Path(u"LfgDat_A/LfgDat_A.cfg"));
}

TEST_F(BranchExportTest, AClosedBranchBesideAnOpenOne_CanBeExported)
{
    Choose(u"Jones");

    Export(u'A', Home.Path(u"stick"));

    EXPECT_EQ(TreeOf(u"stick/LfgDat_A"_s), TreeOf(u"LfgDat_A"_s));
}

TEST_F(BranchExportTest, NameOfThePicture_IsEmptyAfterTheListing_AndInAGedcomFile)
{
    Choose(u"Jones");

    Export(u'A', Home.Path(u"stick"));

    EXPECT_EQ(P.Record.sPicFile, QString());
    P.Form12->Command1.Click();
    EXPECT_TRUE(Home.ReadFile(u"LfgDat_B/Gedcom.tmp").contains("\r\n1 FILE \r\n"));
}

TEST_F(BranchExportTest, NameOfThePicture_IsEmptyWhereTheGalleryIsInTheWay)
{
    Choose(u"Jones");
    GivenChosen();
    P.Form4->Dir1.GoTo(Home.Path(u"stick"));
    ExpectExportQuestion(Home.Path(u"stick/LfgDat_A"), Answer::Ok,
                         [&] { Home.MakeDirectory(u"stick/LfgDat_A/LfgGal_A"); });
    const QString text = Home.Path(u"stick/LfgDat_A/LfgGal_A") +
                         u" Directory already exists.\nYou must first move or delete this Directory.";
    Prompts.Expect(u"Error Creating New Directory", text, Buttons::Information);

    P.Form4->Command1.Click();

    EXPECT_EQ(P.Record.sPicFile, QString());
}

TEST_F(BranchExportTest, NameOfThePicture_StaysWhereNothingIsCopied)
{
    Choose(u"Jones");
    GivenChosen();
    P.Form4->Dir1.GoTo(Home.Path(u"stick"));
    ExpectExportQuestion(Home.Path(u"stick/LfgDat_A"), Answer::Cancel);

    P.Form4->Command1.Click();

    EXPECT_EQ(P.Record.sPicFile, u"B001Sub.Jpg"_s);
}

TEST_F(BranchExportTest, RecordThatTheGalleryIsLeftFor_ShowsItsPictureAllTheSame)
{
    Choose(u"Jones");
    Click(P.Form1->Command2.Click);
    Export(u'A', Home.Path(u"stick"));

    Click(P.Form5->Command2.Click);

    EXPECT_FALSE(P.Form3->Image1.Picture.value().isNull());
    EXPECT_EQ(P.Record.sPicFile, u"B001Sub.Jpg"_s);
}

TEST_F(BranchExportTest, Window_ShowsItsLists_FromTheHomeDirectory)
{
    P.Files.ChDir(Home.Path(u"stick"));

    GivenChosen();

    EXPECT_TRUE(P.Form4->Visible);
    EXPECT_EQ(P.Form4->Caption.value(), u"Select  Export Drive & Directory"_s);
    EXPECT_EQ(P.Form4->Command1.Caption.value(), u"OK"_s);
    EXPECT_EQ(P.Form4->Command2.Caption.value(), u"Cancel"_s);
    EXPECT_EQ(P.Form4->Dir1.Path.value(), Home.Path());
    EXPECT_EQ(P.Scratch.sPath, Home.Path()); // it stood elsewhere, and so has changed
    EXPECT_EQ(P.Files.CurDir(), Home.Path());
    EXPECT_TRUE(P.Form4->Drive1.Drives.value().contains(u"/"_s));
    EXPECT_FALSE(P.Form4->Drive1.Drive.value().isEmpty());
    EXPECT_TRUE(Home.Path().startsWith(P.Form4->Drive1.Drive.value()));
    EXPECT_EQ(P.Form4->Dir1.ToolTipText, u"Double Click to change"_s);
}

TEST_F(BranchExportTest, ListThatStandsAtTheHomeDirectoryAlready_LeavesThePathOfBefore)
{
    P.Scratch.sPath = Home.Path(u"stick");

    GivenChosen();
    ExpectExportQuestion(Home.Path(u"stick/LfgDat_A"));
    P.Form4->Command1.Click();

    EXPECT_EQ(TreeOf(u"stick/LfgDat_A"_s), TreeOf(u"LfgDat_A"_s));
}

TEST_F(BranchExportTest, Path_FollowsClicksAndChangesOfTheList)
{
    GivenChosen();
    P.Scratch.sPath = u"elsewhere"_s;
    P.Form4->Dir1.Click();
    EXPECT_EQ(P.Scratch.sPath, Home.Path());

    P.Form4->Dir1.GoTo(Home.Path(u"stick"));
    EXPECT_EQ(P.Scratch.sPath, Home.Path(u"stick"));
}

TEST_F(BranchExportTest, Drive_TakesTheListAlong)
{
    GivenChosen();

    P.Form4->Drive1.Choose(Home.Path(u"stick"));

    EXPECT_EQ(P.Form4->Dir1.Path.value(), Home.Path(u"stick"));
    EXPECT_EQ(P.Scratch.sPath, Home.Path(u"stick"));
}

TEST_F(BranchExportTest, DriveThatHasGone_LeavesTheListWhereItStands)
{
    GivenChosen();

    P.Form4->Drive1.Choose(Home.Path(u"gone"));

    EXPECT_EQ(P.Form4->Dir1.Path.value(), Home.Path());
}

TEST_F(BranchExportTest, CancelOfTheWindow_UnloadsIt_AndWritesNothing)
{
    const Tree before = Home.Snapshot();
    GivenChosen();

    P.Form4->Command2.Click();

    EXPECT_FALSE(P.Form4.IsLoaded());
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
}

TEST_F(BranchExportTest, WholeBranch_GoesFileByFile_AndTheSourceStays)
{
    Home.WriteFile(u"LfgDat_A/LfgDat_A.~cf", "map before");
    Home.WriteFile(u"LfgDat_A/Gr\u00fc\u00dfe.txt", "accents");
    const Tree before = Home.Snapshot();

    Export(u'A', Home.Path(u"stick"));

    EXPECT_EQ(TreeOf(u"stick/LfgDat_A"_s), TreeOf(u"LfgDat_A"_s));
    EXPECT_TRUE(TreeOf(u"stick/LfgDat_A"_s).contains(u"LfgGal_A/A001_01.jpg"_s));
    EXPECT_TRUE(TreeOf(u"stick/LfgDat_A"_s).contains(u"LfgDat_A.~cf"_s));
    for (const QString& change : Differences(before, Home.Snapshot()))
        EXPECT_TRUE(change.startsWith(u"new: stick/LfgDat_A"_s)) << qUtf8Printable(change);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    EXPECT_FALSE(P.Form4->Visible);
}

TEST_F(BranchExportTest, Subdirectories_DontGoAlong)
{
    Home.WriteFile(u"LfgDat_A/more/letter.txt", "letter");
    Home.WriteFile(u"LfgDat_A/LfgGal_A/more/letter.txt", "letter");

    Export(u'A', Home.Path(u"stick"));

    EXPECT_FALSE(Home.Exists(u"stick/LfgDat_A/more"));
    EXPECT_FALSE(Home.Exists(u"stick/LfgDat_A/LfgGal_A/more"));
}

TEST_F(BranchExportTest, Hourglass_TurnsWhileFilesAreCopied)
{
    QList<std::pair<MousePointer, bool>> seen; // with whether the gallery's last file is there by then
    const auto watch = P.Screen.Pointer.addNotifier([&] {
        seen += {P.Screen.Pointer.value(), Home.Exists(u"stick/LfgDat_A/LfgGal_A/A001_02.txt")};
    });

    Export(u'A', Home.Path(u"stick"));

    EXPECT_EQ(seen,
              (QList<std::pair<MousePointer, bool>>{{MousePointer::Hourglass, false}, {MousePointer::Default, true}}));
}

TEST_F(BranchExportTest, DirectoryOfThatName_Refuses_AndNothingIsOverwritten)
{
    Home.WriteFile(u"stick/LfgDat_A/LfgDat_A.mdb", "older export");
    const Tree before = Home.Snapshot();
    GivenChosen();
    P.Form4->Dir1.GoTo(Home.Path(u"stick"));
    const QString text =
        Home.Path(u"stick/LfgDat_A") + u" directory already exists.\nYou must first delete this Directory.";
    Prompts.Expect(u"Error Creating New Directory", text, Buttons::Information);

    P.Form4->Command1.Click();

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_FALSE(P.Form4->Visible);
}

TEST_F(BranchExportTest, CancelOfTheQuestion_LeavesTheDirectoryEmpty)
{
    const Tree before = Home.Snapshot();
    GivenChosen();
    P.Form4->Dir1.GoTo(Home.Path(u"stick"));
    ExpectExportQuestion(Home.Path(u"stick/LfgDat_A"), Answer::Cancel);

    P.Form4->Command1.Click();

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList{u"new: stick/LfgDat_A"_s});
    EXPECT_EQ(TreeOf(u"stick/LfgDat_A"_s), Tree());
}

TEST_F(BranchExportTest, GalleryThatHasAppearedMeanwhile_EndsIt_WithTheBranchsFilesCopied)
{
    GivenChosen();
    P.Form4->Dir1.GoTo(Home.Path(u"stick"));
    ExpectExportQuestion(Home.Path(u"stick/LfgDat_A"), Answer::Ok,
                         [this] { Home.WriteFile(u"stick/LfgDat_A/LfgGal_A/mine.txt", "mine"); });
    const QString text = Home.Path(u"stick/LfgDat_A/LfgGal_A") +
                         u" Directory already exists.\nYou must first move or delete this Directory.";
    Prompts.Expect(u"Error Creating New Directory", text, Buttons::Information, Answer::Ok,
                   [this] { EXPECT_EQ(P.Screen.Pointer, MousePointer::Default); });

    P.Form4->Command1.Click();

    EXPECT_TRUE(Home.Exists(u"stick/LfgDat_A/LfgDat_A.mdb"));
    EXPECT_EQ(TreeOf(u"stick/LfgDat_A/LfgGal_A"_s), (Tree{{u"mine.txt"_s, "mine"}}));
}

TEST_F(BranchExportTest, FileInTheWayOfTheDirectory_IsToldByItsNumber_AndStays)
{
    Choose(u"Jones");
    Home.WriteFile(u"stick/LfgDat_A", "a file");
    const Tree before = Home.Snapshot();
    GivenChosen();
    P.Form4->Dir1.GoTo(Home.Path(u"stick"));
    ExpectPathFileAccessBox();

    P.Form4->Command1.Click();

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_B"));
    EXPECT_EQ(P.Branch.sBranchName, u"Jones"_s);
}

TEST_F(BranchExportTest, GalleryThatCantBeMade_IsToldByItsNumber_WithTheBranchsFilesCopied)
{
    GivenChosen();
    P.Form4->Dir1.GoTo(Home.Path(u"stick"));
    ExpectExportQuestion(Home.Path(u"stick/LfgDat_A"), Answer::Ok,
                         [this] { Home.WriteFile(u"stick/LfgDat_A/LfgGal_A", "a file"); });
    ExpectPathFileAccessBox([this] { EXPECT_EQ(P.Screen.Pointer, MousePointer::Default); });

    P.Form4->Command1.Click();

    EXPECT_EQ(Home.ReadFile(u"stick/LfgDat_A/LfgDat_A.mdb"), Home.ReadFile(u"LfgDat_A/LfgDat_A.mdb"));
    EXPECT_EQ(Home.ReadFile(u"stick/LfgDat_A/LfgGal_A"), "a file");
}

TEST_F(BranchExportTest, ImportedBranch_GoesUnderItsOwnDirectoryName)
{
    BranchOf(u'A').InDirectory(u"Import_A").Gallery({{u"A001_01.jpg"_s, "picture"}}).Build();
    ChooseToExport(Home.Path(u"Import_A/LfgDat_A.mdb"));
    P.Form4->Dir1.GoTo(Home.Path(u"stick"));
    ExpectExportQuestion(Home.Path(u"stick/Import_A"));

    P.Form4->Command1.Click();

    EXPECT_EQ(TreeOf(u"stick/Import_A"_s), TreeOf(u"Import_A"_s));
}

TEST_F(BranchExportTest, BranchWithoutGallery_GoesWithAnEmptyOne)
{
    Export(u'B', Home.Path(u"stick"));

    EXPECT_EQ(TreeOf(u"stick/LfgDat_B"_s).value(u"LfgGal_B"_s), "<dir>");
}

TEST_F(BranchExportTest, TimesOfFiles_GoAlong)
{
    const QDateTime then(QDate(1999, 12, 31), QTime(23, 59, 58), QTimeZone::utc());
    QFile picture(Home.Path(u"LfgDat_A/A001Sub.jpg"));
    ASSERT_TRUE(picture.open(QFile::ReadWrite));
    ASSERT_TRUE(picture.setFileTime(then, QFileDevice::FileModificationTime));
    picture.close();

    Export(u'A', Home.Path(u"stick"));

    EXPECT_EQ(QFileInfo(Home.Path(u"stick/LfgDat_A/A001Sub.jpg")).lastModified(), then);
}

struct DestinationRow {
    QStringView Beneath;
    QStringView Database;
    QStringView Directory;
};
class ExportDirectoryTest : public testing::TestWithParam<DestinationRow>
{
};

TEST_P(ExportDirectoryTest, Name_IsTheSourcesOwn_WithoutItsLetterAtTheRoot)
{
    EXPECT_EQ(ExportDirectory(GetParam().Beneath.toString(), GetParam().Database.toString()), GetParam().Directory);
}

INSTANTIATE_TEST_SUITE_P(
    Destinations, ExportDirectoryTest,
    testing::Values(DestinationRow{u"/media/stick", u"/home/me/LfgDat_A/LfgDat_A.mdb", u"/media/stick/LfgDat_A"},
                    DestinationRow{u"/home/me/", u"/x/LfgDat_A/LfgDat_A.mdb", u"/home/me//LfgDat_A"},
                    DestinationRow{u"/", u"/home/me/LfgDat_A/LfgDat_A.mdb", u"//LfgDat_"},
                    DestinationRow{u"/ab", u"/home/me/LfgDat_A/LfgDat_A.mdb", u"/ab/LfgDat_A"},
                    DestinationRow{u"/x", u"/LfgDat_A.mdb", u"/x/LfgDat_A"},
                    // Where the directory's name is of another length the characters are counted all the same.
                    DestinationRow{u"/media/stick", u"/home/Family Trees/LfgDat_A.mdb", u"/media/stickily Trees"}));

// Who may not write there is told so.
TEST_F(BranchExportTest, AtTheRoot_LetterAndGalleryLoseTheirName)
{
    const int failed = ExitCodeInChild([this] {
        const bool hasOwnRoot = geteuid() == 0 && chroot(Home.Path().toLocal8Bit().constData()) == 0;
        if (!hasOwnRoot && geteuid() == 0 && seteuid(65534) != 0)
            return 2;
        P.Export.sExportSource = hasOwnRoot ? u"/LfgDat_A/LfgDat_A.mdb"_s : Database(u"A");
        P.Scratch.sPath = u"/"_s;
        if (!hasOwnRoot) {
            ExpectPathFileAccessBox();
            P.Form4->Command1.Click();
            return HasFailure() ? 1 : 0;
        }
        ExpectExportQuestion(u"//LfgDat_"_s);
        P.Form4->Command1.Click();
        EXPECT_EQ(QFileInfo(u"/LfgDat_/LfgDat_A.mdb"_s).size(), QFileInfo(u"/LfgDat_A/LfgDat_A.mdb"_s).size());
        EXPECT_EQ(QFileInfo(u"/LfgDat_/LfgGal__/A001_01.jpg"_s).size(), 7);
        return HasFailure() ? 1 : 0;
    });
    EXPECT_EQ(failed, 0);
}

} // namespace
} // namespace lineforge
