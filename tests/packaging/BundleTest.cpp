#include "Command.h"
#include "Files.h"

#include <QDir>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace lineforge::packaging
{
namespace
{

using namespace Qt::StringLiterals;

// What goes into a bundle of a toolkit with certain players.
class BundlePlayersTest : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(scratch_.isValid()); }

    Outcome Bundle(const QStringList& players)
    {
        for (const QString& player : players)
            if (!QDir().mkpath(scratch_.filePath(u"toolkit/multimedia"_s)) ||
                !QFile::copy(QStringLiteral(LINEFORGE_STAND_IN),
                             scratch_.filePath(u"toolkit/multimedia/lib"_s + player + u"mediaplugin.so"_s)))
                return {};
        return RunCommand(QStringLiteral(LINEFORGE_CMAKE),
                          {u"-D"_s, u"CMAKE_INSTALL_PREFIX="_s + scratch_.filePath(u"bundle"_s), u"-D"_s,
                           u"program_files="_s, u"-D"_s, u"plugin_directory="_s + scratch_.filePath(u"toolkit"_s),
                           u"-D"_s, u"plugin_kinds=multimedia"_s, u"-P"_s,
                           QStringLiteral(LINEFORGE_ROOT "/cmake/BundleLibraries.cmake")});
    }
    QStringList Players() const { return FilesBelow(scratch_.filePath(u"bundle/plugins/multimedia"_s)); }

private:
    QTemporaryDir scratch_;
};

TEST_F(BundlePlayersTest, TheOneByGStreamer_IsEnough)
{
    const Outcome outcome = Bundle({u"gstreamer"_s, u"ffmpeg"_s});
    EXPECT_EQ(outcome.ExitCode, 0) << qUtf8Printable(outcome.Output);
    EXPECT_EQ(Players(), QStringList{u"libgstreamermediaplugin.so"_s});
}

TEST_F(BundlePlayersTest, TheOnlyOne_IsTaken)
{
    const Outcome outcome = Bundle({u"ffmpeg"_s});
    EXPECT_EQ(outcome.ExitCode, 0) << qUtf8Printable(outcome.Output);
    EXPECT_EQ(Players(), QStringList{u"libffmpegmediaplugin.so"_s});
}

TEST_F(BundlePlayersTest, WithoutAny_ThereIsNoBundle)
{
    const Outcome outcome = Bundle({});
    EXPECT_NE(outcome.ExitCode, 0);
    EXPECT_THAT(outcome.Output.toStdString(), testing::HasSubstr("The toolkit has no player"));
}

} // namespace
} // namespace lineforge::packaging
