#include "gedcom/report/ConversionTest.h"

namespace lineforge
{
namespace
{

using GedcomReportTest = ConversionTest;

const QByteArray fileRule = "   " + QByteArray(51, '-');
const QString panelRule = u"   "_s + QString(60, u'-');
const QByteArray nameLabel = QByteArray(12, ' ') + " Name:     ";

QByteArray Lines(const QByteArrayList& lines)
{
    return lines.join("\r\n") + "\r\n";
}

const QByteArrayList head{fileRule, "\r", "   HEAD OF FAMILY (1)\r", "\r"};
const QByteArrayList john{nameLabel + "John  Smith", "          Gender:     Male\r", "     Birth Date:    10 May 1901",
                          "            Place:    Leeds, England", "\r"};
const QByteArrayList mary{nameLabel + "Mary  Jones", "          Gender:     Female\r",
                          "   Christening:    20 June 1902", "            Place:    York", "\r"};
const QByteArrayList wedding{"   MARRIAGE", "            Date:    2 June 1925\r",
                             "           Place:    York Minster, York\r"};
const QByteArrayList ann{nameLabel + "Ann  Smith",
                         "          Gender:     Female\r",
                         "     Birth Date:    1930",
                         "            Place:    Hull",
                         "   Christening:    1931",
                         "            Place:    Goole",
                         "\r"};
const QByteArrayList spouse{"    SPOUSE "};
const QByteArrayList children{"", "    CHILDREN"};
const QByteArrayList noMoreChildren{""};

TEST_F(GedcomReportTest, AFamily_IsWrittenByteForByte)
{
    EXPECT_EQ(ReportOf(SmallFamily + Trailer),
              Lines(head + john + spouse + mary + wedding + children + ann + noMoreChildren));
}

TEST_F(GedcomReportTest, ThePanel_ShowsTheSameLinesWithItsOwnRulesAndBreaks)
{
    ReportOf(SmallFamily + Trailer);
    const QString name = QString::fromUtf8(nameLabel);
    const QString expected[] = {
        QString(u"   Data extracted from File " + SourcePath()),
        QString(u"   Data placed in directory " + Home.Path(u"family.txt")),
        panelRule,
        u""_s,
        u"   HEAD OF FAMILY (1)"_s,
        QString(name + u"John  Smith"),
        u"          Gender:     Male"_s,
        u"     Birth Date:    10 May 1901"_s,
        u"            Place:    Leeds, England"_s,
        u""_s,
        u"    SPOUSE "_s,
        QString(name + u"Mary  Jones"),
        u"          Gender:     Female"_s,
        u"   Christening:    20 June 1902"_s,
        u"            Place:    York"_s,
        u""_s,
        u"   MARRIAGE"_s,
        u"            Date:    2 June 1925"_s,
        u"           Place:    York Minster, York"_s,
        u""_s,
        u"    CHILDREN"_s,
        QString(name + u"Ann  Smith"),
        u"          Gender:     Female"_s,
        u"     Birth Date:    1930"_s,
        u"            Place:    Hull"_s,
        u"   Christening:    1931"_s,
        u"            Place:    Goole"_s,
        u""_s,
        u"-----------Conversion Complete-----------"_s,
    };
    EXPECT_EQ(Panel(), QStringList(std::begin(expected), std::end(expected)));
}

TEST_F(GedcomReportTest, AFamilyWithoutMarriage_GoesOnToTheChildren)
{
    QByteArray source = SmallFamily;
    source.replace("1 MARR\n2 DATE 2 June 1925\n2 PLAC York Minster, York\n", "");
    EXPECT_EQ(ReportOf(source + Trailer), Lines(head + john + spouse + mary + children + ann + noMoreChildren));
}

TEST_F(GedcomReportTest, AFamilyWithoutChildren_HasOnlyTheEmptyLineOfTheSeek)
{
    QByteArray source = SmallFamily;
    source.replace("1 CHIL @I3@\n", "");
    EXPECT_EQ(ReportOf(source + Trailer), Lines(head + john + spouse + mary + wedding + noMoreChildren));
    EXPECT_FALSE(Panel().contains(u"    CHILDREN"));
}

TEST_F(GedcomReportTest, AFamilyWithoutWife_LosesMarriageAndChildren)
{
    QByteArray source = SmallFamily;
    source.replace("1 WIFE @I2@\n", "");
    EXPECT_EQ(ReportOf(source + Trailer), Lines(head + john + spouse));
}

TEST_F(GedcomReportTest, AFamilyWithoutHusband_KeepsItsHeadAndTheRest)
{
    QByteArray source = SmallFamily;
    source.replace("1 HUSB @I1@\n", "");
    EXPECT_EQ(ReportOf(source + Trailer), Lines(head + spouse + mary + wedding + children + ann + noMoreChildren));
}

TEST_F(GedcomReportTest, ChildrenBeforeTheHusband_AreFoundFromTheHead)
{
    QByteArray source = SmallFamily;
    source.replace("1 CHIL @I3@\n", "").replace("1 HUSB", "1 CHIL @I3@\n1 HUSB");
    EXPECT_EQ(ReportOf(source + Trailer),
              Lines(head + john + spouse + mary + wedding + children + ann + noMoreChildren));
}

TEST_F(GedcomReportTest, SeveralChildren_StandUnderOneHeading)
{
    EXPECT_EQ(ReportOf(SmallFamily + "1 CHIL @I1@\n1 CHIL @I3@\n" + Trailer),
              Lines(head + john + spouse + mary + wedding + children + ann + john + ann + noMoreChildren));
}

// With no lines of its own the name's words are those where the seeks stop: the lines of the next records.
TEST_F(GedcomReportTest, ANameWithoutItsParts_IsTakenFromTheRecordsBehind)
{
    QByteArray source = SmallFamily;
    source.replace("2 GIVN John\n2 SURN Smith\n", "");
    EXPECT_TRUE(ReportOf(source + Trailer)
                    .contains(QByteArray(nameLabel + "INDI  Jones\r\n          Gender:     Female\r\r\n")));
}

TEST_F(GedcomReportTest, AGivenNameOfSeveralWords_IsCutBehindTheFirst)
{
    QByteArray source = SmallFamily;
    source.replace("2 GIVN John\n", "2 GIVN John Paul\n");
    EXPECT_TRUE(ReportOf(source + Trailer).contains(QByteArray(nameLabel + "John   Smith\r\n")));
}

struct Gender {
    const char* Name;
    const char* Line;
    const char* Written;
};

void PrintTo(const Gender& gender, std::ostream* out)
{
    *out << gender.Name;
}

class GedcomGenderTest : public ConversionTest, public testing::WithParamInterface<Gender>
{
};

TEST_P(GedcomGenderTest, AllButMale_IsFemale)
{
    QByteArray source = SmallFamily;
    source.replace("1 SEX M\n", GetParam().Line);
    EXPECT_TRUE(ReportOf(source + Trailer)
                    .contains(QByteArray(QByteArray("John  Smith\r\n          Gender:     ") + GetParam().Written +
                                         "\r\r\n     Birth")));
}

INSTANTIATE_TEST_SUITE_P(Values, GedcomGenderTest,
                         testing::Values(Gender{"Male", "1 SEX M\n", "Male"}, Gender{"Small", "1 SEX m\n", "Male"},
                                         Gender{"Female", "1 SEX F\n", "Female"},
                                         Gender{"Whole", "1 SEX Male\n", "Female"},
                                         Gender{"WithBlank", "1 SEX M \n", "Female"},
                                         Gender{"Empty", "1 SEX\n", "Female"}),
                         [](const auto& gender) { return std::string(gender.param.Name); });

TEST_F(GedcomReportTest, BirthAndChristeningMissing_LeaveTheirLinesOut)
{
    QByteArray source = SmallFamily;
    source.replace("1 CHR\n2 DATE 20 June 1902\n2 PLAC York\n", "1 NOTE x0\n");
    const QByteArrayList bare{mary[0], mary[1], mary[4]};
    EXPECT_EQ(ReportOf(source + Trailer),
              Lines(head + john + spouse + bare + wedding + children + ann + noMoreChildren));
}

// The christening stands before the birth here; behind a birth only what follows it is looked at.
TEST_F(GedcomReportTest, AChristeningBeforeTheBirth_IsNotFound)
{
    QByteArray source = SmallFamily;
    source.replace("1 BIRT\n2 DATE 1930", "1 CHR\n2 DATE 1931\n2 PLAC Goole\n1 BIRT\n2 DATE 1930");
    source.replace("2 PLAC Hull\n1 CHR\n2 DATE 1931\n2 PLAC Goole\n", "2 PLAC Hull\n");
    const QByteArrayList withoutChristening{ann[0], ann[1], ann[2], ann[3], ann[6]};
    EXPECT_EQ(ReportOf(source + Trailer),
              Lines(head + john + spouse + mary + wedding + children + withoutChristening + noMoreChildren));
}

TEST_F(GedcomReportTest, LineEndsOfAnyKind_GiveTheSameReport)
{
    const QByteArray expected = ReportOf(SmallFamily + Trailer);
    // The additional one ends the run as a second character of the last line would.
    ConvertBytes((SmallFamily + Trailer + "\n"));
    EXPECT_EQ(Report(), expected);
    ConvertBytes(QByteArray(SmallFamily + Trailer + "\n").replace('\n', '\r'));
    EXPECT_EQ(Report(), expected);
}

struct Encoding {
    const char* Name;
    const char* Bytes;
    QStringView Shown;
};

void PrintTo(const Encoding& encoding, std::ostream* out)
{
    *out << encoding.Name;
}

class GedcomEncodingTest : public ConversionTest, public testing::WithParamInterface<Encoding>
{
};

TEST_P(GedcomEncodingTest, AName_KeepsItsBytesAndIsShownAsText)
{
    QByteArray source = SmallFamily;
    source.replace("SURN Smith", QByteArray(QByteArray("SURN ") + GetParam().Bytes));
    EXPECT_TRUE(ReportOf(source + Trailer).contains(QByteArray(nameLabel + "John  " + GetParam().Bytes + "\r\n")));
    EXPECT_TRUE(Panel().contains(QString(QString::fromUtf8(nameLabel) + u"John  " + GetParam().Shown)));
}

INSTANTIATE_TEST_SUITE_P(Encodings, GedcomEncodingTest,
                         testing::Values(Encoding{"Utf8", "M\xC3\xBCller", u"M\u00FCller"},
                                         Encoding{"Windows1252", "M\xFCller\x80", u"M\u00FCller\u20AC"},
                                         Encoding{"Ansel", "M\xE8uller", u"M\u00E8uller"}),
                         [](const auto& encoding) { return std::string(encoding.param.Name); });

} // namespace
} // namespace lineforge
