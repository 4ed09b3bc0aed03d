#include "gedcom/report/GedSeek.h"

#include <gtest/gtest.h>

namespace lineforge
{
namespace
{

struct ParsedLine {
    const char* What;
    const char* Line;
    const char* Level;
    const char* Tag;
    const char* Value;
    const char* Rest;
};

void PrintTo(const ParsedLine& line, std::ostream* out)
{
    *out << line.What;
}

constexpr char kept[] = "kept";

const ParsedLine parsedLines[] = {
    {"a name: first name with its blank, slashed surname as rest", "1 NAME John /Smith/", "1", "NAME", "John ",
     "/Smith/"},
    {"the first line of a record: reference and word", "0 @I1@ INDI", "0", "@I1@", "INDI", ""},
    {"a date: day with its blank, month and year as rest", "2 DATE 10 May 1901", "2", "DATE", "10 ", "May 1901"},
    {"a tag alone leaves the value as it was", "1 BIRT", "1", "BIRT", kept, ""},
    {"a tag and a blank leave it too", "1 BIRT ", "1", "BIRT", kept, ""},
    {"a value of one word has no blank", "1 SEX M", "1", "SEX", "M", ""},
    {"a value that ends in its blank", "1 SEX M ", "1", "SEX", "M ", ""},
    {"two blanks behind the tag: the value is the second", "2 DATE  10 May", "2", "DATE", " ", "10 May"},
    {"three: the third is the rest's", "2 DATE   10", "2", "DATE", " ", " 10"},
    {"blanks within the rest are kept", "1 NOTE a  b   c ", "1", "NOTE", "a ", " b   c "},
    {"a level of two digits misplaces every field", "10 NOTE text here", "1", "", "NOTE ", "text here"},
    {"a blank before the level does too", " 1 NAME John", " ", "", "NAME ", "John"},
    {"a blank at the third character is a tag of no length", "0  HEAD x", "0", "", "HEAD ", "x"},
    {"no blank behind the level goes unseen", "1-NAME John", "1", "NAME", "John", ""},
    {"a tabulator is no blank", "1 NAME\tJohn", "1", "NAME\tJohn", kept, ""},
    {"bytes beyond ASCII stand for themselves", "1 NAME J\xF6rg \xC3\xA9", "1", "NAME", "J\xF6rg ", "\xC3\xA9"},
    {"a mark at the file's start is the level",
     "\xEF\xBB\xBF"
     "0 HEAD",
     "\xEF",
     "\xBF"
     "0",
     "HEAD", ""},
    {"line ends don't come into the rest", "1 NOTE a b\rc\nd", "1", "NOTE", "a ", "bcd"},
    {"three characters", "0 X", "0", "X", kept, ""},
    {"two have no tag", "0 ", "0", kept, kept, ""},
    {"none has nothing", "", "", kept, kept, ""},
};

class GedParseLineTest : public testing::TestWithParam<ParsedLine>
{
};

TEST_P(GedParseLineTest, ALine_IsCutAtItsPlaces)
{
    GedcomState gedcom;
    gedcom.sGedLevel = kept;
    gedcom.sGedTag = kept;
    gedcom.sGedValue = kept;
    gedcom.sGedRest = kept;
    gedcom.sGedLine = GetParam().Line;
    GedParseLine(gedcom);
    EXPECT_EQ(gedcom.sGedLevel, QByteArray(GetParam().Level));
    EXPECT_EQ(gedcom.sGedTag, QByteArray(GetParam().Tag));
    EXPECT_EQ(gedcom.sGedValue, QByteArray(GetParam().Value));
    EXPECT_EQ(gedcom.sGedRest, QByteArray(GetParam().Rest));
    EXPECT_EQ(gedcom.sGedLine, QByteArray(GetParam().Line));
}

INSTANTIATE_TEST_SUITE_P(Lines, GedParseLineTest, testing::ValuesIn(parsedLines));

} // namespace
} // namespace lineforge
