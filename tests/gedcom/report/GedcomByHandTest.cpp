#include "gedcom/report/ConversionTest.h"

// Two small sources, worked out by hand: seek by seek, with the lines that follow each, and the report as a whole.
namespace lineforge
{
namespace
{

// How the source stands when a seek begins.
enum class From {
    Head,  // opened anew, outside of any record, as for each stage of a family
    Again, // opened anew for an individual, the state as it is
    Here,  // behind the line where the last seek has stopped
};

constexpr int nowhere = 0; // the end of the source, where the run ends by an error

struct SeekRow {
    From Begins;
    const char* For;
    int Stop;               // number of the line, from 1 on
    int State;              // afterwards: 1 inside a record
    const char* Value;      // afterwards
    const char* Rest;       // afterwards
    const char* Lines = ""; // written once it has stopped
};

struct WorkedOut {
    const char* Name;
    const char* Source;
    const char* Families; // those that are found, in their order
    std::vector<SeekRow> Seeks;
    const char* Report;
};

void PrintTo(const WorkedOut& workedOut, std::ostream* out)
{
    *out << workedOut.Name;
}

// F2 is found by the zero of "page 10"; F3 has none between itself and the record before, and is lost. Eve has no
// surname and no gender: both come from the records behind hers, and so does the place of her christening.
const WorkedOut hills{
    "Hills",
    "0 HEAD\n"                      // 1
    "1 CHAR ANSI\n"                 // 2
    "0 @I1@ INDI\n"                 // 3
    "1 NAME Adam /Hill/\n"          // 4
    "2 GIVN Adam\n"                 // 5
    "2 SURN Hill\n"                 // 6
    "1 SEX M\n"                     // 7
    "1 BIRT\n"                      // 8
    "2 DATE 3 May 1850\n"           // 9
    "2 PLAC Whitby, North Riding\n" // 10
    "0 @I2@ INDI\n"                 // 11
    "1 NAME Eve /Lund/\n"           // 12
    "2 GIVN Eve Mary\n"             // 13
    "1 NOTE of Malton\n"            // 14
    "1 CHR\n"                       // 15
    "2 DATE 1852\n"                 // 16
    "0 @I3@ INDI\n"                 // 17
    "1 NAME Ned /Hill/\n"           // 18
    "2 GIVN Ned\n"                  // 19
    "2 SURN Hill\n"                 // 20
    "1 SEX M\n"                     // 21
    "0 @F1@ FAM\n"                  // 22
    "1 HUSB @I1@\n"                 // 23
    "1 WIFE @I2@\n"                 // 24
    "1 CHIL @I3@\n"                 // 25
    "1 NOTE page 10\n"              // 26
    "0 @F2@ FAM\n"                  // 27
    "1 HUSB @I3@\n"                 // 28
    "0 @F3@ FAM\n"                  // 29
    "1 WIFE @I2@\n"                 // 30
    "0 TRLR\n",                     // 31
    "@F1@ @F2@",
    {
        // The first family's husband.
        {From::Head, "@F1@", 22, 1, "FAM", ""},
        {From::Here, "HUSB", 23, 0, "@I1@", "",
         "   ---------------------------------------------------\r\n"
         "\r\r\n"
         "   HEAD OF FAMILY (1)\r\r\n"
         "\r\r\n"},
        {From::Again, "@I1@", 3, 1, "INDI", ""},
        {From::Here, "NAME", 4, 1, "Adam ", "/Hill/"},
        {From::Here, "GIVN", 5, 1, "Adam", ""},
        {From::Here, "SURN", 6, 1, "Hill", "", "             Name:     Adam  Hill\r\n"},
        {From::Here, "SEX", 7, 1, "M", "", "          Gender:     Male\r\r\n"},
        {From::Here, "BIRT", 8, 1, "", ""},
        {From::Here, "DATE", 9, 1, "3 ", "May 1850", "     Birth Date:    3 May 1850\r\n"},
        {From::Here, "PLAC", 10, 1, "Whitby, ", "North Riding", "            Place:    Whitby, North Riding\r\n"},
        {From::Here, "CHR", 11, 1, "INDI", "",
         "\r\r\n"
         "    SPOUSE \r\n"},
        // His wife.
        {From::Head, "@F1@", 22, 1, "FAM", ""},
        {From::Here, "WIFE", 24, 0, "@I2@", ""},
        {From::Again, "@I2@", 11, 1, "INDI", ""},
        {From::Here, "NAME", 12, 1, "Eve ", "/Lund/"},
        {From::Here, "GIVN", 13, 1, "Eve ", "Mary"},
        {From::Here, "SURN", 17, 1, "INDI", "", "             Name:     Eve   INDI\r\n"},
        {From::Here, "SEX", 21, 1, "M", "", "          Gender:     Male\r\r\n"},
        {From::Here, "BIRT", 22, 1, "FAM", ""},
        {From::Head, "@I2@", 11, 1, "INDI", ""},
        {From::Here, "CHR", 15, 1, "of ", ""},
        {From::Here, "DATE", 16, 1, "1852", "", "   Christening:    1852\r\n"},
        {From::Here, "PLAC", 17, 1, "INDI", "",
         "            Place:    INDI\r\n"
         "\r\r\n"},
        // No marriage.
        {From::Head, "@F1@", 22, 1, "FAM", ""},
        {From::Here, "MARR", 27, 1, "FAM", ""},
        // A child, and the search for another, which ends in an empty line.
        {From::Head, "@F1@", 22, 1, "FAM", ""},
        {From::Here, "CHIL", 25, 0, "@I3@", "",
         "\r\n"
         "    CHILDREN\r\n"},
        {From::Again, "@I3@", 17, 1, "INDI", ""},
        {From::Here, "NAME", 18, 1, "Ned ", "/Hill/"},
        {From::Here, "GIVN", 19, 1, "Ned", ""},
        {From::Here, "SURN", 20, 1, "Hill", "", "             Name:     Ned  Hill\r\n"},
        {From::Here, "SEX", 21, 1, "M", "", "          Gender:     Male\r\r\n"},
        {From::Here, "BIRT", 22, 1, "FAM", ""},
        {From::Head, "@I3@", 17, 1, "INDI", ""},
        {From::Here, "CHR", 22, 1, "FAM", "", "\r\r\n"},
        {From::Head, "@F1@", 22, 1, "FAM", ""},
        {From::Here, "CHIL", 25, 0, "@I3@", ""},
        {From::Here, "CHIL", 27, 1, "FAM", "", "\r\n"},
        // The second family has a husband and nobody else.
        {From::Head, "@F2@", 27, 1, "FAM", ""},
        {From::Here, "HUSB", 28, 0, "@I3@", "",
         "   ---------------------------------------------------\r\n"
         "\r\r\n"
         "   HEAD OF FAMILY (2)\r\r\n"
         "\r\r\n"},
        {From::Again, "@I3@", 17, 1, "INDI", ""},
        {From::Here, "NAME", 18, 1, "Ned ", "/Hill/"},
        {From::Here, "GIVN", 19, 1, "Ned", ""},
        {From::Here, "SURN", 20, 1, "Hill", "", "             Name:     Ned  Hill\r\n"},
        {From::Here, "SEX", 21, 1, "M", "", "          Gender:     Male\r\r\n"},
        {From::Here, "BIRT", 22, 1, "FAM", ""},
        {From::Head, "@I3@", 17, 1, "INDI", ""},
        {From::Here, "CHR", 22, 1, "FAM", "",
         "\r\r\n"
         "    SPOUSE \r\n"},
        {From::Head, "@F2@", 27, 1, "FAM", ""},
        {From::Here, "WIFE", 29, 1, "FAM", ""},
        // The pass behind the last family looks for nothing, and ends the run.
        {From::Head, "", nowhere, 0, "", ""},
    },
    "   ---------------------------------------------------\r\n"
    "\r\r\n"
    "   HEAD OF FAMILY (1)\r\r\n"
    "\r\r\n"
    "             Name:     Adam  Hill\r\n"
    "          Gender:     Male\r\r\n"
    "     Birth Date:    3 May 1850\r\n"
    "            Place:    Whitby, North Riding\r\n"
    "\r\r\n"
    "    SPOUSE \r\n"
    "             Name:     Eve   INDI\r\n"
    "          Gender:     Male\r\r\n"
    "   Christening:    1852\r\n"
    "            Place:    INDI\r\n"
    "\r\r\n"
    "\r\n"
    "    CHILDREN\r\n"
    "             Name:     Ned  Hill\r\n"
    "          Gender:     Male\r\r\n"
    "\r\r\n"
    "\r\n"
    "   ---------------------------------------------------\r\n"
    "\r\r\n"
    "   HEAD OF FAMILY (2)\r\r\n"
    "\r\r\n"
    "             Name:     Ned  Hill\r\n"
    "          Gender:     Male\r\r\n"
    "\r\r\n"
    "    SPOUSE \r\n",
};

// The level of two digits in line 16 hides a date, and its empty tag is what the pass behind the last family looks for:
// that finds a family more, which has nobody in it. Its zero is also what F1 is found by.
const WorkedOut moors{
    "Moors",
    "0 HEAD\n"             // 1
    "0 @I1@ INDI\n"        // 2
    "1 NAME Ann /Moor/\n"  // 3
    "2 GIVN Ann\n"         // 4
    "2 SURN Moor\n"        // 5
    "1 SEX F\n"            // 6
    "1 CHR\n"              // 7
    "2 DATE 1 JAN 1900\n"  // 8
    "2 PLAC Hull\n"        // 9
    "0 @I2@ INDI\n"        // 10
    "1 NAME Tom /Dale/\n"  // 11
    "2 GIVN Tom\n"         // 12
    "2 SURN Dale\n"        // 13
    "1 SEX M\n"            // 14
    "1 BIRT\n"             // 15
    "10 DATE 4 Jun 1899\n" // 16
    "2 DATE 5 Jun 1899\n"  // 17
    "2 PLAC York\n"        // 18
    "0 @F1@ FAM\n"         // 19
    "1 WIFE @I1@\n"        // 20
    "1 MARR\n"             // 21
    "2 DATE ABT 1921\n"    // 22
    "1 CHIL @I2@\n"        // 23
    "0 TRLR\n",            // 24
    "@F1@",
    {
        // No husband: the seek ends at the trailer.
        {From::Head, "@F1@", 19, 1, "FAM", ""},
        {From::Here, "HUSB", 24, 1, "@I2@", "",
         "   ---------------------------------------------------\r\n"
         "\r\r\n"
         "   HEAD OF FAMILY (1)\r\r\n"
         "\r\r\n"
         "    SPOUSE \r\n"},
        {From::Head, "@F1@", 19, 1, "FAM", ""},
        {From::Here, "WIFE", 20, 0, "@I1@", ""},
        {From::Again, "@I1@", 2, 1, "INDI", ""},
        {From::Here, "NAME", 3, 1, "Ann ", "/Moor/"},
        {From::Here, "GIVN", 4, 1, "Ann", ""},
        {From::Here, "SURN", 5, 1, "Moor", "", "             Name:     Ann  Moor\r\n"},
        {From::Here, "SEX", 6, 1, "F", "", "          Gender:     Female\r\r\n"},
        {From::Here, "BIRT", 10, 1, "INDI", ""},
        {From::Head, "@I1@", 2, 1, "INDI", ""},
        {From::Here, "CHR", 7, 1, "F", ""},
        {From::Here, "DATE", 8, 1, "1 ", "JAN 1900", "   Christening:    1 JAN 1900\r\n"},
        {From::Here, "PLAC", 9, 1, "Hull", "",
         "            Place:    Hull\r\n"
         "\r\r\n"},
        // The marriage has no place: what the child's line has left stands for it.
        {From::Head, "@F1@", 19, 1, "FAM", ""},
        {From::Here, "MARR", 21, 1, "@I1@", ""},
        {From::Here, "DATE", 22, 1, "ABT ", "1921",
         "   MARRIAGE\r\n"
         "            Date:    ABT 1921\r\r\n"},
        {From::Here, "PLAC", 24, 1, "@I2@", "", "           Place:    @I2@\r\r\n"},
        {From::Head, "@F1@", 19, 1, "FAM", ""},
        {From::Here, "CHIL", 23, 0, "@I2@", "",
         "\r\n"
         "    CHILDREN\r\n"},
        {From::Again, "@I2@", 10, 1, "INDI", ""},
        {From::Here, "NAME", 11, 1, "Tom ", "/Dale/"},
        {From::Here, "GIVN", 12, 1, "Tom", ""},
        {From::Here, "SURN", 13, 1, "Dale", "", "             Name:     Tom  Dale\r\n"},
        {From::Here, "SEX", 14, 1, "M", "", "          Gender:     Male\r\r\n"},
        {From::Here, "BIRT", 15, 1, "", ""},
        {From::Here, "DATE", 17, 1, "5 ", "Jun 1899", "     Birth Date:    5 Jun 1899\r\n"},
        {From::Here, "PLAC", 18, 1, "York", "", "            Place:    York\r\n"},
        {From::Here, "CHR", 19, 1, "FAM", "", "\r\r\n"},
        {From::Head, "@F1@", 19, 1, "FAM", ""},
        {From::Here, "CHIL", 23, 0, "@I2@", ""},
        {From::Here, "CHIL", 24, 1, "", "", "\r\n"},
        // The pass behind the last family.
        {From::Head, "", 16, 1, "DATE ", "4 Jun 1899"},
        {From::Here, "HUSB", 19, 1, "FAM", "",
         "   ---------------------------------------------------\r\n"
         "\r\r\n"
         "   HEAD OF FAMILY (2)\r\r\n"
         "\r\r\n"
         "    SPOUSE \r\n"},
        {From::Head, "", 16, 1, "DATE ", "4 Jun 1899"},
        {From::Here, "WIFE", 19, 1, "FAM", ""},
    },
    "   ---------------------------------------------------\r\n"
    "\r\r\n"
    "   HEAD OF FAMILY (1)\r\r\n"
    "\r\r\n"
    "    SPOUSE \r\n"
    "             Name:     Ann  Moor\r\n"
    "          Gender:     Female\r\r\n"
    "   Christening:    1 JAN 1900\r\n"
    "            Place:    Hull\r\n"
    "\r\r\n"
    "   MARRIAGE\r\n"
    "            Date:    ABT 1921\r\r\n"
    "           Place:    @I2@\r\r\n"
    "\r\n"
    "    CHILDREN\r\n"
    "             Name:     Tom  Dale\r\n"
    "          Gender:     Male\r\r\n"
    "     Birth Date:    5 Jun 1899\r\n"
    "            Place:    York\r\n"
    "\r\r\n"
    "\r\n"
    "   ---------------------------------------------------\r\n"
    "\r\r\n"
    "   HEAD OF FAMILY (2)\r\r\n"
    "\r\r\n"
    "    SPOUSE \r\n",
};

class GedcomByHandTest : public ConversionTest, public testing::WithParamInterface<WorkedOut>
{
protected:
    QByteArray Source() const { return Crlf(GetParam().Source); }

