#include "check/CheckTest.h"

#include <QDir>
#include <QFile>

namespace lineforge::check
{
namespace
{

using namespace Qt::StringLiterals;

class RegistryCheckTest : public CheckTest
{
protected:
    void Write(const QByteArray& list, const QByteArray& settings = "0,")
    {
        home.WriteFile(u"AliasList.cfg", "x\r\n[Alias]\r\n[" + list + "]\r\n[CFG]\r\n[" + settings + "]\r\n");
    }

    static Finding OfList(QStringView text) { return Of(Kind::Registry, u"AliasList.cfg", u"", text); }
};

TEST_F(RegistryCheckTest, ListThatIsNotThere_IsTold_AndTheBranchesAreLookedAt)
{
    ASSERT_TRUE(QFile::remove(home.Path(u"AliasList.cfg")));
    Sql("UPDATE Tree99 SET FatherRec = 'A009' WHERE File = 'A003'");

    EXPECT_EQ(Findings(), (Found{OfList(u"the list of branches isn't there"),
                                 Of(Kind::Link, database, u"A003", u"FatherRec leads to A009, which isn't there")}));
}

TEST_F(RegistryCheckTest, BranchThatIsNotThere_IsTold)
{
    Write("Smiths=LfgDat_A,Jones=LfgDat_B,");
    EXPECT_EQ(Findings(), Found{OfList(u"the branch in LfgDat_B isn't there")});
}

TEST_F(RegistryCheckTest, BranchThatIsNotInTheList_IsTold)
{
    home.MakeDirectory(u"LfgDat_C");
    BranchBuilder(home, u'C').Gallery().Build();
    EXPECT_EQ(Findings(), Found{Of(Kind::Registry, u"LfgDat_C", u"", u"this branch isn't in the list of branches")});
}

TEST_F(RegistryCheckTest, OtherDirectoriesOfAHome_AreNoneOfItsBranches)
{
    home.MakeDirectory(u"LfgDat_AA");
    home.MakeDirectory(u"stick/LfgDat_C");
    EXPECT_EQ(Findings(), Found());
}

struct Row {
    QByteArray List;
    QStringView Text;
};

class RegistryEntryTest : public RegistryCheckTest, public testing::WithParamInterface<Row>
{
};

TEST_P(RegistryEntryTest, IsTold)
{
    Write(GetParam().List);
    EXPECT_EQ(Findings(), Found{OfList(GetParam().Text)});
}

INSTANTIATE_TEST_SUITE_P(
    Entries, RegistryEntryTest,
    testing::Values(
        Row{"Smiths=LfgDat_A,Jones,", u"the entry 'Jones' has no directory, and hides the branches behind it"},
        Row{"Smiths=LfgDat_A,Jones=here,", u"the entry 'Jones=here' leads to no directory of a branch"},
        Row{"Smiths=LfgDat_A,Jones=LfgDat_A/,", u"the entry 'Jones=LfgDat_A/' leads to no directory of a branch"},
        Row{"Smiths=LfgDat_A,Joneses=lfgdat_a,", u"the directory lfgdat_a stands there more than once"}));

class UnseenNameTest : public RegistryCheckTest, public testing::WithParamInterface<QByteArray>
{
};

TEST_P(UnseenNameTest, IsTold)
{
    Write(GetParam() + "=LfgDat_A,");
    EXPECT_EQ(Findings(), Found{OfList(u"the branch in LfgDat_A has a name of which nothing is seen")});
}

INSTANTIATE_TEST_SUITE_P(Names, UnseenNameTest,
                         testing::Values("", " ", "  \t", "\xc2\xa0", "\xc2\xad", "\xcc\x81", "\xe1\x85\x9f",
                                         "\xe2\x80\x8b", "\xe2\x81\xa0", "\xe3\x85\xa4", "\xef\xbb\xbf"));

TEST_F(RegistryCheckTest, NameOfWhichALittleIsSeen_IsNotTold)
{
    Write("\xe2\x80\x8b.=LfgDat_A,");
    EXPECT_EQ(Findings(), Found());
}

TEST_F(RegistryCheckTest, NameThatStandsTwice_IsTold)
{
    BranchBuilder(home, u'B').Gallery().Build();
    Write("Smiths=LfgDat_A,SMITHS=LfgDat_B,");
    EXPECT_EQ(Findings(), Found{OfList(u"the name 'SMITHS' stands there more than once")});
}

TEST_F(RegistryCheckTest, MoreEntriesThanTheProgramTakes_AreTold)
{
    QByteArray list = "Smiths=LfgDat_A,";
    for (int number = 2; number <= 99; ++number)
        list += "Name" + QByteArray::number(number) + "=LfgDat_A,";
    Write(list);
    const Found known = Findings();
    ASSERT_EQ(known.size(), 98);
    EXPECT_EQ(known.front(), OfList(u"the directory LfgDat_A stands there more than once"));

    Write(list + "Name100=LfgDat_A,");
    const Found found = Findings();
    EXPECT_EQ(found.front(), OfList(u"there are 100 entries; the program takes no more than 99"));
    EXPECT_EQ(found.size(), 99);
}

TEST_F(RegistryCheckTest, ListThatIsCutOff_IsTold)
{
    home.WriteFile(u"AliasList.cfg", "x\r\n[Alias]\r\n[Smiths=LfgDat_A,Jo");
    EXPECT_EQ(Findings(),
              (Found{OfList(u"the file ends inside the section [Alias]"), OfList(u"there is no section [CFG]")}));
}

TEST_F(RegistryCheckTest, EmptyFile_IsTold)
{
    home.WriteFile(u"AliasList.cfg", "");
    EXPECT_EQ(Findings(), (Found{OfList(u"there is no section [Alias]"), OfList(u"there is no section [CFG]"),
                                 Of(Kind::Registry, u"LfgDat_A", u"", u"this branch isn't in the list of branches")}));
}

TEST_F(RegistryCheckTest, SettingThatIsNoNumber_IsTold)
{
    Write("Smiths=LfgDat_A,", "yes,");
    EXPECT_EQ(Findings(), Found{OfList(u"the setting 'yes' is no number")});
}

} // namespace
} // namespace lineforge::check
