#include "interchange/InterchangeTest.h"
#include "support/CutOffChange.h"

// Another program works on the database of a branch while it is copied.
namespace lineforge
{
namespace
{

class BranchInUseTest : public InterchangeTest
{
protected:
    BranchInUseTest()
    {
        GivenBranchesOfBoth();
        P.Databases.Others().Milliseconds = 0;
    }

    void Use(QStringView database, const QByteArray& sql)
    {
        other_ = std::make_unique<SqliteFile>(Home.Path(database));
        other_->Execute(sql);
    }
    void CutOff(QStringView database)
    {
        CutOffChange(Home.Path(database), "UPDATE Tree99 SET Forename = 'half'",
                     "INSERT INTO Tree99 (File, Notes) VALUES ('Z', hex(zeroblob(500)))");
    }
    ScriptedPrompts::WhileOpen Finish(const QByteArray& sql)
    {
        return [this, sql] {
            other_->Execute(sql);
            other_.reset();
        };
    }

    void ExportWhile(ScriptedPrompts::WhileOpen begins)
    {
        ChooseToExport(Home.Path(u"LfgDat_A/LfgDat_A.mdb"));
        P.Form4->Dir1.GoTo(Home.Path(u"stick"));
        ExpectExportQuestion(Home.Path(u"stick/LfgDat_A"), Answer::Ok, std::move(begins));
    }
    void ExpectImport()
    {
        ExpectImportDialog(Home.Path(u"gift/LfgDat_C/LfgDat_C.mdb"));
        ExpectImportName(u"Jones");
        ExpectImportQuestion(u"Jones"_s, u"LfgDat_C"_s);
    }

    QString Forename(QStringView database) const
    {
        SqliteFile file(Home.Path(database));
        EXPECT_EQ(file.Value("PRAGMA integrity_check"), u"ok"_s);
        return file.Value("SELECT Forename FROM Tree99 LIMIT 1").value_or(QString());
    }

    std::unique_ptr<SqliteFile> other_;
};

constexpr const char* begin = "BEGIN EXCLUSIVE; UPDATE Tree99 SET Forename = 'Johnny'";

TEST_F(BranchInUseTest, Export_WaitsForACommit)
{
    ExportWhile([this] { Use(u"LfgDat_A/LfgDat_A.mdb", begin); });
    ExpectDatabaseInUse(Answer::Retry, Finish("COMMIT"));

    Click(P.Form4->Command1.Click);

    EXPECT_EQ(Forename(u"stick/LfgDat_A/LfgDat_A.mdb"), u"Johnny");
    EXPECT_EQ(TreeOf(u"stick/LfgDat_A"_s), TreeOf(u"LfgDat_A"_s));
}

TEST_F(BranchInUseTest, ExportThatDoesntWait_Ends_WithTheDirectoryEmpty)
{
    ExportWhile([this] { Use(u"LfgDat_A/LfgDat_A.mdb", begin); });
    ExpectDatabaseInUse(Answer::Cancel);

    Click(P.Form4->Command1.Click);

    EXPECT_EQ(TreeOf(u"stick"_s), (Tree{{u"LfgDat_A"_s, "<dir>"}}));
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(BranchInUseTest, Import_WaitsForACommit)
{
    Use(u"gift/LfgDat_C/LfgDat_C.mdb", begin);
    ExpectImport();
    ExpectDatabaseInUse(Answer::Retry, Finish("COMMIT"));

    Click(P.Form1->mnuImpSub.Click);

    EXPECT_EQ(TreeOf(u"gift/LfgDat_C"_s), TreeOf(u"LfgDat_C"_s));
    EXPECT_EQ(P.Form1->Label9.Caption.value(), u"Johnny"_s);
}

TEST_F(BranchInUseTest, ImportThatDoesntWait_LeavesEverythingAsItWas)
{
    Use(u"gift/LfgDat_C/LfgDat_C.mdb", begin);
    const Tree before = Home.Snapshot();
    ExpectImport();
    ExpectDatabaseInUse(Answer::Cancel);

    Click(P.Form1->mnuImpSub.Click);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    EXPECT_EQ(ExitCode(), std::nullopt);
}

// A journal that goes along would be played back in the copy, whatever the database held by then.
TEST_F(BranchInUseTest, ChangeThatIsntCommittedYet_StaysOutWithItsJournal)
{
    ExportWhile([this] { Use(u"LfgDat_A/LfgDat_A.mdb", "BEGIN IMMEDIATE; UPDATE Tree99 SET Forename = 'Johnny'"); });

    Click(P.Form4->Command1.Click);

    EXPECT_TRUE(Home.Exists(u"LfgDat_A/LfgDat_A.mdb-journal"));
    EXPECT_FALSE(Home.Exists(u"stick/LfgDat_A/LfgDat_A.mdb-journal"));
    EXPECT_EQ(Home.ReadFile(u"stick/LfgDat_A/LfgDat_A.mdb"), Home.ReadFile(u"LfgDat_A/LfgDat_A.mdb"));
    EXPECT_EQ(Forename(u"stick/LfgDat_A/LfgDat_A.mdb"), u"John");
}

TEST_F(BranchInUseTest, ChangeThatWasCutOff_IsTakenBackBefore)
{
    ExportWhile([this] { CutOff(u"LfgDat_A/LfgDat_A.mdb"); });

    Click(P.Form4->Command1.Click);

    EXPECT_FALSE(Home.Exists(u"stick/LfgDat_A/LfgDat_A.mdb-journal"));
    EXPECT_EQ(Forename(u"stick/LfgDat_A/LfgDat_A.mdb"), u"John");
}

TEST_F(BranchInUseTest, ChangesThatAreKeptBesideTheDatabase_AreInTheCopy)
{
    ExportWhile(
        [this] { Use(u"LfgDat_A/LfgDat_A.mdb", "PRAGMA journal_mode = WAL; UPDATE Tree99 SET Forename = 'Johnny'"); });

    Click(P.Form4->Command1.Click);

    EXPECT_TRUE(Home.Exists(u"LfgDat_A/LfgDat_A.mdb-wal"));
    for (const QStringView beside : {u"-wal", u"-shm"})
        EXPECT_FALSE(Home.Exists(QString(u"stick/LfgDat_A/LfgDat_A.mdb"_s + beside)));
    EXPECT_EQ(Forename(u"stick/LfgDat_A/LfgDat_A.mdb"), u"Johnny");
}

} // namespace
} // namespace lineforge
