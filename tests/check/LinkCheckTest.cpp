#include "check/CheckTest.h"

#include <QFile>

namespace lineforge::check
{
namespace
{

using namespace Qt::StringLiterals;

class LinkCheckTest : public CheckTest
{
protected:
    void GivenJones(const std::vector<FieldText>& row)
    {
        WriteAliasList(home, {{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}});
        BranchBuilder(home, u'B').Row(row).Boxes(u"1200,600,255,B001,Tom,").Picture(u"B001", Qt::red).Gallery().Build();
    }

    void SetLink(const QByteArray& field, const QByteArray& value) const
    {
        Sql("UPDATE Tree99 SET " + field + " = " + value + " WHERE File = 'A003'");
    }
};

struct Row {
    QByteArray Field;
    QByteArray Value;
    QStringView Text; // empty: nothing is wrong
};

class LinkTest : public LinkCheckTest, public testing::WithParamInterface<Row>
{
};

TEST_P(LinkTest, LeadsToARecord_OrIsTold)
{
    GivenJones({{u"File", u"B001"}});
    Sql("INSERT INTO Tree99 (File) VALUES ('Z001')");
    SetLink(GetParam().Field, GetParam().Value);
    Found found = Findings();
    std::erase_if(found, [](const Finding& each) { return IsNote(each.Kind); });
    EXPECT_EQ(found, GetParam().Text.isEmpty() ? Found() : Found{Of(Kind::Link, database, u"A003", GetParam().Text)});
}

INSTANTIATE_TEST_SUITE_P(
    Links, LinkTest,
    testing::Values(Row{"FatherRec", "NULL", u""}, Row{"FatherRec", "''", u""}, Row{"FatherRec", "'0'", u""},
                    Row{"FatherRec", "'a002'", u""}, Row{"FatherRec", "'b001'", u""}, Row{"FatherRec", "'Z001'", u""},
                    Row{"FatherRec", "'A009'", u"FatherRec leads to A009, which isn't there"},
                    Row{"MotherRec", "'B002'", u"MotherRec leads to B002, which isn't there"},
                    Row{"SpouseRec", "'C001'", u"SpouseRec leads to C001, and there is no branch LfgDat_C"},
                    Row{"SpouseRec", "'Z002'", u"SpouseRec leads to Z002, and there is no branch LfgDat_Z"},
                    Row{"SpouseRec", "'A001 '", u"SpouseRec leads to A001 , which isn't there"},
                    Row{"SpouseRec", "' '", u"SpouseRec leads to  , and there is no branch LfgDat_ "},
                    Row{"SpouseRec", "'John'", u"SpouseRec leads to John, and there is no branch LfgDat_J"},
                    Row{"SpouseRec", "'/001'", u"SpouseRec leads to /001, and there is no branch LfgDat_/"}));

TEST_F(LinkCheckTest, LinkFromASibling_IsFollowed)
{
    GivenJones({{u"File", u"B001"}, {u"FatherRec", u"A001"}, {u"MotherRec", u"A004"}});
    EXPECT_EQ(Findings(),
              Found{Of(Kind::Link, u"LfgDat_B/LfgDat_B.mdb", u"B001", u"MotherRec leads to A004, which isn't there")});
}

// What is wrong with its database is told there, and not at every link that leads into it.
TEST_F(LinkCheckTest, LinkIntoABranchThatCantBeRead_IsLeftAlone)
{
    GivenJones({{u"File", u"B001"}});
    home.WriteFile(u"LfgDat_B/LfgDat_B.mdb", "none");
    SetLink("FatherRec", "'B007'");
    EXPECT_EQ(Findings(), Found{Of(Kind::Database, u"LfgDat_B/LfgDat_B.mdb", u"", u"this is no database of records")});
}

} // namespace
} // namespace lineforge::check
