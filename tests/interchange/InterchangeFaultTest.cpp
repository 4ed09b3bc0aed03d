#include "interchange/InterchangeTest.h"
#include "support/ChildProcess.h"
#include "support/HomeVerdict.h"
#include "support/SmallDisk.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

namespace lineforge
{
namespace
{

class InterchangeFaultTest : public InterchangeTest
{
protected:
    InterchangeFaultTest()
    {
        GivenRegistry({{u"Smiths", u"LfgDat_A"}});
        BranchOf(u'A').Gallery({{u"A001_01.jpg"_s, "picture"}}).Build();
        Home.MakeDirectory(u"stick");
        StartProgram(P);
    }

    void ExpectWholeOrAbsent(const QString& copied, const QString& source)
    {
        const Tree copy = TreeOf(copied);
        const Tree original = TreeOf(source);
        for (auto entry = copy.begin(); entry != copy.end(); ++entry)
            EXPECT_EQ(entry.value(), original.value(entry.key(), "no such file")) << qUtf8Printable(entry.key());
    }
};

TEST_F(InterchangeFaultTest, FileThatCantBeRead_IsLeftOut_AndTheOthersGo)
{
    // Nobody can read what a link that leads nowhere stands for, not even root.
    ASSERT_TRUE(QFile::link(Home.Path(u"nowhere"), Home.Path(u"LfgDat_A/A000Sub.jpg")));
    ASSERT_EQ(mkfifo(Home.Path(u"LfgDat_A/A000.pipe").toLocal8Bit().constData(), 0600), 0);

    Export(u'A', Home.Path(u"stick"));

    EXPECT_FALSE(QFileInfo(Home.Path(u"stick/LfgDat_A/A000Sub.jpg")).isSymLink());
    EXPECT_FALSE(Home.Exists(u"stick/LfgDat_A/A000.pipe"));
    EXPECT_EQ(Home.ReadFile(u"stick/LfgDat_A/A002Sub.jpg"), Home.ReadFile(u"LfgDat_A/A002Sub.jpg"));
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
}

TEST_F(InterchangeFaultTest, LinkToAFile_GoesAsWhatItStandsFor)
{
    Home.WriteFile(u"elsewhere/portrait.jpg", "portrait");
    ASSERT_TRUE(QFile::link(Home.Path(u"elsewhere/portrait.jpg"), Home.Path(u"LfgDat_A/A003Sub.jpg")));

    Export(u'A', Home.Path(u"stick"));

    EXPECT_EQ(Home.ReadFile(u"stick/LfgDat_A/A003Sub.jpg"), "portrait");
    EXPECT_FALSE(QFileInfo(Home.Path(u"stick/LfgDat_A/A003Sub.jpg")).isSymLink());
}

// As older systems have written them.
TEST_F(InterchangeFaultTest, NamesOfAnyBytes_GoAlong)
{
    const QByteArray name = Home.Path(u"LfgDat_A/LfgGal_A/A001_02").toLocal8Bit() + "\xe9.jpg";
    FILE* file = fopen(name.constData(), "wb");
    ASSERT_NE(file, nullptr);
    fputs("latin", file);
    fclose(file);

    Export(u'A', Home.Path(u"stick"));

    const QByteArray copy = Home.Path(u"stick/LfgDat_A/LfgGal_A/A001_02").toLocal8Bit() + "\xe9.jpg";
    struct stat status {
    };
    EXPECT_EQ(stat(copy.constData(), &status), 0);
    EXPECT_EQ(status.st_size, 5);
}

TEST_F(InterchangeFaultTest, NamesThatDifferInCaseAlone_BothGo)
{
    Home.WriteFile(u"LfgDat_A/note.txt", "small");
    Home.WriteFile(u"LfgDat_A/NOTE.txt", "large");

    Export(u'A', Home.Path(u"stick"));

    EXPECT_EQ(Home.ReadFile(u"stick/LfgDat_A/note.txt"), "small");
    EXPECT_EQ(Home.ReadFile(u"stick/LfgDat_A/NOTE.txt"), "large");
}

TEST_F(InterchangeFaultTest, DestinationThatCantBeWritten_IsToldByItsNumber)
{
    Home.MakeReadOnly(u"stick");
    ChooseToExport(Home.Path(u"LfgDat_A/LfgDat_A.mdb"));
    P.Form4->Dir1.GoTo(Home.Path(u"stick"));
    ExpectPathFileAccessBox();

    Click(P.Form4->Command1.Click);

    Home.MakeWritable(u"stick");
    EXPECT_FALSE(Home.Exists(u"stick/LfgDat_A"));
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(InterchangeFaultTest, DestinationThatHasGone_IsToldByItsNumber_AndNothingComesOfIt)
{
    ChooseToExport(Home.Path(u"LfgDat_A/LfgDat_A.mdb"));
    P.Form4->Dir1.GoTo(Home.Path(u"stick"));
    ASSERT_TRUE(QDir(Home.Path(u"stick")).removeRecursively());
    const Tree before = Home.Snapshot();
    ExpectErrorBox(ErrorNumber::PathNotFound, u"Path not found");

    Click(P.Form4->Command1.Click);

    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(InterchangeFaultTest, HomeThatCantBeWritten_RefusesAnImportByItsNumber_WithTheOldBranchOpen)
{
    Choose(u"Smiths");
    BranchOf(u'C').InDirectory(u"stick/LfgDat_C").Build();
    const Tree before = Home.Snapshot();
    Home.MakeReadOnly({});
    ExpectImportDialog(Home.Path(u"stick/LfgDat_C/LfgDat_C.mdb"));
    ExpectImportName(u"Browns");
    ExpectImportQuestion(u"Browns"_s, u"LfgDat_C"_s);
    ExpectPathFileAccessBox();

    Click(P.Form1->mnuImpSub.Click);

    Home.MakeWritable({});
    EXPECT_EQ(Differences(before, Home.Snapshot()), QStringList());
    EXPECT_EQ(P.Branch.WorkDir, Home.Path(u"LfgDat_A"));
    EXPECT_EQ(P.Branch.sBranchName, u"Smiths"_s);
    EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    EXPECT_EQ(ExitCode(), std::nullopt);
}

TEST_F(InterchangeFaultTest, TenThousandGalleryFiles_AllGo)
{
    constexpr int count = 10000;
    for (int number = 0; number < count; ++number)
        Home.WriteFile(u"LfgDat_A/LfgGal_A/extra%1.txt"_s.arg(number), QByteArray::number(number));

    Export(u'A', Home.Path(u"stick"));

    const Tree copied = TreeOf(u"stick/LfgDat_A/LfgGal_A"_s);
    EXPECT_EQ(copied.size(), count + 1);
    EXPECT_EQ(copied, TreeOf(u"LfgDat_A/LfgGal_A"_s));
}

// A user whose home stands on a disk of its own, of which the branch takes more than half.
struct FullDiskStory : InterchangeFaultTest {
    bool IsDiskSmall = false; // not every system lets a process have one

    void TestBody() override
    {
        for (const QStringView file : {u"A001_02.jpg", u"A001_03.jpg", u"A001_04.jpg"})
            Home.WriteFile(QString(u"LfgDat_A/LfgGal_A/"_s + file), QByteArray(900'000, 'p'));
        Home.WriteFile(u"stick/AliasList.cfg", Registry());
        const QStringList faults = FaultsOf(Home.Path());
        Export(u'A', Home.Path(u"stick"));
        ExpectWholeOrAbsent(u"stick/LfgDat_A"_s, u"LfgDat_A"_s);
        EXPECT_EQ(FaultsOf(Home.Path()), faults);
        for (const QString& fault : FaultsOf(Home.Path(u"stick")))
            EXPECT_TRUE(faults.contains(fault) || fault.endsWith(u"isn't there")) << qUtf8Printable(fault);
        EXPECT_EQ(Home.ReadFile(u"stick/LfgDat_A/LfgGal_A/A001_01.jpg"), "picture");
        if (IsDiskSmall) {
            EXPECT_LT(TreeOf(u"stick/LfgDat_A"_s).size(), TreeOf(u"LfgDat_A"_s).size());
        }
        EXPECT_EQ(P.Screen.Pointer, MousePointer::Default);
    }
};

TEST(FullDiskInterchangeTest, ExportWithoutRoom_LeavesNoHalfFile)
{
    const TemporaryHome place;
    const int failed = ExitCodeInChild([&place] {
        const SmallDisk disk(place.Path());
        FullDiskStory story;
        story.IsDiskSmall = disk.Refusal({}).contains(u"Disk full");
        story.TestBody();
        return testing::Test::HasFailure() ? 1 : 0;
    });
    EXPECT_EQ(failed, 0);
}

} // namespace
} // namespace lineforge
