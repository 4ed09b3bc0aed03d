#include "platform/base/RuntimeError.h"
#include "qt/machine/QtProcesses.h"
#include "support/Refusal.h"
#include "support/TemporaryHome.h"

#include <QFile>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace lineforge
{

using namespace Qt::StringLiterals;

namespace
{
struct ProcessesTest : testing::Test {
    TemporaryHome Home;
    QtProcesses Programs;
};

TEST_F(ProcessesTest, Program_IsStartedOnTheFile_WithBlanksAndAccentsInBothPaths)
{
    const QString program = Home.WriteFile(u"An Editor.exe", "#!/bin/sh\nprintf '%s' \"$1\" > \"$1.seen\"\n");
    QFile(program).setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    const QString file = Home.WriteFile(u"Été à la mer.txt", "text");
    // Whoever reads from it waits until the program has written.
    ASSERT_EQ(mkfifo(QFile::encodeName(file + u".seen").constData(), 0600), 0);
    ASSERT_GT(Programs.Shell(program, file), 0);

    EXPECT_EQ(Home.ReadFile(u"Été à la mer.txt.seen"), file.toUtf8());
}

TEST_F(ProcessesTest, MissingProgramOrDirectory_IsFileNotFound)
{
    const QString file = Home.WriteFile(u"a.txt", "text");
    EXPECT_EQ(RefusalOf([&] { Programs.Shell(Home.Path(u"none.exe"), file); }), ErrorNumber::FileNotFound);
    EXPECT_EQ(RefusalOf([&] { Programs.Shell(Home.Path(), file); }), ErrorNumber::FileNotFound);
}

TEST_F(ProcessesTest, FileThatIsNoProgram_CantBeStarted)
{
    const QString file = Home.WriteFile(u"a.txt", "text");
    EXPECT_EQ(RefusalOf([&] { Programs.Shell(file, file); }), ErrorNumber::InvalidCall);
}

} // namespace
} // namespace lineforge
