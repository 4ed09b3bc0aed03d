#include "gedcom/writer/GedcomWriter.h"

#include "gedcom/GedcomTest.h"

namespace lineforge
{
namespace
{

class GedcomWriterTest : public GedcomTest
{
protected:
    GedcomWriterTest() { GivenPeople({{u"A001"_s, u"A002"_s}, {u"A002"_s}}); }

    void Fill(const QString& name, const QStringList& address, const QString& phone, const QString& start)
    {
        forms::Form12& form = *P.Form12;
        form.Text1.Text = name;
        form.Text2.Text = address.value(0);
        form.Text3.Text = address.value(1);
        form.Text4.Text = address.value(2);
        form.Text5.Text = phone;
        form.Text6.Text = u"a note"_s;
        form.Text7.Text = start;
    }

    void Expect(QStringView title, QStringView text) { Prompts.Expect(title, text, Buttons::Information); }

    QStringList Lines() const { return QString::fromUtf8(File()).split(u"\r\n"_s); }
    QStringList LinesOf(const QString& tag) const { return Lines().filter(tag); }
};

const QByteArray head = "0 HEAD\r\n"
                        "1 SOUR\r\n"
                        "2 NAME Tarnwick.Exe software\r\n"
                        "2 VERS 1.2\r\n"
                        "2 CORP Tarnwick Technology\r\n"
                        ",3 ADDR Westholme, Marsh End,\r\n"
                        "4 CONT Marshland, XX, AB12 3CD\r\n"
                        "2 DATA\r\n"
                        "3 DATE May 2001\r\n"
                        "3 COPY Copyright 2001 Tarnwick Technology\r\n"
                        "1 DEST PAF\r\n"
                        "1 DATE \r\n"
                        "2 TIME \r\n"
                        "1 FILE A001Sub.Jpg\r\n"
                        "1 GEDC\r\n"
                        "2 VERS GEDCOM 5.5\r\n"
                        "2 FORM LINEAGE-LINKED\r\n"
                        "1 CHAR ANSEL\r\n"
                        "1 SUBM @SUB01@\r\n"
                        "1 SUBN @N01@\r\n"
                        "0 @SUB01@ SUBM\r\n";

// The lineage leaves the cursor on the record that it has looked up last.
TEST_F(GedcomWriterTest, AfterTheRun_ThatRecordAloneStandsBesideTheMap)
{
    const forms::Form1& form = *P.Form1;
    Click([this] { Records(P.Form3).MoveLast(); });
    Click([this] { P.Form3->Data1.Settle(); });
    ASSERT_EQ(form.Frame1.Caption.value(), u"Ref  A002"_s);
    ASSERT_TRUE(form.Image1.Picture.value().isNull());
    Fill(u"Zoe Smith"_s, {u"1 Mill Lane"_s, u"York"_s, u"England"_s}, u"01904 1"_s, u"A001"_s);

    CreateFile();
    Click([this] { P.Form3->Data1.Settle(); });

    EXPECT_EQ(P.Form3->Label25.Caption.value(), u"A001"_s);
    EXPECT_EQ(form.Frame1.Caption.value(), u"Ref  A001"_s);
    EXPECT_FALSE(form.Image1.Picture.value().isNull());
}

TEST_F(GedcomWriterTest, WholeFile_AsItStandsOnDisk)
{
    Fill(u"Zo\u00eb Smith"_s, {u"1 Mill Lane"_s, u"York"_s, u"England"_s}, u"01904 1"_s, u"A001"_s);

    CreateFile();

    EXPECT_EQ(File(), head + "1 NAME Created by Zo\xC3\xAB Smith\r\n"
                             "1 ADDR 1 Mill Lane\r\n"
                             "2 CONT York\r\n"
                             "2 CONT England\r\n"
                             "2 PHON 01904 1\r\n"
                             "0 @N01@ SUBN\r\n"
                             "1 DESC 2\r\n"
                             "1 ORDI N\r\n"
                             "0 TRLR\r\n");
    EXPECT_FALSE(P.Lineage.File) << "it is closed";
}

TEST_F(GedcomWriterTest, DefaultTexts_PassAsTheUsersOwn)
{
    CreateFile();

    EXPECT_EQ(File(), head + "1 NAME Created by Text1\r\n"
                             "1 ADDR Text2\r\n"
                             "2 CONT Text3\r\n"
                             "2 CONT Text4\r\n"
                             "2 PHON Text5\r\n"
                             "0 @N01@ SUBN\r\n"
                             "1 DESC 1\r\n"
                             "1 ORDI N\r\n"
                             "0 TRLR\r\n");
    EXPECT_EQ(P.Lineage.LineageArr[0][LineageColumn::Indi], u"X010");
}

TEST_F(GedcomWriterTest, Panel_ShowsTheFilesLines_ButForTheComma_AndTheLineageAmongThem)
{
    CreateFile();

    EXPECT_EQ(Panel()[0], QString(u"   Data placed in directory "_s + FileName()));
    EXPECT_EQ(Panel()[1], QString());
    QStringList shown = Panel().sliced(2);
    const qsizetype lineage = shown.indexOf(u"SECTION1:First fill array with lineage individuals"_s);
    const qsizetype behind = shown.indexOf(u"0 @N01@ SUBN"_s);
    ASSERT_GT(lineage, 0);
    ASSERT_GT(behind, lineage);
    EXPECT_EQ(shown[lineage - 1], u"2 PHON Text5");
    shown = shown.first(lineage) + shown.sliced(behind);
    QStringList written = Lines();
    written.removeLast();
    ASSERT_EQ(written[5], u",3 ADDR Westholme, Marsh End,");
    written[5] = written[5].sliced(1);
    EXPECT_EQ(shown, written);
    EXPECT_EQ(Panel().last(), u"0 TRLR");
}

struct Missing {
    QStringView Name;
    QStringView Address;
    QStringView Start;
    QStringView Title;
    QStringView Text;
};

void PrintTo(const Missing& missing, std::ostream* out)
{
    *out << missing.Title.toString().toStdString();
}

class IncompleteTest : public GedcomWriterTest, public testing::WithParamInterface<Missing>
{
};

TEST_P(IncompleteTest, IsTold_AndNothingIsWritten)
{
    const Missing& missing = GetParam();
    P.Form12->Picture1.Print(u"what stood there");
    Fill(missing.Name.toString(), {missing.Address.toString()}, {}, missing.Start.toString());
    const Tree before = Home.Snapshot();
    Expect(missing.Title, missing.Text);

    CreateFile();

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_EQ(Panel(), QStringList());
    EXPECT_EQ(ExitCode(), std::nullopt);
}

constexpr QStringView nameTitle = u"Incomplete Name";
constexpr QStringView nameText = u"Must complete Submitter Name.";
constexpr QStringView addressTitle = u"Incomplete Address";
constexpr QStringView addressText = u"Must complete Submitter Address.";
constexpr QStringView numberTitle = u"Incomplete Record number";
constexpr QStringView numberText = u"Must complete Record number.";

INSTANTIATE_TEST_SUITE_P(Texts, IncompleteTest,
                         testing::Values(Missing{u"", u"", u"", nameTitle, nameText},
                                         Missing{u"", u"York", u"A001", nameTitle, nameText},
                                         Missing{u"Ann", u"", u"", addressTitle, addressText},
                                         Missing{u"Ann", u"York", u"", numberTitle, numberText},
                                         Missing{u"Ann", u"York", u"A01", numberTitle, numberText},
                                         Missing{u"Ann", u"York", u"A0001", numberTitle, numberText}));

TEST_F(GedcomWriterTest, AfterReset_TheNameIsMissing_AndWithNameAndAddressTheNumber)
{
    Click(P.Form12->Command3.Click);
    Expect(nameTitle, nameText);
    CreateFile();
    P.Form12->Text1.Text = u"Ann"_s;
    P.Form12->Text2.Text = u"York"_s;
    Expect(numberTitle, numberText);
    CreateFile();
    EXPECT_FALSE(Home.Exists(u"LfgDat_A/Gedcom.tmp"));
}

TEST_F(GedcomWriterTest, NumberOfFourCharacters_IsTaken_WhetherItExistsOrNot)
{
    for (const QString& start : {u"A001"_s, u"Q777"_s, u"    "_s}) {
        Fill(u"Ann"_s, {u"York"_s}, {}, start);
        CreateFile();
        EXPECT_EQ(P.Lineage.LineageArr[0][LineageColumn::Indi], start);
        EXPECT_EQ(Panel().last(), u"0 TRLR");
    }
}

TEST_F(GedcomWriterTest, Notes_AreWrittenNowhere)
{
    Fill(u"Ann"_s, {u"York"_s}, u"1"_s, u"A001"_s);
    CreateFile();
    EXPECT_FALSE(File().contains("a note"));
    EXPECT_FALSE(Panel().join(u'\n').contains(u"a note"));
}

struct Address {
    QStringList Lines;
    QStringList Continued;
};

void PrintTo(const Address& address, std::ostream* out)
{
    *out << address.Lines.join(u'/').toStdString();
}

class AddressTest : public GedcomWriterTest, public testing::WithParamInterface<Address>
{
};

TEST_P(AddressTest, FilledLinesAlone_AreContinued)
{
    Fill(u"Ann"_s, GetParam().Lines, {}, u"A001"_s);
    CreateFile();
    QStringList continued = LinesOf(u"2 CONT"_s);
    EXPECT_EQ(continued, GetParam().Continued);
    EXPECT_EQ(LinesOf(u"PHON"_s), QStringList());
}

INSTANTIATE_TEST_SUITE_P(Lines, AddressTest,
                         testing::Values(Address{{u"Mill"_s, {}, {}}, {}},
                                         Address{{u"Mill"_s, {}, u"York"_s}, {u"2 CONT York"_s}},
                                         Address{{u"Mill"_s, u"York"_s, {}}, {u"2 CONT York"_s}},
                                         Address{{u"Mill"_s, u"a"_s, u"b"_s}, {u"2 CONT a"_s, u"2 CONT b"_s}}));

TEST_F(GedcomWriterTest, DateAndTime_AreEmpty_WithTheBlankBeforeThem)
{
    CreateFile();
    EXPECT_TRUE(Lines().contains(u"1 DATE "_s));
    EXPECT_TRUE(Lines().contains(u"2 TIME "_s));
    EXPECT_TRUE(Panel().contains(u"1 DATE "_s));
}

TEST_F(GedcomWriterTest, LongName_IsOneLine)
{
    const QString name(1000, u'x');
    Fill(name, {u"York"_s}, {}, u"A001"_s);
    CreateFile();
    EXPECT_TRUE(Lines().contains(QString(u"1 NAME Created by "_s + name)));
}

TEST_F(GedcomWriterTest, Phone_IsFollowedByAYield_NoOtherLineOfTheFileIs)
{
    Fill(u"Ann"_s, {u"York"_s}, {}, u"Q777"_s);
    Machine.Loop.Yields = 0;
    CreateFile();
    const int without = std::exchange(Machine.Loop.Yields, 0);
    P.Form12->Text5.Text = u"1"_s;
    CreateFile();
    EXPECT_EQ(Machine.Loop.Yields, without + 1);
}

TEST_F(GedcomWriterTest, SecondPress_ReplacesTheFile)
{
    Fill(QString(500, u'x'), {u"York"_s}, {}, u"A001"_s);
    CreateFile();
    Fill(u"Ann"_s, {u"York"_s}, {}, u"A001"_s);
    CreateFile();
    EXPECT_EQ(Lines().filter(u"1 NAME"_s), QStringList{u"1 NAME Created by Ann"_s});
    EXPECT_TRUE(File().endsWith("0 TRLR\r\n"));
    EXPECT_EQ(Panel().count(u"0 TRLR"_s), 1);
}

TEST_F(GedcomWriterTest, Panel_OnlyGrows)
{
    P.Form12->Text7.Text = u"A001"_s;
    for (int run = 0; run < 3; ++run) {
        const int before = P.Form12->Picture1.Height;
        CreateFile();
        EXPECT_GE(P.Form12->Picture1.Height.value(), before);
    }
    const int bottom = P.Form12->Picture1.CurrentY() - 2 * P.Form12->VScroll1.Value;
    EXPECT_LE(bottom, P.Form12->VScroll1.Height + TextPanel::LineHeight);
    EXPECT_GT(bottom, 0);
    P.Form12->Picture1.Cls();
    EXPECT_GT(P.Form12->Picture1.Height.value(), 8000);
}

TEST_F(GedcomWriterTest, SortDirection_HasNoSay)
{
    P.Form12->Text7.Text = u"A001"_s;
    P.Scratch.IdxA = 0;
    CreateFile();
    const QByteArray forebears = File();
    const QStringList table = Table();
    P.Form12->Option2.Value = false;
    P.Form12->Option1.Value = true;
    P.Scratch.IdxA = 0;
    CreateFile();
    EXPECT_EQ(File(), forebears);
    EXPECT_EQ(Table(), table);
}

TEST_F(GedcomWriterTest, WhileASiblingBranchIsShown_ItsFileIsWrittenOfItsRecords)
{
    P.Branch.WorkDirSaved = P.Branch.WorkDir;
    P.Branch.WorkDir = Home.Path(u"LfgDat_B");
    OpenWorkDatabase(P);
    P.Branch.UsingAlternate = 1;
    P.Form12->Text7.Text = u"B001"_s;

    CreateFile();

    EXPECT_TRUE(Home.Exists(u"LfgDat_B/Gedcom.tmp"));
    EXPECT_FALSE(Home.Exists(u"LfgDat_A/Gedcom.tmp"));
    EXPECT_TRUE(Panel().contains(u"Rec B001 Pa      Ma     "_s));
}

} // namespace
} // namespace lineforge
