#include "Command.h"
#include "Files.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace lineforge::packaging
{
namespace
{

using namespace Qt::StringLiterals;

// `cmake --install` into a directory in which program and home stand together.
class InstallTest : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(scratch_.isValid()); }

    void Install(const QString& prefix, const QString& destDir = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DESTDIR"_s, destDir);
        const Outcome outcome =
            RunCommand(QStringLiteral(LINEFORGE_CMAKE),
                       {u"--install"_s, QStringLiteral(LINEFORGE_BUILD), u"--prefix"_s, prefix}, environment);
        ASSERT_EQ(outcome.ExitCode, 0) << qUtf8Printable(outcome.Output);
    }

    QString In(const QString& file) const { return scratch_.filePath(file); }

private:
    QTemporaryDir scratch_;
};

TEST_F(InstallTest, PutsTheHomeIntoOneDirectory_AndNothingOfTheMachines)
{
    Install(In(u"home"_s));
    EXPECT_TRUE(QFileInfo(In(u"home/lineforge"_s)).isExecutable());
    EXPECT_TRUE(QFileInfo(In(u"home/Notepad.exe"_s)).isExecutable());
    EXPECT_TRUE(QFileInfo(In(u"home/lineforge-check"_s)).isExecutable());
    EXPECT_TRUE(QFileInfo::exists(In(u"home/AliasList.cfg"_s)));
    EXPECT_TRUE(QFileInfo::exists(In(u"home/examples/LfgDat_A/LfgDat_A.mdb"_s)));
    EXPECT_FALSE(QFileInfo::exists(In(u"home/bin"_s)));
    EXPECT_FALSE(QFileInfo::exists(In(u"home/share"_s)));
}

TEST_F(InstallTest, OverAnOlderCopy_KeepsWhatIsTheUsers)
{
    Write(In(u"AliasList.cfg"_s), "[Smiths=LfgDat_A,]");
    Write(In(u"LfgDat_A/LfgDat_A.mdb"_s), "records");
    Write(In(u"examples/AliasList.cfg"_s), "[Mine=LfgDat_B,]");
    Write(In(u"LfgHelp.hlp"_s), "an older help");
    Install(In({}));
    EXPECT_EQ(Contents(In(u"AliasList.cfg"_s)), "[Smiths=LfgDat_A,]");
    EXPECT_EQ(Contents(In(u"LfgDat_A/LfgDat_A.mdb"_s)), "records");
    EXPECT_EQ(FilesBelow(In(u"examples"_s)), QStringList{u"AliasList.cfg"_s});
    EXPECT_EQ(Contents(In(u"LfgHelp.hlp"_s)), Contents(QStringLiteral(LINEFORGE_BUILD "/home-files/LfgHelp.hlp")));
}

TEST_F(InstallTest, DestDir_GoesBeforeEveryPath)
{
    Install(u"/opt/home"_s, In(u"stage"_s));
    Install(In(u"plain"_s));
    EXPECT_EQ(FilesBelow(In({})).size(), 2 * FilesBelow(In(u"plain"_s)).size());
    EXPECT_EQ(FilesBelow(In(u"stage/opt/home"_s)), FilesBelow(In(u"plain"_s)));
}

} // namespace
} // namespace lineforge::packaging
