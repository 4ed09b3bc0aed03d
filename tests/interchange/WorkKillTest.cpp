#include "interchange/InterchangeTest.h"
#include "program/branch/WorkDatabase.h"
#include "support/ChildProcess.h"
#include "support/HomeVerdict.h"
#include "support/SqliteFile.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <array>
#include <chrono>
#include <random>
#include <thread>

// A program that is killed at random moments of its work. What it had told as done is there, no file is torn, and the
// home opens again.
namespace lineforge
{
namespace
{

// As many as the environment says, for whoever has the time.
int Kills()
{
    constexpr int usual = 20;
    const int asked = qEnvironmentVariableIntValue("LINEFORGE_KILLS");
    return asked > 0 ? asked : usual;
}

enum Work { Edited, Added, Mapped, Saved, Listed, BackedUp, Exported, Imported, Kinds };
using Done = std::array<int, Kinds>; // how often each was told as done

class WorkKillTest : public InterchangeTest
{
protected:
    WorkKillTest()
    {
        GivenRegistry({{u"Smiths", u"LfgDat_A"}});
        GivenBranch();
        BranchOf(u'C').Gallery({{u"C001_01.jpg"_s, PictureBytes(Qt::red)}}).Build();
        WriteTemplates(Home);
        Home.WriteFile(u"Tree99.jpg", PictureBytes(Qt::blue));
        Home.MakeDirectory(u"safe");
        Home.MakeDirectory(u"gift");
        EXPECT_TRUE(QDir().rename(Home.Path(u"LfgDat_C"), Home.Path(u"gift/LfgDat_C")));
        Home.WriteFile(u"stick/AliasList.cfg", Registry());
        StartProgram(P);
    }

    void GivenBranch()
    {
        QDir(Home.Path(u"LfgDat_A")).removeRecursively();
        BranchOf(u'A')
            .Boxes(u"1200,600,255,A001,John,2000,600,255,A002,Mary,2800,600,255,0,,")
            .Gallery({{u"A001_01.jpg"_s, PictureBytes(Qt::red)}})
            .Build();
    }

    // Round by round, for ever.
    [[noreturn]] void DoAll(const Pipe& pipe)
    {
        Choose(u"Smiths");
        for (;;) {
            for (const auto& [work, command] : commands_) {
                (this->*command)();
                pipe.Tell(work);
            }
        }
    }

    // What was done by a worker that has been killed after some work and some time.
    Done KillAfter(int works, std::chrono::microseconds time)
    {
        Pipe pipe;
        ChildProcess worker([&]() -> int { DoAll(pipe); });
        pipe.Listen();
        Done done{};
        for (int work = 0; work < works; ++work)
            if (const auto told = pipe.Hear())
                ++done[static_cast<std::size_t>(*told)];
        std::this_thread::sleep_for(time);
        worker.KillNow();
        EXPECT_EQ(worker.Wait(), -1) << "it has come to its end by itself";
        while (const auto told = pipe.Hear())
            ++done[static_cast<std::size_t>(*told)];
        return done;
    }

    // Whether what that work leaves stands there: it was told as done, and hasn't been begun again since then, for
    // which the work before it would have been done once more.
    static bool Stands(const Done& done, Work work)
    {
        const auto place = static_cast<std::size_t>(work);
        return done[place] > 0 && done[place] == done[place - 1];
    }

    // A branch that is just being taken in may lack files, but none of them is torn.
    QStringList Faults(bool mayLackFiles) const
    {
        QStringList faults = FaultsOf(Home.Path(), Leftovers::Pass);
        faults.removeIf([mayLackFiles](const QString& fault) {
            return mayLackFiles && fault.contains(u"LfgDat_C") &&
                   (fault.endsWith(u"isn't there") || fault.endsWith(u"isn't in the list of branches"));
        });
        return faults;
    }

    // How many there were when that work was done last: each round adds two.
    static int RecordsAt(Work work, const Done& before, const Done& done)
    {
        return 2 + before[Added] + 2 * done[static_cast<std::size_t>(work)];
    }

    static int RecordsIn(SqliteFile& file)
    {
        return file.Value("SELECT count(*) FROM Tree99").value_or(u"0"_s).toInt();
    }
    int RecordsIn(QStringView database) const
    {
        SqliteFile file(Home.Path(database));
        return RecordsIn(file);
    }

    // The number of the record that the third box stands for.
    int MappedLast() const { return P.Map.BoxArr[2][BoxColumn::File].Text().right(3).toInt(); }

