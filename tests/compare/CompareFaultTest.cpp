#include "compare/CompareTest.h"

#include <QFile>

namespace lineforge
{
namespace
{

class CompareFaultTest : public CompareTest
{
protected:
    CompareFaultTest()
    {
        GivenComparison({{{u"File", u"A001"}, {u"Surname", u"Smith"}, {u"Forename", u"John"}}},
                        {{{u"File", u"B001"}, {u"Surname", u"Jones"}, {u"Forename", u"Mary"}}});
    }

    // The compare side as it was before the refused choice.
    void ExpectAsItWas()
    {
        EXPECT_EQ(ShownPair(), u"A001 B001"_s);
        EXPECT_EQ(P.Form6->Label7.Caption.value(), u"Jones"_s);
        EXPECT_EQ(Pair(), u"A001 B001"_s);
        EXPECT_EQ(P.Compare.SearchMask, 0);
        EXPECT_EQ(P.Compare.sCompDir, QString(Home.Path(u"LfgDat_B") + u'/'));
        Search();
        EXPECT_EQ(Texts(), u"Smith|Jones"_s);
    }
    void ExpectRefusal() { Tell(u"Read Only or Incorrect Database", u"Cannot open this database"); }
};

TEST_F(CompareFaultTest, MissingDatabase_IsTold_AndTheWindowStaysAsItWas)
{
    P.Files.Kill(DatabaseOf(u'C'));
    ExpectRefusal();
    ChooseCompare(u"Nobody");
    ExpectAsItWas();
}

TEST_F(CompareFaultTest, ReadOnlyDatabase_IsTold_AndTheWindowStaysAsItWas)
{
    Home.MakeReadOnly(u"LfgDat_C/LfgDat_C.mdb");
    ExpectRefusal();
    ChooseCompare(u"Nobody");
    ExpectAsItWas();
}

TEST_F(CompareFaultTest, FileThatIsNoDatabase_IsTold_AndTheWindowStaysAsItWas)
{
    Home.WriteFile(u"LfgDat_C/LfgDat_C.mdb", QByteArray(5000, 'x'));
    ExpectRefusal();
    ChooseCompare(u"Nobody");
    ExpectAsItWas();
}

TEST_F(CompareFaultTest, DatabaseDeletedWhileItIsOpen_CanBeSearchedOn)
{
    ASSERT_TRUE(QFile::remove(DatabaseOf(u'B')));
    Search();
    EXPECT_EQ(Texts(), u"Smith|Jones"_s);
    ExpectDatabaseInUse(Answer::Cancel);
    Click(P.Form6->Command3.Click);
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(CompareFaultTest, CutAndPasteWithoutAComparedBranch_TakeTheFatalPath)
{
    P.Form6.Unload();
    Click(P.Form1->mnuComp.Click);
    P.Form6->Text3.Click();
    ExpectFatalBox(u"Run-time error '91':\n\nObject variable not set",
                   u"No database is open for this:\nManual Compare Search"_s);
    Click(P.Form6->mnuCut.Click);
    EXPECT_TRUE(ExitCode().has_value());
}

TEST_F(CompareFaultTest, SearchWithoutAComparedBranch_TakesTheFatalPath)
{
    P.Form6.Unload();
    Click(P.Form1->mnuComp.Click);
    ExpectFatalBox(u"Run-time error '91':\n\nObject variable not set",
                   u"No database is open for this:\nManual Compare Search"_s);
    Search();
    EXPECT_TRUE(ExitCode().has_value());
}

} // namespace
} // namespace lineforge
