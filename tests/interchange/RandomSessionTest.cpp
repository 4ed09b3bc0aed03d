#include "interchange/InterchangeTest.h"
#include "interchange/SessionModel.h"
#include "support/Sessions.h"

#include <QDir>

#include <random>

namespace lineforge
{
namespace
{

constexpr int groups = 20;
constexpr int usualSessions = 200;
constexpr int steps = 14;
const QString atTheRoot = u"/LfgDat_A.mdb"_s;

// A user of an installation with two branches, a third that is spoilt, directories that stand in the way, and branches
// of another installation on a stick, who does anything at all with them; and the model that does the same.
class RandomSession : public InterchangeTest, public SessionUser
{
public:
    explicit RandomSession(unsigned seed) : random_(seed)
    {
        GivenHome();
        StartProgram(P);
        model_.emplace(Home.Path(), Home.Snapshot(), Prompts, *this);
        for (const auto& [file, first] : known_.asKeyValueRange())
            model_->Know(Home.ReadFile(file), {first});
    }

    void Play()
    {
        for (int step = 0; step < steps && !HasFailure() && !model_->IsEnded(); ++step) {
            Step();
            Prompts.Verify();
            Compare();
        }
    }
    const QStringList& Told() const { return told_; }

    bool Confirms() override { return OneIn(5) ? false : true; }
    bool IsForestalled() override { return OneIn(12); }
    QString Name() override
    {
        static const QStringList names{u""_s,      u"Greens"_s,   u"greens"_s,        u"SMITHS"_s,
                                       u"Jones"_s, u" Pond"_s,    u"Pond "_s,         u"Lake of Blue"_s,
                                       u"a=b"_s,   u"="_s,        u"   "_s,           u"["_s,
                                       u"]"_s,     u","_s,        u"Wood, of York"_s, u"Mi]ll"_s,
                                       u"Fo[rd"_s, u"Ford"_s,     u"[Smiths"_s,       u"Gr\u00FC\u00DFe"_s,
                                       u"x"_s,     u"LfgDat_B"_s, u"Smi"_s,           u"Hill 2"_s,
                                       u"-"_s};
        return Any(names);
    }

private:
    void TestBody() override {}

    bool OneIn(unsigned count) { return random_() % count == 0; }
    QString Any(const QStringList& texts) { return texts[static_cast<qsizetype>(random_() % unsigned(texts.size()))]; }

    // A branch whose first record has that number; an empty one has none.
    BranchBuilder Branch(QChar letter, const QString& directory, const QString& first)
    {
        BranchBuilder branch(Home, letter);
        branch.InDirectory(directory).Gallery({{QString(letter + u"001_01.jpg"_s), "picture"}});
        if (!first.isEmpty())
            branch.Row({{u"File", first}, {u"Forename", u"John"}})
                .Boxes(u"1200,600,255,%1,John,2000,600,255,0,,"_s.arg(first))
                .Lines(u"1507,817,2307,817,0,")
                .Texts(u"300,150,The Smiths,Arial,8,0,");
        known_[directory + u"/LfgDat_" + letter + u".mdb"] = first;
        return branch;
    }

    void GivenHome()
    {
        GivenRegistry({{u"Smiths", u"LfgDat_A"}, {u"Jones", u"LfgDat_B"}, {u"Browns", u"LfgDat_C"}});
        WriteTemplates(Home);
        known_[u"LfgEmpt.~Md"_s] = QString();
        Branch(u'A', u"LfgDat_A"_s, u"A001"_s).Picture(u"A001", Qt::red).Build();
        Branch(u'B', u"LfgDat_B"_s, {}).Build();
        Home.WriteFile(u"LfgDat_C/LfgDat_C.mdb", "no database");
        Home.MakeDirectory(u"lfgdat_f");
        Home.MakeDirectory(u"LfgDat_XH1");
        Home.MakeDirectory(u"Import_E");
        if (OneIn(5))
            Home.WriteFile(u"LfgDat_G", "a file in the way of a branch");
        GivenStick();
        for (const QStringView directory : {u"out/deep", u"safe"})
            Home.MakeDirectory(directory);
        Home.WriteFile(u"out/LfgDat_B", "a file in the way of an export");
        // In no directory of its own.
        Branch(u'Q', u"."_s, u"Q001"_s).Build();
    }

    void GivenStick()
    {
        Branch(u'A', u"stick/LfgDat_A"_s, u"A001"_s).Picture(u"A001", Qt::blue).Build();
        Branch(u'D', u"stick/LfgDat_D"_s, u"D001"_s).Build();
        Home.WriteFile(u"stick/LfgDat_D/letters/1901.txt", "letter");
        Branch(u'E', u"stick/LfgDat_E"_s, {}).Build();
        QFile::remove(Home.Path(u"stick/LfgDat_E/LfgDat_E.cfg"));
        Branch(u'F', u"stick/LfgDat_F"_s, u"F001"_s).Picture(u"F001", Qt::green).Build();
        Branch(u'G', u"stick/LfgDat_G"_s, {}).Build();
        Home.WriteFile(u"stick/LfgDat_H/LfgDat_H.mdb", "no database");
        Home.WriteFile(u"stick/LfgDat_D/LfgDat_D.txt", "text");
        Home.WriteFile(u"stick/LfgDat_D/Other_D.mdb", "other");
    }

    // The path of a database, of an odd file, or none.
    std::optional<QString> AnyDatabase()
    {
        if (OneIn(12))
            return {};
        QStringList files{u"stick/LfgDat_D/LfgDat_D.txt"_s, u"stick/LfgDat_D/Other_D.mdb"_s, u"gone/LfgDat_A.mdb"_s};
        for (const QString& file : model_->Files.keys())
            if (file.endsWith(u".mdb"))
                files << file << file;
        return OneIn(20) ? atTheRoot : Home.Path(Any(files));
    }