    void ExpectDone(const Done& before, const Done& done)
    {
        SqliteFile file(Home.Path(u"LfgDat_A/LfgDat_A.mdb"));
        const int edits = file.Value("SELECT Notes FROM Tree99 WHERE File = 'A001'").value_or(u"0"_s).toInt();
        EXPECT_GE(edits, before[Edited] + done[Edited]);
        EXPECT_GE(RecordsIn(file), 2 + before[Added] + done[Added] + done[Mapped]);
        EXPECT_GE(MappedLast(), done[Mapped] > 0 ? RecordsAt(Mapped, before, done) : before[Mapped]);
        const int saved = P.Map.BoxArr[0][BoxColumn::X].Number() - firstPlace;
        EXPECT_GE(saved, before[Saved] + done[Saved]);
    }

    // The last lines of each record too.
    void ExpectListed(const Done& before, const Done& done)
    {
        if (done[Listed] == 0)
            return;
        const QByteArray text = Home.ReadFile(u"LfgDat_A/LfgDat_A.txt");
        EXPECT_GE(text.count("ANCESTRAL RECORD A"), RecordsAt(Listed, before, done));
        EXPECT_EQ(text.count("Notes(2):"), text.count("ANCESTRAL RECORD A"));
        EXPECT_TRUE(text.endsWith("\r\n\r\n")) << text.right(100).constData();
    }

    // Put back by hand it is a branch in which nothing is wrong.
    void ExpectBackedUp(const Done& before, const Done& done)
    {
        if (done[BackedUp] == 0)
            return;
        const QByteArray map = Home.ReadFile(u"safe/x.~cf");
        Home.WriteFile(u"restored/AliasList.cfg", Home.ReadFile(u"stick/AliasList.cfg"));
        Home.WriteFile(u"restored/LfgDat_A/LfgDat_A.mdb", Home.ReadFile(u"safe/x.~md"));
        Home.WriteFile(u"restored/LfgDat_A/LfgDat_A.cfg", map);
        EXPECT_EQ(FaultsOf(Home.Path(u"restored")), QStringList());
        EXPECT_GE(RecordsIn(u"restored/LfgDat_A/LfgDat_A.mdb"), RecordsAt(BackedUp, before, done));
        const QRegularExpressionMatch box = QRegularExpression(u"(\\d+),600,"_s).match(QString::fromLatin1(map));
        EXPECT_GE(box.captured(1).toInt() - firstPlace, before[Saved] + done[BackedUp]);
    }

    // What was copied is whole; all of it is there once it was told to be.
    void ExpectExported(const Done& before, const Done& done)
    {
        const bool stands = Stands(done, Exported);
        for (const QString& fault : FaultsOf(Home.Path(u"stick"), Leftovers::Pass))
            EXPECT_TRUE(!stands && fault.endsWith(u"isn't there")) << qUtf8Printable(fault);
        if (!stands)
            return;
        const int records = RecordsAt(Exported, before, done);
        EXPECT_GE(RecordsIn(u"stick/LfgDat_A/LfgDat_A.mdb"), records);
        const Tree copies = TreeOf(u"stick/LfgDat_A"_s);
        const Tree originals = TreeOf(u"LfgDat_A"_s);
        EXPECT_TRUE(copies.contains(u"LfgGal_A/A001_01.jpg"_s));
        for (auto file = originals.begin(); file != originals.end(); ++file)
            if (file.key().endsWith(u".jpg") && file.key().section(u'/', -1).mid(1, 3).toInt() <= records) {
                EXPECT_EQ(copies.value(file.key()), file.value()) << qUtf8Printable(file.key());
            }
    }

    // Its map alone has been saved since then.
    void ExpectImported(const Done& done)
    {
        if (!Stands(done, Imported))
            return;
        EXPECT_TRUE(Registry().contains("Jones=LfgDat_C")) << Registry().constData();
        const Tree copies = TreeOf(u"LfgDat_C"_s);
        const Tree originals = TreeOf(u"gift/LfgDat_C"_s);
        for (auto file = originals.begin(); file != originals.end(); ++file)
            if (!file.key().endsWith(u".cfg")) {
                EXPECT_EQ(copies.value(file.key()), file.value()) << qUtf8Printable(file.key());
            }
    }

    // What has been done in all, however it was told.
    Done Counted()
    {
        SqliteFile file(Home.Path(u"LfgDat_A/LfgDat_A.mdb"));
        Done counted{};
        counted[Edited] = file.Value("SELECT Notes FROM Tree99 WHERE File = 'A001'").value_or(u"0"_s).toInt();
        counted[Added] = RecordsIn(file) - 2;
        counted[Mapped] = MappedLast();
        counted[Saved] = P.Map.BoxArr[0][BoxColumn::X].Number() - firstPlace;
        return counted;
    }

    void PutBranchAway()
    {
        P.Form1->mnuCloseDB.Click();
        QDir(Home.Path(u"LfgDat_C")).removeRecursively();
        GivenRegistry({{u"Smiths", u"LfgDat_A"}});
    }

private:
    static constexpr int firstPlace = 1200; // of the first box

