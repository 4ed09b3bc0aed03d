#include "RunningProgram.h"

#include "Failure.h"

#include <QDir>
#include <QProcessEnvironment>

namespace lineforge::tour
{

using namespace Qt::StringLiterals;

namespace
{
// Real windows, one pixel to a pixel, in the toolkit's own looks, and no settings but those of this tour.
QProcessEnvironment Environment(const ScratchHome& home, const QString& platform)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto& name :
         {u"QT_SCALE_FACTOR"_s, u"QT_SCREEN_SCALE_FACTORS"_s, u"QT_ENABLE_HIGHDPI_SCALING"_s, u"QT_USE_PHYSICAL_DPI"_s,
          u"QT_FONT_DPI"_s, u"QT_STYLE_OVERRIDE"_s, u"QT_QPA_PLATFORMTHEME"_s, u"XDG_CURRENT_DESKTOP"_s})
        environment.remove(name);
    environment.insert(u"QT_QPA_PLATFORM"_s, platform);
    if (platform != u"wayland")
        environment.remove(u"WAYLAND_DISPLAY"_s);
    environment.insert(u"XDG_CONFIG_HOME"_s, home.SettingsDirectory());
    // What is printed to a file goes to the user's home; the fonts' cache stays where it is.
    if (!environment.contains(u"XDG_CACHE_HOME"_s))
        environment.insert(u"XDG_CACHE_HOME"_s, QDir::homePath() + u"/.cache");
    environment.insert(u"HOME"_s, home.SettingsDirectory());
    return environment;
}
} // namespace

RunningProgram::~RunningProgram()
{
    if (process_.state() == QProcess::NotRunning)
        return;
    process_.kill();
    process_.waitForFinished();
}

void RunningProgram::Start(const ScratchHome& home, const QString& platform)
{
    process_.setProcessEnvironment(Environment(home, platform));
    process_.setWorkingDirectory(home.Directory());
    process_.setProcessChannelMode(QProcess::MergedChannels);
    process_.start(home.Executable(), QStringList());
    Expect(process_.waitForStarted(), u"the program to start: "_s + process_.errorString());
}

bool RunningProgram::StillRunsAfter(int milliseconds)
{
    return process_.state() != QProcess::NotRunning && !process_.waitForFinished(milliseconds);
}

QString RunningProgram::Ending() const
{
    if (process_.state() != QProcess::NotRunning)
        return u"it still runs"_s;
    if (process_.exitStatus() == QProcess::CrashExit)
        return u"it crashed"_s;
    return u"its exit code was "_s + QString::number(process_.exitCode());
}

bool RunningProgram::EndedWell() const
{
    return process_.state() == QProcess::NotRunning && process_.exitStatus() == QProcess::NormalExit &&
           process_.exitCode() == 0;
}

QString RunningProgram::Output()
{
    if (process_.isOpen())
        output_ += QString::fromLocal8Bit(process_.readAll());
    return output_;
}

} // namespace lineforge::tour
