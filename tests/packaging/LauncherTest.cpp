#include "Command.h"
#include "Files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTimeZone>

#include <gmock/gmock.h>

namespace lineforge::packaging
{
namespace
{

using namespace Qt::StringLiterals;
using testing::HasSubstr;

constexpr auto readable = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;
constexpr auto executable = readable | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;

// The launcher with a small package of its own, whose program only says its version and where it stands.
class LauncherTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(machine_.isValid());
        ASSERT_TRUE(QDir(machine_.path()).mkpath(u"usr/bin"_s));
        ASSERT_TRUE(QFile::copy(QStringLiteral(LINEFORGE_ROOT "/packaging/launcher.sh"), Launcher()));
        ASSERT_TRUE(QFile::setPermissions(Launcher(), executable));
        PackageProgram("first");
        Write(Package(u"AliasList.cfg"_s), "[]");
        Write(Package(u"LfgEmpt.~cf"_s), "template");
        Write(Package(u"help/index.html"_s), "help");
        Write(Package(u"examples/AliasList.cfg"_s), "[Example=LfgDat_A,]");
        Write(Package(u"examples/LfgDat_A/LfgDat_A.cfg"_s), "map");
    }

    void PackageProgram(const QByteArray& version)
    {
        Write(Package(u"lineforge"_s),
              "#!/bin/sh\necho \"" + version + "\" in \"$(dirname \"$(readlink -f \"$0\")\")\"\n");
        ASSERT_TRUE(QFile::setPermissions(Package(u"lineforge"_s), executable));
    }

    Outcome Launch(const QStringList& arguments = {}) { return LaunchBy(Launcher(), arguments); }

    Outcome LaunchBy(const QString& launcher, const QStringList& arguments = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, user_.path());
        return RunCommand(launcher, arguments, environment, user_.path());
    }

    QString Launcher() const { return machine_.filePath(u"usr/bin/lineforge"_s); }
    QString Package(const QString& file) const { return machine_.filePath(u"usr/lib/lineforge/"_s + file); }
    QString User(const QString& file) const { return user_.filePath(file); }
    QString Home(const QString& file = {}) const { return user_.filePath(u"Lineforge/"_s + file); }

    static std::string Started(const QByteArray& version, const QString& home)
    {
        return version.toStdString() + " in " + QFileInfo(home).canonicalFilePath().toStdString() + '\n';
    }

private:
    QTemporaryDir machine_;
    QTemporaryDir user_;
};

TEST_F(LauncherTest, FirstStart_MakesTheWholeHome_AndStartsTheProgramThere)
{
    const Outcome outcome = Launch();
    EXPECT_EQ(outcome.ExitCode, 0);
    EXPECT_EQ(outcome.Output.toStdString(), Started("first", Home()));
    EXPECT_EQ(FilesBelow(Home()), FilesBelow(Package({})));
    EXPECT_EQ(Contents(Home(u"examples/LfgDat_A/LfgDat_A.cfg"_s)), "map");
}

TEST_F(LauncherTest, NewerPackage_ReplacesProgramAndFixedFiles_KeepsWhatIsTheUsers)
{
    Launch();
    Write(Home(u"AliasList.cfg"_s), "[Smiths=LfgDat_A,]");
    Write(Home(u"LfgDat_A/LfgDat_A.mdb"_s), "records");
    Write(Home(u"examples/LfgDat_A/LfgDat_A.cfg"_s), "map with a box more");
    PackageProgram("second");
    Write(Package(u"help/index.html"_s), "more help");
    Write(Package(u"examples/LfgDat_A/LfgDat_A.cfg"_s), "another map");

    EXPECT_EQ(Launch().Output.toStdString(), Started("second", Home()));
    EXPECT_EQ(Contents(Home(u"help/index.html"_s)), "more help");
    EXPECT_EQ(Contents(Home(u"AliasList.cfg"_s)), "[Smiths=LfgDat_A,]");
    EXPECT_EQ(Contents(Home(u"LfgDat_A/LfgDat_A.mdb"_s)), "records");
    EXPECT_EQ(Contents(Home(u"examples/LfgDat_A/LfgDat_A.cfg"_s)), "map with a box more");
}