    void Edit()
    {
        P.Form3->Text11.Text = QString::number(P.Form3->Text11.Text.value().toInt() + 1);
        Records(P.Form3).MoveNext();
        Records(P.Form3).MoveFirst();
    }

    void Add()
    {
        Prompts.Expect(u"New Database Record", u"Adding a new Record here will not \nbe mapped into the Tree system.",
                       Buttons::InformationOkCancel, Answer::Ok);
        Records(P.Form3).MoveLast();
        const QString last = Records(P.Form3).Text(u"File");
        const QString text = u"New Record A%1 created."_s.arg(last.right(3).toInt() + 1, 3, 10, QChar(u'0'));
        Prompts.Expect(u"New Blank Record Created", text, Buttons::Information);
        P.Form3->mnuAdd.Click();
    }

    // A new record takes the third box from the one before.
    void Map()
    {
        P.Map.BoxArr[2][BoxColumn::File] = u"0"_s;
        P.Form1->mnuMapSubject.Click();
        P.Form7->Option1.Click();
        P.Form7->Option4.Value = true;
        P.Form7->Option6.Value = true;
        P.Form7->Command1.Click();
        PictureBox& map = P.Form1->Picture1;
        map.MouseDown(1, 0, 3000, 700);
        map.MouseUp(1, 0, 3000, 700);
        map.DblClick();
        map.MouseUp(1, 0, 3000, 700);
        P.Form3->Command2.Click();
        EXPECT_NE(P.Map.BoxArr[2][BoxColumn::File].Text(), u"0"_s);
    }

    void Save()
    {
        P.Map.BoxArr[0][BoxColumn::X] = P.Map.BoxArr[0][BoxColumn::X].Number() + 1;
        P.Form1->mnuCloseDB.Click();
        Choose(u"Smiths");
    }

    void List()
    {
        Prompts.Expect(
            u"Make a Text File.",
            QString(u"Database will be Copied to the Text File located at\n"_s + Home.Path(u"LfgDat_A/LfgDat_A.txt")),
            Buttons::Information);
        P.Form1->mnuTxtDBase.Click();
    }

    void BackUp()
    {
        Prompts.Expect(
            u"Backup Database",
            u"Backup will copy your current Database File \nand Tree Config file to your chosen destination.",
            Buttons::Information);
        Prompts.ExpectSaveFile(u"Select Backup Destination Directory", u"DataBase *.mdb|*.mdb|All Files|*.*|",
                               Home.Path(u"safe/x.mdb"));
        P.Form1->mnuBackup.Click();
    }

    void ExportAll()
    {
        QDir(Home.Path(u"stick/LfgDat_A")).removeRecursively();
        P.Form1->mnuCloseDB.Click();
        Export(u'A', Home.Path(u"stick"));
        Choose(u"Smiths");
    }

    // What came in the last time goes by hand, so that there is room.
    void ImportAll()
    {
        PutBranchAway();
        Choose(u"Smiths");
        P.Form1->mnuCloseDB.Click();
        ExpectImportDialog(Home.Path(u"gift/LfgDat_C/LfgDat_C.mdb"));
        ExpectImportName(u"Jones");
        ExpectImportQuestion(u"Jones"_s, u"LfgDat_C"_s);
        Import();
        Choose(u"Smiths");
    }

    const std::array<std::pair<char, void (WorkKillTest::*)()>, Kinds> commands_{
        {{Edited, &WorkKillTest::Edit},
         {Added, &WorkKillTest::Add},
         {Mapped, &WorkKillTest::Map},
         {Saved, &WorkKillTest::Save},
         {Listed, &WorkKillTest::List},
         {BackedUp, &WorkKillTest::BackUp},
         {Exported, &WorkKillTest::ExportAll},
         {Imported, &WorkKillTest::ImportAll}}};
};

TEST_F(WorkKillTest, KilledAtRandomMoments_NothingThatWasDoneIsLost_NothingIsTorn_AndTheBranchOpens)
{
    std::mt19937 random(20261122);
    Choose(u"Smiths");
    Done before = Counted();
    PutBranchAway();
    for (int kill = 0; kill < Kills() && !HasFailure(); ++kill) {
        SCOPED_TRACE(kill);
        const int works = static_cast<int>(random() % (2 * Kinds));
        const Done done = KillAfter(works, std::chrono::microseconds(random() % 20'000));
        EXPECT_EQ(Faults(!Stands(done, Imported)), QStringList());
        ExpectListed(before, done);
        ExpectBackedUp(before, done);
        ExpectExported(before, done);
        ExpectImported(done);

        Choose(u"Smiths");

        ExpectDone(before, done);
        before = Counted();
        PutBranchAway();
        EXPECT_EQ(Faults(false), QStringList());
        // Numbers end at 999.
        if (before[Added] > 500) {
            GivenBranch();
            before = {};
        }
    }
}

} // namespace
} // namespace lineforge
