#include "Command.h"
#include "Files.h"

#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>

#include <gmock/gmock.h>

namespace lineforge::packaging
{
namespace
{

using namespace Qt::StringLiterals;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::StartsWith;

const QString deb = QStringLiteral(LINEFORGE_PACKAGES "/deb/");
const QString tar = QStringLiteral(LINEFORGE_PACKAGES "/tar/");
const QString bundle = QStringLiteral(LINEFORGE_PACKAGES "/bundle/");
const QString metainfo = deb + u"usr/share/metainfo/technology.tarnwick.lineforge.metainfo.xml";
const QString desktopEntry = deb + u"usr/share/applications/lineforge.desktop";

constexpr const char* programs[]{"Notepad.exe", "lineforge", "lineforge-check"
#ifdef LINEFORGE_HAS_JET
                                 ,
                                 "lineforge-jet"
#endif
};

QStringList Programs()
{
    QStringList names;
    for (const char* name : programs)
        names += QLatin1StringView(name);
    return names;
}

QStringList Below(const QString& directory, QStringList files)
{
    for (QString& file : files)
        file.prepend(directory + u'/');
    return files;
}

// The program and all that it finds beside itself.
QStringList HomeFiles()
{
    return Programs() + FilesBelow(QStringLiteral(LINEFORGE_BUILD "/home-files")) +
           Below(u"examples"_s, FilesBelow(QStringLiteral(LINEFORGE_BUILD "/example-home")));
}

QStringList Sorted(QStringList names)
{
    names.sort();
    return names;
}

// A package as it lies unpacked, its home, and its programs on their ways from there.
struct Unpacked {
    QString Root;
    QString Home;
    QStringList Programs;
};

Unpacked Deb()
{
    return {deb, deb + u"usr/lib/lineforge",
            Below(u"usr/lib/lineforge"_s, Programs()) +
                QStringList{u"usr/bin/lineforge"_s, u"usr/bin/lineforge-check"_s}};
}

Unpacked Tar()
{
    return {tar, tar, Programs()};
}

Unpacked Bundle()
{
    return {bundle, bundle, Programs()};
}

class PackageTest : public testing::TestWithParam<Unpacked (*)()>
{
protected:
    const Unpacked package = GetParam()();
};

INSTANTIATE_TEST_SUITE_P(All, PackageTest, testing::Values(Deb, Tar, Bundle), [](const auto& kind) {
    return kind.param == Deb ? "Deb" : kind.param == Tar ? "Tar" : "Bundle";
});

TEST_P(PackageTest, HomeHoldsWhatTheProgramAsksForByName)
{
    EXPECT_THAT(FilesBelow(package.Home),
                IsSupersetOf({u"AliasList.cfg"_s, u"GalAud.bmp"_s, u"GalTxt.bmp"_s, u"GalVid.bmp"_s, u"LfgEmpt.~Md"_s,
                              u"LfgEmpt.~cf"_s, u"LfgHelp.hlp"_s, u"LfgOpen.wav"_s, u"Notepad.exe"_s, u"Notepad.png"_s,
                              u"Save-Dwn.bmp"_s, u"Tree99.jpg"_s, u"click.wav"_s, u"lineforge"_s, u"lineforge.png"_s,
                              u"examples/AliasList.cfg"_s, u"examples/LfgDat_A/LfgDat_A.cfg"_s,
                              u"examples/LfgDat_A/LfgDat_A.mdb"_s, u"examples/LfgDat_B/LfgDat_B.mdb"_s}));
}

TEST_P(PackageTest, Registry_IsThatOfAHomeWithoutBranches)
{
    EXPECT_EQ(Contents(package.Home + u"/AliasList.cfg"),
              Contents(QStringLiteral(LINEFORGE_ROOT "/data/AliasList.cfg")));
}

TEST_P(PackageTest, EverybodyMayRead_OnlyTheOwnerMayWrite_AndOnlyProgramsRun)
{
    constexpr auto file =
        QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser | QFile::ReadGroup | QFile::ReadOther;
    constexpr auto runs = QFile::ExeOwner | QFile::ExeUser | QFile::ExeGroup | QFile::ExeOther;
    constexpr auto user = QFile::ReadUser | QFile::WriteUser | QFile::ExeUser; // whoever asks
    for (const QString& name : FilesBelow(package.Root))
        EXPECT_EQ(QFileInfo(package.Root + name).permissions() & ~user,
                  (package.Programs.contains(name) ? file | runs : file) & ~user)
            << qUtf8Printable(name);
    for (const QString& name : DirectoriesBelow(package.Root))
        EXPECT_EQ(QFileInfo(package.Root + name).permissions() & ~user, (file | runs) & ~user) << qUtf8Printable(name);
}

TEST_P(PackageTest, NoTextTellsWhereItWasBuilt)
{
    for (const QString& name : FilesBelow(package.Root)) {
        const QByteArray bytes = Contents(package.Root + name);
        if (bytes.contains('\0'))
            continue; // no text
        EXPECT_FALSE(bytes.contains(LINEFORGE_ROOT)) << qUtf8Printable(name);
        EXPECT_FALSE(bytes.contains(LINEFORGE_BUILD)) << qUtf8Printable(name);
    }
}

// Each program of the package on its command line, on a machine without a display.
class CommandLineTest : public testing::TestWithParam<const char*>
{
protected:
    struct Answer {
        int ExitCode = -1;
        std::string Output;
        std::string Errors;
    };