TEST_F(LauncherTest, SamePackage_WritesNothing)
{
    Launch();
    const QDateTime longAgo(QDate(2001, 1, 1), QTime(12, 0), QTimeZone::utc());
    for (const QString& name : FilesBelow(Home())) {
        QFile file(Home(name));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        ASSERT_TRUE(file.setFileTime(longAgo, QFileDevice::FileModificationTime));
    }
    Launch();
    for (const QString& name : FilesBelow(Home()))
        EXPECT_EQ(QFileInfo(Home(name)).lastModified(), longAgo) << qUtf8Printable(name);
}

TEST_F(LauncherTest, FixedFileThatIsLost_IsBack)
{
    Launch();
    ASSERT_TRUE(QFile::remove(Home(u"LfgEmpt.~cf"_s)));
    Launch();
    EXPECT_EQ(Contents(Home(u"LfgEmpt.~cf"_s)), "template");
}

TEST_F(LauncherTest, ExamplesThatTheUserHasDeleted_StayAway)
{
    Launch();
    ASSERT_TRUE(QDir(Home(u"examples"_s)).removeRecursively());
    Launch();
    EXPECT_FALSE(QFileInfo::exists(Home(u"examples"_s)));
}

TEST_F(LauncherTest, StartThatNeverEnded_IsMadeUpFor_AndExamplesStayAsTheyAre)
{
    // The registry is put down last.
    Launch();
    ASSERT_TRUE(QFile::remove(Home(u"AliasList.cfg"_s)));
    Write(Home(u"examples/AliasList.cfg"_s), "[Mine=LfgDat_A,]");
    EXPECT_EQ(Launch().ExitCode, 0);
    EXPECT_EQ(Contents(Home(u"AliasList.cfg"_s)), "[]");
    EXPECT_EQ(Contents(Home(u"examples/AliasList.cfg"_s)), "[Mine=LfgDat_A,]");
}

TEST_F(LauncherTest, NamedDirectory_IsTheHomeInstead)
{
    const Outcome outcome = Launch({u"our family/über uns"_s});
    EXPECT_EQ(outcome.Output.toStdString(), Started("first", User(u"our family/über uns"_s)));
    EXPECT_EQ(FilesBelow(User(u"our family/über uns"_s)), FilesBelow(Package({})));
    EXPECT_FALSE(QFileInfo::exists(Home()));
}

TEST_F(LauncherTest, HomeBehindALink_IsFilledThere)
{
    ASSERT_TRUE(QDir().mkpath(User(u"disk"_s)));
    ASSERT_TRUE(QFile::link(User(u"disk"_s), User(u"Lineforge"_s)));
    EXPECT_EQ(Launch().Output.toStdString(), Started("first", User(u"disk"_s)));
    EXPECT_EQ(FilesBelow(User(u"disk"_s)), FilesBelow(Package({})));
}

TEST_F(LauncherTest, LinkToTheLauncher_FindsThePackage)
{
    ASSERT_TRUE(QFile::link(Launcher(), User(u"start"_s)));
    const Outcome outcome = LaunchBy(User(u"start"_s));
    EXPECT_EQ(outcome.Output.toStdString(), Started("first", Home()));
}

TEST_F(LauncherTest, FileThatCannotBePutInPlace_StopsTheStart_AndLeavesNothingHalf)
{
    Write(Home(u"LfgEmpt.~cf/in the way"_s), "a directory where a file should be");
    const Outcome outcome = Launch();
    EXPECT_NE(outcome.ExitCode, 0);
    EXPECT_THAT(outcome.Output.toStdString(), HasSubstr("LfgEmpt.~cf"));
    EXPECT_THAT(outcome.Output.toStdString(), Not(HasSubstr("first in")));
    EXPECT_FALSE(QFileInfo::exists(Home(u"AliasList.cfg"_s)));
    EXPECT_TRUE(QDir(Home()).entryList({u".arriving*"_s}, QDir::AllEntries | QDir::Hidden).isEmpty());
}