    void Begin(From from)
    {
        if (from == From::Here)
            return;
        P.Gedcom.Source->Close();
        P.Gedcom.Source->Open();
        if (from == From::Head)
            P.Scratch.ScanState = GedRecord::Outside;
    }

    void ExpectSeek(const SeekRow& row)
    {
        Begin(row.Begins);
        P.Gedcom.sSeekFor = row.For;
        EXPECT_EQ(RefusalOf([&] { GedSeek(P); }), row.Stop == nowhere ? ErrorNumber::InputPastEnd : 0);
        if (row.Stop == nowhere)
            return;
        EXPECT_EQ(P.Gedcom.sGedLine, QByteArray(GetParam().Source).split('\n').value(row.Stop - 1));
        EXPECT_EQ(P.Scratch.ScanState, row.State);
        EXPECT_EQ(P.Gedcom.sGedValue, row.Value);
        EXPECT_EQ(P.Gedcom.sGedRest, row.Rest);
    }
};

TEST_P(GedcomByHandTest, Seeks_StopWhereTheyWereWorkedOutTo)
{
    GivenSource(Source());
    GivenReport();
    for (const SeekRow& row : GetParam().Seeks) {
        SCOPED_TRACE(testing::Message() << row.For << " to line " << row.Stop);
        ExpectSeek(row);
    }
}

TEST_P(GedcomByHandTest, Families_AreThoseThatWereWorkedOut)
{
    ConvertBytes(Source());
    QByteArrayList families;
    for (int index = 1; index < P.Gedcom.GedFamNext; ++index)
        families << P.Gedcom.GedFamList[index];
    EXPECT_EQ(families.join(' '), GetParam().Families);
}

TEST_P(GedcomByHandTest, Report_IsTheOneWorkedOut_ToItsLastLine)
{
    ConvertBytes(Source());
    EXPECT_EQ(Report(), GetParam().Report);
    EXPECT_TRUE(IsCompleted());

    QByteArray lines;
    for (const SeekRow& row : GetParam().Seeks)
        lines += row.Lines;
    EXPECT_EQ(lines, GetParam().Report);
}

INSTANTIATE_TEST_SUITE_P(Sources, GedcomByHandTest, testing::Values(hills, moors),
                         [](const auto& workedOut) { return std::string(workedOut.param.Name); });

} // namespace
} // namespace lineforge
