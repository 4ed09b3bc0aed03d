#include "records/DeleteRecordTest.h"
#include "records/RecordTransferTest.h"
#include "support/ChildProcess.h"
#include "support/HomeVerdict.h"
#include "support/SmallDisk.h"

// Commands on a disk that has no room left. What was there before is whole afterwards.
namespace lineforge
{
namespace
{

constexpr QStringView database = u"LfgDat_A/LfgDat_A.mdb";
constexpr QStringView textFile = u"LfgDat_A/LfgDat_A.txt";

// A user on the small disk. The story runs in a child process, whose findings are told by its exit code and in its
// output.
template <class User>
class FullDiskStory : public User
{
public:
    explicit FullDiskStory(SmallDisk& disk) : disk_(disk) {}

    // The home is no worse than before the disk was full.
    void ExpectNothingSpoilt() const { EXPECT_EQ(FaultsOf(this->Home.Path(), Leftovers::Pass), faults_); }

protected:
    void GivenFullDisk()
    {
        before_ = this->Home.Snapshot();
        faults_ = FaultsOf(this->Home.Path());
        disk_.Fill();
    }
    void ExpectRefusal(const QString& subject) { this->ExpectFatalBox(disk_.Refusal(subject)); }
    // The journal of a change that was given up may stay; the next opening takes it back.
    QStringList Changes()
    {
        Tree after = this->Home.Snapshot();
        after.removeIf([](const auto& entry) { return entry.key().endsWith(u"-journal"); });
        return Differences(before_, after);
    }

private:
    SmallDisk& disk_;
    Tree before_;
    QStringList faults_;
};

class FullDiskTest : public testing::Test
{
protected:
    template <class Story>
    void Tell()
    {
        const int failed = ExitCodeInChild([this] {
            SmallDisk disk(place_.Path());
            {
                Story story(disk);
                story.TestBody();
                story.ExpectNothingSpoilt();
            }
            return HasFailure() ? 1 : 0;
        });
        EXPECT_EQ(failed, 0);
    }

private:
    TemporaryHome place_;
};

struct TextStory : FullDiskStory<RecordTest> {
    using FullDiskStory::FullDiskStory;

    void Write()
    {
        Prompts.Expect(u"Make a Text File.",
                       QString(u"Database will be Copied to the Text File located at\n"_s + Home.Path(textFile)),
                       Buttons::Information);
        Click(P.Form1->mnuTxtDBase.Click);
    }

    void TestBody() override
    {
        Write();
        ASSERT_TRUE(Home.ReadFile(textFile).contains("ANCESTRAL RECORD A003"));
        GivenFullDisk();
        Prompts.Expect(u"Make a Text File.",
                       QString(u"Database will be Copied to the Text File located at\n"_s + Home.Path(textFile)),
                       Buttons::Information);
        ExpectRefusal(Home.Path(u"LfgDat_A/LfgDat_A.~tx"));
        Click(P.Form1->mnuTxtDBase.Click);
        EXPECT_EQ(Changes(), QStringList());
    }
};

TEST_F(FullDiskTest, TextFile_EndsTheProgram_AndTheOldFileStays)
{
    Tell<TextStory>();
}

struct AddStory : FullDiskStory<RecordTest> {
    using FullDiskStory::FullDiskStory;

    void TestBody() override
    {
        GivenRecordForm();
        Home.WriteFile(u"Tree99.jpg", PictureBytes(Qt::blue));
        GivenFullDisk();
        Prompts.Expect(u"New Database Record", u"Adding a new Record here will not \nbe mapped into the Tree system.",
                       Buttons::InformationOkCancel, Answer::Ok);
        ExpectRefusal(Home.Path(database) + u"\nRecord A004");
        Click(P.Form3->mnuAdd.Click);
        EXPECT_EQ(Changes(), QStringList());
        EXPECT_EQ(SqliteFile(Home.Path(database)).Value("SELECT count(*) FROM Tree99"), u"3"_s);
    }
};

TEST_F(FullDiskTest, NewRecord_EndsTheProgram_AndIsNotThere)
{
    Tell<AddStory>();
}

struct TransferStory : FullDiskStory<RecordTransferTest> {
    using FullDiskStory::FullDiskStory;

    void TestBody() override
    {
        GivenFullSource();
        const auto before = Rows("File = 'A002'");
        GivenFullDisk();
        ExpectTransferTo(u"A002");
        ExpectCopyProblem();
        ExpectRefusal(Home.Path(database) + u"\nRecord A002");
        Click(P.Form3->MnuRecTransfer.Click);
        EXPECT_EQ(Changes(), QStringList());
        EXPECT_EQ(Rows("File = 'A002'"), before);
    }
};

TEST_F(FullDiskTest, Transfer_EndsTheProgram_AndBothRecordsAreWhole)
{
    Tell<TransferStory>();
}

struct DeleteStory : FullDiskStory<DeleteRecordTest> {
    using FullDiskStory::FullDiskStory;

    void TestBody() override
    {
        const auto before = AllRows();
        GivenFullDisk();
        ExpectFirstQuestion(Answer::Yes);
        ExpectSecondQuestion(Answer::Yes);
        Click(P.Form3->mnuDelete.Click);
        EXPECT_EQ(AllRows(), before);
        EXPECT_TRUE(HasPicture(u"A001"));
    }
};

TEST_F(FullDiskTest, Deletion_LeavesTheRecordAndItsPicture)
{
    Tell<DeleteStory>();
}

struct AddToGalleryStory : FullDiskStory<RecordTest> {
    using FullDiskStory::FullDiskStory;

    void TestBody() override
    {
        Home.MakeDirectory(u"LfgDat_A/LfgGal_A");
        const QString source = Home.WriteFile(u"a.jpg", QByteArray(20'000, 'x'));
        Click(P.Form1->Command2.Click);
        GivenFullDisk();
        Prompts.Expect(u"Gallery Picture Addition.", u"Add new *.bmp or *.jpg Gallery Picture ?",
                       Buttons::QuestionOkCancel);
        Prompts.ExpectOpenFile(u"Select Picture Source File",
                               u"Graphics(*.jpg)|*.jpg|Graphics(*.bmp)|*.bmp|All Files(*.*)|*.*|", source);
        Click(P.Form5->mnuPic.Click);
        EXPECT_EQ(Changes(), QStringList());
        EXPECT_EQ(ExitCode(), std::nullopt);
    }
};

TEST_F(FullDiskTest, AdditionToAGallery_EndsInSilence_AndLeavesNoPartOfAFile)
{
    Tell<AddToGalleryStory>();
}

} // namespace
} // namespace lineforge