// What the program is to answer or to refuse it gets as it was given, on the machine, under the launcher's own name.
TEST_F(LauncherTest, WhatIsNoStart_IsTheProgramsToJudge_AndMakesNothing)
{
    PackageProgram("asked $*");
    Write(User(u"file.ged"_s), "0 HEAD");
    ASSERT_TRUE(QFile::link(User(u"gone"_s), User(u"link"_s)));
    const QStringList before = FilesBelow(User({}));
    const QStringList calls[]{
        {u"--version"_s},
        {u"--vers"_s},
        {u"-version"_s},
        {u"one"_s, u"--version"_s},
        {u"--version=2"_s},
        {u"--halp"_s},
        {u"--halp"_s, u"--help"_s},
        {u"one"_s, u"-x"_s},
        {u"one"_s, u"two"_s},
        {u"--"_s, u"one"_s, u"--version"_s},
        {u"--platform"_s},
        {QString()},
        {u"file.ged"_s},
        {u"--"_s, u"file.ged"_s},
        {u"link"_s},
    };
    for (const QStringList& arguments : calls)
        EXPECT_EQ(Launch(arguments).Output.toStdString(),
                  Started("asked " + arguments.join(u' ').toUtf8(), Package({})));
    EXPECT_EQ(FilesBelow(User({})), before);
}

TEST_F(LauncherTest, WhatIsAStart_GetsTheProgramAllArguments)
{
    PackageProgram("started $*");
    const struct {
        QStringList Arguments;
        QString Home;
    } calls[]{
        {{u"-platform"_s, u"xcb"_s}, u"Lineforge"_s},
        {{u"one"_s, u"--platform"_s, u"--help"_s}, u"one"_s},
        {{u"--plat=xcb"_s, u"two"_s, u"-session"_s, u"it's"_s}, u"two"_s},
        {{u"--"_s, u"three"_s}, u"three"_s},
        {{u"--"_s, u"-four"_s}, u"-four"_s},
        {{u"--"_s}, u"Lineforge"_s},
        {{u"it's \"five\" $HOME"_s}, u"it's \"five\" $HOME"_s},
    };
    for (const auto& [arguments, home] : calls) {
        const Outcome outcome = Launch(arguments);
        EXPECT_EQ(outcome.Output.toStdString(), Started("started " + arguments.join(u' ').toUtf8(), User(home)));
        EXPECT_EQ(FilesBelow(User(home)), FilesBelow(Package({})));
    }
}

// The program itself works where it stands.
TEST_F(LauncherTest, Help_TellsTheLaunchersOwnHome_AndMakesNothing)
{
    for (const QString& word : {u"--help"_s, u"--he"_s, u"-h"_s}) {
        const Outcome outcome = Launch({word});
        EXPECT_EQ(outcome.ExitCode, 0);
        EXPECT_TRUE(outcome.Output.startsWith(u"Usage: lineforge [--help] [--version] [directory]\n\n"))
            << qUtf8Printable(outcome.Output);
        EXPECT_TRUE(outcome.Output.contains(u"of the one in ~/Lineforge.")) << qUtf8Printable(outcome.Output);
    }
    EXPECT_TRUE(FilesBelow(User({})).isEmpty());
}

TEST_F(LauncherTest, HelpThatCannotBeWritten_EndsWith2)
{
    EXPECT_EQ(LaunchBy(u"sh"_s, {u"-c"_s, u"exec \"$0\" --help >/dev/full"_s, Launcher()}).ExitCode, 2);
}

} // namespace
} // namespace lineforge::packaging