    void Step()
    {
        switch (random_() % 16) {
        case 0:
        case 1:
        case 2:
            told_ << u"New"_s;
            model_->New();
            return Click(P.Form1->New.Click);
        case 3:
        case 4:
        case 5:
        case 6:
            return Open();
        case 7:
            told_ << u"Close"_s;
            model_->Close();
            return Click(P.Form1->mnuCloseDB.Click);
        case 8:
        case 9:
            return ChooseExport();
        case 10:
        case 11:
        case 12:
            return Import();
        case 13:
            told_ << u"Delete"_s;
            model_->Delete();
            return Click(P.Form1->mnuDelSub.Click);
        case 14:
            return BackUp();
        default:
            return GoOnExporting();
        }
    }

    void Open()
    {
        told_ << u"Open"_s;
        model_->ShowList();
        Click(P.Form1->Open.Click);
        ListBox& list = P.Form8->List1;
        // The list keeps what it had when there is nothing to fill it with.
        if (!model_->AliasList.isEmpty()) {
            EXPECT_EQ(list.Items.value(), model_->ListRows());
        }
        if (OneIn(8))
            return Click(P.Form8->Command2.Click);
        if (!OneIn(6))
            list.ListIndex = static_cast<int>(random_() % unsigned(list.Items.value().size() + 1)) - 1;
        told_.last() += u" '" + list.Text() + u"'";
        model_->Open(list.Text());
        Click(P.Form8->Command1.Click);
    }

    void ChooseExport()
    {
        std::optional<QString> database = AnyDatabase();
        // Their paths are too short for a source and a destination that lie in the home.
        if (database == atTheRoot || database == Home.Path(u"LfgDat_Q.mdb"))
            database.reset();
        told_ << QString(u"Export " + database.value_or(u"nothing"_s));
        model_->ChooseExport(database);
        Click(P.Form1->mnuExpSub.Click);
        GoOnExporting();
    }

    // The window lets the user do other things before he presses one of its buttons.
    void GoOnExporting()
    {
        if (!model_->IsExportWindowShown())
            return;
        EXPECT_TRUE(P.Form4->Visible);
        if (!OneIn(4)) {
            const QString to = Any({u"out"_s, u"out/deep"_s, u"stick"_s, u"safe"_s, u"LfgDat_A"_s, u"gone"_s});
            told_ << QString(u"to " + to);
            model_->GoTo(Home.Path(to));
            P.Form4->Dir1.GoTo(Home.Path(to));
        }
        if (OneIn(4)) {
            told_ << u"click"_s;
            model_->ClickDirectory();
            P.Form4->Dir1.Click();
        }
        if (OneIn(6)) {
            told_ << u"cancel"_s;
            model_->CancelExport();
            Click(P.Form4->Command2.Click);
        } else if (!OneIn(4)) {
            told_ << u"OK"_s;
            model_->Export();
            Click(P.Form4->Command1.Click);
        }
    }

    void Import()
    {
        const std::optional<QString> database = AnyDatabase();
        told_ << QString(u"Import " + database.value_or(u"nothing"_s));
        model_->Import(database);
        Click(P.Form1->mnuImpSub.Click);
    }

    void BackUp()
    {
        const QString name =
            Any({u"safe/x.mdb"_s, u"safe/y.bak"_s, u"safe/x"_s, u"gone/x.mdb"_s, u"LfgDat_A/LfgDat_A.mdb"_s});
        std::optional<QString> chosen = OneIn(8) ? u"abc"_s : Home.Path(name);
        if (OneIn(8))
            chosen.reset();
        told_ << QString(u"Backup " + chosen.value_or(u"nothing"_s));
        model_->BackUp(chosen);
        Click(P.Form1->mnuBackup.Click);
    }

    void Compare()
    {
        EXPECT_EQ(Differences(model_->Files, Home.Snapshot()), QStringList());
        EXPECT_EQ(P.Alias.sAliasList, model_->AliasList);
        for (int index = 0; index <= model_->AliasTable.size(); ++index)
            EXPECT_EQ(P.Alias.AliasTable[index], model_->AliasTable.value(index));
        EXPECT_EQ(P.Branch.WorkDir, model_->WorkDir.isEmpty() ? QString() : Home.Path(model_->WorkDir));
        EXPECT_EQ(P.Branch.WorkDirLen, P.Branch.WorkDir.size());
        EXPECT_EQ(P.Branch.sDbaseName, model_->Database);
        EXPECT_EQ(P.Branch.sBranchName, model_->BranchName);
        EXPECT_EQ(P.Scratch.sPath, model_->Path);
        EXPECT_EQ(QDir::cleanPath(P.Files.CurDir()), model_->Current);
        EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
        EXPECT_EQ(ExitCode(), model_->IsEnded() ? std::optional(1) : std::nullopt);
    }

    std::mt19937 random_;
    QMap<QString, QString> known_; // the first record of each database
    std::optional<SessionModel> model_;
    QStringList told_;
};

class RandomSessionTest : public testing::TestWithParam<int>
{
};

TEST_P(RandomSessionTest, RegistryAndDirectories_AreThoseOfTheModel_AfterEveryCommand)
{
    const auto [first, behind] = SessionsToPlay(usualSessions);
    for (int seed = first + GetParam(); seed < behind && !HasFailure(); seed += groups) {
        RandomSession session(static_cast<unsigned>(seed));
        session.Play();
        if (HasFailure())
            ADD_FAILURE() << "seed " << seed << ": " << qPrintable(session.Told().join(u", "_s));
    }
}

INSTANTIATE_TEST_SUITE_P(Groups, RandomSessionTest, testing::Range(0, groups));

} // namespace
} // namespace lineforge
