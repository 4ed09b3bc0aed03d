#include "records/RecordTest.h"

#include <QFile>

// A program that keeps directories the same on several machines puts another file in the place of the branch's database
// while the user works on it.
namespace lineforge
{
namespace
{

class ReplacedBranchTest : public RecordTest
{
protected:
    ReplacedBranchTest()
    {
        GivenRecordForm();
        P.Form3->Data1.Settle();
    }

    // By a copy of it, changed by these statements.
    void Replace(const QByteArray& sql)
    {
        const QString fresh = Home.Path(u"fresh.mdb");
        ASSERT_TRUE(QFile::copy(Database, fresh));
        SqliteFile(fresh).Execute(sql);
        ASSERT_EQ(std::rename(QFile::encodeName(fresh).constData(), QFile::encodeName(Database).constData()), 0);
    }

    void ExpectReplaced()
    {
        const QString text = u"Another program has put another file in the place of this Database:\n"_s + Database +
                             u"\nIts Records are shown from now on.";
        Prompts.Expect(u"Database replaced", text, Buttons::Information);
    }

    void ScanOn()
    {
        P.Form3->Picture2.Click();
        Click(P.Form3->Timer1.Tick);
    }

    const QString Database = Home.Path(u"LfgDat_A/LfgDat_A.mdb");
};

TEST_F(ReplacedBranchTest, NextMove_ShowsTheNewFile_AndTells)
{
    Replace("UPDATE Tree99 SET Surname = 'Brown' WHERE File = 'A002'");
    ExpectReplaced();

    ScanOn();

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(Current(), u"A002"_s);
    EXPECT_EQ(P.Form3->Text2.Text.value(), u"Brown"_s);
}

TEST_F(ReplacedBranchTest, WhatIsTyped_IsStoredInTheNewFile_InTheSamePerson)
{
    P.Form3->Text2.Text = u"Typed"_s;
    Replace("INSERT INTO Tree99 (rowid, File) VALUES (0, 'A009'); VACUUM");
    ExpectReplaced();

    ScanOn();

    EXPECT_EQ(Stored("Surname"), u"Typed"_s);
    EXPECT_EQ(Stored("Surname", "A002"), u"Jones"_s);
    EXPECT_EQ(Stored("Surname", "A009"), std::nullopt);
}

TEST_F(ReplacedBranchTest, WhatIsTypedForAPersonWhoIsAnotherThere_IsNotStored_AndBothAreTold)
{
    P.Form3->Text2.Text = u"Typed"_s;
    Replace("UPDATE Tree99 SET Forename = 'Jack' WHERE File = 'A001'");
    ExpectReplaced();
    Prompts.Expect(u"Record changed",
                   u"Record A001 has been changed by another program.\n"
                   u"Nothing was stored. The Record is shown as it is now.",
                   Buttons::Information);

    ScanOn();

    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(Current(), u"A001"_s);
    EXPECT_EQ(P.Form3->Text3.Text.value(), u"Jack"_s);
    EXPECT_EQ(Stored("Surname"), u"Smith"_s);
}

TEST_F(ReplacedBranchTest, FieldsOfTheNewFile_AreWrittenToFromThenOn)
{
    Replace("UPDATE Tree99 SET Surname = 'Brown' WHERE File = 'A002'");
    ExpectReplaced();
    ScanOn();
    P.Form3->Text2.Text = u"Green"_s;

    ScanOn();

    EXPECT_EQ(Stored("Surname", "A002"), u"Green"_s);
    EXPECT_EQ(ExitCode(), std::nullopt);
}

// Between taking the old file away and putting the new one in its place.
class AbsentBranchTest : public ReplacedBranchTest
{
protected:
    AbsentBranchTest()
    {
        P.Form3->Text2.Text = u"Typed"_s;
        Move(Database, away_);
    }

    void BringBack() { Move(away_, Database); }

private:
    static void Move(const QString& from, const QString& to) { ASSERT_TRUE(QFile::rename(from, to)); }

    const QString away_ = Home.Path(u"away.mdb");
};

TEST_F(AbsentBranchTest, IsAskedAbout_AndWrittenToWhenItIsBack)
{
    ExpectDatabaseInUse(Answer::Retry, [this] { BringBack(); });

    ScanOn();

    EXPECT_EQ(Stored("Surname"), u"Typed"_s);
    EXPECT_EQ(Current(), u"A002"_s);
}

// What a program leaves there that puts the content in later.
TEST_F(AbsentBranchTest, EmptyFileInItsPlace_IsAskedAbout_AndTheTextIsStoredWhenTheContentHasCome)
{
    Home.WriteFile(u"LfgDat_A/LfgDat_A.mdb", {});
    ExpectDatabaseInUse(Answer::Cancel);
    ScanOn();
    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(P.Form3->Text2.Text.value(), u"Typed"_s);
    EXPECT_EQ(Current(), u"A001"_s);

    QFile::remove(Database);
    BringBack();
    ScanOn();

    EXPECT_EQ(Stored("Surname"), u"Typed"_s);
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(AbsentBranchTest, FileInItsPlaceThatIsNoDatabase_IsAskedAbout)
{
    Home.WriteFile(u"LfgDat_A/LfgDat_A.mdb", QByteArray(5000, 'x'));
    ExpectDatabaseInUse(Answer::Retry, [this] {
        QFile::remove(Database);
        BringBack();
    });

    ScanOn();

    EXPECT_EQ(Stored("Surname"), u"Typed"_s);
    EXPECT_EQ(Current(), u"A002"_s);
}

TEST_F(AbsentBranchTest, GivenUp_TheTextStaysInTheBox_AndIsStoredLater)
{
    ExpectDatabaseInUse(Answer::Cancel);
    ScanOn();
    EXPECT_EQ(ExitCode(), std::nullopt);
    EXPECT_EQ(P.Form3->Text2.Text.value(), u"Typed"_s);

    BringBack();
    ScanOn();

    EXPECT_EQ(Stored("Surname"), u"Typed"_s);
    EXPECT_EQ(ExitCode(), std::nullopt);
}

} // namespace
} // namespace lineforge
