#include "gedcom/report/ConversionTest.h"
#include "gedcom/report/LiteralMachine.h"

#include <QFile>

namespace lineforge
{
namespace
{

// Files of other programs, which stand beside the project and aren't part of it.
class RealFilesTest : public ConversionTest
{
protected:
    QByteArray Read(const QString& name)
    {
        QFile file(QStringLiteral(LINEFORGE_GEDCOM_FILES) + u'/' + name);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }
};

class EveryRealFileTest : public RealFilesTest, public testing::WithParamInterface<std::string>
{
};

TEST_P(EveryRealFileTest, ARealFile_IsReportedAsByReadingItOverForEverySeek)
{
    const QByteArray source = Read(QString::fromStdString(GetParam()));
    if (source.isEmpty())
        GTEST_SKIP() << "the folder of real files isn't there";
    constexpr int manyChildren = 40;
    LiteralMachine literal(source);
    const bool isWhole = literal.Convert(manyChildren);
    ConvertBytes(source);
    EXPECT_TRUE(IsCompleted());
    EXPECT_EQ(P.Gedcom.GedIndiNext, literal.IndiNext);
    EXPECT_EQ(P.Gedcom.GedFamNext, literal.FamNext);
    ASSERT_TRUE(P.Errors.Last);
    if (isWhole) {
        EXPECT_EQ(Report(), literal.Report);
        EXPECT_EQ(P.Errors.Last->Number, literal.Error);
    } else {
        EXPECT_TRUE(Report().startsWith(literal.Report));
        EXPECT_EQ(P.Errors.Last->Number, ErrorNumber::Overflow);
    }
}

INSTANTIATE_TEST_SUITE_P(Files, EveryRealFileTest,
                         testing::ValuesIn(std::vector<std::string>{
                             "555sample.ged", "allged.ged", "ansel-chart.ged", "ftm17-norse-ansi.ged",
                             "gramps-john-of-sea.ged", "heredis12-ansel.ged", "legacy10-tudor.ged", "royal92.ged",
                             "torture-TGC551-cr.ged", "torture-TGC551-crlf.ged"}));

// What the rules give for a small file, worked out from its lines by hand. Where a person has no line that is sought,
// the seek stops at the next record, whose word stands in the report, and the seeks behind it read on from there.
struct SmallFile {
    const char* Name;
    QByteArrayList Head; // of the report
    bool IsAll;
};

void PrintTo(const SmallFile& file, std::ostream* out)
{
    *out << file.Name;
}

const QByteArray rule = "   " + QByteArray(51, '-');
const QByteArray name = QByteArray(12, ' ') + " Name:     ";
const QByteArray male = "          Gender:     Male\r";
const QByteArray female = "          Gender:     Female\r";
const QByteArray birth = "     Birth Date:    ";
const QByteArray place = "            Place:    ";
const QByteArray spouse = "    SPOUSE ";
const QByteArray children = "    CHILDREN";

QByteArrayList HeadOf(const char* number)
{
    return {rule, "\r", QByteArray(QByteArray("   HEAD OF FAMILY (") + number + ")\r"), "\r"};
}

const SmallFile smallFiles[] = {
    // Surnames stand before the forenames, where no seek looks any more. The second family has no zero before it.
    {"555sample.ged",
     HeadOf("1") +
         QByteArrayList{name + "Robert   INDI",
                        female,
                        birth + "BEF 1828",
                        place + "Connecticut, United States of America",
                        "\r",
                        spouse,
                        name + "Mary   INDI",
                        male,
                        birth + "11 Jun 1861",
                        place + "Idaho Falls, Bonneville, Idaho, United States of America",
                        "\r",
                        "   MARRIAGE",
                        "            Date:    Dec 1859\r",
                        "           Place:    Rapid City, Pennington, South Dakota, United States of America\r",
                        "",
                        children,
                        name + "Joe  FAM",
                        female,
                        "\r",
                        ""} +
         HeadOf("2") + QByteArrayList{name + "  ", female, "\r", spouse},
     false},
    // The first family found has no wife, the second no marriage.
    {"allged.ged",
     HeadOf("1") + QByteArrayList{name + "INDI  INDI", female, "\r", spouse} + HeadOf("2") +
         QByteArrayList{name + "INDI  INDI", female, "   Christening:    BEF 31 DEC 1997", place + "The place", "\r",
                        spouse, name + "FAM  FAM", female, "\r", "", children, name + "INDI  FAM", female, "\r", ""} +
         HeadOf("3"),
     false},
    // Nobody has a forename of their own or a date of birth: all is found two and three records on.
    {"ansel-chart.ged",
     HeadOf("1") +
         QByteArrayList{name + "INDI  INDI", female, birth + "INDI",
                        place + "thorn - lowercase (\xB4), ligature ae - lowercase (\xB5), ligature oe - lowercase "
                                "(\xB6), tverdyi znak (\xB7)",
                        "\r", spouse, name + "INDI  INDI", female, birth + "INDI",
                        place + "degree sign (\xC0), script l (\xC1), phonograph copyright mark (\xC2), copyright "
                                "symbol (\xC3)",
                        "\r", "", children, name + "INDI  INDI", female, birth + "INDI"},
     false},
    // It has no family.
    {"heredis12-ansel.ged", {}, true},
    // More families than the list takes.
    {"gramps-john-of-sea.ged", {}, true},
};

class SmallRealFileTest : public RealFilesTest, public testing::WithParamInterface<SmallFile>
{
};

TEST_P(SmallRealFileTest, ASmallRealFile_IsReportedAsWorkedOutByHand)
{
    const QByteArray source = Read(QString::fromUtf8(GetParam().Name));
    if (source.isEmpty())
        GTEST_SKIP() << "the folder of real files isn't there";
    ConvertBytes(source);
    QByteArrayList lines = Report().replace("\r\n", "\n").split('\n');
    lines.removeLast();
    EXPECT_EQ(GetParam().IsAll ? lines : lines.mid(0, GetParam().Head.size()), GetParam().Head);
}

INSTANTIATE_TEST_SUITE_P(Files, SmallRealFileTest, testing::ValuesIn(smallFiles));

} // namespace
} // namespace lineforge