    static Answer Ask(const QStringList& arguments, const QString& output = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const QString& name : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
            environment.remove(name);
        QProcess process;
        environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
        process.setProcessEnvironment(environment);
        if (!output.isEmpty())
            process.setStandardOutputFile(output);
        process.start(tar + QLatin1StringView(GetParam()), arguments);
        if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
            return {};
        return {process.exitCode(), process.readAllStandardOutput().toStdString(),
                process.readAllStandardError().toStdString()};
    }
};

TEST_P(CommandLineTest, Version)
{
    const Answer answer = Ask({u"--version"_s});
    EXPECT_EQ(answer.ExitCode, 0);
    EXPECT_EQ(answer.Output, "Lineforge " LINEFORGE_VERSION "\n");
    EXPECT_EQ(answer.Errors, "");
}

TEST_P(CommandLineTest, Help_TellsUsageAndPurpose)
{
    const Answer answer = Ask({u"--help"_s});
    EXPECT_EQ(answer.ExitCode, 0);
    EXPECT_THAT(answer.Output, StartsWith(std::string("Usage: ") + GetParam() + " [--help] [--version] "));
    EXPECT_THAT(answer.Output, HasSubstr("\n\n"));
    EXPECT_EQ(answer.Errors, "");
}

TEST_P(CommandLineTest, AnswerThatCantBeWritten_IsToldOnTheErrorOutput)
{
    for (const QString& asked : {u"help"_s, u"version"_s}) {
        const Answer answer = Ask({u"--"_s + asked}, u"/dev/full"_s);
        EXPECT_EQ(answer.ExitCode, 2);
        EXPECT_EQ(answer.Errors, std::string(GetParam()) + ": the " + asked.toStdString() +
                                     " can't be written: No space left on device\n");
    }
}

TEST_P(CommandLineTest, UnknownOption_OrTooManyNames_AreToldOnTheErrorOutput)
{
    for (const QStringList& arguments : {QStringList{u"--halp"_s}, QStringList{u"-x"_s}, QStringList{u"a"_s, u"b"_s}}) {
        const Answer answer = Ask(arguments);
        EXPECT_EQ(answer.ExitCode, 2);
        EXPECT_EQ(answer.Output, "");
        EXPECT_THAT(answer.Errors, HasSubstr(std::string("Usage: ") + GetParam()));
    }
}

INSTANTIATE_TEST_SUITE_P(Programs, CommandLineTest, testing::ValuesIn(programs));

TEST(ProgramCommandLineTest, HomeThatIsNoDirectory_IsToldWithoutADisplay)
{
    const Outcome outcome = RunCommand(tar + u"/lineforge"_s, {u"gone"_s});
    EXPECT_EQ(outcome.ExitCode, 2);
    EXPECT_EQ(outcome.Output, u"lineforge: gone is no directory\n");
}

TEST_P(PackageTest, HomeAsItIsGivenAway_IsInOrder)
{
    for (const QString& directory : {package.Home, QString(package.Home + u"/examples")}) {
        const Outcome verdict = RunCommand(package.Home + u"/lineforge-check", {directory});
        EXPECT_EQ(verdict.ExitCode, 0) << qUtf8Printable(verdict.Output);
    }
}

TEST(DebTest, CheckOfAHome_IsACommand)
{
    EXPECT_EQ(QFileInfo(deb + u"usr/bin/lineforge-check").symLinkTarget(),
              QFileInfo(deb + u"usr/lib/lineforge/lineforge-check").absoluteFilePath());
}

// What either starts with is the launcher's own matter.
TEST(DebTest, Launcher_AnswersAndRefusesWhatTheProgramDoes_InItsWords)
{
    const QStringList calls[]{
        {u"--version"_s},
        {u"--vers"_s},
        {u"--halp"_s},
        {u"one"_s, u"-x"_s},
        {u"one"_s, u"two"_s},
        {u"--version=2"_s},
        {u"--platform"_s},
        {QString()},
        {u"README.md"_s},
        {u"--"_s, u"README.md"_s},
        {u"-platform"_s, u"offscreen"_s, u"README.md"_s},
    };
    const auto told = [](const QString& program, const QStringList& arguments) {
        Outcome outcome =
            RunCommand(program, arguments, QProcessEnvironment::systemEnvironment(), QStringLiteral(LINEFORGE_ROOT));
        outcome.Output.replace(program + u':', u"lineforge:"_s);
        return std::pair(outcome.ExitCode, outcome.Output.toStdString());
    };
    for (const QStringList& arguments : calls)
        EXPECT_EQ(told(deb + u"usr/bin/lineforge", arguments), told(tar + u"lineforge", arguments));
}

TEST(TarTest, IsTheHomeAndNothingElse)
{
    EXPECT_EQ(FilesBelow(tar), Sorted(HomeFiles()));
}

TEST(BundleTest, IsTheTarWithTheToolkitBesideIt)
{
    QStringList files = FilesBelow(bundle);
    const QRegularExpression broughtAlong(u"^(lib|plugins)/"_s);
    EXPECT_THAT(files.filter(broughtAlong),
                IsSupersetOf({u"lib/libQt6Core.so.6"_s, u"lib/libQt6Widgets.so.6"_s, u"lib/libsqlite3.so.0"_s,
                              u"plugins/imageformats/libqjpeg.so"_s, u"plugins/platforms/libqxcb.so"_s,
                              u"plugins/platforms/libqwayland-generic.so"_s}));
    // Which one, is the toolkit's choice.
    EXPECT_FALSE(
        files.filter(QRegularExpression(u"^plugins/multimedia/lib(gstreamer|ffmpeg)mediaplugin\\.so$"_s)).isEmpty());
    files.removeIf([&](const QString& name) { return broughtAlong.match(name).hasMatch(); });
    EXPECT_EQ(files, Sorted(FilesBelow(tar) + QStringList{u"qt.conf"_s}));
}

// A second C library or another sound server's voice would be worse than none.
TEST(BundleTest, LeavesToTheMachineWhatIsTheMachinesOwn)
{
    const QRegularExpression machinesOwn(
        u"/(ld-linux|lib(c|m|stdc\\+\\+|GL|EGL|X11|xcb|dbus-1|fontconfig|glib-2\\.0|gstreamer-1\\.0|pulse)\\.so)"_s);
    EXPECT_EQ(FilesBelow(bundle).filter(machinesOwn), QStringList());
}

TEST(DebTest, HoldsAHomeForTheLauncherAndWhatADesktopAsksFor)
{
    QStringList files = Below(u"usr/lib/lineforge"_s, HomeFiles());
    for (const int edge : {16, 22, 24, 32, 48, 64, 128, 256})
        files += u"usr/share/icons/hicolor/%1x%1/apps/lineforge.png"_s.arg(edge);
    files += {u"usr/bin/lineforge"_s,
              u"usr/bin/lineforge-check"_s,
              u"usr/share/applications/lineforge.desktop"_s,
              u"usr/share/doc/lineforge/changelog.gz"_s,
              u"usr/share/doc/lineforge/copyright"_s,
              u"usr/share/icons/hicolor/scalable/apps/lineforge.svg"_s,
              u"usr/share/man/man1/lineforge-check.1.gz"_s,
              u"usr/share/man/man1/lineforge.1.gz"_s,
              u"usr/share/metainfo/technology.tarnwick.lineforge.metainfo.xml"_s};
    EXPECT_EQ(FilesBelow(deb), Sorted(files));
}

TEST(DebTest, BelongsToRoot)
{
    const Outcome listing = RunCommand(u"sh"_s, {u"-c"_s, u"dpkg-deb -c " LINEFORGE_PACKAGES u"/*.deb"_s});
    ASSERT_EQ(listing.ExitCode, 0) << qUtf8Printable(listing.Output);
    const QStringList lines = listing.Output.split(u'\n', Qt::SkipEmptyParts);
    EXPECT_GT(lines.size(), FilesBelow(deb).size());
    for (const QString& line : lines)
        EXPECT_EQ(line.section(u' ', 1, 1), u"root/root") << qUtf8Printable(line);
}

// The packages that a field of the package's control file names.
QStringList NamedInField(QStringView field)
{
    const Outcome told = RunCommand(u"sh"_s, {u"-c"_s, u"dpkg-deb -f " LINEFORGE_PACKAGES u"/*.deb "_s + field});
    EXPECT_EQ(told.ExitCode, 0) << qUtf8Printable(told.Output);
    QStringList packages;
    for (const QString& package : told.Output.trimmed().split(u", "_s))
        packages += package.section(u' ', 0, 0);
    return packages;
}

TEST(DebTest, DependsOnItsLibrariesAndOnWhatItLoadsByName)
{
    EXPECT_THAT(NamedInField(u"Depends"),
                IsSupersetOf({u"fonts-liberation"_s, u"gstreamer1.0-plugins-good"_s, u"libqt6multimedia6"_s,
                              u"libqt6widgets6"_s, u"libsqlite3-0"_s, u"qt6-qpa-plugins"_s}));
    EXPECT_EQ(NamedInField(u"Recommends"), (QStringList{u"gstreamer1.0-libav"_s, u"qt6-wayland"_s}));
}

// That of Debian 13 hands on what the check of the metainfo has to say, of which below.
TEST(DebTest, FollowsTheRulesOfTheDistribution_AndItsChangelogTellsOfThisVersionFirst)
{
    const Outcome verdict = RunCommand(u"sh"_s, {u"-c"_s, u"lintian --fail-on none " LINEFORGE_PACKAGES u"/*.deb"_s});
    EXPECT_EQ(verdict.ExitCode, 0) << qUtf8Printable(verdict.Output);
    for (const QString& remark : verdict.Output.split(u'\n').filter(QRegularExpression(u"^[EW]: "_s)))
        EXPECT_THAT(remark.toStdString(), HasSubstr("appstream-metadata-validation-failed"));
    const Outcome changelog = RunCommand(u"gzip"_s, {u"-dc"_s, deb + u"usr/share/doc/lineforge/changelog.gz"_s});
    EXPECT_THAT(changelog.Output.toStdString(), StartsWith("lineforge (" LINEFORGE_VERSION ") "));
}

TEST(DebTest, Icons_HaveTheSizesOfTheirDirectories)
{
    for (const int edge : {16, 22, 24, 32, 48, 64, 128, 256})
        EXPECT_EQ(QImage(deb + u"usr/share/icons/hicolor/%1x%1/apps/lineforge.png"_s.arg(edge)).size(),
                  QSize(edge, edge));
}

TEST(DebTest, DesktopEntry_IsValid_AndStartsTheLauncherUnderTheIcon)
{
    const Outcome verdict = RunCommand(u"desktop-file-validate"_s, {desktopEntry});
    EXPECT_EQ(verdict.ExitCode, 0) << qUtf8Printable(verdict.Output);
    EXPECT_THAT(Contents(desktopEntry).split('\n'),
                IsSupersetOf({"Exec=lineforge %f", "TryExec=lineforge", "Icon=lineforge"}));
}

// That its vendor's domain might be none is a mere guess of the check. The developer has a new tag, which the check
// of Debian 12 doesn't know yet and without which that of Debian 13 isn't content. The program has no page on the net.
TEST(DebTest, Metainfo_LeavesNothingToWishFor_AndTellsOfThisVersionFirst)
{
    const Outcome verdict = RunCommand(u"appstreamcli"_s, {u"validate"_s, u"--no-net"_s, u"--pedantic"_s, metainfo});
    const QStringList remarks = verdict.Output.split(u'\n').filter(QRegularExpression(u"^[EWIP]: "_s));
    EXPECT_FALSE(remarks.isEmpty()) << qUtf8Printable(verdict.Output);
    for (const QString& remark : remarks)
        EXPECT_THAT(remark.toStdString(), AnyOf(HasSubstr("cid-maybe-not-rdns"), HasSubstr("unknown-tag developer"),
                                                HasSubstr("url-homepage-missing")));
    const QString text = QString::fromUtf8(Contents(metainfo));
    const QString first = text.mid(text.indexOf(u"<release ")).section(u'>', 0, 0);
    EXPECT_THAT(first.toStdString(), testing::HasSubstr("version=\"" LINEFORGE_VERSION "\""));
}

} // namespace
} // namespace lineforge::packaging
