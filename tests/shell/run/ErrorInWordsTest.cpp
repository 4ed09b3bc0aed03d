#include "shell/run/ErrorInWords.h"

#include <gtest/gtest.h>
#include <ostream>

namespace lineforge
{
namespace
{
using namespace Qt::StringLiterals;

struct Fatality {
    RuntimeError Error;
    QStringView Text;
};

void PrintTo(const Fatality& fatality, std::ostream* out)
{
    *out << fatality.Error.Number;
}

class FatalTextTest : public testing::TestWithParam<Fatality>
{
};

TEST_P(FatalTextTest, TellsTheNumber_ThePlatformsText_AndInPlainWordsWhatItIsAbout)
{
    EXPECT_EQ(FatalText(GetParam().Error), GetParam().Text);
}

INSTANTIATE_TEST_SUITE_P(
    Errors, FatalTextTest,
    testing::Values(
        Fatality{RuntimeError(9), u"Run-time error '9':\n\nSubscript out of range"},
        Fatality{RuntimeError(5, u"x"_s), u"Run-time error '5':\n\nInvalid procedure call or argument\n\n"
                                          u"The program can do nothing with this:\nx"},
        Fatality{RuntimeError(6, u"40000"_s),
                 u"Run-time error '6':\n\nOverflow\n\nThis number is out of range:\n40000"},
        Fatality{RuntimeError(7, u"x"_s),
                 u"Run-time error '7':\n\nOut of memory\n\nThe memory isn't enough for this:\nx"},
        Fatality{RuntimeError(9, u"101"_s), u"Run-time error '9':\n\nSubscript out of range\n\n"
                                            u"The list or table that is needed has no place of this number:\n101"},
        Fatality{RuntimeError(13, u"xx"_s),
                 u"Run-time error '13':\n\nType mismatch\n\nA number should stand where this stands:\nxx"},
        Fatality{RuntimeError(53, u"/a%1/b.jpg"_s),
                 u"Run-time error '53':\n\nFile not found\n\nThere is no such file:\n/a%1/b.jpg"},
        Fatality{RuntimeError(57, u"x\nRecord A001"_s),
                 u"Run-time error '57':\n\nDevice I/O error\n\nThe disk failed at this:\nx\nRecord A001"},
        Fatality{RuntimeError(58, u"x"_s), u"Run-time error '58':\n\nFile already exists\n\n"
                                           u"A file of this name is there already:\nx"},
        Fatality{RuntimeError(61, u"x"_s),
                 u"Run-time error '61':\n\nDisk full\n\nThe disk has no room left for this:\nx"},
        Fatality{RuntimeError(62, u"x"_s),
                 u"Run-time error '62':\n\nInput past end of file\n\nThis file ends too early:\nx"},
        Fatality{RuntimeError(70, u"x"_s), u"Run-time error '70':\n\nPermission denied\n\n"
                                           u"This isn't permitted with:\nx"},
        Fatality{RuntimeError(75, u"x"_s), u"Run-time error '75':\n\nPath/File access error\n\n"
                                           u"This can't be opened, made, changed or removed:\nx"},
        Fatality{RuntimeError(76, u"x"_s), u"Run-time error '76':\n\nPath not found\n\nThere is no such directory:\nx"},
        Fatality{RuntimeError(91, u"x"_s), u"Run-time error '91':\n\nObject variable not set\n\n"
                                           u"No database is open for this:\nx"},
        Fatality{RuntimeError(94, u"Forename"_s),
                 u"Run-time error '94':\n\nInvalid use of Null\n\nThis field has never been filled in:\nForename"},
        Fatality{RuntimeError(340, u"x"_s), u"Run-time error '340':\n\nControl array element doesn't exist\n\n"
                                            u"This isn't in the window:\nx"},
        Fatality{RuntimeError(360, u"x"_s), u"Run-time error '360':\n\nObject already loaded\n\n"
                                            u"This is in the window already:\nx"},
        Fatality{RuntimeError(481, u"x"_s), u"Run-time error '481':\n\nInvalid picture\n\n"
                                            u"This file is no picture that can be shown:\nx"},
        Fatality{RuntimeError(482, u"x"_s), u"Run-time error '482':\n\nPrinter error\n\nx"},
        Fatality{RuntimeError(3020, u"x"_s), u"Run-time error '3020':\n\n"
                                             u"Update or CancelUpdate without AddNew or Edit.\n\n"
                                             u"There is no change to store in this database:\nx"},
        Fatality{RuntimeError(3021, u"x"_s), u"Run-time error '3021':\n\nNo current record.\n\n"
                                             u"No record is on show of this database:\nx"},
        Fatality{RuntimeError(3024, u"x"_s), u"Run-time error '3024':\n\nCouldn't find the database file.\n\n"
                                             u"This database isn't there, or can't be opened:\nx"},
        Fatality{RuntimeError(3027, u"x"_s), u"Run-time error '3027':\n\n"
                                             u"Can't update. Database or object is read-only.\n\n"
                                             u"This database can only be read:\nx"},
        Fatality{RuntimeError(3078, u"x"_s), u"Run-time error '3078':\n\n"
                                             u"The database engine can't find the input table.\n\n"
                                             u"This database has no table of records:\nx"},
        Fatality{RuntimeError(3167, u"x"_s), u"Run-time error '3167':\n\nRecord is deleted.\n\n"
                                             u"The record has been deleted from this database:\nx"},
        Fatality{RuntimeError(3260, u"x"_s), u"Run-time error '3260':\n\n"
                                             u"Couldn't update; currently locked.\n\n"
                                             u"Another program is working on this database:\nx"},
        Fatality{RuntimeError(3265, u"x"_s), u"Run-time error '3265':\n\n"
                                             u"Item not found in this collection.\n\n"
                                             u"The records have no such field:\nx"},
        Fatality{RuntimeError(3343, u"x"_s), u"Run-time error '3343':\n\nUnrecognized database format.\n\n"
                                             u"This can't be read as a database of records:\nx"}));

} // namespace
} // namespace lineforge
