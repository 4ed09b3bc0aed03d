#include "Display.h"
#include "Files.h"
#include "Reply.h"
#include "forms/Form1.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>

#include <cstring>
#include <functional>
#include <gmock/gmock.h>

namespace lineforge::packaging
{
namespace
{

using namespace Qt::StringLiterals;
using testing::HasSubstr;
using tour::Reply;
using tour::ScreenWindow;

const QString tarHome = QStringLiteral(LINEFORGE_PACKAGES "/tar");
const QString bundleHome = QStringLiteral(LINEFORGE_PACKAGES "/bundle");
const QString launcher = QStringLiteral(LINEFORGE_PACKAGES "/deb/usr/bin/lineforge");

// Programs of the packages with real windows on a screen, for a user who has never had them before.
class StartTest : public testing::Test
{
protected:
    // The next program must not be taken for this one.
    void TearDown() override
    {
        program_.kill();
        program_.waitForFinished();
        EXPECT_TRUE(Await([this] { return screen_.Windows().empty(); }));
    }

    void Start(const QString& program)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"HOME"_s, user_.path());
        environment.insert(u"XDG_CONFIG_HOME"_s, user_.filePath(u"settings"_s));
        environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
        program_.setProcessEnvironment(environment);
        program_.setProcessChannelMode(QProcess::ForwardedChannels);
        program_.start(program, QStringList());
        ASSERT_TRUE(program_.waitForStarted()) << qUtf8Printable(program_.errorString());
    }

    // Nothing when the program has ended or shows no such window for long.
    std::optional<ScreenWindow> AwaitWindow(const QString& title)
    {
        std::optional<ScreenWindow> window;
        Await([&] {
            window = screen_.Find(title);
            program_.waitForFinished(0);
            return window || program_.state() == QProcess::NotRunning;
        });
        return window;
    }

    // The first bytes of what the window has told the desktop about itself.
    QByteArray Hint(const ScreenWindow& window, const char* name) const
    {
        constexpr std::uint32_t words = 64;
        xcb_connection_t* connection = screen_.Connection();
        const auto askedAtom = xcb_intern_atom(connection, 1, static_cast<std::uint16_t>(std::strlen(name)), name);
        const Reply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(connection, askedAtom, nullptr));
        const auto asked = xcb_get_property(connection, 0, window.Id, atom->atom, XCB_ATOM_ANY, 0, words);
        const Reply<xcb_get_property_reply_t> hint(xcb_get_property_reply(connection, asked, nullptr));
        return hint ? QByteArray(static_cast<const char*>(xcb_get_property_value(hint.get())),
                                 xcb_get_property_value_length(hint.get()))
                    : QByteArray();
    }

    // The program that runs now; a launcher has gone over into it.
    QString Running() const { return QFileInfo(u"/proc/%1/exe"_s.arg(program_.processId())).canonicalFilePath(); }

    // All libraries and plug-ins that it has loaded.
    QStringList FilesInUse() const
    {
        QStringList files;
        for (const QByteArray& line : Contents(u"/proc/%1/maps"_s.arg(program_.processId())).split('\n'))
            if (const qsizetype path = line.indexOf('/'); path >= 0)
                files += QString::fromLocal8Bit(line.sliced(path));
        files.removeDuplicates();
        return files;
    }

    QString User(const QString& file) const { return user_.filePath(file); }

    const QString MainTitle = forms::Form1().Caption;

private:
    static bool Await(const std::function<bool()>& condition)
    {
        constexpr int patience = 30'000; // milliseconds
        constexpr int glance = 20;
        QElapsedTimer waited;
        waited.start();
        while (!condition()) {
            if (waited.hasExpired(patience))
                return false;
            QThread::msleep(glance);
        }
        return true;
    }

    const tour::Display screen_;
    QTemporaryDir user_;
    QProcess program_;
};

TEST_F(StartTest, TarGz_StartsWhereItWasUnpacked)
{
    Start(tarHome + u"/lineforge");
    EXPECT_TRUE(AwaitWindow(MainTitle));
    EXPECT_EQ(Running(), QFileInfo(tarHome + u"/lineforge").canonicalFilePath());
}

TEST_F(StartTest, Bundle_StartsWithTheToolkitThatItBrings)
{
    Start(bundleHome + u"/lineforge");
    EXPECT_TRUE(AwaitWindow(MainTitle));
    const QStringList toolkit = FilesInUse().filter(QRegularExpression(u"/libQt6|/plugins/platforms/"_s));
    EXPECT_GE(toolkit.size(), 6);
    EXPECT_EQ(toolkit.filter(QRegularExpression(u'^' + QRegularExpression::escape(bundleHome))), toolkit);
}

TEST_F(StartTest, Deb_StartsInTheUsersNewHome)
{
    Start(launcher);
    EXPECT_TRUE(AwaitWindow(MainTitle));
    EXPECT_EQ(Running(), QFileInfo(User(u"Lineforge/lineforge"_s)).canonicalFilePath());
    EXPECT_EQ(FilesBelow(User(u"Lineforge"_s)), FilesBelow(tarHome));
}

TEST_F(StartTest, MainWindow_TellsTheDesktopItsEntryAndIcon)
{
    // Not in the home that another test may be working in.
    Start(launcher);
    const std::optional<ScreenWindow> window = AwaitWindow(MainTitle);
    ASSERT_TRUE(window);
    EXPECT_THAT(
        Contents(QStringLiteral(LINEFORGE_PACKAGES "/deb/usr/share/applications/lineforge.desktop")).toStdString(),
        HasSubstr("StartupWMClass=" + Hint(*window, "WM_CLASS").split('\0').first().toStdString() + '\n'));
    EXPECT_FALSE(Hint(*window, "_NET_WM_ICON").isEmpty());
}

TEST_F(StartTest, Editor_ShowsItsIcon)
{
    Start(tarHome + u"/Notepad.exe");
    const std::optional<ScreenWindow> window = AwaitWindow(u"Untitled - Lineforge Editor"_s);
    ASSERT_TRUE(window);
    EXPECT_FALSE(Hint(*window, "_NET_WM_ICON").isEmpty());
}

} // namespace
} // namespace lineforge::packaging
