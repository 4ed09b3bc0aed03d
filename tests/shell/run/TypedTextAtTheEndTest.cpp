#include "forms/Form3.h"
#include "program/branch/WorkDatabase.h"
#include "shell/ShellTest.h"

// An error ends the program while a text is typed in the record form. It isn't what has failed, so it is stored.
namespace lineforge
{
namespace
{

class TypedTextAtTheEndTest : public ShellTest
{
protected:
    TypedTextAtTheEndTest()
    {
        GivenSmithsAndJones();
        Choose(u"Smiths");
        P.Form3->Data1.Settle();
        P.Form3->Text16.Text = u"Typed"_s;
        P.Databases.Others().Milliseconds = 0;
    }

    void ExpectOverflow() { ExpectFatalBox(u"Run-time error '6':\n\nOverflow"); }
    static void Fail() { throw RuntimeError(ErrorNumber::Overflow); }

    std::optional<QString> Stored(const QByteArray& file = "A001", const QByteArray& field = "Maiden")
    {
        return SqliteFile(Database).Value("SELECT " + field + " FROM Tree99 WHERE File = '" + file + "'");
    }

    const QString Database = Home.Path(u"LfgDat_A/LfgDat_A.mdb");
};

TEST_F(TypedTextAtTheEndTest, IsStored)
{
    ExpectOverflow();

    Click(Fail);

    EXPECT_EQ(ExitCode(), 1);
    EXPECT_EQ(Stored(), u"Typed"_s);
    EXPECT_EQ(Stored("A002"), std::nullopt);
    ASSERT_TRUE(P.Errors.Last);
    EXPECT_EQ(P.Errors.Last->Number, ErrorNumber::Overflow);
}

struct Leaving {
    const char* Name;
    const Event& (*Command)(Program& p);
};

void PrintTo(const Leaving& leaving, std::ostream* out)
{
    *out << leaving.Name;
}

class LeavingTest : public TypedTextAtTheEndTest, public testing::WithParamInterface<Leaving>
{
};

TEST_P(LeavingTest, MapThatCanNotBeWritten_CostsNoText)
{
    Home.MakeReadOnly(u"LfgDat_A/LfgDat_A.cfg");
    ExpectFatalBox(u"Run-time error '75':\n\nPath/File access error",
                   u"This can't be opened, made, changed or removed:\n"_s + Home.Path(u"LfgDat_A/LfgDat_A.cfg"));

    Click(GetParam().Command(P));

    EXPECT_EQ(ExitCode(), 1);
    EXPECT_EQ(Stored(), u"Typed"_s);
}

INSTANTIATE_TEST_SUITE_P(
    Commands, LeavingTest,
    testing::Values(Leaving{"Exit", [](Program& p) -> const Event& { return p.Form1->mnuExit.Click; }},
                    Leaving{"ExitFromTheGallery", [](Program& p) -> const Event& { return p.Form5->mnuExit.Click; }},
                    Leaving{"Close", [](Program& p) -> const Event& { return p.Form1->mnuCloseDB.Click; }},
                    Leaving{"Open", [](Program& p) -> const Event& { return p.Form1->Open.Click; }},
                    Leaving{"New", [](Program& p) -> const Event& { return p.Form1->New.Click; }}),
    [](const auto& tested) { return std::string(tested.param.Name); });

TEST_F(TypedTextAtTheEndTest, WhatTheCommandHadBegunInTheRecord_IsNot)
{
    ExpectOverflow();

    Click([this] {
        Records(P.Form3).Edit();
        Records(P.Form3).Put(u"Forename", u"Half"_s);
        Fail();
    });

    EXPECT_EQ(Stored(), u"Typed"_s);
    EXPECT_EQ(Stored("A001", "Forename"), u"John"_s);
}

TEST_F(TypedTextAtTheEndTest, RecordThatWasBeingAdded_IsNot)
{
    ExpectOverflow();

    Click([this] {
        Records(P.Form3).AddNew();
        Records(P.Form3).Put(u"File", u"A003"_s);
        P.Form3->Text16.Text = u"Typed later"_s;
        Fail();
    });

    EXPECT_EQ(Stored(), u"Typed later"_s);
    EXPECT_EQ(SqliteFile(Database).Value("SELECT count(*) FROM Tree99"), u"2"_s);
}

TEST_F(TypedTextAtTheEndTest, RecordThatAnotherProgramHasChanged_IsNotWrittenOver)
{
    SqliteFile(Database).Execute("UPDATE Tree99 SET Forename = 'Jack' WHERE File = 'A001'");
    Prompts.Expect(u"Record changed",
                   u"Record A001 has been changed by another program.\n"
                   u"Nothing was stored. The Record is shown as it is now.",
                   Buttons::Information);
    ExpectOverflow();

    Click(Fail);

    EXPECT_EQ(ExitCode(), 1);
    EXPECT_EQ(Stored(), u"none"_s);
}

TEST_F(TypedTextAtTheEndTest, DatabaseThatIsLocked_IsNotAskedAbout)
{
    SqliteFile other(Database);
    other.Execute("BEGIN IMMEDIATE");
    ExpectOverflow();

    Click(Fail);

    EXPECT_EQ(ExitCode(), 1);
    ASSERT_TRUE(P.Errors.Last);
    EXPECT_EQ(P.Errors.Last->Number, ErrorNumber::Overflow);
}

} // namespace
} // namespace lineforge
