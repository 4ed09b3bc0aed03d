#include "gedcom/report/ConversionTest.h"

#include <QFile>

namespace lineforge
{
namespace
{

using GedcomConversionTest = ConversionTest;

TEST_F(GedcomConversionTest, NoFile_EndsSilently)
{
    ExpectChoice({});
    Click(P.Form1->mnuImpGedcom.Click);
    EXPECT_FALSE(P.Form11.IsLoaded());
}

TEST_F(GedcomConversionTest, AFileThatIsNotThere_IsTold)
{
    ExpectChoice(Home.Path(u"gone.ged"));
    Prompts.Expect(u"File not present.", u"File not found.", Buttons::Information);
    Click(P.Form1->mnuImpGedcom.Click);
    EXPECT_FALSE(P.Form11.IsLoaded());
}

TEST_F(GedcomConversionTest, AFileOfAnotherName_IsTold)
{
    for (const QStringView name : {u"family.txt", u"family.ged.txt", u"ged.family", u"family.gedcom", u"family.ge"}) {
        ExpectChoice(Home.WriteFile(name, Crlf(SmallFamily + Trailer)));
        Prompts.Expect(u"Not a GedFile.", u"Must select a Gedcom file.", Buttons::Information);
        Click(P.Form1->mnuImpGedcom.Click);
    }
    EXPECT_FALSE(P.Form11.IsLoaded());
}

TEST_F(GedcomConversionTest, ANameInAnyCase_IsAccepted)
{
    for (const QStringView name : {u"CAPITALS.GED", u"Mixed.gEd", u"withoutdotged"}) {
        Convert(Home.WriteFile(name, Crlf(SmallFamily + Trailer)));
        EXPECT_TRUE(IsCompleted());
        EXPECT_TRUE(Home.Exists(QString(name.chopped(3) + u"txt"))) << name.toUtf8().constData();
    }
}

TEST_F(GedcomConversionTest, AnOlderReport_IsReplaced)
{
    const QByteArray report = ReportOf(SmallFamily + Trailer);
    Home.WriteFile(u"family.txt", QByteArray(100'000, 'x'));
    EXPECT_EQ(ReportOf(SmallFamily + Trailer), report);
}

TEST_F(GedcomConversionTest, ARun_ChangesNothingButTheReport)
{
    const Tree before = Home.Snapshot();
    ConvertBytes(Crlf(SmallFamily + Trailer));
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList({u"new: family.ged"_s, u"new: family.txt"_s}));
}

TEST_F(GedcomConversionTest, TheWindow_IsReadyBeforeTheFirstYield)
{
    P.Form11->Picture1.Print(u"of the run before");
    P.Form11->Picture1.Height = 9400;
    P.Form11->Picture1.Top = -3000;
    P.Form11->VScroll1.Max = 1500;
    P.Form11->VScroll1.Value = 1500;
    AtYield(1, [&] {
        EXPECT_EQ(Caption(), QString(u"Processing: " + SourcePath()));
        EXPECT_TRUE(P.Form11->Visible);
        EXPECT_EQ(Panel(), QStringList());
        EXPECT_EQ(P.Form11->Picture1.Height, 6400);
        EXPECT_EQ(P.Form11->Picture1.Top, 0);
        EXPECT_EQ(P.Form11->VScroll1.Max.value(), 0);
        EXPECT_EQ(P.Form11->VScroll1.Value, 0);
        EXPECT_FALSE(Home.Exists(u"family.txt"));
    });
    AtYield(1, [&] { EXPECT_EQ(P.Screen.Pointer, MousePointer::Hourglass); });
    ConvertBytes(Crlf(SmallFamily + Trailer));
    EXPECT_TRUE(IsCompleted());
    EXPECT_TRUE(P.Form11->Visible);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
}

TEST_F(GedcomConversionTest, TheWindow_StandsInTheMiddleOfTheMainOne)
{
    P.Form1->Left = 1000;
    P.Form1->Top = 500;
    const forms::Form11& form = *P.Form11;
    EXPECT_EQ(form.Left, 1000 + P.Form1->Width / 2 - form.Width / 2);
    EXPECT_EQ(form.Top, 500 + P.Form1->Height / 2 - form.Height / 2);
}

TEST_F(GedcomConversionTest, TheBar_MovesThePanelTwiceAsFar)
{
    P.Form11->VScroll1.Value = 250;
    P.Form11->VScroll1.Change();
    EXPECT_EQ(P.Form11->Picture1.Top, -500);
}

// One at the window, one after each of the lines that are followed by a step, one at the end, where the panel grows,
// which is one more.
TEST_F(GedcomConversionTest, ARun_YieldsAtItsSteps)
{
    ConvertBytes(Crlf(SmallFamily + Trailer));
    const int john = 3;
    const int mary = 3 + 2;
    const int ann = 3 + 2;
    EXPECT_EQ(Machine.Loop.Yields, 1 + 1 + john + 1 + mary + 3 + 1 + ann + 1 + 1);
}

TEST_F(GedcomConversionTest, ALongReport_MakesThePanelGrow)
{
    QByteArray source = SmallFamily;
    for (int child = 0; child < 20; ++child)
        source += "1 CHIL @I3@\n";
    ConvertBytes(Crlf(source + Trailer));
    const int grown = P.Form11->Picture1.Height - 6400;
    EXPECT_GT(grown, 0);
    EXPECT_EQ(grown % 1000, 0);
    EXPECT_EQ(P.Form11->VScroll1.Max.value(), grown / 2);
    EXPECT_EQ(P.Form11->VScroll1.Value, grown / 2);
    EXPECT_GT(P.Form11->Picture1.Height, P.Form11->Picture1.CurrentY());
}

TEST_F(GedcomConversionTest, ASourceWithoutHead_IsRefused)
{
    ExpectChoice(Home.WriteFile(u"family.ged", "0 TRLR\r\n"));
    ExpectAnnouncement(SourcePath());
    ExpectRefusal([&] { EXPECT_TRUE(P.Form11.IsLoaded()); });
    Click(P.Form1->mnuImpGedcom.Click);
    EXPECT_FALSE(P.Form11.IsLoaded());
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    EXPECT_EQ(P.Gedcom.GedHeadState, GedHead::Refused);
    EXPECT_EQ(Report(), "");
}

TEST_F(GedcomConversionTest, AStateLeftOverByAnotherWindow_SpoilsTheFirstLine)
{
    P.Scratch.ScanState = GalleryScan::ItemOpen;
    ExpectChoice(Home.WriteFile(u"family.ged", Crlf(SmallFamily + Trailer)));
    ExpectAnnouncement(SourcePath());
    ExpectRefusal();
    Click(P.Form1->mnuImpGedcom.Click);
    EXPECT_EQ(Report(), "");
}

TEST_F(GedcomConversionTest, AfterARefusal_TheNextRunIsGood)
{
    ExpectChoice(Home.WriteFile(u"family.ged", "0 TRLR\r\n"));
    ExpectAnnouncement(SourcePath());
    ExpectRefusal();
    Click(P.Form1->mnuImpGedcom.Click);
    EXPECT_NE(ReportOf(SmallFamily + Trailer), "");
    EXPECT_TRUE(IsCompleted());
}

TEST_F(GedcomConversionTest, ASourceWithoutAnyZero_HasNeitherHeadNorFamilies)
{
    ConvertBytes("1 NOTE x\r\n");
    EXPECT_TRUE(IsCompleted());
    EXPECT_EQ(Panel(), QStringList({u""_s, u"-----------Conversion Complete-----------"_s}));
}

// So many records with a zero behind each.
QByteArray Records(int count, const QByteArray& word)
{
    QByteArray lines;
    for (int number = 1; number <= count; ++number)
        lines += "0 @" + word + QByteArray::number(number) + "@ " + word + "\n1 x0\n";
    return lines;
}

TEST_F(GedcomConversionTest, TooManyRecords_LeaveTheHeadingAlone)
{
    EXPECT_EQ(ReportOf("0 HEAD\n" + Records(101, "INDI") + Records(1, "FAM") + Trailer), "");
    EXPECT_TRUE(IsCompleted());
    EXPECT_EQ(P.Errors.Last->Number, ErrorNumber::Subscript);
    P.Scratch.ScanState = GedRecord::Outside;
    EXPECT_EQ(ReportOf("0 HEAD\n" + Records(21, "FAM") + Trailer), "");
    EXPECT_TRUE(IsCompleted());
}

TEST_F(GedcomConversionTest, TwentyFamilies_AreAllReported)
{
    const QByteArray report = ReportOf("0 HEAD\n" + Records(20, "FAM") + Trailer);
    EXPECT_EQ(report.count("HEAD OF FAMILY"), 20);
    EXPECT_TRUE(report.contains("HEAD OF FAMILY (20)"));
    EXPECT_EQ(P.Errors.Last->Number, ErrorNumber::Subscript);
    EXPECT_TRUE(IsCompleted());
}

TEST_F(GedcomConversionTest, FewerFamilies_EndByReadingPastTheEnd)
{
    EXPECT_EQ(ReportOf("0 HEAD\n" + Records(19, "FAM") + Trailer).count("HEAD OF FAMILY"), 19);
    EXPECT_EQ(P.Errors.Last->Number, ErrorNumber::InputPastEnd);
    EXPECT_TRUE(IsCompleted());
}

TEST_F(GedcomConversionTest, AReferenceToNobody_LosesTheFamiliesBehind)
{
    ASSERT_EQ(ReportOf(SmallFamily + "2 x0\n0 @F2@ FAM\n1 HUSB @I1@\n" + Trailer).count("HEAD OF"), 2);
    QByteArray source = SmallFamily;
    source.replace("1 HUSB @I1@\n", "1 HUSB @I9@\n");
    const QByteArray report = ReportOf(source + "2 x0\n0 @F2@ FAM\n1 HUSB @I1@\n" + Trailer);
    EXPECT_TRUE(report.endsWith("   HEAD OF FAMILY (1)\r\r\n\r\r\n"));
    EXPECT_TRUE(IsCompleted());
}

TEST_F(GedcomConversionTest, ALastLineWithoutAnEnd_IsNotParsed)
{
    QByteArray source = Crlf(SmallFamily);
    source.chop(2);
    ConvertBytes(source);
    EXPECT_TRUE(Report().contains("Mary"));
    EXPECT_FALSE(Report().contains("Ann"));
}

TEST_F(GedcomConversionTest, AReportThatIsALinkToItsSource_LeavesTheSource)
{
    const QByteArray source = Crlf(SmallFamily + Trailer);
    const QString path = Home.WriteFile(u"family.ged", source);
    ASSERT_TRUE(QFile::link(path, Home.Path(u"family.txt")));
    ConvertBytes(source);
    EXPECT_EQ(Home.ReadFile(u"family.ged"), source);
    EXPECT_TRUE(IsCompleted());
}

TEST_F(GedcomConversionTest, AReportThatCantBeWritten_CompletesAllTheSame)
{
    Home.WriteFile(u"family.txt", "kept");
    Home.MakeReadOnly(u"family.txt");
    ConvertBytes(Crlf(SmallFamily + Trailer));
    EXPECT_TRUE(IsCompleted());
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    EXPECT_EQ(P.Errors.Last->Number, ErrorNumber::PathFileAccess);
    EXPECT_EQ(Home.ReadFile(u"family.txt"), "kept");
}

TEST_F(GedcomConversionTest, ADirectoryInThePlaceOfTheReport_CompletesAllTheSame)
{
    Home.MakeDirectory(u"family.txt");
    ConvertBytes(Crlf(SmallFamily + Trailer));
    EXPECT_TRUE(IsCompleted());
}

// A device that is always full; the panel tells more than the report then.
TEST_F(GedcomConversionTest, AFullDisk_CompletesAllTheSame)
{
    ASSERT_TRUE(QFile::exists(u"/dev/full"_s));
    ASSERT_TRUE(QFile::link(u"/dev/full"_s, Home.Path(u"family.txt")));
    ConvertBytes(SmallFamily + Trailer);
    EXPECT_TRUE(IsCompleted());
    EXPECT_EQ(P.Errors.Last->Number, ErrorNumber::DiskFull);
    EXPECT_EQ(P.Gedcom.Report, nullptr);
    EXPECT_TRUE(Panel().contains(u"-----------Conversion Complete-----------"));
}

} // namespace
} // namespace lineforge
